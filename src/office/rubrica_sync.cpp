#include "office/rubrica_sync.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "core/mdiorza.h"
#include "core/salva_carica.h"
#include "intake/formanag.h"

#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace {

QString soggetto() { return schermata<Mdiorza>().Txtsoggetto->text(); }

/// A person's number in the address book; none where the name is not there.
std::optional<qint64> cerca(Archivio& rubrica, const QString& cognome, const QString& nome) {
  for (const Riga& r : rubrica.righe(u"SELECT ID, nome, cognome FROM Nomi ORDER BY ID"_s)) {
    if (r[u"nome"].toString().trimmed() == nome && r[u"cognome"].toString().trimmed() == cognome) {
      return r[u"ID"].toLongLong();
    }
  }
  return {};
}

/// A field of the address book and the master data's control that fills it; a field without one is emptied.
struct Voce {
  QStringView campo;
  QString (*testo)(const Formanag&);
};

/// The line chosen in a list, whatever is being typed in its box.
QString scelto(const QComboBox* lista) { return lista->itemText(lista->currentIndex()); }

QString vuoto(const Formanag&) { return {}; }

struct Tabella {
  QStringView nome;
  std::span<const Voce> voci;
};

constexpr Voce abitazione[]{
    {u"indirizzo", [](const Formanag& f) { return f.Txtind->text(); }},
    {u"provincia", [](const Formanag& f) { return scelto(f.comboprov2); }},
    {u"Citta", vuoto},
    {u"cap", [](const Formanag& f) { return f.Txtcap->text(); }},
    {u"paese", [](const Formanag& f) { return scelto(f.Combocom2); }},
};
constexpr Voce ufficio[]{
    {u"indirizzo", vuoto}, {u"Citta", vuoto},   {u"provincia", vuoto},    {u"cap", vuoto},     {u"paese", vuoto},
    {u"posizione", vuoto}, {u"Societa", vuoto}, {u"Dipartimento", vuoto}, {u"Ufficio", vuoto}, {u"Assistente", vuoto},
};
constexpr Voce telefoni[]{
    {u"abitazione", [](const Formanag& f) { return f.txttel1->text(); }},
    {u"Cellulare", [](const Formanag& f) { return f.Txttel2->text(); }},
    {u"Abitazione2", vuoto},
    {u"Cellulare2", vuoto},
    {u"Cercapersone", vuoto},
    {u"Ufficio", vuoto},
    {u"Ufficio2", vuoto},
    {u"Assistente", vuoto},
    {u"FAX", vuoto},
    {u"EMail", vuoto},
};
constexpr Tabella tabelle[]{{u"Abitazione", abitazione}, {u"Ufficio", ufficio}, {u"NumTel", telefoni}};

/// The person's number, which the engine gives to a new one.
qint64 scrivi_nome(Archivio& rubrica, const QString& cognome, const QString& nome, std::optional<qint64> id) {
  const QString intero = nome + u' ' + cognome;
  if (!id) {
    rubrica.esegui(u"INSERT INTO Nomi (nome, cognome, NomeCognome) VALUES (?, ?, ?)"_s, nome, cognome, intero);
    return rubrica.ultimo_id();
  }
  rubrica.esegui(u"UPDATE Nomi SET nome = ?, cognome = ?, NomeCognome = ? WHERE ID = ?"_s, nome, cognome, intero, *id);
  return *id;
}

void scrivi_tabella(Archivio& rubrica, const Tabella& t, const Formanag& f, qint64 id, bool nota) {
  QStringList campi, segni;
  QVariantList valori;
  for (const Voce& v : t.voci) {
    campi << v.campo.toString();
    segni << u"?"_s;
    valori << v.testo(f);
  }
  valori << id;
  const QString comando =
      nota ? u"UPDATE %1 SET %2 = ? WHERE id = ?"_s.arg(t.nome, campi.join(u" = ?, "))
           : u"INSERT INTO %1 (%2, id) VALUES (%3, ?)"_s.arg(t.nome, campi.join(u", "), segni.join(u", "));
  if (rubrica.esegui_con(comando, valori) == 0) throw Errore(3159, "Segnalibro non valido.");
}

}  // namespace

QString cognome_da_soggetto() {
  const qsizetype spazio = soggetto().indexOf(u' ');
  return spazio < 0 ? soggetto() : soggetto().left(spazio + 1);
}

QString nome_da_soggetto() { return soggetto().section(u' ', 1); }

bool nome_in_rubrica() {
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  return cerca(rubrica, cognome_da_soggetto().trimmed(), nome_da_soggetto().trimmed()).has_value();
}

void aggiorna_rubrica() {
  carica_luoghi();
  const Formanag& f = schermata<Formanag>();
  const QString cognome = cognome_da_soggetto().trimmed(), nome = nome_da_soggetto().trimmed();
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  rubrica.transazione([&] {
    const auto nota = cerca(rubrica, cognome, nome);
    const qint64 id = scrivi_nome(rubrica, cognome, nome, nota);
    for (const Tabella& t : tabelle) scrivi_tabella(rubrica, t, f, id, nota.has_value());
  });
}
