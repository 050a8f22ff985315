#include "assessment/formbmi.h"
#include "assessment/formpond.h"
#include "core/mdiorza.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

enum { razione = 1, giorni = 4 };  // of Text10

double numero(const QLineEdit* campo) { return QLocale().toDouble(campo->text()); }

void misure(const Formpond& f) {
  scrivi(f.Text2[0], u"63"_s);
  scrivi(f.Text2[2], u"1420"_s);
  scrivi(f.Text5, 0, {u"14"_s, u"18"_s, u"16"_s, u"15"_s, u"28"_s});
  scegli(f.Combo1, 1);
  for (const auto* c : f.Frame_scelta->parentWidget()->findChildren<QLineEdit*>()) {
    if (c->isVisible()) verifica(!c->text().isEmpty(), u"an estimate is filled: "_s + c->objectName());
  }
  verifica_uguali(f.Text7[0]->text(), u"63"_s, u"sum of the skinfolds"_s);
  verifica(numero(f.Text7[4]) > numero(f.Text7[3]), u"work and stress raise the requirement"_s);
}

/// The repeat buttons move days and ration step by step as long as they are held.
void obiettivo(const Formpond& f) {
  const double prima = numero(f.txtpesoragg), giorni_prima = numero(f.Text10[giorni]);
  clic(f.CmdGIU2[0]);
  clic(f.CmdGIU2[0]);
  clic(f.CmdSU2[0]);
  verifica(numero(f.txtpesoragg) == prima - 1, u"two kilos down and one up"_s);
  verifica(tieni(f.CmdSU2[1], [&] { return numero(f.Text10[giorni]) >= giorni_prima + 3; }), u"days go up"_s);
  verifica(!f.Timer2->isActive(), u"days stop where the button is let go"_s);
  const double kcal = numero(f.Text10[razione]);
  verifica(tieni(f.CmdSU2[2], [&] { return numero(f.Text10[razione]) > kcal; }), u"the ration goes up"_s);
  verifica(tieni(f.CmdGIU2[1], [g = numero(f.Text10[giorni]), &f] { return numero(f.Text10[giorni]) < g; }),
           u"days go down"_s);
}

void protidi_a_mano(const Formpond& f) {
  const double prima = numero(f.Text13[0]);
  clic(f.CmdSU[0]);
  clic(f.CmdSU[0]);
  verifica(std::abs(numero(f.Text13[0]) - prima - 2) < 0.6, u"two grams of protein more"_s);
  const double insieme = numero(f.Text12[0]) + numero(f.Text12[1]) + numero(f.Text12[2]);
  verifica(std::abs(insieme - 100) < 0.05, u"the nutrients share the ration"_s);
  verifica_uguali(f.Txtkcal->text(), f.Text10[razione]->text(), u"the nutrients' energy"_s);
}

}  // namespace

void antropometria(Viaggio& v) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formpond>() != nullptr, u"Avanti leads to the weight"_s);
  const auto& f = schermata<Formpond>();
  misure(f);
  f.Timer1->setInterval(1);
  verifica(QTest::qWaitFor([&f] { return !f.Timer1->isActive(); }, 2000), u"the scale of the index comes to rest"_s);
  quadro(m, u"antropo_scelta"_s, u"antropo_scelta"_s);
  clic(f.Command2);
  verifica_uguali(schermata<Formbmi>().Txtbmi->text().left(4), u"24,9"_s, u"the index step by step"_s);
  quadro(schermata<Formbmi>(), u"indice"_s);
  clic(schermata<Formbmi>().Command1);
  clic(f.Image1[3]);
  pretendi(f.Frame_obiettivo->isVisible(), u"a picture leads to the objective"_s);
  verifica_uguali(f.LabMETAB->text(), u"Consumo Kcal attuale (Plicometria)"_s, u"the chosen method"_s);
  clic(f.Img_undo);
  verifica(f.Frame_scelta->isVisible(), u"and back to the estimates"_s);
  clic(f.Image1[0]);
  obiettivo(f);
  protidi_a_mano(f);
  quadro(m, u"antropo_obiettivo"_s, u"antropo_obiettivo"_s);
  for (const QLineEdit* c : {f.Text10[razione], f.Text11[0], f.Text11[1], f.Text11[2]}) v.nutrizione << c->text();
}
