// How a rule hangs on a control. Each rule catches its errors at its own door: none crosses Qt's frames.
#pragma once

#include "core/errore_non_gestito.h"
#include "core/valore.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTimer>
#include <functional>
#include <utility>

/// Runs a rule; an error that it lets out is the program's end.
template <class F>
void esegui_regola(F&& regola) {
  try {
    regola();
  } catch (const std::exception& e) {
    errore_non_gestito(e);
  }
}

namespace dettaglio {
/// The rule with its own door.
template <class F>
auto porta(F regola) {
  return [regola = std::move(regola)]() mutable { esegui_regola(regola); };
}
void clic_di_lista(QComboBox* lista, std::function<void()> regola);
void clic_di_lista(QListWidget* lista, std::function<void()> regola);
void su_tasto(QAbstractButton* pulsante, bool giu, std::function<void()> regola);
void su_doppio_clic(QWidget* controllo, std::function<void()> regola);
void su_uscita(QWidget* controllo, std::function<void()> regola);
}  // namespace dettaglio

/// Change of the text, by typing and by program alike.
template <class F>
void al_cambio(QLineEdit* c, F regola) {
  QObject::connect(c, &QLineEdit::textChanged, c, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_cambio(QPlainTextEdit* c, F regola) {
  QObject::connect(c, &QPlainTextEdit::textChanged, c, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_cambio(QComboBox* c, F regola) {
  QObject::connect(c, &QComboBox::currentTextChanged, c, dettaglio::porta(std::move(regola)));
}
/// A value's rule runs in the stack of whoever writes it: its errors go on to that rule's door.
template <class F>
void al_cambio(Valore& v, F regola) {
  v.al_cambio(std::move(regola));
}
/// Change of a tick or of a choice, by the user and by program alike.
template <class F>
void al_cambio(QAbstractButton* c, F regola) {
  QObject::connect(c, &QAbstractButton::toggled, c, dettaglio::porta(std::move(regola)));
}

template <class F>
void al_clic(QAbstractButton* c, F regola) {
  QObject::connect(c, &QAbstractButton::clicked, c, dettaglio::porta(std::move(regola)));
}
/// Once for each choice of the user, the line that already stands included, and for each new position set by program.
template <class F>
void al_clic(QComboBox* lista, F regola) {
  dettaglio::clic_di_lista(lista, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_clic(QListWidget* lista, F regola) {
  dettaglio::clic_di_lista(lista, dettaglio::porta(std::move(regola)));
}

template <class F>
void al_pressione(QAbstractButton* c, F regola) {
  dettaglio::su_tasto(c, true, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_rilascio(QAbstractButton* c, F regola) {
  dettaglio::su_tasto(c, false, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_doppio_clic(QWidget* c, F regola) {
  dettaglio::su_doppio_clic(c, dettaglio::porta(std::move(regola)));
}
/// The focus goes to another control; a box or another program that comes in front takes nothing away.
template <class F>
void all_uscita(QWidget* c, F regola) {
  dettaglio::su_uscita(c, dettaglio::porta(std::move(regola)));
}
template <class F>
void allo_scatto(QTimer* t, F regola) {
  QObject::connect(t, &QTimer::timeout, t, dettaglio::porta(std::move(regola)));
}
template <class F>
void al_comando(QAction* a, F regola) {
  QObject::connect(a, &QAction::triggered, a, dettaglio::porta(std::move(regola)));
}

/// Empties a list and fills it, with no line chosen and without a sound.
void riempi_lista(QComboBox* lista, const QStringList& righe);
