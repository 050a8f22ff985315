// The search over a small food base: what it says, what it keeps, where it resumes; and over the real one.
#include "attrezzi.h"
#include "base/file.h"
#include "diet/banco.h"
#include "diet/bersagli.h"
#include "diet/dieta.h"
#include "diet/ricerca.h"
#include "diet/selezione_automatica.h"
#include "diet/voce.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// What a search said and how it ended.
struct Ascolto {
  QStringList detti;
  std::vector<int> progressi;
  std::vector<bool> termini;

  Tramite tramite(std::uint64_t seme) {
    return {[this](const Riquadro& r) { detti << r.testo; }, [this](int n) { progressi.push_back(n); },
            [this](bool intera) { termini.push_back(intera); }, caso_con_seme(seme)};
  }
};

TotaliGiornalieri totali(int calorie, int protidi, int lipidi) {
  TotaliGiornalieri t;
  t.calorie.fill(calorie);
  t.protidi.fill(static_cast<float>(protidi));
  t.lipidi.fill(static_cast<float>(lipidi));
  return t;
}

class Ricerca : public Banco {
 protected:
  Ascolto elabora(const TotaliGiornalieri& t, const PercentualiPasti& percentuali) {
    Ascolto a;
    elabora_settimana(m, t, percentuali, a.tramite(1));
    return a;
  }
  int pieni(int pasto, int settimana = 1) const {
    int n = 0;
    for (int d = 0; d < giorni; ++d) n += m.menu(settimana, d, pasto, 0).cod1 != 0;
    return n;
  }
  std::vector<int> codici(int giorno, int pasto) const {
    std::vector<int> c;
    for (int i = 0; m.menu(1, giorno, pasto, i).cod1 != 0; ++i) c.push_back(m.menu(1, giorno, pasto, i).cod1);
    return c;
  }
};

bool uguali(const voce_pasto& x, const voce_pasto& y) {
  return x.cod1 == y.cod1 && x.cod2 == y.cod2 && x.descr == y.descr && x.cal == y.cal && x.prot == y.prot &&
         x.lip == y.lip && x.gluc == y.gluc && x.quant == y.quant && x.quant_mod == y.quant_mod;
}

// A lunch of 720 kcal, 144 of protein, 216 of fat: the pair of group 8 is exact, and so is 4 with 8 left to grow.
const std::vector<Cibo> due_portate{{4, 1, 2, 1, 360, 18, 12, 45, true}, {8, 1, 4, 1, 360, 18, 12, 45, true}};
constexpr PercentualiPasti solo_pranzo{0, 0, 100, 0, 0};

}  // namespace

TEST_F(Ricerca, NoShareForAnyMealIsACompleteEmptyWeek) {
  base({});
  cliente({});
  for (const int settimana : {1, 2}) m.menu(settimana, 3, 2, 0).cod1 = 8;
  const Ascolto a = elabora(totali(2000, 400, 600), {0, 0, 0, 0, 0});
  EXPECT_TRUE(a.termini == std::vector{true} && a.detti.isEmpty());
  EXPECT_EQ(m.menu(1, 3, 2, 0).cod1, 0) << "the week under work was cleared";
  EXPECT_EQ(m.menu(2, 3, 2, 0).cod1, 8) << "the others stay";
}

TEST_F(Ricerca, ALunchIsBuiltCourseByCourseAndServedTwiceAWeek) {
  base(due_portate);
  cliente({{4, 1, 2, 1, 4}, {8, 1, 4, 1, 4}});
  const Ascolto a = elabora(totali(720, 144, 216), solo_pranzo);
  EXPECT_EQ(codici(0, 2), (std::vector{4, 8}));
  EXPECT_EQ(pieni(2), 2) << "each food serves two lunches";
  EXPECT_EQ(a.termini, std::vector{false});
  ASSERT_EQ(a.detti.size(), 4 * 2 + 1);
  EXPECT_EQ(a.detti[0], u"Errori KCAL: 0\nErrori Prot: 0\nErrori Lip: 0\nK"_s);
  EXPECT_EQ(a.detti[1],
            u"Ho difficoltà ad elaborare il pranzo\nPremi Invio (Enter) per iniziare un nuovo ciclo di ricerca !"_s);
  EXPECT_TRUE(a.detti.back().startsWith(u"Attenzione: la difficoltà di elaborare il pasto in sospeso"_s));
  EXPECT_EQ(m.ripresa_pasto, 2);
  EXPECT_EQ(m.ripresa_giorno, 2);

  // The next press resumes at that lunch, in whatever week, with counters and deviations as they were.
  m.settimana_corrente = 2;
  cliente({{4, 1, 2, 1, 4}, {8, 1, 4, 1, 4}, {4, 2, 2, 1, 4}, {8, 2, 4, 1, 4}});
  auto di_piu = due_portate;
  for (Cibo c : due_portate) {
    c.cod2 = 2;
    di_piu.push_back(c);
  }
  base(di_piu);
  EXPECT_EQ(elabora(totali(720, 144, 216), solo_pranzo).progressi.front(), 2 * 7 + 2 + 1) << "nothing was reset";
  EXPECT_EQ(pieni(2, 1), 2);
  EXPECT_FALSE(m.menu(2, 2, 2, 0).cod1 == 0);
  EXPECT_EQ(m.menu(2, 0, 2, 0).cod1, 0);
}

TEST_F(Ricerca, DominantCauseIsTold) {
  const std::pair<Cibo, QString> cause[]{
      {{8, 1, 4, 1, 900, 36, 24, 45, true}, u"Errori KCAL: 75\nErrori Prot: 0\nErrori Lip: 0\nK"_s},
      {{8, 1, 4, 1, 720, 60, 24, 45, true}, u"Errori KCAL: 0\nErrori Prot: 75\nErrori Lip: 0\nP"_s},
      {{8, 1, 4, 1, 720, 36, 48, 45, true}, u"Errori KCAL: 0\nErrori Prot: 0\nErrori Lip: 75\nL"_s},
  };
  for (const auto& [cibo, lettera] : cause) {
    m = {};
    base({cibo});
    cliente({{8, 1, 4, 1, 4}});
    EXPECT_EQ(elabora(totali(720, 144, 216), solo_pranzo).detti.value(0), lettera);
    EXPECT_TRUE(m.tipo_errore.isEmpty()) << "the letter holds for one attempt";
  }
}

TEST_F(Ricerca, ALightMealIsGivenUpAndTheSearchGoesOn) {
  base(
      {{3, 1, 0, 1, 500, 9, 9, 9}, {3, 2, 0, 2, 500, 9, 9, 9}, {3, 3, 0, 3, 500, 9, 9, 9}, {3, 5, 0, 5, 500, 9, 9, 9}});
  const std::tuple<const char*, std::vector<Offerta>, QString> casi[]{
      {"nothing to draw", {}, u"ERRORE nel caricamento1 0"_s},
      {"always too much",
       {{3, 1, 0, 1, 3}, {3, 2, 0, 2, 3}, {3, 3, 0, 3, 3}, {3, 5, 0, 5, 3}},
       u"ERRORE nel caricamento 1 0"_s},
      {"a food that the store lacks must not hang the search", {{3, 9, 0, 1, 3}}, u"ERRORE nel caricamento1 0"_s},
  };
  for (const auto& [che, offerte, primo] : casi) {
    m = {};
    cliente(offerte);
    const Ascolto a = elabora(totali(2000, 400, 600), {0, 5, 0, 0, 0});
    EXPECT_EQ(a.detti.size(), 7) << che;
    EXPECT_EQ(a.detti.value(0), primo) << che;
    EXPECT_EQ(a.termini, std::vector{true}) << che;
    EXPECT_EQ(pieni(1), 0) << che;
  }
}

TEST_F(Ricerca, DinnerTakesOffWhatTheDayOvershot) {
  // Snack 105 for a target of 100; the dinner target 720 falls to 715 and its food of 715 fits.
  base({{3, 1, 0, 1, 105, 5, 3, 10, true}, {8, 1, 4, 1, 715, 36, 24, 45, true}});
  cliente({{3, 1, 0, 1, 3}, {8, 1, 4, 1, 6}});
  const Ascolto a = elabora(totali(1000, 200, 300), {0, 10, 0, 0, 72});
  EXPECT_EQ(pieni(1) + pieni(4), 14);
  EXPECT_EQ(m.scarti[6].kcal, 5);
  EXPECT_EQ(a.termini, std::vector{true});
  // Snacks that overshoot by more than the dinner's target leave the dinners empty, without a word.
  m = {};
  base({{3, 1, 0, 1, 105, 5, 3, 10, true}});
  const Ascolto b = elabora(totali(100, 20, 30), {0, 100, 0, 0, 4});
  EXPECT_TRUE(pieni(1) == 7 && pieni(4) == 0);
  EXPECT_TRUE(b.termini == std::vector{true} && b.detti.isEmpty());
}

TEST_F(Ricerca, SupplementGoesIntoTheLunchOfItsDays) {
  base({{8, 1, 4, 1, 640, 26, 22, 45, true}});
  cliente({{8, 1, 4, 1, 4, "LV SD"}});
  Archivio(percorso(u"dati.tmp"_s))
      .esegui_copione(
          u"INSERT INTO Integratore_dieta VALUES ('Vuoto', 0, 400, 50, 5, 20, 23, 1, 1, 1),"
          "('Polvere', 20, 400, 50, 5, 20, 23, 1, 1, 0)"_s);
  elabora(totali(720, 144, 207), solo_pranzo);
  EXPECT_EQ(codici(0, 2), (std::vector{8, 23}));
  const voce_pasto& v = m.menu(1, 0, 2, 1);
  EXPECT_EQ(v.descr, u"Polvere"_s);
  EXPECT_EQ(v.cal, 80);
  EXPECT_FLOAT_EQ(v.prot, 40);
  EXPECT_TRUE(v.unico);
  EXPECT_EQ(pieni(2), 5) << "on Saturday the lunch falls short without it";
  EXPECT_EQ(m.ripresa_giorno, 5);
}

TEST_F(Ricerca, AMissingStoreEndsByItselfAndLosesNothing) {
  cliente({{3, 1, 0, 1, 3}, {8, 1, 4, 1, 4}});
  for (const char* che : {"missing", "no store"}) {
    m = {};
    const Ascolto a = elabora(totali(2000, 400, 600), {0, 5, 35, 0, 0});
    EXPECT_EQ(a.termini, std::vector{false}) << che;
    EXPECT_EQ(a.detti.size(), 7 + 4 * 2 + 1) << che;
    scrivi(percorso(u"sa_dieta.jed"_s), "non un archivio");
  }
}

TEST_F(Ricerca, SetUpReadsTheDayTotalsAndShares) {
  const std::tuple<int, QString, QString> giorni_letti[]{
      {0, u"71+70+"_s, u"71"_s}, {1, u"71+70+"_s, u"70"_s},  {2, u"71+70+"_s, {}}, {1, u"71+70"_s, {}},
      {0, u"a+70+"_s, {}},       {1, u"a+70+5+"_s, u"70"_s}, {0, u"+"_s, {}},      {0, u"1,5+"_s, u"1,5"_s}};
  for (const auto& [indice, testo, valore] : giorni_letti) {
    EXPECT_EQ(estrai_valore_giorno(indice, testo), valore) << testo.toStdString() << ' ' << indice;
  }
  base(due_portate);
  cliente({{4, 1, 2, 1, 4}, {8, 1, 4, 1, 4}});
  Ascolto a;
  elabora_dieta(m, a.tramite(1));
  EXPECT_EQ(a.detti, QStringList{u"Impossibile elaborare la dieta mancano i totali calorici giornalieri !"_s});
  Archivio dati(percorso(u"dati.tmp"_s));
  dati.esegui(
      u"INSERT INTO sport (calorie_totali, protidi, lipidi, glucidi) VALUES ('720+720+', '144+144+', '216+216+', '')"_s);
  elabora_dieta(m, a.tramite(1));
  EXPECT_EQ(a.detti.back(), u"Impossibile elaborare la dieta mancano i consumi giornalieri percentuali !"_s);
  EXPECT_TRUE(a.termini.empty()) << "no search ran";
  dati.esegui(u"INSERT INTO consumi VALUES (0, 0, 100, 0, 0)"_s);
  elabora_dieta(m, a.tramite(1));
  EXPECT_EQ(pieni(2), 2);
  EXPECT_EQ(a.termini, std::vector{true}) << "days without a total end the meal, not the search";
}

namespace {

/// The program's own food base and a client of 1900 kcal with the automatic selection.
class RicercaVera : public Ricerca {
 protected:
  void SetUp() override {
    const QDir archivi(QStringLiteral(CARTELLA_ARCHIVI));
    for (const QString& nome : {u"sa_dieta.jed"_s, u"sa_dieta_minus.jed"_s, u"sa_dieta_plus.jed"_s}) {
      sostituisci_file(archivi.filePath(nome), percorso(nome));
    }
    sostituisci_file(archivi.filePath(u"matrix.jed"_s), percorso(u"dati.tmp"_s));
    Archivio dati(percorso(u"dati.tmp"_s)), base_vera(percorso(u"sa_dieta.jed"_s));
    seleziona_automatico(dati, base_vera, false);
    dati.esegui(u"INSERT INTO sport (calorie_totali, protidi, lipidi, glucidi) VALUES (?, ?, ?, ?)"_s,
                u"1900+"_s.repeated(7), u"342+"_s.repeated(7), u"627+"_s.repeated(7), u"931+"_s.repeated(7));
    dati.esegui(u"INSERT INTO consumi VALUES (12, 7, 37, 7, 37)"_s);
  }
};

}  // namespace

TEST_F(RicercaVera, OneSeedGivesOneMenuThatMeetsItsTargets) {
  Ascolto a, b;
  elabora_dieta(m, a.tramite(5));
  EXPECT_EQ(a.termini, std::vector{true});
  Motore altro;
  elabora_dieta(altro, b.tramite(5));
  EXPECT_TRUE(std::ranges::equal(m.voci_menu, altro.voci_menu, uguali));
  std::map<int, int> pranzi;
  for (int d = 0; d < giorni; ++d) {
    EXPECT_NEAR(totali_giorno(m, 1, d).calorie, 1900, 0.09 * 1900) << "day " << d;
    for (int p = 0; p < pasti; ++p) {
      EXPECT_NE(m.menu(1, d, p, 0).cod1, 0) << d << ' ' << p;
      for (int i = 0; m.menu(1, d, p, i).cod1 != 0; ++i) {
        const voce_pasto& v = m.menu(1, d, p, i);
        EXPECT_LE(i > 0 ? m.menu(1, d, p, i - 1).cod1 : 0, v.cod1);
        EXPECT_LE(p == 2 ? ++pranzi[v.cod1 * 1000 + v.cod2] : 0, 2) << v.descr.toStdString();
      }
    }
  }
}

TEST_F(RicercaVera, TheDietIsStoredAndReadBackAsItStood) {
  Ascolto a;
  for (m.settimana_corrente = 1; m.settimana_corrente <= 2; ++m.settimana_corrente) elabora_dieta(m, a.tramite(9));
  m.menu(2, 6, 4, 0).quant_mod = u"75"_s;
  Archivio dati(percorso(u"dati.tmp"_s));
  const int righe = scrivi_dieta(m, dati, u"12"_s);
  EXPECT_GT(righe, 2 * 35 * 2);
  Motore altro;
  altro.menu(3, 0, 0, 0).descr = u"resta"_s;
  EXPECT_EQ(leggi_dieta(altro, dati), righe);
  EXPECT_EQ(altro.menu(3, 0, 0, 0).descr, u"resta"_s) << "weeks that are not stored keep what they held";
  altro.menu(3, 0, 0, 0) = {};
  EXPECT_TRUE(std::ranges::equal(m.voci_menu, altro.voci_menu, uguali));
  EXPECT_EQ(scrivi_dieta(Motore{}, dati, u"12"_s), 0);
  EXPECT_TRUE(dati.righe(u"SELECT * FROM dieta"_s).empty()) << "an empty menu deletes the old diet";
}

TEST_F(Ricerca, StoredWeeksOfOneMealRunOnInTheSlots) {
  cliente({});
  Archivio dati(percorso(u"dati.tmp"_s));
  for (const int settimana : {1, 2}) {
    dati.esegui(u"INSERT INTO dieta (dieta, giorno, pasto, cod1, cal, quant) VALUES (?, 0, 0, 1, 50, 10)"_s, settimana);
  }
  EXPECT_EQ(leggi_dieta(m, dati), 2);
  EXPECT_EQ(m.menu(2, 0, 0, 0).cod1, 0);
  EXPECT_EQ(m.menu(2, 0, 0, 1).cod1, 1) << "same day and meal: the slot is not set back";
  dati.esegui(u"INSERT INTO dieta (dieta, giorno, pasto, cod1) VALUES (5, 0, 0, 1)"_s);
  EXPECT_THROW(leggi_dieta(m, dati), Errore);
}

TEST(TotaliDieta, AlteredGramsScaleAllFourValues) {
  Motore m;
  m.menu(1, 0, 0, 0) = voce(1, {}, 100, 40, 30, 31, 50);
  m.menu(1, 0, 0, 0).quant_mod = u"75"_s;
  for (const int posto : {0, 2}) m.menu(1, 0, 3, posto) = voce(1, {}, 11, 1, 1, 1, 10);
  const Totali t = totali_giorno(m, 1, 0);
  EXPECT_EQ((std::array{t.calorie, int{t.protidi}, int{t.lipidi}, int{t.glucidi}}), (std::array{161, 61, 46, 47}))
      << "46.5 + 1 rounds after each addition; what follows an empty entry does not count";
  m.menu(1, 0, 0, 0).quant = 0;
  EXPECT_THROW((void)totali_giorno(m, 1, 0), Errore);
  EXPECT_THROW((void)totali_giorno(m, 5, 0), Errore);
}

TEST_F(RicercaVera, AutomaticSelectionTakesSimpleFoods) {
  Archivio dati(percorso(u"dati.tmp"_s)), base_vera(percorso(u"sa_dieta.jed"_s));
  const auto gruppi = [&](const QString& dove) {
    return righe_di(dati, u"SELECT DISTINCT cod1 FROM alimenti_spuntati WHERE %1 ORDER BY cod1"_s.arg(dove));
  };
  for (const auto& [dove, attesi] :
       {std::pair{u"pasto=4 AND ok"_s, u"4|6|8|11|13|14|15|18|22"_s},
        {u"pasto=6 AND ok"_s, u"4|6|8|11|13|14|15|18|22"_s},
        {u"pasto=6"_s, u"4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22"_s},  // the others for the dietitian
        {u"pasto=2 AND ok OR pasto=1 AND ok AND (cod4=5 OR (cod4=2 AND cod3=1))"_s, u""_s},
        {u"pasto IN (3, 5) AND ok AND cod4=1"_s, u""_s},
        {u"abb_OK IS NULL OR abb_LV IS NULL OR abb_SD IS NULL OR abb_OK <> abb_SD"_s, u""_s}}) {
    EXPECT_EQ(gruppi(dove), attesi) << dove.toStdString();
  }
  seleziona_automatico(dati, base_vera, true);
  EXPECT_EQ(gruppi(u"pasto=4"_s), u"7|15|18|19|21"_s);
  EXPECT_EQ(gruppi(u"pasto=4 AND ok AND cod1=21 AND cod4=2"_s), QString());
  EXPECT_EQ(righe_di(dati, u"SELECT CheckPranzo, CheckCena FROM checkAlimentiSpuntati"_s),
            u"5; 1;3;5;6;8;12;13;15;16;17;"_s);
}
