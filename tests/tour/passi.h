// What the tour does with its hands and eyes: clicks, choices, pictures, demands.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QTableWidget>
#include <QTest>

/// Ends the tour with 1 where something is amiss.
void pretendi(bool vero, const char* che);

/// Where the pictures go; those of an earlier tour are taken away.
void apri_quadri(const QString& cartella);

/// A picture of a window, numbered in the order of the tour.
void quadro(QWidget& finestra, const QString& nome);

void clic(QWidget* controllo);
void scrivi(QWidget* campo, const QString& testo);
void scegli(QComboBox* lista, int riga);
void scegli(QComboBox* lista, const QString& riga);
void scegli(QListWidget* lista, int riga);
void scegli(QTableWidget* griglia, int riga);

/// Every named entry field of a screen with its text.
[[nodiscard]] QMap<QString, QString> contenuto(const QWidget& schermo);
