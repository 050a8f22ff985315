#include "core/sessione.h"
#include "reports/fonti.h"
#include "reports/scrittori.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Pasto {
  int righe_prima;
  QStringView nome, gruppi;
  bool (*elencato)(const Riga& alimento);
  int tipo;  // of the exclusion
};

bool da_fast_food(const Riga& r) { return r[u"cod1"].toInt() == 16 || r[u"cod1"].toInt() == 17; }

constexpr std::array<Pasto, 4> pasti{{
    {0, u"Pasto:Colazione", u"Gruppi alimentari", [](const Riga& r) { return r[u"col"].toBool(); }, 0},
    {5, u"Pasto:Pranzo", u"Gruppi alimentari", [](const Riga& r) { return r[u"pranzo"].toBool() && !da_fast_food(r); },
     1},
    {4, u"Pasto:Fast-food", u"Gruppi alimentari",
     [](const Riga& r) { return r[u"pranzo"].toBool() && da_fast_food(r); }, 1},
    {3, u"Pasto:Cena", u"Gruppo alimentare", [](const Riga& r) { return r[u"cena"].toBool(); }, 2},
}};

void testa(Bersaglio& b, const Studio& studio, const Riga& anagrafe) {
  b.all_origine();
  riga(b, studio.nome);
  righe_vuote(b, 4);
  riga(b, QString(33, u' '), u"Preferenze alimenti di "_s, anagrafe[u"nome"], u" "_s, anagrafe[u"cognome"]);
  b.colore(qRgb(255, 0, 0));
  righe_vuote(b, 2);
  riga(b, u"Preferenze: ogni gruppo contiene vari alimenti (vedi scheda di gruppi alimentari diversi),"_s);
  riga(b, u"non si dovrà scartare in base alla presenza di un solo alimento non tollerato,"_s);
  riga(b, u"il gruppo deve essere accettato se contiene anche un solo alimento gradito"_s);
  righe_vuote(b, 3);
  b.colore(qRgb(0, 0, 0));
  b.a_capo();
}

/// True where the client refuses the food at meals of this kind. `esclusi` in the order of the codes: the first row
/// beyond the food in both codes ends the search.
bool gruppo_escluso(const std::vector<Riga>& esclusi, int cod1, int cod2, int tipo) {
  for (const Riga& r : esclusi) {
    const int c1 = r[u"cod1"].toInt(), c2 = r[u"cod2"].toInt();
    if (c1 == cod1 && c2 == cod2 && r[u"quant"].toDouble() == 0 && r[u"tipo"].toInt() == tipo) return true;
    if (c1 > cod1 && c2 > cod2) return false;
  }
  return false;
}

}  // namespace

void stampa_preferenze(Bersaglio& b, int pagina) {
  const Studio studio = identità();
  Archivio alimenti(percorso(u"sa_dieta.jed"_s), accesso, Archivio::Modo::sola_lettura);
  apri_dati_tmp(Scopo::salvare);
  const Riga anagrafe = anagrafe_di(dati_tmp());
  if (pagina == 1) testa(b, studio, anagrafe);
  const Pasto& pasto = pasti.at(static_cast<std::size_t>(pagina - 1));
  righe_vuote(b, pasto.righe_prima);
  riga(b, pasto.nome.toString(), Tab{25}, pasto.gruppi.toString(), Tab{105}, u"Esclusioni"_s);
  b.a_capo();
  const auto esclusi = dati_tmp().righe(u"SELECT * FROM gruppi_esclusi ORDER BY cod1, cod2"_s);
  for (const Riga& r : alimenti.righe(u"SELECT * FROM alimenti ORDER BY cod1, cod2"_s)) {
    if (!pasto.elencato(r)) continue;
    const bool escluso = gruppo_escluso(esclusi, r[u"cod1"].toInt(), r[u"cod2"].toInt(), pasto.tipo);
    riga(b, Tab{1}, r[u"Descrizione"], Tab{110}, u"|"_s, escluso ? u"*|"_s : u"_|"_s);
  }
}
