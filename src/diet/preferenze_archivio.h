// The choices of foods between the grid and the client's working copy.
#pragma once

#include "diet/preferenze.h"

#include <set>

/// The two choices made before the foods: the weekday lunch, and whether the foods are picked by hand.
struct SceltaPranzo {
  bool fast_food = false, a_mano = false;
};

/// None where the client has no row yet or another value.
[[nodiscard]] std::optional<SceltaPranzo> leggi_scelta_pranzo(Archivio& dati);
/// A new client's row is added.
void scrivi_scelta_pranzo(Archivio& dati, const SceltaPranzo& scelta);

/// The meals (by button) to which the client's day gives no share; empty where nobody shared the day out yet.
[[nodiscard]] std::set<int> pasti_senza_quota(Archivio& dati);

/// Stores a meal, all or nothing: the rows of the grid under the meal's code and, in the meal's field, the boxes not
/// ticked. The rows' counters of use start again.
void salva_spunte(Archivio& dati, int codice, const Scheda& scheda, QStringView campo,
                  const std::vector<bool>& spuntate);

/// Puts the stored marks and companions of a meal into the grid: the n-th stored row belongs to the n-th row. False
/// where nothing is stored.
[[nodiscard]] bool richiama_righe(Archivio& dati, int codice, Scheda& scheda);

/// The stored list of the boxes not ticked in a meal's field, "0;3;"; none where no meal was ever stored.
[[nodiscard]] std::optional<QString> leggi_caselle(Archivio& dati, QStringView campo);

/// Drops the stored rows of a meal.
void dimentica_spunte(Archivio& dati, int codice);

/// Stores on which days each supplement goes into the lunch.
void salva_integratori(Archivio& dati, const Scheda& scheda);
/// Puts these days as marks into the grid.
void richiama_integratori(Archivio& dati, Scheda& scheda);
