// Nutrient levels: protein and fat by reference weight, by age and weight class and by hand; carbohydrate is the rest.
#include "assessment/formpond.h"
#include "assessment/livelli.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/regole.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t protidi = 0, lipidi = 1, glucidi = 2;  // rows of the panel
constexpr std::array<int, 2> kcal_al_grammo{kcal_protidi, kcal_lipidi};

QString per_chilo(double grammi, std::int16_t peso) {
  if (peso == 0) throw Errore(11, "Divisione per zero");
  return fmt(grammi / peso, "0.00");
}

/// A whole number moved by a step; empty where it leaves 16 bits.
std::optional<std::int16_t> spostato(double numero, int passo) {
  std::optional<std::int16_t> n;
  abbandona([&] { n = round16(round16(numero) + passo); });
  return n;
}

void aggiungi(QLineEdit* campo, float variazione) {
  if (!numerico(campo->text())) return;
  campo->setText(fmt(static_cast<float>(valore(campo->text())) + variazione, "0.00"));
}

}  // namespace

void Formpond::collega_nutrienti() {
  al_cambio(Txtprotg_Kg, [this] { cambia_livello(protidi); });
  al_cambio(Txtlipg_Kg, [this] { cambia_livello(lipidi); });
  for (const std::size_t i : {protidi, lipidi}) {
    al_cambio(Text13[i], [this] { abbandona([this] { cambia_grammi(); }); });
  }
  al_cambio(Text11[glucidi], [this] {
    const QString kcal = Text11[glucidi]->text();
    if (numerico(kcal)) Text13[glucidi]->setText(fmt(valore(kcal) / kcal_glucidi, "0.0"));
  });
  al_cambio(Txtkcal, [this] { abbandona([this] { cambia_kcal(); }); });
  al_clic(CmdSU[protidi], [this] { sposta_protidi(1); });
  al_clic(CmdGIU[protidi], [this] { sposta_protidi(-1); });
  al_clic(CmdSU[lipidi], [this] { sposta_lipidi(1); });
  al_clic(CmdGIU[lipidi], [this] { sposta_lipidi(-1); });
}

// ---- levels

void Formpond::livello_eta() {
  const Livello l = livello_per_eta(schermata<Mdiorza>().Txtetà->text());
  Txtprotg_Kg->setText(fmt(l.protidi, "0.00"));
  Txtlipg_Kg->setText(fmt(l.lipidi, "0.00"));
  for (std::size_t i = 0; i < Check4.size(); ++i) marca(*Check4[i], i == l.riga);
}

void Formpond::livello_peso() {
  const Livello l = livello_per_bmi(schermata<Mdiorza>().Txtbmi->text());
  aggiungi(Txtprotg_Kg, l.protidi);
  aggiungi(Txtlipg_Kg, l.lipidi);
  for (std::size_t i = 0; i < Option2.size(); ++i) marca(*Option2[i], i == l.riga);
}

void Formpond::deriva_livelli() {
  livello_eta();
  livello_peso();
  if (numerico(LabPROT.text())) Text13[protidi]->setText(LabPROT.text());
  if (numerico(LabLIP.text())) Text13[lipidi]->setText(LabLIP.text());
}

std::optional<std::int16_t> Formpond::peso_riferimento() const {
  const Mdiorza& m = schermata<Mdiorza>();
  return peso_di_riferimento(m.Txtbmi->text(), m.Txtpeso->text(), Lab_pesoid.text());
}

// ---- chain from the levels to grams, energy and percentages

void Formpond::cambia_livello(std::size_t nutriente) {
  const QString livello = (nutriente == protidi ? Txtprotg_Kg : Txtlipg_Kg)->text();
  const auto peso = peso_riferimento();
  if (numerico(livello) && peso) Text13[nutriente]->setText(fmt(valore(livello) * *peso, "0.0"));
}

void Formpond::cambia_grammi() {
  for (const QLineEdit* c : {Txtkcal, Text13[protidi], Text13[lipidi]}) {
    if (!numerico(c->text())) return;
  }
  const double kcal = valore(Txtkcal->text());
  if (kcal <= 0) return;
  for (const std::size_t i : {protidi, lipidi}) {
    Text11[i]->setText(testo(std::floor(valore(Text13[i]->text()) * kcal_al_grammo[i])));
  }
  Text11[glucidi]->setText(testo(kcal - valore(Text11[protidi]->text()) - valore(Text11[lipidi]->text())));
  scrivi_percentuali("0.00");
}

void Formpond::cambia_kcal() {
  for (const QLineEdit* c : {Txtkcal, Text11[protidi], Text11[lipidi]}) {
    if (!numerico(c->text())) return;
  }
  const double kcal = valore(Txtkcal->text());
  if (kcal <= 0) return;
  const auto intero = [&](std::size_t i) { return std::floor(valore(Text11[i]->text())); };
  Text11[glucidi]->setText(testo(kcal - intero(protidi) - intero(lipidi)));
  scrivi_percentuali("#.00");
}

/// Shares of the ration; the last one is what remains of the other two as they are shown.
void Formpond::scrivi_percentuali(const char* forma) {
  const double kcal = valore(Txtkcal->text());
  for (const std::size_t i : {protidi, lipidi}) {
    Text12[i]->setText(fmt(valore(Text11[i]->text()) * 100 / kcal, forma));
  }
  Text12[glucidi]->setText(testo(100 - valore(Text12[protidi]->text()) - valore(Text12[lipidi]->text())));
}

// ---- buttons: a gram more or less, then back through the level

void Formpond::sposta_protidi(int grammi) {
  if (!numerico(Text13[protidi]->text())) return;
  const auto peso = peso_riferimento();
  if (!peso) return;
  const float nuovi = static_cast<float>(valore(Text13[protidi]->text())) + static_cast<float>(grammi);
  Text13[protidi]->setText(testo(nuovi));
  Txtprotg_Kg->setText(per_chilo(double{nuovi}, *peso));
  LabPROT.setText(Text13[protidi]->text());
}

void Formpond::sposta_lipidi(int grammi) {
  if (!numerico(Text13[lipidi]->text())) return;
  const auto peso = peso_riferimento();
  const auto nuovi = spostato(valore(Text13[lipidi]->text()), grammi);
  if (!peso || !nuovi) return;
  Text13[lipidi]->setText(QString::number(*nuovi));
  Txtlipg_Kg->setText(per_chilo(*nuovi, *peso));
  LabLIP.setText(Text13[lipidi]->text());
}
