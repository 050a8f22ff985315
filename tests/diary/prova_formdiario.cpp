// Stage 9 and its supplements as the practitioner uses them.
#include "diary/formdiario.h"

#include "ambiente.h"
#include "core/sezioni.h"
#include "diary/famiglie.h"
#include "diary/formintegrat.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

enum { col_nome = 4, col_dose, col_kcal };
enum { cola, spuntino, pranzo, merenda, cena };

struct ProvaFormdiario : Ambiente {
  Formdiario* f{};

  void SetUp() override {
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
    apri();
  }
  void apri() {
    scarica_schede();
    mostra<Formdiario>();
    f = caricata<Formdiario>();
  }
  static void clicca(QListWidget* lista, int riga) {
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(riga)).center());
  }
  void famiglia(int pasto, int gruppo, int quale) {
    clicca(f->ListPASTI, pasto);
    if (gruppo >= 0) clicca(f->ListGRUPPI, gruppo);
    clicca(f->ListAlimenti, quale);
  }
  void clicca_riga(int riga) {
    f->MSFlex1->scrollToItem(f->MSFlex1->item(riga, col_nome));
    const QPoint dove = f->MSFlex1->visualItemRect(f->MSFlex1->item(riga, col_nome)).center();
    QTest::mouseClick(f->MSFlex1->viewport(), Qt::LeftButton, {}, dove);
  }
  void dose(int riga, const QString& grammi) {
    clicca_riga(riga);
    scegli(f->Combodose, f->Combodose->findText(grammi));
  }
  [[nodiscard]] QString cella(int riga, int colonna) const { return f->MSFlex1->item(riga, colonna)->text(); }
  [[nodiscard]] QStringList livelli(int blocco) const {
    QStringList v;
    for (std::size_t i = 0; i < 4; ++i) v << f->TxtLivelli[static_cast<std::size_t>(blocco) * 4 + i]->text();
    return v;
  }
  [[nodiscard]] QStringList quote() const {
    QStringList v;
    for (const QLineEdit* t : f->TxtRAG) v << t->text();
    return v;
  }
  [[nodiscard]] static QStringList voci(const QListWidget* lista) {
    QStringList v;
    for (int i = 0; i < lista->count(); ++i) v << lista->item(i)->text();
    return v;
  }
  static auto scelte(int pasto) {
    return dati_tmp().righe(u"SELECT cod1, cod2, dose FROM scelte_diario WHERE pasto = ? ORDER BY cod1, cod2"_s, pasto);
  }
  /// Fills the open window: name, protein, fat, carbohydrate, grams a day.
  static Formintegrat& integratore(const QStringList& valori) {
    auto& w = schermata<Formintegrat>();
    const std::size_t caselle[]{0, 2, 3, 4, 5};
    for (qsizetype i = 0; i < valori.size(); ++i) {
      w.Text1[caselle[i]]->clear();
      QTest::keyClicks(w.Text1[caselle[i]], valori[i]);
    }
    return w;
  }
  static QStringList righe(const QString& tabella) {
    QStringList testi;
    for (const Riga& r : dati_tmp().righe(u"SELECT * FROM "_s + tabella)) {
      testi << u"%1 %2 %3"_s.arg(r[u"Descrizione"].toString(), r[u"quantità"].toString(), r[u"calorie"].toString());
    }
    return testi;
  }
};

const QStringList nulla{u"0,00"_s, u"0,00"_s, u"0,00"_s, u"0"_s};

}  // namespace

TEST_F(ProvaFormdiario, OpensWithWhatIsStored) {
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"9"_s);
  for (int blocco = 0; blocco < 6; ++blocco) EXPECT_EQ(livelli(blocco), nulla);
  EXPECT_EQ(quote().join(u""_s), u""_s);
  EXPECT_TRUE(f->Combodose->isHidden());
  salva_riga(dati_tmp(), u"scelte_diario"_s, {{u"pasto"_s, 4}, {u"cod1"_s, 8}, {u"cod2"_s, 1}, {u"dose"_s, 100}});
  apri();
  EXPECT_EQ(livelli(cena)[3], livelli(5)[3]);
  EXPECT_EQ(quote(), (QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"100"_s}));
}

TEST_F(ProvaFormdiario, MealGroupAndFamilyLeadToTheFoods) {
  clicca(f->ListPASTI, cola);
  EXPECT_EQ(voci(f->ListAlimenti)[2], u"Fuori casa"_s);
  EXPECT_EQ(f->ListGRUPPI->count(), 0);
  famiglia(cena, 0, 4);
  EXPECT_EQ(f->trova_cod1(), 12);
  const auto cibi = alimenti_diario(12);
  ASSERT_GT(f->MSFlex1->rowCount(), 1);
  EXPECT_EQ(cella(0, 0) + cella(0, 1), u"121"_s);
  EXPECT_EQ(cella(0, col_nome), cibi.front().descrizione);
  EXPECT_EQ(f->MSFlex1->rowCount(), std::ranges::count_if(cibi, [](const Alimento& a) { return a.quantita != 0; }));
  QTest::keyClick(f->ListAlimenti, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(f->trova_cod1(), 12) << "foods on the grid always have their family";
  clicca(f->ListGRUPPI, 3);
  EXPECT_EQ(f->MSFlex1->rowCount(), 0);
  EXPECT_EQ(voci(f->ListAlimenti), (QStringList{u"Latticini"_s, u"Formaggi"_s, u"Uova di gallina"_s}));
  EXPECT_EQ(f->trova_cod1(), 0) << "no family is chosen";
  QTest::mouseClick(f->MSFlex1->viewport(), Qt::LeftButton, {}, {50, 10});
  EXPECT_TRUE(f->Combodose->isHidden()) << "there is no food to give a dose";
}

TEST_F(ProvaFormdiario, APickedDoseIsStoredAtOnceForThatMeal) {
  famiglia(spuntino, -1, 0);
  dose(1, u"120"_s);
  EXPECT_TRUE(f->Combodose->isHidden());
  EXPECT_EQ(cella(1, col_dose), u"120"_s);
  EXPECT_EQ(f->MSFlex1->currentRow(), 1);
  auto righe = scelte(spuntino);
  ASSERT_EQ(static_cast<int>(righe.size()), f->MSFlex1->rowCount()) << "every food of the family has its row";
  EXPECT_TRUE(righe[0][u"dose"].isNull());
  EXPECT_EQ(righe[1][u"dose"], 120.0);
  EXPECT_EQ(righe[1][u"cod1"], 6);
  EXPECT_NE(livelli(spuntino), nulla);
  EXPECT_EQ(livelli(spuntino)[3], livelli(5)[3]);
  EXPECT_EQ(quote()[1], u"100"_s);
  famiglia(merenda, -1, 0);
  EXPECT_EQ(cella(1, col_dose), u""_s) << "the same family at another meal";
  famiglia(spuntino, -1, 0);
  EXPECT_EQ(cella(1, col_dose), u"120"_s);
  dose(1, u"0"_s);
  EXPECT_EQ(cella(1, col_dose), u""_s);
  righe = scelte(spuntino);
  EXPECT_TRUE(righe[1][u"dose"].isNull());
  EXPECT_EQ(livelli(5), nulla);
  EXPECT_EQ(quote()[1], u"100"_s) << "a day without energy keeps the former shares";
}

TEST_F(ProvaFormdiario, TheSharesAreStoredAllFiveOrNone) {
  famiglia(cola, -1, 0);
  dose(0, u"200"_s);
  famiglia(pranzo, 0, 0);
  dose(0, u"100"_s);
  const QStringList scritte = quote();
  scarica<Formdiario>();
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"-1"_s);
  const QVariantMap riga = carica_riga(dati_tmp(), u"diario"_s);
  EXPECT_EQ(riga[u"pranzo"_s].toString(), scritte[pranzo]);
  EXPECT_EQ(riga.size(), 5);
  apri();
  EXPECT_EQ(quote(), scritte);
  f->TxtRAG[2]->clear();
  scarica<Formdiario>();
  EXPECT_TRUE(carica_righe(dati_tmp(), u"diario"_s).empty());
}

TEST_F(ProvaFormdiario, ThePickerStandsOverItsRowAndOnlyAnOpenListPicks) {
  famiglia(pranzo, 1, 0);
  clicca_riga(4);
  auto* barra = f->MSFlex1->verticalScrollBar();
  ASSERT_GT(barra->maximum(), 3);
  for (const int scatto : {0, 2}) {
    barra->setValue(scatto);
    EXPECT_TRUE(f->Combodose->geometry().contains(f->MSFlex1->visualItemRect(f->MSFlex1->item(4, col_dose))));
    EXPECT_FALSE(f->Combodose->isHidden()) << scatto;
  }
  QTest::keyClick(f->Combodose, Qt::Key_Down);
  EXPECT_EQ(f->Combodose->currentIndex(), -1) << "the arrow opens the list and picks nothing";
  EXPECT_TRUE(f->Combodose->view()->isVisible());
  QTest::keyClick(f->Combodose->view(), Qt::Key_Escape);
  QTest::keyClick(f->Combodose, Qt::Key_Escape);
  EXPECT_TRUE(f->Combodose->isHidden());
  EXPECT_TRUE(scelte(pranzo).empty());
}

TEST_F(ProvaFormdiario, DosesAreGivenByKeyboardAlone) {
  auto& m = schermata<Mdiorza>();
  m.show();
  m.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m));
  famiglia(pranzo, 1, 0);
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
  clicca(f->ListPASTI, pranzo);
  clicca(f->ListGRUPPI, gruppo_integratori);
  ASSERT_NE(caricata<Formintegrat>(), nullptr) << "there is none: the window opens";
  EXPECT_EQ(caricata<Formintegrat>()->Form_loader.text(), u"1"_s);
  auto& w = integratore({u"polvere d'orzo"_s, u"10"_s, u"2,5"_s, u"20"_s, u"50"_s});
  EXPECT_EQ(w.Text1[1]->text(), u"142,5"_s);
  QTest::keyClicks(w.Text1[1], u"9"_s);
  EXPECT_EQ(w.Text1[1]->text(), u"142,5"_s) << "the energy follows the nutrients";
  w.Command1[0]->click();
  EXPECT_EQ(caricata<Formintegrat>(), nullptr);
  EXPECT_EQ(livelli(pranzo), (QStringList{u"10,00"_s, u"1,30"_s, u"5,00"_s, u"71"_s}));
  EXPECT_EQ(voci(f->ListAlimenti), QStringList{u"polvere d'orzo"_s});
  clicca(f->ListAlimenti, 0);
  ASSERT_NE(caricata<Formintegrat>(), nullptr);
  EXPECT_EQ(caricata<Formintegrat>()->Text1[0]->text(), u"polvere d'orzo"_s);
  integratore({u"polvere d'orzo"_s, u"10"_s, u"0"_s, u"0"_s, u"50"_s}).Command1[0]->click();
  EXPECT_EQ(righe(u"Integratore_diario"_s), QStringList{u"polvere d'orzo 50 40"_s});
  clicca(f->ListAlimenti, 0);
  caricata<Formintegrat>()->close();
  EXPECT_EQ(caricata<Formintegrat>(), nullptr) << "the title bar loses what was typed";
  clicca(f->ListPASTI, cena);
  EXPECT_EQ(f->ListGRUPPI->count(), 6);
}

TEST_F(ProvaFormdiario, ValuesThatDoNotFitAreRefusedAndDeletionIsTheDietsAlone) {
  int rifatta = 0;
  const auto dopo = [&] { ++rifatta; };
  apri_integratore(u"0"_s, {u"O'Hara"_s, u"20"_s, u"400"_s, u"80"_s, u"8"_s, u"2"_s}, dopo);
  EXPECT_EQ(caricata<Formintegrat>()->Text1[5]->text(), u"20"_s);
  caricata<Formintegrat>()->Command1[0]->click();
  EXPECT_EQ(righe(u"Integratore_dieta"_s), QStringList{u"O'Hara 20 400"_s});
  EXPECT_EQ(rifatta, 1);
  {
    Dialogo d({{u"Attenzione: Valori inseriti imcompatibili !"_s, {}}});
    apri_integratore(u"0"_s, {u"O'Hara"_s}, dopo);
    integratore({u"O'Hara"_s, u"1"_s, u"molti"_s}).Command1[0]->click();
    EXPECT_EQ(caricata<Formintegrat>(), nullptr);
  }
  apri_integratore(u"1"_s, {u"O'Hara"_s, u"30"_s, u"0"_s, u"1"_s, u"1"_s, u"1"_s});
  auto& w = schermata<Formintegrat>();
  w.Command1[1]->click();
  for (const QLineEdit* t : w.Text1) EXPECT_EQ(t->text(), u""_s);
  integratore({u"O'Hara"_s, u"1"_s, u"1"_s, u"1"_s, u"30"_s}).Command1[0]->click();
  apri_integratore(u"1"_s, {u"O'HARA"_s});
  caricata<Formintegrat>()->Command1[2]->click();
  EXPECT_TRUE(righe(u"Integratore_dieta"_s).isEmpty());
  EXPECT_EQ(righe(u"Integratore_diario"_s), QStringList{u"O'Hara 30 17"_s}) << "the diary's row stays";
  EXPECT_EQ(rifatta, 1);
}

TEST_F(ProvaFormdiario, ASupplementBeyondAllMeasureLeavesTheLunchAsItWas) {
  apri_integratore(u"1"_s, {u"polvere"_s, u"999999999"_s, u"0"_s, u"90"_s, u"5"_s, u"5"_s});
  caricata<Formintegrat>()->Command1[0]->click();
  EXPECT_EQ(livelli(pranzo), nulla);
  apri();
  EXPECT_EQ(livelli(pranzo)[3], u""_s);
}
