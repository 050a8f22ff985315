// Builds the stores that come with the program from their sources, and the sample clients.
#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "diet/alimenti.h"
#include "diet/selezione_automatica.h"
#include "riempimento.h"

#include <QDir>
#include <cstdio>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

/// The program's own stores are made anew each time, the user's only where there is none.
enum class Di { programma, utente };

struct Fonte {
  QStringView archivio;
  Di di;
  QStringView schema;
  QStringView righe, tabella, porzione;  // rows, the table that takes them, the column of its portions
};

constexpr Fonte fonti[] = {
    {u"matrix.jed", Di::programma, u"matrix.sql", {}, {}, {}},
    {u"0_1.chk", Di::utente, u"login.sql", {}, {}, {}},
    {u"studio.jed", Di::utente, u"studio.sql", u"studio.csv", u"studio", {}},
    {u"fc.jed", Di::utente, u"schedario.sql", {}, {}, {}},
    {u"rubrica.jed", Di::utente, u"rubrica.sql", {}, {}, {}},
    {u"Agenda.jed", Di::utente, u"agenda.sql", {}, {}, {}},
    {u"Durnin.jed", Di::programma, u"plicometria.sql", u"plicometria.csv", u"tab_plico", {}},
    {u"lifeins.jed", Di::programma, u"peso_ideale.sql", u"peso_ideale.csv", u"life", {}},
    {u"ccc.jed", Di::programma, u"comuni.sql", u"comuni.csv", u"Comuni", {}},
    {u"sa_dieta_minus.jed", Di::programma, u"alimenti.sql", u"alimenti.csv", u"alimenti", u"quantita_minus"},
    {u"sa_dieta.jed", Di::programma, u"alimenti.sql", u"alimenti.csv", u"alimenti", u"quantita"},
    {u"sa_dieta_plus.jed", Di::programma, u"alimenti.sql", u"alimenti.csv", u"alimenti", u"quantita_plus"},
    {u"sa_diario.jed", Di::programma, u"diario.sql", u"diario.csv", u"alimenti", u"quantita"},
    {u"gruppi_elenco.jed", Di::programma, u"gruppi.sql", u"gruppi.csv", u"gruppi", {}},
};

QString leggi_testo(const QString& file) {
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) throw Errore(53, "Impossibile leggere il file '" + file.toStdString() + "'.");
  return QString::fromUtf8(f.readAll());
}

/// Makes a store beside its place and puts it there in one step.
void posa(const QString& file, const std::function<void(Archivio&)>& riempimento) {
  const QString nuovo = file + u".tmp"_s;
  elimina_archivio(nuovo);
  try {
    Archivio archivio(nuovo, accesso, Archivio::Modo::nuovo);
    riempimento(archivio);
  } catch (...) {
    elimina_archivio(nuovo);
    throw;
  }
  std::filesystem::rename(nuovo.toStdString(), file.toStdString());
}

/// Names are matched without regard to case: the agenda's store has two spellings.
bool esiste(const QDir& cartella, const QString& nome) {
  return !cartella.entryList({nome}, QDir::AllEntries | QDir::Hidden | QDir::System).isEmpty();
}

void costruisci(const Fonte& f, const QDir& sorgenti, const QDir& destinazione) {
  const QString nome = f.archivio.toString();
  if (f.di == Di::utente && esiste(destinazione, nome)) return;
  posa(destinazione.filePath(nome), [&](Archivio& a) {
    a.transazione([&] {
      a.esegui_copione(leggi_testo(sorgenti.filePath(f.schema.toString())));
      if (f.righe.isEmpty()) return;
      riempi(a, f.tabella.toString(), leggi_csv(sorgenti.filePath(f.righe.toString())), f.porzione.toString());
    });
  });
}

/// A sample client: the template with the rows of `nome.sql`, the automatic selection of foods and, where the client
/// has any, the choices made by hand of `nome.scelte.sql`.
void costruisci_esempio(const QString& nome, const QDir& sorgenti, const QDir& destinazione) {
  const QString schema = leggi_testo(sorgenti.filePath(u"stores/matrix.sql"_s));
  const QString scelte = sorgenti.filePath(u"esempi/%1.scelte.sql"_s.arg(nome));
  Archivio sa_dieta(destinazione.filePath(u"sa_dieta.jed"_s), accesso, Archivio::Modo::sola_lettura);
  posa(destinazione.filePath(u"esempi/%1.orzaline"_s.arg(nome)), [&](Archivio& a) {
    a.transazione([&] {
      a.esegui_copione(schema);
      a.esegui_copione(leggi_testo(sorgenti.filePath(u"esempi/%1.sql"_s.arg(nome))));
    });
    seleziona_automatico(a, sa_dieta, leggi_tipo_pranzo(a));
    if (QFile::exists(scelte)) a.transazione([&] { a.esegui_copione(leggi_testo(scelte)); });
  });
}

void costruisci_tutto(const QDir& sorgenti, const QDir& destinazione) {
  if (!destinazione.mkpath(u"esempi"_s))
    throw Errore(76, "Impossibile creare '" + destinazione.path().toStdString() + "'.");
  for (const Fonte& f : fonti) costruisci(f, QDir(sorgenti.filePath(u"stores"_s)), destinazione);
  for (const QFileInfo& f : QDir(sorgenti.filePath(u"esempi"_s)).entryInfoList({u"*.sql"_s}, QDir::Files)) {
    const QString nome = f.completeBaseName();
    if (!nome.endsWith(u".scelte")) costruisci_esempio(nome, sorgenti, destinazione);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "uso: costruttore <cartella con stores/ ed esempi/> <cartella del programma>\n");
    return 2;
  }
  try {
    costruisci_tutto(QDir(QFile::decodeName(argv[1])), QDir(QFile::decodeName(argv[2])));
    return 0;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "costruttore: %s\n", e.what());
    return 1;
  }
}
