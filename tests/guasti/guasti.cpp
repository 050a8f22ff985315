// Nothing saved is ever lost: general saves cut short by SIGKILL and by a full disk.
//
//   guasti [kills] [disk fillings]      (30 and 30 by default; 200 and more for a proof)
//
// A child process saves one state of a client after the other, each state the same number in every table. It is killed
// at a random moment, or runs on a small disk that fills up. Afterwards every client's file must open, pass the
// engine's check, read in full and hold one whole state, not older than the last one whose save came back.
#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "core/errore_non_gestito.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/salvataggio.h"
#include "core/sessione.h"

#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <array>
#include <csignal>
#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fallito(const std::string& che) {
  std::fprintf(stderr, "guasti: %s\n", che.c_str());
  std::exit(1);
}

void copia_archivi(const QString& cartella) {
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome : {u"matrix.jed"_s, u"fc.jed"_s, u"rubrica.jed"_s, u"studio.jed"_s, u"ccc.jed"_s}) {
    sostituisci_file(origine.filePath(nome), QDir(cartella).filePath(nome));
  }
}

void scrivi_stato(int stato) {
  Archivio dati(percorso(u"dati.tmp"_s));
  dati.transazione([&] {
    dati.esegui(u"UPDATE anagrafe SET indirizzo = ?"_s, QString::number(stato));
    dati.esegui(u"DELETE FROM dieta"_s);
    std::vector<QVariantList> righe(900, {QString::number(stato)});
    dati.esegui_serie(u"INSERT INTO dieta (descr) VALUES (?)"_s, righe);
  });
}

/// The state that a client's file holds. Fails the run where it is damaged or mixed.
int stato_di(const QString& file) {
  Archivio a(file, accesso, Archivio::Modo::sola_lettura);
  if (a.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"].toString() != u"ok")
    fallito("damaged: " + file.toStdString());
  for (const Riga& t : a.righe(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s)) {
    static_cast<void>(a.righe(u"SELECT * FROM \"%1\""_s.arg(t[u"name"].toString())));
  }
  const auto stati = a.righe(u"SELECT indirizzo AS stato FROM anagrafe UNION SELECT descr FROM dieta"_s);
  const auto righe = a.righe(u"SELECT count(*) AS n FROM dieta"_s).front()[u"n"].toInt();
  if (stati.size() != 1 || righe != 900) fallito("a mixed state: " + file.toStdString());
  return stati.front()[u"stato"].toInt();
}

/// Every client's file of the folder, and the register; the lowest state found.
int verifica(const QString& cartella) {
  int stato = -1, file = 0;
  for (QDirIterator i(cartella, {u"*.orzaline"_s}, QDir::Files, QDirIterator::Subdirectories); i.hasNext(); ++file) {
    const int s = stato_di(i.next());
    stato = stato < 0 ? s : std::min(stato, s);
  }
  Archivio registro(QDir(cartella).filePath(u"fc.jed"_s));
  if (registro.righe(u"SELECT * FROM schedario"_s).size() != 1 || file != 1) fallito("a client went missing");
  return stato;
}

void apri_cliente(const QString& file) {
  sostituisci_file(file, percorso(u"dati.tmp"_s));
  auto& m = schermata<Mdiorza>();
  m.Txtcod->setText(u"1"_s);
  m.Txtsoggetto->setText(u"BIANCHI ELENA"_s);
  m.qualeform.setText(u"8"_s);
  // Yes, save; and overwrite the client that the archive knows.
  parla_con([](const Riquadro& r) { return r.titolo != u"Attenzione"; });
}

/// The whole general save: file, registry, address book.
void salva_stato(int stato) {
  scrivi_stato(stato);
  salvataggio_generale();
}

/// Saves states from `primo` on and tells each one that came back, until killed or stopped by a failure.
[[noreturn]] void figlio(const QString& cartella, int primo, int racconto, int fino_a) {
  std::array<char*, 1> argomenti{const_cast<char*>("guasti")};
  int n = 1;
  Applicazione app(n, argomenti.data());
  imposta_cartella(cartella);
  try {
    apri_cliente(QDir(cartella).filePath(u"1_BIANCHI/1_BIANCHI.orzaline"_s));
    for (int stato = primo; stato <= fino_a; ++stato) {
      salva_stato(stato);
      static_cast<void>(::write(racconto, &stato, sizeof stato));
    }
  } catch (const std::exception&) {
    ::_exit(3);
  }
  ::_exit(0);
}

struct Figlio {
  pid_t pid;
  int racconto;
};

Figlio avvia(const QString& cartella, int primo, int fino_a) {
  std::array<int, 2> tubo{};
  if (::pipe(tubo.data()) != 0) fallito("pipe");
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::close(tubo[0]);
    figlio(cartella, primo, tubo[1], fino_a);
  }
  ::close(tubo[1]);
  return {pid, tubo[0]};
}

/// The last state that the child told of, and how it ended.
std::pair<int, int> raccogli(const Figlio& f, int ultimo) {
  for (int stato = 0; ::read(f.racconto, &stato, sizeof stato) == sizeof stato;) ultimo = stato;
  ::close(f.racconto);
  int esito = 0;
  ::waitpid(f.pid, &esito, 0);
  return {ultimo, esito};
}

void primo_salvataggio(const QString& cartella) {
  copia_archivi(cartella);
  QDir(cartella).mkpath(u"1_BIANCHI"_s);
  const QString file = QDir(cartella).filePath(u"1_BIANCHI/1_BIANCHI.orzaline"_s);
  sostituisci_file(QStringLiteral(CARTELLA_ARCHIVI "/esempi/1300_bianchi.orzaline"), file);
  const auto [ultimo, esito] = raccogli(avvia(cartella, 1, 1), 0);
  if (ultimo != 1 || esito != 0 || verifica(cartella) != 1) fallito("the first save did not come off");
}

void uccisioni(int quante) {
  const QTemporaryDir cartella;
  primo_salvataggio(cartella.path());
  std::mt19937 caso(1);
  int ultimo = 1, durante = 0;
  for (int i = 0; i < quante; ++i) {
    const Figlio f = avvia(cartella.path(), ultimo + 1, 1000000);
    int stato = 0;
    if (::read(f.racconto, &stato, sizeof stato) != sizeof stato) fallito("the child did not save");
    ::usleep(std::uniform_int_distribution<unsigned>(0, 40000)(caso));
    ::kill(f.pid, SIGKILL);
    const auto [tornato, esito] = raccogli(f, stato);
    const int trovato = verifica(cartella.path());
    if (trovato < tornato) fallito("a save that came back was lost");
    durante += trovato > tornato;
    ultimo = trovato;
  }
  std::printf(
      "%d kills during general saves: nothing lost, %d states saved, %d kills between the rename and its report\n",
      quante, ultimo, durante);
}

/// Fills the disk with a file and takes that many bytes off it again.
void riempi(const QString& zavorra, qint64 spazio) {
  QFile z(zavorra);
  if (!z.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) fallito("no room for the ballast");
  while (z.write(QByteArray(4096, 'z')) > 0) continue;
  if (!z.resize(std::max<qint64>(0, z.size() - spazio))) fallito("the ballast cannot be cut");
}

/// A small disk that leaves a different room free at each turn, from none to more than a save needs.
void disco_pieno(int volte) {
  const QTemporaryDir punto;
  const QByteArray dove = QFile::encodeName(punto.path());
  if (::mount("tmpfs", dove.constData(), "tmpfs", 0, "size=4m") != 0) {
    std::printf("full disk: no small disk can be mounted here, left out\n");
    return;
  }
  primo_salvataggio(punto.path());
  int ultimo = 1, falliti = 0;
  for (int i = 0; i < volte; ++i) {
    const QString zavorra = punto.filePath(u"zavorra"_s);
    riempi(zavorra, 8192LL * i);
    const auto [tornato, esito] = raccogli(avvia(punto.path(), ultimo + 1, ultimo + 1), ultimo);
    falliti += esito != 0;
    const int trovato = verifica(punto.path());
    if (trovato < tornato || trovato > ultimo + 1) fallito("a save that came back was lost on a full disk");
    ultimo = trovato;
    QFile::remove(zavorra);
  }
  ::umount(dove.constData());
  std::printf("%d saves on a filling disk: %d failed and said so, nothing lost\n", volte, falliti);
}

}  // namespace

int main(int argc, char** argv) {
  ::qputenv("QT_QPA_PLATFORM", "offscreen");
  try {
    uccisioni(argc > 1 ? std::atoi(argv[1]) : 30);
    disco_pieno(argc > 2 ? std::atoi(argv[2]) : 30);
  } catch (const std::exception& e) {
    fallito(e.what());
  }
}
