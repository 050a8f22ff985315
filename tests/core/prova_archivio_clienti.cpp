// The archive: who is listed where, searching, recalling, beginning and deleting clients.
#include "core/clienti.h"
#include "core/formi_e.h"
#include "core/formricerca.h"
#include "intake/formanag.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso errore_caricamento{u"Si è verificato un errore nel caricamento !"_s, {}};

struct Cliente {
  int cod;
  QString cognome;
  QString nome;
};

struct ProvaArchivio : Ambiente {
  ProvaArchivio() {
    schedario().esegui(u"DELETE FROM schedario"_s);
    mostra<Mdiorza>();
  }
  Mdiorza& m = schermata<Mdiorza>();

  /// The folder and file of a client, registered under the first word of the surname.
  static QString file_di(const Cliente& c) {
    const QString nome = QString::number(c.cod) + u'_' + c.cognome.section(u' ', 0, 0);
    return percorso(nome + u'/' + nome + u".orzaline"_s);
  }
  static void aggiungi(const Cliente& c) {
    scrivi(file_di(c), contenuto(cliente("1900_ferri")));
    Archivio(file_di(c)).esegui(u"UPDATE anagrafe SET cod = ?, cognome = ?, nome = ?"_s, c.cod, c.cognome, c.nome);
    iscrivi({c.cod, c.cognome.section(u' ', 0, 0), file_di(c)});
  }
  void apri() { m.cmdsopra[0]->click(); }
  static Formsched& archivio() { return schermata<Formsched>(); }
  /// The numbers of the clients that are listed.
  static QString codici() {
    QStringList testi;
    for (int r = 0; r < archivio().Tabella->rowCount(); ++r) testi << archivio().testo(r, 0);
    return testi.join(u' ');
  }
  static void scheda(int tab) {
    QTest::mouseClick(archivio().SSTabschedario, Qt::LeftButton, {}, archivio().SSTabschedario->tabRect(tab).center());
  }
  static void clic_su(int riga, bool doppio = false) {
    QTableWidget* t = archivio().Tabella;
    const QPoint dove = t->visualItemRect(t->item(riga, 2)).center();
    QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, dove);
    if (doppio) QTest::mouseDClick(t->viewport(), Qt::LeftButton, {}, dove);
  }
  static QStringList registro() {
    QStringList righe;
    for (const Iscritto& i : iscritti()) righe << QString::number(i.cod) + u' ' + i.cognome;
    return righe;
  }
  [[nodiscard]] std::array<bool, 4> comandi() const {
    return {archivio().Command10[2]->isEnabled(), archivio().Cmddelete->isEnabled(), m.afc->isEnabled(),
            archivio().Tabella->isEnabled()};
  }
};

constexpr std::array tutti_accesi{true, true, true, true}, tutti_spenti{false, false, false, false};

}  // namespace

TEST_F(ProvaArchivio, EachTabListsItsLetterInOrder) {
  for (const Cliente& c :
       {Cliente{3, u"BRUNI"_s, u"EVA"_s}, Cliente{7, u"AMATO"_s, u"UGO"_s}, Cliente{12, u"DE ROSSI"_s, u"MARIO"_s},
        Cliente{20, u"AMATO"_s, u"ADA"_s}, Cliente{5, u"ZITO"_s, u"IDA"_s}, Cliente{9, u"ÈVE"_s, u"ANNA"_s},
        Cliente{11, u"amato"_s, u"LEA"_s}}) {
    aggiungi(c);
  }
  apri();
  EXPECT_EQ(codici(), u"20 7"_s) << "the archive opens on A";
  const std::pair<int, QString> casi[]{{1, u"3"_s}, {3, u"12"_s}, {4, {}}, {25, u"5"_s}, {26, u"20 7 3 12 5 11 9"_s}};
  for (const auto& [tab, attesi] : casi) {
    scheda(tab);
    EXPECT_EQ(codici(), attesi) << tab;
    EXPECT_EQ(archivio().Txtcont->text(), QString::number(archivio().Tabella->rowCount())) << tab;
    EXPECT_EQ(comandi(), attesi.isEmpty() ? tutti_spenti : tutti_accesi) << tab;
  }
  EXPECT_EQ(archivio().testo(3, 2), u"DE ROSSI"_s) << "the surname is the file's, not the registry's";
  archivio().Command10[3]->click();
  EXPECT_FALSE(caricata<Formsched>());
  EXPECT_FALSE(m.afc->isEnabled());
}

TEST_F(ProvaArchivio, AnEmptyArchiveOffersANewClientAlone) {
  apri();
  EXPECT_EQ(archivio().Txtcont->text(), u"0"_s);
  EXPECT_EQ(comandi(), tutti_spenti);
  EXPECT_EQ(prossimo_cod(), 1);
  EXPECT_EQ(cod_libero(), 1);
  iscrivi({32767, u"ULTIMO"_s, u"x"_s});
  EXPECT_EQ(prossimo_cod(), 32768);
  EXPECT_THROW(static_cast<void>(cod_libero()), Errore);
}

TEST_F(ProvaArchivio, AFileThatIsGoneTakesItsRowAlongAndOneThatCannotBeReadKeepsIt) {
  for (const Cliente& c : {Cliente{1, u"ALBA"_s, u"EVA"_s}, Cliente{2, u"AMATO"_s, u"UGO"_s},
                           Cliente{3, u"ARCO"_s, u"PIO"_s}, Cliente{4, u"ASTI"_s, u"LIA"_s}}) {
    aggiungi(c);
  }
  QFile::remove(file_di({1, u"ALBA"_s, {}}));
  scrivi(file_di({2, u"AMATO"_s, {}}), "non un archivio, ma un testo che ne ha preso il posto");
  Dialogo d(
      {{u"I dati di questi clienti non si possono leggere; restano nello schedario :\n"
        "2 AMATO: Il file '2_AMATO.orzaline' è danneggiato, non è un archivio o ha un'altra password."_s,
        u"Orzaline  control"_s}});
  apri();
  EXPECT_EQ(codici(), u"3 4"_s);
  EXPECT_EQ(registro(), (QStringList{u"2 AMATO"_s, u"3 ARCO"_s, u"4 ASTI"_s}));
  QFile::remove(file_di({3, u"ARCO"_s, {}}));
  d.attendi({u"La cartella di ARCO è stata danneggiata\nmodificata o altro, i suoi dati andranno persi !"_s,
             u"Orzaline  control"_s});
  scheda(26);
  EXPECT_EQ(registro(), (QStringList{u"2 AMATO"_s, u"4 ASTI"_s}));
  EXPECT_EQ(codici(), u"4"_s);
}

TEST_F(ProvaArchivio, AClientIsRecalledByButtonMenuAndDoubleClick) {
  aggiungi({2, u"AMATO"_s, u"UGO"_s});
  aggiungi({3, u"ARCO"_s, u"PIO"_s});
  const std::pair<const char*, std::function<void()>> vie[]{
      {"button", [] { archivio().Command10[2]->click(); }},
      {"menu", [this] { m.afc->trigger(); }},
      {"double click", [] { clic_su(1, true); }},
  };
  for (const auto& [nome, via] : vie) {
    m.LabPesoOld.setText(u"99"_s);
    dieta_caricata = true;
    apri();
    clic_su(1);
    EXPECT_EQ(archivio().riga_scelta(), 1);
    via();
    ASSERT_TRUE(caricata<Formanag>() && schermata<Formanag>().isVisible()) << nome;
    EXPECT_FALSE(caricata<Formsched>()) << nome;
    EXPECT_EQ(m.qualeform.text(), u"0"_s) << nome;
    EXPECT_EQ(m.Txtcod->text() + m.Txtsoggetto->text(), u"3ARCO PIO"_s) << nome;
    EXPECT_EQ(m.LabPesoOld.text(), schermata<Formanag>().Txtpeso->text()) << nome;
    EXPECT_FALSE(dieta_caricata) << nome << ": the former client's diet is not this one's";
    EXPECT_TRUE(m.Command2[1]->isEnabled() && m.Command1[1]->isEnabled()) << nome;
  }
  apri();
  EXPECT_FALSE(esiste_dati_tmp());
  EXPECT_FALSE(m.Command2[1]->isEnabled()) << "nobody is open";
}

TEST_F(ProvaArchivio, AFileThatIsNoWholeClientIsNotRecalled) {
  const Cliente c{2, u"AMATO"_s, u"UGO"_s};
  aggiungi(c);
  const QByteArray buono = contenuto(file_di(c));
  apri();
  clic_su(0);
  Dialogo d;
  for (const QByteArray& dentro :
       {QByteArray(), buono.chopped(1024), rovinato(buono, buono.size() - 500), contenuto(percorso(u"fc.jed"_s))}) {
    scrivi(file_di(c), dentro);
    d.attendi(errore_caricamento);
    archivio().Command10[2]->click();
    EXPECT_TRUE(d.finito());
    EXPECT_TRUE(caricata<Formsched>());
    EXPECT_FALSE(esiste_dati_tmp());
    EXPECT_EQ(contenuto(file_di(c)), dentro);
  }
  QFile::remove(file_di(c));
  d.attendi(errore_caricamento);
  archivio().Command10[2]->click();
  archivio().Tabella->clearSelection();
  d.attendi(errore_caricamento);
  EXPECT_EQ(richiama_cliente(), -1) << "no line is chosen";
}

TEST_F(ProvaArchivio, ANewClientHasANumberADateAndAFollowUpSheetButNoRow) {
  esterno().oggi = [] { return QDate(2026, 3, 9); };
  aggiungi({41, u"AMATO"_s, u"UGO"_s});
  scrivi(percorso(u"dati.tmp"_s), "resti di un altro");
  apri();
  archivio().Command10[0]->click();
  ASSERT_TRUE(caricata<Formanag>() && schermata<Formanag>().isVisible());
  EXPECT_EQ(m.Txtcod->text(), u"42"_s);
  EXPECT_EQ(schermata<Formanag>().txtdatavisita->date(), QDate(2026, 3, 9));
  EXPECT_FALSE(m.Command1[1]->isEnabled() || m.Command2[1]->isEnabled()) << "nobody has a name yet";
  const auto righe = dati_tmp().righe(u"SELECT * FROM trattamento"_s);
  ASSERT_EQ(righe.size(), 1U);
  EXPECT_EQ(righe.front()[u"Date"], u"09/03/2026+++++++"_s);
  for (const QString& serie : {u"peso"_s, u"braccia"_s, u"acqua"_s}) {
    EXPECT_EQ(righe.front()[serie], u"+++++++"_s) << serie.toStdString();
  }
  EXPECT_EQ(righe.front()[u"cod_cli"], u"42"_s);
  EXPECT_EQ(righe.front()[u"notepeso"].toString(), QString());
  EXPECT_EQ(registro(), QStringList{u"41 AMATO"_s});
}

TEST_F(ProvaArchivio, DeletingAsksAndTakesRowFolderAndLine) {
  const Cliente amato{2, u"AMATO"_s, u"UGO"_s};
  aggiungi(amato);
  aggiungi({3, u"ARCO"_s, u"PIO"_s});
  apri();
  const Atteso domanda_amato{u"Sei sicuro di voler eliminare il cliente \n    AMATO UGO"_s, u"Orzaline control"_s,
                             false};
  clic_su(0);
  Dialogo d({domanda_amato});
  archivio().Cmddelete->click();
  EXPECT_EQ(registro().size(), 2);
  d.attendi({domanda_amato.testo, domanda_amato.titolo});
  QTest::keyClick(archivio().Tabella, Qt::Key_Delete);
  EXPECT_EQ(registro(), QStringList{u"3 ARCO"_s});
  EXPECT_FALSE(QDir(percorso(u"2_AMATO"_s)).exists());
  EXPECT_EQ(codici(), u"3"_s);
  EXPECT_EQ(archivio().Txtcont->text(), u"1"_s);
  clic_su(0);
  d.attendi({u"Sei sicuro di voler eliminare il cliente \n    ARCO PIO"_s, u"Orzaline control"_s});
  archivio().Cmddelete->click();
  EXPECT_EQ(comandi(), tutti_spenti);
  EXPECT_EQ(prossimo_cod(), 1) << "the number of a deleted client can come back";
}

TEST_F(ProvaArchivio, ATwoWordSurnameFailsAfterTheRowIsGone) {
  const Cliente c{12, u"DE ROSSI"_s, u"MARIO"_s};
  aggiungi(c);
  apri();
  scheda(3);
  clic_su(0);
  Dialogo d({{u"Sei sicuro di voler eliminare il cliente \n    DE ROSSI MARIO"_s, u"Orzaline control"_s}});
  Fallimenti f;
  archivio().Cmddelete->click();
  EXPECT_EQ(f.numeri, std::vector{76});
  EXPECT_TRUE(registro().isEmpty());
  EXPECT_TRUE(QFile::exists(file_di(c)));
}

TEST_F(ProvaArchivio, TheSearchFindsTheFirstLineAtOrAfterTheText) {
  for (const Cliente& c : {Cliente{3, u"BRUNI"_s, u"EVA"_s}, Cliente{12, u"AMATO"_s, u"UGO"_s},
                           Cliente{100, u"CORSI"_s, u"ADA"_s}, Cliente{25, u"DE ROSSI"_s, u"PIO"_s}}) {
    aggiungi(c);
  }
  apri();
  // By code or by surname, what is typed, the code that is found.
  const std::tuple<std::size_t, QString, QString> casi[]{
      {1, u"bruni"_s, u"3"_s}, {1, u"c"_s, u"100"_s}, {1, u"de rossi"_s, u"25"_s}, {1, u"e"_s, {}},
      {0, u"3"_s, u"3"_s},     {0, u"2"_s, u"3"_s},   {0, u"100"_s, u"12"_s},      {0, u"9"_s, {}}};
  for (const auto& [tipo, digitato, trovato] : casi) {
    scheda(0);
    archivio().Command10[1]->click();
    auto& r = schermata<Formricerca>();
    EXPECT_FALSE(r.cmdricerca->isEnabled());
    r.Option1[tipo]->click();
    EXPECT_EQ(r.Label1->text(), tipo == 0 ? u"Immettere il codice"_s : u"Immettere il cognome"_s);
    QTest::keyClicks(r.Textval, digitato);
    EXPECT_EQ(r.Textval->text(), digitato.toUpper());
    r.cmdricerca->click();
    const std::string nome = digitato.toStdString();
    EXPECT_EQ(caricata<Formricerca>() == nullptr, !trovato.isEmpty()) << nome;
    if (trovato.isEmpty()) {
      EXPECT_TRUE(r.Labelatt->isVisible()) << nome;
      r.Textval->setText(u"  "_s);
      EXPECT_FALSE(r.Labelatt->isVisible() || r.cmdricerca->isEnabled()) << nome;
      r.Command1->click();
      continue;
    }
    EXPECT_EQ(archivio().testo(archivio().riga_scelta(), 0), trovato) << nome;
    EXPECT_EQ(m.focusWidget(), archivio().Tabella) << nome;
  }
}

TEST_F(ProvaArchivio, TheSearchWithoutAKindFindsNobodyAndCanBeClearedOut) {
  aggiungi({12, u"AMATO"_s, u"UGO"_s});
  apri();
  archivio().Command10[1]->click();
  auto& r = schermata<Formricerca>();
  QTest::keyClicks(r.Textval, u"a"_s);
  r.cmdricerca->click();
  EXPECT_TRUE(r.Labelatt->isVisible());
  r.Option1[1]->click();
  r.Cmdannulla->click();
  EXPECT_FALSE(r.Option1[0]->isChecked() || r.Option1[1]->isChecked() || r.Labelatt->isVisible());
  EXPECT_EQ(r.Label1->text() + r.Textval->text(), u"Immettere il "_s);
  EXPECT_FALSE(r.cmdricerca->isEnabled());
}

TEST_F(ProvaArchivio, TheKeyboardGoesThroughTheScreenInReadingOrder) {
  aggiungi({12, u"AMATO"_s, u"UGO"_s});
  apri();
  Formsched& a = archivio();
  m.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&m));
  a.SSTabschedario->setFocus();
  for (QWidget* w : std::initializer_list<QWidget*>{a.Tabella, a.Command10[0], a.Command10[1], a.Command10[2],
                                                    a.Cmddelete, a.Command10[3]}) {
    QTest::keyClick(m.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(m.focusWidget(), w) << w->objectName().toStdString();
  }
  EXPECT_EQ(a.riga_scelta(), 0);
}

TEST_F(ProvaArchivio, ComingBackToTheArchiveListsItAnew) {
  aggiungi({12, u"AMATO"_s, u"UGO"_s});
  apri();
  m.i_e->trigger();
  EXPECT_FALSE(m.afc->isEnabled()) << "the archive is not in front";
  aggiungi({13, u"ARCO"_s, u"PIO"_s});
  schermata<Formi_e>().Command3->click();
  EXPECT_EQ(codici(), u"12 13"_s);
  EXPECT_TRUE(m.afc->isEnabled());
}
