// The arithmetic of the activities: cost, a day's energy by nutrient, the balance of the meals.
#include "assessment/attivita_sportive.h"

#include "attrezzi.h"

using namespace Qt::StringLiterals;

TEST(AttivitàSportive, TheCostCountsInWholeKilocalories) {
  struct Caso {
    std::int16_t indice;
    QStringView nome;
    float costo;
    int ora;  // kcal of 60 minutes
  };
  const Caso casi[]{
      {0, u"Attività marziali", 6.0F, 360},
      {9, u"Camminare 1 normalmente (3,2 Km/h) ", 2.93F, 180},
      {6, u"Bowling", 3.5F, 240},
      {19, u"Danza", 6.5F, 360},  // ties go to the even number
      {25, u"Nuotare lentamente", 6.65F, 420},
      {18, u"Correre (molto velocemente - 16 km/h)", 19.8F, 1200},
      {12, u"Camminare 4 in salita", 13.4F, 780},
      {38, u"Tennis singolo", 6.0F, 360},
  };
  ASSERT_EQ(attività_sportive().size(), 39U);
  for (const Caso& c : casi) {
    EXPECT_EQ(attività_sportive()[static_cast<std::size_t>(c.indice)].nome, c.nome);
    EXPECT_EQ(costo_attivita(c.indice), c.costo) << c.nome.toUtf8().constData();
    EXPECT_EQ(calorie_attività(c.indice, 60), c.ora) << c.nome.toUtf8().constData();
  }
  for (const int fuori : {-1, 39}) EXPECT_EQ(costo_attivita(static_cast<std::int16_t>(fuori)), 0.0F);
  EXPECT_EQ(numero_errore([] { (void)calorie_attività(18, 1700); }), 6);
}

TEST(AttivitàSportive, CarbohydrateIsWhatProteinAndFatLeave) {
  const std::array<double, 6> casi[]{
      // kcal, protein %, fat %, and the kcal of protein, fat, carbohydrate
      {1800, 15.53, 30.57, 279, 550, 971},
      {2220.9, 15.53, 30.57, 344, 678, 1198},
      {1000, 70, 40, 700, 400, -100},
  };
  for (const auto& [calorie, protidi, lipidi, p, l, g] : casi) {
    const Ripartizione r = ripartisci(calorie, protidi, lipidi);
    EXPECT_EQ((std::array{r.protidi, r.lipidi, r.glucidi}), (std::array{p, l, g})) << calorie;
  }
}

TEST(AttivitàSportive, LunchOrDinnerTakesTheDifference) {
  struct Caso {
    const char* che;
    QChar segno;
    bool di_pranzo;
    std::array<double, 5> percentuali;  // breakfast, lunch, afternoon snack, dinner, morning snack
    int pranzo, cena;
  };
  const Caso casi[]{
      {"a raise with equal mains is taken from dinner", u'+', false, {13, 37, 7, 37, 7}, 37, 36},
      {"a raise is taken from the larger lunch", u'+', false, {13, 40, 7, 34, 7}, 39, 34},
      {"a cut with equal mains goes to dinner", u'-', false, {11, 37, 7, 37, 7}, 37, 38},
      {"a cut goes to the smaller lunch", u'-', false, {11, 34, 7, 40, 7}, 35, 40},
      {"a lunch raised is taken from dinner, even the smaller", u'+', true, {12, 45, 7, 30, 7}, 45, 29},
      {"a lunch lowered gives to dinner, even the larger", u'-', true, {12, 30, 7, 45, 7}, 30, 44},
      {"nothing is left for dinner", u'+', true, {12, 80, 7, 0, 7}, 80, -6},
      {"decimals are dropped but for the mains", u'-', false, {11.9, 36.5, 7, 37.5, 7}, 37, 38},
  };
  for (const Caso& c : casi) {
    const PastiPrincipali r = ribilanciati(c.segno, c.di_pranzo, c.percentuali);
    EXPECT_EQ(r.pranzo, c.pranzo) << c.che;
    EXPECT_EQ(r.cena, c.cena) << c.che;
  }
}
