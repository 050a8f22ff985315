// The state of the diet search, alive as long as the program, and the record through which it meets the outside.
#pragma once

#include "base/riquadro.h"

#include <QString>
#include <array>
#include <cstdint>
#include <functional>

/// One food in a meal. Energy and nutrients of the portion in kilocalories, portion in grams.
struct voce_pasto {
  std::int16_t cod1 = 0, cod2 = 0;  // cod1 0 marks an empty entry, 23 a supplement
  QString descr;
  bool unico = false;  // the portion is never scaled
  std::int16_t cal = 0;
  float prot = 0, lip = 0, gluc = 0;
  std::int16_t quant = 0;
  float fattore = 0;  // scale in force, 1 at load
  QString quant_mod;  // grams typed by the dietitian, empty if not altered
};

/// Deviation of an accepted meal from its targets, in kilocalories.
struct scarto {
  std::int16_t kcal = 0;
  float prot = 0, lip = 0;
};

inline constexpr int settimane = 4, giorni = 7, pasti = 5, posti = 31;
inline constexpr int voci_di_lavoro = 16;
inline constexpr int voci_contate = 11;  // entries 0 to 10: only these are summed and stored

/// The engine's state. Indices out of range throw Errore 9.
struct Motore {
  std::array<voce_pasto, voci_di_lavoro> pasto_lavoro;  // the meal under construction
  std::int16_t conta_voci = 0;
  std::array<std::array<bool, 9>, 31> usati_cod4{};  // by cod1 1 to 30 and cod4 1 to 8
  std::array<bool, 14> usati_cod3{};                 // by course 2 to 13
  std::array<scarto, 28> scarti{};
  std::int16_t conta_scarti = 0;
  std::int16_t settimana_corrente = 1;
  std::int16_t ripresa_pasto = 0, ripresa_giorno = 0;  // where a stopped search resumes; both 0: a fresh start
  std::int16_t errori_kcal = 0, errori_prot = 0, errori_lip = 0;
  QString tipo_errore;  // "K", "P", "L" or empty
  bool pranzo_ff = false;
  std::array<voce_pasto, settimane * giorni * pasti * posti> voci_menu;

  /// An entry of the accepted meals: week 1 to 4, day 0 to 6, meal 0 to 4, slot 0 to 30.
  [[nodiscard]] voce_pasto& menu(int settimana, int giorno, int pasto, int posto);
  [[nodiscard]] const voce_pasto& menu(int settimana, int giorno, int pasto, int posto) const;

  void svuota_pasto();
  void azzera_scarti();
  void azzera_settimana();
  /// Forgets the grams typed by hand in all four weeks.
  void annulla_variazioni();
};

/// The one instance of the program.
[[nodiscard]] Motore& motore();

/// Randomness from outside: rnd() in [0,1), semina() reseeds from the clock.
struct Caso {
  std::function<double()> rnd;
  std::function<void()> semina;

  /// Int(n × rnd + 1): 1 to n.
  [[nodiscard]] int estrai(int n) const;
};

/// A good generator, reseeded from the clock.
[[nodiscard]] Caso caso_del_programma();

/// The generator that the screens hand to the search; tests and tour put a seeded one in its place.
[[nodiscard]] Caso& caso_in_uso();

/// The reproducible generator of tests, benchmarks and tour; reseeding does nothing.
[[nodiscard]] Caso caso_con_seme(std::uint64_t seme);

/// What the search says to the outside.
struct Tramite {
  std::function<void(const Riquadro&)> messaggio;
  std::function<void(int)> progresso;  // 0 to 35 meals
  std::function<void(bool)> termine;   // the search ended; true when the week is complete
  Caso caso;
};
