#include "assessment/livelli.h"

#include "assessment/formule.h"
#include "base/errori.h"
#include "base/numeri.h"

#include <array>
#include <cmath>

namespace {

constexpr QStringView senza_limite = u"\uffff";  // no text sorts above it
constexpr double bmi_di_mezzo = 27;

struct RigaEta {
  QStringView da, a;
  float protidi, lipidi;
};
constexpr std::array<RigaEta, 6> righe_eta{{
    {u"10", u"13", 1.55F, 1.10F},
    {u"14", u"16", 1.30F, 1.10F},
    {u"17", u"20", 1.10F, 1.05F},
    {u"21", u"50", 1.10F, 1.05F},
    {u"51", u"60", 1.10F, 1.00F},
    {u"60", senza_limite, 1.10F, 1.00F},
}};

struct Variazione {
  float protidi, lipidi;
};
constexpr std::array<Variazione, classi_bmi.size()> variazioni{{
    {0.20F, 0.20F},
    {0.20F, 0.10F},
    {0, 0},
    {0.10F, 0},
    {0.15F, 0},
    {0.20F, -0.05F},
    {0.25F, -0.10F},
    {0.25F, -0.10F},
}};

/// As `classe_bmi`, but by text.
std::optional<std::size_t> classe_per_testo(QStringView bmi) {
  constexpr std::size_t ultima = classi_bmi.size() - 1;
  if (bmi < testo(classi_bmi.front().a)) return 0;
  if (bmi > testo(classi_bmi.back().da)) return ultima;
  for (std::size_t i = 1; i < ultima; ++i) {
    if (tra(bmi, testo(classi_bmi[i].da), testo(classi_bmi[i].a))) return i;
  }
  return {};
}

double intero(QStringView testo) { return std::floor(valore(testo)); }

}  // namespace

Livello livello_per_eta(QStringView anni) {
  for (std::size_t i = 0; i < righe_eta.size(); ++i) {
    const RigaEta& r = righe_eta[i];
    if (tra(anni, r.da, r.a)) return {i, r.protidi, r.lipidi};
  }
  return {};
}

Livello livello_per_bmi(QStringView bmi) {
  const auto classe = classe_per_testo(bmi);
  if (!classe) return {};
  return {*classe, variazioni[*classe].protidi, variazioni[*classe].lipidi};
}

std::optional<std::int16_t> peso_di_riferimento(QStringView bmi, QStringView attuale, QStringView ideale) {
  const bool in_mezzo = numerico(bmi) && valore(bmi) >= bmi_di_mezzo;
  if (!numerico(ideale) || (in_mezzo && !numerico(attuale))) return {};
  std::optional<std::int16_t> peso;
  abbandona([&] { peso = round16(in_mezzo ? std::floor((intero(attuale) + intero(ideale)) / 2) : intero(ideale)); });
  return peso;
}
