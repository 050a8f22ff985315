#include "clinic/formtratta_sezione.h"

#include "clinic/formtratta.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"

using namespace Qt::StringLiterals;

namespace {

/// What the first visit takes from another section: its table, and the fields with the controls they go to here.
struct Seme {
  QString tabella;
  Sezione campi;
};

const Seme& dall_anagrafe() {
  static const Seme s{
      u"anagrafe"_s,
      {{u"data_visita"_s, {u"Text24_0"_s}, Come::testo}, {u"peso"_s, {u"Text37_0"_s}, Come::se_singolo}}};
  return s;
}

const std::array<Seme, 2>& dalle_misure() {
  static const std::array<Seme, 2> semi{
      {{u"Anamnesi"_s,
        {{u"vita"_s, {u"Text25_0"_s}, Come::se_numero},
         {u"fianchi"_s, {u"Text26_0"_s}, Come::se_numero},
         {u"addomecm"_s, {u"Text27_0"_s}, Come::se_numero}}},
       {u"dietologica"_s,
        {{u"pliche"_s, {u"Text30_0"_s, u"Text31_0"_s, u"Text32_0"_s, u"Text33_0"_s}, Come::lista_testi, u'+'}}}}};
  return semi;
}

void semina(Formtratta& f, const Seme& s) { riempi_controlli(f, s.campi, carica_riga(dati_tmp(), s.tabella)); }

}  // namespace

void salva_trattamento() {
  QVariantMap riga = leggi_controlli(schermata<Formtratta>(), sezione_trattamento());
  riga[u"cod_cli"_s] = schermata<Mdiorza>().Txtcod->text().trimmed();
  salva_riga(dati_tmp(), u"trattamento"_s, riga);
}

void carica_trattamento() {
  const auto righe = carica_righe(dati_tmp(), u"trattamento"_s);
  if (righe.empty()) return;
  Formtratta& f = schermata<Formtratta>();
  riempi_controlli(f, sezione_trattamento(), righe.front());
  semina(f, dall_anagrafe());
  if (!f.Text25[0]->text().isEmpty()) return;
  for (const Seme& s : dalle_misure()) semina(f, s);
}
