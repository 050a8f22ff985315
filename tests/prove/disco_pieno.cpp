// Nothing saved is lost when the disk is full, no way out of the program says it came off when it did not, and the
// cause is named.
//
//   prova_disco_pieno [rooms]      (2 by default)
//
// On a small disk, every way of writing meets that many amounts of free space, from none to more than it needs, with a
// client's file as it comes, of 1 MB and of 3 MB.
#include "banco.h"
#include "base/archivio.h"
#include "base/file.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/salvataggio.h"
#include "core/schermate.h"
#include "core/trasferimento.h"
#include "reports/formstampe.h"
#include "scritture.h"

#include <sys/mount.h>
#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using prove::fallito;

namespace {

constexpr qint64 blocco = 4096;

/// What a child tells.
enum Detto { niente, riuscito, senza_spazio, fallimento_detto, altro };

QByteArray contenuto(const QString& file) {
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

/// A small disk that goes with the object, and what takes its room away.
class Disco {
 public:
  explicit Disco(const char* misura)
      : montato_(::mount("tmpfs", QFile::encodeName(punto_.path()).constData(), "tmpfs", 0, misura) == 0) {}
  ~Disco() {
    if (montato_) ::umount(QFile::encodeName(punto_.path()).constData());
  }
  Disco(const Disco&) = delete;
  Disco& operator=(const Disco&) = delete;

  [[nodiscard]] bool montato() const { return montato_; }
  [[nodiscard]] QString cartella() const { return punto_.path(); }
  /// Fills the disk with a file and takes that many bytes off it again.
  void lascia(qint64 spazio) const {
    QFile z(zavorra());
    if (!z.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) fallito(u"no room for the ballast"_s);
    while (z.write(QByteArray(blocco, 'z')) > 0) continue;
    if (!z.resize(std::max<qint64>(0, z.size() - spazio))) fallito(u"the ballast cannot be cut"_s);
  }
  void svuota() const { QFile::remove(zavorra()); }

 private:
  [[nodiscard]] QString zavorra() const { return punto_.filePath(u"zavorra"_s); }
  QTemporaryDir punto_;
  bool montato_;
};

/// The stated words of each end, and the one that names the cause.
int suona(const Riquadro& r) {
  if (r.testo.startsWith(u"Errore di run-time")) {
    const bool causa =
        r.testo.contains(u"Spazio su disco insufficiente") && r.testo.contains(QString::fromUtf8(salvati_intatti));
    return causa ? senza_spazio : altro;
  }
  if (r.testo == u"Importazione riuscita !" || r.testo == u"File esportato con successo !") return riuscito;
  if (r.testo == u"Importazione fallita !" || r.testo == u"Esportazione fallita !!" ||
      r.testo.startsWith(u"Il Programma non è riuscito ad inviare i dati alla stampante")) {
    return fallimento_detto;
  }
  return niente;  // a question
}

struct Prova {
  QString disco, fuori;  // the small disk; a folder with room
  int turno = 0;
};

/// One way of writing.
struct Via {
  QString nome;
  bool pratica_sul_disco;
  qint64 spazio_massimo;  // beyond the client's file; with the file where it is copied
  bool copia_il_cliente;
  std::function<void(const Prova&)> prepara;  // in the parent, with room
  std::function<void(const Prova&)> scrivi;   // in the child; what comes back without a box came off
  std::function<void(const Prova&, int detto)> giudica;
};

void lavora(const Via& via, const Prova& p, const std::function<void(int)>& racconta) {
  int ultimo = niente;
  prove::prendi_banner();
  parla_con([&](const Riquadro& r) {
    const int detto = suona(r);
    if (detto == altro) std::fprintf(stderr, "%s\n", qPrintable(r.testo));
    if (detto != niente) racconta(ultimo = detto);
    return r.titolo != u"Attenzione";
  });
  esegui_regola([&] { via.scrivi(p); });
  if (ultimo == niente) racconta(riuscito);
}

// ---- the ways

prove::Scrittura scrittura(const QString& nome) {
  return *std::ranges::find(prove::scritture(), nome, &prove::Scrittura::nome);
}

/// The store holds what it held, or the whole of what was told.
Via via_archivio(const QString& nome, int volte) {
  const auto s = scrittura(nome);
  return {u"Writes of the "_s + nome,
          true,
          24 * blocco,
          false,
          [](const Prova& p) {
            if (p.turno == 0) prove::prepara_scritture(p.disco);
          },
          [=](const Prova& p) { s.scrivi(p.turno + 1, volte * (1 + p.turno % 3)); },
          [=](const Prova& p, int detto) {
            const int trovato = prove::stato_scritto(s, p.disco);
            if (detto == riuscito && trovato != p.turno + 1) fallito(nome + u": a write that came back is lost"_s);
            if (trovato > p.turno + 1) fallito(nome + u": a state from nowhere"_s);
          }};
}

void prepara_salvataggio(const Prova& p) {
  imposta_cartella(p.disco);
  sostituisci_file(prove::file_cliente(p.disco), percorso(u"dati.tmp"_s));
  prove::scrivi_stato(p.turno + 2);
}

void giudica_salvataggio(const Prova& p, int detto) {
  const int trovato = prove::verifica(p.disco);
  if (detto == riuscito ? trovato != p.turno + 2 : trovato > p.turno + 2) fallito(u"a general save is lost"_s);
}

QString esportato(const Prova& p) { return QDir(p.disco).filePath(u"1_BIANCHI.orzaline"_s); }

void giudica_copia(const QString& nuovo, const QString& file, int detto) {
  const QByteArray c = contenuto(file);
  if (detto == riuscito ? c != contenuto(nuovo) : c != "vecchio")
    fallito(u"neither the old file nor the new: "_s + file);
  if (QFile::exists(file + u".nuovo"_s)) fallito(u"a piece of a file is left: "_s + file);
}

void posa_vecchio(const QString& file) { scrivi_file("vecchio", file); }

QString straniero(const Prova& p) { return QDir(p.fuori).filePath(u"straniero.orzaline"_s); }

void giudica_importazione(const Prova& p, int detto) {
  const QDir cartella(QDir(p.disco).filePath(u"77_NERI"_s));
  if (cartella.exists() != (detto == riuscito)) fallito(u"an import is there by half"_s);
  if (QDir(p.disco).exists(u".importazione"_s)) fallito(u"a piece of an import is left"_s);
  if (detto != riuscito) return;
  Archivio cliente(cartella.filePath(u"77_NERI.orzaline"_s));
  prove::sano(cliente, cartella.path());
  if (cliente.righe(u"SELECT 1 FROM anagrafe WHERE cod = 77"_s).size() != 1) fallito(u"the import is another's"_s);
}

void prepara_importazione(const Prova& p) {
  QDir(QDir(p.disco).filePath(u"77_NERI"_s)).removeRecursively();
  Archivio(QDir(p.disco).filePath(u"fc.jed"_s)).esegui(u"DELETE FROM schedario WHERE cod = 77"_s);
  sostituisci_file(prove::file_cliente(p.disco), straniero(p));
  Archivio(straniero(p)).esegui(u"UPDATE anagrafe SET cod = 77, cognome = 'NERI'"_s);
}

QString pdf(const Prova& p) { return QDir(p.disco).filePath(u"stampa.pdf"_s); }

void stampa(const Prova& p) {
  esterno().imposta_stampante = [&](QPrinter& s) {
    s.setOutputFileName(pdf(p));
    return true;
  };
  apri_stampa(p.turno % 2 ? u"1"_s : u"7"_s, p.turno % 2 ? u"v"_s : u"o"_s);
  schermata<Formstampe>().Cmdchar[1]->click();
}

void giudica_stampa(const Prova& p, int detto) {
  const QByteArray c = contenuto(pdf(p));
  const bool intero = c.startsWith("%PDF") && c.endsWith("%%EOF\n");
  if (detto == riuscito ? !intero : c != "vecchio") fallito(u"a print is cut off or said wrongly"_s);
}

std::vector<Via> vie() {
  return {
      via_archivio(u"clinical history"_s, 40),
      via_archivio(u"address book"_s, 300),
      {u"General saves"_s, true, 16 * blocco, true, prepara_salvataggio, [](const Prova&) { salvataggio_generale(); },
       giudica_salvataggio},
      {u"Exports"_s, false, 4 * blocco, true, [](const Prova& p) { posa_vecchio(esportato(p)); },
       [](const Prova& p) { esporta_cliente(1, p.disco); },
       [](const Prova& p, int d) { giudica_copia(prove::file_cliente(p.fuori), esportato(p), d); }},
      {u"Imports"_s, true, 16 * blocco, true, prepara_importazione,
       [](const Prova& p) { importa_clienti({straniero(p)}); }, giudica_importazione},
      {u"Prints to a file"_s, false, 24 * blocco, false, [](const Prova& p) { posa_vecchio(pdf(p)); }, stampa,
       giudica_stampa},
  };
}

// ---- the sweep

/// Notes that nobody reads make the client's file as large as asked.
void gonfia(const QString& file, int mega) {
  Archivio a(file);
  a.transazione([&] {
    for (int i = 0; i < mega; ++i) a.esegui(u"INSERT INTO esami (referto) VALUES (?)"_s, QString(1'000'000, u'n'));
  });
}

struct Conto {
  int prove = 0, falliti = 0;
};

void una(const Via& via, const Disco& disco, Prova p, qint64 spazio, Conto& conto) {
  p.turno = conto.prove++;
  via.prepara(p);
  disco.lascia(spazio);
  const QString pratica = via.pratica_sul_disco ? p.disco : p.fuori;
  const prove::Figlio f = prove::avvia(pratica, [&](const auto& racconta) { lavora(via, p, racconta); });
  const int detto = prove::raccogli(f, niente).ultimo;
  disco.svuota();
  if (detto == niente || detto == altro) fallito(via.nome + u": the cause was not told"_s);
  conto.falliti += detto != riuscito;
  via.giudica(p, detto);
}

void percorri(const Via& via, int spazi) {
  Conto conto;
  for (const int mega : {0, 1, 3}) {
    const Disco disco("size=24m");
    const QTemporaryDir fuori;
    const Prova p{disco.cartella(), fuori.path()};
    const QString pratica = via.pratica_sul_disco ? p.disco : p.fuori;
    prove::prepara_scritture(pratica);
    prove::prepara(pratica);
    gonfia(prove::file_cliente(pratica), mega);
    conto.prove = 0;
    const qint64 tutto =
        via.spazio_massimo + (via.copia_il_cliente ? QFileInfo(prove::file_cliente(pratica)).size() : 0);
    for (int i = 0; i < spazi; ++i) una(via, disco, p, tutto * i / std::max(1, spazi - 1) / blocco * blocco, conto);
  }
  prove::esito(via.nome + u" on a full disk"_s, 3 * spazi,
               u"0 lost, 0 torn; %1 failed and said so"_s.arg(conto.falliti));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    if (!Disco("size=1m").montato()) {
      return prove::esito(u"Full disk"_s, 0, u"left out: no small disk can be mounted here"_s);
    }
    for (const Via& v : vie()) percorri(v, prove::quante(argc, argv, 1, 2));
  });
}
