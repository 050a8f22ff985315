#include "assessment/formpond_sezione.h"

#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"
#include "intake/formanag.h"

using namespace Qt::StringLiterals;

namespace {

/// A field and the value without a face that holds it.
struct CampoValore {
  QString campo;
  Valore Formpond::*valore;
};

const std::vector<CampoValore>& salvati_da_valori() {
  static const std::vector<CampoValore> campi{
      {u"scelta"_s, &Formpond::Lab_scelta}, {u"kcal"_s, &Formpond::Lab_metab}, {u"pesoid"_s, &Formpond::Lab_pesoid}};
  return campi;
}

/// The plan comes back to other places than those it is saved from.
const std::vector<CampoValore>& piano() {
  static const std::vector<CampoValore> campi{{u"peso_ragg"_s, &Formpond::Lab_txtpesoragg},
                                              {u"gg"_s, &Formpond::Lab_giornimodificati},
                                              {u"prot"_s, &Formpond::LabPROT},
                                              {u"lip"_s, &Formpond::LabLIP}};
  return campi;
}

/// The activities spread the ration over the days: opened and closed unseen, they store it as it now is.
void riscrivi_attività() {
  schermata<Formattività>();
  scarica<Formattività>();
}

void carica_scelta(Formpond& f, const QVariant& scelta) {
  const QString t = scelta.toString();
  if (!numerico(t)) return;
  const double metodo = valore(t);
  if (metodo < 0 || metodo >= static_cast<double>(f.Text1.size())) return;
  const auto i = static_cast<std::size_t>(metodo);
  const auto [consumo, peso_ideale] = f.campi_metodo(i);
  f.evidenzia_metodo(i);
  f.Lab_metab.setText(consumo == f.Text2[2] ? f.Text2[3]->text() : consumo->text());
  f.Lab_pesoid.setText(peso_ideale->text());
}

void carica_piano(Formpond& f, const QVariantMap& riga) {
  if (schermata<Mdiorza>().LabPesoOld.text() != schermata<Formanag>().Txtpeso->text()) return;
  for (const auto& [campo, dove] : piano()) {
    bool numero = false;
    const double x = riga.value(campo).toDouble(&numero);
    if (numero) (f.*dove).setText(testo(x));
  }
}

}  // namespace

void salva_dietologica() {
  riscrivi_attività();
  const Formpond& f = schermata<Formpond>();
  QVariantMap riga = leggi_controlli(f, sezione_dietologica());
  riga[u"cod_cli"_s] = schermata<Mdiorza>().Txtcod->text().trimmed();
  for (const auto& [campo, dove] : salvati_da_valori()) {
    if (const QString& t = (f.*dove).text(); numerico(t)) riga[campo] = valore(t);
  }
  salva_riga(dati_tmp(), u"dietologica"_s, riga);
}

void carica_dietologica() {
  Formpond& f = schermata<Formpond>();
  f.riempi_larn();
  f.riempi_hb();
  const QVariantMap riga = carica_riga(dati_tmp(), u"dietologica"_s);
  riempi_controlli(f, parte(sezione_dietologica(), {u"peso_bfa"_s, u"met_bfa"_s, u"pliche"_s, u"stress"_s}), riga);
  carica_scelta(f, riga.value(u"scelta"_s));
  carica_piano(f, riga);
  f.avvia_scala();
  f.riempi_di_là();
}
