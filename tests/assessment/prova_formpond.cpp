// The first face of stage 5: four estimates, skinfolds, scale of the index, choice of a method, and what is kept.
#include "assessment/formpond.h"

#include "ambiente.h"
#include "assessment/formattivita.h"
#include "assessment/formbmi.h"
#include "core/sezioni.h"
#include "intake/formanag.h"

using namespace Qt::StringLiterals;

namespace {

struct Persona {
  QString sesso, anni, peso, statura;
  int costituzione = 0, lavoro = 2;
};

struct ProvaPonderale : AmbienteDi<Formpond> {
  void SetUp() override { attiva_finestra(); }
  static void scheda(const Persona& p) {
    Formanag& a = schermata<Formanag>();
    a.Combosesso->setCurrentIndex(a.Combosesso->findText(p.sesso));
    a.Txtanni->setText(p.anni);
    a.Txtpeso->setText(p.peso);
    a.Txtalt->setText(p.statura);
    a.Combocost->setCurrentIndex(p.costituzione);
    a.Combolav->setCurrentIndex(p.lavoro);
  }
  void apri(const Persona& p) {
    scarica<Formpond>();
    scheda(p);
    elimina_dati_tmp();
    AmbienteDi::apri();
  }
  void pliche(const QString& mm) const {
    for (std::size_t i = 0; i < 4; ++i) f->Text5[i]->setText(mm.split(u' ')[static_cast<qsizetype>(i)]);
  }
  /// The methods whose label stands in bold.
  [[nodiscard]] QList<std::size_t> in_grassetto() const {
    QList<std::size_t> l;
    for (std::size_t i = 0; i < f->Text1.size(); ++i) {
      if (f->Text1[i]->font().bold()) l << i;
    }
    return l;
  }
};

const Persona uomo{u"M"_s, u"30"_s, u"75"_s, u"175"_s};

}  // namespace

TEST_F(ProvaPonderale, TheTwoPanelsFollowTheMasterData) {
  struct Caso {
    Persona persona;
    const char *larn, *larn_ideale, *hb, *hb_ideale;
  };
  const Caso casi[]{{{u"F"_s, u"34"_s, u"72"_s, u"170"_s, 0},
                     "72 24,9 1455 1746",
                     "56 19,7 1316 1579",
                     "72 24,9 1509 1810",
                     "56 19,7 1356 1627"},
                    {{u"M"_s, u"45"_s, u"80"_s, u"178"_s, 2, 4},
                     "80 25,2 1807 2891",
                     "74 23,5 1737 2779",
                     "80 25,2 1732 2771",
                     "74 23,5 1651 2641"},
                    {{u"M"_s, u"12"_s, u"40"_s, u"150"_s, 1},
                     "40 17,8 1358 1901",
                     "49 22 1517 2123",
                     "40 17,8 1438 2013",
                     "49 22 1717 2403"}};
  for (const Caso& c : casi) {
    apri(c.persona);
    EXPECT_EQ(testi(f->Text8), QString::fromLatin1(c.larn));
    EXPECT_EQ(testi(f->Text9), QString::fromLatin1(c.larn_ideale));
    EXPECT_EQ(testi(f->Text3), QString::fromLatin1(c.hb));
    EXPECT_EQ(testi(f->Text4), QString::fromLatin1(c.hb_ideale));
    EXPECT_EQ(testi(f->Text7), u" %1 %2  "_s.arg(f->Text8[0]->text(), f->Text8[1]->text()));
  }
}

TEST_F(ProvaPonderale, WithoutOneOfTheDataThePanelsStayEmpty) {
  const Persona casi[]{
      {{}, u"30"_s, u"75"_s, u"175"_s},         {u"M"_s, {}, u"75"_s, u"175"_s},
      {u"M"_s, u"30"_s, {}, u"175"_s},          {u"M"_s, u"30"_s, u"75"_s, {}},
      {u"M"_s, u"30"_s, u"75"_s, u"175"_s, -1}, {u"M"_s, u"30"_s, u"75"_s, u"175"_s, 0, -1},
      {u"M"_s, u"30"_s, u"l'a"_s, u"175"_s},    {u"M"_s, u"30"_s, u"75"_s, u"99999"_s},
      {u"M"_s, u"99999"_s, u"75"_s, u"-"_s},
  };
  for (const Persona& p : casi) {
    apri(p);
    for (const auto* colonna : {&f->Text8, &f->Text9, &f->Text3, &f->Text4}) {
      EXPECT_EQ(testi(*colonna).trimmed(), u""_s) << qPrintable(p.peso + u' ' + p.statura);
    }
  }
}

TEST_F(ProvaPonderale, SkinfoldsGiveFatAndIdealWeight) {
  const Persona ragazza{u"F"_s, u"14"_s, u"50"_s, u"160"_s};
  const std::tuple<Persona, QString, QString, QString> casi[]{
      {uomo, u"10 12 15 18"_s, u"55 75 24,5 1833 3226"_s, u"30 67 21,9 1656 2914"_s},
      {uomo, u"10,9 12 15 18,9"_s, u"55 75 24,5 1833 3226"_s, u"30 67 21,9 1656 2914"_s},
      {ragazza, u"9 9 9 9"_s, u"36 50 19,5 1287 2265"_s, u" 50 19,5 1362 2397"_s},
  };
  for (const auto& [p, mm, attuale, ideale] : casi) {
    apri(p);
    pliche(mm);
    EXPECT_EQ(f->Text7[4]->text() + f->Text6[4]->text(), u""_s) << "the requirement waits for the stress";
    scegli(f->Combo1, 1);
    EXPECT_EQ(testi(f->Text7), attuale);
    EXPECT_EQ(testi(f->Text6), ideale);
  }
  apri(uomo);
  const Dialogo d(
      {{u"ERRORE: Ricontrollare i valori delle pliche\n"
        "I valori attualmente inseriti sono fuori dal limite di calcolo"_s,
        {}}});
  pliche(u"99 99 10 10"_s);
  EXPECT_EQ(testi(f->Text6), u"30 0 0,0 879 "_s);
  f->Text7[3]->setText(u"1800"_s);
  for (const auto& [lavoro, stress, attesa] : {std::tuple{1, 0, u"2519"_s}, {-1, 2, u"0"_s}}) {
    schermata<Formanag>().Combolav->setCurrentIndex(lavoro);
    scegli(f->Combo1, stress);
    EXPECT_EQ(f->Text7[4]->text(), attesa) << "1.4 is a single";
  }
}

TEST_F(ProvaPonderale, TheArmTellsTheStateOfTheMuscle) {
  const std::tuple<QString, QString, QString, QString> passi[]{
      {u"M"_s, u"15"_s, u"1,20"_s, {}},
      {u"M"_s, u"22"_s, u"18,32"_s, u"Scarso"_s},
      {u"M"_s, u"30"_s, u"47,44"_s, u"Normale"_s},
      {u"F"_s, u"30"_s, u"50,94"_s, u"Notevole"_s},
      {u"F"_s, u"32,15"_s, u"60,50"_s, u"Notevole"_s},  // 60 exactly is in no row
      {u"F"_s, u"33"_s, u"64,49"_s, u"Eccellente"_s},
      {{}, u"20"_s, u"64,49"_s, u"Eccellente"_s},
  };
  apri(uomo);
  for (const std::size_t i : {0U, 1U}) f->Text5[i]->setText(u"10"_s);
  Formanag& a = schermata<Formanag>();
  for (const auto& [sesso, braccio, area, stato] : passi) {
    a.Combosesso->setCurrentIndex(a.Combosesso->findText(sesso));
    f->Text5[4]->clear();
    f->Text5[4]->setText(braccio);
    EXPECT_EQ(f->Text5[5]->text() + u' ' + f->Text5[6]->text(), area + u' ' + stato);
  }
  riscrivi(f->Text5[0], u"1x2,'"_s);
  EXPECT_EQ(f->Text5[0]->text(), u"12"_s);
}

TEST_F(ProvaPonderale, TheAnalyserNeedsOnlyItsTwoFigures) {
  apri({u"F"_s, u"34"_s, u"72"_s, u"170"_s, 1});
  f->Text2[0]->setText(u"60"_s);
  f->Text2[2]->setText(u"1401"_s);
  EXPECT_EQ(testi(f->Text2), u"60 20,8 1401 1961"_s);
  for (const QString& t : {u"9999999"_s, u"'"_s, u""_s}) f->Text2[2]->setText(t);
  EXPECT_EQ(f->Text2[3]->text(), u"1961"_s);
}

TEST_F(ProvaPonderale, TheScaleClimbsToTheMiddleOfTheClass) {
  apri(uomo);
  f->Timer1->setInterval(0);
  for (const auto& [indice, meta] : {std::pair{u"17,4"_s, 7}, {u"17,5"_s, 1}, {u"34,9"_s, 77}, {u""_s, 1}}) {
    f->Text8[1]->setText(indice);
    f->avvia_scala();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !f->Timer1->isActive(); }));
    EXPECT_EQ(f->ProgressBar1->value(), meta) << qPrintable(indice);
  }
}

TEST_F(ProvaPonderale, TheIndexIsExplained) {
  apri({u"F"_s, u"62"_s, u"58"_s, u"152"_s});
  for (const auto& [statura, conto] :
       {std::pair{u"152"_s, u"58 58 1,52 2,3104 2,3104 25,10"_s}, {u"0"_s, u"     "_s}}) {
    schermata<Formanag>().Txtalt->setText(statura);
    f->Command2->click();
    const auto* b = caricata<Formbmi>();
    EXPECT_EQ(
        testi(std::array{b->Txtpeso[0], b->Txtpeso[1], b->Txtalt, b->txtaltquadr[0], b->txtaltquadr[1], b->Txtbmi}),
        conto);
    b->Command1->click();
    EXPECT_FALSE(caricata<Formbmi>());
  }
}

TEST_F(ProvaPonderale, AMethodIsChosenAndLeft) {
  QString guida;
  esterno().apri_documento = [&](const QString& file) { return guida = QFileInfo(file).baseName(), true; };
  for (const auto& nome : {u"help/05_Guida_Antropo.doc"_s, u"help/05_Guida_Antropo_2.doc"_s}) {
    scrivi(percorso(nome), "guida");
  }
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  m.cmdsopra[3]->click();
  f = caricata<Formpond>();
  EXPECT_EQ(m.qualeform.text() + f->windowTitle(), u"5Dati Ponderali & Antropometrici"_s);
  EXPECT_TRUE(f->Text1[0]->hasFocus()) << "the stored method";
  f->Text1[2]->setFocus();
  EXPECT_EQ(in_grassetto(), QList<std::size_t>{2});
  m.menuaiuto->trigger();
  EXPECT_EQ(guida, u"05_Guida_Antropo"_s);
  clic(f->Image1[1]);
  EXPECT_EQ(in_grassetto(), QList<std::size_t>{1});
  EXPECT_TRUE(f->Frame12->isVisible() && !f->Frame_larn->isVisible());
  m.menuaiuto->trigger();
  EXPECT_EQ(guida, u"05_Guida_Antropo_2"_s);
  f->Img_undo->click();
  EXPECT_TRUE(f->Text1[1]->hasFocus() && f->LabSCELTA->isVisible() && !f->Img_undo->isVisible());
}

TEST_F(ProvaPonderale, TheStageIsKeptAndThePlanOnlyAtTheSameWeight) {
  Dialogo d;
  ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
  const auto vai = [&](std::size_t pulsante) {
    m.cmdsopra[pulsante]->click();
    f = caricata<Formpond>();
  };
  const auto riga = [] { return carica_riga(dati_tmp(), u"dietologica"_s); };
  apri_dati_tmp(Scopo::caricare);
  const QVariantMap prima = riga();
  vai(3);
  vai(1);
  EXPECT_EQ(riga(), prima) << "a look changes nothing";
  vai(3);
  EXPECT_EQ(f->Lab_scelta.text() + f->Lab_metab.text() + u' ' + f->Lab_pesoid.text(), u"1709 48"_s);
  f->Text2[0]->setText(u"49"_s);
  f->Text2[2]->setText(u"1300"_s);
  pliche(u"10 12 15 18"_s);
  f->Combo1->setCurrentIndex(1);
  d.attendi(
      {u"ATTENZIONE: Avete raggiunto il livello calorico di sicurezza,\n"
       "sotto il quale conviene integrare con minerali e vitamine"_s,
       {}});
  f->Image1[2]->click();
  EXPECT_EQ(f->Lab_metab.text(), u"1300"_s);
  const QString grammi = f->Text13[0]->text();
  vai(1);
  QString dopo;
  for (const auto& nome : u"peso_bfa met_bfa stress pliche scelta kcal pesoid peso_ragg"_s.split(u' ')) {
    dopo += riga()[nome].toString() + u' ';
  }
  EXPECT_EQ(dopo, u"49 1300 1 10+12+15+18++ 2 1300 49 52 "_s);
  vai(3);
  EXPECT_EQ(in_grassetto(), QList<std::size_t>{2});
  EXPECT_EQ(f->Lab_metab.text(), f->Text2[3]->text()) << "the load takes the requirement";
  EXPECT_EQ(f->Lab_txtpesoragg.text() + u' ' + f->LabPROT.text(), u"52 "_s + grammi);
  EXPECT_NE(f->Text7[4]->text(), u""_s);
  f->Text2[0]->clear();
  vai(1);
  EXPECT_EQ(riga()[u"peso_bfa"_s], u"49"_s) << "a cleared number keeps what is stored";
  caricata<Formanag>()->Txtpeso->setText(u"60"_s);
  vai(3);
  EXPECT_EQ(f->Lab_txtpesoragg.text() + f->Lab_giornimodificati.text() + f->LabPROT.text() + f->LabLIP.text(), u""_s);
  EXPECT_EQ(in_grassetto(), QList<std::size_t>{2});
}

TEST_F(ProvaPonderale, WhoLeavesFromTheStageLeavesNothingLoaded) {
  const int ferri = registra(cliente("1900_ferri"));
  ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
  for (const std::size_t pulsante : {15U, 3U}) m.cmdsopra[pulsante]->click();
  caricata<Formpond>()->Text5[4]->setFocus();  // leaving it reads the master data
  m.cmdsopra[0]->click();
  EXPECT_FALSE(caricata<Formanag>() || caricata<Formpond>() || caricata<Formattività>() || esiste_dati_tmp());
  ASSERT_TRUE(richiama(ferri));
  m.cmdsopra[3]->click();
  EXPECT_EQ(m.LabPesoOld.text() + u' ' + caricata<Formpond>()->Text8[0]->text(), u"74 74"_s);
}
