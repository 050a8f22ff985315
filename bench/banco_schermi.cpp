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
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "reports/formstampe.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Times `opera`; what `prima` does each time before does not count.
template <class P, class F>
void tempo(const char* che, int volte, P&& prima, F&& opera) {
  std::vector<double> ms;
  for (int i = 0; i < volte; ++i) {
    prima();
    const auto inizio = std::chrono::steady_clock::now();
    opera();
    ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inizio).count());
  }
  std::ranges::sort(ms);
  std::printf("%-32s %9.1f %9.1f\n", che, ms[ms.size() / 2], ms.back());
}

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
  tempo(apre, volte, chiudi, apri);
  tempo(chiude, volte, apri, chiudi);
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
  tempo(
      che, volte, [&] { f.List1->setCurrentRow(1); }, [&] { f.List1->setCurrentRow(0); });
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

double memoria_mb() {
  QFile f(u"/proc/self/status"_s);
  if (!f.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& riga : f.readAll().split('\n')) {
    if (riga.startsWith("VmRSS:")) return riga.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

void schermi(int volte) {
  const QTemporaryDir cartella;
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome : origine.entryList({u"*.jed"_s, u"*.chk"_s})) {
    sostituisci_file(origine.filePath(nome), cartella.filePath(nome));
  }
  sostituisci_file(origine.filePath(u"esempi/1900_ferri.orzaline"_s), cartella.filePath(u"dati.tmp"_s));
  imposta_cartella(cartella.path());
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
  std::printf("%-32s %9.1f MB\n", "memory with a client open", memoria_mb());
  abbandona_schermate();
  chiudi_archivi();
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
  std::printf("%-32s %9s %9s\n", "", "median ms", "worst ms");
  tempo(
      "process start to login and end", volte, [] {},
      [&] { QProcess::execute(QApplication::applicationFilePath(), {u"accesso"_s}); });
  schermi(volte);
}
