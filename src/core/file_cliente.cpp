#include "core/file_cliente.h"

#include "base/errori.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QSet>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView tabelle[]{
    u"anagrafe",
    u"personale",
    u"Anamnesi",
    u"esami",
    u"farmaci",
    u"pressione",
    u"dietologica",
    u"sport",
    u"consumi",
    u"diario",
    u"scelte_diario",
    u"Integratore_diario",
    u"Integratore_dieta",
    u"trattamento",
    u"alimenti",
    u"alimenti_spuntati",
    u"checkAlimentiSpuntati",
    u"dieta",
    u"gruppi_esclusi",
};

/// Views, triggers, tables of modules, and expressions in a definition: these need a parenthesis of their own or a
/// condition. The text counts, not the kind noted beside it: the engine goes by the text.
const QString altro_che_tabelle =
    u"SELECT 1 FROM sqlite_master WHERE (rootpage > 0 AND CASE type"
    " WHEN 'table' THEN sql LIKE 'CREATE TABLE %(%)%' AND sql NOT LIKE '%(%(%'"
    " WHEN 'index' THEN sql IS NULL OR (sql LIKE 'CREATE INDEX %(%)' OR sql LIKE 'CREATE UNIQUE INDEX %(%)')"
    " AND sql NOT LIKE '%(%(%' END) IS NOT 1 LIMIT 1"_s;

const QString nomi_delle_tabelle = u"SELECT name FROM sqlite_master WHERE type = 'table'"_s;

/// The engine's check passes a tree of the wrong kind for sound; reading it fails.
void leggi_per_intero(Archivio& cliente) {
  for (const Riga& r : cliente.righe(nomi_delle_tabelle)) {
    const QString nome = r[u"name"].toString().replace(u'"', u"\"\""_s);
    cliente.scorri(u"SELECT * FROM \"%1\""_s.arg(nome), [](const Cursore&) {});
  }
}

}  // namespace

QString nome_cliente(const QString& cod, const QString& cognome) {
  return QString(cod + u'_' + cognome).replace(u'/', u'-');
}

void pretendi_apribile(const QString& file) {
  constexpr unsigned troppi_secondi = 10;
  const pid_t figlio = ::fork();
  if (figlio == 0) {
    ::alarm(troppi_secondi);
    prosegui([&] { Archivio(file, accesso, Archivio::Modo::sola_lettura); });
    ::_exit(0);
  }
  int esito = 0;
  while (figlio > 0 && ::waitpid(figlio, &esito, 0) < 0 && errno == EINTR) continue;
  if (figlio < 0 || !WIFEXITED(esito) || WEXITSTATUS(esito) != 0) {
    throw Errore(3343, "Il file del cliente non si lascia aprire.");
  }
}

void pretendi_sole_tabelle(Archivio& cliente) {
  if (!cliente.righe(altro_che_tabelle).empty()) throw Errore(3343, "Il file del cliente contiene altro che tabelle.");
}

void verifica_cliente(Archivio& cliente) {
  pretendi_sole_tabelle(cliente);
  QSet<QString> presenti;
  for (const Riga& r : cliente.righe(nomi_delle_tabelle)) presenti << r[u"name"].toString().toLower();
  for (const QStringView t : tabelle) {
    if (!presenti.contains(t.toString().toLower()))
      throw Errore(3078, "Tabella non trovata: " + t.toString().toStdString());
  }
  cliente.esegui(u"PRAGMA cache_size = -65536"_s);  // KiB: the two readings that follow decrypt each page once
  if (cliente.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"] != u"ok"_s) {
    throw Errore(3343, "Il file del cliente è danneggiato.");
  }
  leggi_per_intero(cliente);
}
