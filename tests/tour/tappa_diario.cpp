#include "core/mdiorza.h"
#include "diary/formdiario.h"
#include "diary/formintegrat.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

/// A food eaten: positions in the lists, line of the grid, grams. A group of -1 where the meal has none.
struct Mangiato {
  int pasto, gruppo, famiglia, riga;
  QString grammi;
};
const Mangiato giornata[]{
    {0, -1, 0, 0, u"200"_s}, {0, -1, 1, 0, u"50"_s}, {1, -1, 0, 0, u"160"_s}, {2, 0, 0, 0, u"100"_s},
    {2, 1, 0, 0, u"160"_s},  {2, 2, 0, 0, u"200"_s}, {3, -1, 1, 0, u"40"_s},  {4, 0, 2, 0, u"200"_s},
    {4, 1, 3, 0, u"200"_s},  {4, 2, 2, 0, u"200"_s},
};

void scegli_famiglia(const Formdiario& f, const Mangiato& m) {
  scegli(f.ListPASTI, m.pasto);
  if (m.gruppo >= 0) scegli(f.ListGRUPPI, m.gruppo);
  scegli(f.ListAlimenti, m.famiglia);
}

void mangia(const Formdiario& f, const Mangiato& m) {
  scegli_famiglia(f, m);
  scegli(f.MSFlex1, m.riga, 4);
  scegli(f.Combodose, m.grammi);
  verifica_uguali(f.MSFlex1->item(m.riga, 5)->text(), m.grammi, f.MSFlex1->item(m.riga, 4)->text());
}

/// A client without supplements gets their window at once.
void integratore(const Formdiario& f) {
  const QString prima = f.TxtLivelli[2 * 4 + 3]->text();
  scegli(f.ListPASTI, 2);
  scegli(f.ListGRUPPI, 6);
  pretendi(caricata<Formintegrat>() != nullptr, u"the supplements' window opens"_s);
  const auto& w = schermata<Formintegrat>();
  scrivi(w.Text1[0], u"Multivitaminico"_s);
  scrivi(w.Text1, 2, {u"5"_s, u"1"_s, u"60"_s, u"10"_s});
  verifica_uguali(w.Text1[1]->text(), u"269"_s, u"energy of the supplement"_s);
  quadro(schermata<Formintegrat>(), u"integratore"_s);
  clic(w.Command1[0]);
  verifica(f.ListAlimenti->count() == 1, u"the supplement is listed"_s);
  verifica(f.TxtLivelli[2 * 4 + 3]->text() != prima, u"the supplement counts at lunch"_s);
}

}  // namespace

void diario(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formdiario>() != nullptr, u"Avanti leads to the food diary"_s);
  const auto& f = schermata<Formdiario>();
  for (const Mangiato& cibo : giornata) mangia(f, cibo);
  integratore(f);
  double energia = 0, quote = 0;
  for (std::size_t pasto = 0; pasto < 5; ++pasto) energia += QLocale().toDouble(f.TxtLivelli[pasto * 4 + 3]->text());
  for (const QLineEdit* t : f.TxtRAG) quote += QLocale().toDouble(t->text());
  verifica(energia > 800 && energia == QLocale().toDouble(f.TxtLivelli[23]->text()),
           u"the day is the sum of its meals"_s);
  verifica(quote == 100, u"the rhythm shares the whole day"_s);
  scegli_famiglia(f, giornata[4]);
  verifica_uguali(f.MSFlex1->item(0, 5)->text(), giornata[4].grammi, u"a dose found again"_s);
  quadro(m, u"diario"_s, u"diario"_s);
}
