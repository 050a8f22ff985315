// Rules on controls and screens: how often they fire, and what becomes of their errors.
#include "core/mdiorza.h"
#include "core/regole.h"

#include "ambiente.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QStringList eventi;

/// A child that writes down what happens to it.
template <int n>
struct Figlia : QWidget {
  void al_caricamento() { annota(u"caricata"_s); }
  void all_attivazione() { annota(u"attiva"_s); }
  void alla_disattivazione() { annota(u"inattiva"_s); }
  void alla_chiusura() { annota(u"chiusa"_s); }
  static void annota(const QString& cosa) { eventi += QString::number(n) + u' ' + cosa; }
};

struct ProvaSchermate : Ambiente {};

}  // namespace

TEST(ProvaRegole, AListTellsEachChoiceOnce) {
  QWidget finestra;
  auto* lista = new QComboBox;
  (new QHBoxLayout(&finestra))->addWidget(lista);
  int clic = 0;
  al_clic(lista, [&] { ++clic; });
  finestra.show();
  const std::tuple<const char*, std::function<void()>, int, int> casi[]{
      // times told, line that stands then
      {"filling",
       [=] {
         riempi_lista(lista, {u"uno"_s, u"due"_s, u"tre"_s});
       },
       0, -1},
      {"by program", [=] { lista->setCurrentIndex(1); }, 1, 1},
      {"by program, the line that stands", [=] { lista->setCurrentIndex(1); }, 0, 1},
      {"by the user, the line that stands", [=] { scegli(lista, 1); }, 1, 1},
      {"by the user, another line", [=] { scegli(lista, 2); }, 1, 2},
      {"by the arrow key", [=] { QTest::keyClick(lista, Qt::Key_Up); }, 1, 1},
  };
  for (const auto& [che, come, volte, riga] : casi) {
    come();
    EXPECT_EQ(std::exchange(clic, 0), volte) << che;
    EXPECT_EQ(lista->currentIndex(), riga) << che;
  }
}

TEST(ProvaRegole, AnOpenListTellsEachChoiceOnce) {
  QListWidget lista;
  lista.addItems({u"uno"_s, u"due"_s});
  int detti = 0;
  al_clic(&lista, [&] { ++detti; });
  lista.show();
  const auto linea = [&](int riga) { return lista.visualItemRect(lista.item(riga)).center(); };
  const std::tuple<const char*, std::function<void()>, int> casi[]{
      {"the focus is no choice", [&] { lista.setFocus(); }, 0},
      {"a line", [&] { clic(&lista, 1); }, 1},
      {"the line that stands", [&] { clic(&lista, 1); }, 1},
      {"another line", [&] { clic(&lista, 0); }, 1},
      {"by program", [&] { lista.setCurrentRow(1); }, 1},
      {"the line that the program chose", [&] { clic(&lista, 1); }, 1},
      {"the right button chooses too", [&] { QTest::mouseClick(lista.viewport(), Qt::RightButton, {}, linea(0)); }, 1},
      {"a press", [&] { QTest::mousePress(lista.viewport(), Qt::LeftButton, {}, linea(1)); }, 1},
      {"let go beside the line",
       [&] {
         QTest::mouseRelease(lista.viewport(), Qt::LeftButton, {}, {50, 90});
       },
       0},
      {"the arrow key", [&] { QTest::keyClick(&lista, Qt::Key_Up); }, 1},
  };
  for (const auto& [che, come, volte] : casi) {
    come();
    EXPECT_EQ(std::exchange(detti, 0), volte) << che;
  }
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
  EXPECT_EQ(eventi.join(u", "_s), u"1 caricata, 1 attiva, 2 caricata, 1 inattiva, 2 attiva"_s);
  eventi.clear();
  scarica<Figlia<2>>();
  QApplication::processEvents();
  EXPECT_EQ(eventi.join(u", "_s), u"2 chiusa, 1 attiva"_s);
  EXPECT_EQ(caricata<Figlia<2>>(), nullptr);
}
