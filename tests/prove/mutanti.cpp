// Damaged and hostile client files never crash, hang or half come in: import, archive and recall of mutants, and damage
// of the program's own stores.
//
//   prova_mutanti [mutants [flips [truncations]]]      (200, 39 and 13 by default)
//   prova_mutanti --solo n [end]                       mutant n alone, or those before the end, all with the nine
//   stages prova_mutanti --fai n file                         writes mutant n; COPIONE=1 shows the statements that make
//   it
//
// Mutants run in children by batches; a child that dies or finds a broken promise names its mutant and the next batch
// goes on behind it. What was found once stands in corpus/ and comes first.
#include "mutanti.h"

#include "banco.h"
#include "base/archivio.h"
#include "guasti_archivi.h"
#include "pratica_mutanti.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <csignal>
#include <functional>
#include <new>
#include <set>

using namespace Qt::StringLiterals;
using namespace mutanti;

// Found by the sanitizers' run-times: a finding must not end as a stated error does.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "detect_leaks=0:exitcode=99"; }
extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options() { return "print_stacktrace=1:exitcode=99"; }

namespace {

constexpr int lotto = 250;  // mutants a child
constexpr std::size_t lavoratori = 2;

/// Fourteen of twenty mutants are raw, three hostile contents, three damaged pages.
Genere genere_di(int n) { return n % 20 < 14 ? grezzi : n % 20 < 17 ? contenuti : pagine; }

Origini origini() {
  Origini o;
  const QString radice = QStringLiteral(CARTELLA_ARCHIVI);
  for (const auto& nome : {u"1300_bianchi"_s, u"1900_ferri"_s, u"2600_moretti"_s})
    o.clienti.push_back(leggi(u"%1/esempi/%2.orzaline"_s.arg(radice, nome)));
  o.clienti.push_back(leggi(radice + u"/matrix.jed"_s));
  for (const auto& nome : {u"fc.jed"_s, u"rubrica.jed"_s, u"sa_dieta.jed"_s})
    o.estranei.push_back(leggi(radice + u'/' + nome));
  const QTemporaryDir qui;
  const QString altra = qui.filePath(u"altra"_s);
  Archivio(altra, u";PWD=altra", Archivio::Modo::nuovo).esegui_copione(u"CREATE TABLE anagrafe (cod, cognome)"_s);
  for (const QByteArray& d : {leggi(altra), in_chiaro(o.clienti[0]), QByteArray(), QByteArray("Cod;Cognome\n1;ROSSI\n"),
                              QByteArray("SQLite format 3\0", 16), QByteArray(100000, '\0'), QByteArray(1 << 20, 'x')})
    o.estranei.push_back(d);
  return o;
}

/// Writes mutant n.
void genera(int n, const Origini& o, const QString& file) {
  Caso caso(static_cast<std::uint64_t>(n));
  const Genere g = genere_di(n);
  if (g == grezzi) return grezzo(caso, o, file);
  const QByteArray& cliente = caso.uno_di(o.clienti);
  if (g == pagine) return scrivi(file, pagina(caso, cliente));
  const QStringList copione = contenuto(caso);
  if (qEnvironmentVariableIsSet("COPIONE")) std::fprintf(stderr, "%s;\n", qPrintable(copione.join(u";\n"_s)));
  esegui_copione(cliente, copione, file);
}

/// What the children tell the parent.
struct Conto {
  int ora;  // the mutant at work
  Passo passo;
  std::array<int, generi> quanti, importati, richiamati;
  int negli_stadi, errori_di_run_time;
  double massimo;  // seconds of processor for the slowest step of one
};

struct Lotto {
  pid_t pid = 0;
  int da = 0, a = 0;
  Conto* conto = nullptr;
};

Conto* conto_comune() {
  void* m = ::mmap(nullptr, sizeof(Conto), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (m == MAP_FAILED) prove::fallito(u"mmap"_s);
  return new (m) Conto{};
}

void conta(Conto& c, Genere g, const Sorte& s) {
  const auto i = static_cast<std::size_t>(g);
  ++c.quanti[i];
  c.importati[i] += s.importato;
  c.richiamati[i] += s.richiamato;
  c.negli_stadi += s.stadi != Stadi::non_aperti;
  c.errori_di_run_time += s.stadi == Stadi::errore_di_run_time;
  c.massimo = std::max(c.massimo, s.secondi);
}

/// The mutants of a run: how many, how each is made, and whether all that are recalled go through the stages.
struct Giro {
  int da, a;
  std::function<void(int, const QString&)> genera;
  bool tutti_gli_stadi;
  const Origini& origini;
};

/// What raw damage may leave: a client as it was, where only bytes without use changed.
std::set<QString> intatti(const Origini& o, const QString& file) {
  std::set<QString> contenuti;
  for (const QByteArray& cliente : o.clienti) {
    scrivi(file, cliente);
    contenuti.insert(tutto(file));
  }
  QFile::remove(file);
  return contenuti;
}

[[noreturn]] void figlio(const Giro& giro, const Lotto& l) {
  try {
    passo = &l.conto->passo;
    Pratica pratica;
    const std::set<QString> buoni = giro.tutti_gli_stadi ? std::set<QString>() : intatti(giro.origini, pratica.fuori());
    for (int n = l.da; n < l.a; ++n) {
      l.conto->ora = n;
      giro.genera(n, pratica.fuori());
      const Genere g = genere_di(n);
      const bool stadi =
          giro.tutti_gli_stadi || (g != grezzi && Caso(static_cast<std::uint64_t>(n) + 1000000).uno_su(20));
      conta(*l.conto, g, pratica.prova(stadi, g == grezzi ? buoni : std::set<QString>()));
    }
    pratica.chiudi();
  } catch (const std::exception& e) {
    violata(QString::fromUtf8(e.what()));
  }
  ::_exit(0);
}

QString fine_di(int esito) {
  if (!WIFSIGNALED(esito)) return WEXITSTATUS(esito) == 99 ? u"a finding of the sanitizers"_s : u"a broken promise"_s;
  const int segnale = WTERMSIG(esito);
  if (segnale == SIGPROF || segnale == SIGALRM) return u"a hang"_s;
  return u"a crash, signal %1"_s.arg(segnale);
}

using Posti = std::array<Lotto, lavoratori>;

void avvia(const Giro& giro, Lotto& l) {
  l.pid = l.da < l.a ? ::fork() : 0;
  if (l.pid == 0 && l.da < l.a) figlio(giro, l);
}

/// Waits for a child; the batch of one that died goes on behind the mutant that it died of. False where none is left.
bool raccogli(const Giro& giro, Posti& posti, int& colpevoli) {
  int esito = 0;
  const pid_t finito = ::wait(&esito);
  if (finito < 0) return false;
  Lotto& l = *std::ranges::find(posti, finito, &Lotto::pid);
  l.pid = 0;
  if (esito == 0) return true;
  ++colpevoli;
  std::fprintf(stderr, "FAILED: mutant %d, %s: %s\n", l.conto->ora, l.conto->passo.data(), qPrintable(fine_di(esito)));
  l.da = l.conto->ora + 1;
  avvia(giro, l);
  return true;
}

/// Runs the mutants by batches, a few children at a time. Answers what they told, one count a worker.
std::vector<Conto> esegui(const Giro& giro) {
  Posti posti{};
  for (Lotto& l : posti) l.conto = conto_comune();
  int prossimo = giro.da, colpevoli = 0;
  do {
    for (Lotto& l : posti) {
      if (l.pid != 0 || prossimo >= giro.a) continue;
      l.da = prossimo;
      l.a = prossimo = std::min(giro.a, prossimo + lotto);
      avvia(giro, l);
    }
  } while (raccogli(giro, posti, colpevoli));
  if (colpevoli > 0) prove::fallito(u"%1 mutants"_s.arg(colpevoli));
  std::vector<Conto> conti;
  for (const Lotto& l : posti) conti.push_back(*l.conto);
  return conti;
}

void racconta(const std::vector<Conto>& conti) {
  static constexpr std::array<QStringView, generi> nomi{u"raw damage", u"hostile content", u"damaged pages"};
  Conto s{};
  for (const Conto& c : conti) {
    for (std::size_t i = 0; i < generi; ++i) {
      s.quanti[i] += c.quanti[i];
      s.importati[i] += c.importati[i];
      s.richiamati[i] += c.richiamati[i];
    }
    s.negli_stadi += c.negli_stadi;
    s.errori_di_run_time += c.errori_di_run_time;
    s.massimo = std::max(s.massimo, c.massimo);
  }
  for (std::size_t i = 0; i < generi; ++i) {
    prove::esito(
        u"Client files with "_s + nomi[i].toString(), s.quanti[i],
        u"no crash, no hang, none half in; %1 taken in whole, %2 recalled"_s.arg(s.importati[i]).arg(s.richiamati[i]));
  }
  prove::esito(u"Of these through the nine stages"_s, s.negli_stadi,
               u"no crash, no hang; %1 ended by a run-time error; slowest import, listing or recall %2 s"_s
                   .arg(s.errori_di_run_time)
                   .arg(s.massimo, 0, 'f', 2));
}

/// What was found once: scripts for a sample client, and files as they were.
Giro reperti(const Origini& o) {
  const QDir cartella(QStringLiteral(CARTELLA_SORGENTI "/tests/prove/corpus"));
  const QFileInfoList file = cartella.entryInfoList({u"*.sql"_s, u"*.orzaline"_s}, QDir::Files, QDir::Name);
  const auto genera = [file, &o](int n, const QString& dove) {
    const QFileInfo& f = file[n];
    const QByteArray dati = leggi(f.filePath());
    if (f.suffix() == u"orzaline") return scrivi(dove, dati);
    esegui_copione(o.clienti[0], QString::fromUtf8(dati).split(u";\n"_s, Qt::SkipEmptyParts), dove);
  };
  return {0, static_cast<int>(file.size()), genera, true, o};
}

struct Richiesta {
  int da, a;  // mutants
  bool sola;  // nothing but them, all through the stages
  int capovolti, troncati;
};

void prova(const Richiesta& r) {
  static const QTemporaryDir memoria(  // goes at a failure, too
      QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm/prova"_s : QDir::tempPath() + u"/prova"_s);
  ::qputenv("TMPDIR", QFile::encodeName(memoria.path()));
  const Origini o = origini();
  const Giro giro{r.da, r.a, [&o](int n, const QString& file) { genera(n, o, file); }, r.sola, o};
  if (r.sola) return racconta(esegui(giro));
  const Giro prima = reperti(o);
  static_cast<void>(esegui(prima));
  prove::esito(u"Files of the corpus"_s, prima.a, u"no crash, no hang, none half in"_s);
  racconta(esegui(giro));
  const pid_t pid = ::fork();
  if (pid == 0) {
    try {
      const Pratica pratica;
      prova_archivi(r.capovolti, r.troncati);
    } catch (const std::exception& e) {
      violata(QString::fromUtf8(e.what()));
    }
    ::_exit(0);
  }
  int esito = 0;
  ::waitpid(pid, &esito, 0);
  if (esito != 0) prove::fallito(u"the program's stores: "_s + fine_di(esito));
}

}  // namespace

int main(int argc, char** argv) {
  const auto numero = [&](int posto, int predefinito) { return prove::quante(argc, argv, posto, predefinito); };
  const QByteArray come = argc > 2 ? argv[1] : "";
  return prove::esegui([&] {
    if (come == "--fai") return genera(numero(2, 0), origini(), QString::fromLocal8Bit(argv[3]));
    if (come == "--solo") return prova({numero(2, 0), numero(3, numero(2, 0) + 1), true, 0, 0});
    prova({0, numero(1, 200), false, numero(2, 39), numero(3, 13)});
  });
}
