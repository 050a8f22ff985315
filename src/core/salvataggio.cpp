#include "core/salvataggio.h"

#include "base/errori.h"
#include "base/numeri.h"
#include "core/attesa.h"
#include "core/dialoghi.h"
#include "core/formalert.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/salva_carica.h"
#include "core/sessione.h"
#include "core/stadi.h"
#include "intake/formanag.h"
#include "office/rubrica_sync.h"

using namespace Qt::StringLiterals;

namespace {

int cod_del_banner() { return round16(valore(schermata<Mdiorza>().Txtcod->text())); }

QString domanda_di_salvataggio() {
  if (!nome_in_rubrica()) return u"Salvataggio generale degli archivi ?"_s;
  return u"Salvataggio generale degli archivi. \n"
         "Il nome è già presente in rubrica, i dati verranno sovrascritti. Procedere ?"_s;
}

void salva_stadio() {
  const Attesa attesa;
  const Stadio* davanti = stadio(schermata<Mdiorza>().qualeform.text());
  salva_cliente(davanti ? davanti->codice : -1);
}

/// An empty template must never go over a client's file: without a working copy there is nothing to save.
void pretendi_dati_tmp() {
  if (!esiste_dati_tmp()) throw Errore(53, "Impossibile trovare il file dati.tmp: nessun paziente è aperto.");
}

/// The session goes on with the copy; the old client's file and row stay.
void diventa_nuovo() {
  carica_cliente(0);
  Formanag& f = schermata<Formanag>();
  f.Txtcod->setText(QString::number(prossimo_cod()));
  f.txtdatavisita->setDate(oggi());
  schermata<Mdiorza>().LabPesoOld.setText(f.Txtpeso->text());
  salva_cliente(0);
}

}  // namespace

void salvataggio_generale() {
  if (!domanda(domanda_di_salvataggio(), u"Orzaline  control"_s)) return;
  pretendi_dati_tmp();
  salva_stadio();
  salva_in_archivio();
  const Attesa attesa;
  aggiorna_rubrica();
}

void salva_in_archivio() {
  const bool nuovo = cod_in_schedario() && chiedi_nuovo();
  const Attesa attesa;
  if (nuovo) diventa_nuovo();
  aggiorna_schedario(salva_su_file_cliente());
}

bool cod_in_schedario() { return iscritto(cod_del_banner()).has_value(); }

void aggiorna_schedario(const QString& file) {
  const QString cognome = schermata<Mdiorza>().Txtsoggetto->text().trimmed().section(u' ', 0, 0);
  if (!cod_in_schedario()) return iscrivi({cod_del_banner(), cognome, file});
  schedario().esegui(u"UPDATE schedario SET cognome = ?, nome_files = ? WHERE cod = ?"_s, cognome, file,
                     cod_del_banner());
}
