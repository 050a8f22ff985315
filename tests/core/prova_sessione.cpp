// The working copy's life and the way back to the client's own file.
#include "core/sessione.h"

#include "core/mdiorza.h"
#include "core/salvataggio.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso problemi{u"Problemi nella creazione dei files temporanei, chiudere i files usati da Orzaline !"_s, {}};

struct ProvaSessione : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();

  void soggetto(const QString& cod, const QString& nome) {
    m.Txtcod->setText(cod);
    m.Txtsoggetto->setText(nome);
    m.segui_cliente(true);
  }
  static int errore_di(const std::function<void()>& cosa) {
    try {
      cosa();
    } catch (const Errore& e) {
      return e.numero;
    }
    return 0;
  }
  static void salva() {
    Dialogo d({{u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s, true}});
    salvataggio_generale();
  }
};

}  // namespace

TEST_F(ProvaSessione, TheWorkingCopyIsMadeOnceAndKeptAsItStands) {
  apri_dati_tmp(Scopo::caricare);
  dati_tmp().esegui(u"INSERT INTO anagrafe (cod) VALUES (?)"_s, 7);
  apri_dati_tmp(Scopo::salvare);
  chiudi_archivi();
  EXPECT_EQ(errore_di([] { static_cast<void>(dati_tmp()); }), 91);
  apri_dati_tmp(Scopo::salvare);
  EXPECT_EQ(dati_tmp().righe(u"SELECT cod FROM anagrafe"_s).size(), 1U) << "the template did not come again";
  elimina_dati_tmp();
  apri_dati_tmp(Scopo::salvare);
  EXPECT_TRUE(dati_tmp().righe(u"SELECT cod FROM anagrafe"_s).empty());
}

TEST_F(ProvaSessione, WithoutATemplateALoadSaysSoAndASaveFails) {
  QFile::remove(percorso(u"matrix.jed"_s));
  {
    Dialogo d({problemi});
    apri_dati_tmp(Scopo::caricare);
  }
  EXPECT_EQ(errore_di([] { static_cast<void>(dati_tmp()); }), 91);
  EXPECT_EQ(errore_di([] { apri_dati_tmp(Scopo::salvare); }), 53);
  scrivi(percorso(u"dati.tmp"_s), "resti");
  Dialogo d({problemi});
  apri_dati_tmp(Scopo::caricare);
  EXPECT_EQ(contenuto(percorso(u"dati.tmp"_s)), "resti");
}

TEST_F(ProvaSessione, AClientsFileIsNamedByTheFirstWordOfTheSurname) {
  struct Prova {
    const char* cod;
    QString soggetto;
    QString file;
  };
  for (const Prova& c : {Prova{"12", u"DE ROSSI MARIO"_s, u"12_DE/12_DE.orzaline"_s},
                         {"1", u"ROSSI MARIA"_s, u"1_ROSSI/1_ROSSI.orzaline"_s},
                         {"3", u"NICOLÒ "_s, u"3_NICOLÒ/3_NICOLÒ.orzaline"_s}}) {
    soggetto(QString::fromLatin1(c.cod), c.soggetto);
    EXPECT_EQ(percorso_cliente(), percorso(c.file));
  }
}

TEST_F(ProvaSessione, TheGeneralSaveWritesFileAndRegistry) {
  soggetto(u"12"_s, u"DE ROSSI MARIO"_s);
  apri_dati_tmp(Scopo::caricare);
  dati_tmp().esegui(u"INSERT INTO anagrafe (cod) VALUES (?)"_s, 12);
  {
    Dialogo d({{u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s, false}});
    m.Command2[1]->click();
  }
  EXPECT_FALSE(QFile::exists(percorso(u"12_DE"_s)));
  const auto registro = [] {
    QStringList righe;
    for (const Riga& r : schedario().righe(u"SELECT cod, cognome, nome_files FROM schedario"_s)) {
      righe += r[u"cod"].toString() + u' ' + r[u"cognome"].toString() + u' ' + r[u"nome_files"].toString();
    }
    return righe;
  };
  const QString file = percorso(u"12_DE/12_DE.orzaline"_s);
  for (int volta = 0; volta < 2; ++volta) {
    salva();
    EXPECT_EQ(Archivio(file).righe(u"SELECT cod FROM anagrafe"_s).size(), 1U);
    EXPECT_TRUE(esiste_dati_tmp());
    EXPECT_EQ(registro(), QStringList{u"12 DE "_s + file});
  }
  soggetto(u"12"_s, u"BIANCHI MARIO"_s);
  salva();
  EXPECT_EQ(registro(), QStringList{u"12 BIANCHI "_s + percorso(u"12_BIANCHI/12_BIANCHI.orzaline"_s)});
  EXPECT_TRUE(QFile::exists(file)) << "the old folder stays";
}

TEST_F(ProvaSessione, ASaveThatFailsLeavesTheOldFileWhole) {
  soggetto(u"12"_s, u"DE ROSSI MARIO"_s);
  apri_dati_tmp(Scopo::caricare);
  salva();
  const QString file = percorso_cliente();
  const QByteArray vecchio = contenuto(file);
  apri_dati_tmp(Scopo::salvare);
  dati_tmp().esegui(u"INSERT INTO anagrafe (cod) VALUES (?)"_s, 12);
  QDir().mkpath(file + u".nuovo"_s);  // where the new file would be written stands a folder
  EXPECT_NE(errore_di([] { salva_su_file_cliente(); }), 0);
  EXPECT_EQ(contenuto(file), vecchio);
  EXPECT_TRUE(esiste_dati_tmp());
  scrivi(percorso(u"13_VERDI"_s), "un file");
  soggetto(u"13"_s, u"VERDI ADA"_s);
  EXPECT_EQ(errore_di([] { salva_su_file_cliente(); }), 75);
}
