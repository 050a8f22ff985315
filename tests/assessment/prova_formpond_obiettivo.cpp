// The second face of stage 5 as the practitioner works it: method, target, days, ration, grams of the nutrients.
#include "ambiente.h"
#include "assessment/formpond.h"
#include "intake/formanag.h"

using namespace Qt::StringLiterals;

namespace {

const QString sicurezza =
    u"ATTENZIONE: Avete raggiunto il livello calorico di sicurezza,\n"
    "sotto il quale conviene integrare con minerali e vitamine"_s;
const QString mancano = u"ATTENZIONE: Inserire i dati relativi alla scelta effettuata."_s;

/// A woman of 62 years, 152 cm, 58 kg, ideal weight 48; her stored plan is 52 kg in 103 days.
struct ProvaObiettivo : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();
  Formpond* f{};

  /// At another weight than the stored one the plan is not restored.
  void apri(const QString& peso = {}) {
    attiva_finestra();
    ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
    if (!peso.isEmpty()) caricata<Formanag>()->Txtpeso->setText(peso);
    m.cmdsopra[3]->click();
    f = caricata<Formpond>();
    ASSERT_TRUE(f);
  }
  [[nodiscard]] QString obiettivo() const { return testi(f->Text10); }
  [[nodiscard]] QString nutrienti() const {
    return testi(std::array{f->Txtprotg_Kg, f->Txtlipg_Kg}, u" | "_s) + u" | "_s + testi(f->Text13) + u" | "_s +
           testi(f->Text11) + u" | "_s + testi(f->Text12);
  }
  void scegli_figura(std::size_t metodo) const { clic(f->Image1[metodo]); }
  /// Holds a button until a field reads so, or until the timer stops by itself. False where it never ran.
  static bool tieni(QPushButton* tasto, QTimer* timer, QLineEdit* campo, const QString& fino_a) {
    const QObject finche;
    QObject::connect(campo, &QLineEdit::textChanged, &finche, [&](const QString& t) {
      if (t == fino_a) QTest::mouseRelease(tasto, Qt::LeftButton);
    });
    timer->setInterval(1);
    QTest::mousePress(tasto, Qt::LeftButton);
    const bool parte = timer->isActive();
    return QTest::qWaitFor([&] { return !timer->isActive(); }) && parte;
  }
};

}  // namespace

TEST_F(ProvaObiettivo, ThePlanComesBackAndEnterWorksItOutAnew) {
  apri();
  EXPECT_EQ(obiettivo(), u"1709 1303 406 58 103 6"_s);
  EXPECT_EQ(nutrienti(), u"1,20 | 1,00 | 57,6 48 160,3 | 230 432 641 | 17,65 33,15 49,2"_s);
  EXPECT_TRUE(f->Check4[5]->isChecked() && f->Option2[3]->isChecked());
  f->Text1[1]->setFocus();
  QTest::keyClick(f->Text1[1], Qt::Key_Return);
  EXPECT_TRUE(f->Frame_obiettivo->isVisible() && f->txtpesoragg->hasFocus());
  EXPECT_EQ(obiettivo(), u"1695 1289 406 58 103 6"_s);
  EXPECT_EQ(f->LabMETAB->text(), u"Consumo Kcal attuale (H. Benedict)"_s);
  EXPECT_EQ(testi(f->Text12), u"17,84 33,51 48,65"_s);
}

TEST_F(ProvaObiettivo, GramsSetByHandOutliveAChangeOfMethod) {
  apri(u"80"_s);
  scegli_figura(0);
  EXPECT_EQ(f->windowTitle() + f->txtpesoragg->text(), u"Obiettivo & Livello nutrienti72"_s);
  EXPECT_EQ(obiettivo(), u"1992 1432 560 80 100 8"_s);
  EXPECT_EQ(nutrienti(), u"1,30 | 0,95 | 83,2 60,8 138,3 | 332 547 553 | 23,18 38,20 38,62"_s);
  f->CmdSU[0]->click();
  f->CmdGIU[1]->click();
  EXPECT_EQ(f->LabPROT.text() + u' ' + f->LabLIP.text(), u"84,5 60,2"_s) << "back through 1,32 and 0,94 of 64 kg";
  f->Img_undo->click();
  EXPECT_FALSE(f->Frame_obiettivo->isVisible());
  scegli_figura(1);
  EXPECT_EQ(f->Text10[1]->text(), u"1429"_s);
  EXPECT_EQ(testi(f->Text13), u"84,5 60,2 137,5"_s);
}

TEST_F(ProvaObiettivo, ButtonsMoveTargetDaysAndRation) {
  apri();
  scegli_figura(0);
  clic(f->CmdSU2[0]);
  EXPECT_EQ(f->txtpesoragg->text() + u' ' + obiettivo(), u"53 1709 1366 343 49 103 5"_s);
  EXPECT_TRUE(tieni(f->CmdSU2[1], f->Timer2, f->Text10[4], u"120"_s));
  EXPECT_EQ(obiettivo(), u"1709 1415 294 42 120 5"_s);
  f->Text10[4]->setText(u"2"_s);
  EXPECT_TRUE(tieni(f->CmdSU2[2], f->Timer4, f->Text10[1], u"1450"_s));
  EXPECT_EQ(obiettivo(), u"1709 1450 259 37 135 5"_s);

  Dialogo d({{sicurezza, {}}});
  EXPECT_TRUE(tieni(f->CmdGIU2[2], f->Timer5, f->Text10[1], {}) && d.finito());
  EXPECT_EQ(obiettivo(), u"1709 1245 464 66 76 5"_s) << "written all the same";
  EXPECT_TRUE(tieni(f->CmdGIU2[2], f->Timer5, f->Text10[1], u"1200"_s)) << "told once";
  f->Img_undo->click();
  d.attendi({sicurezza, {}});
  f->ricalcola(u"sotto");

  f->Text10[4]->setText(u"0"_s);
  f->ricalcola(u"sopra");
  EXPECT_EQ(obiettivo(), u"1709 1200 509 73 0 5"_s);
  d.attendi(
      {u"ATTENZIONE:Siete arrivati ad un valore negativo,\ncontrollare nella scheda anagrafica l'inserimento dei "
       "livelli di costituzione e lavoro."_s,
       {}});
  f->Text10[1]->setText(u"1709"_s);
  f->ricalcola(u"sotto");
  EXPECT_EQ(obiettivo(), u"1709 1303 406 58 86 5"_s);

  f->txtpesoragg->setText(u"60"_s);
  EXPECT_EQ(f->Label31[5]->text() + f->Label31[3]->text() + f->Label31[2]->text() + f->Text10[5]->text(),
            u"Peso da aggiungere in KgGuadagno giornaliero in gr.Calorie/gg da aggiungere2"_s);
}

TEST_F(ProvaObiettivo, MissingAndSenselessFiguresAreTakenCalmly) {
  apri(u"80"_s);
  Dialogo d({{mancano, {}}, {mancano, {}}});
  const Fallimenti fallimenti;
  scegli_figura(2);
  EXPECT_TRUE(f->LabSCELTA->isVisible());
  f->Text2[0]->setText(u"0"_s);
  f->Text2[2]->setText(u"1500"_s);
  scegli_figura(2);
  EXPECT_TRUE(f->Frame_scelta->isVisible() && f->LabSCELTA->isHidden()) << "of a 0 only the face takes notice";

  scegli_figura(0);
  for (const QString& t : {u"'"_s, u""_s, u"99999"_s, u"-5"_s, u"99999999999999999999"_s, u"72,5"_s}) {
    for (QLineEdit* c : {f->txtpesoragg, f->Text10[4], f->Txtprotg_Kg, f->Text13[0], f->Text13[1]}) c->setText(t);
    clic(f->CmdSU2[0]);
    for (QPushButton* b : {f->CmdSU[0], f->CmdSU[1]}) b->click();
    f->calcola_kcal();
  }
  EXPECT_EQ(fallimenti.numeri, std::vector<int>{});
  m.Txtbmi->setText(u"22,0"_s);
  f->Lab_pesoid.setText(u"0"_s);
  f->CmdSU[1]->click();
  EXPECT_EQ(fallimenti.numeri, std::vector{11});
}
