// Rules on controls and screens: how often they fire, and what becomes of their errors.
#include "core/mdiorza.h"
#include "core/regole.h"

#include "ambiente.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A child that writes down what happens to it.
template <int n>
struct Figlia : QWidget {
  void al_caricamento() { annota(u"caricata"_s); }
  void all_attivazione() { annota(u"attiva"_s); }
  void alla_disattivazione() { annota(u"inattiva"_s); }
  void alla_chiusura() { annota(u"chiusa"_s); }
  static void annota(const QString& cosa) { diario() += QString::number(n) + u' ' + cosa; }
  static QStringList& diario();
};
QStringList eventi;
template <int n>
QStringList& Figlia<n>::diario() {
  return eventi;
}

struct ProvaSchermate : Ambiente {};

}  // namespace

TEST(ProvaRegole, AListTellsEachChoiceOnce) {
  QWidget finestra;
  auto* lista = new QComboBox;
  (new QHBoxLayout(&finestra))->addWidget(lista);
  int clic = 0;
  al_clic(lista, [&] { ++clic; });
  riempi_lista(lista, {u"uno"_s, u"due"_s, u"tre"_s});
  EXPECT_EQ(lista->currentIndex(), -1);
  EXPECT_EQ(std::exchange(clic, 0), 0) << "filling";
  finestra.show();
  lista->setCurrentIndex(1);
  EXPECT_EQ(std::exchange(clic, 0), 1) << "by program";
  lista->setCurrentIndex(1);
  EXPECT_EQ(std::exchange(clic, 0), 0) << "by program, the line that stands";
  scegli(lista, 1);
  EXPECT_EQ(std::exchange(clic, 0), 1) << "by the user, the line that stands";
  scegli(lista, 2);
  EXPECT_EQ(std::exchange(clic, 0), 1) << "by the user, another line";
  QTest::keyClick(lista, Qt::Key_Up);
  EXPECT_EQ(clic, 1) << "by the arrow key";
  EXPECT_EQ(lista->currentIndex(), 1);
}

TEST(ProvaRegole, AnOpenListTellsEachChoiceOnce) {
  QListWidget lista;
  lista.addItems({u"uno"_s, u"due"_s});
  int clic = 0;
  al_clic(&lista, [&] { ++clic; });
  lista.show();
  const auto premi = [&](int riga) {
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(riga)).center());
    return std::exchange(clic, 0);
  };
  lista.setFocus();
  EXPECT_EQ(clic, 0) << "the focus is no choice";
  EXPECT_EQ(premi(1), 1);
  EXPECT_EQ(premi(1), 1) << "the line that stands";
  EXPECT_EQ(premi(0), 1);
  lista.setCurrentRow(1);
  EXPECT_EQ(std::exchange(clic, 0), 1) << "by program";
  EXPECT_EQ(premi(1), 1) << "the line that the program chose";
}

TEST(ProvaRegole, AValueFiresOnARealChangeAlone) {
  Valore v(u"0"_s);
  QStringList visti;
  al_cambio(v, [&] { visti += v.text(); });
  for (const QString& t : {u"0"_s, u"5"_s, u"5"_s, u"-1"_s}) v.setText(t);
  EXPECT_EQ(visti, (QStringList{u"5"_s, u"-1"_s}));
}

TEST(ProvaRegole, AnErrorStopsAtItsRulesDoor) {
  Fallimenti f;
  QLineEdit campo;
  int dopo = 0;
  al_cambio(&campo, [] { throw Errore(13, "Tipo non corrispondente"); });
  al_cambio(&campo, [&] { ++dopo; });
  QTest::keyClicks(&campo, u"7"_s);
  EXPECT_EQ(f.numeri, std::vector{13});
  EXPECT_EQ(dopo, 1) << "the other rules of the control still run";
}

TEST(ProvaRegole, AnUncaughtErrorIsShownAndEndsTheProgram) {
  const auto fine = [] {
    gestisci_errori_con(mostra_e_termina);
    parla_con([](const Riquadro& r) {
      std::fputs(qPrintable(r.testo), stderr);
      return true;
    });
    errore_non_gestito(Errore(13, "Tipo non corrispondente"));
  };
  EXPECT_EXIT(fine(), testing::ExitedWithCode(1), "Errore di run-time '13':\n\nTipo non corrispondente");
}

TEST_F(ProvaSchermate, ChildrenTakeTurnsInFront) {
  eventi.clear();
  schermata<Mdiorza>().show();
  schermata<Figlia<1>>();
  mostra<Figlia<1>>();
  mostra<Figlia<1>>();
  mostra<Figlia<2>>();
  QApplication::processEvents();
  EXPECT_EQ(eventi, (QStringList{u"1 caricata"_s, u"1 attiva"_s, u"2 caricata"_s, u"1 inattiva"_s, u"2 attiva"_s}));
  const QWidget& davanti = schermata<Figlia<2>>();
  EXPECT_EQ(QRect(davanti.mapTo(&schermata<Mdiorza>(), QPoint()), davanti.size()),
            QRect(schermata<Mdiorza>().findChild<QMdiArea*>()->viewport()->mapTo(&schermata<Mdiorza>(), QPoint()),
                  QSize(785, 480)));
  eventi.clear();
  scarica<Figlia<2>>();
  QApplication::processEvents();
  EXPECT_EQ(eventi, (QStringList{u"2 chiusa"_s, u"1 attiva"_s}));
  EXPECT_EQ(caricata<Figlia<2>>(), nullptr);
}
