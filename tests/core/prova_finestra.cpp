// The main window: stages, help, opening and leaving a client, the end.
#include "core/mdiorza.h"

#include "core/stadi.h"
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

TEST_F(ProvaFinestra, BannerAndToolbarFollowTheStage) {
  EXPECT_FALSE(m.Statusbar->isVisible());
  const std::pair<int, std::size_t> pulsanti[]{{0, 1}, {3, 2}, {4, 8},  {5, 3}, {9, 7}, {1, 15},
                                               {7, 4}, {8, 5}, {10, 6}, {6, 0}, {-1, 0}};  // 0 for none
  for (const auto& [codice, pulsante] : pulsanti) {
    m.qualeform.setText(QString::number(codice));
    EXPECT_EQ(m.Statusbar->isVisible(), codice >= 0) << codice;
    EXPECT_EQ(m.cmdsopra[5]->isEnabled(), codice >= 0) << codice;
    for (std::size_t i = 0; i < m.cmdsopra.size(); ++i) {
      EXPECT_EQ(m.cmdsopra[i]->isChecked(), pulsante == i && i > 0) << codice << ' ' << i;
    }
  }
}

TEST_F(ProvaFinestra, AJumpPassesThroughNoStageAndEndsOnTheStagesButton) {
  ASSERT_TRUE(apri_elaborazione(registra(cliente("1900_ferri"))));
  EXPECT_EQ(m.focusWidget(), m.cmdsopra[5]);
  QStringList passati;
  m.qualeform.al_cambio([&] { passati += m.qualeform.text(); });
  m.cmdsopra[5]->click();
  EXPECT_EQ(passati, (QStringList{u"-1"_s, u"8"_s}));
  EXPECT_TRUE(m.cmdsopra[5]->isChecked());
  EXPECT_TRUE(schermata<Formelabora>().isVisible());
}

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

TEST_F(ProvaFinestra, HelpFollowsTheStageAndTheArchive) {
  QString aperto;
  esterno().apri_documento = [&](const QString& file) { return aperto = file, true; };
  const auto aiuto_apre = [&](const QString& nome) {
    const QString documento = percorso(u"help/"_s + nome + u".doc"_s);
    scrivi(documento, "guida");
    m.menuaiuto->trigger();
    EXPECT_EQ(aperto, documento);
  };
  aiuto_apre(u"00_Guida_Premessa"_s);
  m.cmdsopra[0]->click();
  aiuto_apre(u"01_Guida_inizio"_s);
  scarica<Formsched>();
  const std::pair<int, QString> casi[]{
      {-1, u"00_Guida_Premessa"_s},     {0, u"02_Guida_Anagrafica"_s},   {3, u"03_Guida_DatiPersonali"_s},
      {1, u"03_Guida_DatiPersonali"_s}, {4, u"04_Guida_anPatologica"_s}, {5, u"05_Guida_Antropo"_s},
      {6, u"10_Guida_Attività"_s},      {9, u"06_Guida_DiarioAlim"_s},   {7, u"07_Guida_SceltAlim"_s},
      {8, u"08_Guida_Elaboraz"_s},      {10, u"09_Guida_Trattam"_s}};
  for (const auto& [codice, documento] : casi) {
    m.qualeform.setText(QString::number(codice));
    aiuto_apre(documento);
  }
  QFile::remove(percorso(u"help/09_Guida_Trattam.doc"_s));
  Fallimenti f;
  m.cmdsopra[13]->click();
  EXPECT_EQ(f.numeri, std::vector{53});
}

TEST_F(ProvaFinestra, TheMoveButtonsPassOverStagesWithoutAScreen) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  m.Command1[0]->click();
  EXPECT_EQ(m.qualeform.text(), u"0"_s) << "nothing lies before the first stage";
  QStringList passati;
  m.qualeform.al_cambio([&] { passati += m.qualeform.text(); });
  m.Command1[1]->click();
  EXPECT_EQ(passati.takeFirst(), u"-1"_s);
  ASSERT_TRUE(stadio(passati.takeLast())) << "the next stage is one of the path";
  EXPECT_FALSE(schermata<Formanag>().isVisible());
  m.Command1[0]->click();
  EXPECT_EQ(passati, (QStringList{u"-1"_s, u"0"_s}));
  EXPECT_TRUE(schermata<Formanag>().isVisible());
}

TEST_F(ProvaFinestra, ThePopupOfTheReportsSavesTheStageAndOpensTheDocumentsThatAreThere) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  schermata<Formanag>().Txtloc->setText(u"Colle alto"_s);
  scrivi(percorso(u"Norme.doc"_s), "norme");
  m.cmdsopra[10]->click();
  EXPECT_EQ(dati_tmp().righe(u"SELECT locali FROM anagrafe"_s).front()[u"locali"], u"Colle alto"_s);
  EXPECT_TRUE(m.stampe->isVisible());
  QStringList attive;
  QString aperto;
  esterno().apri_documento = [&](const QString& file) { return aperto = QFileInfo(file).fileName(), true; };
  for (QAction* a : m.stampe->findChildren<QAction*>()) {
    if (a->isEnabled() && !a->menu()) attive << a->objectName();
  }
  EXPECT_EQ(attive, (QStringList{u"menudp"_s, u"uno"_s, u"due"_s, u"tre"_s, u"quattro"_s, u"menudiario"_s,
                                 u"menuvalnutr"_s, u"menunorme"_s}));
  m.stampe->findChild<QAction*>(u"menunorme"_s)->trigger();
  EXPECT_EQ(aperto, u"Norme.doc"_s);
}

TEST_F(ProvaFinestra, LeavingAClientAsksAndThrowsTheWorkingCopyAway) {
  const int cod = registra(cliente("1900_ferri"));
  ASSERT_TRUE(apri_elaborazione(cod));
  dieta_caricata = true;
  Dialogo d({{salvati, u"ORZALINE 2003"_s, false}, {salvati, u"ORZALINE 2003"_s, true}});
  m.Command2[0]->click();
  EXPECT_TRUE(caricata<Formelabora>());
  EXPECT_TRUE(esiste_dati_tmp());
  m.Command2[0]->click();
  EXPECT_FALSE(caricata<Formelabora>());
  EXPECT_FALSE(esiste_dati_tmp());
  EXPECT_FALSE(dieta_caricata);
  EXPECT_FALSE(m.Statusbar->isVisible());
  EXPECT_FALSE(m.Command2[1]->isEnabled());
  EXPECT_EQ(banner().join(QString()), QString());

  // The menu asks nothing and keeps the banner's texts.
  ASSERT_TRUE(apri_elaborazione(cod));
  const QStringList scritte = banner();
  m.menuchiudi->trigger();
  EXPECT_FALSE(caricata<Formelabora>());
  EXPECT_FALSE(esiste_dati_tmp());
  EXPECT_EQ(banner(), scritte);
  EXPECT_FALSE(m.Command2[1]->isEnabled());
}

TEST_F(ProvaFinestra, TheEndAsksAndThrowsTheWorkingCopyAway) {
  ASSERT_TRUE(apri_elaborazione(registra(cliente("1900_ferri"))));
  const QByteArray originale = contenuto(cliente("1900_ferri"));
  Dialogo d({{vuoi_uscire, u"Orzaline control"_s, false}, {vuoi_uscire, u"Orzaline control"_s, true}});
  EXPECT_FALSE(m.close());
  EXPECT_TRUE(m.isVisible());
  EXPECT_TRUE(esiste_dati_tmp());
  EXPECT_TRUE(m.close());
  EXPECT_FALSE(esiste_dati_tmp());
  EXPECT_EQ(contenuto(cliente("1900_ferri")), originale);
}

TEST_F(ProvaFinestra, TheWindowSpringsBackToItsSize) {
  m.resize(1000, 700);
  QApplication::processEvents();
  EXPECT_EQ(m.size(), QSize(800, 613));
}
