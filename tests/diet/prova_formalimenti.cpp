// Stage 7 as the practitioner uses it: lunch and way of choosing, meals, boxes, marks, supplements.
#include "ambiente.h"
#include "core/mdiorza.h"
#include "diary/formintegrat.h"
#include "diet/formalimenti.h"

using namespace Qt::StringLiterals;

namespace {

enum : std::size_t { colazione, colazione_bio, spuntino, pranzo, merenda, cena, integratore };

Atteso rifiuto(const QString& giorni) {
  return {u"ATTENZIONE: Un solo alimento è ammesso come obbligatorio\nnei giorni "_s + giorni +
              u" e questa scelta è già stata fatta.\nPer variarla occorre prima eliminare la precedente"_s,
          u""_s};
}

struct ProvaAlimenti : AmbienteDi<Formalimenti> {
  void SetUp() override {
    mostra<Mdiorza>();
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  }

  /// Opens the stage for a client who lunches at home and made no choice yet.
  void apri_nuovo() {
    for (const char* tabella : {"alimenti", "alimenti_spuntati", "checkAlimentiSpuntati"}) {
      dati_tmp().esegui(u"DELETE FROM "_s + QString::fromLatin1(tabella));
    }
    m.cmdsopra[4]->click();
    f = caricata<Formalimenti>();
    ASSERT_NE(f, nullptr);
  }
  void riapri() {
    scarica<Formalimenti>();
    EXPECT_EQ(m.qualeform.text(), u"-1"_s);
    apri();
    EXPECT_EQ(m.qualeform.text(), u"7"_s);
  }
  void passi(std::size_t tipo, std::size_t modo) {
    clic(f->OptFF[tipo]);
    clic(f->CmdContinuaFF);
    clic(f->OptAlim[modo]);
    clic(f->CmdContinuaAlimenti);
  }
  static void clic(QAbstractButton* b) { QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(8, b->height() / 2)); }
  void pasto(std::size_t quale) { clic(f->CmdPasto[quale]); }
  QCheckBox* casella(const QString& nome) const { return f->findChild<QCheckBox*>(nome); }

  [[nodiscard]] QModelIndex cella(const QString& alimento, int colonna) const {
    const auto* g = f->MSFlex1->model();
    const auto trovati = g->match(g->index(0, colonna_di::nome), Qt::DisplayRole, alimento, 1, Qt::MatchExactly);
    return trovati.value(0).siblingAtColumn(colonna);
  }
  void tocca(const QString& alimento, int colonna) { ::clic(f->MSFlex1, cella(alimento, colonna).row(), colonna); }
  [[nodiscard]] bool segnato(const QString& alimento, int colonna) const {
    return !cella(alimento, colonna).data(Qt::DecorationRole).isNull();
  }
  [[nodiscard]] int segnati(int colonna) const {
    int n = 0;
    for (int r = 0; r < righe(); ++r) n += !f->MSFlex1->model()->index(r, colonna).data(Qt::DecorationRole).isNull();
    return n;
  }
  [[nodiscard]] int righe() const { return f->MSFlex1->model()->rowCount(); }
  static qlonglong conta(const QString& dove) {
    return dati_tmp().righe(u"SELECT count(*) AS n FROM "_s + dove).front()[u"n"].toLongLong();
  }
};

}  // namespace

TEST_F(ProvaAlimenti, TwoStepsComeBeforeTheMealsOfANewClient) {
  dati_tmp().esegui(u"UPDATE consumi SET spuntino=0, colazione=NULL"_s);
  apri_nuovo();
  const auto in_vista = [this] { return f->FrameSceltaFF->isVisible() ? 1 : f->MSFlex1->isVisible() ? 3 : 2; };
  clic(f->CmdContinuaFF);
  EXPECT_EQ(in_vista(), 1) << "nothing is chosen yet";
  clic(f->OptFF[1]);
  clic(f->CmdContinuaFF);
  clic(f->CmdContinuaAlimenti);
  EXPECT_EQ(in_vista(), 2);
  clic(f->OptAlim[0]);
  clic(f->CmdContinuaAlimenti);
  EXPECT_EQ(in_vista(), 3);
  for (const auto senza_quota : {colazione, colazione_bio, spuntino})
    EXPECT_FALSE(f->CmdPasto[senza_quota]->isEnabled());
  EXPECT_GT(conta(u"alimenti_spuntati WHERE pasto=4 AND cod1=7 AND ok"_s), 0) << "chosen by the program at once";
  pasto(pranzo);
  EXPECT_TRUE(casella(u"CheckPranzoFF_0"_s)->isVisible() && !casella(u"CheckPranzoFF_5"_s)->isChecked());
  riapri();
  EXPECT_EQ(campo(u"alimenti"_s, u"pranzoFF"_s), 12);
  EXPECT_TRUE(f->OptFF[1]->isChecked());
  clic(f->CmdContinuaFF);
  EXPECT_EQ(in_vista(), 3) << "the second step is passed over";
}

TEST_F(ProvaAlimenti, ChoicesByHandComeBackMealByMealAndVisitByVisit) {
  apri_nuovo();
  passi(0, 1);
  pasto(pranzo);
  EXPECT_EQ(f->CmdPasto[pranzo]->property("scelto"), true);
  EXPECT_EQ(segnati(colonna_di::ok), righe()) << "at first everything is accepted";
  clic(casella(u"CheckPranzo_4"_s));
  tocca(u"Penne rigate"_s, colonna_di::ok);
  const int accettati = segnati(colonna_di::ok);
  tocca(u"Spaghetti"_s, colonna_di::lv);
  {
    Dialogo d({rifiuto(u"dal Lunedì al Venerdì"_s)});
    tocca(u"Fusilli"_s, colonna_di::lv);
  }
  EXPECT_FALSE(segnato(u"Fusilli"_s, colonna_di::lv));
  tocca(u"Spaghetti"_s, colonna_di::lv);
  tocca(u"Fusilli"_s, colonna_di::lv);  // the former choice freed its place
  tocca(u"Fusilli"_s, colonna_di::sd);
  {
    Dialogo d({rifiuto(u"dal Sabato alla Domenica"_s)});
    tocca(u"Farfalle"_s, colonna_di::sd);
  }
  clic(f->findChild<QPushButton*>(u"CmdConfermaPranzo"_s));
  EXPECT_TRUE(f->MSFlex2->isVisible());
  EXPECT_GT(f->MSFlex2->model()->rowCount(), accettati) << "companions have lines of their own";
  pasto(cena);
  EXPECT_FALSE(f->MSFlex2->isVisible());
  EXPECT_EQ(segnati(colonna_di::lv), 0);
  tocca(u"Fusilli"_s, colonna_di::lv);  // the dinner counts by itself
  for (const bool riaperta : {false, true}) {
    if (riaperta) {
      riapri();
      clic(f->CmdContinuaFF);
    }
    pasto(pranzo);
    EXPECT_EQ(segnati(colonna_di::ok), accettati) << riaperta;
    EXPECT_TRUE(segnato(u"Fusilli"_s, colonna_di::lv) && segnato(u"Fusilli"_s, colonna_di::sd));
    EXPECT_FALSE(casella(u"CheckPranzo_4"_s)->isChecked());
    EXPECT_TRUE(casella(u"CheckPranzo_3"_s)->isChecked());
    Dialogo d({rifiuto(u"dal Lunedì al Venerdì"_s)});
    tocca(u"Spaghetti"_s, colonna_di::lv);
  }
}

TEST_F(ProvaAlimenti, AnotherLunchDropsItsListAndKeepsTheDinners) {
  apri_nuovo();
  passi(0, 1);
  pasto(cena);
  tocca(u"Orata"_s, colonna_di::sd);
  pasto(pranzo);
  tocca(u"Spaghetti"_s, colonna_di::lv);
  clic(casella(u"CheckPranzo_0"_s));
  riapri();
  clic(f->OptFF[1]);
  clic(f->CmdContinuaFF);
  EXPECT_EQ(conta(u"alimenti_spuntati WHERE pasto=4 AND cod1=4"_s) > 0, true) << "until the lunch is opened";
  pasto(pranzo);
  EXPECT_EQ(segnati(colonna_di::ok), righe());
  EXPECT_EQ(conta(u"alimenti_spuntati WHERE pasto=4"_s), 0);
  EXPECT_TRUE(casella(u"CheckPranzoFF_0"_s)->isChecked());
  tocca(u"Lasagne alla bolognese"_s, colonna_di::lv);
  pasto(cena);
  EXPECT_TRUE(segnato(u"Orata"_s, colonna_di::sd));
  pasto(pranzo);
  EXPECT_EQ(segnati(colonna_di::lv), 1) << "the new list stays from then on";
  scarica<Formalimenti>();
  EXPECT_EQ(campo(u"alimenti"_s, u"pranzoFF"_s), 14);
}

TEST_F(ProvaAlimenti, TheKeyboardAndTheStageButtonsStoreTheMealOnDisplay) {
  apri_nuovo();
  passi(0, 1);
  pasto(merenda);
  const QModelIndex prima = f->MSFlex1->model()->index(0, colonna_di::ok);
  f->MSFlex1->setCurrentIndex(prima);
  for (const auto tasto : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Space}) QTest::keyClick(f->MSFlex1, tasto);
  EXPECT_TRUE(prima.data(Qt::DecorationRole).isNull());
  m.cmdsopra[10]->click();  // the popup of the reports saves the stage in front
  m.stampe->close();
  EXPECT_EQ(conta(u"alimenti_spuntati WHERE pasto=5 AND NOT ok"_s), 1);
  chiudi_archivi();
  scarica<Formalimenti>();
  riapri();
  clic(f->CmdContinuaFF);
  chiudi_archivi();  // as a general save does
  pasto(merenda);
  EXPECT_EQ(segnati(colonna_di::ok), righe() - 1);
}

TEST_F(ProvaAlimenti, SupplementsAreMarkedForTheLunchesAndOpenTheirWindow) {
  apri_nuovo();
  passi(0, 1);
  pasto(integratore);
  auto* finestra = caricata<Formintegrat>();  // it opens by itself where there is no supplement
  ASSERT_NE(finestra, nullptr);
  const std::array testi{u"Proteine d'uovo"_s, QString(), u"80"_s, u"2"_s, u"6"_s, u"30"_s};
  for (const auto i : {0U, 2U, 3U, 4U, 5U}) finestra->Text1[i]->setText(testi[i]);
  clic(finestra->Command1[0]);
  ASSERT_EQ(righe(), 1);
  tocca(u"Proteine d'uovo"_s, colonna_di::lv);
  finestra = caricata<Formintegrat>();
  ASSERT_NE(finestra, nullptr);
  EXPECT_EQ(finestra->Text1[5]->text(), u"30"_s);
  EXPECT_EQ(conta(u"Integratore_dieta WHERE LV AND NOT SD"_s), 1);
  clic(finestra->Command1[0]);
  EXPECT_TRUE(segnato(u"Proteine d'uovo"_s, colonna_di::lv)) << "the mark outlives the edit";
  tocca(u"Proteine d'uovo"_s, colonna_di::nome);
  clic(caricata<Formintegrat>()->Command1[2]);
  EXPECT_EQ(righe(), 0);
  EXPECT_EQ(f->contaFissiIntegratoreLV.text(), u"0"_s) << "another may take its place";
  EXPECT_EQ(caricata<Formintegrat>(), nullptr);
}
