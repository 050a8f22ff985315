// What the food diary offers: meals, groups, families of foods, and the foods of their own store.
#pragma once

#include "diet/alimenti.h"

#include <QStringList>
#include <cstdint>
#include <span>

inline constexpr int pasto_pranzo = 2;        // of the five meals, 0 to 4
inline constexpr int gruppo_integratori = 6;  // the group of the client's own supplements, at lunch alone

[[nodiscard]] const QStringList& pasti_diario();

/// The groups of a meal, 0 to 4; empty for a meal whose families stand in no group, and beyond.
[[nodiscard]] QStringList gruppi_diario(int pasto);

/// The families of a meal and group; the group counts only where the meal has groups. Empty for the supplements and
/// beyond.
[[nodiscard]] QStringList famiglie_diario(int pasto, int gruppo);

/// The code of a family, 1 to 30, from the positions in the three lists; 0 where one is missing or out of range.
[[nodiscard]] std::int16_t trova_cod1(int pasto, int gruppo, int famiglia);

/// The diary's foods in the order cod1, cod2; the store is read once. Throws Errore where it cannot be read.
[[nodiscard]] const std::vector<Alimento>& alimenti_diario();

/// The foods of a family, in order.
[[nodiscard]] std::span<const Alimento> alimenti_diario(std::int16_t cod1);

/// The food of that pair, null where the store has none.
[[nodiscard]] const Alimento* alimento_diario(std::int16_t cod1, std::int16_t cod2);
