#include "core/programma.h"

#include "base/archivio.h"

using namespace Qt::StringLiterals;

QString titolo_programma() { return QStringLiteral(ORZALINE_TITOLO); }

QVersionNumber versione_programma() { return QVersionNumber::fromString(QStringLiteral(ORZALINE_VERSIONE)); }

QString leggi_studio(int n) {
  static const QStringList campi{u"nome"_s, u"qualifica"_s, u"indirizzo"_s};
  Archivio studio(percorso(u"studio.jed"_s));
  const auto righe = studio.righe(u"SELECT nome, qualifica, indirizzo FROM studio"_s);
  return righe.empty() ? QString() : righe.front()[campi.at(n - 1)].toString();
}
