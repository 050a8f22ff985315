// The client's path of nine stages: codes, toolbar buttons, and the moves from one screen to another.
#pragma once

#include <QString>
#include <span>

/// A stage of the path.
struct Stadio {
  int codice;
  std::size_t pulsante;  // its toolbar button
  QStringView suggerimento;
  bool prende_fuoco;  // its button takes the focus when the stage comes in front
  void (*apri)();
  void (*chiudi)();
};

/// The nine stages in path order.
[[nodiscard]] std::span<const Stadio> stadi();

/// The stage of a code held as text; null for any other text.
[[nodiscard]] const Stadio* stadio(const QString& codice);

/// Change rule of the main window's `qualeform`: banner and toolbar follow the stage in front.
void cambia_qualeform();

void abilita_stadi();
void disabilita_stadi();

void avanti();
void indietro();

/// Closes every screen and opens a stage.
void salta_a(const Stadio& stadio);
