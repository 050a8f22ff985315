// The data that come with the program: what a slip of the pen in a table would break.
#include "base/archivio.h"
#include "diet/preferenze.h"
#include "tabella_csv.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

Archivio posato(const QString& nome) {
  return Archivio(QDir(QStringLiteral(CARTELLA_ARCHIVI)).filePath(nome), accesso, Archivio::Modo::sola_lettura);
}

TabellaCsv tabella(const QString& nome) { return leggi_csv(QStringLiteral(CARTELLA_SORGENTI) + u"/stores/"_s + nome); }

/// A food as its text table holds it.
struct Cibo {
  const TabellaCsv& t;
  const TabellaCsv::Riga& riga;

  QString testo(const QString& colonna) const { return riga.valori[t.colonne.indexOf(colonna)]; }
  int intero(const QString& colonna) const { return testo(colonna).toInt(); }
  double numero(const QString& colonna) const { return testo(colonna).toDouble(); }
  QString flag() const { return testo(u"col"_s) + testo(u"m_s"_s) + testo(u"pranzo"_s) + testo(u"cena"_s); }
  QStringList abbinamenti() const { return testo(u"abb2"_s).split(u',', Qt::SkipEmptyParts); }

  /// Energy per 100 g agrees with what its nutrients, fibre and alcohol give.
  bool energia_torna() const {
    const double kcal = numero(u"calorie"_s);
    const double somma = 4 * numero(u"protidi"_s) + 9 * numero(u"lipidi"_s) + 3.75 * numero(u"glucidi"_s) +
                         7 * numero(u"alcool"_s) + 2 * numero(u"fibra"_s);
    return std::abs(kcal - somma) <= std::max(8.0, 0.08 * kcal) + 1e-9;
  }
  /// Every portion gives at least one kilocalorie: a food without any would hide those after it in the meal.
  bool porzione_conta(int grammi) const { return grammi > 0 && grammi <= 600 && grammi * numero(u"calorie"_s) > 50; }
};

/// Rules between neighbours: numbers from 1 without gaps, sub-groups ascending, names unique in the group.
struct Ordine {
  int cod1 = 0, cod2 = 0, cod4 = 0;
  QSet<QString> nomi;

  bool segue(const Cibo& c) {
    const int gruppo = c.intero(u"cod1"_s), numero = c.intero(u"cod2"_s), sotto = c.intero(u"cod4"_s);
    const bool nuovo = gruppo == cod1 + 1;
    if (nuovo) nomi.clear();
    const QString nome = c.testo(u"Descrizione"_s).toLower();
    const bool bene = (nuovo ? numero == 1 && sotto == 1 : gruppo == cod1 && numero == cod2 + 1 && sotto >= cod4) &&
                      !nome.isEmpty() && nome == nome.trimmed() && !nomi.contains(nome);
    cod1 = gruppo;
    cod2 = numero;
    cod4 = sotto;
    nomi << nome;
    return bene;
  }
};

struct Guasto {
  const char* regola;
  bool bene;
};

void pretendi(const Cibo& c, std::initializer_list<Guasto> regole) {
  for (const Guasto& r : regole) {
    EXPECT_TRUE(r.bene) << c.t.nome.toStdString() << ", line " << c.riga.numero << ", "
                        << c.testo(u"Descrizione"_s).toStdString() << ": " << r.regola;
  }
}

}  // namespace

TEST(Archivi, FoodsOfTheElaborationKeepTheirRules) {
  const TabellaCsv t = tabella(u"alimenti.csv"_s);
  std::map<std::pair<int, int>, int> cod4_di;
  for (const auto& r : t.righe) {
    const Cibo c{t, r};
    cod4_di[{c.intero(u"cod1"_s), c.intero(u"cod2"_s)}] = c.intero(u"cod4"_s);
  }
  Ordine ordine;
  for (const auto& r : t.righe) {
    const Cibo c{t, r};
    const int cod1 = c.intero(u"cod1"_s), cod3 = c.intero(u"cod3"_s);
    const int meno = c.intero(u"quantita_minus"_s), norma = c.intero(u"quantita"_s), piu = c.intero(u"quantita_plus"_s);
    const bool presenti = std::ranges::all_of(c.abbinamenti(), [&](const QString& a) {
      const auto i = cod4_di.find({cod1, a.toInt()});
      return i != cod4_di.end() && (cod1 < 4 || i->second == 2);
    });
    const QString abb2 = c.testo(u"abb2"_s);
    pretendi(c, {{"out of order or named twice", ordine.segue(c)},
                 {"course", cod3 >= 0 && cod3 <= 10},
                 {"sub-group", c.intero(u"cod4"_s) <= (cod1 < 4 ? 6 : 5)},
                 {"portions", meno <= norma && norma <= piu && c.porzione_conta(meno) && c.porzione_conta(piu)},
                 {"energy", c.energia_torna()},
                 {"companions", presenti && (abb2.isEmpty() || abb2.endsWith(u','))},
                 {"meals", c.flag() == (cod1 < 3    ? u"1000"_s
                                        : cod1 == 3 ? u"0100"_s
                                                    : u"0011"_s)}});
  }
  EXPECT_EQ(ordine.cod1, 22);
}

TEST(Archivi, FoodsOfTheDiaryKeepTheirRules) {
  const TabellaCsv t = tabella(u"diario.csv"_s);
  Ordine ordine;
  for (const auto& r : t.righe) {
    const Cibo c{t, r};
    const int cod1 = c.intero(u"cod1"_s);
    pretendi(c, {{"out of order or named twice", ordine.segue(c)},
                 {"portion", c.porzione_conta(c.intero(u"quantita"_s))},
                 {"energy", c.energia_torna()},
                 {"meals", c.flag() == (cod1 < 6   ? u"1000"_s
                                        : cod1 < 8 ? u"0100"_s
                                                   : u"0011"_s)}});
  }
  EXPECT_EQ(ordine.cod1, 30);
}

TEST(Archivi, EveryCheckBoxOfTheFoodChoiceTicksFoods) {
  Archivio a = posato(u"sa_dieta.jed"_s);
  for (const InsiemeCaselle& insieme : insiemi_caselle()) {
    for (const Casella& casella : insieme.caselle) {
      for (const Chiamata& c : {casella.prima, casella.seconda}) {
        if (c.colonna == 0) continue;
        const QString dove = u"SELECT 1 FROM alimenti WHERE quantità > 0 AND cod1 = %1 AND cod%2 = %3"_s;
        EXPECT_FALSE(a.righe(dove.arg(c.a).arg(c.colonna).arg(c.b)).empty()) << c.a << ' ' << c.colonna << ' ' << c.b;
      }
    }
  }
}

TEST(Archivi, FoodStoresHoldTheirTables) {
  for (const auto& [archivio, csv, porzione] :
       {std::tuple{u"sa_dieta_minus.jed"_s, u"alimenti.csv"_s, u"quantita_minus"_s},
        {u"sa_dieta.jed"_s, u"alimenti.csv"_s, u"quantita"_s},
        {u"sa_dieta_plus.jed"_s, u"alimenti.csv"_s, u"quantita_plus"_s},
        {u"sa_diario.jed"_s, u"diario.csv"_s, u"quantita"_s}}) {
    const TabellaCsv t = tabella(csv);
    const auto righe = posato(archivio).righe(u"SELECT * FROM alimenti ORDER BY cod1,cod2"_s);
    ASSERT_EQ(righe.size(), t.righe.size());
    for (std::size_t i = 0; i < righe.size(); ++i) {
      const Cibo c{t, t.righe[i]};
      const Riga& r = righe[i];
      EXPECT_TRUE(r[u"Descrizione"] == c.testo(u"Descrizione"_s) && r[u"quantità"].toInt() == c.intero(porzione) &&
                  r[u"lipidi"].toDouble() == c.numero(u"lipidi"_s) && r[u"cena"].toBool() == c.flag().endsWith(u'1'))
          << c.testo(u"Descrizione"_s).toStdString();
      if (r.campi().contains(u"abb2"_s)) {
        EXPECT_EQ(r[u"abb2"].isNull(), c.testo(u"abb2"_s).isEmpty());
      }
    }
  }
}

TEST(Archivi, ExchangeableFoodsStandInGroupsAndPages) {
  const auto righe = posato(u"gruppi_elenco.jed"_s).righe(u"SELECT * FROM gruppi ORDER BY cont"_s);
  QSet<QString> nomi;
  bool stacco = true;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const QString gruppo = righe[i][u"gruppo"].toString(), cibo = righe[i][u"Descrizione"].toString();
    EXPECT_EQ(righe[i][u"cont"].toUInt(), i);
    stacco = stacco || i == 34 || i == 74;  // first lines of the second and third page
    if (!cibo.isEmpty()) {
      EXPECT_EQ(stacco, !gruppo.isEmpty()) << "a heading stands after a break and nowhere else, line " << i;
      EXPECT_FALSE(nomi.contains(cibo.toLower())) << cibo.toStdString();
      nomi << cibo.toLower();
    }
    stacco = cibo.isEmpty();
  }
  EXPECT_FALSE(stacco);
  EXPECT_GT(nomi.size(), 80);
}

TEST(Archivi, SkinfoldTableFollowsTheDensityEquations) {
  struct Banda {
    const char16_t* campo;
    double c, m;  // density = c - m × log10(sum)
  };
  constexpr Banda bande[] = {{u"primoM", 1.1631, 0.0632},  {u"secondoM", 1.1422, 0.0544}, {u"terzoM", 1.1620, 0.0700},
                             {u"quartoM", 1.1715, 0.0779}, {u"primoF", 1.1599, 0.0717},   {u"secondoF", 1.1423, 0.0632},
                             {u"terzoF", 1.1333, 0.0612},  {u"quartoF", 1.1339, 0.0645}};
  const auto righe = posato(u"Durnin.jed"_s).righe(u"SELECT * FROM tab_plico"_s);
  ASSERT_EQ(righe.size(), 40U);
  int somma = 15;
  for (const Riga& r : righe) {
    ASSERT_EQ(r[u"pliche"].toInt(), somma);
    for (const Banda& b : bande) {
      const double grasso = 100 * (4.95 / (b.c - b.m * std::log10(somma)) - 4.5);
      EXPECT_NEAR(r[b.campo].toDouble(), grasso, 0.0501) << somma;
    }
    somma += 5;
  }
}

TEST(Archivi, MunicipalitiesAreFoundByNameAlone) {
  static const QRegularExpression catasto(u"^[A-Z]\\d{3}$"_s), sigla(u"^[A-Z]{2}$"_s);
  QSet<QString> nomi;
  const auto righe = posato(u"ccc.jed"_s).righe(u"SELECT * FROM Comuni"_s);
  ASSERT_GT(righe.size(), 11000U);
  for (const Riga& r : righe) {
    const QString nome = r[u"Descrizione"].toString();
    EXPECT_TRUE(catasto.match(r[u"codice"].toString()).hasMatch()) << nome.toStdString();
    EXPECT_TRUE(sigla.match(r[u"provincia"].toString()).hasMatch()) << nome.toStdString();
    EXPECT_LE(r[u"cap"].toInt(), 99999);
    EXPECT_FALSE(nomi.contains(nome.toLower())) << nome.toStdString();
    nomi << nome.toLower();
  }
}
