#include "assessment/formattivita.h"
#include "core/mdiorza.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

double numero(const QLineEdit* campo) { return QLocale().toDouble(campo->text()); }

QStringList percentuali(const Formattività& f, std::size_t da, int passo) {
  QStringList testi;
  for (int i = 0; i < 5; ++i) testi << f.Txt[da + static_cast<std::size_t>(i * passo)]->text();
  return testi;
}

void fai(const Formattività& f, const QString& che, std::initializer_list<std::size_t> quando, int minuti) {
  scegli(f.Combo13, che);
  verifica(!f.Immaginesport->pixmap(Qt::ReturnByValue).isNull(), u"the picture of "_s + che);
  for (const std::size_t giorno : quando) {
    scegli(f.Combo14[giorno], minuti);
    verifica(numero(f.Text15[giorno]) > 0, u"%1 costs energy on day %2"_s.arg(che).arg(giorno));
  }
}

void ritmo(const Formattività& f) {
  const QStringList prima = percentuali(f, 0, 1);
  clic(f.CmdUP[0]);
  clic(f.CmdUP[0]);
  verifica(numero(f.Txt[0]) == prima[0].toDouble() + 2, u"breakfast goes up"_s);
  clic(f.CmdDOWN[0]);
  clic(f.CmdDOWN[0]);
  verifica_uguali(f.Txt[0]->text(), prima[0], u"breakfast comes down again"_s);
  clic(f.CmdUtilizza[0]);
  verifica_uguali(
      percentuali(f, 0, 1).join(u' '),
      QStringList{f.Txt[9]->text(), f.Txt[8]->text(), f.Txt[7]->text(), f.Txt[6]->text(), f.Txt[5]->text()}.join(u' '),
      u"the diary's rhythm in use"_s);
  double insieme = 0;
  for (const QString& t : percentuali(f, 0, 1)) insieme += QLocale().toDouble(t);
  verifica(insieme == 100, u"the rhythm in use shares the whole day"_s);
}

}  // namespace

void attività(Viaggio& v) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formattività>() != nullptr, u"Avanti leads to the activities"_s);
  const auto& f = schermata<Formattività>();
  verifica_uguali(f.Text1[3]->text(), v.nutrizione.value(0), u"the ration of the objective"_s);
  verifica_uguali(f.Text2[3]->text(), v.nutrizione.value(1), u"its protein"_s);
  fai(f, f.Combo13->itemText(9), {0, 2, 4}, 4);
  fai(f, f.Combo13->itemText(25), {5}, 3);
  ritmo(f);
  for (std::size_t g = 0; g < 7; ++g) {
    const double sport = f.Text15[g]->text().isEmpty() ? 0 : numero(f.Text15[g]);
    verifica(numero(f.Text14[g]) == numero(f.Text1[g]) + sport, u"a day is its ration and its activity"_s);
    for (const QLineEdit* c : {f.Text14[g], f.Text2[g], f.Text3[g], f.Text4[g]}) v.bersagli.at(g) << c->text();
  }
  verifica(f.MSChart1->isVisible(), u"the chart of the rhythm is there"_s);
  quadro(m, u"attivita"_s, u"attivita"_s);
}
