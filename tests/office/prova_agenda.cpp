// The agenda: a day's appointments are kept whatever the way out of it.
#include "office/agenda.h"
#include "office/formagenda.h"

#include "ambiente.h"

#include <QFile>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

const Atteso vuoi_uscire{u"Sei sicuro di voler uscire dal programma ?"_s, u"Orzaline control"_s};

struct ProvaAgenda : Ambiente {
  ProvaAgenda() {
    esterno().oggi = [] { return QDate(2026, 3, 9); };
    mostra<Mdiorza>();
  }
  Mdiorza& m = schermata<Mdiorza>();

  static Formagenda& f() { return schermata<Formagenda>(); }
  void apri() { m.cmdsopra[11]->click(); }

  static QString diario() {
    return righe_di(Archivio(percorso(u"Agenda.jed"_s)),
                    u"SELECT Data, Ora, Promemoria FROM Diario ORDER BY Data, Ora"_s);
  }
  /// Types into a slot and leaves the box open.
  static void digita(int riga, const QString& testo) {
    f().DBGrid1->setCurrentCell(riga, 1);
    QTest::keyClicks(f().DBGrid1, testo.left(1));
    QTest::keyClicks(f().DBGrid1->viewport()->findChildren<QLineEdit*>().last(), testo.mid(1));
  }
  /// The slots of the grid that hold a text.
  static QString pagina() {
    QStringList righe;
    for (int r = 0; r < f().DBGrid1->rowCount(); ++r) {
      const QString testo = f().DBGrid1->item(r, 1)->text();
      if (!testo.isEmpty()) righe << f().DBGrid1->item(r, 0)->text() + u' ' + testo;
    }
    return righe.join(u'\n');
  }
};

}  // namespace

TEST_F(ProvaAgenda, ItOpensOnTodayUnderEitherSpellingAndTakesNothingAway) {
  Archivio(percorso(u"Agenda.jed"_s))
      .esegui_copione(
          u"INSERT INTO Diario VALUES ('09/03/2026', '09:30', 'sig.ra Rossi'), ('09/03/2026', '23:30', 'ultimo')"_s);
  scrivi_promemoria({u"00:00"_s, u"resti di un altro giorno"_s});
  const QString prima = diario();
  ASSERT_TRUE(QFile::rename(percorso(u"Agenda.jed"_s), cartella.filePath(u"agenda.jed"_s)));
  apri();
  EXPECT_EQ(f().Text1->text(), u"09/03/2026"_s);
  EXPECT_EQ(f().Calendar1->selectedDate(), QDate(2026, 3, 9));
  EXPECT_EQ(pagina(), u"09:30 sig.ra Rossi\n23:30 ultimo"_s);
  EXPECT_EQ(diario(), prima);
  f().Command1->click();
  EXPECT_FALSE(caricata<Formagenda>());
  EXPECT_EQ(diario(), prima) << "a day saved again has each of its rows once";
}

TEST_F(ProvaAgenda, TheDayIsKeptWhateverTheWayOut) {
  const std::tuple<const char*, std::function<void()>, std::deque<Atteso>> vie[]{
      {"another day", [] { f().Calendar1->setSelectedDate(QDate(2026, 3, 10)); }, {}},
      {"its button", [] { f().Command1->click(); }, {}},
      {"the main window", [this] { m.close(); }, {vuoi_uscire}},
      {"the menu", [this] { m.uscita->trigger(); }, {vuoi_uscire}},
  };
  for (const auto& [nome, via, attesi] : vie) {
    m.show();
    Archivio(percorso(u"Agenda.jed"_s)).esegui(u"DELETE FROM Diario"_s);
    m.menuag->trigger();
    digita(18, u"l'ora di \"Ada\""_s);
    const Dialogo d(attesi);
    via();
    EXPECT_EQ(diario(), u"09/03/2026 09:00 l'ora di \"Ada\""_s) << nome;
    scarica<Formagenda>();
  }
}

TEST_F(ProvaAgenda, EachDayHasItsOwnAppointments) {
  apri();
  digita(20, u"primo"_s);
  f().Calendar1->setSelectedDate(QDate(2031, 12, 5));
  EXPECT_EQ(pagina(), QString());
  EXPECT_EQ(f().Text1->text(), u"05/12/2031"_s);
  digita(0, u"lontano"_s);
  f().Calendar1->setSelectedDate(QDate(2026, 3, 9));
  EXPECT_EQ(pagina(), u"10:00 primo"_s);
  digita(20, u" "_s);
  QTest::keyClick(f().DBGrid1->viewport()->findChildren<QLineEdit*>().last(), Qt::Key_Backspace);
  f().Calendar1->setSelectedDate(QDate(2031, 12, 5));
  EXPECT_EQ(pagina(), u"00:00 lontano"_s);
  EXPECT_EQ(diario(), u"05/12/2031 00:00 lontano"_s) << "an empty day leaves no row";
}

TEST_F(ProvaAgenda, AnAppointmentThatIsNoSlotsHoldsUpTheLaterOnes) {
  const std::vector<Impegno> slot{{u"08:00"_s, {}}, {u"08:30"_s, {}}, {u"09:00"_s, {}}};
  const std::pair<std::vector<Impegno>, QString> casi[]{
      {{{u"08:00"_s, u"a"_s}, {u"09:00"_s, u"b"_s}}, u"a,,b"_s},
      {{{u"8:00:15"_s, u"a"_s}, {u"08:30"_s, u"b"_s}}, u"a,b,"_s},
      {{{u"08:00"_s, u"a"_s}, {u"08:10"_s, u"b"_s}, {u"09:00"_s, u"c"_s}}, u"a,,"_s},
      {{{u"08:30"_s, u"a"_s}, {u"08:30"_s, u"b"_s}, {u"09:00"_s, u"c"_s}}, u",a,"_s},
      {{}, u",,"_s}};
  for (const auto& [appuntamenti, attesi] : casi) {
    QStringList testi;
    for (const Impegno& i : disponi(slot, appuntamenti)) testi << i.promemoria;
    EXPECT_EQ(testi.join(u','), attesi);
  }
}

TEST_F(ProvaAgenda, TheDayBeginsInTheMorningAndTheArrowsScrollWhileHeld) {
  apri();
  const auto primo = [] { return f().DBGrid1->verticalScrollBar()->value(); };
  EXPECT_EQ(primo(), 14);
  for (const auto& [freccia, fino_a] : {std::pair{f().Image2, 0}, {f().Image1, 14}}) {
    QTest::mousePress(freccia, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return primo() == fino_a; }));
    QTest::qWait(40);
    QTest::mouseRelease(freccia, Qt::LeftButton);
    EXPECT_TRUE(primo() == fino_a && !f().Timer1->isActive());
    m.cmdsopra[12]->click();
    m.menuag->trigger();
    EXPECT_EQ(primo(), fino_a) << "it goes to the morning only the first time in front";
  }
}
