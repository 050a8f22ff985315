#include "core/mdiorza.h"
#include "diary/formintegrat.h"
#include "diet/formalimenti.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

enum : std::size_t { colazione, colazione_bio, spuntino, pranzo, merenda, cena, integratore };

int riga_di(const Formalimenti& f, const QString& alimento) {
  const auto* m = f.MSFlex1->model();
  int r = m->rowCount() - 1;
  while (r >= 0 && m->index(r, colonna_di::nome).data().toString() != alimento) --r;
  pretendi(r >= 0, u"is in the grid: "_s + alimento);
  return r;
}

void segna(const Formalimenti& f, const QString& alimento, int colonna) {
  scegli(f.MSFlex1, riga_di(f, alimento), colonna);
}

bool segnato(const Formalimenti& f, int riga, int colonna) {
  return !f.MSFlex1->model()->index(riga, colonna).data(Qt::DecorationRole).isNull();
}

/// Unticking the box of a group takes its foods.
void escludi(const Formalimenti& f, const QString& casella, int cod1) {
  clic(f.findChild<QCheckBox*>(casella));
  const auto* m = f.MSFlex1->model();
  int rimasti = 0;
  for (int r = 0; r < m->rowCount(); ++r) {
    rimasti += f.MSFlex1->model()->index(r, colonna_di::cod1).data().toInt() == cod1 && segnato(f, r, colonna_di::ok);
  }
  verifica(rimasti == 0, casella + u" takes the whole group"_s);
}

void pranzo_a_mano(const Formalimenti& f) {
  clic(f.CmdPasto[pranzo]);
  escludi(f, u"CheckPranzo_6"_s, 10);
  escludi(f, u"CheckPranzo_8"_s, 12);
  segna(f, u"Fusilli"_s, colonna_di::lv);
  segna(f, u"Mela"_s, colonna_di::sd);
  quadro(schermata<Mdiorza>(), u"scelta_pranzo"_s, u"scelta_alimenti"_s);
  clic(f.findChild<QPushButton*>(u"CmdConfermaPranzo"_s));
  verifica(f.MSFlex2->isVisible() && f.MSFlex2->model()->rowCount() > 0, u"the chosen foods are listed"_s);
  quadro(schermata<Mdiorza>(), u"scelta_confermata"_s);
}

/// The mark opens the supplement's window once more.
void integratore_del_pranzo(const Formalimenti& f) {
  clic(f.CmdPasto[integratore]);
  pretendi(caricata<Formintegrat>() != nullptr, u"the supplements' window opens"_s);
  const auto& w = schermata<Formintegrat>();
  scrivi(w.Text1[0], u"Fibra d'avena"_s);
  scrivi(w.Text1, 2, {u"10"_s, u"2"_s, u"20"_s, u"15"_s});
  clic(w.Command1[0]);
  segna(f, u"Fibra d'avena"_s, colonna_di::lv);
  pretendi(caricata<Formintegrat>() != nullptr, u"the marked supplement opens"_s);
  clic(schermata<Formintegrat>().Command1[0]);
  verifica(segnato(f, 0, colonna_di::lv), u"the mark outlives the edit"_s);
  quadro(schermata<Mdiorza>(), u"scelta_integratore"_s);
}

}  // namespace

/// By hand: every meal is opened, groups are left out, and two foods and a supplement become obligatory.
void scelta_alimenti(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formalimenti>() != nullptr, u"Avanti leads to the choice of foods"_s);
  const auto& f = schermata<Formalimenti>();
  clic(f.OptFF[0]);
  quadro(m, u"scelta_tipo_di_pranzo"_s);
  clic(f.CmdContinuaFF);
  clic(f.OptAlim[1]);
  quadro(m, u"scelta_modo"_s);
  clic(f.CmdContinuaAlimenti);
  for (const std::size_t pasto : {colazione, colazione_bio, spuntino, merenda}) clic(f.CmdPasto[pasto]);
  quadro(m, u"scelta_merenda"_s);
  pranzo_a_mano(f);
  clic(f.CmdPasto[cena]);
  escludi(f, u"CheckCena_7"_s, 11);
  segna(f, u"Spaghetti"_s, colonna_di::ok);
  quadro(m, u"scelta_cena"_s);
  integratore_del_pranzo(f);
}
