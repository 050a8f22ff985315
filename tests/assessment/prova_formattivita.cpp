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

struct ProvaAttività : AmbienteDi<Formattività> {
  /// A ration of 1800 kcal, 15,5 percent of protein and 30,5 of fat.
  void SetUp() override {
    attiva_finestra();
    auto& pond = schermata<Formpond>();
    razione(u"1800"_s);
    const std::array kcal{u"279"_s, u"549"_s, u"972"_s};
    for (std::size_t i = 0; i < kcal.size(); ++i) pond.Text11[i]->setText(kcal[i]);
    pond.Text12[0]->setText(u"15,50"_s);
    pond.Text12[1]->setText(u"30,50"_s);
    apri();
  }
  static void razione(const QString& kcal) { schermata<Formpond>().Text10[1]->setText(kcal); }
  [[nodiscard]] QString giorno(std::size_t i) const {
    return testi(std::array{f->Text15[i], f->Text14[i], f->Text2[i], f->Text3[i], f->Text4[i]});
  }
  /// In the order of the fields: breakfast, lunch, afternoon snack, dinner, morning snack.
  [[nodiscard]] QString percentuali() const { return testi(std::span(f->Txt).first<5>()); }
  [[nodiscard]] QList<double> barre() const {
    const auto* serie = dynamic_cast<QBarSeries*>(f->MSChart1->chart()->series().value(0));
    QList<double> valori;
    for (int i = 0; serie && i < 5; ++i) valori << serie->barSets().front()->at(i);
    return valori;
  }
  [[nodiscard]] QColor colore_cena() const { return f->Txt[3]->grab().toImage().pixelColor(3, 3); }
  static QVariantMap riga(const QString& tabella) { return carica_riga(dati_tmp(), tabella); }
};

const QString solo_razione = u" 1800 279 549 972"_s;

}  // namespace

TEST_F(ProvaAttività, MinutesAddTheirEnergyToTheDay) {
  const std::tuple<int, int, QString> casi[]{
      {calcio, 4, u"420 2220 344 677 1199"_s},    // 60 minutes
      {cammino, 10, u"720 2520 390 768 1362"_s},  // 240, at 2,93 a minute
      {nuoto, 1, u"105 1905 295 581 1029"_s},     // 15, at 6,65
      {nuoto, 0, solo_razione},                   // the stored minutes are none
  };
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(giorno(i), solo_razione);
  for (const auto& [attività, minuti, atteso] : casi) {
    scegli(f->Combo13, attività);
    scegli(f->Combo14[1], minuti);
    EXPECT_EQ(giorno(1), atteso) << attività;
    EXPECT_EQ(f->Combo14[1]->toolTip(), f->Combo13->currentText());
  }
  EXPECT_EQ(giorno(0), solo_razione);
  scegli(f->Combo13, calcio);
  scegli(f->Combo14[0], 2);
  scegli(f->Combo13, cammino);
  EXPECT_EQ(f->TxtAttività[0]->text() + u' ' + f->Text15[0]->text(), u"8 210"_s) << "each day keeps its click's";
  scegli(f->Combo14[0], 2);  // the line that already stands
  EXPECT_EQ(f->TxtAttività[0]->text() + u' ' + f->Text15[0]->text(), u"9 90"_s);
}

TEST_F(ProvaAttività, MinutesWantAnActivityFirst) {
  Dialogo d({{u"Scegliere prima il tipo di attività fisica"_s, {}}});
  scegli(f->Combo14[3], 4);
  EXPECT_EQ(f->Combo14[3]->currentIndex(), -1);
  EXPECT_EQ(f->focusWidget(), f->Combo13);
  EXPECT_EQ(giorno(3), solo_razione);
}

TEST_F(ProvaAttività, AStepOnAMealKeepsTheSumAtOneHundredAndADinnerWithNothingLeftIsRed) {
  const std::pair<QPushButton*, QString> passi[]{
      {f->CmdDOWN[0], u"11 37 7 38 7"_s},
      {f->CmdUP[1], u"11 38 7 37 7"_s},
      {f->CmdUP[4], u"11 37 7 37 8"_s},
      {f->CmdUP[3], u"11 37 7 37 8"_s},  // dinner is what the others leave
  };
  for (const auto& [pulsante, attese] : passi) {
    clic(pulsante);
    EXPECT_EQ(percentuali(), attese) << pulsante->objectName().toStdString();
  }
  EXPECT_EQ(barre(), (QList<double>{11, 8, 37, 7, 37})) << "the meals of the chart stand in the order of the day";
  EXPECT_EQ(colore_cena(), QColor(Qt::white));
  const std::tuple<int, QPushButton*, QString, QString, QColor> lunghi[]{
      {1, f->CmdUP[1], u"100"_s, u"100"_s, Qt::white},
      {1, f->CmdUP[1], u"73"_s, u"74"_s, Qt::red},
      {1, f->CmdUP[1], u"74"_s, u"75"_s, Qt::red},
      {1, f->CmdDOWN[1], u"74"_s, u"73"_s, Qt::white},
      {0, f->CmdDOWN[0], u"0"_s, u"0"_s, Qt::white}};
  for (const auto& [pasto, pulsante, da, a, colore] : lunghi) {
    QLineEdit* campo = f->Txt[static_cast<std::size_t>(pasto)];
    campo->setText(da);
    clic(pulsante);
    EXPECT_EQ(campo->text(), a);
    EXPECT_EQ(colore_cena(), colore) << a.toStdString();
  }
}

TEST_F(ProvaAttività, TextThatIsNoNumberBecomesZero) {
  for (const QString& tasti : {u"x"_s, u"-"_s, u"'"_s}) {
    f->Txt[2]->selectAll();
    QTest::keyClicks(f->Txt[2], tasti);
    EXPECT_EQ(f->Txt[2]->text() + f->Txt[2]->selectedText(), u"00"_s) << tasti.toStdString();
  }
}

TEST_F(ProvaAttività, TheDiaryOrTheDefaultsAreTaken) {
  salva_righe(dati_tmp(), u"diario"_s,
              {{{u"colazione"_s, 15.0}, {u"spuntino"_s, 5.5}, {u"pranzo"_s, 42}, {u"merenda"_s, 4}, {u"cena"_s, 33}}});
  apri();
  EXPECT_EQ(percentuali(), u"12 37 7 37 7"_s);
  clic(f->CmdUtilizza[0]);
  EXPECT_EQ(percentuali(), u"15 42 4 33 5,5"_s);
  apri();
  EXPECT_EQ(percentuali(), u"15 42 4 33 6"_s) << "stored in whole numbers";
  clic(f->CmdUtilizza[1]);
  EXPECT_EQ(percentuali(), u"12 37 7 37 7"_s);
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
  for (const auto& [nome, atteso] : {std::pair{u"attivitàgg"_s, u"-1,8,-1,-1,-1,-1,-1,"_s},
                                     {u"minuti"_s, u"-1+4+-1+-1+0+-1+-1+"_s},
                                     {u"calorie_totali"_s, u"1800+2220+1800+1800+1800+1800+1800+"_s},
                                     {u"glucidi"_s, u"972+1199+972+972+972+972+972+"_s}}) {
    EXPECT_EQ(sport.value(nome), atteso);
  }
  EXPECT_EQ(consumi.value(u"cena"_s), 38);
  apri();
  EXPECT_EQ(f->Combo14[1]->toolTip(), u"Calcio"_s);
  apri();
  EXPECT_EQ(riga(u"sport"_s), sport);
  EXPECT_EQ(riga(u"consumi"_s), consumi);
}

TEST_F(ProvaAttività, AReloadCountsAllMinutesWithTheLastActivityAndPassesOverWhatItCannotRestore) {
  const auto ricarica = [this](const QString& attività, const QString& minuti, const QString& kcal) {
    scarica<Formattività>();
    salva_riga(dati_tmp(), u"sport"_s, {{u"attivitàgg"_s, attività}, {u"minuti"_s, minuti}});
    razione(kcal);
    apri();
    return testi(f->Text15) + u" / "_s + f->Combo13->currentText();
  };
  EXPECT_EQ(ricarica(u"8,-1,9,-1,"_s, u"2+0+2+"_s, u"1800"_s), u"90  90     / Camminare 1 normalmente (3,2 Km/h) "_s);
  EXPECT_EQ(ricarica(u"8,99,x',,40000,-7,-1,3,"_s, u"4+11+x+-1+1+"_s, u"32700"_s), u"420    105   / Calcio"_s);
  EXPECT_EQ(f->Text14[0]->text(), u"32700"_s) << "a sum beyond 16 bits leaves the ration";
  razione(u"molte"_s);
  apri();
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
