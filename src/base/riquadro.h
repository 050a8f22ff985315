// One message box as the user would see it. Calculations hand these out; the screens show them.
#pragma once

#include <QString>

enum class Icona { nessuna, informazione, esclamazione, critica, domanda };

struct Riquadro {
  QString testo;
  QString titolo;
  Icona icona = Icona::nessuna;
  bool scelta = false;  // a Yes/No question

  bool operator==(const Riquadro&) const = default;
};
