// How long the archive takes to list its clients.
//
//   banco_schedario [fills of each tab]      (3 by default)
//
// Fills 100, 1,000 and 5,000 clients into a temporary folder, copies of a sample client, and times the tab of all and
// that of one letter.
#include "base/archivio.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/sessione.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int altra_scheda = 25;  // an almost empty tab to come from

QString cognome_di(int cod) { return QChar(u'A' + cod * 7 % 25) + u"COGNOME%1"_s.arg(cod); }

void iscrivi_cliente(const QString& campione, int cod) {
  const QString nome = u"%1_%2"_s.arg(cod).arg(cognome_di(cod));
  const QString file = percorso(nome + u'/' + nome + u".orzaline"_s);
  QDir(percorso({})).mkdir(nome);
  QFile::copy(campione, file);
  Archivio cliente(file);
  cliente.esegui(u"PRAGMA synchronous = OFF"_s);
  cliente.esegui(u"UPDATE anagrafe SET cod = ?, cognome = ?"_s, cod, cognome_di(cod));
  schedario().esegui(u"INSERT INTO schedario (cod, cognome, nome_files) VALUES (?, ?, ?)"_s, cod, cognome_di(cod),
                     file);
}

void porta_a(const QString& campione, int clienti) {
  schedario().transazione([&] {
    for (int cod = prossimo_cod(); cod <= clienti; ++cod) iscrivi_cliente(campione, cod);
  });
}

/// Median of the fills, in milliseconds.
double tempo(int scheda, int volte) {
  QTabBar* strisce = schermata<Formsched>().SSTabschedario;
  std::vector<double> ms;
  for (int i = 0; i < volte; ++i) {
    strisce->setCurrentIndex(altra_scheda);
    const auto inizio = std::chrono::steady_clock::now();
    strisce->setCurrentIndex(scheda);
    QApplication::processEvents();  // the grid is painted too
    ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inizio).count());
  }
  std::ranges::sort(ms);
  return ms[ms.size() / 2];
}

void misura(const QString& campione, int clienti, int volte) {
  porta_a(campione, clienti);
  mostra<Formsched>();
  const double tutti = tempo(scheda_tutti, volte), lettera = tempo(1, volte);
  std::printf("%8d %12.1f %14.3f %14.1f %14.3f\n", clienti, tutti, tutti / clienti, lettera, lettera / clienti);
  scarica<Formsched>();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  setvbuf(stdout, nullptr, _IOLBF, 0);
  Applicazione app(argc, argv);
  imposta_aspetto(app);
  const QTemporaryDir cartella;
  for (const QString& nome : {u"fc.jed"_s, u"studio.jed"_s}) {
    QFile::copy(QStringLiteral(CARTELLA_ARCHIVI "/") + nome, cartella.filePath(nome));
  }
  imposta_cartella(cartella.path());
  schedario().esegui(u"DELETE FROM schedario"_s);
  mostra<Mdiorza>();
  std::printf("%8s %12s %14s %14s %14s\n", "clients", "all, ms", "ms a client", "one letter, ms", "ms a client");
  const int volte = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
  const QString campione = QStringLiteral(CARTELLA_ARCHIVI "/esempi/1900_ferri.orzaline");
  for (const int clienti : {100, 1000, 5000}) misura(campione, clienti, volte);
  abbandona_schermate();
  chiudi_archivi();
  return 0;
}
