// Text and numbers as the practitioner types and reads them, under the Italian locale.
#include "base/date.h"
#include "base/errori.h"
#include "base/liste.h"
#include "base/numeri.h"
#include "stampa.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Numeri, TypedTextIsReadUnderTheLocale) {
  struct Caso {
    QStringView testo;
    bool numero;
    double vale;
  };
  for (const Caso& c : {Caso{u"72,5", true, 72.5},
                        {u"72.5", true, 725},
                        {u" 1.250,75 ", true, 1250.75},
                        {u",5", true, 0.5},
                        {u"5,", true, 5},
                        {u"-3", true, -3},
                        {u"+3", true, 3},
                        {u"", false, 0},
                        {u" ", false, 0},
                        {u"12a", false, 0},
                        {u"1,2,3", false, 0},
                        {u"-", false, 0},
                        {u"1e3", false, 0}}) {
    EXPECT_EQ(numerico(c.testo), c.numero) << c.testo.toString().toStdString();
    if (c.numero) {
      EXPECT_DOUBLE_EQ(valore(c.testo), c.vale);
    } else {
      EXPECT_THROW((void)valore(c.testo), Errore);
    }
  }
}

TEST(Numeri, FormatsRoundTiesAwayFromZeroOnTheDecimalText) {
  struct Caso {
    double x;
    const char* forma;
    QStringView atteso;
  };
  for (const Caso& c : {Caso{1.15 * 83, "0.0", u"95,5"},
                        {0.5, "#.00", u",50"},
                        {-0.04, "0.0", u"0,0"},
                        {9.96, "0.0", u"10,0"},
                        {0.0625, "#.000", u",063"},
                        {2.675, "0.00", u"2,68"},
                        {0, "#.00", u",00"},
                        {-1.25, "0.0", u"-1,3"},
                        {33.333333, "#.00", u"33,33"},
                        {12345.6785, "#.000", u"12345,679"}}) {
    EXPECT_EQ(fmt(c.x, c.forma), c.atteso.toString()) << c.x << ' ' << c.forma;
  }
  EXPECT_EQ(fmt(95.0F / 100, "0.0"), u"1,0"_s) << "a single is judged on seven digits";
  EXPECT_EQ(testo(80.0), u"80"_s);
  EXPECT_EQ(testo(0.1F), u"0,1"_s);
  EXPECT_EQ(testo(1.0 / 3), u"0,333333333333333"_s);
}

TEST(Numeri, SixteenBitResultsRoundTiesToEvenAndOverflow) {
  EXPECT_EQ(round16(2.5), 2);
  EXPECT_EQ(round16(3.5), 4);
  EXPECT_EQ(round16(-2.5), -2);
  EXPECT_EQ(round16(32767.4), 32767);
  for (const double x : {32767.5, -32769.0, 1e9}) {
    try {
      round16(x);
      ADD_FAILURE() << x;
    } catch (const Errore& e) {
      EXPECT_EQ(e.numero, 6);
    }
  }
}

TEST(Date, TypedDatesOfAnyCommonShape) {
  struct Caso {
    QStringView testo;
    QDate data;
  };
  for (const Caso& c : {Caso{u"3/7/2001", {2001, 7, 3}},
                        {u"03-07-75", {1975, 7, 3}},
                        {u"1.1.29", {2029, 1, 1}},
                        {u"1.1.30", {1930, 1, 1}},
                        {u"29/2/2000", {2000, 2, 29}},
                        {u"29/2/2001", {}},
                        {u"7/2001", {}},
                        {u"31/4/99", {}},
                        {u"1/2-99", {}},
                        {u"", {}}}) {
    EXPECT_EQ(data_di(c.testo), c.data) << c.testo.toString().toStdString();
  }
  EXPECT_EQ(data_breve(QDate(1975, 7, 3)), u"03/07/1975"_s);
}

TEST(Liste, EachValueIsFollowedByItsSeparator) {
  EXPECT_EQ(elementi(u"71+70++"_s, u'+'), (QStringList{u"71"_s, u"70"_s, u""_s}));
  EXPECT_EQ(elementi(u"2,-1,9"_s, u','), (QStringList{u"2"_s, u"-1"_s})) << "a tail without its separator is dropped";
  EXPECT_TRUE(elementi({}, u',').isEmpty());
  EXPECT_EQ(lista_di({u"0"_s, u""_s}, u';'), u"0;;"_s);
}
