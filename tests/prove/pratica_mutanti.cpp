#include "pratica_mutanti.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "core/clienti.h"
#include "core/errore_non_gestito.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "core/stadi.h"
#include "core/trasferimento.h"
#include "mutanti.h"

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace mutanti {

namespace {

constexpr int cod_mutante = 2;
const QString riuscita = u"Importazione riuscita !"_s, fallita = u"Importazione fallita !"_s,
              non_caricato = u"Si è verificato un errore nel caricamento !"_s;

/// Every file and folder below, with length and time: what was touched shows.
QString impronta(const QString& cartella) {
  QStringList tutte;
  for (QDirIterator i(cartella, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
       i.hasNext();) {
    const QFileInfo f(i.next());
    if (f.fileName() == u"fc.jed" || f.fileName() == u"dati.tmp") continue;
    tutte << u"%1 %2 %3"_s.arg(f.filePath())
                 .arg(f.isDir() ? 0 : f.size())
                 .arg(f.isDir() ? 0 : f.lastModified().toMSecsSinceEpoch());
  }
  tutte.sort();
  return tutte.join(u'\n');
}

bool leggibile(const QString& file) {
  const QFileInfo f(file);
  return f.isFile() && !f.isSymLink();
}

/// The screens lay out whatever text a file holds: one word of a hundred thousand signs costs them seconds.
constexpr int limite_di_stadio = 15;

/// The nine stages, as the user walks them.
void percorri_stadi() {
  sotto_sorveglianza(
      "master data",
      [] {
        apri_cliente_scheda();
        QCoreApplication::processEvents();
      },
      limite_di_stadio);
  for (const Stadio& s : stadi()) {
    sotto_sorveglianza(
        qPrintable(s.suggerimento.toString()),
        [&] {
          salta_a(s);
          QCoreApplication::processEvents();
        },
        limite_di_stadio);
  }
  sotto_sorveglianza("closing", scarica_schede, limite_di_stadio);
}

/// In a child of its own: a run-time error ends the program.
Stadi prova_stadi() {
  const pid_t pid = ::fork();
  if (pid == 0) {
    gestisci_errori_con([](const std::exception&) { ::_exit(7); });
    try {
      percorri_stadi();
    } catch (const std::exception& e) {
      errore_non_gestito(e);
    }
    ::_exit(0);
  }
  int esito = 0;
  ::waitpid(pid, &esito, 0);
  if (WIFSIGNALED(esito)) ::raise(WTERMSIG(esito));  // dies as the stages died
  if (WEXITSTATUS(esito) == 99) ::_exit(99);
  if (WEXITSTATUS(esito) != 0 && WEXITSTATUS(esito) != 7)
    violata(u"the stages ended with %1"_s.arg(WEXITSTATUS(esito)));
  return esito == 0 ? Stadi::aperti : Stadi::errore_di_run_time;
}

}  // namespace

void violata(const QString& promessa) {
  std::fprintf(stderr, "broken promise: %s\n", qPrintable(promessa.left(2000)));
  ::_exit(1);
}

QString tutto(const QString& file) {
  Archivio a(file, accesso, Archivio::Modo::sola_lettura);
  if (a.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"] != u"ok"_s) violata(u"taken in, but damaged"_s);
  QString testo;
  for (const Riga& t : a.righe(u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"_s)) {
    const QString tabella = t[u"name"].toString();
    for (const Riga& r : a.righe(u"SELECT * FROM \"%1\""_s.arg(QString(tabella).replace(u'"', u"\"\""_s)))) {
      for (const QString& campo : r.campi()) {
        if (campo.compare(u"cod", Qt::CaseInsensitive) != 0) testo += r[campo].toString() + u'\x1f';
      }
      testo += u'\n';
    }
    testo += tabella + u'\n';
  }
  return testo;
}

double sotto_sorveglianza(const char* quale, const std::function<void()>& lavoro, int limite) {
  if (passo) qstrncpy(passo->data(), quale, passo->size());
  const auto sveglia = [](time_t secondi) {
    const itimerval quando{{}, {secondi, 0}};
    itimerval rimasto{};
    ::setitimer(ITIMER_PROF, &quando, &rimasto);
    ::alarm(secondi == 0 ? 0 : 60);
    return static_cast<double>(rimasto.it_value.tv_sec) + static_cast<double>(rimasto.it_value.tv_usec) / 1e6;
  };
  sveglia(limite);
  lavoro();
  return limite - sveglia(0);
}

Pratica::Pratica() {
  static std::array<char*, 1> argomenti{const_cast<char*>("prova")};
  static int n = 1;
  new Applicazione(n, argomenti.data());
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI)), pratica(radice_.filePath(u"pratica"_s));
  QDir().mkpath(pratica.path());
  imposta_cartella(pratica.path());
  for (const QString& nome : origine.entryList({u"*.jed"_s, u"*.chk"_s}))
    QFile::copy(origine.filePath(nome), pratica.filePath(nome));
  parla_con([this](const Riquadro& r) {
    ultima_casella_ = r.testo;
    return true;
  });
  gestisci_errori_con(
      [](const std::exception& e) { violata(u"an error came out of a rule: "_s + QString::fromUtf8(e.what())); });
  mostra<Mdiorza>();
  schedario().esegui(u"DELETE FROM schedario"_s);
  for (const auto& [cod, nome] : {std::pair(1, u"BIANCHI"_s), std::pair(cod_mutante, u"MUTANTE"_s)}) {
    const QString cartella = u"%1_%2"_s.arg(cod).arg(nome);
    pratica.mkdir(cartella);
    const QString file = pratica.filePath(cartella + u'/' + cartella + u".orzaline"_s);
    if (cod != cod_mutante) QFile::copy(origine.filePath(u"esempi/1300_bianchi.orzaline"_s), file);
    iscrivi({cod, nome, file});
  }
  schermata<Formsched>();
  registro_ = registro();
}

QString Pratica::fuori() const { return radice_.filePath(u"mutante.orzaline"_s); }
QString Pratica::file() const { return percorso(u"2_MUTANTE/2_MUTANTE.orzaline"_s); }

QString Pratica::registro() const {
  QString r;
  for (const Iscritto& i : iscritti()) r += u"%1 %2 %3\n"_s.arg(i.cod).arg(i.cognome, i.file);
  return r;
}

Sorte Pratica::prova(bool con_stadi, const std::set<QString>& contenuti) {
  Sorte s;
  s.importato = importa();
  QFile::rename(fuori(), file());
  elenca();
  s.richiamato = richiama();
  s.secondi = secondi_;
  if (s.richiamato && !contenuti.empty() && !contenuti.contains(tutto(percorso(u"dati.tmp"_s))))
    violata(u"a damaged client reads otherwise, and nobody says so"_s);
  if (s.richiamato && con_stadi) s.stadi = prova_stadi();
  chiudi_archivi();
  if (QFileInfo(file()).isDir() && !QFileInfo(file()).isSymLink()) {
    QDir(file()).removeRecursively();
  } else {
    QFile::remove(file());
  }
  return s;
}

/// An import changes nothing, or brings a whole client. A row whose file did not come is stated: the archive removes
/// it.
bool Pratica::importa() {
  // The second client's file is away meanwhile: its row must not go with the import's.
  scrivi(file(), "altro");
  const QString prima = impronta(radice_.path());
  ultima_casella_.clear();
  secondi_ = sotto_sorveglianza("import", [&] { importa_clienti({fuori()}); });
  const bool riuscito = ultima_casella_ == riuscita;
  if (riuscito) {
    sgombra_importato(prima);
  } else if (!ultima_casella_.isEmpty() && ultima_casella_ != fallita) {
    violata(u"the import said: "_s + ultima_casella_);
  }
  if (impronta(radice_.path()) != prima)
    violata(u"the import changed\n"_s + prima + u"\n to \n"_s + impronta(radice_.path()));
  pulisci_schedario();
  if (registro() != registro_) violata(u"the import left in the registry\n"_s + registro());
  QFile::remove(file());
  return riuscito;
}

/// Looks at the client that came in, and takes it out again.
void Pratica::sgombra_importato(const QString& prima) {
  std::vector<Iscritto> nuovi = iscritti();
  std::erase_if(nuovi, [&](const Iscritto& i) { return registro_.contains(i.file + u'\n'); });
  if (nuovi.size() != 1) violata(u"an import that came off made %1 rows"_s.arg(nuovi.size()));
  const Iscritto& n = nuovi.front();
  if (!prima.contains(n.file)) {
    if (QDir(QFileInfo(n.file).path() + u"/.."_s).canonicalPath() != QFileInfo(percorso({})).canonicalFilePath())
      violata(u"imported out of the practice: "_s + n.file);
    if (tutto(n.file) != tutto(fuori())) violata(u"the imported client is not the one of the file"_s);
    if (Archivio(n.file).righe(u"SELECT cod FROM anagrafe"_s).front()[u"cod"].toDouble() != n.cod)
      violata(u"another number in the file"_s);
    elimina_archivio(n.file);
    QDir().rmdir(QFileInfo(n.file).path());
  }
  cancella_iscritto(n.cod);
}

/// The archive lists whom it can read and changes nothing; the good client is always among them.
void Pratica::elenca() {
  const QString prima = impronta(radice_.path());
  const bool presente = QFile::exists(file());
  auto& f = schermata<Formsched>();
  f.imposta_tabella();
  const double secondi = sotto_sorveglianza("archive", [&] {
    riempi_schedario(scheda_tutti);
    f.ordina();
  });
  secondi_ = std::max(secondi_, secondi);
  if (impronta(radice_.path()) != prima) violata(u"the archive's list changed files"_s);
  if (!presente) iscrivi({cod_mutante, u"MUTANTE"_s, file()});  // said in a box, and gone from the registry
  if (registro() != registro_) violata(u"the archive's list changed the registry"_s);
  bool buono = false;
  for (int riga = 0; riga < f.Tabella->rowCount(); ++riga)
    buono = buono || f.testo(riga, 2) == u"Bianchi" || f.testo(riga, 2) == u"BIANCHI";
  if (!buono) violata(u"a good client is missing in the archive"_s);
}

/// A recall makes a whole file the working copy, or leaves the working copy as it was.
bool Pratica::richiama() {
  const QString dati = percorso(u"dati.tmp"_s), prima = impronta(radice_.path());
  scrivi(dati, "prima");
  auto& f = schermata<Formsched>();
  f.aggiungi({QString::number(cod_mutante), {}, u"MUTANTE"_s, {}, {}, {}});
  f.scegli_riga(f.Tabella->rowCount() - 1);
  ultima_casella_.clear();
  bool richiamato = false;
  secondi_ = std::max(secondi_, sotto_sorveglianza("recall", [&] { richiamato = richiama_cliente() == 0; }));
  if (!richiamato && (ultima_casella_ != non_caricato || leggi(dati) != "prima"))
    violata(u"a recall failed otherwise than stated"_s);
  if (richiamato && (!leggibile(file()) || leggi(dati) != leggi(file())))
    violata(u"the working copy is not the client's file"_s);
  if (richiamato) static_cast<void>(tutto(dati));
  if (impronta(radice_.path()) != prima) violata(u"the recall changed files"_s);
  return richiamato;
}

}  // namespace mutanti
