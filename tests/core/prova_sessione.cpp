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
};

}  // namespace

TEST_F(ProvaSessione, TheWorkingCopyIsMadeOnceAndKeptAsItStands) {
  apri_dati_tmp(Scopo::caricare);
  dati_tmp().esegui(u"INSERT INTO anagrafe (cod) VALUES (?)"_s, 7);
  apri_dati_tmp(Scopo::salvare);
  chiudi_archivi();
  EXPECT_EQ(numero_errore([] { static_cast<void>(dati_tmp()); }), 91);
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
  EXPECT_EQ(numero_errore([] { static_cast<void>(dati_tmp()); }), 91);
  EXPECT_EQ(numero_errore([] { apri_dati_tmp(Scopo::salvare); }), 53);
  scrivi(percorso(u"dati.tmp"_s), "resti");
  Dialogo d({problemi});
  apri_dati_tmp(Scopo::caricare);
  EXPECT_EQ(contenuto(percorso(u"dati.tmp"_s)), "resti");
}

TEST_F(ProvaSessione, AClientsFileIsNamedByTheFirstWordOfTheSurname) {
  const std::tuple<QString, QString, QString> casi[]{
      {u"12"_s, u"DE ROSSI MARIO"_s, u"12_DE/12_DE.orzaline"_s},
      {u"1"_s, u"ROSSI MARIA"_s, u"1_ROSSI/1_ROSSI.orzaline"_s},
      {u"3"_s, u"NICOLÒ "_s, u"3_NICOLÒ/3_NICOLÒ.orzaline"_s},
  };
  for (const auto& [cod, nome, file] : casi) {
    soggetto(cod, nome);
    EXPECT_EQ(percorso_cliente(), percorso(file));
  }
}

TEST_F(ProvaSessione, AFileWhereTheFolderWouldStandStopsTheSave) {
  apri_dati_tmp(Scopo::caricare);
  scrivi(percorso(u"13_VERDI"_s), "un file");
  soggetto(u"13"_s, u"VERDI ADA"_s);
  EXPECT_EQ(numero_errore([] { salva_su_file_cliente(); }), 75);
}
