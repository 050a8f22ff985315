#include "diary/totali.h"

#include "base/numeri.h"
#include "diary/famiglie.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Grams of a nutrient as they are written, to the tenth.
double al_decimo(double per_cento, double grammi) { return valore(fmt(per_cento * grammi / 100, "0.0")); }

void aggiungi(float& somma, double grammi) { somma = static_cast<float>(static_cast<double>(somma) + grammi); }

}  // namespace

std::vector<Porzione> porzioni_del_pasto(Archivio& dati, int pasto) {
  std::vector<Porzione> porzioni;
  for (const Riga& r :
       dati.righe(u"SELECT cod1, cod2, dose FROM scelte_diario WHERE pasto = ? AND dose IS NOT NULL"_s, pasto)) {
    const auto codice = [&](QStringView campo) { return static_cast<std::int16_t>(r[campo].toInt()); };
    const Alimento* a = alimento_diario(codice(u"cod1"), codice(u"cod2"));
    if (a) porzioni.push_back({r[u"dose"].toDouble(), a->calorie, a->protidi, a->lipidi, a->glucidi});
  }
  if (pasto != pasto_pranzo) return porzioni;
  for (const Riga& r : dati.righe(u"SELECT * FROM Integratore_diario"_s)) {
    const auto numero = [&](QStringView campo) { return r[campo].toDouble(); };
    porzioni.push_back(
        {numero(u"quantità"), numero(u"calorie"), numero(u"protidi"), numero(u"lipidi"), numero(u"glucidi")});
  }
  return porzioni;
}

TotaliPasto totali(std::span<const Porzione> porzioni) {
  TotaliPasto t;
  for (const Porzione& p : porzioni) {
    t.kcal = round16(t.kcal + std::floor(p.calorie * p.grammi / 100));
    aggiungi(t.protidi, al_decimo(p.protidi, p.grammi));
    aggiungi(t.lipidi, al_decimo(p.lipidi, p.grammi));
    aggiungi(t.glucidi, al_decimo(p.glucidi, p.grammi));
  }
  return t;
}

std::optional<std::array<double, pasti_del_giorno>> ritmo(const std::array<double, 4>& kcal, double totale) {
  if (totale == 0) return {};
  std::array<double, pasti_del_giorno> quote{};
  double resto = 100;
  for (std::size_t i = 0; i < kcal.size(); ++i) {
    quote[i] = std::floor(kcal[i] / totale * 100);
    resto -= quote[i];
  }
  quote.back() = resto;
  return quote;
}
