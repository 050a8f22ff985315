#include "diet/preferenze.h"

#include "base/liste.h"
#include "base/numeri.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr Casella caselle_colazione[]{
    {u"Latticini, fiocchi di cereali e cacao", {1, 1, 4}, {1, 0, 3}},
    {u"Dolciumi secchi", {1, 1, 3}},
    {u"Cereali, salumi, marmellata, miele", {1, 3, 4}, {1, 4, 4}},
    {u"Uova", {1, 5, 4}},
    {u"Frutta", {1, 6, 4}},
};
constexpr Casella caselle_colazione_bio[]{
    {u"Latticini e fiocchi di cereali", {2, 1, 4}},
    {u"Dolciumi secchi", {2, 2, 4}},
    {u"Cereali, marmellata, miele", {2, 3, 4}, {2, 4, 4}},
    {u"Frutta", {2, 5, 4}},
};
constexpr Casella caselle_spuntino[]{
    {u"Latticini e fiocchi di cereali", {3, 1, 4}},
    {u"Dolciumi secchi, merendine", {3, 2, 4}},
    {u"Cereali, marmellata, miele", {3, 3, 4}, {3, 4, 4}},
    {u"Frutta", {3, 5, 4}},
};
constexpr Casella caselle_pranzo[]{
    {u"Pasta, condimenti  e pizza", {4, 4, 1}},
    {u"Cereali, condimenti", {5, 5, 1}},
    {u"Minestre, minestroni, brodi", {6, 6, 1}},
    {u"Primi pronti e surgelati", {7, 7, 1}},
    {u"Carni", {8, 8, 1}},
    {u"Salumi", {9, 9, 1}},
    {u"Frattaglie", {10, 10, 1}},
    {u"Pesce", {11, 11, 1}},
    {u"Molluschi, crostacei e surgelati", {12, 12, 1}},
    {u"Verdure", {13, 13, 1}},
    {u"Legumi e patate", {14, 14, 1}},
    {u"Frutta fresca", {15, 15, 1}},
    {u"Frutta secca e conservata", {16, 16, 1}},
    {u"Dolciumi", {17, 17, 1}},
    {u"Latticini e formaggi", {18, 18, 1}},
    {u"Uova", {19, 19, 1}},
    {u"Bibite", {20, 20, 1}},
    {u"Fast food", {21, 21, 1}},
    {u"Pane e derivati", {22, 22, 1}},
};
constexpr Casella caselle_pranzo_veloce[]{
    {u"Primi pronti", {7, 7, 1}},           {u"Frutta", {15, 15, 1}},
    {u"Latticini e Formaggi", {18, 18, 1}}, {u"Uova", {19, 19, 1}},
    {u"Panini e Hamburgher", {21, 1, 4}},   {u"Insalatone", {21, 2, 4}},
};

constexpr InsiemeCaselle insiemi[]{
    {u"Colazione", u"Colazione", u"CheckColazione", caselle_colazione},
    {u"ColazioneBio", u"Colazione Bio", u"CheckColazioneBio", caselle_colazione_bio},
    {u"Spuntino", u"Spuntino", u"CheckSpuntino", caselle_spuntino},
    {u"Pranzo", u"Pranzo", u"CheckPranzo", caselle_pranzo},
    {u"PranzoFF", u"Pranzo", u"CheckPranzo", caselle_pranzo_veloce},
    {u"Merenda", u"Merenda", u"CheckMerenda", caselle_spuntino},
    {u"Cena", u"Cena", u"CheckCena", caselle_pranzo},
};

constexpr std::array gruppi_veloci{7, 15, 18, 19, 21};

/// The numbers of a companion list, as texts.
QStringList abbinamenti(const QString& lista) { return lista.split(u',', Qt::SkipEmptyParts); }

/// The row of a food; companions are of the group of their base food.
std::optional<std::size_t> riga_di(const Scheda& scheda, int cod1, const QString& cod2) {
  const std::pair chiave(cod1, cod2.toInt());
  const auto coppia = [](const AlimentoScheda& r) { return std::pair(r.cod1, r.cod2); };
  const auto i = std::ranges::lower_bound(scheda, chiave, {}, coppia);
  if (i == scheda.end() || coppia(*i) != chiave) return {};
  return static_cast<std::size_t>(i - scheda.begin());
}

void togli_da_lista(QString& lista, int cod2) {
  if (lista.isEmpty()) return;
  QStringList voci = abbinamenti(lista);
  voci.removeAll(QString::number(cod2));
  lista = lista_di(voci, u',');
}

int colonna_codice(const AlimentoScheda& r, int colonna) {
  return std::array{r.cod1, r.cod2, r.cod3, r.cod4}[static_cast<std::size_t>(colonna - 1)];
}

}  // namespace

bool alimento_in_scheda(int sel, int cod1, int quantita, bool fast_food) {
  if (quantita <= 0) return false;
  switch (sel) {
    case scheda_di::colazione:
    case scheda_di::colazione_bio:
    case scheda_di::spuntino: return cod1 == sel + 1;
    case scheda_di::pranzo: return fast_food ? std::ranges::find(gruppi_veloci, cod1) != gruppi_veloci.end() : cod1 > 3;
    case scheda_di::merenda: return cod1 == 3;
    case scheda_di::cena: return cod1 > 3;
    default: return false;
  }
}

Scheda leggi_alimenti(Archivio& sa_dieta, int sel, bool fast_food) {
  Scheda scheda;
  sa_dieta.scorri(
      u"SELECT cod1, cod2, cod3, cod4, Descrizione, calorie, abb2, quantità FROM alimenti "
      "ORDER BY cod1,cod2,cod3,cod4 ASC"_s,
      [&](const Cursore& r) {
        const auto intero = [&](int colonna) { return static_cast<int>(r.intero(colonna)); };
        if (!alimento_in_scheda(sel, intero(0), intero(7), fast_food)) return;
        const QString abb2 = r.testo(6);
        scheda.push_back(
            {intero(0), intero(1), intero(2), intero(3), r.testo(4), r.numero(5), abb2, {abb2, abb2, abb2}});
      });
  return scheda;
}

Scheda leggi_integratori(Archivio& dati) {
  Scheda scheda;
  dati.scorri(u"SELECT cod1, cod2, Descrizione, quantità, calorie, protidi, lipidi, glucidi FROM Integratore_dieta"_s,
              [&](const Cursore& r) {
                AlimentoScheda riga{.cod1 = static_cast<int>(r.intero(0)),
                                    .cod2 = static_cast<int>(r.intero(1)),
                                    .descrizione = r.testo(2),
                                    .calorie = r.numero(4),
                                    .abb2 = {}};
                riga.valori << riga.descrizione;
                for (int colonna = 3; colonna <= 7; ++colonna) riga.valori << testo(r.numero(colonna));
                scheda.push_back(std::move(riga));
              });
  return scheda;
}

void imposta_segno(AlimentoScheda& riga, Segno segno) {
  bool& messo = riga.segni[static_cast<std::size_t>(segno)];
  if (messo) return;
  messo = true;
  if (!riga.abb2.isEmpty()) riga.lista(segno) = riga.abb2;
}

void togli_segno(Scheda& scheda, std::size_t quale, Segno segno) {
  const auto s = static_cast<std::size_t>(segno);
  AlimentoScheda& riga = scheda[quale];
  if (!riga.segni[s]) return;
  riga.segni[s] = false;
  if (riga.lista(segno).isEmpty()) {
    for (AlimentoScheda& altra : scheda) {
      if (altra.cod1 == riga.cod1) togli_da_lista(altra.lista(segno), riga.cod2);
    }
    return;
  }
  for (const QString& cod2 : abbinamenti(riga.lista(segno))) {
    if (const auto compagno = riga_di(scheda, riga.cod1, cod2)) scheda[*compagno].segni[s] = false;
  }
  riga.lista(segno).clear();
}

void spunta_gruppo(Scheda& scheda, int a, int b, int colonna, bool accetta) {
  for (std::size_t i = 0; i < scheda.size(); ++i) {
    if (colonna == 1 && scheda[i].cod1 > b) return;
    if (scheda[i].cod1 != a || colonna_codice(scheda[i], colonna) != b) continue;
    if (accetta) {
      imposta_segno(scheda[i], Segno::ok);
    } else {
      togli_segno(scheda, i, Segno::ok);
    }
  }
}

std::span<const InsiemeCaselle> insiemi_caselle() { return insiemi; }

std::optional<std::size_t> insieme_del_pasto(int sel, bool fast_food) {
  if (sel < scheda_di::colazione || sel > scheda_di::cena) return {};
  const bool dopo_il_pranzo = sel > scheda_di::pranzo || (sel == scheda_di::pranzo && fast_food);
  return static_cast<std::size_t>(sel) + (dopo_il_pranzo ? 1 : 0);
}

void applica_caselle(Scheda& scheda, const InsiemeCaselle& insieme, const std::vector<bool>& spuntate) {
  for (std::size_t i = 0; i < insieme.caselle.size(); ++i) {
    for (const Chiamata& c : {insieme.caselle[i].prima, insieme.caselle[i].seconda}) {
      if (c.colonna > 0) spunta_gruppo(scheda, c.a, c.b, c.colonna, spuntate[i]);
    }
  }
}

std::vector<Scelto> alimenti_scelti(const Scheda& scheda) {
  std::vector<Scelto> scelti;
  for (std::size_t i = 0; i < scheda.size(); ++i) {
    const AlimentoScheda& r = scheda[i];
    for (const Segno s : tutti_i_segni) {
      if (!r.segnato(s)) continue;
      for (const QString& cod2 : abbinamenti(r.lista(s))) {
        const auto compagno = riga_di(scheda, r.cod1, cod2);
        if (compagno) scelti.push_back({scheda[*compagno].cod2, r.cod1, i, scheda[*compagno].descrizione, s});
      }
      scelti.push_back({r.cod2, r.cod1, i, r.descrizione, s});
    }
  }
  return scelti;
}
