// What the tour does with its hands and eyes: clicks, keys, choices, pictures, reading a whole screen.
#pragma once

#include "risultati.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QMap>
#include <QTableView>
#include <QTest>

/// A picture of a window, numbered in the order of the tour; `guida` is its name in the user guide, where it has one.
void quadro(QWidget& finestra, const QString& nome, const QString& guida = {});

void clic(QWidget* controllo);
/// Clicks a tab by its text.
void clic_scheda(QTabBar* schede, const QString& testo);
/// Clicks into a field and types over what it holds.
void scrivi(QWidget* campo, const QString& testo);
template <std::size_t N>
void scrivi(const std::array<QLineEdit*, N>& campi, std::size_t da, const QStringList& testi) {
  for (const QString& t : testi) scrivi(campi.at(da++), t);
}
void scegli(QComboBox* lista, int riga);
void scegli(QComboBox* lista, const QString& riga);
template <std::size_t N>
void scegli(const std::array<QComboBox*, N>& liste, const std::array<int, N>& righe) {
  for (std::size_t i = 0; i < N; ++i) scegli(liste[i], righe[i]);
}
void scegli(QListWidget* lista, int riga);
void scegli(QTableView* griglia, int riga, int colonna = 0);
/// Holds a button down until a condition is met; false where it does not come within two seconds.
bool tieni(QAbstractButton* pulsante, const std::function<bool()>& finche);

/// Every named control of a screen with its text, its tick or its cells.
using Contenuto = QMap<QString, QString>;
[[nodiscard]] Contenuto contenuto(const QWidget& schermo);
/// One check a control.
void verifica_uguali(const Contenuto& trovato, const Contenuto& atteso, const QString& dove);
