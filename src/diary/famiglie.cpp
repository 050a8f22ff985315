#include "diary/famiglie.h"

#include "base/pasti.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Families that stand in one list; the first has the code `scarto` + 1. A name only where the block is a group.
struct Blocco {
  QString nome;
  std::int16_t scarto;
  QStringList famiglie;
};

const Blocco& colazione() {
  static const Blocco b{
      {}, 0, {u"Con latticini"_s, u"Con cereali"_s, u"Fuori casa"_s, u"Con latticini bio"_s, u"Con cereali bio"_s}};
  return b;
}

const Blocco& spuntino() {
  static const Blocco b{{}, 5, {u"Con latticini"_s, u"Con cereali"_s}};
  return b;
}

const std::array<Blocco, 6>& gruppi() {
  static const std::array<Blocco, 6> g{
      Blocco{u"Primi & Cereali"_s,
             7,
             {u"Pasta & Pizze"_s, u"Pasta & Cereali bio"_s, u"Minestre & Zuppe"_s, u"Primi pronti"_s,
              u"Pane e derivati"_s}},
      Blocco{u"Carne & Pesce"_s,
             12,
             {u"Carne bovina e suina"_s, u"Carni altre"_s, u"Frattaglie"_s, u"Pesce fresco"_s, u"Crostacei & mitili"_s,
              u"Pesce conservato"_s, u"Insaccati"_s}},
      Blocco{u"Verdure & Frutta"_s,
             19,
             {u"Ortaggi & verdure"_s, u"Legumi"_s, u"Frutta fresca"_s, u"Frutta secca o pronta"_s}},
      Blocco{u"Latticini & Uova"_s, 23, {u"Latticini"_s, u"Formaggi"_s, u"Uova di gallina"_s}},
      Blocco{u"Bevande & Dolciumi"_s, 26, {u"Dolciumi"_s, u"Bevande"_s}},
      Blocco{u"Fast food"_s, 28, {u"Fast food cereali"_s, u"Fast food vegetali"_s}}};
  return g;
}

bool ha_gruppi(int pasto) { return pasto == pasto_pranzo || pasto == 4; }

/// Null for a meal or group that has no families.
const Blocco* blocco(int pasto, int gruppo) {
  if (pasto == 0) return &colazione();
  if (pasto == 1 || pasto == 3) return &spuntino();
  const auto g = static_cast<std::size_t>(gruppo);
  return ha_gruppi(pasto) && gruppo >= 0 && g < gruppi().size() ? &gruppi()[g] : nullptr;
}

std::vector<Alimento> leggi(const QString& file) {
  std::vector<Alimento> alimenti;
  const auto aggiungi = [&](const Cursore& r) {
    const auto intero = [&](int colonna) { return static_cast<std::int16_t>(r.intero(colonna)); };
    alimenti.push_back({intero(0), intero(1), intero(2), intero(3), r.testo(4), intero(5), r.numero(6), r.numero(7),
                        r.numero(8), r.numero(9)});
  };
  Archivio(file, accesso, Archivio::Modo::sola_lettura)
      .scorri(
          u"SELECT cod1, cod2, cod3, cod4, Descrizione, quantità, calorie, protidi, lipidi, glucidi "
          "FROM alimenti ORDER BY cod1,cod2 ASC"_s,
          aggiungi);
  return alimenti;
}

}  // namespace

const QStringList& pasti_diario() {
  static const QStringList p = [] {
    QStringList nomi;
    for (const QStringView nome : nomi_pasti) nomi << nome.toString();
    return nomi;
  }();
  return p;
}

QStringList gruppi_diario(int pasto) {
  if (!ha_gruppi(pasto)) return {};
  QStringList nomi;
  for (const Blocco& g : gruppi()) nomi << g.nome;
  if (pasto == pasto_pranzo) nomi << u"Integratore"_s;
  return nomi;
}

QStringList famiglie_diario(int pasto, int gruppo) {
  const Blocco* b = blocco(pasto, gruppo);
  return b ? b->famiglie : QStringList();
}

std::int16_t trova_cod1(int pasto, int gruppo, int famiglia) {
  const Blocco* b = blocco(pasto, gruppo);
  if (!b || famiglia < 0 || famiglia >= b->famiglie.size()) return 0;
  return static_cast<std::int16_t>(b->scarto + famiglia + 1);
}

const std::vector<Alimento>& alimenti_diario() {
  static QString file;
  static std::vector<Alimento> letti;
  if (const QString ora = percorso(u"sa_diario.jed"_s); file != ora) {
    letti = leggi(ora);
    file = ora;
  }
  return letti;
}

std::span<const Alimento> alimenti_diario(std::int16_t cod1) {
  const auto famiglia = std::ranges::equal_range(alimenti_diario(), cod1, {}, &Alimento::cod1);
  return {famiglia.begin(), famiglia.end()};
}

const Alimento* alimento_diario(std::int16_t cod1, std::int16_t cod2) {
  const auto famiglia = alimenti_diario(cod1);
  const auto i = std::ranges::lower_bound(famiglia, cod2, {}, &Alimento::cod2);
  return i != famiglia.end() && i->cod2 == cod2 ? &*i : nullptr;
}
