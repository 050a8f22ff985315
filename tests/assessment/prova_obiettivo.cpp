// The weight objective and the nutrient levels against figures worked out by hand.
#include "assessment/livelli.h"
#include "assessment/obiettivo.h"
#include "base/numeri.h"

#include "attrezzi.h"

using namespace Qt::StringLiterals;

namespace {

QString scritto(const std::optional<std::int16_t>& n) { return n ? QString::number(*n) : u"-"_s; }

/// Days, grams, kcal and ration, then the number of the error.
QString conteggio(const Partenza& p) {
  Conteggio c;
  const int errore = numero_errore([&] { calcola_kcal(p, c); });
  return QStringList{scritto(c.giorni), scritto(c.grammi), scritto(c.kcal), scritto(c.razione), QString::number(errore)}
      .join(u' ');
}

QString scritta(std::optional<Razione> (*via)(const Partenza&, double), const Partenza& p, double x) {
  std::optional<Razione> r;
  if (const int errore = numero_errore([&] { r = via(p, x); })) return u"errore %1"_s.arg(errore);
  return r ? u"%1 %2 %3 %4"_s.arg(r->giorni).arg(r->grammi).arg(r->kcal).arg(r->razione) : u"negativo"_s;
}

}  // namespace

TEST(Obiettivo, FirstPhaseGoesTowardsTheIdealWeightByATenth) {
  struct Caso {
    double attuale, ideale, fase1, apertura;
  };
  const Caso casi[]{{80, 70, 72, 72}, {80, 75, 75, 72},     {60, 70, 66, 54}, {55, 60, 60, 49},
                    {45, 60, 49, 40}, {80.9, 80.5, 80, 72}, {75, 20, 67, 67}};
  for (const Caso& c : casi) {
    EXPECT_EQ(peso_fase1(c.attuale, c.ideale), c.fase1) << c.attuale;
    EXPECT_EQ(peso_in_apertura(c.attuale), c.apertura) << c.attuale;
  }
}

TEST(Obiettivo, DaysAreAddedUntilTheRationIsSafe) {
  struct Caso {
    Partenza partenza;
    const char* esito;
  };
  const Caso casi[]{
      {{120, 110, 3000, false}, "100 100 700 2300 0"},  // 3600 g a month are too many
      {{70, 75, 2000, false}, "71 70 490 2490 0"},
      {{71.5, 70, 2000, false}, "28 72 504 1496 0"},  // ties to even: 2 kg, 72 kg
      {{80, 70, 1800, true}, "128 78 546 1254 0"},
      {{80, 70, 1800, false}, "140 71 497 1303 0"},
      {{70.5, 70, 2000, false}, "- - - - 0"},  // to even: nothing to lose
      {{80, 70, 1200, true}, "125 80 560 - 6"},
      {{50, 55, 800, true}, "100 50 350 - 6"},  // with a gain the ration only falls
      {{70, 75, 32700, true}, "71 - - - 6"},
      {{70, 75, 32768, true}, "- - - - 6"},
      {{0.4, 20, 2000, true}, "- - - - 11"},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(conteggio(c.partenza), QString::fromLatin1(c.esito)) << c.partenza.attuale << ' ' << c.partenza.consumo;
  }
}

TEST(Obiettivo, DaysAndRationLeadToEachOther) {
  const Partenza cala{80, 70, 1800, true}, cresce{70, 170, 2000, false}, magra{110, 70, 1800, true};
  struct Caso {
    std::optional<Razione> (*via)(const Partenza&, double);
    Partenza partenza;
    double x;
    const char* esito;
  };
  const Caso casi[]{
      {da_giorni, cala, 125, "125 80 560 1240"},
      {da_giorni, cala, 10, "negativo"},
      {da_giorni, {70, 70, 2000, false}, 5, "5 0 0 2000"},
      {da_giorni, cresce, 4, "4 25000 175000 177000"},  // energy is wide
      {da_giorni, cresce, 3, "errore 6"},
      {da_giorni, cala, 0.5, "errore 11"},
      {da_razione, cala, 1240.9, "125 80 560 1240"},
      {da_razione, cala, 2360, "125 80 560 2360"},
      {da_razione, cala, 1796, "10000 1 4 1796"},
      {da_razione, cala, 1797, "negativo"},  // no gram a day
      {da_razione, cala, -5, "negativo"},
      {da_razione, magra, 1796, "errore 6"},
      {da_razione, cala, 3e9, "errore 6"},
  };
  for (const Caso& c : casi) EXPECT_EQ(scritta(c.via, c.partenza, c.x), QString::fromLatin1(c.esito)) << c.x;
}

TEST(Livelli, AgesAndIndicesCompareAsText) {
  QString righe;
  for (const QStringView anni : u"10 13 135 14 16 17 20 21 50 51 60 61 9 100 2 5 6 08 0"_s.tokenize(u' ')) {
    const Livello l = livello_per_eta(anni);
    righe += QString::number(l.riga) + (l.protidi > 0 ? u""_s : u"!"_s);
  }
  EXPECT_EQ(righe,
            u"000!11223344550"
            "2340!0!"_s);

  righe.clear();
  for (const QStringView bmi :
       u"17,4 17,5 17,6 18,5 18,6 22,5 23,9 24,0 28,0 29,9 34,9 35,0 39,9 40,0 9,5 100,0"_s.tokenize(u' ')) {
    righe += QString::number(livello_per_bmi(bmi).riga);
  }
  EXPECT_EQ(righe, u"0011222344566770"_s);
  EXPECT_EQ(livello_per_bmi(u"17,5").protidi, 0) << "between two rows";

  EXPECT_FLOAT_EQ(livello_per_eta(u"12").lipidi + livello_per_bmi(u"31,0").lipidi, 1.05F);
}

TEST(Livelli, ReferenceWeightIsTheMiddleFromAnIndexOf27On) {
  EXPECT_EQ(peso_di_riferimento(u"26,9", u"80", u"61"), 61);
  EXPECT_EQ(peso_di_riferimento(u"27,0", u"80,9", u"61,9"), 70);
  EXPECT_EQ(peso_di_riferimento(u"", u"", u"61"), 61);
  EXPECT_FALSE(peso_di_riferimento(u"27,0", u"", u"61") || peso_di_riferimento(u"22", u"80", u"") ||
               peso_di_riferimento(u"22", u"80", u"40000"));
}
