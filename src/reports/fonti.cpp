#include "reports/fonti.h"

#include "core/messaggi.h"
#include "core/programma.h"
#include "core/sessione.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

Studio identità() { return {leggi_studio(1), leggi_studio(2), leggi_studio(3)}; }

void avvisa_cliente_assente() { messaggio(u"Nessun dato di questo cliente presente negli archivi !"_s); }

std::optional<Archivio> cliente_salvato() {
  const QString file = percorso_cliente();
  if (QFile::exists(file)) return Archivio(file, accesso, Archivio::Modo::sola_lettura);
  avvisa_cliente_assente();
  return {};
}

std::optional<Archivio> archivio_alimenti(const QString& nome) {
  if (QFile::exists(percorso(nome))) return Archivio(percorso(nome), accesso, Archivio::Modo::sola_lettura);
  messaggio(u"Errore, file mancante"_s);
  return {};
}

std::optional<Riga> prima_riga(Archivio& archivio, const QString& tabella) {
  auto righe = archivio.righe(u"SELECT * FROM \"%1\" ORDER BY rowid LIMIT 1"_s.arg(tabella));
  if (righe.empty()) return {};
  return std::move(righe.front());
}

std::vector<Riga> nella_finestra(const std::vector<Riga>& righe, Finestra f) {
  const std::size_t fine = std::min(f.ultima + 1, righe.size());
  if (f.prima >= fine) return {};
  return {righe.begin() + static_cast<std::ptrdiff_t>(f.prima), righe.begin() + static_cast<std::ptrdiff_t>(fine)};
}
