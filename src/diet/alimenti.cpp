#include "diet/alimenti.h"

#include "base/errori.h"

#include <algorithm>
#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

std::vector<Alimento> leggi(const QString& file) {
  std::vector<Alimento> alimenti;
  const auto aggiungi = [&](const Cursore& r) {
    const auto intero = [&](int colonna) { return static_cast<std::int16_t>(r.intero(colonna)); };
    alimenti.push_back({intero(0), intero(1), intero(2), intero(3), r.testo(4), intero(5), r.numero(6), r.numero(7),
                        r.numero(8), r.numero(9), r.intero(10) != 0});
  };
  Archivio(file, accesso, Archivio::Modo::sola_lettura)
      .scorri(
          u"SELECT cod1, cod2, cod3, cod4, Descrizione, quantità, calorie, protidi, lipidi, glucidi, unico "
          "FROM alimenti ORDER BY cod1,cod2,cod3,cod4 ASC"_s,
          aggiungi);
  return alimenti;
}

}  // namespace

std::int16_t tipo_archivio(std::int32_t calorie) {
  if (calorie < 1500) return 0;
  return calorie <= 2300 ? 1 : 2;
}

void ArchiviDieta::apri_archivio_dieta(std::int16_t tipo) {
  static const std::array nomi{u"sa_dieta_minus.jed"_s, u"sa_dieta.jed"_s, u"sa_dieta_plus.jed"_s};
  if (tipo >= 0 && tipo <= 2) file_ = percorso(nomi[static_cast<std::size_t>(tipo)]);
  auto posto = letti_.find(file_);
  if (posto == letti_.end()) posto = letti_.emplace(file_, leggi(file_)).first;
  corrente_ = &posto->second;
}

const Alimento* ArchiviDieta::trova(std::int16_t cod1, std::int16_t cod2) const {
  const auto& tutti = alimenti();
  const auto coppia = [](const Alimento& a) { return std::tuple(a.cod1, a.cod2); };
  const auto i = std::ranges::lower_bound(tutti, std::tuple(cod1, cod2), {}, coppia);
  return i != tutti.end() && coppia(*i) == std::tuple(cod1, cod2) ? &*i : nullptr;
}

const std::vector<Alimento>& ArchiviDieta::alimenti() const {
  if (!corrente_) throw Errore(91, "Nessun archivio degli alimenti è aperto.");
  return *corrente_;
}

bool leggi_tipo_pranzo(Archivio& dati) {
  const auto righe = dati.righe(u"SELECT pranzoFF FROM alimenti"_s);
  if (righe.empty()) return false;
  const int scelta = righe.front()[u"pranzoFF"].toInt();
  return scelta == 12 || scelta == 14;
}
