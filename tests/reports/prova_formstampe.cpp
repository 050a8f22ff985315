// The preview and the paper: pages, zoom, scrolling, and what the printer gets.
#include "ambiente.h"
#include "diary/formdiario.h"
#include "reports/form_anteprima_diario.h"
#include "reports/formstampe.h"

#include <QPrinter>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

const Atteso stampante_assente{
    u"Il Programma non è riuscito ad inviare i dati alla stampante indicata\n"
    "poichè i driver sono installati, ma la stessa non è collegata al sistema !"_s,
    {}};

class ProvaStampe : public Ambiente {
 protected:
  void SetUp() override {
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
    Archivio(percorso_cliente())
        .esegui_copione(
            u"DELETE FROM dieta; INSERT INTO dieta (dieta, giorno, pasto, descr, cal, prot, lip, gluc, quant,"
            "quant_mod) WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 34)"
            "SELECT 1, i / 5, i % 5, 'Alimento ' || i, 100, 10, 10, 10, 100, '' FROM n"_s);
    esterno().imposta_stampante = [this](QPrinter& p) {
      p.setOutputFileName(pdf());
      return true;
    };
  }
  static Formstampe& apri(const QString& codice, const QString& verso) {
    apri_stampa(codice, verso);
    return *caricata<Formstampe>();
  }
  [[nodiscard]] QString pdf() const { return cartella.filePath(u"stampa.pdf"_s); }
  /// The pages of the printed file as text in their columns.
  [[nodiscard]] QStringList stampata() const {
    QProcess p;
    p.start(u"pdftotext"_s, {u"-layout"_s, pdf(), u"-"_s});
    p.waitForFinished();
    QStringList pagine = QString::fromUtf8(p.readAllStandardOutput()).split(u'\f');
    pagine.removeLast();
    return pagine;
  }
};

}  // namespace

TEST_F(ProvaStampe, AWeekIsReadDayByDayAtTwoZooms) {
  Formstampe& f = apri(u"21"_s, u"v"_s);
  EXPECT_EQ(f.windowTitle(), u"Dieta 1° settimana - Anteprima di stampa"_s);
  EXPECT_EQ(f.Picture1->size(), QSize(518, 733));
  EXPECT_EQ(f.Labdi->text(), u"di 7"_s);
  EXPECT_TRUE(f.Slider1->isVisibleTo(&f) && f.Labpag->isVisibleTo(&f));
  const QImage lunedì = f.Picture1->pixmap(Qt::ReturnByValue).toImage();
  QTest::keyClick(f.Slider1, Qt::Key_Right);
  EXPECT_NE(f.Picture1->pixmap(Qt::ReturnByValue).toImage(), lunedì);
  f.VScroll1->setValue(10);
  EXPECT_EQ(f.Picture1->y(), (60 - 1000) / 15);
  QTest::keyClick(f.List1, Qt::Key_Down);
  EXPECT_EQ(f.Picture1->size(), QSize(259, 366));
  EXPECT_TRUE(f.VScroll1->maximum() == 0 && f.Slider1->value() == 2) << "the zoom keeps the page";
  clic(f.Cmdchar[2]);
  EXPECT_EQ(apri(u"22"_s, u"v"_s).Slider1->value(), 1) << "the next report begins afresh";
}

TEST_F(ProvaStampe, TheSelectorFollowsTheReport) {
  for (const auto& [codice, massimo] : {std::pair{u"3"_s, 4}, {u"4"_s, 3}, {u"7"_s, 9}}) {
    const Formstampe& f = apri(codice, u"v"_s);
    EXPECT_EQ(f.Labdi->text(), u"di %1"_s.arg(massimo));
    EXPECT_EQ(f.Slider1->maximum(), massimo);
  }
  EXPECT_FALSE(apri(u"1"_s, u"v"_s).Labpag->isVisibleTo(caricata<Formstampe>()));
  mostra<Formdiario>();
  clic(caricata<Formdiario>()->Command1);
  const Formstampe& f = *caricata<Formstampe>();
  EXPECT_EQ(f.windowTitle(), u"Elenco scelte del diario alimentare - Anteprima di stampa"_s);
  EXPECT_TRUE(f.Slider1->maximum() == 1 && !f.Slider1->isVisibleTo(&f)) << "one page";
  EXPECT_EQ(apri(u"99"_s, u"v"_s).windowTitle(), u"Anteprima di stampa"_s) << "an unknown code draws nothing";
}

TEST_F(ProvaStampe, AWeekPrintsOnSevenUprightSheetsAndTheCaloriesOnThreeLandscapeOnes) {
  clic(apri(u"21"_s, u"v"_s).Cmdchar[1]);
  const QStringList pagine = stampata();
  ASSERT_EQ(pagine.size(), 7);
  for (int g = 0; g < 7; ++g) {
    for (const auto& testo : {u"%1 gg/"_s.arg(g + 1), u"Alimento %1"_s.arg(5 * g + 4), u"Grammi"_s,
                              u"piccole quantità"_s, u"Calorie da glucidi:"_s}) {  // to the right edge and the foot
      EXPECT_TRUE(pagine[g].contains(testo)) << g << testo.toStdString();
    }
  }
  clic(apri(u"7"_s, u"o"_s).Cmdchar[1]);
  ASSERT_EQ(stampata().size(), 3);
  EXPECT_TRUE(stampata()[2].contains(u"Gluc"_s));
}

/// The diary's pages follow on from one another, from sheet to sheet.
TEST_F(ProvaStampe, TheDiaryFlowsOnToTheNextSheet) {
  dati_tmp().esegui_copione(
      u"INSERT INTO scelte_diario (pasto, cod1, cod2, dose)"
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 25) SELECT i / 6, 1, 1, 100 FROM n"_s);
  QTest::mouseClick(apri(u"8"_s, u"v"_s).Cmdchar[1], Qt::LeftButton);
  const QStringList pagine = stampata();
  ASSERT_EQ(pagine.size(), 2);
  EXPECT_EQ(pagine.join(QString()).count(u"Latte intero"_s), 26);
  EXPECT_TRUE(pagine[0].contains(u"Tot.Giorno"_s) && pagine[0].contains(u"Merenda %"_s));
  EXPECT_TRUE(pagine[1].trimmed().startsWith(u"Cena %"_s));
}

TEST_F(ProvaStampe, AStoreThatCannotBeReadIsTold) {
  salva_riga(dati_tmp(), u"scelte_diario"_s, {{u"pasto"_s, 4}, {u"cod1"_s, 8}, {u"cod2"_s, 1}, {u"dose"_s, 100}});
  QFile::remove(percorso(u"sa_diario.jed"_s));
  const Atteso non_letto{u"Si è verificato un errore nel caricamento !"_s, {}};
  const Dialogo d({non_letto, non_letto});
  apri(u"8"_s, u"v"_s);
  mostra<Form_anteprima_diario>();
}

TEST_F(ProvaStampe, AFailedPrintIsSaidOnceAndThePreviewStays) {
  const Formstampe& f = apri(u"21"_s, u"v"_s);
  for (const bool lasciata : {true, false}) {  // the dialog left, or a file that cannot be written
    esterno().imposta_stampante = [this, lasciata](QPrinter& p) {
      p.setOutputFileName(cartella.filePath(u"non/esiste/x.pdf"_s));
      return !lasciata;
    };
    const Dialogo d({stampante_assente});
    clic(f.Cmdchar[1]);
  }
  EXPECT_TRUE(caricata<Formstampe>());
}
