#include "clinic/formfunzio_sezione.h"

#include "base/date.h"
#include "clinic/formfunzio.h"
#include "core/griglie.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void salva_esami(const Formfunzio& f) {
  const QStringList& colonne = esami_scritti();
  std::vector<QVariantMap> righe;
  for (int r = 0; r < f.MSFlex2->rowCount(); ++r) {
    QVariantMap riga;
    for (int c = 0; c < colonne.size(); ++c) riga[colonne[c]] = f.MSFlex2->item(r, c)->text();
    QVariant& data = riga[colonne.front()];
    const QDate giorno = data_di(data.toString());
    data = giorno.isValid() ? QVariant(data_breve(giorno)) : QVariant();
    righe.push_back(riga);
  }
  salva_righe(dati_tmp(), u"esami"_s, righe);
}

/// The columns come back in another order than they are written, so each reload moves four of them on by one.
void carica_esami(Formfunzio& f) {
  for (const QVariantMap& riga : carica_righe(dati_tmp(), u"esami"_s)) {
    QStringList celle;
    for (const QString& colonna : esami_letti()) celle << riga[colonna].toString();
    aggiungi_riga(f.MSFlex2, celle);
  }
  f.abilita_esami();
}

/// A line is stored when its first box, the date's, holds anything.
void salva_lista(const Formfunzio& f, const QString& tabella, const std::vector<Sezione>& sezioni) {
  std::vector<QVariantMap> righe;
  for (const Sezione& s : sezioni) {
    const auto* prima = f.findChild<QLineEdit*>(s.front().controlli.front());
    if (!prima->text().isEmpty()) righe.push_back(leggi_controlli(f, s));
  }
  salva_righe(dati_tmp(), tabella, righe);
}

void carica_lista(Formfunzio& f, const QString& tabella, const std::vector<Sezione>& sezioni) {
  const auto righe = carica_righe(dati_tmp(), tabella);
  for (std::size_t i = 0; i < std::min(righe.size(), sezioni.size()); ++i) riempi_controlli(f, sezioni[i], righe[i]);
}

}  // namespace

void salva_funzionale() {
  const Formfunzio& f = schermata<Formfunzio>();
  dati_tmp().transazione([&] {
    salva_esami(f);
    salva_lista(f, u"farmaci"_s, sezioni_farmaci());
    salva_lista(f, u"pressione"_s, sezioni_pressione());
    salva_riga(dati_tmp(), u"Anamnesi"_s, leggi_controlli(f, sezione_anamnesi()));
  });
}

void carica_funzionale() {
  Formfunzio& f = schermata<Formfunzio>();
  carica_esami(f);
  carica_lista(f, u"farmaci"_s, sezioni_farmaci());
  carica_lista(f, u"pressione"_s, sezioni_pressione());
  riempi_controlli(f, sezione_anamnesi(), carica_riga(dati_tmp(), u"Anamnesi"_s));
}
