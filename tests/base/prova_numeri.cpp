// Text and numbers as the practitioner types and reads them, under the Italian locale.
#include "attrezzi.h"
#include "base/date.h"
#include "base/liste.h"
#include "base/numeri.h"

using namespace Qt::StringLiterals;

TEST(Numeri, TypedTextIsReadUnderTheLocale) {
  const std::pair<QStringView, double> numeri[]{
      {u"72,5", 72.5}, {u"72.5", 725}, {u" 1.250,75 ", 1250.75}, {u",5", 0.5}, {u"5,", 5}, {u"-3", -3}, {u"+3", 3}};
  for (const auto& [testo, vale] : numeri) {
    EXPECT_TRUE(numerico(testo)) << vale;
    EXPECT_DOUBLE_EQ(valore(testo), vale);
  }
  const QString enorme(400, u'9');
  for (const QStringView testo : std::vector<QStringView>{u"", u" ", u"12a", u"1,2,3", u"-", u"1e3", enorme}) {
    EXPECT_FALSE(numerico(testo)) << testo.toString().toStdString();
    EXPECT_THROW((void)valore(testo), Errore);
  }
}

TEST(Numeri, FormatsRoundTiesAwayFromZeroOnTheDecimalText) {
  const std::tuple<double, const char*, QStringView> casi[]{
      {1.15 * 83, "0.0", u"95,5"},   {0.5, "#.00", u",50"},
      {-0.04, "0.0", u"0,0"},        {9.96, "0.0", u"10,0"},
      {0.0625, "#.000", u",063"},    {2.675, "0.00", u"2,68"},
      {0, "#.00", u",00"},           {-1.25, "0.0", u"-1,3"},
      {33.333333, "#.00", u"33,33"}, {12345.6785, "#.000", u"12345,679"}};
  for (const auto& [x, forma, atteso] : casi) EXPECT_EQ(fmt(x, forma), atteso.toString()) << x << ' ' << forma;
  EXPECT_EQ(fmt(95.0F / 100, "0.0"), u"1,0"_s) << "a single is judged on seven digits";
  EXPECT_EQ(testo(80.0), u"80"_s);
  EXPECT_EQ(testo(0.1F), u"0,1"_s);
  EXPECT_EQ(testo(-0.0), u"0"_s);
  EXPECT_EQ(testo(1.0 / 3), u"0,333333333333333"_s);
}

TEST(Numeri, SixteenBitResultsRoundTiesToEvenAndOverflow) {
  for (const auto& [x, atteso] : {std::pair{2.5, 2}, {3.5, 4}, {-2.5, -2}, {32767.4, 32767}})
    EXPECT_EQ(round16(x), atteso);
  for (const double x : {32767.5, -32769.0, 1e9}) EXPECT_EQ(numero_errore([x] { round16(x); }), 6) << x;
}

TEST(Date, TypedDatesOfAnyCommonShape) {
  const std::pair<QStringView, QDate> casi[]{{u"3/7/2001", {2001, 7, 3}},
                                             {u"03-07-75", {1975, 7, 3}},
                                             {u"1.1.29", {2029, 1, 1}},
                                             {u"1.1.30", {1930, 1, 1}},
                                             {u"29/2/2000", {2000, 2, 29}},
                                             {u"29/2/2001", {}},
                                             {u"7/2001", {}},
                                             {u"31/4/99", {}},
                                             {u"1/2-99", {}},
                                             {u"", {}}};
  for (const auto& [testo, data] : casi) EXPECT_EQ(data_di(testo), data) << testo.toString().toStdString();
  EXPECT_EQ(data_breve(QDate(1975, 7, 3)), u"03/07/1975"_s);
}

TEST(Liste, EachValueIsFollowedByItsSeparator) {
  EXPECT_EQ(elementi(u"71+70++"_s, u'+'), (QStringList{u"71"_s, u"70"_s, u""_s}));
  EXPECT_EQ(elementi(u"2,-1,9"_s, u','), (QStringList{u"2"_s, u"-1"_s})) << "a tail without its separator is dropped";
  EXPECT_TRUE(elementi({}, u',').isEmpty());
  EXPECT_EQ(lista_di({u"0"_s, u""_s}, u';'), u"0;;"_s);
}
