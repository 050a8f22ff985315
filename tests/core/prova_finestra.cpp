// The main window: stages, help, opening and leaving a client, the end.
#include "core/mdiorza.h"

#include "core/formi_e.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const QString vuoi_uscire = u"Sei sicuro di voler uscire dal programma ?"_s;
const QString salvati = u"Si sta uscendo dall'archivio del soggetto.\nSono stati salvati i dati inseriti ?"_s;

struct ProvaFinestra : Ambiente {
  ProvaFinestra() { mostra<Mdiorza>(); }
  Mdiorza& m = schermata<Mdiorza>();
};

}  // namespace

TEST_F(ProvaFinestra, AScreenLoadedUnseenNeverComesInFront) {
  const Fallimenti fallimenti;
  m.hide();
  schermata<Formelabora>();
  m.show();  // Qt makes its frame the active one
  mostra<Formanag>();
  scarica<Formanag>();
  EXPECT_EQ(fallimenti.testi, QStringList());
  EXPECT_EQ(m.qualeform.text(), u"-1"_s);
}

TEST_F(ProvaFinestra, BannerToolbarAndHelpFollowTheStage) {
  QString aperto;
  esterno().apri_documento = [&](const QString& file) { return aperto = file, true; };
  const auto aiuto_apre = [&](const QString& nome) {
    const QString documento = percorso(u"help/"_s + nome + u".doc"_s);
    scrivi(documento, "guida");
    m.menuaiuto->trigger();
    EXPECT_EQ(aperto, documento);
  };
  EXPECT_FALSE(m.Statusbar->isVisible());
  aiuto_apre(u"00_Guida_Premessa"_s);
  m.cmdsopra[0]->click();
  aiuto_apre(u"01_Guida_inizio"_s);
  scarica<Formsched>();
  const std::tuple<int, std::size_t, QString> casi[]{
      // stage, its button or 0 for none, its guide
      {-1, 0, u"00_Guida_Premessa"_s},      {0, 1, u"02_Guida_Anagrafica"_s},   {3, 2, u"03_Guida_DatiPersonali"_s},
      {1, 15, u"03_Guida_DatiPersonali"_s}, {4, 8, u"04_Guida_anPatologica"_s}, {5, 3, u"05_Guida_Antropo"_s},
      {6, 0, u"10_Guida_Attività"_s},       {9, 7, u"06_Guida_DiarioAlim"_s},   {7, 4, u"07_Guida_SceltAlim"_s},
      {8, 5, u"08_Guida_Elaboraz"_s},       {10, 6, u"09_Guida_Trattam"_s}};
  for (const auto& [codice, pulsante, guida] : casi) {
    m.qualeform.setText(QString::number(codice));
    EXPECT_EQ(m.Statusbar->isVisible(), codice >= 0) << codice;
    EXPECT_EQ(m.cmdsopra[5]->isEnabled(), codice >= 0) << codice;
    for (std::size_t i = 1; i < m.cmdsopra.size(); ++i) EXPECT_EQ(m.cmdsopra[i]->isChecked(), pulsante == i) << codice;
    aiuto_apre(guida);
  }
  QFile::remove(percorso(u"help/09_Guida_Trattam.doc"_s));
  Fallimenti f;
  m.cmdsopra[13]->click();
  EXPECT_EQ(f.numeri, std::vector{53});
}

TEST_F(ProvaFinestra, JumpsAndMovesPassThroughNoOtherStage) {
  ASSERT_TRUE(apri_elaborazione(registra(cliente("1900_ferri"))));
  QStringList passati;
  m.qualeform.al_cambio([&] { passati += m.qualeform.text(); });
  const auto premi = [&](QAbstractButton* b) {
    passati.clear();
    b->click();
    return passati.join(u' ');
  };
  EXPECT_EQ(premi(m.cmdsopra[5]), u"-1 8"_s);
  EXPECT_EQ(m.focusWidget(), m.cmdsopra[5]);
  EXPECT_TRUE(schermata<Formelabora>().isVisible());
  EXPECT_EQ(premi(m.cmdsopra[1]), u"-1 0"_s);
  EXPECT_EQ(premi(m.Command1[0]), QString()) << "nothing lies before the first stage";
  EXPECT_EQ(premi(m.Command1[1]), u"-1 3"_s);
  EXPECT_EQ(premi(m.Command1[0]), u"-1 0"_s);
  EXPECT_TRUE(schermata<Formanag>().isVisible());
}

TEST_F(ProvaFinestra, ThePopupOfTheReportsSavesTheStageAndOpensTheDocumentsThatAreThere) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  schermata<Formanag>().Txtloc->setText(u"Colle alto"_s);
  scrivi(percorso(u"Norme.doc"_s), "norme");
  attiva_finestra();
  schermata<Formanag>().Txtdatanasc->setFocus();
  riscrivi(schermata<Formanag>().Txtdatanasc, u"12-5-80"_s);
  clic(m.cmdsopra[10]);
  EXPECT_EQ(campo(u"anagrafe"_s, u"locali"_s), u"Colle alto"_s);
  EXPECT_EQ(campo(u"anagrafe"_s, u"data_n"_s), u"12/05/1980"_s) << "its rule ran before the save";
  EXPECT_TRUE(m.stampe->isVisible());
  QString attive, aperto;
  esterno().apri_documento = [&](const QString& file) { return aperto = QFileInfo(file).fileName(), true; };
  for (QAction* a : m.stampe->findChildren<QAction*>()) {
    if (a->isEnabled() && !a->menu()) attive += a->objectName() + u' ';
  }
  EXPECT_EQ(attive, u"menudp uno due tre quattro menudiario menuvalnutr menunorme "_s);
  m.stampe->findChild<QAction*>(u"menunorme"_s)->trigger();
  EXPECT_EQ(aperto, u"Norme.doc"_s);
}

TEST_F(ProvaFinestra, LeavingAClientAsksAndThrowsTheWorkingCopyAway) {
  const int cod = registra(cliente("1900_ferri"));
  const auto aperto = [&] {
    EXPECT_EQ(caricata<Formelabora>() != nullptr, esiste_dati_tmp());
    EXPECT_EQ(m.Command2[1]->isEnabled(), esiste_dati_tmp());
    return esiste_dati_tmp();
  };
  ASSERT_TRUE(apri_elaborazione(cod));
  dieta_caricata = true;
  const Dialogo d({{salvati, u"ORZALINE 2003"_s, false}, {salvati, u"ORZALINE 2003"_s}});
  m.Command2[0]->click();
  EXPECT_TRUE(aperto());
  m.Command2[0]->click();
  EXPECT_FALSE(aperto() || dieta_caricata || m.Statusbar->isVisible());
  EXPECT_EQ(banner(), u"||||||"_s);

  // The menu asks nothing and keeps the banner's texts.
  ASSERT_TRUE(apri_elaborazione(cod));
  const QString scritte = banner();
  m.menuchiudi->trigger();
  EXPECT_FALSE(aperto());
  EXPECT_EQ(banner(), scritte);
}

TEST_F(ProvaFinestra, TheEndAsksAndThrowsTheWorkingCopyAway) {
  ASSERT_TRUE(apri_elaborazione(registra(cliente("1900_ferri"))));
  const Dialogo d({{vuoi_uscire, u"Orzaline control"_s, false}, {vuoi_uscire, u"Orzaline control"_s}});
  mostra<Formi_e>();
  EXPECT_FALSE(m.close());
  EXPECT_TRUE(m.isVisible() && esiste_dati_tmp());
  EXPECT_TRUE(m.close());
  abbandona_schermate();
  EXPECT_FALSE(esiste_dati_tmp() || caricata<Mdiorza>()) << "whatever screens were open";
}
