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
  static void aggiungi(const std::vector<Cliente>& clienti) {
    for (const Cliente& c : clienti) {
      scrivi(file_di(c), contenuto(cliente("1900_ferri")));
      Archivio(file_di(c)).esegui(u"UPDATE anagrafe SET cod = ?, cognome = ?, nome = ?"_s, c.cod, c.cognome, c.nome);
      iscrivi({c.cod, c.cognome.section(u' ', 0, 0), file_di(c)});
    }
  }
  static QString iscritti_in_ordine() {
    QStringList nomi;
    for (const Iscritto& i : iscritti()) nomi << i.cognome;
    return nomi.join(u' ');
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
  static void clic_su(int riga) { clic(archivio().Tabella, riga, 2); }
  [[nodiscard]] std::array<bool, 4> comandi() const {
    return {archivio().Command10[2]->isEnabled(), archivio().Cmddelete->isEnabled(), m.afc->isEnabled(),
            archivio().Tabella->isEnabled()};
  }
};

constexpr std::array tutti_accesi{true, true, true, true}, tutti_spenti{false, false, false, false};
const Cliente alba{1, u"ALBA"_s, u"EVA"_s}, amato{2, u"AMATO"_s, u"UGO"_s}, arco{3, u"ARCO"_s, u"PIO"_s},
    asti{4, u"ASTI"_s, u"LIA"_s}, de_rossi{12, u"DE ROSSI"_s, u"MARIO"_s};

}  // namespace

TEST_F(ProvaArchivio, EachTabListsItsLetterInOrder) {
  aggiungi({{3, u"BRUNI"_s, u"EVA"_s},
            {7, u"AMATO"_s, u"UGO"_s},
            de_rossi,
            {20, u"AMATO"_s, u"ADA"_s},
            {5, u"ZITO"_s, u"IDA"_s},
            {9, u"ÈVE"_s, u"ANNA"_s},
            {11, u"amato"_s, u"LEA"_s}});
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
  EXPECT_FALSE(caricata<Formsched>() || m.afc->isEnabled());
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
  aggiungi({alba, amato, arco, asti});
  QFile::remove(file_di(alba));
  scrivi(file_di(amato), "non un archivio, ma un testo che ne ha preso il posto");
  Dialogo d(
      {{u"I dati di questi clienti non si possono leggere; restano nello schedario :\n"
        "2 AMATO: Il file '2_AMATO.orzaline' è danneggiato, non è un archivio o ha un'altra password."_s,
        u"Orzaline  control"_s}});
  apri();
  EXPECT_EQ(codici() + u" / "_s + iscritti_in_ordine(), u"3 4 / AMATO ARCO ASTI"_s);
  QFile::remove(file_di(arco));
  d.attendi({u"La cartella di ARCO è stata danneggiata\nmodificata o altro, i suoi dati andranno persi !"_s,
             u"Orzaline  control"_s});
  scheda(26);
  EXPECT_EQ(codici() + u" / "_s + iscritti_in_ordine(), u"4 / AMATO ASTI"_s);
}

TEST_F(ProvaArchivio, AClientIsRecalledByButtonMenuAndDoubleClick) {
  aggiungi({amato, arco});
  const std::pair<const char*, std::function<void()>> vie[]{
      {"button", [] { archivio().Command10[2]->click(); }},
      {"menu", [this] { m.afc->trigger(); }},
      {"double click",
       [] {
         const QTableWidget* t = archivio().Tabella;
         QTest::mouseDClick(t->viewport(), Qt::LeftButton, {}, t->visualItemRect(t->item(1, 2)).center());
       }},
  };
  for (const auto& [nome, via] : vie) {
    SCOPED_TRACE(nome);
    m.LabPesoOld.setText(u"99"_s);
    dieta_caricata = true;
    apri();
    clic_su(1);
    via();
    ASSERT_TRUE(caricata<Formanag>() && schermata<Formanag>().isVisible() && !caricata<Formsched>());
    EXPECT_EQ(m.qualeform.text() + m.Txtcod->text() + m.Txtsoggetto->text(), u"03ARCO PIO"_s);
    EXPECT_EQ(m.LabPesoOld.text(), schermata<Formanag>().Txtpeso->text());
    EXPECT_FALSE(dieta_caricata) << "the former client's diet is not this one's";
    EXPECT_TRUE(m.Command2[1]->isEnabled() && m.Command1[1]->isEnabled());
  }
  apri();
  EXPECT_FALSE(esiste_dati_tmp() || m.Command2[1]->isEnabled()) << "nobody is open";
}

TEST_F(ProvaArchivio, AFileThatIsNoWholeClientIsNotRecalled) {
  aggiungi({amato});
  const QByteArray buono = contenuto(file_di(amato));
  apri();
  clic_su(0);
  for (const QByteArray& dentro :
       {QByteArray(), buono.chopped(1024), rovinato(buono, buono.size() - 500), contenuto(percorso(u"fc.jed"_s))}) {
    scrivi(file_di(amato), dentro);
    const Dialogo d({errore_caricamento});
    archivio().Command10[2]->click();
    EXPECT_TRUE(caricata<Formsched>() && !esiste_dati_tmp());
    EXPECT_EQ(contenuto(file_di(amato)), dentro);
  }
  QFile::remove(file_di(amato));
  const Dialogo d({errore_caricamento, errore_caricamento});
  archivio().Command10[2]->click();
  archivio().Tabella->clearSelection();
  EXPECT_EQ(richiama_cliente(), -1) << "no line is chosen";
}

TEST_F(ProvaArchivio, ANewClientHasANumberADateAndAFollowUpSheetButNoRow) {
  esterno().oggi = [] { return QDate(2026, 3, 9); };
  aggiungi({{41, u"AMATO"_s, u"UGO"_s}});
  scrivi(percorso(u"dati.tmp"_s), "resti di un altro");
  apri();
  archivio().Command10[0]->click();
  ASSERT_TRUE(caricata<Formanag>() && schermata<Formanag>().isVisible());
  EXPECT_EQ(m.Txtcod->text(), u"42"_s);
  EXPECT_EQ(schermata<Formanag>().txtdatavisita->date(), QDate(2026, 3, 9));
  EXPECT_FALSE(m.Command1[1]->isEnabled() || m.Command2[1]->isEnabled()) << "nobody has a name yet";
  for (const auto& [nome, atteso] : {std::pair{u"Date"_s, u"09/03/2026+++++++"_s},
                                     {u"peso"_s, u"+++++++"_s},
                                     {u"cod_cli"_s, u"42"_s},
                                     {u"notepeso"_s, u""_s}}) {
    EXPECT_EQ(campo(u"trattamento"_s, nome).toString(), atteso);
  }
  EXPECT_EQ(iscritti_in_ordine(), u"AMATO"_s);
}

TEST_F(ProvaArchivio, DeletingAsksAndTakesRowFolderAndLine) {
  const auto chiede = [](const QString& chi, bool risposta = true) {
    return Atteso{u"Sei sicuro di voler eliminare il cliente \n    "_s + chi, u"Orzaline control"_s, risposta};
  };
  aggiungi({amato, arco, de_rossi});
  apri();
  clic_su(0);
  Dialogo d({chiede(u"AMATO UGO"_s, false)});
  archivio().Cmddelete->click();
  EXPECT_EQ(iscritti_in_ordine(), u"AMATO ARCO DE"_s);
  d.attendi(chiede(u"AMATO UGO"_s));
  QTest::keyClick(archivio().Tabella, Qt::Key_Delete);
  EXPECT_EQ(iscritti_in_ordine(), u"ARCO DE"_s);
  EXPECT_FALSE(QDir(percorso(u"2_AMATO"_s)).exists());
  EXPECT_EQ(codici() + u'/' + archivio().Txtcont->text(), u"3/1"_s);
  clic_su(0);
  d.attendi(chiede(u"ARCO PIO"_s));
  archivio().Cmddelete->click();
  EXPECT_EQ(comandi(), tutti_spenti);
  // The folder of a surname of two words bears the first alone: it is not found once the row is gone.
  scheda(3);
  clic_su(0);
  d.attendi(chiede(u"DE ROSSI MARIO"_s));
  Fallimenti f;
  archivio().Cmddelete->click();
  EXPECT_EQ(f.numeri, std::vector{76});
  EXPECT_TRUE(iscritti().empty() && QFile::exists(file_di(de_rossi)));
  EXPECT_EQ(prossimo_cod(), 1) << "the number of a deleted client can come back";
}

TEST_F(ProvaArchivio, TheSearchFindsTheFirstLineAtOrAfterTheText) {
  aggiungi({{3, u"BRUNI"_s, u"EVA"_s},
            {12, u"AMATO"_s, u"UGO"_s},
            {100, u"CORSI"_s, u"ADA"_s},
            {25, u"DE ROSSI"_s, u"PIO"_s}});
  apri();
  // By code, by surname or by neither, what is typed, the code that is found.
  const std::tuple<std::size_t, QString, QString> casi[]{
      {1, u"bruni"_s, u"3"_s}, {1, u"c"_s, u"100"_s}, {1, u"de rossi"_s, u"25"_s},
      {1, u"e"_s, {}},         {0, u"3"_s, u"3"_s},   {0, u"2"_s, u"3"_s},
      {0, u"100"_s, u"12"_s},  {0, u"9"_s, {}},       {2, u"a"_s, {}}};
  for (const auto& [tipo, digitato, trovato] : casi) {
    SCOPED_TRACE(digitato.toStdString());
    scheda(0);
    archivio().Command10[1]->click();
    auto& r = schermata<Formricerca>();
    EXPECT_FALSE(r.cmdricerca->isEnabled());
    if (tipo < 2) r.Option1[tipo]->click();
    EXPECT_EQ(r.Label1->text(), u"Immettere il "_s + (tipo == 0 ? u"codice"_s : tipo == 1 ? u"cognome"_s : u""_s));
    QTest::keyClicks(r.Textval, digitato);
    EXPECT_EQ(r.Textval->text(), digitato.toUpper());
    r.cmdricerca->click();
    EXPECT_EQ(caricata<Formricerca>() == nullptr, !trovato.isEmpty());
    if (trovato.isEmpty()) {
      EXPECT_TRUE(r.Labelatt->isVisible());
      r.Cmdannulla->click();
      EXPECT_FALSE(r.Option1[0]->isChecked() || r.Option1[1]->isChecked() || r.Labelatt->isVisible());
      EXPECT_EQ(r.Label1->text() + r.Textval->text(), u"Immettere il "_s);
      r.Command1->click();
      continue;
    }
    EXPECT_EQ(archivio().testo(archivio().riga_scelta(), 0), trovato);
    EXPECT_EQ(m.focusWidget(), archivio().Tabella);
  }
}

TEST_F(ProvaArchivio, ComingBackToTheArchiveListsItAnew) {
  aggiungi({amato});
  apri();
  m.i_e->trigger();
  EXPECT_FALSE(m.afc->isEnabled()) << "the archive is not in front";
  aggiungi({arco});
  schermata<Formi_e>().Command3->click();
  EXPECT_EQ(codici(), u"2 3"_s);
  EXPECT_TRUE(m.afc->isEnabled());
}
