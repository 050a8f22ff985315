#include "assessment/obiettivo.h"

#include "base/errori.h"
#include "base/numeri.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr std::int16_t sicurezza_donna = 1250, sicurezza_altri = 1300;
constexpr int grammi_per_kg = 1000, percento_al_mese = 3;
constexpr std::int16_t tetto_mensile = 3000;  // g
constexpr double giorni_del_mese = 30;

std::int16_t quoziente(int dividendo, int divisore) {
  if (divisore == 0) throw Errore(11, "Divisione per zero");
  return round16(double{1} * dividendo / divisore);
}

std::int32_t intero32(double x) {
  const double intero = std::floor(x);
  using Limiti = std::numeric_limits<std::int32_t>;
  if (!(intero >= Limiti::min() && intero <= Limiti::max())) throw Errore(6, "Overflow");
  return static_cast<std::int32_t>(intero);
}

int grammi_totali(std::int16_t diff) { return std::abs(int{diff}) * grammi_per_kg; }

int razione_con(int consumo, int kcal, std::int16_t diff) { return diff < 1 ? consumo + kcal : consumo - kcal; }

}  // namespace

std::int16_t livello_sicurezza(bool donna) { return donna ? sicurezza_donna : sicurezza_altri; }

std::int16_t differenza(double attuale, double traguardo) { return round16(attuale - traguardo); }

double peso_in_apertura(double attuale) {
  const double intero = std::floor(attuale);
  return std::floor(intero - intero * fase_percento / 100);
}

std::int16_t peso_fase1(double attuale, double ideale) {
  const double intero = std::floor(attuale);
  const std::int16_t decimo = round16(intero * fase_percento / 100), c = round16(intero);
  const std::int16_t passo = std::min(decimo, round16(std::abs(c - round16(ideale))));
  return round16(ideale > c ? c + passo : c - passo);
}

void calcola_kcal(const Partenza& p, Conteggio& conto) {
  const std::int16_t diff = differenza(p.attuale, p.traguardo);
  if (diff == 0) return;
  const double mese = round16(round16(p.attuale) * percento_al_mese / 100.0 * grammi_per_kg);
  std::int16_t g = round16(std::min<double>(mese, tetto_mensile) / giorni_del_mese);
  const std::int16_t met = round16(p.consumo);
  const int tot = grammi_totali(diff);
  std::int16_t gg = quoziente(tot, g);
  conto.giorni = gg;
  std::int16_t kc = round16(g * kcal_per_grammo), raz = round16(razione_con(met, kc, diff));
  conto.grammi = g;
  conto.kcal = kc;
  while (raz < livello_sicurezza(p.donna)) {
    gg = round16(gg + 1);
    g = quoziente(tot, gg);
    kc = round16(g * kcal_per_grammo);
    raz = round16(razione_con(met, kc, diff));
  }
  conto = {gg, g, kc, raz};
}

std::optional<Razione> da_giorni(const Partenza& p, double giorni) {
  const std::int16_t diff = differenza(p.attuale, p.traguardo), gg = round16(std::floor(giorni));
  const std::int16_t g = quoziente(grammi_totali(diff), gg);
  const int kc = g * kcal_per_grammo, raz = razione_con(round16(p.consumo), kc, diff);
  if (raz < 0) return {};
  return Razione{gg, g, kc, raz};
}

std::optional<Razione> da_razione(const Partenza& p, double razione) {
  const std::int16_t diff = differenza(p.attuale, p.traguardo);
  const std::int32_t raz = intero32(razione);
  const double kc = std::abs(double{1} * round16(p.consumo) - raz);
  const std::int16_t g = round16(kc / kcal_per_grammo);
  if (g == 0) return {};
  const std::int16_t gg = quoziente(grammi_totali(diff), g);
  if (raz < 0) return {};
  return Razione{gg, g, static_cast<std::int32_t>(kc), raz};
}
