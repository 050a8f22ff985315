// Stage 9 and its supplements as the practitioner uses them.
#include "diary/formdiario.h"

#include "ambiente.h"
#include "core/sezioni.h"
#include "diary/famiglie.h"
#include "diary/formintegrat.h"

using namespace Qt::StringLiterals;

namespace {

enum { col_nome = 4, col_dose, col_kcal };
enum { cola, spuntino, pranzo, merenda, cena };

struct ProvaFormdiario : AmbienteDi<Formdiario> {
  void SetUp() override {
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
    scarica_schede();
    apri();
  }
  void famiglia(int pasto, int gruppo, int quale) {
    clic(f->ListPASTI, pasto);
    if (gruppo >= 0) clic(f->ListGRUPPI, gruppo);
    clic(f->ListAlimenti, quale);
  }
  void dose(int riga, const QString& grammi) {
    clic(f->MSFlex1, riga, col_nome);
    scegli(f->Combodose, f->Combodose->findText(grammi));
  }
  [[nodiscard]] QString cella(int riga, int colonna) const { return f->MSFlex1->item(riga, colonna)->text(); }
  /// Carbohydrate, fat, protein and energy of a meal, or of the day.
  [[nodiscard]] QString livelli(int blocco) const {
    return testi(std::span(f->TxtLivelli).subspan(static_cast<std::size_t>(blocco) * 4, 4));
  }
  [[nodiscard]] QString kcal(int blocco) const { return livelli(blocco).section(u' ', 3); }
  [[nodiscard]] QString quote() const { return testi(f->TxtRAG); }
  [[nodiscard]] static QString voci(const QListWidget* lista) {
    QStringList v;
    for (int i = 0; i < lista->count(); ++i) v << lista->item(i)->text();
    return v.join(u", "_s);
  }
  /// The stored doses of a meal, food by food.
  static QString dosi(int pasto) {
    return righe_di(dati_tmp(), u"SELECT cod1, dose FROM scelte_diario WHERE pasto = %1 ORDER BY cod2"_s.arg(pasto));
  }
  /// Fills the open window: name, protein, fat, carbohydrate, grams a day.
  static Formintegrat& integratore(const QStringList& valori) {
    auto& w = schermata<Formintegrat>();
    const std::size_t caselle[]{0, 2, 3, 4, 5};
    for (qsizetype i = 0; i < valori.size(); ++i) riscrivi(w.Text1[caselle[i]], valori[i]);
    return w;
  }
  static QString righe(const QString& tabella) {
    return righe_di(dati_tmp(), u"SELECT Descrizione, quantità, calorie FROM "_s + tabella);
  }
};

const QString nulla = u"0,00 0,00 0,00 0"_s;

}  // namespace

TEST_F(ProvaFormdiario, OpensWithWhatIsStored) {
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"9"_s);
  for (int blocco = 0; blocco < 6; ++blocco) EXPECT_EQ(livelli(blocco), nulla);
  EXPECT_EQ(quote(), u"    "_s);
  EXPECT_TRUE(f->Combodose->isHidden());
  salva_riga(dati_tmp(), u"scelte_diario"_s, {{u"pasto"_s, 4}, {u"cod1"_s, 8}, {u"cod2"_s, 1}, {u"dose"_s, 100}});
  apri();
  EXPECT_EQ(kcal(cena), kcal(5));
  EXPECT_EQ(quote(), u"0 0 0 0 100"_s);
}

TEST_F(ProvaFormdiario, MealGroupAndFamilyLeadToTheFoods) {
  clic(f->ListPASTI, cola);
  EXPECT_TRUE(voci(f->ListAlimenti).contains(u"Fuori casa"_s) && f->ListGRUPPI->count() == 0);
  famiglia(cena, 0, 4);
  EXPECT_EQ(f->trova_cod1(), 12);
  const auto cibi = alimenti_diario(12);
  EXPECT_EQ(cella(0, 0) + cella(0, 1) + cella(0, col_nome), u"121"_s + cibi.front().descrizione);
  EXPECT_EQ(f->MSFlex1->rowCount(), std::ranges::count_if(cibi, [](const Alimento& a) { return a.quantita != 0; }));
  QTest::keyClick(f->ListAlimenti, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(f->trova_cod1(), 12) << "foods on the grid always have their family";
  QTest::mouseClick(f->ListAlimenti->viewport(), Qt::RightButton, {},
                    f->ListAlimenti->visualItemRect(f->ListAlimenti->item(0)).center());
  EXPECT_EQ(cella(0, 0).toInt(), f->trova_cod1()) << "whichever button chose it";
  clic(f->ListGRUPPI, 3);
  EXPECT_EQ(voci(f->ListAlimenti), u"Latticini, Formaggi, Uova di gallina"_s);
  EXPECT_TRUE(f->MSFlex1->rowCount() == 0 && f->trova_cod1() == 0) << "no family is chosen";
  QTest::mouseClick(f->MSFlex1->viewport(), Qt::LeftButton, {}, {50, 10});
  EXPECT_TRUE(f->Combodose->isHidden()) << "there is no food to give a dose";
}

TEST_F(ProvaFormdiario, APickedDoseIsStoredAtOnceForThatMeal) {
  famiglia(spuntino, -1, 0);
  dose(1, u"120"_s);
  EXPECT_TRUE(f->Combodose->isHidden());
  EXPECT_EQ(f->MSFlex1->currentRow(), 1);
  const QString altre = u"|6 "_s.repeated(f->MSFlex1->rowCount() - 2);
  EXPECT_EQ(dosi(spuntino), u"6 |6 120"_s + altre) << "every food of the family has its row";
  EXPECT_NE(livelli(spuntino), nulla);
  EXPECT_EQ(kcal(spuntino), kcal(5));
  EXPECT_EQ(quote(), u"0 100 0 0 0"_s);
  famiglia(merenda, -1, 0);
  EXPECT_EQ(cella(1, col_dose), u""_s) << "the same family at another meal";
  dose(0, u"50"_s);
  famiglia(spuntino, -1, 0);
  EXPECT_EQ(cella(1, col_dose), u"120"_s);
  dose(1, u"0"_s);
  EXPECT_EQ(cella(1, col_dose) + dosi(spuntino), u"6 |6 "_s + altre);
  famiglia(merenda, -1, 0);
  dose(0, u"0"_s);
  EXPECT_EQ(livelli(5), nulla);
  EXPECT_EQ(quote(), u"0 0 0 100 0"_s) << "a day without energy keeps the former shares";
}

TEST_F(ProvaFormdiario, TheSharesAreStoredAllFiveOrNone) {
  famiglia(cola, -1, 0);
  dose(0, u"200"_s);
  famiglia(pranzo, 0, 0);
  dose(0, u"100"_s);
  const QString scritte = quote();
  scarica<Formdiario>();
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"-1"_s);
  EXPECT_EQ(campo(u"diario"_s, u"pranzo"_s).toString(), scritte.section(u' ', 2, 2));
  EXPECT_EQ(carica_riga(dati_tmp(), u"diario"_s).size(), 5);
  apri();
  EXPECT_EQ(quote(), scritte);
  f->TxtRAG[2]->clear();
  scarica<Formdiario>();
  EXPECT_TRUE(carica_righe(dati_tmp(), u"diario"_s).empty());
}

TEST_F(ProvaFormdiario, DosesAreGivenByKeyboardAloneAndOnlyAnOpenListPicks) {
  attiva_finestra();
  famiglia(pranzo, 1, 0);
  clic(f->MSFlex1, 4, col_nome);
  QTest::keyClick(f->Combodose, Qt::Key_Down);
  EXPECT_EQ(f->Combodose->currentIndex(), -1) << "the arrow opens the list and picks nothing";
  EXPECT_TRUE(f->Combodose->view()->isVisible());
  QTest::keyClick(f->Combodose->view(), Qt::Key_Escape);
  QTest::keyClick(f->Combodose, Qt::Key_Escape);
  EXPECT_TRUE(f->Combodose->isHidden());
  EXPECT_EQ(dosi(pranzo), QString());
  f->MSFlex1->selectRow(0);
  f->MSFlex1->setFocus(Qt::TabFocusReason);
  QTest::keyClick(f->MSFlex1, Qt::Key_Down);
  QTest::keyClick(f->MSFlex1, Qt::Key_Return);
  QTest::keyClick(f->Combodose->view(), Qt::Key_Down);
  QTest::keyClick(f->Combodose->view(), Qt::Key_Return);
  EXPECT_EQ(cella(1, col_dose), u"10"_s);
  EXPECT_EQ(QApplication::focusWidget(), f->MSFlex1);
  QTest::keyClick(f->MSFlex1, Qt::Key_Down);
  EXPECT_EQ(f->MSFlex1->currentRow(), 2) << "and on to the next food";
}

TEST_F(ProvaFormdiario, SupplementsOfTheDiaryCountAtLunch) {
  clic(f->ListPASTI, pranzo);
  clic(f->ListGRUPPI, gruppo_integratori);
  ASSERT_NE(caricata<Formintegrat>(), nullptr) << "there is none: the window opens";
  EXPECT_EQ(caricata<Formintegrat>()->Form_loader.text(), u"1"_s);
  auto& w = integratore({u"polvere d'orzo"_s, u"10"_s, u"2,5"_s, u"20"_s, u"50"_s});
  EXPECT_EQ(w.Text1[1]->text(), u"142,5"_s);
  QTest::keyClicks(w.Text1[1], u"9"_s);
  EXPECT_EQ(w.Text1[1]->text(), u"142,5"_s) << "the energy follows the nutrients";
  w.Command1[0]->click();
  EXPECT_EQ(caricata<Formintegrat>(), nullptr);
  EXPECT_EQ(livelli(pranzo), u"10,00 1,30 5,00 71"_s);
  EXPECT_EQ(voci(f->ListAlimenti), u"polvere d'orzo"_s);
  clic(f->ListAlimenti, 0);
  ASSERT_NE(caricata<Formintegrat>(), nullptr);
  EXPECT_EQ(caricata<Formintegrat>()->Text1[0]->text(), u"polvere d'orzo"_s);
  integratore({u"polvere d'orzo"_s, u"10"_s, u"0"_s, u"0"_s, u"50"_s}).Command1[0]->click();
  EXPECT_EQ(righe(u"Integratore_diario"_s), u"polvere d'orzo 50 40"_s);
}

TEST_F(ProvaFormdiario, ValuesThatDoNotFitAreRefusedAndDeletionIsTheDietsAlone) {
  int rifatta = 0;
  const auto dopo = [&] { ++rifatta; };
  apri_integratore(u"0"_s, {u"O'Hara"_s, u"20"_s, u"400"_s, u"80"_s, u"8"_s, u"2"_s}, dopo);
  caricata<Formintegrat>()->Command1[0]->click();
  EXPECT_EQ(righe(u"Integratore_dieta"_s), u"O'Hara 20 400"_s);
  const Dialogo d({{u"Attenzione: Valori inseriti imcompatibili !"_s, {}}});
  apri_integratore(u"0"_s, {u"O'Hara"_s}, dopo);
  integratore({u"O'Hara"_s, u"1"_s, u"molti"_s}).Command1[0]->click();
  EXPECT_EQ(caricata<Formintegrat>(), nullptr);
  EXPECT_EQ(rifatta, 1);
  apri_integratore(u"1"_s, {u"O'Hara"_s, u"30"_s, u"0"_s, u"1"_s, u"1"_s, u"1"_s});
  auto& w = schermata<Formintegrat>();
  w.Command1[1]->click();
  EXPECT_EQ(testi(w.Text1), u"     "_s);
  integratore({u"O'Hara"_s, u"1"_s, u"1"_s, u"1"_s, u"30"_s}).Command1[0]->click();
  apri_integratore(u"0"_s, {u"O'HARA"_s, u"5"_s, u"400"_s, u"80"_s, u"8"_s, u"2"_s});
  caricata<Formintegrat>()->Command1[0]->click();
  for (const QString& resta : {u"O'Hara 20 400"_s, QString()}) {
    apri_integratore(u"1"_s, {u"O'HARA"_s});
    caricata<Formintegrat>()->Command1[2]->click();
    EXPECT_EQ(righe(u"Integratore_dieta"_s), resta) << "first the very name, then one that differs in a capital";
  }
  EXPECT_EQ(righe(u"Integratore_diario"_s), u"O'Hara 30 17"_s) << "the diary's row stays";
}

TEST_F(ProvaFormdiario, ASupplementBeyondAllMeasureLeavesTheLunchAsItWas) {
  apri_integratore(u"1"_s, {u"polvere"_s, u"999999999"_s, u"0"_s, u"90"_s, u"5"_s, u"5"_s});
  caricata<Formintegrat>()->Command1[0]->click();
  EXPECT_EQ(livelli(pranzo), nulla);
  apri();
  EXPECT_EQ(kcal(pranzo), u""_s);
}
