// The weight objective: target of the first phase, days of rationing, grams and kilocalories a day, daily ration.
// Weight in kg, energy in kcal a day. Whole numbers are 16-bit; a result beyond them throws Errore 6.
#pragma once

#include <cstdint>
#include <optional>

inline constexpr int kcal_per_grammo = 7;      // a day, for each gram a day of weight change
inline constexpr double peso_da_superare = 9;  // kg; a target up to it is none
inline constexpr int passo_kcal = 5;           // of the ration, a tick
inline constexpr int fase_percento = 10;       // of the weight, the most that a first phase moves

/// The safety level, below which a ration wants minerals and vitamins added: 1250 for women, else 1300.
[[nodiscard]] std::int16_t livello_sicurezza(bool donna);

/// Default target: towards the ideal weight, by a tenth of the present one at most; fractions are cut.
[[nodiscard]] std::int16_t peso_fase1(double attuale, double ideale);

/// Ten percent off the present weight, without regard to the ideal one.
[[nodiscard]] double peso_in_apertura(double attuale);

/// Whole kg from the target up to the present weight: above 0 to lose, below to gain.
[[nodiscard]] std::int16_t differenza(double attuale, double traguardo);

/// What an objective starts from.
struct Partenza {
  double attuale, traguardo;  // kg
  double consumo;             // present consumption, kcal a day
  bool donna;
};

/// An objective as far as it was worked out; an empty number stays as it is shown.
struct Conteggio {
  std::optional<std::int16_t> giorni, grammi, kcal, razione;
};

/// Works the objective out from the target alone: 3 percent of the weight a month, 3 kg at most; days are added until
/// the ration reaches the safety level. `conto` keeps what stood before an error: Errore 6 where no number of days
/// does, Errore 11 for a weight that rounds to nothing. A target at the present weight leaves it empty.
void calcola_kcal(const Partenza& partenza, Conteggio& conto);

/// An objective worked out whole. Energy is wide here.
struct Razione {
  std::int16_t giorni, grammi;
  std::int32_t kcal, razione;
};

/// The objective for a number of days; empty where the ration would be negative. Throws Errore 6, or 11 for no days.
[[nodiscard]] std::optional<Razione> da_giorni(const Partenza& partenza, double giorni);

/// The objective for a ration; empty where it is negative, or moves the weight by no gram a day. Throws Errore 6.
[[nodiscard]] std::optional<Razione> da_razione(const Partenza& partenza, double razione);
