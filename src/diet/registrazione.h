// What the search writes down and reads besides the foods: accepted meals, their use counts, supplements.
#pragma once

#include "diet/motore.h"
#include "diet/spuntati.h"

/// Copies the working meal into the menu, sorted by group; what stood there goes.
void registra_pasto(Motore& motore, int d, int m, int settimana);

/// Counts the foods of the meal just recorded in the client's list.
void conta_usi(const Motore& motore, Spuntati& spuntati, int d, int m);

/// A row of `Integratore_dieta` as an entry of a lunch. Throws Errore 6 for an overflow.
[[nodiscard]] voce_pasto voce_integratore(const Riga& r);
