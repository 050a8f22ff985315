// The acceptance test of a meal: do its portions meet the targets, and can they be scaled until they do?
#pragma once

#include "diet/motore.h"

/// A value rounded to three decimals, half away from zero on its 15 significant digits. 0 to 1e6.
[[nodiscard]] double tre_decimali(double x);

/// Tests the working meal against its targets and scales its portions like an odometer, from 1 to 2 by 0.2.
/// P, L: protein and fat target, K: calorie target in force, all in kcal; m: meal 0 to 4; compP, compL: deviations of
/// the day's earlier meals, for dinner alone; scala: portions may be scaled.
/// 1 accepted (the deviation of a meal before dinner goes to `scarti`), 0 not yet: add more food, -1 too much already
/// at base portions. Throws Errore 11 where a dinner's protein target equals its deviation.
[[nodiscard]] std::int16_t bilancia_pasto(Motore& motore, std::int16_t P, std::int16_t L, std::int16_t K, int m,
                                          float compP, float compL, bool scala);
