// The sport of a week: what each activity costs, what becomes of a day's energy, how the meals share it. Energy in
// kcal.
#pragma once

#include <QChar>
#include <QString>
#include <array>
#include <cstdint>
#include <span>

/// An activity as the list names it, its cost in kcal a minute whatever the body weight, and its picture's file.
struct AttivitàSportiva {
  QStringView nome;
  float costo;
  QStringView figura;
};

/// The 39 activities in the order of the list.
[[nodiscard]] std::span<const AttivitàSportiva> attività_sportive();

/// Cost in kcal a minute of the activity at a position of the list; 0 outside it.
[[nodiscard]] float costo_attivita(std::int16_t indice);

/// Energy of some minutes of an activity: its cost counts in whole kcal a minute, ties to even. Throws Errore 6 beyond
/// 16 bits.
[[nodiscard]] std::int16_t calorie_attività(std::int16_t indice, std::int16_t minuti);

/// A day's energy by nutrient, whole kcal.
struct Ripartizione {
  double protidi, lipidi, glucidi;
};

/// Splits a day's energy by the percentages of protein and fat; carbohydrate is what remains.
[[nodiscard]] Ripartizione ripartisci(double calorie, double protidi, double lipidi);

/// A meal by its place among the percentages.
enum Pasto : std::size_t { colazione, pranzo, merenda, cena, spuntino };

/// Percent of the day's energy of each meal, where the practitioner has chosen nothing else.
inline constexpr std::array<QStringView, 5> percentuali_solite{u"12", u"37", u"7", u"37", u"7"};

struct PastiPrincipali {
  std::int16_t pranzo, cena;
};

/// Lunch and dinner in percent after one meal of the five was raised ('+') or lowered ('-'): one of the two takes the
/// difference to 100, a negative dinner included. `di_pranzo` tells that lunch itself was changed. Throws Errore 6
/// beyond 16 bits.
[[nodiscard]] PastiPrincipali ribilanciati(QChar segno, bool di_pranzo, const std::array<double, 5>& percentuali);
