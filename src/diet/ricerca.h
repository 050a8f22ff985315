// The search: a week of menus, 7 days of 5 meals, by random draws that are tested, scaled, kept or thrown away.
//
// Meals are walked meal-major, all breakfasts first and the dinners last: what a meal overshoots is kept in `scarti`
// and taken off that day's dinner. A meal once accepted stays. A main meal that cannot be built stops the search after
// four cycles, and the next run resumes at that very meal.
#pragma once

#include "diet/motore.h"

#include <array>

/// Energy of each day, Monday first, in kcal: totals and what comes from each nutrient.
struct TotaliGiornalieri {
  std::array<float, giorni> protidi{}, lipidi{}, glucidi{};
  std::array<std::int32_t, giorni> calorie{};
};

/// Share of the day's energy of each meal, in percent: colazione, spuntino, pranzo, merenda, cena.
using PercentualiPasti = std::array<std::int16_t, pasti>;

/// Elaborates week `settimana_corrente` from the client's accepted foods in `dati.tmp` and the food stores. Returns
/// when the week is complete or the search has given up. No failure stops it: a failing step is abandoned where it
/// stands.
void elabora_settimana(Motore& motore, const TotaliGiornalieri& totali, const PercentualiPasti& percentuali,
                       const Tramite& tramite);
