// The general save: file, registry and address book, for new clients, known ones and copies.
#include "core/salvataggio.h"

#include "core/formalert.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/salva_carica.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "office/rubrica_sync.h"

#include "ambiente.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

Atteso domanda_semplice(bool risposta = true) {
  return {u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s, risposta};
}
Atteso domanda_rubrica(bool risposta = true) {
  return {
      u"Salvataggio generale degli archivi. \n"
      "Il nome è già presente in rubrica, i dati verranno sovrascritti. Procedere ?"_s,
      u"Orzaline  control"_s, risposta};
}
Atteso avviso(bool nuovo) {
  return {
      u"Il paziente è già presente in archivio.\n"
      "Se si vuol salvare sovrascrivendo i dati, cliccare su SOVRASCRIVERE.\n"
      "Se si vuol salvare con diverso codice, cliccare su NUOVO"_s,
      u"Attenzione"_s, nuovo};
}

struct ProvaSalvataggio : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();
  const QDate giorno{2026, 3, 14};

  ProvaSalvataggio() {
    esterno().oggi = [this] { return giorno; };
  }

  /// A new client in front, born in Rome and living in Pescara.
  void comincia(const QString& cognome, const QString& nome) {
    scarica_schede();
    elimina_dati_tmp();
    azzera_banner();
    mostra<Formanag>();
    auto& f = schermata<Formanag>();
    f.txtdatavisita->setDate(giorno.addDays(-7));
    for (const auto& [casella, testo] : {std::pair{f.Txtcod, QString::number(prossimo_cod())},
                                         {f.Txtcognome, cognome},
                                         {f.TxtNOME, nome},
                                         {f.Txtpeso, u"72"_s},
                                         {f.Txtind, u"via dei Mille 7"_s},
                                         {f.txttel1, u"085-1"_s},
                                         {f.Txttel2, u"085-2"_s},
                                         {f.Txtcell, u"333"_s},
                                         {f.Txtmail, u"a@b.it"_s}}) {
      casella->setText(testo);
    }
    for (const auto& [lista, voce] : {std::pair{f.comboprov, u"RM"_s},
                                      {f.Combocom, u"Roma"_s},
                                      {f.comboprov2, u"PE"_s},
                                      {f.Combocom2, u"Pescara"_s}}) {
      scegli(lista, lista->findText(voce));
    }
  }

  void salva(const std::deque<Atteso>& attesi) {
    Dialogo d(attesi);
    m.Command2[1]->click();
  }
  static QVariantMap anagrafe(const QString& file) {
    Archivio cliente(percorso(file), accesso, Archivio::Modo::sola_lettura);
    return carica_riga(cliente, u"anagrafe"_s);
  }
  /// The first row of a table of the address book: the fields that hold something.
  static QString riassunto(const QString& tabella) {
    QStringList campi;
    const QVariantMap riga = rubrica(tabella)[0];
    for (const auto& [nome, valore] : riga.asKeyValueRange()) {
      if (!valore.toString().isEmpty()) campi << nome + u'=' + valore.toString();
    }
    return campi.join(u' ');
  }
  static std::vector<QVariantMap> rubrica(const QString& tabella) {
    Archivio a(percorso(u"rubrica.jed"_s));
    return carica_righe(a, tabella);
  }
};

}  // namespace

TEST_F(ProvaSalvataggio, ANewClientComesInWithoutAnAlert) {
  comincia(u"ROSSI"_s, u"MARIA"_s);
  salva({domanda_semplice(false)});
  EXPECT_FALSE(QFile::exists(percorso(u"1_ROSSI"_s)));
  EXPECT_TRUE(registro().isEmpty() && rubrica(u"Nomi"_s).empty());
  salva({domanda_semplice()});
  EXPECT_EQ(registro(), QStringList{u"1 ROSSI 1_ROSSI/1_ROSSI.orzaline"_s});
  const QVariantMap salvata = anagrafe(u"1_ROSSI/1_ROSSI.orzaline"_s);
  EXPECT_EQ(salvata.value(u"cognome"_s), u"ROSSI"_s) << "the stage in front was saved first";
  EXPECT_EQ(salvata.value(u"data_visita"_s), u"07/03/2026"_s);
  EXPECT_TRUE(esiste_dati_tmp());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ProvaSalvataggio, AKnownClientIsOverwrittenOnlyAfterTheAlert) {
  comincia(u"ROSSI"_s, u"MARIA"_s);
  salva({domanda_semplice()});
  schermata<Formanag>().Txtpeso->setText(u"70"_s);
  salva({domanda_rubrica(), avviso(false)});
  EXPECT_EQ(registro(), QStringList{u"1 ROSSI 1_ROSSI/1_ROSSI.orzaline"_s});
  EXPECT_EQ(anagrafe(u"1_ROSSI/1_ROSSI.orzaline"_s).value(u"peso"_s), 70.0);
  EXPECT_EQ(rubrica(u"Nomi"_s).size(), 1U);
  schermata<Formanag>().Txtcognome->setText(u"VERDI"_s);
  salva({domanda_semplice(), avviso(false)});
  EXPECT_EQ(registro(), QStringList{u"1 VERDI 1_VERDI/1_VERDI.orzaline"_s});
  EXPECT_TRUE(QFile::exists(percorso(u"1_ROSSI/1_ROSSI.orzaline"_s))) << "the old folder stays";
}

TEST_F(ProvaSalvataggio, ACopyTakesANewNumberFromWhateverStageIsInFront) {
  for (const bool in_vista : {true, false}) {
    comincia(in_vista ? u"ROSSI"_s : u"VERDI"_s, u"ADA"_s);
    salva({domanda_semplice()});
    const QString cod = m.Txtcod->text(), nuovo = QString::number(cod.toInt() + 1);
    const QString vecchio = percorso_cliente();
    const QByteArray prima = contenuto(vecchio);
    const QVariantMap riga = anagrafe(vecchio);
    if (!in_vista) {
      scarica<Formanag>();
      mostra<Formelabora>();
    }
    salva({domanda_rubrica(), avviso(true)});
    EXPECT_EQ(contenuto(vecchio), prima);
    EXPECT_EQ(m.Txtcod->text(), nuovo);
    EXPECT_EQ(m.LabPesoOld.text(), u"72"_s);
    QVariantMap attesa = riga;
    attesa[u"cod"_s] = nuovo.toLongLong();
    attesa[u"data_visita"_s] = u"14/03/2026"_s;
    EXPECT_EQ(anagrafe(percorso_cliente()), attesa) << "in front: " << in_vista;
    EXPECT_EQ(rubrica(u"Abitazione"_s).back().value(u"provincia"_s), u"PE"_s);
    salva({domanda_rubrica(), avviso(false)});
    EXPECT_TRUE(registro().contains(u"%1 %2 %1_%2/%1_%2.orzaline"_s.arg(nuovo, riga.value(u"cognome"_s).toString())));
  }
  EXPECT_EQ(registro().size(), 4);
}

TEST_F(ProvaSalvataggio, TheClientIsMirroredInTheAddressBook) {
  Archivio(percorso(u"rubrica.jed"_s))
      .esegui_copione(
          u"INSERT INTO Nomi (ID, nome, cognome) VALUES (4, ' ROSSI MARIO ', 'DE'), (9, 'MARIO', 'BIANCHI');"
          "INSERT INTO Abitazione (id) VALUES (4), (9);"
          "INSERT INTO Ufficio (id, Societa) VALUES (4, 'tipografia'), (9, 'tipografia');"
          "INSERT INTO NumTel (id, EMail, Cellulare) VALUES (4, 'x@y.it', '347'), (9, 'x@y.it', '347')"_s);
  comincia(u"DE ROSSI"_s, u"MARIO"_s);
  EXPECT_EQ(cognome_da_soggetto(), u"DE "_s);
  EXPECT_EQ(nome_da_soggetto(), u"ROSSI MARIO"_s);
  salva({domanda_rubrica()});
  EXPECT_EQ(registro(), QStringList{u"1 DE 1_DE/1_DE.orzaline"_s});
  EXPECT_EQ(riassunto(u"Nomi"_s), u"ID=4 NomeCognome=ROSSI MARIO DE cognome=DE nome=ROSSI MARIO"_s);
  EXPECT_EQ(riassunto(u"Abitazione"_s), u"cap="_s + schermata<Formanag>().Txtcap->text() +
                                            u" id=4 indirizzo=via dei Mille 7 paese=Pescara provincia=PE"_s);
  EXPECT_EQ(riassunto(u"Ufficio"_s), u"id=4"_s);
  EXPECT_EQ(riassunto(u"NumTel"_s), u"Cellulare=085-2 abitazione=085-1 id=4"_s);
  EXPECT_EQ(rubrica(u"NumTel"_s)[1].value(u"Cellulare"_s), u"347"_s) << "other people stay as they are";
  schermata<Formanag>().TxtNOME->setText(u"ADA"_s);
  salva({domanda_semplice(), avviso(false)});
  ASSERT_EQ(rubrica(u"Nomi"_s).size(), 3U);
  const QVariant id = rubrica(u"Nomi"_s)[2].value(u"ID"_s);
  for (const QString& t : {u"Abitazione"_s, u"Ufficio"_s, u"NumTel"_s}) {
    EXPECT_EQ(rubrica(t).size(), 3U);
    EXPECT_EQ(rubrica(t)[2].value(u"id"_s), id) << "the number that the engine gave to the name";
  }
}

TEST_F(ProvaSalvataggio, APersonWithoutItsTelephonesStopsTheMirrorWhole) {
  Archivio(percorso(u"rubrica.jed"_s))
      .esegui_copione(
          u"INSERT INTO Nomi (ID, nome, cognome) VALUES (4, 'MARIA', 'ROSSI');"
          "INSERT INTO Abitazione (id) VALUES (4); INSERT INTO Ufficio (id) VALUES (4)"_s);
  comincia(u"ROSSI"_s, u"MARIA"_s);
  Fallimenti f;
  salva({domanda_rubrica()});
  EXPECT_EQ(f.numeri, std::vector<int>{3159});
  EXPECT_EQ(rubrica(u"Abitazione"_s)[0], (QVariantMap{{u"id"_s, 4}})) << "nothing of it was written";
  EXPECT_EQ(registro().size(), 1) << "the client itself is safe";
}

TEST_F(ProvaSalvataggio, ACopyThatFailsLeavesTheOldFileWholeAndSaysWhich) {
  comincia(u"ROSSI"_s, u"MARIA"_s);
  salva({domanda_semplice()});
  const QString file = percorso_cliente();
  const QByteArray prima = contenuto(file);
  schermata<Formanag>().Txtpeso->setText(u"70"_s);
  QDir().mkpath(file + u".nuovo"_s);  // where the new file would be written stands a folder
  {
    Fallimenti f;
    salva({domanda_rubrica(), avviso(false)});
    EXPECT_TRUE(f.testi.value(0).contains(u"1_ROSSI.orzaline"_s)) << f.testi.value(0).toStdString();
  }
  EXPECT_EQ(contenuto(file), prima);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  apri_dati_tmp(Scopo::salvare);
  EXPECT_EQ(campo(u"anagrafe"_s, u"peso"_s), 70.0) << "the work stays in the working copy";
  QDir().rmdir(file + u".nuovo"_s);
  salva({domanda_rubrica(), avviso(false)});
  EXPECT_EQ(anagrafe(file).value(u"peso"_s), 70.0);
}

TEST_F(ProvaSalvataggio, APostalCodeTypedByHandOutlivesTheMunicipalitysOwn) {
  comincia(u"ROSSI"_s, u"MARIA"_s);
  schermata<Formanag>().Txtcap->setText(u"65129"_s);
  salva({domanda_semplice()});
  scarica<Formanag>();
  mostra<Formelabora>();
  salva({domanda_rubrica(), avviso(false)});  // loads the master data unseen, for the address book
  scarica_schede();
  mostra<Formanag>();
  EXPECT_EQ(schermata<Formanag>().Txtcap->text(), u"65129"_s);
  EXPECT_EQ(anagrafe(percorso_cliente()).value(u"cap"_s), u"65129"_s);
}

TEST_F(ProvaSalvataggio, ADamagedOrMissingWorkingCopyNeverReplacesAClientsFile) {
  comincia(u"ROSSI"_s, u"MARIA"_s);
  salva({domanda_semplice()});
  const QString file = percorso_cliente();
  const QByteArray prima = contenuto(file);
  scarica_schede();
  chiudi_archivi();
  const QByteArray sana = contenuto(percorso(u"dati.tmp"_s));
  scrivi(percorso(u"dati.tmp"_s), rovinato(sana, sana.size() - 100));
  EXPECT_THROW(salva_su_file_cliente(), Errore);
  EXPECT_EQ(contenuto(file), prima);
  elimina_dati_tmp();
  Fallimenti f;
  salva({domanda_rubrica()});
  EXPECT_EQ(f.numeri, std::vector<int>{53});
  EXPECT_EQ(contenuto(file), prima);
}

TEST_F(ProvaSalvataggio, OnlyItsButtonsAnswerTheAlert) {
  // Where an earlier test left the program, no window would wait for its answer any more.
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QCoreApplication::exec();
  for (const bool nuovo : {true, false}) {
    bool visto = false;
    QTimer::singleShot(0, [&] {
      auto* a = dynamic_cast<FormAlert*>(QApplication::activeModalWidget());
      ASSERT_NE(a, nullptr);
      QTest::keyClick(a, Qt::Key_Escape);
      visto = a->isVisible() && a->windowTitle() == u"Attenzione"_s;
      clic(a->Command1[nuovo ? 0 : 1]);
    });
    EXPECT_EQ(chiedi_nuovo(), nuovo);
    EXPECT_TRUE(visto);
  }
}
