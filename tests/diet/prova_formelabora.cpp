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

struct ProvaElabora : AmbienteDi<Formelabora> {
  /// The sample client on stage 8, and a first week of two foods on Tuesday: lunch and dinner.
  void SetUp() override {
    motore() = {};
    caso_in_uso() = caso_con_seme(11);
    cod = registra(cliente("1900_ferri"));
    ASSERT_TRUE(apri_elaborazione(cod));
    f = caricata<Formelabora>();
    ASSERT_NE(f, nullptr);
    motore().menu(1, 1, 2, 0) = voce(8, u"Tacchino"_s, 200, 120, 30, 50, 100);
    motore().menu(1, 1, 2, 1) = voce(15, u"Mela"_s, 50, 2, 1, 47, 120);
    motore().menu(1, 1, 4, 0) = voce(11, u"Orata"_s, 150, 100, 50, 3, 150);
  }

  void giorno(int riga) { clic(f->List1, riga); }
  void pasto(std::size_t quale) { clic(f->Option1[quale]); }
  [[nodiscard]] QString valori(std::size_t da, std::size_t a) const {
    return testi(std::span(f->Text4).subspan(da, a - da + 1));
  }
  void mostra_pranzo_di_martedi() {
    scegli(f->Combo1, 0);
    giorno(1);
    pasto(2);
  }
  int cod = 0;
};

const QString vuoti(3, u' ');

}  // namespace

TEST_F(ProvaElabora, ADayAndAMealShowIdealAndElaboratedValues) {
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"8"_s);
  EXPECT_TRUE(!f->test->isEnabled() && f->ProgressBar1->isHidden() && f->Picmemo->isHidden());
  giorno(1);
  EXPECT_EQ(valori(0, 3), vuoti) << "a day without a week shows nothing";
  scegli(f->Combo1, 2);
  EXPECT_EQ(f->test->text(), u"Elaborazione DIETA\n3° settimana"_s);
  EXPECT_TRUE(f->test->isEnabled() && motore().settimana_corrente == 3);
  scegli(f->Combo1, 0);
  giorno(1);
  EXPECT_EQ(valori(0, 7), u"2048 318 626 1104 100 15,53 30,57 53,9"_s) << "the last share is not formatted";
  EXPECT_EQ(valori(8, 15), u"400 222 81 100 100 55,50 20,25 25,00"_s);
  EXPECT_EQ(valori(16, 19), vuoti) << "no meal is chosen yet";
  pasto(2);
  EXPECT_EQ(f->Text1[0]->text() + f->Text2[1]->text(), u"Tacchino120"_s);
  EXPECT_EQ(valori(16, 23), u"250 122 31 97 100 48,80 12,40 38,80"_s);
  giorno(0);
  EXPECT_EQ(valori(8, 11), vuoti) << "a day without an accepted meal";
  EXPECT_EQ(valori(16, 23) + f->Text1[0]->text(), u"0 0 0 0 100 0 0 0"_s);
  scegli(f->Combo1, 1);
  EXPECT_EQ(f->List1->currentRow(), -1) << "a new week asks for the day again";
  EXPECT_EQ(valori(0, 3), vuoti);
}

TEST_F(ProvaElabora, GramsAreChangedOneAPress) {
  mostra_pranzo_di_martedi();
  clic(f->Command1);
  EXPECT_EQ(f->Text2[0]->text(), u"100"_s) << "no food is chosen";
  QTest::mouseDClick(f->Text1[1], Qt::LeftButton);
  EXPECT_EQ(f->Labindex.text(), u"1"_s);
  for (int i = 0; i < 12; ++i) clic(f->Command3);
  EXPECT_EQ(f->Text2[1]->text(), u"108"_s);
  EXPECT_EQ(motore().menu(1, 1, 2, 1).quant_mod, u"108"_s);
  EXPECT_EQ(f->Text4[16]->text(), u"245"_s) << "50 x 108 / 120 more";
  EXPECT_EQ(f->Text4[8]->text(), u"400"_s) << "the refresh looks at the next week, which is empty";
  EXPECT_EQ(motore().settimana_corrente, 2);
  QTest::mouseDClick(f->Text1[9], Qt::LeftButton);
  clic(f->Command1);
  EXPECT_EQ(f->Text2[9]->text(), u""_s) << "an empty line has no grams";
  QTest::keyClick(f->Text1[0], Qt::Key_Down);
  QTest::keyClick(f->Text1[1], Qt::Key_Return);
  EXPECT_EQ(f->Labindex.text(), u"1"_s) << "the keyboard chooses too";
  pasto(2);
  EXPECT_EQ(f->Labindex.text(), u""_s);
  motore().menu(4, 1, 2, 0) = motore().menu(1, 1, 2, 0);
  scegli(f->Combo1, 3);
  giorno(1);
  QTest::mouseDClick(f->Text1[0], Qt::LeftButton);
  Fallimenti falliti;
  clic(f->Command1);
  EXPECT_EQ(falliti.numeri, std::vector{9}) << "there is no week after the fourth";
  EXPECT_EQ(motore().menu(4, 1, 2, 0).quant_mod, u"101"_s);
}

TEST_F(ProvaElabora, ChangesAreDiscardedOnYesAlone) {
  motore().menu(1, 1, 2, 0).quant_mod = u"90"_s;
  mostra_pranzo_di_martedi();
  EXPECT_EQ(f->Text2[0]->text(), u"90"_s);
  EXPECT_EQ(f->Text4[16]->text(), u"230"_s);
  const Atteso chiede{u"Sei sicuro di voler annullare tutte \nle modifiche apportate alla dieta ?"_s,
                      u"Orzaline 2003 control"_s, false};
  const Dialogo d({chiede, con_un_si(chiede), {u"Modifiche annullate !"_s, {}}});
  for (const auto& resta : {u"90"_s, u""_s}) {
    clic(f->Command5[1]);
    EXPECT_EQ(motore().menu(1, 1, 2, 0).quant_mod, resta);
  }
  EXPECT_EQ(f->Text1[0]->text(), u""_s);
}

TEST_F(ProvaElabora, AWeekIsElaboratedSavedAndReadBackOnce) {
  scegli(f->Combo1, 0);
  clic(f->test);
  EXPECT_TRUE(!f->Picmemo->isHidden() && f->Timer1->isActive() && f->ProgressBar1->isHidden());
  EXPECT_TRUE(f->Combo1->currentIndex() == -1 && !f->test->isEnabled());
  QString& pranzo = motore().menu(1, 3, 2, 0).descr;
  const QString servito = pranzo;
  ASSERT_FALSE(servito.isEmpty());
  const Dialogo d({{u"Dieta salvata"_s, u"Orzaline  control"_s},
                   {u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s},
                   {u"Il paziente è già presente in archivio.\n"
                    "Se si vuol salvare sovrascrivendo i dati, cliccare su SOVRASCRIVERE.\n"
                    "Se si vuol salvare con diverso codice, cliccare su NUOVO"_s,
                    u"Attenzione"_s, false},
                   caricata_prima});
  clic(f->Command5[0]);
  motore() = {};
  ASSERT_TRUE(apri_elaborazione(cod));
  EXPECT_EQ(pranzo, servito);
  pranzo = u"in memoria"_s;
  caricata<Formelabora>()->all_attivazione();
  EXPECT_EQ(pranzo, u"in memoria"_s) << "a second activation does not read again";
}

TEST_F(ProvaElabora, WithoutTotalsNothingRunsAndWithoutAWorkingCopyNothingIsSaved) {
  dati_tmp().esegui(u"DELETE FROM consumi"_s);
  scegli(f->Combo1, 0);
  Dialogo d({{u"Impossibile elaborare la dieta mancano i consumi giornalieri percentuali !"_s, u"ORZALINE 2003"_s}});
  clic(f->test);
  EXPECT_EQ(f->test->text(), u"Attendere prego ..."_s) << "the button keeps waiting";
  EXPECT_EQ(motore().menu(1, 1, 2, 0).descr, u"Tacchino"_s);
  elimina_dati_tmp();
  d.attendi({u"E' necessario salvare prima i dati anagrafici del cliente"_s, u"Orzaline  control"_s});
  d.attendi({u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s, false});
  clic(f->Command5[0]);
}
