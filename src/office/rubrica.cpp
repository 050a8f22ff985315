#include "office/rubrica.h"

#include "base/errori.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView campi_abitazione[]{u"indirizzo", u"Citta", u"provincia", u"cap", u"paese"};
constexpr QStringView campi_ufficio[]{u"indirizzo", u"Citta",   u"provincia",    u"cap",     u"paese",
                                      u"posizione", u"Societa", u"Dipartimento", u"Ufficio", u"Assistente"};
constexpr QStringView campi_telefoni[]{u"abitazione", u"Abitazione2", u"Cellulare", u"Cercapersone", u"Ufficio",
                                       u"Ufficio2",   u"Assistente",  u"FAX",       u"Cellulare2",   u"EMail"};
struct TabellaScheda {
  QStringView nome;
  std::span<const QStringView> campi;
};
constexpr TabellaScheda tabelle[schede]{
    {u"Abitazione", campi_abitazione}, {u"Ufficio", campi_ufficio}, {u"NumTel", campi_telefoni}};

[[noreturn]] void manca() { throw Errore(riga_mancante, "Segnalibro non valido."); }

/// The person's number, which the engine gives to a new one.
qint64 scrivi_nome(Archivio& rubrica, const Persona& p, std::optional<qint64> id) {
  const QString intero = p.nome + u' ' + p.cognome;
  if (!id) {
    rubrica.esegui(u"INSERT INTO Nomi (nome, cognome, NomeCognome) VALUES (?, ?, ?)"_s, p.nome, p.cognome, intero);
    return rubrica.ultimo_id();
  }
  const int righe = rubrica.esegui(u"UPDATE Nomi SET nome = ?, cognome = ?, NomeCognome = ? WHERE ID = ?"_s, p.nome,
                                   p.cognome, intero, *id);
  if (righe == 0) manca();
  return *id;
}

void scrivi_scheda(Archivio& rubrica, const TabellaScheda& t, const QStringList& testi, qint64 id, bool nota) {
  QStringList campi, segni;
  QVariantList valori;
  for (const QStringView campo : t.campi) {
    valori << testi.value(campi.size());
    campi << campo.toString();
    segni << u"?"_s;
  }
  valori << id;
  const QString comando =
      nota ? u"UPDATE %1 SET %2 = ? WHERE id = ?"_s.arg(t.nome, campi.join(u" = ?, "))
           : u"INSERT INTO %1 (%2, id) VALUES (%3, ?)"_s.arg(t.nome, campi.join(u", "), segni.join(u", "));
  if (rubrica.esegui_con(comando, valori) == 0) manca();
}

}  // namespace

std::vector<Nominativo> nominativi(Archivio& rubrica, QChar lettera) {
  std::vector<Nominativo> trovati;
  for (const Riga& r : rubrica.righe(
           u"SELECT ID, NomeCognome FROM Nomi WHERE cognome LIKE ? ORDER BY cognome, nome, ID"_s, lettera + u"%"_s)) {
    trovati.push_back({r[u"ID"].toLongLong(), r[u"NomeCognome"].toString()});
  }
  return trovati;
}

Persona leggi_persona(Archivio& rubrica, qint64 id) {
  const auto nomi = rubrica.righe(u"SELECT nome, cognome FROM Nomi WHERE ID = ?"_s, id);
  if (nomi.empty()) throw Errore(3021, "Nessun record corrente.");
  Persona p{nomi.front()[u"nome"].toString(), nomi.front()[u"cognome"].toString(), {}};
  for (std::size_t s = 0; s < schede; ++s) {
    const auto righe = rubrica.righe(u"SELECT * FROM %1 WHERE id = ?"_s.arg(tabelle[s].nome), id);
    for (const QStringView campo : tabelle[s].campi) {
      p.testi[s] << (righe.empty() ? QString() : righe.front()[campo].toString());
    }
  }
  return p;
}

void salva_persona(Archivio& rubrica, const Persona& persona, std::optional<qint64> id) {
  rubrica.transazione([&] {
    const qint64 numero = scrivi_nome(rubrica, persona, id);
    for (std::size_t s = 0; s < schede; ++s) {
      scrivi_scheda(rubrica, tabelle[s], persona.testi[s], numero, id.has_value());
    }
  });
}

void elimina_persona(Archivio& rubrica, qint64 id) {
  rubrica.transazione([&] {
    rubrica.esegui(u"DELETE FROM Nomi WHERE ID = ?"_s, id);
    for (const TabellaScheda& t : tabelle) rubrica.esegui(u"DELETE FROM %1 WHERE id = ?"_s.arg(t.nome), id);
  });
}
