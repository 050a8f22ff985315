// Stage 7 as the practitioner uses it: lunch and way of choosing, meals, boxes, marks, supplements, and the diet from
// it.
#include "ambiente.h"
#include "core/mdiorza.h"
#include "diary/formintegrat.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace {

enum : std::size_t { colazione, colazione_bio, spuntino, pranzo, merenda, cena, integratore };

Atteso rifiuto(const QString& giorni) {
  return {u"ATTENZIONE: Un solo alimento è ammesso come obbligatorio\nnei giorni "_s + giorni +
              u" e questa scelta è già stata fatta.\nPer variarla occorre prima eliminare la precedente"_s,
          u""_s};
}

class ProvaAlimenti : public Ambiente {
 protected:
  ProvaAlimenti() {
    motore() = {};
    caso_in_uso() = caso_con_seme(7);
  }
  void SetUp() override {
    mostra<Mdiorza>();
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  }

  /// Opens the stage for a client who lunches at home and made no choice yet.
  void apri_nuovo() {
    for (const char* tabella : {"alimenti", "alimenti_spuntati", "checkAlimentiSpuntati"}) {
      dati_tmp().esegui(u"DELETE FROM "_s + QString::fromLatin1(tabella));
    }
    schermata<Mdiorza>().cmdsopra[4]->click();
    f = caricata<Formalimenti>();
    ASSERT_NE(f, nullptr);
  }
  void riapri() {
    scarica<Formalimenti>();
    mostra<Formalimenti>();
    f = caricata<Formalimenti>();
    ASSERT_NE(f, nullptr);
    ASSERT_EQ(schermata<Mdiorza>().qualeform.text(), u"7"_s);
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
    for (int r = 0; r < f->MSFlex1->model()->rowCount(); ++r) {
      const QModelIndex i = f->MSFlex1->model()->index(r, colonna_di::nome);
      if (i.data().toString() == alimento) return i.siblingAtColumn(colonna);
    }
    ADD_FAILURE() << "not in the grid: " << alimento.toStdString();
    return {};
  }
  void tocca(const QString& alimento, int colonna) {
    f->MSFlex1->scrollTo(cella(alimento, colonna));
    QTest::mouseClick(f->MSFlex1->viewport(), Qt::LeftButton, {},
                      f->MSFlex1->visualRect(cella(alimento, colonna)).center());
  }
  [[nodiscard]] bool segnato(const QString& alimento, int colonna) const {
    return !cella(alimento, colonna).data(Qt::DecorationRole).isNull();
  }
  [[nodiscard]] int segnati(int colonna) const {
    int n = 0;
    const auto* m = f->MSFlex1->model();
    for (int r = 0; r < m->rowCount(); ++r) n += m->index(r, colonna).data(Qt::DecorationRole).isNull() ? 0 : 1;
    return n;
  }
  [[nodiscard]] int righe() const { return f->MSFlex1->model()->rowCount(); }
  static qlonglong conta(const QString& dove) {
    return dati_tmp().righe(u"SELECT count(*) AS n FROM "_s + dove).front()[u"n"].toLongLong();
  }
  static int pranzoFF() {
    const auto r = dati_tmp().righe(u"SELECT pranzoFF FROM alimenti"_s);
    return r.empty() ? 0 : r.front()[u"pranzoFF"].toInt();
  }
  /// Fills the window that opened because there was no supplement, and saves it.
  static void inserisci_integratore(const QString& grammi) {
    auto* finestra = caricata<Formintegrat>();
    ASSERT_NE(finestra, nullptr);
    const std::array testi{u"Proteine d'uovo"_s, QString(), u"80"_s, u"2"_s, u"6"_s, grammi};
    for (std::size_t i = 0; i < testi.size(); ++i) {
      if (i != 1) finestra->Text1[i]->setText(testi[i]);
    }
    clic(finestra->Command1[0]);
  }
  Formalimenti* f{};
};

}  // namespace

TEST_F(ProvaAlimenti, TwoStepsComeBeforeTheMealsOfANewClient) {
  dati_tmp().esegui(u"UPDATE consumi SET spuntino=0, colazione=NULL"_s);
  apri_nuovo();
  EXPECT_TRUE(f->FrameSceltaFF->isVisible() && !f->FramePulsantiPasti->isVisible());
  clic(f->CmdContinuaFF);
  EXPECT_TRUE(f->FrameSceltaFF->isVisible()) << "nothing is chosen yet";
  clic(f->OptFF[1]);
  clic(f->CmdContinuaFF);
  EXPECT_TRUE(f->FrameSceltaAlimenti->isVisible() && !f->FrameSceltaFF->isVisible());
  clic(f->CmdContinuaAlimenti);
  EXPECT_FALSE(f->MSFlex1->isVisible());
  clic(f->OptAlim[0]);
  clic(f->CmdContinuaAlimenti);
  EXPECT_TRUE(f->FramePulsantiPasti->isVisible() && f->MSFlex1->isVisible());
  EXPECT_FALSE(f->CmdPasto[colazione]->isEnabled() || f->CmdPasto[colazione_bio]->isEnabled() ||
               f->CmdPasto[spuntino]->isEnabled());
  EXPECT_GT(conta(u"alimenti_spuntati WHERE pasto=4 AND cod1=7 AND ok"_s), 0) << "chosen by the program at once";
  pasto(pranzo);
  EXPECT_TRUE(casella(u"CheckPranzoFF_0"_s)->isVisible() && !casella(u"CheckPranzoFF_5"_s)->isChecked());
  scarica<Formalimenti>();
  EXPECT_EQ(pranzoFF(), 12);
  EXPECT_EQ(schermata<Mdiorza>().qualeform.text(), u"-1"_s);
  riapri();
  EXPECT_TRUE(f->OptFF[1]->isChecked());
  clic(f->CmdContinuaFF);
  EXPECT_TRUE(f->FramePulsantiPasti->isVisible()) << "the second step is passed over";
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
  EXPECT_EQ(pranzoFF(), 14);
}

TEST_F(ProvaAlimenti, TheKeyboardAndTheStageButtonsStoreTheMealOnDisplay) {
  apri_nuovo();
  passi(0, 1);
  pasto(merenda);
  const QModelIndex prima = f->MSFlex1->model()->index(0, colonna_di::ok);
  f->MSFlex1->setCurrentIndex(prima);
  for (const auto tasto : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Space}) QTest::keyClick(f->MSFlex1, tasto);
  EXPECT_TRUE(prima.data(Qt::DecorationRole).isNull());
  schermata<Mdiorza>().cmdsopra[10]->click();  // the popup of the reports saves the stage in front
  schermata<Mdiorza>().stampe->close();
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
  inserisci_integratore(u"30"_s);
  ASSERT_EQ(righe(), 1);
  tocca(u"Proteine d'uovo"_s, colonna_di::lv);
  auto* finestra = caricata<Formintegrat>();
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

TEST_F(ProvaAlimenti, TheMarkNeedsNoFile) {
  const auto misura = [] { return icona_spunta().availableSizes().value(0); };
  EXPECT_NE(misura(), QSize(45, 45));
  QFile::copy(QStringLiteral(CARTELLA_ARCHIVI "/spunta.gif"), percorso(u"spunta.gif"_s));
  EXPECT_EQ(misura(), QSize(45, 45));
  scrivi(percorso(u"spunta.gif"_s), "no picture");
  EXPECT_NE(misura(), QSize(45, 45));
}

namespace {

/// Foods served in the first week against the client's list: all of them allowed that day, the obligatory ones there,
/// none more than twice a week at lunch; the supplement on weekdays alone.
void controlla_settimana() {
  std::map<std::pair<int, int>, int> ammessi, obbligati;  // by meal code and food: bits of the days
  ammessi[{4, 23000}] = 31;
  for (const Riga& r : dati_tmp().righe(u"SELECT * FROM alimenti_spuntati"_s)) {
    const std::pair chiave(r[u"pasto"].toInt(), r[u"cod1"].toInt() * 1000 + r[u"cod2"].toInt());
    if (r[u"ok"].toBool()) ammessi[chiave] = 127;
    obbligati[chiave] = (r[u"LV"].toBool() ? 31 : 0) + (r[u"SD"].toBool() ? 96 : 0);
  }
  std::map<int, int> pranzi;
  std::map<std::pair<int, int>, int> serviti;
  for (int giorno = 0; giorno < giorni; ++giorno) {
    for (int m = 0; m < pasti; ++m) {
      const int codice = std::array{1, 3, 4, 5, 6}[static_cast<std::size_t>(m)];
      ASSERT_GT(motore().menu(1, giorno, m, 0).cod1, 0) << "day " << giorno << " meal " << m;
      for (int p = 0; p < posti; ++p) {
        const voce_pasto& v = motore().menu(1, giorno, m, p);
        if (v.cod1 == 0) continue;
        const std::pair chiave(codice, v.cod1 * 1000 + v.cod2);
        serviti[chiave] |= 1 << giorno;
        EXPECT_TRUE((ammessi[chiave] | obbligati[chiave]) & (1 << giorno)) << v.descr.toStdString();
        if (m == 2 && v.cod1 < 23 && obbligati[chiave] == 0) ++pranzi[chiave.second];
      }
    }
  }
  for (const auto& [cibo, volte] : pranzi) EXPECT_LE(volte, 2) << cibo;
  for (const auto& [chiave, giorni_voluti] : obbligati) {
    EXPECT_EQ(serviti[chiave] & giorni_voluti, giorni_voluti) << chiave.second;
  }
  EXPECT_NE((serviti[{4, 23000}]), 0);
}

}  // namespace

TEST_F(ProvaAlimenti, AWeekElaboratedFromTheseChoicesKeepsToThem) {
  for (const std::size_t modo : {0U, 1U}) {
    SCOPED_TRACE(modo == 0 ? "automatic" : "by hand");
    apri_nuovo();
    passi(0, modo);
    for (const auto quale : {colazione, spuntino, merenda, pranzo}) pasto(quale);
    clic(casella(u"CheckPranzo_7"_s));  // no fish
    tocca(u"Pane integrale"_s, colonna_di::lv);
    tocca(u"Mela"_s, colonna_di::sd);
    pasto(cena);
    tocca(u"Spaghetti"_s, colonna_di::ok);
    pasto(integratore);
    if (modo == 0) inserisci_integratore(u"10"_s);
    tocca(u"Proteine d'uovo"_s, modo == 0 ? colonna_di::lv : colonna_di::nome);
    caricata<Formintegrat>()->close();
    schermata<Mdiorza>().Command1[1]->click();
    ASSERT_TRUE(caricata<Formelabora>());
    scegli(schermata<Formelabora>().Combo1, 0);
    clic(schermata<Formelabora>().test);
    controlla_settimana();
  }
}
