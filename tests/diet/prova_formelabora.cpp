// Stage 8 as the practitioner uses it: choosing, elaborating, reading, changing grams, saving.
#include "ambiente.h"
#include "base/file.h"
#include "core/mdiorza.h"
#include "diet/formelabora.h"
#include "diet/voce.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso caricata_prima{
    u"La dieta precedentemente salvata è stata caricata !\n"
    "Cliccare su elaborazione dieta se si desidera elaborarne un'altra."_s,
    u"Orzaline 2003 control"_s};

class ProvaElabora : public Ambiente {
 protected:
  ProvaElabora() {
    motore() = {};
    caso_in_uso() = caso_con_seme(11);
  }

  /// The sample client on stage 8, and a first week of two foods on Tuesday: lunch and dinner.
  void SetUp() override {
    cod = registra(cliente("1900_ferri"));
    ASSERT_TRUE(apri_elaborazione(cod));
    f = caricata<Formelabora>();
    ASSERT_NE(f, nullptr);
    motore().menu(1, 1, 2, 0) = voce(8, u"Tacchino"_s, 200, 120, 30, 50, 100);
    motore().menu(1, 1, 2, 1) = voce(15, u"Mela"_s, 50, 2, 1, 47, 120);
    motore().menu(1, 1, 4, 0) = voce(11, u"Orata"_s, 150, 100, 50, 3, 150);
  }

  void giorno(int riga) {
    const QPoint dove = f->List1->visualItemRect(f->List1->item(riga)).center();
    QTest::mouseClick(f->List1->viewport(), Qt::LeftButton, {}, dove);
  }
  void pasto(std::size_t quale) { QTest::mouseClick(f->Option1[quale], Qt::LeftButton); }
  [[nodiscard]] QStringList valori(std::size_t da, std::size_t a) const {
    QStringList v;
    for (std::size_t i = da; i <= a; ++i) v << f->Text4[i]->text();
    return v;
  }
  void mostra_pranzo_di_martedi() {
    scegli(f->Combo1, 0);
    giorno(1);
    pasto(2);
  }
  int cod = 0;
  Formelabora* f{};
};

const QStringList vuoti{u""_s, u""_s, u""_s, u""_s};

}  // namespace

TEST_F(ProvaElabora, OpensWithNothingChosen) {
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"8"_s);
  EXPECT_FALSE(f->test->isEnabled());
  EXPECT_EQ(f->test->text(), u"Elaborazione DIETA"_s);
  EXPECT_TRUE(f->ProgressBar1->isHidden() && f->Picmemo->isHidden());
  scegli(f->Combo1, 2);
  EXPECT_EQ(f->test->text(), u"Elaborazione DIETA\n3° settimana"_s);
  EXPECT_TRUE(f->test->isEnabled());
  EXPECT_EQ(motore().settimana_corrente, 3);
}

TEST_F(ProvaElabora, ADayAndAMealShowIdealAndElaboratedValues) {
  giorno(1);
  EXPECT_EQ(valori(0, 3), vuoti) << "a day without a week shows nothing";
  scegli(f->Combo1, 0);
  giorno(1);
  EXPECT_EQ(valori(0, 3), (QStringList{u"2048"_s, u"318"_s, u"626"_s, u"1104"_s}));
  EXPECT_EQ(valori(4, 7), (QStringList{u"100"_s, u"15,53"_s, u"30,57"_s, u"53,9"_s}))
      << "the last share is not formatted";
  EXPECT_EQ(valori(8, 15),
            (QStringList{u"400"_s, u"222"_s, u"81"_s, u"100"_s, u"100"_s, u"55,50"_s, u"20,25"_s, u"25,00"_s}));
  EXPECT_EQ(valori(16, 19), vuoti) << "no meal is chosen yet";
  pasto(2);
  EXPECT_EQ(f->Text1[0]->text(), u"Tacchino"_s);
  EXPECT_EQ(f->Text2[1]->text(), u"120"_s);
  EXPECT_EQ(valori(16, 23),
            (QStringList{u"250"_s, u"122"_s, u"31"_s, u"97"_s, u"100"_s, u"48,80"_s, u"12,40"_s, u"38,80"_s}));
  giorno(0);
  EXPECT_EQ(valori(8, 11), vuoti) << "a day without an accepted meal";
  EXPECT_EQ(valori(16, 23), (QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s}));
  EXPECT_EQ(f->Text1[0]->text(), u""_s);
  scegli(f->Combo1, 1);
  EXPECT_EQ(f->List1->currentRow(), -1) << "a new week asks for the day again";
  EXPECT_EQ(valori(0, 3), vuoti);
}

TEST_F(ProvaElabora, GramsAreChangedOneAPress) {
  mostra_pranzo_di_martedi();
  QTest::mouseClick(f->Command1, Qt::LeftButton);
  EXPECT_EQ(f->Text2[0]->text(), u"100"_s) << "no food is chosen";
  QTest::mouseDClick(f->Text1[1], Qt::LeftButton);
  EXPECT_EQ(f->Labindex.text(), u"1"_s);
  for (int i = 0; i < 12; ++i) QTest::mouseClick(f->Command3, Qt::LeftButton);
  EXPECT_EQ(f->Text2[1]->text(), u"108"_s);
  EXPECT_EQ(motore().menu(1, 1, 2, 1).quant_mod, u"108"_s);
  EXPECT_EQ(f->Text4[16]->text(), u"245"_s) << "50 x 108 / 120 more";
  EXPECT_EQ(f->Text4[8]->text(), u"400"_s) << "the refresh looks at the next week, which is empty";
  EXPECT_EQ(motore().settimana_corrente, 2);
  QTest::mouseDClick(f->Text1[9], Qt::LeftButton);
  QTest::mouseClick(f->Command1, Qt::LeftButton);
  EXPECT_EQ(f->Text2[9]->text(), u""_s) << "an empty line has no grams";
  QTest::keyClick(f->Text1[0], Qt::Key_Down);
  QTest::keyClick(f->Text1[1], Qt::Key_Return);
  EXPECT_EQ(f->Labindex.text(), u"1"_s) << "the keyboard chooses too";
  pasto(2);
  EXPECT_EQ(f->Labindex.text(), u""_s);
}

TEST_F(ProvaElabora, AnEditInTheFourthWeekFailsAtTheRefresh) {
  motore().menu(4, 1, 2, 0) = voce(8, u"Tacchino"_s, 200, 120, 30, 50, 100);
  scegli(f->Combo1, 3);
  giorno(1);
  pasto(2);
  QTest::mouseDClick(f->Text1[0], Qt::LeftButton);
  Fallimenti falliti;
  QTest::mouseClick(f->Command1, Qt::LeftButton);
  EXPECT_EQ(falliti.numeri, std::vector{9});
  EXPECT_EQ(motore().menu(4, 1, 2, 0).quant_mod, u"101"_s);
}

TEST_F(ProvaElabora, ChangesAreDiscardedOnYesAlone) {
  motore().menu(1, 1, 2, 0).quant_mod = u"90"_s;
  mostra_pranzo_di_martedi();
  EXPECT_EQ(f->Text2[0]->text(), u"90"_s);
  const Atteso chiede{u"Sei sicuro di voler annullare tutte \nle modifiche apportate alla dieta ?"_s,
                      u"Orzaline 2003 control"_s, false};
  {
    Dialogo d({chiede});
    QTest::mouseClick(f->Command5[1], Qt::LeftButton);
    EXPECT_EQ(motore().menu(1, 1, 2, 0).quant_mod, u"90"_s);
  }
  Dialogo d({{chiede.testo, chiede.titolo, true}, {u"Modifiche annullate !"_s, {}}});
  QTest::mouseClick(f->Command5[1], Qt::LeftButton);
  EXPECT_EQ(motore().menu(1, 1, 2, 0).quant_mod, u""_s);
  EXPECT_EQ(f->Text1[0]->text(), u""_s);
}

TEST_F(ProvaElabora, AWeekIsElaboratedSavedAndReadBackOnce) {
  scegli(f->Combo1, 0);
  QTest::mouseClick(f->test, Qt::LeftButton);
  EXPECT_FALSE(f->Picmemo->isHidden());
  EXPECT_TRUE(f->Timer1->isActive());
  EXPECT_TRUE(f->ProgressBar1->isHidden());
  EXPECT_EQ(f->Combo1->currentIndex(), -1);
  EXPECT_FALSE(f->test->isEnabled());
  const QString pranzo = motore().menu(1, 3, 2, 0).descr;
  ASSERT_FALSE(pranzo.isEmpty());
  {
    Dialogo d({{u"Dieta salvata"_s, u"Orzaline  control"_s},
               {u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s},
               {u"Il paziente è già presente in archivio.\n"
                "Se si vuol salvare sovrascrivendo i dati, cliccare su SOVRASCRIVERE.\n"
                "Se si vuol salvare con diverso codice, cliccare su NUOVO"_s,
                u"Attenzione"_s, false}});
    QTest::mouseClick(f->Command5[0], Qt::LeftButton);
  }
  motore() = {};
  {
    Dialogo d({caricata_prima});
    ASSERT_TRUE(apri_elaborazione(cod));
  }
  EXPECT_EQ(motore().menu(1, 3, 2, 0).descr, pranzo);
  motore().menu(1, 3, 2, 0).descr = u"in memoria"_s;
  f = caricata<Formelabora>();
  f->all_attivazione();
  EXPECT_EQ(motore().menu(1, 3, 2, 0).descr, u"in memoria"_s) << "a second activation does not read again";
}

TEST_F(ProvaElabora, WithoutTotalsNothingRunsAndTheButtonKeepsWaiting) {
  Archivio(percorso(u"dati.tmp"_s)).esegui(u"DELETE FROM consumi"_s);
  scegli(f->Combo1, 0);
  Dialogo d({{u"Impossibile elaborare la dieta mancano i consumi giornalieri percentuali !"_s, u"ORZALINE 2003"_s}});
  QTest::mouseClick(f->test, Qt::LeftButton);
  EXPECT_EQ(f->test->text(), u"Attendere prego ..."_s);
  EXPECT_EQ(motore().menu(1, 1, 2, 0).descr, u"Tacchino"_s);
}

TEST_F(ProvaElabora, WithoutAWorkingCopyNothingIsSaved) {
  scarica<Formelabora>();
  elimina_dati_tmp();
  const Formelabora sola;
  Dialogo d({{u"E' necessario salvare prima i dati anagrafici del cliente"_s, u"Orzaline  control"_s},
             {u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s, false}});
  QTest::mouseClick(sola.Command5[0], Qt::LeftButton);
}
