// What the meals of the diary add up to, and the share of the day's energy in each of them.
#pragma once

#include "base/archivio.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

inline constexpr int pasti_del_giorno = 5;

/// What is eaten of one food or supplement: grams, and its figures per 100 g (kcal and grams).
struct Porzione {
  double grammi = 0;
  double calorie = 0, protidi = 0, lipidi = 0, glucidi = 0;
};

struct TotaliPasto {
  std::int16_t kcal = 0;
  float protidi = 0, lipidi = 0, glucidi = 0;  // grams
};

/// The foods with a dose that the client chose for a meal, 0 to 4, and at lunch the supplements. A food that the store
/// does not hold any more is passed over. Throws Errore where a store cannot be read.
[[nodiscard]] std::vector<Porzione> porzioni_del_pasto(Archivio& dati, int pasto);

/// Sums of a meal: each food's energy counts in whole kcal, cut off, its nutrients to the tenth of a gram. Throws
/// Errore 6 beyond 32767 kcal.
[[nodiscard]] TotaliPasto totali(std::span<const Porzione> porzioni);

/// The whole percentages of the day's energy in each meal; the last takes what the others leave of 100. Nothing where
/// the total is 0. kcal of the first four meals and of the day.
[[nodiscard]] std::optional<std::array<double, pasti_del_giorno>> ritmo(const std::array<double, 4>& kcal,
                                                                        double totale);
