#include "clinic/formgraficotratta.h"
#include "clinic/formtratta.h"
#include "core/formnote.h"
#include "core/mdiorza.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

struct Visita {
  QString data;
  QStringList misure;  // in the order of `misure`
};
const Visita visite_fatte[]{
    {u"02/03/2026"_s,
     {u"72"_s, u"88"_s, u"104"_s, u"92"_s, u"58"_s, u"36"_s, u"14"_s, u"18"_s, u"16"_s, u"15"_s, u"68"_s, u"32"_s,
      u"49"_s}},
    {u"16/03/2026"_s,
     {u"71"_s, u"87"_s, u"103"_s, u"91"_s, u"57"_s, u"36"_s, u"14"_s, u"17"_s, u"16"_s, u"14"_s, u"69"_s, u"31"_s,
      u"50"_s}},
    {u"30/03/2026"_s,
     {u"69"_s, u"85"_s, u"102"_s, u"89"_s, u"56"_s, u"35"_s, u"13"_s, u"16"_s, u"15"_s, u"13"_s, u"70"_s, u"30"_s,
      u"51"_s}},
    {u"13/04/2026"_s,
     {u"68"_s, u"84"_s, u"101"_s, u"88"_s, u"55"_s, u"35"_s, u"12"_s, u"16"_s, u"14"_s, u"13"_s, u"71"_s, u"29"_s,
      u"52"_s}},
};

void visita(const Formtratta& f, std::size_t quale) {
  const Visita& v = visite_fatte[quale];
  const bool prima = quale == 0;  // its date and weight are those of the master data
  if (!prima) scrivi(f.Text24[quale], v.data);
  for (std::size_t i = prima; i < misure.size(); ++i) {
    scrivi((f.*misure[i].serie)[quale], v.misure[static_cast<qsizetype>(i)]);
  }
}

void grafico(const Formtratta& f, std::size_t misura, std::size_t tipo, const QString& nome, const QString& guida) {
  clic(f.Option3[misura]);
  clic(f.Option4[tipo]);
  clic(f.Command10);
  pretendi(caricata<Formgraficotratta>() != nullptr, u"the chart opens"_s);
  auto& g = schermata<Formgraficotratta>();
  QTest::qWait(20);
  quadro(g, nome, guida);
  clic(g.commchiudi);
}

}  // namespace

void controlli(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formtratta>() != nullptr, u"Avanti leads to the follow-up"_s);
  const auto& f = schermata<Formtratta>();
  verifica_uguali(f.Text24[0]->text() + u' ' + f.Text37[0]->text(), u"02/03/2026 72"_s, u"the first visit"_s);
  verifica_uguali(f.Text25[0]->text() + u' ' + f.Text30[0]->text(), u"88 14"_s, u"its measures from other stages"_s);
  scrivi(f.txtCirco[0], u"coscia"_s);
  scrivi(f.txtCirco[1], u"polpaccio"_s);
  for (std::size_t i = 0; i < std::size(visite_fatte); ++i) visita(f, i);
  scrivi(f.Text22[0], u"inizio della dieta"_s);
  clic(f.Command13[1]);
  scrivi(schermata<Formnote>().txtnote, u"segue la dieta, cammina tre volte la settimana"_s);
  quadro(schermata<Formnote>(), u"nota_visita"_s);
  clic(schermata<Formnote>().cmdclosenote);
  grafico(f, 0, 0, u"grafico_peso"_s, u"grafico"_s);
  grafico(f, prima_misura_libera, 1, u"grafico_coscia"_s, {});
  quadro(m, u"trattamento"_s, u"trattamento"_s);
}
