// Which foods a meal's grid shows, what marks, boxes and companion lists do to each other, and what is stored of them.
#include "attrezzi.h"
#include "diet/banco.h"
#include "diet/preferenze_archivio.h"

#include <set>

using namespace Qt::StringLiterals;

namespace {

Archivio sa_dieta() {
  return Archivio(QStringLiteral(CARTELLA_ARCHIVI "/sa_dieta.jed"), accesso, Archivio::Modo::sola_lettura);
}

Scheda scheda_del(int sel, bool fast_food = false) {
  Archivio a = sa_dieta();
  return leggi_alimenti(a, sel, fast_food);
}

AlimentoScheda alimento(int cod1, int cod2, const QString& abb2 = {}) {
  return {.cod1 = cod1,
          .cod2 = cod2,
          .descrizione = u"%1.%2"_s.arg(cod1).arg(cod2),
          .abb2 = abb2,
          .liste = {abb2, abb2, abb2}};
}

/// Pasta with two sauces, rice with one, and a meat that bears the number of a sauce.
Scheda piccola() {
  return {alimento(4, 1, u"21,22,"_s), alimento(4, 2, u"21,"_s), alimento(4, 21), alimento(4, 22),
          alimento(5, 1, u"21,"_s),    alimento(5, 21),          alimento(8, 21)};
}

QString segnati(const Scheda& scheda, Segno segno) {
  QStringList nomi;
  for (const AlimentoScheda& r : scheda) {
    if (r.segnato(segno)) nomi << r.descrizione;
  }
  return nomi.join(u' ');
}

QString liste(const Scheda& scheda, Segno segno) {
  QStringList tutte;
  for (const AlimentoScheda& r : scheda) tutte << r.lista(segno);
  return tutte.join(u' ');
}

class Preferenze : public Banco {};

}  // namespace

TEST_F(Preferenze, AMealShowsItsGroupsAndNoFoodWithoutAPortion) {
  const std::tuple<int, bool, std::set<int>> casi[]{{scheda_di::colazione, false, {1}},
                                                    {scheda_di::colazione_bio, false, {2}},
                                                    {scheda_di::spuntino, true, {3}},
                                                    {scheda_di::merenda, false, {3}},
                                                    {scheda_di::pranzo, true, {7, 15, 18, 19, 21}}};
  for (const auto& [sel, veloce, attesi] : casi) {
    std::set<int> gruppi;
    for (const AlimentoScheda& r : scheda_del(sel, veloce)) gruppi.insert(r.cod1);
    EXPECT_EQ(gruppi, attesi) << sel;
  }
  const auto pranzo = scheda_del(scheda_di::pranzo), cena = scheda_del(scheda_di::cena, true);
  EXPECT_EQ(pranzo.size(), cena.size()) << "a dinner is never fast food";
  EXPECT_EQ(pranzo.front().cod1, 4);
  EXPECT_EQ(pranzo.back().cod1, 22);
  EXPECT_EQ(pranzo.front().liste, (std::array{u"21,22,23,"_s, u"21,22,23,"_s, u"21,22,23,"_s}));
  for (const int grammi : {0, -1}) EXPECT_FALSE(alimento_in_scheda(scheda_di::colazione, 1, grammi, false)) << grammi;
  EXPECT_FALSE(alimento_in_scheda(scheda_di::integratori, 4, 100, false));
}

TEST_F(Preferenze, ABaseFoodTakesItsCompanionsAlongAndACompanionLeavesTheListsOfItsGroup) {
  Scheda s = piccola();
  for (AlimentoScheda& r : s) imposta_segno(r, Segno::ok);
  togli_segno(s, 2, Segno::ok);
  EXPECT_EQ(liste(s, Segno::ok), u"22,    21,  "_s) << "the rice has another 21";
  EXPECT_EQ(s[0].lista(Segno::LV), u"21,22,"_s) << "the other marks keep their lists";
  togli_segno(s, 0, Segno::ok);
  EXPECT_EQ(segnati(s, Segno::ok), u"4.2 5.1 5.21 8.21"_s);
  togli_segno(s, 4, Segno::ok);
  EXPECT_EQ(segnati(s, Segno::ok), u"4.2 8.21"_s) << "the meat is no sauce";
  imposta_segno(s[0], Segno::ok);
  imposta_segno(s[1], Segno::ok);
  EXPECT_EQ(s[0].lista(Segno::ok), u"21,22,"_s) << "a new mark takes the food's own companions again";
  EXPECT_EQ(s[1].lista(Segno::ok), u""_s) << "a mark that stood keeps its list";
}

TEST_F(Preferenze, TheListOfTheChosenNamesCompanionsBeforeTheirFood) {
  Scheda s = piccola();
  imposta_segno(s[0], Segno::ok);
  imposta_segno(s[0], Segno::SD);
  imposta_segno(s[6], Segno::LV);
  s[0].lista(Segno::SD) = u"22,99,"_s;
  QString righe;
  for (const Scelto& c : alimenti_scelti(s)) righe += c.descrizione + u"GRB"_s[static_cast<int>(c.segno)] + u' ';
  EXPECT_EQ(righe, u"4.21G 4.22G 4.1G 4.22B 4.1B 8.21R "_s);
}

TEST_F(Preferenze, EachBoxMarksItsOwnFoods) {
  // How many foods a meal keeps with one box unticked, against a count of the store's own rows.
  const std::tuple<int, bool, std::size_t, QString> casi[]{
      {scheda_di::colazione, false, 0, u"cod1=1 AND (cod4=1 OR cod3=0) AND cod4 NOT IN (3,4,5,6)"_s},
      {scheda_di::colazione, false, 1, u"cod1=1 AND cod3=1"_s},
      {scheda_di::colazione, false, 4, u"cod1=1 AND cod4=6"_s},
      {scheda_di::colazione_bio, false, 2, u"cod1=2 AND cod4 IN (3,4)"_s},
      {scheda_di::spuntino, false, 3, u"cod1=3 AND cod4=5"_s},
      {scheda_di::pranzo, true, 4, u"cod1=21 AND cod4=1"_s},
      {scheda_di::pranzo, true, 5, u"cod1=21 AND cod4=2"_s},
      {scheda_di::pranzo, false, 4, u"cod1=8"_s},
      {scheda_di::cena, true, 18, u"cod1=22"_s},
  };
  for (const auto& [sel, veloce, casella, tolti] : casi) {
    Scheda s = scheda_del(sel, veloce);
    const InsiemeCaselle& insieme = insiemi_caselle()[insieme_del_pasto(sel, veloce).value()];
    std::vector<bool> spuntate(insieme.caselle.size(), true);
    applica_caselle(s, insieme, spuntate);
    const auto senza = [&s] { return std::ranges::count_if(s, [](const auto& r) { return !r.segnato(Segno::ok); }); };
    EXPECT_EQ(senza(), 0) << "all boxes together reach every food";
    spuntate[casella] = false;
    applica_caselle(s, insieme, spuntate);
    EXPECT_EQ(senza(), std::ssize(sa_dieta().righe(u"SELECT 1 FROM alimenti WHERE quantità > 0 AND "_s + tolti)))
        << sel << " " << casella;
  }
  EXPECT_FALSE(insieme_del_pasto(scheda_di::integratori, false));
}

TEST_F(Preferenze, AMealIsStoredWholeAndComesBackByPosition) {
  cliente({{8, 1, 4, 1, 6, "ok"}});
  Archivio dati(percorso(u"dati.tmp"_s));
  Scheda s = piccola();
  imposta_segno(s[0], Segno::ok);
  imposta_segno(s[6], Segno::LV);
  s[0].lista(Segno::ok) = u"22,"_s;
  EXPECT_FALSE(leggi_caselle(dati, u"CheckPranzo")) << "nothing was stored yet";
  for (int volta = 0; volta < 2; ++volta) salva_spunte(dati, 4, s, u"CheckPranzo", {true, false, true, false});
  EXPECT_EQ(leggi_caselle(dati, u"CheckPranzo"), u"1;3;"_s);
  EXPECT_EQ(leggi_caselle(dati, u"CheckCena"), u""_s);
  EXPECT_EQ(dati.righe(u"SELECT 1 FROM alimenti_spuntati"_s).size(), 8U) << "the dinner keeps its row";
  Scheda corta = piccola();
  corta.erase(corta.begin() + 1);  // the store has lost a food since
  ASSERT_TRUE(richiama_righe(dati, 4, corta));
  EXPECT_EQ(corta[0].lista(Segno::ok), u"22,"_s);
  EXPECT_EQ(segnati(corta, Segno::LV), QString()) << "the seventh stored row has no row of the grid";
  dimentica_spunte(dati, 4);
  EXPECT_FALSE(richiama_righe(dati, 4, corta));
}
