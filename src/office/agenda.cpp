#include "office/agenda.h"

#include "base/archivio.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace {

Archivio apri() { return Archivio(percorso(u"Agenda.jed"_s)); }

std::vector<Impegno> impegni(const std::vector<Riga>& righe) {
  std::vector<Impegno> lista;
  for (const Riga& r : righe) lista.push_back({r[u"Ora"].toString(), r[u"Promemoria"].toString()});
  return lista;
}

std::vector<Impegno> leggi_giorno(Archivio& agenda) {
  return impegni(agenda.righe(u"SELECT Ora, Promemoria FROM Giorno ORDER BY rowid"_s));
}

void svuota(Archivio& agenda) { agenda.esegui(u"UPDATE Giorno SET Promemoria = ''"_s); }

void scrivi(Archivio& agenda, const Impegno& slot) {
  agenda.esegui(u"UPDATE Giorno SET Promemoria = ? WHERE Ora = ?"_s, slot.promemoria, slot.ora);
}

/// Hour and minute alone.
QTime ora_di(const QString& testo) { return QTime::fromString(testo.section(u':', 0, 1), u"H:m"_s); }

}  // namespace

std::vector<Impegno> giorno() {
  Archivio agenda = apri();
  return leggi_giorno(agenda);
}

void svuota_giorno() {
  Archivio agenda = apri();
  svuota(agenda);
}

void scrivi_promemoria(const Impegno& slot) {
  Archivio agenda = apri();
  scrivi(agenda, slot);
}

void salva_giorno(const QString& data) {
  Archivio agenda = apri();
  agenda.transazione([&] {
    agenda.esegui(u"DELETE FROM Diario WHERE Data = ?"_s, data);
    for (const Impegno& i : leggi_giorno(agenda)) {
      if (i.promemoria.isEmpty()) continue;
      agenda.esegui(u"INSERT INTO Diario (Data, Ora, Promemoria) VALUES (?, ?, ?)"_s, data, i.ora, i.promemoria);
    }
  });
}

void carica_giorno(const QString& data) {
  Archivio agenda = apri();
  const auto appuntamenti =
      impegni(agenda.righe(u"SELECT Ora, Promemoria FROM Diario WHERE Data = ? ORDER BY Ora"_s, data));
  agenda.transazione([&] {
    svuota(agenda);
    for (const Impegno& i : disponi(leggi_giorno(agenda), appuntamenti)) {
      if (!i.promemoria.isEmpty()) scrivi(agenda, i);
    }
  });
}

std::vector<Impegno> disponi(std::vector<Impegno> slot, const std::vector<Impegno>& appuntamenti) {
  auto prossimo = appuntamenti.begin();
  for (Impegno& s : slot) {
    if (prossimo == appuntamenti.end()) break;
    if (ora_di(prossimo->ora) == ora_di(s.ora)) s.promemoria = (prossimo++)->promemoria;
  }
  return slot;
}
