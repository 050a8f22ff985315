#include "reports/fonti.h"

#include "base/errori.h"
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

void avvisa_stampante() {
  messaggio(
      u"Il Programma non è riuscito ad inviare i dati alla stampante indicata\n"
      u"poichè i driver sono installati, ma la stessa non è collegata al sistema !"_s);
}

void scrivi_fin_dove_va(const std::function<void()>& scrive) {
  constexpr int del_foglio[]{6, 9, 11, 13, 340, 3021};
  try {
    scrive();
  } catch (const Errore& e) {
    if (std::ranges::find(del_foglio, e.numero) == std::end(del_foglio)) avvisa_caricamento();
  }
}

std::optional<Archivio> archivio_alimenti(const QString& nome) {
  if (QFile::exists(percorso(nome))) return Archivio(percorso(nome), accesso, Archivio::Modo::sola_lettura);
  messaggio(u"Errore, file mancante"_s);
  return {};
}

Riga alimento_scelto(Archivio& diario, const Riga& scelta) {
  auto righe = diario.righe(u"SELECT * FROM alimenti WHERE cod1 = ? AND cod2 = ?"_s, scelta[u"cod1"].toInt(),
                            scelta[u"cod2"].toInt());
  if (righe.empty()) throw Errore(3021, "Nessun record corrente");
  return std::move(righe.front());
}

std::optional<Riga> prima_riga(Archivio& archivio, const QString& tabella) {
  auto righe = archivio.righe(u"SELECT * FROM \"%1\" ORDER BY rowid LIMIT 1"_s.arg(tabella));
  if (righe.empty()) return {};
  return std::move(righe.front());
}

Riga anagrafe_di(Archivio& cliente) {
  auto riga = prima_riga(cliente, u"anagrafe"_s);
  if (!riga) throw Errore(3021, "Nessun record corrente");
  return *std::move(riga);
}

std::vector<Riga> nella_finestra(const std::vector<Riga>& righe, Finestra f) {
  const std::size_t fine = std::min(f.ultima + 1, righe.size());
  if (f.prima >= fine) return {};
  return {righe.begin() + static_cast<std::ptrdiff_t>(f.prima), righe.begin() + static_cast<std::ptrdiff_t>(fine)};
}
