// The formulas of the assessment against figures worked out by hand.
#include "assessment/formule.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/numeri.h"

#include "stampa.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Formule : public ::testing::Test {
 protected:
  Formule() { imposta_cartella(QStringLiteral(CARTELLA_ARCHIVI)); }

  QStringList detti;
  const Avviso avvisa = [this](const Riquadro& r) { detti << r.testo; };
};

}  // namespace

TEST_F(Formule, IndexOfBodyMass) {
  EXPECT_EQ(calcola_bmi(70, 175), u"22,9"_s);
  EXPECT_EQ(calcola_bmi(22.25F, 100), u"22,3"_s) << "a tie";
  EXPECT_EQ(calcola_bmi(0.95F, 100), u"1,0"_s) << "a tie of the decimal text alone";
  EXPECT_EQ(calcola_bmi(0, 170) + calcola_bmi(70, 0), u"0,00,0"_s);

  const auto c = conteggio_bmi(u"72,50"_s, u"170"_s);
  ASSERT_TRUE(c);
  EXPECT_EQ((QStringList{c->peso, c->altezza, c->altezza_quadrata, c->bmi}),
            (QStringList{u"72,5"_s, u"1,70"_s, u"2,89"_s, u"25,09"_s}));
  EXPECT_FALSE(conteggio_bmi(u""_s, u"170"_s));
  EXPECT_THROW((void)conteggio_bmi(u"70"_s, u""_s), Errore);
  EXPECT_THROW((void)conteggio_bmi(u"70"_s, u"0"_s), Errore);
}

TEST_F(Formule, ClassesLeaveTheirGapsOpen) {
  QString classi;
  for (const QStringView bmi :
       u"17,4 17,5 17,6 18,5 18,55 18,6 23,9 23,95 24 26,9 27 29,9 29,95 30 34,9 35 40 40,1"_s.tokenize(u' ')) {
    const auto classe = classe_bmi(static_cast<float>(valore(bmi)));
    classi += classe ? QString::number(*classe) : u"-"_s;
  }
  EXPECT_EQ(classi, u"0-11-22-3344-55667"_s);
}

TEST_F(Formule, IdealIndexAndRequirement) {
  EXPECT_EQ(bmi_ideale(u"F", 0, avvisa), 19.7F);
  EXPECT_EQ(bmi_ideale(u"F", 2, avvisa), 22.3F);
  EXPECT_EQ(bmi_ideale(u"", 1, avvisa), 22.0F);
  EXPECT_TRUE(detti.isEmpty());
  EXPECT_EQ(bmi_ideale(u"F", -1, avvisa), 0);
  EXPECT_EQ(detti, QStringList{u"indicare la costituzione"_s});

  EXPECT_EQ(fabbisogno_totale(1500, 0), 1800);
  EXPECT_LT(*fabbisogno_totale(1350, 1), 1890) << "the double nearest to 1.4 lies below it: 1889 once cut";
  EXPECT_GT(*fabbisogno_totale(32767, 3), 32767) << "only the whole factor is bound to 16 bits";
  EXPECT_EQ(fabbisogno_totale(1501, 4), 3002);
  EXPECT_THROW((void)fabbisogno_totale(16384, 4), Errore);
  EXPECT_FALSE(fabbisogno_totale(1500, 5) || fabbisogno_totale(1500, -1));
}

TEST_F(Formule, BasalRateComparesAgesAsText) {
  struct Caso {
    float peso;
    QStringView anni;
    float uomo, donna;
  };
  // A single below its decimal value cuts a whole result down by one: 8.7 x 60 + 829 is 1350, not 1351.
  const Caso casi[]{
      {50, u"10", 1535, 1362}, {60, u"17", 1712, 1496}, {70, u"18", 1750, 1524},  {50, u"29", 1444, 1230},
      {70, u"30", 1691, 1437}, {60, u"59", 1575, 1350}, {70, u"60", 1532, 1331},  {60, u"99", 1413, 1239},
      {60, u"9", 1413, 1239},  {60, u"5", 1575, 1350},  {60, u"100", 1712, 1496}, {50, u"2", 1444, 1230},
      {60, u"0", 0, 0},        {60, u"08", 0, 0},       {60, u"3", 0, 0},         {60, u"6", 0, 0},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(metabolismo_larn(c.peso, u"M", c.anni), c.uomo) << c.anni.toUtf8().constData();
    EXPECT_EQ(metabolismo_larn(c.peso, u"", c.anni), c.donna) << c.anni.toUtf8().constData();
    EXPECT_EQ(metabolismo_ideale_larn(c.peso, u"F", c.anni), c.donna) << c.anni.toUtf8().constData();
  }
}

TEST_F(Formule, HarrisBenedictKeepsItsFractions) {
  EXPECT_DOUBLE_EQ(metabolismo_hb(70, u"175", u"30", u"M"), 1684);
  EXPECT_DOUBLE_EQ(metabolismo_hb(60, u"165", u"30", u""), 1403.75);
  EXPECT_DOUBLE_EQ(metabolismo_hb(50, u"160", u"15", u"M"), 1760.2);
  EXPECT_DOUBLE_EQ(metabolismo_hb(50, u"160,5", u"15,5", u"M"), 1433.5) << "ties to even: 160 cm, 16 years";
  EXPECT_EQ(metabolismo_hb(70, u"", u"30", u"M") + metabolismo_hb(70, u"175", u"x", u"M"), 0);
  EXPECT_THROW((void)metabolismo_hb(70, u"6554", u"30", u"M"), Errore);
  EXPECT_NO_THROW((void)metabolismo_hb(70, u"6554", u"30", u"F"));
}

TEST_F(Formule, BodySurfaceIsKeptWithTwoDecimals) {
  EXPECT_EQ(metabolismo_superficie(175, 70, u"M"), 1766) << "1,84 m²";
  EXPECT_EQ(metabolismo_superficie(175, 70, u"F"), 1589);
  EXPECT_EQ(metabolismo_superficie(162, 72, u"M"), 1727) << "the single nearest to 1,80 lies below it";
  EXPECT_EQ(metabolismo_superficie(162, 72, u""), 1.8F);
  EXPECT_EQ(metabolismo_superficie(300, 200, u"M"), 3916) << "the product is wide";
  EXPECT_THROW((void)metabolismo_superficie(-175, 70, u"M"), Errore);
}

TEST_F(Formule, FatFromTheFirstRowNotBelowTheSum) {
  struct Caso {
    float somma;
    QStringView sesso;
    std::int16_t eta;
    std::optional<double> grasso, ideale;
  };
  const Caso casi[]{
      {40, u"M", 14, {}, {}},      {40, u"M", 15, 16.2, {}},   {40, u"M", 29, 16.2, 14.5}, {40, u"M", 30, 19.2, 14.5},
      {40, u"M", 39, 19.2, 22},    {40, u"M", 40, 21.5, 22},   {40, u"M", 49, 21.5, 22.5}, {40, u"M", 50, 22.9, 22.5},
      {40, u"F", 100, 30.3, 37},   {40, u"F", 60, 30.3, 35},   {0, u"F", 35, 13.5, 29},    {210, u"F", 45, 49.4, 31},
      {40.5F, u"M", 16, 17.6, 13}, {40, u"F", 20, 23.7, 23.5}, {40, u"F", 21, 23.7, 26},   {40, u"", 20, {}, {}},
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(percentuale_grasso(c.somma, c.sesso, c.eta, avvisa), c.grasso) << c.somma << ' ' << c.eta;
    EXPECT_EQ(grasso_ideale(c.eta, c.sesso), c.ideale) << c.eta;
  }
  EXPECT_TRUE(detti.isEmpty());
  EXPECT_EQ(percentuale_grasso(211, u"M", 14, avvisa), 100) << "told without a band too";
  EXPECT_EQ(detti, QStringList{u"ERRORE: Ricontrollare i valori delle pliche\nI valori attualmente inseriti sono fuori "
                               "dal limite di calcolo"_s});
}

TEST_F(Formule, IdealSkinfoldsCompareAgesAsText) {
  struct Caso {
    float grasso;
    QStringView anni, sesso;
    std::int16_t pliche;
  };
  const Caso casi[]{
      {13, u"16", u"M", 35}, {26.5F, u"30", u"F", 45}, {13.5F, u"39", u"F", 15}, {22, u"40", u"M", 45},
      {33, u"49", u"F", 60}, {26, u"50", u"M", 50},    {26, u"9", u"M", 50},     {37, u"210", u"M", 210},
      {60, u"50", u"F", 0},  {13, u"100", u"M", 0},    {13, u"3", u"M", 0},      {13, u"20", u"", 0},
  };
  for (const Caso& c : casi) {
    detti.clear();
    EXPECT_EQ(pliche_ideali(c.grasso, c.anni, c.sesso, avvisa), c.pliche) << c.anni.toUtf8().constData();
    EXPECT_EQ(detti.join(u'|'), c.pliche > 0 ? QString()
                                             : u"Impossibile calcolare le pliche ideali! Il valore eccede "
                                               "il range dei valori statistici"_s);
  }
}
