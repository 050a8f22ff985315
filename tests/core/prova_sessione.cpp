// The working copy's life and the way back to the client's own file.
#include "core/sessione.h"

#include "core/mdiorza.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso problemi{u"Problemi nella creazione dei files temporanei, chiudere i files usati da Orzaline !"_s, {}};

struct ProvaSessione : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();
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
  const Dialogo d({problemi, problemi});
  apri_dati_tmp(Scopo::caricare);
  EXPECT_EQ(numero_errore([] { static_cast<void>(dati_tmp()); }), 91);
  EXPECT_EQ(numero_errore([] { apri_dati_tmp(Scopo::salvare); }), 53);
  scrivi(percorso(u"dati.tmp"_s), "resti");
  apri_dati_tmp(Scopo::caricare);
  EXPECT_EQ(contenuto(percorso(u"dati.tmp"_s)), "resti");
}

TEST_F(ProvaSessione, AClientsFileIsNamedByTheFirstWordOfTheSurname) {
  apri_dati_tmp(Scopo::caricare);
  for (const auto& [soggetto, nome] : {std::pair{u"DE ROSSI MARIO"_s, u"12_DE"_s},
                                       {u"ROSSI MARIA"_s, u"12_ROSSI"_s},
                                       {u"NICOLÒ "_s, u"12_NICOLÒ"_s}}) {
    m.Txtcod->setText(u"12"_s);
    m.Txtsoggetto->setText(soggetto);
    EXPECT_EQ(percorso_cliente(), percorso(nome + u'/' + nome + u".orzaline"_s));
    scrivi(percorso(nome), "un file, dove starebbe la cartella");
    EXPECT_EQ(numero_errore([] { salva_su_file_cliente(); }), 75);
  }
}
