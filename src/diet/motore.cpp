#include "diet/motore.h"

#include "base/errori.h"

#include <chrono>
#include <cmath>
#include <memory>

namespace {

std::size_t indice(int settimana, int giorno, int pasto, int posto) {
  const bool dentro = settimana >= 1 && settimana <= settimane && giorno >= 0 && giorno < giorni && pasto >= 0 &&
                      pasto < pasti && posto >= 0 && posto < posti;
  if (!dentro) throw Errore(9, "Indice non incluso nell'intervallo");
  return static_cast<std::size_t>((((settimana - 1) * giorni + giorno) * pasti + pasto) * posti + posto);
}

}  // namespace

voce_pasto& Motore::menu(int settimana, int giorno, int pasto, int posto) {
  return voci_menu[indice(settimana, giorno, pasto, posto)];
}

const voce_pasto& Motore::menu(int settimana, int giorno, int pasto, int posto) const {
  return voci_menu[indice(settimana, giorno, pasto, posto)];
}

void Motore::svuota_pasto() {
  for (int i = 0; i < voci_contate; ++i) {
    voce_pasto& v = pasto_lavoro[static_cast<std::size_t>(i)];
    if (v.cod1 == 0) break;
    v = {};
  }
  usati_cod4 = {};
  usati_cod3 = {};
  conta_voci = 0;
}

void Motore::azzera_scarti() {
  scarti = {};
  conta_scarti = 0;
}

void Motore::azzera_settimana() {
  pasto_lavoro = {};
  for (int g = 0; g < giorni; ++g) {
    for (int p = 0; p < pasti; ++p) {
      for (int i = 0; i < voci_contate; ++i) menu(settimana_corrente, g, p, i) = {};
    }
  }
}

void Motore::annulla_variazioni() {
  for (voce_pasto& v : voci_menu) v.quant_mod.clear();
}

Motore& motore() {
  static Motore m;
  return m;
}

int Caso::estrai(int n) const { return static_cast<int>(std::floor(n * rnd() + 1)); }

Caso caso_del_programma() {
  // SplitMix64 (Steele, Lea, Flood 2014): good, and free to reseed before every draw.
  auto stato = std::make_shared<std::uint64_t>(0);
  return {
      [stato] {
        std::uint64_t z = *stato += 0x9E3779B97F4A7C15U;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
        return static_cast<double>((z ^ (z >> 31)) >> 11) * 0x1p-53;
      },
      // The former state stays in the seed: two reseedings within one tick of the clock must differ.
      [stato] { *stato += static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()); }};
}

Caso& caso_in_uso() {
  static Caso caso = caso_del_programma();
  return caso;
}

Caso caso_con_seme(std::uint64_t seme) {
  auto stato = std::make_shared<std::uint64_t>(seme);
  return {[stato] {
            *stato = *stato * 6364136223846793005U + 1442695040888963407U;
            return static_cast<double>(*stato >> 11) * 0x1p-53;
          },
          [] {}};
}
