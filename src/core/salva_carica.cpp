#include "core/salva_carica.h"

#include "assessment/formattivita_sezione.h"
#include "assessment/formpond_sezione.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "clinic/formfunzio_sezione.h"
#include "clinic/formtratta_sezione.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"
#include "diary/formdiario.h"
#include "diet/formalimenti.h"
#include "intake/formanag.h"
#include "intake/formpers_sezione.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int non_aperto = 91;

/// Fields that depend on the lists of provinces and municipalities, which only a shown screen fills.
const QStringList& campi_dei_luoghi() {
  static const QStringList campi{u"prov_n"_s, u"comune_n"_s, u"cod_fiscale"_s, u"prov_r"_s, u"comune_r"_s};
  return campi;
}

bool liste_piene(const Formanag& f) { return f.comboprov->count() > 0; }

void salva_anagrafe() {
  const Formanag& f = schermata<Formanag>();
  QVariantMap riga = leggi_controlli(f, sezione_anagrafe());
  if (!liste_piene(f)) {
    for (const QString& campo : campi_dei_luoghi()) riga.remove(campo);
  }
  riga[u"foto"_s] = f.commdialog;
  salva_riga(dati_tmp(), u"anagrafe"_s, riga);
}

void riempi_anagrafe(Formanag& f, const QVariantMap& riga, const QStringList& campi) {
  riempi_controlli(f, parte(sezione_anagrafe(), campi), riga, SeFallisce::prosegue);
}

void carica_peso(Formanag& f, const QVariantMap& riga) {
  if (!riga.contains(u"peso"_s)) return;
  riempi_anagrafe(f, riga, {u"peso"_s});
  Valore& peso_vecchio = schermata<Mdiorza>().LabPesoOld;
  if (peso_vecchio.text().isEmpty()) peso_vecchio.setText(f.Txtpeso->text());
}

void carica_foto(Formanag& f, const QVariantMap& riga) {
  if (!riga.contains(u"foto"_s)) return;
  const QString file = riga[u"foto"_s].toString();
  if (!file.isEmpty()) prosegui([&] { f.mostra_foto(file); });
  f.commdialog = file;
}

/// The age counts from the date of birth first; the stored one, where there is one, then takes its place.
void carica_scheda(Formanag& f, const QVariantMap& riga) {
  riempi_anagrafe(f, riga, {u"cod"_s, u"data_visita"_s, u"cognome"_s, u"nome"_s, u"data_n"_s});
  prosegui([&] { f.mettiAnni(); });
  riempi_anagrafe(f, riga,
                  {u"sex"_s, u"cap"_s, u"locali"_s, u"indirizzo"_s, u"tel1"_s, u"tel2"_s, u"FAX"_s, u"cell"_s,
                   u"EMail"_s, u"scelte_r"_s, u"tipoDurata"_s, u"aspettativeAttuali"_s});
  carica_peso(f, riga);
  riempi_anagrafe(f, riga, {u"anni"_s, u"statura"_s, u"altre_info"_s});
  carica_foto(f, riga);
}

/// Provinces, municipalities and what hangs on them. The choice of a municipality writes its postal code; the client's
/// own, already there, stays.
void riempi_luoghi(Formanag& f, const QVariantMap& riga) {
  const QString cap = f.Txtcap->text();
  riempi_anagrafe(f, riga, campi_dei_luoghi());
  f.Txtcap->setText(cap);
}

void carica_anagrafe() {
  Formanag& f = schermata<Formanag>();
  const QVariantMap riga = riga_da_caricare(u"anagrafe"_s);
  if (riga.isEmpty()) return;
  if (f.isHidden()) {
    carica_scheda(f, riga);
  } else {
    riempi_luoghi(f, riga);
  }
}

/// The meal on display, where there is one.
void salva_spunte_alimenti() {
  auto* f = caricata<Formalimenti>();
  if (f && numerico(f->LabATTUALE.text())) f->salva_spunte_alimenti();
}

/// What a stage writes and reads. A stage that does one of them by itself has null there.
struct Operazioni {
  int codice;
  void (*salva)();
  void (*carica)();
};

constexpr Operazioni operazioni[]{
    {0, salva_anagrafe, carica_anagrafe},
    {1, salva_sport, carica_sport},
    {3, salva_personale, carica_personale},
    {4, salva_funzionale, carica_funzionale},
    {5, salva_dietologica, carica_dietologica},
    {7, salva_spunte_alimenti, nullptr},
    {9, salva_diario, nullptr},
    {10, salva_trattamento, carica_trattamento},
};

void esegui_per(int codice, void (*Operazioni::*quale)()) {
  const auto o = std::ranges::find(operazioni, codice, &Operazioni::codice);
  if (o != std::end(operazioni) && (*o).*quale) ((*o).*quale)();
}

}  // namespace

QVariantMap riga_da_caricare(const QString& tabella) {
  try {
    return carica_riga(dati_tmp(), tabella);
  } catch (const Errore& e) {
    if (e.numero != non_aperto) avvisa_caricamento();  // the other is told already
  }
  return {};
}

void salva_cliente(int codice) {
  apri_dati_tmp(Scopo::salvare);
  esegui_per(codice, &Operazioni::salva);
}

void carica_cliente(int codice) {
  apri_dati_tmp(Scopo::caricare);
  esegui_per(codice, &Operazioni::carica);
}

void carica_luoghi() {
  Formanag& f = schermata<Formanag>();
  if (liste_piene(f)) return;
  f.apri_comuni();
  apri_dati_tmp(Scopo::caricare);
  riempi_luoghi(f, riga_da_caricare(u"anagrafe"_s));
}
