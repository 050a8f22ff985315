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
  f.CmdContinuaFF->click();
  f.CmdPasto[0]->click();
  quadro(m, u"alimenti_colazione"_s);
  f.CmdPasto[5]->click();
  segna(f.MSFlex1, 3, colonna_di::ok);
  segna(f.MSFlex1, 3, colonna_di::ok);
  quadro(m, u"alimenti_cena"_s);
  f.findChild<QPushButton*>(u"CmdConfermaCena"_s)->click();
  quadro(m, u"alimenti_scelti"_s);
  pretendi(f.MSFlex2->model()->rowCount() > 0, "no food is chosen");
}
