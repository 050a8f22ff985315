// The working copy's life and the way back to the client's own file.
#include "core/sessione.h"

#include "core/mdiorza.h"

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

TEST_F(ProvaSessione, ASaveThatFailsLeavesTheOldFileWhole) {
  soggetto(u"12"_s, u"DE ROSSI MARIO"_s);
  apri_dati_tmp(Scopo::caricare);
  const QString file = salva_su_file_cliente();
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
