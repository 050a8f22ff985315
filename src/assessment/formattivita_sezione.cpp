#include "assessment/formattivita_sezione.h"

#include "assessment/formattivita.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/salva_carica.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"

using namespace Qt::StringLiterals;

namespace {

const Sezione& sezione_consumi() {
  static const Sezione s{
      {u"colazione"_s, {u"Txt_0"_s}, Come::se_intero}, {u"pranzo"_s, {u"Txt_1"_s}, Come::se_intero},
      {u"merenda"_s, {u"Txt_2"_s}, Come::se_intero},   {u"cena"_s, {u"Txt_3"_s}, Come::se_intero},
      {u"spuntino"_s, {u"Txt_4"_s}, Come::se_intero},
  };
  return s;
}

const Sezione& sezione_ritmo_del_diario() {
  static const Sezione s{
      {u"colazione"_s, {u"Txt_9"_s}, Come::se_numero}, {u"pranzo"_s, {u"Txt_8"_s}, Come::se_numero},
      {u"merenda"_s, {u"Txt_7"_s}, Come::se_numero},   {u"cena"_s, {u"Txt_6"_s}, Come::se_numero},
      {u"spuntino"_s, {u"Txt_5"_s}, Come::se_numero},
  };
  return s;
}

}  // namespace

void salva_sport() { salva_riga(dati_tmp(), u"sport"_s, leggi_controlli(schermata<Formattività>(), sezione_sport())); }

/// The last day with an activity gives the list its choice, and all minutes then count with that one.
void carica_sport() {
  auto& f = schermata<Formattività>();
  const QVariantMap riga = riga_da_caricare(u"sport"_s);
  riempi_controlli(f, parte(sezione_sport(), {u"attivitàgg"_s}), riga, SeFallisce::prosegue);
  for (const QLineEdit* giorno : f.TxtAttività) {
    const double posizione = numerico(giorno->text()) ? valore(giorno->text()) : -1;
    if (posizione >= 0 && posizione < f.Combo13->count()) f.Combo13->setCurrentIndex(round16(posizione));
  }
  riempi_controlli(f, parte(sezione_sport(), {u"minuti"_s}), riga, SeFallisce::prosegue);
}

void Formattività::carica_consumi() {
  apri_dati_tmp(Scopo::caricare);
  prosegui([&] { riempi_controlli(*this, sezione_consumi(), riga_da_caricare(u"consumi"_s)); });
  prosegui([&] { riempi_controlli(*this, sezione_ritmo_del_diario(), riga_da_caricare(u"diario"_s)); });
}

void Formattività::salva_perc_consumi() const {
  salva_righe(dati_tmp(), u"consumi"_s, {leggi_controlli(*this, sezione_consumi())});
}
