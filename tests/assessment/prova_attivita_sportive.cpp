// The arithmetic of the activities: their cost, and the balance of the meals.
#include "assessment/attivita_sportive.h"

#include "attrezzi.h"

using namespace Qt::StringLiterals;

TEST(AttivitàSportive, TheCostCountsInWholeKilocalories) {
  const std::tuple<std::int16_t, QStringView, int> casi[]{
      // position, name, kcal of 60 minutes; ties go to the even number
      {0, u"Attività marziali", 360},
      {9, u"Camminare 1 normalmente (3,2 Km/h) ", 180},
      {6, u"Bowling", 240},
      {19, u"Danza", 360},
      {25, u"Nuotare lentamente", 420},
      {18, u"Correre (molto velocemente - 16 km/h)", 1200},
      {38, u"Tennis singolo", 360},
  };
  ASSERT_EQ(attività_sportive().size(), 39U);
  for (const auto& [indice, nome, ora] : casi) {
    EXPECT_EQ(attività_sportive()[static_cast<std::size_t>(indice)].nome, nome);
    EXPECT_EQ(calorie_attività(indice, 60), ora) << nome.toUtf8().constData();
  }
  for (const std::int16_t fuori : std::array<std::int16_t, 2>{-1, 39}) EXPECT_EQ(costo_attivita(fuori), 0.0F);
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
    const auto [pranzo, cena] = ribilanciati(c.segno, c.di_pranzo, c.percentuali);
    EXPECT_EQ(std::pair(int{pranzo}, int{cena}), std::pair(c.pranzo, c.cena)) << c.che;
  }
}
