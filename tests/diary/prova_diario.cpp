// The diary without its screen: family codes, what a meal adds up to, shares of the day.
#include "base/numeri.h"
#include "diary/famiglie.h"
#include "diary/totali.h"

#include "diet/banco.h"

using namespace Qt::StringLiterals;

namespace {

struct ProvaDiario : Banco {
  ProvaDiario() {
    Archivio cibi = nuovo("sa_diario.jed", "diario.sql");
    const std::tuple<int, int, double, double, double, double> righe[]{
        {8, 1, 95, 3.15, 0.25, 20.04}, {8, 3, 350, 10, 1, 70}, {20, 1, 900, 0, 100, 0}};
    for (const auto& [cod1, cod2, kcal, protidi, lipidi, glucidi] : righe) {
      cibi.esegui(
          u"INSERT INTO alimenti (cod1, cod2, cod3, cod4, Descrizione, quantità, calorie, protidi, lipidi, "
          "glucidi) VALUES (?, ?, 0, 0, 'cibo', 100, ?, ?, ?, ?)"_s,
          cod1, cod2, kcal, protidi, lipidi, glucidi);
    }
  }
  void mangia(int pasto, int cod1, int cod2, const QVariant& dose) {
    dati.esegui_con(u"INSERT INTO scelte_diario (pasto, cod1, cod2, dose) VALUES (?, ?, ?, ?)"_s,
                    {pasto, cod1, cod2, dose});
  }
  void integra(double grammi, double kcal, double protidi) {
    dati.esegui(u"INSERT INTO Integratore_diario VALUES ('polvere', ?, ?, ?, 0, 0)"_s, grammi, kcal, protidi);
  }
  TotaliPasto somma(int pasto) { return totali(porzioni_del_pasto(dati, pasto)); }

  Archivio dati = nuovo("dati.tmp", "matrix.sql");
};

}  // namespace

TEST(Famiglie, ACodeFollowsFromTheThreePositions) {
  const std::tuple<int, int, int, int> casi[]{
      {0, -1, 0, 1}, {0, 3, 4, 5},  {1, -1, 1, 7},  {3, -1, 0, 6}, {2, 0, 0, 8},   {4, 1, 6, 19},
      {2, 2, 3, 23}, {4, 3, 0, 24}, {2, 4, 1, 28},  {4, 5, 1, 30}, {2, 6, 0, 0},   {2, -1, 0, 0},
      {4, 7, 0, 0},  {2, 0, -1, 0}, {-1, -1, 0, 0}, {5, 0, 0, 0},  {0, -1, -1, 0}, {1, -1, 2, 0},
  };
  for (const auto& [pasto, gruppo, famiglia, codice] : casi) {
    EXPECT_EQ(trova_cod1(pasto, gruppo, famiglia), codice) << pasto << ' ' << gruppo << ' ' << famiglia;
  }
  EXPECT_EQ(gruppi_diario(2).size(), 7);
  EXPECT_EQ(gruppi_diario(4).size(), 6);
  EXPECT_EQ(famiglie_diario(2, 2)[3], u"Frutta secca o pronta"_s);
  EXPECT_TRUE(famiglie_diario(2, 6).isEmpty() && gruppi_diario(0).isEmpty());
}

TEST_F(ProvaDiario, EachFoodIsCutOffOrRoundedBeforeItIsAdded) {
  for (int i = 0; i < 3; ++i) mangia(0, 8, 1, 33);
  mangia(0, 8, 3, {});    // on the grid without a dose
  mangia(0, 77, 1, 100);  // no longer in the store
  mangia(1, 8, 3, 1000);  // another meal
  const TotaliPasto t = somma(0);
  EXPECT_EQ(t.kcal, 93) << "three times 31, not 94";
  EXPECT_EQ(fmt(t.protidi, "0.00"), u"3,00"_s) << "three times 1,0 for 1,0395";
  EXPECT_EQ(fmt(t.lipidi, "0.00"), u"0,30"_s) << "0,0825 is 0,1";
  EXPECT_EQ(fmt(t.glucidi, "0.00"), u"19,80"_s);
}

TEST_F(ProvaDiario, SupplementsCountAtLunchAlone) {
  integra(30, 380, 80);
  integra(0, 380, 80);
  mangia(2, 8, 3, 80);
  EXPECT_EQ(somma(2).kcal, 280 + 114);
  EXPECT_EQ(fmt(somma(2).protidi, "0.00"), u"32,00"_s);
  EXPECT_EQ(somma(4).kcal, 0);
  EXPECT_EQ(fmt(somma(4).lipidi, "0.00"), u"0,00"_s);
  integra(99999, 900, 0);
  EXPECT_EQ(numero_errore([this] { (void)somma(2); }), 6);
}

TEST(Ritmo, FourSharesAreCutOffAndDinnerTakesTheRest) {
  using Quote = std::array<double, 5>;
  const std::tuple<std::array<double, 4>, double, Quote> casi[]{
      {{333, 333, 334, 0}, 1000, {33, 33, 33, 0, 1}},
      {{290, 0, 0, 0}, 1000, {28, 0, 0, 0, 72}},  // 0.29 x 100 is a little under 29
      {{0, 0, 700, 0}, 700, {0, 0, 100, 0, 0}},
      {{199, 49, 700, 101}, 1400, {14, 3, 50, 7, 26}},
  };
  for (const auto& [kcal, totale, quote] : casi) EXPECT_EQ(ritmo(kcal, totale), quote) << totale;
  EXPECT_FALSE(ritmo({0, 0, 0, 0}, 0));
}
