// The elaborated menu in table `dieta`, and its totals.
#pragma once

#include "base/archivio.h"
#include "diet/motore.h"

/// Replaces the stored diet by the menu, all four weeks, all or nothing. Returns the rows written.
int scrivi_dieta(const Motore& motore, Archivio& dati, const QString& cod_cli);

/// Fills the menu from the stored diet; weeks that it does not hold keep what they had. Returns the rows read. Throws
/// Errore 9 for a week, day or meal out of range.
int leggi_dieta(Motore& motore, Archivio& dati);

/// Sums in kcal, rounded after each addition.
struct Totali {
  std::int32_t calorie = 0;
  std::int16_t protidi = 0, lipidi = 0, glucidi = 0;

  /// Adds a food at `q` grams. Throws Errore 11 for a stored portion of 0, 6 for an overflow.
  void aggiungi(const voce_pasto& v, double q);
};

/// Grams of an entry: what the dietitian typed, else what the search proposed. Throws Errore 13 for a typed text that
/// is no number.
[[nodiscard]] double grammi(const voce_pasto& v);

/// Totals of a day's five meals, each up to its first entry without calories.
[[nodiscard]] Totali totali_giorno(const Motore& motore, int settimana, int giorno);
