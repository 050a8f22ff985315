// Nothing saved is lost when the disk is full, and no way out of the program says it came off when it did not. Stores
// and the general save name the full disk; import, export and printing say that they failed, not why.
//
//   prova_disco_pieno [rooms]      (2 by default)
//
// On a small disk, every way of writing meets that many amounts of free space, from none to as much as it needs, with
// little to write, 1 MB and 3 MB: in the client's file, in a record; a print grows by its pages.
#include "banco.h"
#include "base/archivio.h"
#include "base/file.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/messaggi.h"
#include "core/registro.h"
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
#include <set>

using namespace Qt::StringLiterals;
using prove::fallito;

namespace {

constexpr qint64 blocco = 4096, un_mega = 1'000'000;
constexpr int pochi_spazi = 2;

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
  int mega = 0;          // by how much the writing is enlarged
  int turno = 0;
  int prima = 0;  // the state that stands before the writing
};

/// One way of writing.
struct Via {
  QString nome;
  bool pratica_sul_disco;
  std::function<qint64(const Prova&)> bisogno;  // the room with which it comes off
  std::function<int(const Prova&)> prepara;     // in the parent, with room; answers the state that stands
  std::function<void(const Prova&)> scrivi;     // in the child; what comes back without a box came off
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

/// The whole of what was told, or what stood before where a failure was told.
void giudica_stato(const Prova& p, int detto, int trovato, int nuovo, const QString& che) {
  if (trovato == nuovo || (detto != riuscito && trovato == p.prima)) return;
  fallito(u"%1: state %2 stood, %3 was written, %4 is there"_s.arg(che).arg(p.prima).arg(nuovo).arg(trovato));
}

qint64 misura_record(const Prova& p) { return 24'000 + p.mega * un_mega; }

/// How often a record's texts hold the state: for a third, two thirds and the whole of its size in turn.
int volte(const Prova& p, int testi) {
  const auto uno = QString::number(p.turno + 2).size() + 1;
  return static_cast<int>(misura_record(p) * (1 + p.turno % 3) / 3 / testi / uno);
}

/// State 1, with room: there is something to lose.
void posa_primo(const prove::Scrittura& s, const Prova& p, int testi) {
  prove::prepara_scritture(p.disco);
  const auto f = prove::avvia(p.disco, [&](const auto& racconta) {
    prove::prendi_banner();
    s.scrivi(1, volte(p, testi));
    racconta(riuscito);
  });
  if (prove::raccogli(f, niente).ultimo != riuscito) fallito(s.nome + u": the first write did not come off"_s);
}

Via via_archivio(const QString& nome, int testi) {
  const auto s = scrittura(nome);
  const auto stato = [=](const Prova& p) { return prove::stato_scritto(s, p.disco); };
  return {u"Writes of the "_s + nome,
          true,
          [](const Prova& p) { return 16 * blocco + 2 * misura_record(p); },  // the journal holds what it replaces
          [=](const Prova& p) {
            if (p.turno == 0) posa_primo(s, p, testi);
            return stato(p);
          },
          [=](const Prova& p) { s.scrivi(p.turno + 2, volte(p, testi)); },
          [=](const Prova& p, int detto) { giudica_stato(p, detto, stato(p), p.turno + 2, nome); }};
}

qint64 con_una_copia(const QString& cartella, int blocchi) {
  return QFileInfo(prove::file_cliente(cartella)).size() + blocchi * blocco;
}

int prepara_salvataggio(const Prova& p) {
  imposta_cartella(p.disco);
  sostituisci_file(prove::file_cliente(p.disco), percorso(u"dati.tmp"_s));
  prove::scrivi_stato(p.turno + 2);
  return prove::verifica(p.disco);
}

void giudica_salvataggio(const Prova& p, int detto) {
  giudica_stato(p, detto, prove::verifica(p.disco), p.turno + 2, u"general save"_s);
}

QString esportato(const Prova& p) { return QDir(p.disco).filePath(u"1_BIANCHI.orzaline"_s); }

void giudica_copia(const QString& nuovo, const QString& file, int detto) {
  const QByteArray c = contenuto(file);
  if (detto == riuscito ? c != contenuto(nuovo) : c != "vecchio")
    fallito(u"neither the old file nor the new: "_s + file);
  if (QFile::exists(file + u".nuovo"_s)) fallito(u"a piece of a file is left: "_s + file);
}

int posa_vecchio(const QString& file) {
  scrivi_file("vecchio", file);
  return 0;
}

QString straniero(const Prova& p) { return QDir(p.fuori).filePath(u"straniero.orzaline"_s); }

/// The archive takes out the rows whose file is gone, as when it is opened next.
void riordina(const QString& pratica) {
  const auto f = prove::avvia(pratica, [](const auto& racconta) {
    pulisci_schedario();
    racconta(riuscito);
  });
  if (prove::raccogli(f, niente).ultimo != riuscito) fallito(u"the archive does not open"_s);
}

void giudica_importazione(const Prova& p, int detto) {
  const QDir cartella(QDir(p.disco).filePath(u"77_NERI"_s));
  if (cartella.exists() != (detto == riuscito)) fallito(u"an import is there by half"_s);
  if (QDir(p.disco).exists(u".importazione"_s)) fallito(u"a piece of an import is left"_s);
  if (detto != riuscito) riordina(p.disco);
  if (prove::verifica(p.disco) != p.prima) fallito(u"an import changed another client"_s);
  if (detto != riuscito) return;
  const QString file = cartella.filePath(u"77_NERI.orzaline"_s);
  if (Archivio(file).righe(u"SELECT 1 FROM anagrafe WHERE cod = 77"_s).size() != 1)
    fallito(u"the import is another's"_s);
  Archivio registro(QDir(p.disco).filePath(u"fc.jed"_s));
  const QString riga = u"SELECT 1 FROM schedario WHERE cod = 77 AND cognome = 'NERI' AND nome_files = ?"_s;
  if (registro.righe(riga, file).size() != 1) fallito(u"the registry does not know the import"_s);
}

int prepara_importazione(const Prova& p) {
  QDir(QDir(p.disco).filePath(u"77_NERI"_s)).removeRecursively();
  Archivio(QDir(p.disco).filePath(u"fc.jed"_s)).esegui(u"DELETE FROM schedario WHERE cod = 77"_s);
  sostituisci_file(prove::file_cliente(p.disco), straniero(p));
  Archivio(straniero(p)).esegui(u"UPDATE anagrafe SET cod = 77, cognome = 'NERI'"_s);
  return prove::verifica(p.disco);
}

QString pdf(const Prova& p) { return QDir(p.disco).filePath(u"stampa.pdf"_s); }

constexpr int alimenti_a_mega = 1000, byte_ad_alimento = 40;

/// The larger prints are of a diet with that many foods.
int prepara_stampa(const Prova& p) {
  if (p.turno == 0) {
    Archivio a(prove::file_cliente(p.fuori));
    std::vector<QVariantList> righe;
    for (int i = 0; i < p.mega * alimenti_a_mega; ++i) righe.push_back({i % 7, i % 5, u"Alimento %1"_s.arg(i * i), i});
    a.transazione([&] {
      a.esegui_serie(u"INSERT INTO dieta (dieta, giorno, pasto, descr, quant) VALUES (1, ?, ?, ?, ?)"_s, righe);
    });
  }
  return posa_vecchio(pdf(p));
}

QString da_stampare(const Prova& p) {
  if (p.mega > 0) return u"21"_s;
  return p.turno % 2 ? u"1"_s : u"7"_s;
}

void stampa(const Prova& p) {
  esterno().imposta_stampante = [&](QPrinter& s) {
    s.setOutputFileName(pdf(p));
    return true;
  };
  apri_stampa(da_stampare(p), p.turno % 2 ? u"v"_s : u"o"_s);
  schermata<Formstampe>().Cmdchar[1]->click();
}

void giudica_stampa(const Prova& p, int detto) {
  const QByteArray c = contenuto(pdf(p));
  const bool intero = c.startsWith("%PDF") && c.endsWith("%%EOF\n");
  if (detto == riuscito ? !intero : c != "vecchio") fallito(u"a print is cut off or said wrongly"_s);
}

std::vector<Via> vie() {
  return {
      via_archivio(u"clinical history"_s, 100),
      via_archivio(u"address book"_s, 29),
      {u"General saves"_s, true, [](const Prova& p) { return con_una_copia(p.disco, 16); }, prepara_salvataggio,
       [](const Prova&) { salvataggio_generale(); }, giudica_salvataggio},
      {u"Exports"_s, false, [](const Prova& p) { return con_una_copia(p.fuori, 4); },
       [](const Prova& p) { return posa_vecchio(esportato(p)); }, [](const Prova& p) { esporta_cliente(1, p.disco); },
       [](const Prova& p, int d) { giudica_copia(prove::file_cliente(p.fuori), esportato(p), d); }},
      {u"Imports"_s, true, [](const Prova& p) { return con_una_copia(p.disco, 16); }, prepara_importazione,
       [](const Prova& p) { importa_clienti({straniero(p)}); }, giudica_importazione},
      {u"Prints to a file"_s, false,
       [](const Prova& p) { return 16 * blocco + p.mega * alimenti_a_mega * byte_ad_alimento; }, prepara_stampa, stampa,
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
  std::set<std::pair<int, qint64>> diverse;  // how much to write, how much room
  int falliti = 0;
};

/// True where the writing came off.
bool una(const Via& via, const Disco& disco, Prova p, qint64 spazio, Conto& conto) {
  p.prima = via.prepara(p);
  disco.lascia(spazio);
  const QString pratica = via.pratica_sul_disco ? p.disco : p.fuori;
  const prove::Figlio f = prove::avvia(pratica, [&](const auto& racconta) { lavora(via, p, racconta); });
  const int detto = prove::raccogli(f, niente).ultimo;
  disco.svuota();
  if (detto == niente || detto == altro) fallito(via.nome + u": neither success nor failure was told"_s);
  via.giudica(p, detto);
  conto.diverse.emplace(p.mega, spazio);
  conto.falliti += detto != riuscito;
  return detto == riuscito;
}

void percorri_con(const Via& via, int mega, int spazi, Conto& conto) {
  const Disco disco("size=24m");
  const QTemporaryDir fuori;
  Prova p{disco.cartella(), fuori.path(), mega};
  const QString pratica = via.pratica_sul_disco ? p.disco : p.fuori;
  prove::prepara_scritture(pratica);
  prove::prepara(pratica);
  gonfia(prove::file_cliente(pratica), mega);
  const qint64 tutto = via.bisogno(p);
  bool ultima = true;
  for (p.turno = 0; p.turno < spazi; ++p.turno)
    ultima = una(via, disco, p, tutto * p.turno / std::max(1, spazi - 1) / blocco * blocco, conto);
  if (spazi > 1 && !ultima) fallito(via.nome + u": fails with room enough"_s);
}

void percorri(const Via& via, int spazi) {
  Conto conto;
  for (const int mega : {0, 1, 3}) percorri_con(via, mega, spazi, conto);
  prove::esito(via.nome + u" on a full disk"_s, static_cast<int>(conto.diverse.size()),
               u"0 lost, 0 torn; %1 failed and said so"_s.arg(conto.falliti));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    const int spazi = prove::quante(argc, argv, 1, pochi_spazi);
    if (!Disco("size=1m").montato()) {
      if (spazi > pochi_spazi) fallito(u"no small disk can be mounted here"_s);
      return prove::esito(u"Full disk"_s, 0, u"left out: no small disk can be mounted here"_s);
    }
    for (const Via& v : vie()) percorri(v, spazi);
  });
}
