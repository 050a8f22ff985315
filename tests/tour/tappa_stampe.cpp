#include "core/dialoghi.h"
#include "core/mdiorza.h"
#include "reports/formstampe.h"
#include "tappe.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPrinter>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// An entry of the popup, its printed pages, and a text that they hold beside the client's name.
struct Foglio {
  QStringView voce, nome;
  int pagine;
  QStringView testo, cliente;
};
constexpr Foglio fogli[]{
    {u"menudp", u"dati_personali", 1, u"12/05/1980", u"ROSSI MARIA"},
    {u"uno", u"dieta", 7, u"Fusilli", u"MARIA ROSSI"},
    {u"menudiario", u"diario", 0, u"Fettina di vitellone", u"MARIA ROSSI"},
    {u"menuvalnutr", u"calorie", 3, u"Gluc", {}},
};

void clic_voce(QMenu& menu, QAction* voce) {
  pretendi(menu.isVisible() && voce->isEnabled(), u"an entry of the popup: "_s + voce->text());
  conta_passo();
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(voce).center());
}

/// The entry of a week stands in a popup of its own.
void scegli_voce(Mdiorza& m, const QString& nome) {
  clic(m.cmdsopra[10]);
  auto* voce = m.stampe->findChild<QAction*>(nome);
  auto* menu = qobject_cast<QMenu*>(voce->parent());
  if (menu != m.stampe) {
    clic_voce(*m.stampe, menu->menuAction());
    static_cast<void>(QTest::qWaitFor([menu] { return menu->isVisible(); }, 1000));
  }
  if (menu != m.stampe) quadro(*m.stampe, u"stampe"_s);
  clic_voce(*menu, voce);
}

QStringList pagine_di(const QString& pdf) {
  QProcess p;
  p.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
  pretendi(p.waitForFinished() && p.exitCode() == 0, u"pdftotext reads "_s + pdf);
  QStringList pagine = QString::fromUtf8(p.readAllStandardOutput()).split(u'\f');
  pagine.removeLast();
  return pagine;
}

void stampa(Mdiorza& m, const Foglio& foglio) {
  const QString nome = foglio.nome.toString(), pdf = cartella_risultati().filePath(nome + u".pdf"_s);
  esterno().imposta_stampante = [pdf](QPrinter& p) {
    p.setOutputFileName(pdf);
    return true;
  };
  scegli_voce(m, foglio.voce.toString());
  pretendi(caricata<Formstampe>() != nullptr, u"the preview opens: "_s + nome);
  const auto& f = schermata<Formstampe>();
  QTest::qWait(200);  // the popup gives the activation back
  const auto in_fronte = [&] { return m.findChild<QMdiArea*>()->activeSubWindow() == f.parentWidget(); };
  verifica(QTest::qWaitFor(in_fronte, 2000), u"the preview is in front: "_s + nome);  // once the popup has gone
  quadro(m, u"anteprima_"_s + nome, nome == u"dieta" ? u"anteprima"_s : QString());
  clic(f.Cmdchar[1]);
  clic(f.Cmdchar[2]);
  const QStringList pagine = pagine_di(pdf);
  const QString tutto = pagine.join(u'\n');
  verifica(foglio.pagine == 0 || pagine.size() == foglio.pagine, u"%1 has %2 pages"_s.arg(nome).arg(pagine.size()));
  verifica(tutto.contains(foglio.testo), u"%1 holds %2"_s.arg(nome, foglio.testo));
  verifica(tutto.contains(foglio.cliente), u"%1 bears the client's name"_s.arg(nome));
}

}  // namespace

void stampe(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  const auto dialogo = esterno().imposta_stampante;
  for (const Foglio& f : fogli) stampa(m, f);
  esterno().imposta_stampante = dialogo;
}
