#include "diet/spuntati.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const std::vector<const Spuntato*> nessuno;

template <class T>
auto& posto(T& tavola, Segno segno, int pasto, int valore) {
  return tavola[static_cast<std::size_t>(segno)][static_cast<std::size_t>(pasto)][static_cast<std::size_t>(valore)];
}

}  // namespace

void Spuntati::leggi(Archivio& dati) {
  righe_.clear();
  dati.scorri(
      u"SELECT cod1, cod2, cod3, cod4, pasto, ok, LV, SD, abb_OK, abb_LV, abb_SD, n_volte_pranzo, n_volte_cena "
      "FROM alimenti_spuntati WHERE ok OR LV OR SD ORDER BY cod1, cod2, cod3, cod4"_s,
      [this](const Cursore& r) {
        const auto intero = [&](int colonna) { return static_cast<std::int16_t>(r.intero(colonna)); };
        const auto segno = [&](int colonna) { return r.intero(colonna) != 0; };
        righe_.push_back({intero(0), intero(1), intero(2), intero(3), intero(4), segno(5), segno(6), segno(7),
                          r.testo(8), r.testo(9), r.testo(10), intero(11), intero(12)});
      });
  indicizza();
}

void Spuntati::indicizza() {
  offerti_ = {};
  portate_ = {};
  gruppi_ = {};
  const auto dentro = [](int v, std::size_t n) { return v >= 0 && static_cast<std::size_t>(v) < n; };
  for (const Spuntato& r : righe_) {
    if (!dentro(r.pasto, pasti_codici)) continue;
    if (r.ok) offerti_[static_cast<std::size_t>(r.pasto)].push_back(&r);
    const std::array marche{std::pair(Segno::ok, r.ok), std::pair(Segno::LV, r.lv), std::pair(Segno::SD, r.sd)};
    for (const auto& [segno, messa] : marche) {
      if (messa && dentro(r.cod3, valori)) posto(portate_, segno, r.pasto, r.cod3).push_back(&r);
      if (messa && dentro(r.cod1, valori)) posto(gruppi_, segno, r.pasto, r.cod1).push_back(&r);
    }
  }
}

const std::vector<const Spuntato*>& Spuntati::offerti(std::int16_t pasto) const {
  return offerti_[static_cast<std::size_t>(pasto)];
}

const std::vector<const Spuntato*>& Spuntati::per_portata(Segno segno, std::int16_t pasto, int cod3) const {
  return cod3 >= 0 && cod3 < int{valori} ? posto(portate_, segno, pasto, cod3) : nessuno;
}

const std::vector<const Spuntato*>& Spuntati::per_gruppo(Segno segno, std::int16_t pasto, int cod1) const {
  return cod1 >= 0 && cod1 < int{valori} ? posto(gruppi_, segno, pasto, cod1) : nessuno;
}

void Spuntati::conta_uso_alimenti(const std::vector<std::pair<std::int16_t, std::int16_t>>& cibi, int m) {
  const bool pranzo = m == 2;
  for (const auto& [cod1, cod2] : cibi) da_scrivere_[pranzo ? 0 : 1].push_back({cod1, cod2, m + 2});
  for (Spuntato& r : righe_) {
    if (r.lv || r.sd || r.pasto != m + 2) continue;
    const auto volte = static_cast<std::int16_t>(std::ranges::count(cibi, std::pair(r.cod1, r.cod2)));
    auto& contatore = pranzo ? r.n_volte_pranzo : r.n_volte_cena;
    contatore = static_cast<std::int16_t>(contatore + volte);
  }
}

void Spuntati::scrivi_usi(Archivio& dati) {
  const std::array comandi{
      u"update alimenti_spuntati set n_volte_pranzo=n_volte_pranzo+1 "
      "where (not lv and not sd) and cod1=? and cod2=? and pasto=?"_s,
      u"update alimenti_spuntati set n_volte_cena=n_volte_cena+1 "
      "where (not lv and not sd) and cod1=? and cod2=? and pasto=?"_s};
  dati.transazione([&] {
    for (std::size_t i = 0; i < comandi.size(); ++i) dati.esegui_serie(comandi[i], da_scrivere_[i]);
  });
  da_scrivere_ = {};
}

void Spuntati::azzera_n_volte(Archivio& dati) {
  dati.esegui(
      u"update alimenti_spuntati set n_volte_pranzo=0, n_volte_cena=0 "
      "where n_volte_pranzo is not 0 or n_volte_cena is not 0"_s);
  for (Spuntato& r : righe_) r.n_volte_pranzo = r.n_volte_cena = 0;
}
