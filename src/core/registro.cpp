#include "core/registro.h"

#include "base/errori.h"
#include "base/file.h"
#include "base/numeri.h"
#include "core/attesa.h"
#include "core/file_cliente.h"
#include "core/formsched.h"
#include "core/messaggi.h"
#include "core/schermate.h"
#include "core/sessione.h"

using namespace Qt::StringLiterals;

namespace {

Iscritto iscritto_di(const Riga& r) {
  return {r[u"cod"].toInt(), r[u"cognome"].toString(), r[u"nome_files"].toString()};
}

bool appartiene(const QString& cognome, int tab) {
  return tab == scheda_tutti || (!cognome.isEmpty() && cognome.front().unicode() - u'A' == tab);
}

/// True, after a box, for a client whose file is gone: the row goes too.
bool perduto(const Iscritto& i) {
  if (!sparito(i.file)) return false;
  messaggio(
      u"La cartella di "_s + i.cognome + u" è stata danneggiata\nmodificata o altro, i suoi dati andranno persi !"_s,
      u"Orzaline  control"_s, Icona::critica);
  cancella_iscritto(i.cod);
  return true;
}

/// A client whose file is there but cannot be read stays in the registry: the file may be mended or put back.
void elenca(const Iscritto& i, int tab) {
  try {
    aggiungi_riga_schedario(i.file, tab);
  } catch (const Errore& e) {
    schermata<Formsched>().segnala(u"%1 %2: %3"_s.arg(i.cod).arg(i.cognome, QString::fromUtf8(e.what())));
  }
}

}  // namespace

std::vector<Iscritto> iscritti() {
  std::vector<Iscritto> tutti;
  for (const Riga& r : schedario().righe(u"SELECT cod, cognome, nome_files FROM schedario ORDER BY cognome"_s)) {
    tutti.push_back(iscritto_di(r));
  }
  return tutti;
}

std::optional<Iscritto> iscritto(int cod) {
  const auto righe = schedario().righe(u"SELECT cod, cognome, nome_files FROM schedario WHERE cod = ?"_s, cod);
  if (righe.empty()) return {};
  return iscritto_di(righe.front());
}

void iscrivi(const Iscritto& nuovo) {
  schedario().esegui(u"INSERT INTO schedario (cod, cognome, nome_files) VALUES (?, ?, ?)"_s, nuovo.cod, nuovo.cognome,
                     nuovo.file);
}

void cancella_iscritto(int cod) { schedario().esegui(u"DELETE FROM schedario WHERE cod = ?"_s, cod); }

int prossimo_cod() {
  return schedario().righe(u"SELECT coalesce(max(cod), 0) AS massimo FROM schedario"_s).front()[u"massimo"].toInt() + 1;
}

std::int16_t cod_libero() { return round16(prossimo_cod()); }

void pulisci_schedario() {
  for (const Iscritto& i : iscritti()) {
    if (sparito(i.file)) cancella_iscritto(i.cod);
  }
}

void riempi_schedario(int tab) {
  std::vector<Iscritto> presenti = iscritti();
  std::erase_if(presenti, perduto);
  {
    const Attesa attesa;
    for (const Iscritto& i : presenti) elenca(i, tab);
  }
  schermata<Formsched>().mostra_segnalati();
}

void aggiungi_riga_schedario(const QString& file, int tab) {
  Archivio cliente(file, accesso, Archivio::Modo::sola_lettura);
  pretendi_sole_tabelle(cliente);
  const auto righe =
      cliente.righe(u"SELECT cod, data_visita, cognome, nome, data_n, cod_fiscale FROM anagrafe LIMIT 1"_s);
  if (righe.empty() || !appartiene(righe.front()[u"cognome"].toString(), tab)) return;
  QStringList testi;
  for (const QString& campo : righe.front().campi()) testi << righe.front()[campo].toString();
  schermata<Formsched>().aggiungi(testi);
}
