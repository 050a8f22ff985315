#include "core/mdiorza.h"
#include "diet/formalimenti.h"
#include "passi.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

void segna(QTableView* griglia, int riga, int colonna) {
  const QModelIndex cella = griglia->model()->index(riga, colonna);
  griglia->scrollTo(cella);
  QTest::mouseClick(griglia->viewport(), Qt::LeftButton, {}, griglia->visualRect(cella).center());
}

}  // namespace

void scelta_degli_alimenti() {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[4]);
  auto& f = schermata<Formalimenti>();
  quadro(m, u"alimenti_tipo_di_pranzo"_s);
  clic(f.CmdContinuaFF);
  clic(f.CmdPasto[0]);
  quadro(m, u"alimenti_colazione"_s);
  clic(f.CmdPasto[5]);
  segna(f.MSFlex1, 1, colonna_di::lv);
  segna(f.MSFlex1, 2, colonna_di::sd);
  quadro(m, u"alimenti_cena"_s);
  clic(f.findChild<QPushButton*>(u"CmdConfermaCena"_s));
  quadro(m, u"alimenti_scelti"_s);
  pretendi(f.MSFlex2->model()->rowCount() > 0, "no food is chosen");
  segna(f.MSFlex1, 1, colonna_di::lv);
  segna(f.MSFlex1, 2, colonna_di::sd);
}
