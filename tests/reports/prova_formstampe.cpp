// The preview and the paper: pages, zoom, scrolling, and what the printer gets.
#include "ambiente.h"
#include "diary/formdiario.h"
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
  EXPECT_EQ(f.List1->currentRow(), 0);
  EXPECT_EQ(f.Picture1->size(), QSize(518, 733));
  EXPECT_EQ(f.Labdi->text(), u"di 7"_s);
  EXPECT_TRUE(f.Slider1->isVisibleTo(&f) && f.Labpag->isVisibleTo(&f));
  const QImage lunedì = f.Picture1->pixmap(Qt::ReturnByValue).toImage();
  QTest::keyClick(f.Slider1, Qt::Key_Right);
  EXPECT_EQ(f.Slider1->value(), 2);
  EXPECT_NE(f.Picture1->pixmap(Qt::ReturnByValue).toImage(), lunedì);
  f.VScroll1->setValue(10);
  EXPECT_EQ(f.Picture1->y(), (60 - 1000) / 15);
  QTest::keyClick(f.List1, Qt::Key_Down);
  EXPECT_EQ(f.Picture1->size(), QSize(259, 366));
  EXPECT_EQ(f.VScroll1->maximum(), 0);
  EXPECT_EQ(f.Slider1->value(), 2) << "the zoom keeps the page";
  QTest::mouseClick(f.Cmdchar[2], Qt::LeftButton);
  EXPECT_EQ(apri(u"22"_s, u"v"_s).Slider1->value(), 1) << "the next report begins afresh";
}

TEST_F(ProvaStampe, TheSelectorFollowsTheReport) {
  const struct {
    QString codice, verso, di;
    int massimo;
  } casi[]{{u"3"_s, u"v"_s, u"di 4"_s, 4}, {u"4"_s, u"o"_s, u"di 3"_s, 3}, {u"7"_s, u"o"_s, u"di 9"_s, 9}};
  for (const auto& c : casi) {
    const Formstampe& f = apri(c.codice, c.verso);
    EXPECT_EQ(f.Labdi->text(), c.di);
    EXPECT_EQ(f.Slider1->maximum(), c.massimo);
  }
  EXPECT_EQ(apri(u"1"_s, u"v"_s).Labpag->isVisibleTo(caricata<Formstampe>()), false);
  mostra<Formdiario>();
  QTest::mouseClick(caricata<Formdiario>()->Command1, Qt::LeftButton);
  const Formstampe& f = *caricata<Formstampe>();
  EXPECT_EQ(f.windowTitle(), u"Elenco scelte del diario alimentare - Anteprima di stampa"_s);
  EXPECT_EQ(f.Slider1->minimum(), 0);
  EXPECT_EQ(f.Slider1->maximum(), 1);
  EXPECT_FALSE(f.Slider1->isVisibleTo(&f)) << "one page";
  EXPECT_EQ(apri(u"99"_s, u"v"_s).windowTitle(), u"Anteprima di stampa"_s) << "an unknown code draws nothing";
}

TEST_F(ProvaStampe, AWeekPrintsOnSevenUprightSheets) {
  QTest::mouseClick(apri(u"21"_s, u"v"_s).Cmdchar[1], Qt::LeftButton);
  const QStringList pagine = stampata();
  ASSERT_EQ(pagine.size(), 7);
  for (int g = 0; g < 7; ++g) {
    EXPECT_TRUE(pagine[g].contains(u"%1 gg/"_s.arg(g + 1))) << g;
    EXPECT_TRUE(pagine[g].contains(u"Alimento %1"_s.arg(5 * g + 4))) << g;
    EXPECT_TRUE(pagine[g].contains(u"Grammi"_s) && pagine[g].contains(u"piccole quantità"_s)) << "right edge";
    EXPECT_TRUE(pagine[g].contains(u"Calorie da glucidi:"_s)) << "foot";
  }
}

TEST_F(ProvaStampe, TheCalorieListPrintsThreeLandscapeSheets) {
  QTest::mouseClick(apri(u"7"_s, u"o"_s).Cmdchar[1], Qt::LeftButton);
  const QStringList pagine = stampata();
  ASSERT_EQ(pagine.size(), 3);
  for (const QString& p : pagine) EXPECT_TRUE(p.contains(u"Gluc"_s));
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

/// Left dialog, or a file that cannot be written: one message, and the preview stays.
TEST_F(ProvaStampe, AFailedPrintIsSaidOnce) {
  Formstampe& f = apri(u"21"_s, u"v"_s);
  esterno().imposta_stampante = [](QPrinter&) { return false; };
  {
    Dialogo d({stampante_assente});
    QTest::mouseClick(f.Cmdchar[1], Qt::LeftButton);
  }
  esterno().imposta_stampante = [this](QPrinter& p) {
    p.setOutputFileName(cartella.filePath(u"non/esiste/x.pdf"_s));
    return true;
  };
  Dialogo d({stampante_assente});
  QTest::mouseClick(f.Cmdchar[1], Qt::LeftButton);
  EXPECT_TRUE(caricata<Formstampe>());
}
