// How long the program takes to come up and its screens to open and close, and what memory it holds.
//
//   banco_schermi [times]      (15 by default)
#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "base/archivio.h"
#include "base/file.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "diary/formdiario.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "intake/formpers.h"
#include "misure.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "reports/formstampe.h"

#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using banco::tempo;

/// The worst of the medians that one budget speaks of, and how many times were taken in all.
struct Peggiore {
  double ms = 0;
  int volte = 0;
  void aggiungi(const banco::Tempo& t, int quante) {
    ms = std::max(ms, t.mediana);
    volte += quante;
  }
};
Peggiore schermate, fogli;

void dipingi() {
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template <Schermata S>
void apri_e_chiudi(const char* apre, const char* chiude, int volte) {
  const auto apri = [] {
    mostra<S>();
    dipingi();
  };
  const auto chiudi = [] {
    scarica<S>();
    dipingi();
  };
  schermate.aggiungi(tempo(apre, volte, chiudi, apri), volte);
  schermate.aggiungi(tempo(chiude, volte, apri, chiudi), volte);
}

/// A week of 25 foods a day and a diary of one page, in the client's file.
void riempi_cliente() {
  dati_tmp().esegui_copione(
      u"INSERT INTO dieta (dieta, giorno, pasto, descr, cal, prot, lip, gluc, quant, quant_mod)"
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 174)"
      "SELECT 1, i / 25, i % 5, 'Alimento ' || i, 100, 10, 10, 10, 100, '' FROM n;"
      "INSERT INTO scelte_diario (pasto, cod1, cod2, dose)"
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 23)"
      "SELECT i / 5, 1, 1 + i % 3, 100 FROM n"_s);
  salva_su_file_cliente();
  apri_dati_tmp(Scopo::caricare);
}

/// The first page as a recalled client's preview draws it, at full size.
void disegna_rapporto(const char* che, const QString& codice, const QString& verso, int volte) {
  apri_stampa(codice, verso);
  Formstampe& f = *caricata<Formstampe>();
  fogli.aggiungi(tempo(
                     che, volte, [&] { f.List1->setCurrentRow(1); }, [&] { f.List1->setCurrentRow(0); }),
                 volte);
  scarica<Formstampe>();
  dipingi();
}

/// A jump by the toolbar: every screen is closed before, and those that the stage reads load with it.
template <Schermata S>
void salta(const char* che, int volte) {
  const auto chiudi = [] {
    scarica_schede();
    dipingi();
  };
  tempo(che, volte, chiudi, [] {
    mostra<S>();
    dipingi();
  });
  chiudi();
}

void schermi(int volte) {
  const QTemporaryDir cartella;
  const QString archivi = QStringLiteral(CARTELLA_ARCHIVI);
  banco::posa_archivi(archivi, cartella.path());
  sostituisci_file(archivi + u"/esempi/1900_ferri.orzaline"_s, percorso(u"dati.tmp"_s));
  parla_con([](const Riquadro&) { return true; });
  mostra<Mdiorza>();
  apri_e_chiudi<Formanag>("master data opens", "master data closes", volte);
  apri_e_chiudi<Formpers>("personal history opens", "personal history closes", volte);
  apri_e_chiudi<Formfunzio>("clinical history opens", "clinical history closes", volte);
  apri_e_chiudi<Formpond>("weight opens", "weight closes", volte);
  apri_e_chiudi<Formdiario>("diary opens", "diary closes", volte);
  apri_e_chiudi<Formattività>("activities open", "activities close", volte);
  apri_e_chiudi<Formelabora>("elaboration opens", "elaboration closes", volte);
  apri_e_chiudi<Formrubrica>("address book opens", "address book closes", volte);
  apri_e_chiudi<Formagenda>("agenda opens", "agenda closes", volte);
  apri_e_chiudi<Formtratta>("follow-up opens", "follow-up closes", volte);
  salta<Formpond>("jump to weight", volte);
  salta<Formattività>("jump to activities", volte);
  mostra<Formanag>();
  riempi_cliente();
  disegna_rapporto("personal data drawn", u"1"_s, u"v"_s, volte);
  disegna_rapporto("day of a diet drawn", u"21"_s, u"v"_s, volte);
  disegna_rapporto("diary list drawn", u"8"_s, u"v"_s, volte);
  disegna_rapporto("calorie list drawn", u"7"_s, u"o"_s, volte);
  const double memoria = banco::memoria_mb();
  std::printf("%-40s %9.1f MB\n", "memory with a client open", memoria);
  abbandona_schermate();
  chiudi_archivi();
  banco::budget("Opening or leaving a screen, slowest of the medians", schermate.volte, schermate.ms, {50, "ms"});
  banco::budget("Report page drawn, slowest of the medians", fogli.volte, fogli.ms, {50, "ms"});
  banco::budget("Resident memory with a client open", 1, memoria, {150, "MB"});
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Applicazione app(argc, argv);
  imposta_aspetto(app);
  if (argc > 1 && QByteArray(argv[1]) == "accesso") {
    imposta_cartella(QStringLiteral(CARTELLA_ARCHIVI));
    parla_con([](const Riquadro&) { return true; });
    mostra<frmLogin>();
    dipingi();
    return 0;
  }
  const int volte = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
  std::printf("%-40s %9s %9s\n", "", "median ms", "worst ms");
  const auto inizio = tempo(
      "process start to login and end", volte, [] {},
      [&] { QProcess::execute(QApplication::applicationFilePath(), {u"accesso"_s}); });
  banco::budget("Program start to login screen and end, median", volte, inizio.mediana, {500, "ms"});
  schermi(volte);
}
