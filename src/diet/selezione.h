// The draws: foods taken at random from the client's list into the meal under construction.
//
// Nothing here looks at the calories that are left: a food comes at its standard portion. A draw that walks past the
// last row throws Errore 3021, an index out of range 9; the search leaves the procedure there and goes on.
#pragma once

#include "diet/contesto.h"

/// Adds a food of the current store to the working meal; nothing where the store has no such food.
void aggiungi_alimento(Contesto& c, std::int16_t cod1, std::int16_t cod2);

/// Draws a base food, and perhaps its companion, for a light meal. `m` 0, 1 or 3; `codice` 1 colazione, 3 snacks.
/// False when nothing could be drawn.
[[nodiscard]] bool scegli_pasto_leggero(Contesto& c, int m, int codice);

/// A value of a comma list drawn at random; 0 for a list without a comma.
[[nodiscard]] int scegli_abbinamento(const Caso& caso, const QString& lista);

/// Number of commas.
[[nodiscard]] int conta_abbinamenti(const QString& lista);

/// Draws the group (cod1) that fills course `cod` of lunch (m 2) or dinner (m 4) on day d; 0 where no food does.
/// `fisso`: among the obligatory foods of the day instead of the free ones.
[[nodiscard]] int scegli_gruppo(Contesto& c, int cod, int m, int d, bool fisso);

/// Adds up to three foods of a group: the base food, a first and a second companion.
void carica_gruppo(Contesto& c, int sel, int m, int d, bool fisso);
