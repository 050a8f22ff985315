#include "intake/formpers_sezione.h"

#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"
#include "intake/formpers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int fuma = 0, non_fuma = 1;  // lines of the smoker's list on the clinical history

void salva_fumatore(Archivio& archivio, const QString& sigarette) {
  if (!numerico(sigarette)) return;
  salva_riga(archivio, u"Anamnesi"_s, {{u"fumatore"_s, valore(sigarette) > 0 ? fuma : non_fuma}});
}

}  // namespace

void salva_personale() {
  const Formpers& f = schermata<Formpers>();
  QVariantMap riga = leggi_controlli(f, sezione_personale());
  riga[u"cod_cli"_s] = schermata<Mdiorza>().Txtcod->text().trimmed();
  Archivio& archivio = dati_tmp();
  archivio.transazione([&] {
    salva_riga(archivio, u"personale"_s, riga);
    salva_fumatore(archivio, f.Combo6[0]->currentText());
  });
}

void carica_personale() {
  Formpers& f = schermata<Formpers>();
  riempi_controlli(f, sezione_personale(), carica_riga(dati_tmp(), u"personale"_s));
}
