#include "office/rubrica_sync.h"

#include "core/mdiorza.h"
#include "core/salva_carica.h"
#include "core/sessione.h"
#include "intake/formanag.h"
#include "office/rubrica.h"

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

/// The line chosen in a list, whatever is being typed in its box.
QString scelto(const QComboBox* lista) { return lista->itemText(lista->currentIndex()); }

/// The open client as the address book takes it: the municipality is its "paese", the office is emptied.
Persona persona(const Formanag& f) {
  return {nome_da_soggetto().trimmed(),
          cognome_da_soggetto().trimmed(),
          {QStringList{f.Txtind->text(), {}, scelto(f.comboprov2), f.Txtcap->text(), scelto(f.Combocom2)},
           QStringList{}, QStringList{f.txttel1->text(), {}, f.Txttel2->text()}}};
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
  apri_dati_tmp(Scopo::salvare);  // an empty form, told in a box, must not go over the address book
  carica_luoghi();
  const Persona p = persona(schermata<Formanag>());
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  salva_persona(rubrica, p, cerca(rubrica, p.cognome, p.nome));
}
