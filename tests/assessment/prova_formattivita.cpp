// Stage 1 as the practitioner uses it: sport on top of the ration, the rhythm of the meals, what is stored of both.
#include "ambiente.h"
#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "core/salva_carica.h"
#include "core/sezioni.h"

#include <QBarSeries>
#include <QBarSet>
#include <QChart>

using namespace Qt::StringLiterals;

namespace {

constexpr int calcio = 8, cammino = 9, nuoto = 25;  // 7, 3 and 7 kcal a minute

struct ProvaAttività : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();
  Formattività* f{};

  /// A ration of 1800 kcal, 15,5 percent of protein and 30,5 of fat.
  void SetUp() override {
    m.show();
    m.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m));
    auto& pond = schermata<Formpond>();
    razione(u"1800"_s);
    const std::array kcal{u"279"_s, u"549"_s, u"972"_s};
    for (std::size_t i = 0; i < kcal.size(); ++i) pond.Text11[i]->setText(kcal[i]);
    pond.Text12[0]->setText(u"15,50"_s);
    pond.Text12[1]->setText(u"30,50"_s);
    apri();
  }
  static void razione(const QString& kcal) { schermata<Formpond>().Text10[1]->setText(kcal); }
  void apri() {
    mostra<Formattività>();
    f = caricata<Formattività>();
  }
  void riapri() {
    scarica<Formattività>();
    apri();
  }
  [[nodiscard]] QStringList giorno(std::size_t i) const {
    QStringList testi;
    for (const QLineEdit* c : {f->Text15[i], f->Text14[i], f->Text2[i], f->Text3[i], f->Text4[i]}) testi << c->text();
    return testi;
  }
  /// In the order of the fields: breakfast, lunch, afternoon snack, dinner, morning snack.
  [[nodiscard]] QStringList percentuali() const {
    QStringList testi;
    for (std::size_t i = 0; i < 5; ++i) testi << f->Txt[i]->text();
    return testi;
  }
  [[nodiscard]] QList<double> barre() const {
    const auto* serie = dynamic_cast<QBarSeries*>(f->MSChart1->chart()->series().value(0));
    QList<double> valori;
    for (int i = 0; serie && i < 5; ++i) valori << serie->barSets().front()->at(i);
    return valori;
  }
  [[nodiscard]] QColor colore_cena() const {
    const QImage campo = f->Txt[3]->grab().toImage();
    return campo.pixelColor(3, 3);
  }
  static QVariantMap riga(const QString& tabella) { return carica_riga(dati_tmp(), tabella); }
};

const QStringList solo_razione{{}, u"1800"_s, u"279"_s, u"549"_s, u"972"_s};

}  // namespace

TEST_F(ProvaAttività, MinutesAddTheirEnergyToTheDay) {
  struct Caso {
    int attività, minuti;  // lines of the lists
    QStringList giorno;
  };
  const Caso casi[]{
      {calcio, 4, {u"420"_s, u"2220"_s, u"344"_s, u"677"_s, u"1199"_s}},    // 60 minutes
      {cammino, 10, {u"720"_s, u"2520"_s, u"390"_s, u"768"_s, u"1362"_s}},  // 240, at 2,93 a minute
      {nuoto, 1, {u"105"_s, u"1905"_s, u"295"_s, u"581"_s, u"1029"_s}},     // 15, at 6,65
      {nuoto, 0, {{}, u"1800"_s, u"279"_s, u"549"_s, u"972"_s}},            // the stored minutes are none
  };
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(giorno(i), solo_razione);
  for (const Caso& c : casi) {
    scegli(f->Combo13, c.attività);
    scegli(f->Combo14[1], c.minuti);
    EXPECT_EQ(giorno(1), c.giorno) << c.attività;
    EXPECT_EQ(f->Combo14[1]->toolTip(), f->Combo13->currentText());
  }
  EXPECT_EQ(giorno(0), solo_razione);
}

TEST_F(ProvaAttività, EachDayKeepsTheActivityOfItsClick) {
  scegli(f->Combo13, calcio);
  scegli(f->Combo14[0], 2);
  scegli(f->Combo13, cammino);
  scegli(f->Combo14[6], 2);
  EXPECT_EQ(f->TxtAttività[0]->text() + f->TxtAttività[1]->text() + f->TxtAttività[6]->text(), u"8-19"_s);
  EXPECT_EQ(f->Text15[0]->text(), u"210"_s);
  scegli(f->Combo14[0], 2);  // the line that already stands
  EXPECT_EQ(f->Text15[0]->text(), u"90"_s) << "now at the cost of the activity in force";
}

TEST_F(ProvaAttività, MinutesWantAnActivityFirst) {
  Dialogo d({{u"Scegliere prima il tipo di attività fisica"_s, {}}});
  scegli(f->Combo14[3], 4);
  EXPECT_EQ(f->Combo14[3]->currentIndex(), -1);
  EXPECT_EQ(f->focusWidget(), f->Combo13);
  EXPECT_EQ(giorno(3), solo_razione);
}

TEST_F(ProvaAttività, AStepOnAMealKeepsTheSumAtOneHundred) {
  const std::pair<QPushButton*, QStringList> passi[]{
      {f->CmdDOWN[0], {u"11"_s, u"37"_s, u"7"_s, u"38"_s, u"7"_s}},
      {f->CmdUP[1], {u"11"_s, u"38"_s, u"7"_s, u"37"_s, u"7"_s}},
      {f->CmdUP[4], {u"11"_s, u"37"_s, u"7"_s, u"37"_s, u"8"_s}},
      {f->CmdUP[3], {u"11"_s, u"37"_s, u"7"_s, u"37"_s, u"8"_s}},  // dinner is what the others leave
  };
  for (const auto& [pulsante, attese] : passi) {
    QTest::mouseClick(pulsante, Qt::LeftButton);
    EXPECT_EQ(percentuali(), attese) << pulsante->objectName().toStdString();
  }
  EXPECT_EQ(barre(), (QList<double>{11, 8, 37, 7, 37})) << "the meals of the chart stand in the order of the day";
  const std::tuple<QLineEdit*, QPushButton*, QString> fermi[]{{f->Txt[1], f->CmdUP[1], u"100"_s},
                                                              {f->Txt[0], f->CmdDOWN[0], u"0"_s}};
  for (const auto& [campo, pulsante, limite] : fermi) {
    campo->setText(limite);
    QTest::mouseClick(pulsante, Qt::LeftButton);
    EXPECT_EQ(campo->text(), limite);
  }
}

TEST_F(ProvaAttività, ADinnerThatHasNothingLeftIsRed) {
  EXPECT_EQ(colore_cena(), QColor(Qt::white));
  f->Txt[1]->setText(u"73"_s);
  QTest::mouseClick(f->CmdUP[1], Qt::LeftButton);
  EXPECT_EQ(f->Txt[3]->text(), u"0"_s);
  EXPECT_EQ(colore_cena(), QColor(Qt::red));
  QTest::mouseClick(f->CmdUP[1], Qt::LeftButton);
  EXPECT_EQ(f->Txt[3]->text(), u"-1"_s);
  EXPECT_EQ(barre().last(), -1);
  for (int i = 0; i < 2; ++i) QTest::mouseClick(f->CmdDOWN[1], Qt::LeftButton);
  EXPECT_EQ(colore_cena(), QColor(Qt::white));
}

TEST_F(ProvaAttività, TextThatIsNoNumberBecomesZero) {
  f->Txt[2]->setFocus();
  for (const QString& tasti : {u"x"_s, u"-"_s, u"'"_s}) {
    f->Txt[2]->selectAll();
    QTest::keyClicks(f->Txt[2], tasti);
    EXPECT_EQ(f->Txt[2]->text(), u"0"_s) << tasti.toStdString();
    EXPECT_EQ(f->Txt[2]->selectedText(), u"0"_s);
  }
  QTest::keyClicks(f->Txt[2], u"99999"_s);
  EXPECT_EQ(f->Txt[2]->text(), u"9999"_s);
}

TEST_F(ProvaAttività, TheDiaryOrTheDefaultsAreTaken) {
  salva_righe(dati_tmp(), u"diario"_s,
              {{{u"colazione"_s, 15.0}, {u"spuntino"_s, 5.5}, {u"pranzo"_s, 42}, {u"merenda"_s, 4}, {u"cena"_s, 33}}});
  riapri();
  const QStringList solite{u"12"_s, u"37"_s, u"7"_s, u"37"_s, u"7"_s};
  EXPECT_EQ(percentuali(), solite);
  QTest::mouseClick(f->CmdUtilizza[0], Qt::LeftButton);
  const QStringList diario{u"15"_s, u"42"_s, u"4"_s, u"33"_s, u"5,5"_s};
  EXPECT_EQ(percentuali(), diario);
  riapri();
  EXPECT_EQ(percentuali(), (QStringList{u"15"_s, u"42"_s, u"4"_s, u"33"_s, u"6"_s})) << "stored in whole numbers";
  QTest::mouseClick(f->CmdUtilizza[1], Qt::LeftButton);
  EXPECT_EQ(percentuali(), solite);
}

TEST_F(ProvaAttività, TheWeekComesBackFromItsActivitiesAndMinutes) {
  scegli(f->Combo13, calcio);
  scegli(f->Combo14[1], 4);
  scegli(f->Combo14[4], 0);
  f->CmdDOWN[0]->click();
  EXPECT_EQ(m.qualeform.text(), u"1"_s);
  scarica<Formattività>();
  EXPECT_EQ(m.qualeform.text(), u"-1"_s);
  const QVariantMap sport = riga(u"sport"_s), consumi = riga(u"consumi"_s);
  EXPECT_EQ(sport.value(u"attivitàgg"_s), u"-1,8,-1,-1,-1,-1,-1,"_s);
  EXPECT_EQ(sport.value(u"minuti"_s), u"-1+4+-1+-1+0+-1+-1+"_s);
  EXPECT_EQ(sport.value(u"calorie_totali"_s), u"1800+2220+1800+1800+1800+1800+1800+"_s);
  EXPECT_EQ(sport.value(u"glucidi"_s), u"972+1199+972+972+972+972+972+"_s);
  EXPECT_EQ(consumi.value(u"cena"_s), 38);
  apri();
  EXPECT_EQ(f->Combo14[1]->toolTip(), u"Calcio"_s);
  riapri();
  EXPECT_EQ(riga(u"sport"_s), sport);
  EXPECT_EQ(riga(u"consumi"_s), consumi);
}

TEST_F(ProvaAttività, AReloadCountsAllMinutesWithTheLastDaysActivity) {
  scarica<Formattività>();
  salva_riga(dati_tmp(), u"sport"_s, {{u"attivitàgg"_s, u"8,-1,9,-1,"_s}, {u"minuti"_s, u"2+0+2+"_s}});
  apri();
  EXPECT_EQ(f->Combo13->currentIndex(), cammino);
  EXPECT_EQ(f->Text15[0]->text() + u' ' + f->Text15[1]->text() + u' ' + f->Text15[2]->text(), u"90  90"_s);
}

TEST_F(ProvaAttività, WhatCannotBeRestoredIsPassedOver) {
  scarica<Formattività>();
  salva_riga(dati_tmp(), u"sport"_s,
             {{u"attivitàgg"_s, u"8,99,x',,40000,-7,-1,3,"_s}, {u"minuti"_s, u"4+11+x+-1+1+"_s}});
  razione(u"32700"_s);
  apri();
  EXPECT_EQ(f->Combo13->currentIndex(), calcio);
  EXPECT_EQ(f->Text14[0]->text(), u"32700"_s) << "a sum beyond 16 bits leaves the ration";
  EXPECT_EQ(f->Text15[4]->text(), u"105"_s);
  razione(u"molte"_s);
  riapri();
  EXPECT_EQ(f->Text14[4]->text(), u"molte"_s);
}

TEST_F(ProvaAttività, TheWeightStageHasTheWeekWorkedOutAnewUnseen) {
  scarica<Formattività>();
  dati_tmp().esegui(u"DELETE FROM sport"_s);
  dati_tmp().esegui(u"DELETE FROM consumi"_s);
  mostra<Formpond>();
  const auto calorie = [] { return riga(u"sport"_s).value(u"calorie_totali"_s).toString().section(u'+', 0, 1); };
  const std::pair<QString, QString> razioni[]{{u"1500"_s, u"1500+1500"_s}, {u"2000"_s, u"2000+2420"_s}};
  for (const auto& [nuova, attese] : razioni) {
    razione(nuova);
    salva_cliente(5);
    EXPECT_EQ(calorie(), attese);
    EXPECT_EQ(riga(u"consumi"_s).value(u"pranzo"_s), 37);
    EXPECT_EQ(caricata<Formattività>(), nullptr);
    EXPECT_EQ(m.qualeform.text(), u"5"_s) << "the stage in front stays in front";
    EXPECT_TRUE(caricata<Formpond>()->isVisible() && m.Statusbar->isVisible());
    salva_riga(dati_tmp(), u"sport"_s, {{u"attivitàgg"_s, u"-1,8,"_s}, {u"minuti"_s, u"-1+4+"_s}});
  }
}
