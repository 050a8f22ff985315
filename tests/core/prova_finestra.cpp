// The main window: stages, help, opening and leaving a client, the end.
#include "core/mdiorza.h"

#include "core/apertura.h"
#include "diet/formelabora.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso errore_caricamento{u"Si è verificato un errore nel caricamento !"_s, {}};
const QString vuoi_uscire = u"Sei sicuro di voler uscire dal programma ?"_s;
const QString salvati = u"Si sta uscendo dall'archivio del soggetto.\nSono stati salvati i dati inseriti ?"_s;

struct ProvaFinestra : Ambiente {
  ProvaFinestra() { mostra<Mdiorza>(); }
  Mdiorza& m = schermata<Mdiorza>();

  [[nodiscard]] QStringList banner() const {
    QStringList testi;
    for (QLineEdit* c : {m.Txtcod, m.Txtsoggetto, m.Txtsesso, m.Txtetà, m.Txtstatura, m.Txtpeso, m.Txtbmi}) {
      testi += c->text();
    }
    return testi;
  }
};

}  // namespace

TEST_F(ProvaFinestra, BannerAndToolbarFollowTheStage) {
  EXPECT_FALSE(m.Statusbar->isVisible());
  struct Prova {
    const char* codice;
    std::size_t pulsante;  // 0 for none
  };
  for (const Prova& c : {Prova{"0", 1},
                         {"3", 2},
                         {"4", 8},
                         {"5", 3},
                         {"9", 7},
                         {"1", 15},
                         {"7", 4},
                         {"8", 5},
                         {"10", 6},
                         {"6", 0},
                         {"-1", 0}}) {
    m.qualeform.setText(QString::fromLatin1(c.codice));
    const bool aperto = *c.codice != '-';
    EXPECT_EQ(m.Statusbar->isVisible(), aperto) << c.codice;
    EXPECT_EQ(m.cmdsopra[5]->isEnabled(), aperto) << c.codice;
    for (std::size_t i = 0; i < m.cmdsopra.size(); ++i) {
      EXPECT_EQ(m.cmdsopra[i]->isChecked(), c.pulsante == i && i > 0) << c.codice << ' ' << i;
    }
  }
}

TEST_F(ProvaFinestra, AJumpPassesThroughNoStageAndEndsOnTheStagesButton) {
  ASSERT_TRUE(apri_file_cliente(cliente("1900_ferri")));
  EXPECT_EQ(m.focusWidget(), m.cmdsopra[5]);
  QStringList passati;
  m.qualeform.al_cambio([&] { passati += m.qualeform.text(); });
  m.cmdsopra[5]->click();
  EXPECT_EQ(passati, (QStringList{u"-1"_s, u"8"_s}));
  EXPECT_TRUE(m.cmdsopra[5]->isChecked());
  EXPECT_TRUE(schermata<Formelabora>().isVisible());
}

TEST_F(ProvaFinestra, HelpFollowsTheStageAndAnUnknownCodeLeavesTheDocument) {
  QStringList aperti;
  esterno().apri_documento = [&](const QString& file) {
    aperti += QDir(cartella.path()).relativeFilePath(file);
    return true;
  };
  struct Prova {
    const char* codice;
    QString documento;
  };
  const Prova casi[]{
      {"-1", u"00_Guida_Premessa"_s},     {"0", u"02_Guida_Anagrafica"_s},   {"3", u"03_Guida_DatiPersonali"_s},
      {"1", u"03_Guida_DatiPersonali"_s}, {"4", u"04_Guida_anPatologica"_s}, {"5", u"05_Guida_Antropo"_s},
      {"6", u"10_Guida_Attività"_s},      {"9", u"06_Guida_DiarioAlim"_s},   {"7", u"07_Guida_SceltAlim"_s},
      {"8", u"08_Guida_Elaboraz"_s},      {"10", u"09_Guida_Trattam"_s}};
  for (const Prova& c : casi) {
    const QString documento = u"help/"_s + c.documento + u".doc"_s;
    scrivi(percorso(documento), "guida");
    m.qualeform.setText(QString::fromLatin1(c.codice));
    m.menuaiuto->trigger();
    EXPECT_EQ(aperti.takeLast(), documento) << c.codice;
  }
  QFile::remove(percorso(u"help/09_Guida_Trattam.doc"_s));
  Fallimenti f;
  m.cmdsopra[13]->click();
  EXPECT_EQ(f.numeri, std::vector{53});
}

TEST_F(ProvaFinestra, AClientsFileBecomesTheWorkingCopyAndFillsTheBanner) {
  const QString file = cliente("1900_ferri");
  esterno().scegli_file = [&](auto&&...) { return file; };
  m.cmdsopra[0]->click();
  EXPECT_EQ(banner(), (QStringList{u"2"_s, u"FERRI MARCO"_s, u"M"_s, u"38"_s, u"168"_s, u"74"_s, u"26,2"_s}));
  EXPECT_EQ(m.LabPesoOld.text(), u"74"_s);
  EXPECT_EQ(m.qualeform.text(), u"8"_s);
  EXPECT_TRUE(m.Command2[1]->isEnabled());
  EXPECT_EQ(contenuto(percorso(u"dati.tmp"_s)), contenuto(file));
}

TEST_F(ProvaFinestra, AFileThatIsNoClientsLeavesEverythingAsItWas) {
  ASSERT_TRUE(apri_file_cliente(cliente("1900_ferri")));
  const auto* elaborazione = caricata<Formelabora>();
  const QByteArray dati = contenuto(percorso(u"dati.tmp"_s));
  const QStringList scritte = banner();
  scrivi(percorso(u"lettera.orzaline"_s), "Gentile signora");
  scrivi(percorso(u"mozzo.orzaline"_s), contenuto(cliente("1900_ferri")).chopped(1024));
  QByteArray guasto = contenuto(cliente("1900_ferri"));
  guasto[guasto.size() - 500] = static_cast<char>(guasto[guasto.size() - 500] + 1);
  scrivi(percorso(u"guasto.orzaline"_s), guasto);
  Dialogo d;
  for (const QString& nome :
       {u"lettera.orzaline"_s, u"mozzo.orzaline"_s, u"guasto.orzaline"_s, u"fc.jed"_s, u"matrix.jed"_s, u"manca"_s}) {
    d.attendi(errore_caricamento);
    EXPECT_FALSE(apri_file_cliente(percorso(nome)));
    EXPECT_TRUE(d.finito()) << nome.toStdString();
    EXPECT_EQ(caricata<Formelabora>(), elaborazione);
    EXPECT_EQ(banner(), scritte);
    EXPECT_EQ(m.qualeform.text(), u"8"_s);
    EXPECT_EQ(contenuto(percorso(u"dati.tmp"_s)), dati);
  }
}

TEST_F(ProvaFinestra, LeavingAClientAsksAndThrowsTheWorkingCopyAway) {
  ASSERT_TRUE(apri_file_cliente(cliente("1900_ferri")));
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
}

TEST_F(ProvaFinestra, TheMenuClosesWithoutAQuestionAndKeepsTheBannersTexts) {
  ASSERT_TRUE(apri_file_cliente(cliente("1900_ferri")));
  const QStringList scritte = banner();
  m.menuchiudi->trigger();
  EXPECT_FALSE(caricata<Formelabora>());
  EXPECT_FALSE(esiste_dati_tmp());
  EXPECT_EQ(banner(), scritte);
  EXPECT_FALSE(m.Command2[1]->isEnabled());
}

TEST_F(ProvaFinestra, TheEndAsksAndThrowsTheWorkingCopyAway) {
  ASSERT_TRUE(apri_file_cliente(cliente("1900_ferri")));
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
