#include "core/file_cliente.h"

#include "base/errori.h"

#include <QSet>

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

}  // namespace

QString nome_cliente(const QString& cod, const QString& cognome) {
  return QString(cod + u'_' + cognome).replace(u'/', u'-');
}

void verifica_cliente(Archivio& cliente) {
  if (cliente.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"] != u"ok"_s) {
    throw Errore(3343, "Il file del cliente è danneggiato.");
  }
  QSet<QString> presenti;
  for (const Riga& r : cliente.righe(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s)) {
    presenti << r[u"name"].toString().toLower();
  }
  for (const QStringView t : tabelle) {
    if (!presenti.contains(t.toString().toLower()))
      throw Errore(3078, "Tabella non trovata: " + t.toString().toStdString());
  }
}
