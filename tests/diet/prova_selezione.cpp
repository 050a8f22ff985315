// The draws of foods, followed number by number.
#include "attrezzi.h"
#include "diet/banco.h"
#include "diet/selezione.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class Selezione : public Banco {
 protected:
  Contesto contesto(const Caso& caso) {
    Contesto c{m, {}, {}, caso};
    c.archivi.apri_archivio_dieta(1);
    Archivio dati(percorso(u"dati.tmp"_s));
    c.spuntati.leggi(dati);
    return c;
  }
  std::vector<int> pasto() const {
    std::vector<int> codici;
    for (int i = 0; i < m.conta_voci; ++i) {
      const voce_pasto& v = m.pasto_lavoro[static_cast<std::size_t>(i)];
      codici.push_back(v.cod1 * 100 + v.cod2);
    }
    return codici;
  }
  using Codici = std::vector<int>;
  using Tirate = std::vector<std::pair<int, int>>;

  /// Draws with these numbers; the error that comes out, and the foods in the meal then.
  std::pair<int, Codici> estrai(const Tirate& tirate, const std::function<void(Contesto&)>& via) {
    m.svuota_pasto();
    const Estrazioni e(tirate);
    Contesto c = contesto(e.caso);
    const int errore = numero_errore([&] { via(c); });
    EXPECT_TRUE(e.attese.empty());
    return {errore, pasto()};
  }
};

}  // namespace

TEST_F(Selezione, AFoodComesAtItsStandardPortionInKilocalories) {
  base({{8, 3, 4, 1, 151, 20.5, 7.3, 0.5, true, 90}});
  cliente({});
  Estrazioni e;
  Contesto c = contesto(e.caso);
  aggiungi_alimento(c, 8, 3);
  aggiungi_alimento(c, 8, 99);
  ASSERT_EQ(m.conta_voci, 1) << "a food that the store lacks adds nothing";
  const voce_pasto& v = m.pasto_lavoro[0];
  EXPECT_EQ(v.cal, 136);  // 90 x 151 / 100 = 135.9
  EXPECT_FLOAT_EQ(v.prot, 73.8F);
  EXPECT_FLOAT_EQ(v.lip, 59.13F);
  EXPECT_FLOAT_EQ(v.gluc, 1.8F);
  EXPECT_EQ(v.quant, 90);
  EXPECT_TRUE(v.unico);
  EXPECT_TRUE(m.usati_cod4[8][1] && m.usati_cod3[4]);
  for (int i = 0; i < 15; ++i) aggiungi_alimento(c, 8, 3);
  EXPECT_EQ(numero_errore([&] { aggiungi_alimento(c, 8, 3); }), 9) << "the seventeenth food";
  EXPECT_EQ(m.conta_voci, 16);
}

TEST_F(Selezione, ALightMealTakesABaseFoodAndPerhapsItsCompanion) {
  base({{1, 1, 0, 1, 60, 3, 3, 5}, {1, 2, 0, 1, 40, 3, 1, 5}, {1, 3, 0, 3, 80, 3, 1, 15}, {1, 4, 0, 4, 30, 0, 0, 7}});
  cliente({{1, 1, 0, 1, 1}, {1, 2, 0, 1, 1}, {1, 3, 0, 3, 1, "ok", "4,9,"}, {1, 4, 0, 4, 1}, {1, 5, 0, 5, 1, "LV"}});
  const std::tuple<const char*, Tirate, int, Codici> casi[]{
      {"second food of sub-group 1", {{1, 6}, {2, 2}}, 0, {102}},
      {"bread with the first companion", {{3, 6}, {1, 1}, {1, 2}}, 0, {103, 104}},
      {"companions of a breakfast are no base food; 5 is not accepted", {{4, 6}, {5, 6}, {1, 6}, {1, 2}}, 0, {101}},
      {"a companion that is not offered: the base food stays, the draw fails", {{3, 6}, {1, 1}, {2, 2}}, 3021, {103}},
  };
  for (const auto& [che, tirate, errore, codici] : casi) {
    const auto esito = estrai(tirate, [](Contesto& c) { EXPECT_TRUE(scegli_pasto_leggero(c, 0, 1)); });
    EXPECT_EQ(esito, std::pair(errore, codici)) << che;
  }
}

TEST_F(Selezione, AHitOnTheEleventhDrawOfASubgroupIsLost) {
  base({{3, 1, 0, 1, 60, 3, 3, 5}});
  cliente({{3, 1, 0, 1, 3}});
  for (const bool in_tempo : {true, false}) {
    Tirate tirate(in_tempo ? 9 : 10, {2, 6});
    tirate.emplace_back(1, 6);
    if (in_tempo) tirate.emplace_back(1, 1);
    estrai(tirate, [&](Contesto& c) { EXPECT_EQ(scegli_pasto_leggero(c, 1, 3), in_tempo); });
  }
}

TEST_F(Selezione, CompanionLists) {
  const std::tuple<QString, Tirate, int, int> casi[]{// length, what the draw gives; no comma, no draw
                                                     {u"7,12,3,"_s, {{2, 3}}, 3, 12},
                                                     {u"7,12,3,"_s, {{3, 3}}, 3, 3},
                                                     {u"7,12"_s, {{1, 1}}, 1, 7},
                                                     {u""_s, {}, 0, 0},
                                                     {u"12"_s, {}, 0, 0}};
  for (const auto& [lista, tirate, conta, valore] : casi) {
    const Estrazioni e(tirate);
    EXPECT_EQ(scegli_abbinamento(e.caso, lista), valore);
    EXPECT_EQ(conta_abbinamenti(lista), conta);
  }
}

TEST_F(Selezione, AGroupGivesABaseFoodAndOneCompanion) {
  std::vector<Cibo> cibi;
  std::vector<Offerta> offerte;
  for (const auto& [cod2, cod3, cod4] : {std::tuple{1, 2, 1}, {2, 2, 1}, {3, 0, 2}, {4, 0, 2}, {5, 0, 3}, {6, 0, 3}}) {
    cibi.push_back({4, cod2, cod3, cod4, 100, 1, 1, 1});
    offerte.push_back({4, cod2, cod3, cod4, 4});
  }
  base(cibi);
  // Each with the companions of the base food drawn, 4.2.
  const std::tuple<const char*, const char*, Tirate, int, Codici> casi[]{
      {"the second companion is drawn, but its rows are gone", "3,4,", {{2, 2}, {2, 2}, {1, 2}}, 3420, {402, 404}},
      {"a list of one reaches the first companion alone", "4,", {{2, 2}, {1, 1}, {1, 2}}, 3420, {402, 403}},
      {"no list: a third kind, counted without the second's rows", "", {{2, 2}, {2, 2}}, 0, {402, 404}},
  };
  for (const auto& [che, abbinamenti, tirate, errore, codici] : casi) {
    offerte[1].abbinamenti = abbinamenti;
    cliente(offerte);
    const auto esito = estrai(tirate, [](Contesto& c) { carica_gruppo(c, 4, 2, 0, false); });
    EXPECT_EQ(esito, std::pair(errore, codici)) << che;
  }
}

TEST_F(Selezione, WhichFoodsFillACourse) {
  base({{8, 1, 4, 1, 100, 1, 1, 1}});
  cliente({{8, 1, 4, 1, 4}, {11, 1, 4, 1, 4, "LV"}, {13, 1, 4, 1, 4, "ok SD"}, {8, 1, 4, 1, 6}, {18, 1, 4, 1, 6}});
  // Meal, day, obligatory foods, fast-food client, cause of the errors, every possible answer.
  const std::tuple<const char*, int, int, bool, bool, QString, std::vector<int>> casi[]{
      {"free foods of a weekday lunch", 2, 0, false, false, {}, {8, 13}},
      {"obligatory Monday to Friday", 2, 4, true, false, {}, {11}},
      {"obligatory Saturday and Sunday", 2, 5, true, false, {}, {13}},
      {"dinner has its own list", 4, 0, false, false, {}, {8, 18}},
      {"weekend lunch of a fast-food client: the dinner's list", 2, 6, false, true, {}, {8, 18}},
      {"weekday lunch of a fast-food client: the lunch's", 2, 4, false, true, {}, {8, 13}},
      {"after protein errors no meat", 2, 0, false, false, u"P"_s, {13}},
      {"after fat errors no vegetables", 2, 0, false, false, u"L"_s, {8}},
      {"after calorie errors nothing is left here", 2, 0, false, false, u"K"_s, {0}},
      {"an obligatory food ignores the errors", 2, 5, true, false, u"K"_s, {13}},
  };
  for (const auto& [che, pasto, giorno, fisso, veloce, errore, gruppi] : casi) {
    m.pranzo_ff = veloce;
    m.tipo_errore = errore;
    const int n = static_cast<int>(gruppi.size());
    for (int i = 1; i <= 2 * n; ++i) {  // two draws for each answer
      Estrazioni e;
      if (gruppi.front() != 0) e.prossima(i, 2 * n);
      Contesto k = contesto(e.caso);
      EXPECT_EQ(scegli_gruppo(k, 4, pasto, giorno, fisso), gruppi[static_cast<std::size_t>((i - 1) / 2)]) << che;
    }
  }
}

TEST_F(Selezione, AFoodServesTwoLunchesAndDinnersRepeatFreely) {
  base({{8, 1, 4, 1, 100, 1, 1, 1}});
  cliente({{8, 1, 4, 1, 4}, {8, 1, 4, 1, 6}, {9, 1, 4, 1, 4, "ok LV"}});
  Estrazioni e;
  Contesto c = contesto(e.caso);
  Archivio dati(percorso(u"dati.tmp"_s));
  for (int volta = 0; volta < 2; ++volta) {
    for (const int pasto : {2, 4}) c.spuntati.conta_uso_alimenti({{8, 1}, {9, 1}}, pasto);
  }
  const auto libero = [&](int meal, int d, bool veloce) {
    m.pranzo_ff = veloce;
    e.attese = {0.0};
    const int gruppo = scegli_gruppo(c, 4, meal, d, false);
    e.attese.clear();
    return gruppo;
  };
  EXPECT_EQ(libero(2, 0, false), 9) << "twice at lunch is enough; obligatory foods are not counted";
  EXPECT_EQ(libero(4, 0, false), 8) << "dinner reads a counter that dinners do not write";
  EXPECT_EQ(libero(2, 5, true), 0) << "the fast-food client's weekend lunch is held by the dinners' count";
  c.spuntati.scrivi_usi(dati);
  EXPECT_EQ(righe_di(dati, u"SELECT n_volte_pranzo, n_volte_cena FROM alimenti_spuntati ORDER BY rowid"_s),
            u"2 0|0 2|0 0"_s);
  c.spuntati.azzera_n_volte(dati);
  EXPECT_EQ(libero(2, 0, false), 8);
}
