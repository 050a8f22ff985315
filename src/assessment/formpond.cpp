#include "assessment/formpond.h"

#include "assessment/formbmi.h"
#include "assessment/formule.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/filtri.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/salva_carica.h"
#include "intake/formanag.h"

#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 5;
constexpr std::size_t pliche = 4, braccio = 4, ama = 5, muscolo = 6;  // rows of Text5
constexpr std::array<float, 5> fattori_lavoro{1.2F, 1.4F, 1.6F, 1.8F, 2.0F};
constexpr std::array<float, 4> fattori_stress{1.0F, 1.1F, 1.2F, 1.3F};
constexpr int meta_banda = 7, banda = 14;  // units of the scale

/// Shows a box of the formulas.
void avvisa(const Riquadro& r) { messaggio(r.testo, r.titolo, r.icona); }

bool numerici(std::span<QLineEdit* const> campi) {
  return std::ranges::all_of(campi, [](const QLineEdit* c) { return numerico(c->text()); });
}

float singolo(const QLineEdit* campo) { return static_cast<float>(valore(campo->text())); }
std::int16_t intero(const QLineEdit* campo) { return round16(valore(campo->text())); }
double tronco(const QLineEdit* campo) { return std::floor(valore(campo->text())); }

/// A result as it is after its passage through a formatted text.
float ripreso(double x, const char* forma) { return static_cast<float>(valore(fmt(x, forma))); }

/// The square of a stature in metres, at single precision throughout.
float metri_quadrati(const QLineEdit* statura) {
  const auto m = static_cast<float>(valore(statura->text()) / 100);
  return m * m;
}

bool dati_completi(const Formanag& a) {
  const auto scelto = [](const QComboBox* lista) { return lista->currentIndex() >= 0; };
  const auto pieno = [](const QLineEdit* campo) { return !campo->text().isEmpty(); };
  return scelto(a.Combocost) && pieno(a.Txtpeso) && pieno(a.Txtalt) && pieno(a.Txtanni) && scelto(a.Combolav) &&
         scelto(a.Combosesso);
}

using Colonna = std::array<QString, 4>;  // weight, index, basal rate, requirement
using Metabolismo = std::function<double(float peso)>;

/// Basal rate and requirement for a weight. The factor goes by the constitution, not by the work.
void aggiungi_metabolismo(Colonna& c, const Metabolismo& metabolismo, float peso, const Formanag& a) {
  c[2] = testo(std::floor(metabolismo(peso)));
  const auto fattore = static_cast<std::int16_t>(a.Combocost->currentIndex());
  c[3] = testo(std::floor(fabbisogno_totale(round16(valore(c[2])), fattore).value()));
}

Colonna colonna_attuale(const Formanag& a, const Metabolismo& metabolismo) {
  const float peso = singolo(a.Txtpeso);
  Colonna c{a.Txtpeso->text(), calcola_bmi(peso, intero(a.Txtalt)), {}, {}};
  aggiungi_metabolismo(c, metabolismo, peso, a);
  return c;
}

Colonna colonna_ideale(const Formanag& a, const Metabolismo& metabolismo) {
  const float bmi = bmi_ideale(a.Combosesso->currentText(), a.Combocost->currentIndex(), avvisa);
  const double peso = std::floor(double{metri_quadrati(a.Txtalt)} * bmi);
  Colonna c{testo(peso), testo(bmi), {}, {}};
  aggiungi_metabolismo(c, metabolismo, static_cast<float>(peso), a);
  return c;
}

void scrivi(const std::array<QLineEdit*, 4>& campi, const Colonna& colonna) {
  for (std::size_t i = 0; i < campi.size(); ++i) campi[i]->setText(colonna[i]);
}

/// Both columns of a panel, worked out whole before one field is written, so that a failure leaves no half of it.
void riempi_pannello(const std::array<QLineEdit*, 4>& attuale, const std::array<QLineEdit*, 4>& ideale,
                     const Metabolismo& metabolismo) {
  const Formanag& a = schermata<Formanag>();
  if (!dati_completi(a)) return;
  abbandona([&] {
    const Colonna prima = colonna_attuale(a, metabolismo), seconda = colonna_ideale(a, metabolismo);
    scrivi(attuale, prima);
    scrivi(ideale, seconda);
  });
}

/// A factor by the line chosen; 0 where none is.
template <std::size_t N>
float fattore_di(const std::array<float, N>& fattori, const QComboBox* lista) {
  const int i = lista->currentIndex();
  return i < 0 || i >= int{N} ? 0.0F : fattori[static_cast<std::size_t>(i)];
}

/// A state of the muscle, from the rounded-down muscle area at which it begins to the one at which it ends.
struct StatoMuscolo {
  QStringView testo;
  int da_uomo, a_uomo, da_donna, a_donna;
};
constexpr int oltre = std::numeric_limits<int>::max();
constexpr StatoMuscolo stati_muscolo[]{
    {u"Scarso", 10, 30, 10, 28},   {u"Modesto", 31, 36, 29, 30},          {u"Normale", 37, 59, 31, 36},
    {u"Notevole", 60, 69, 37, 59}, {u"Eccellente", 70, oltre, 61, oltre},
};

}  // namespace

Formpond::Formpond() {
  disegna();
  collega_regole();
  collega_obiettivo();
  collega_nutrienti();
}

void Formpond::al_caricamento() { carica_cliente(codice_stadio); }

void Formpond::all_attivazione() {
  schermata<Mdiorza>().qualeform.setText(u"5"_s);
  if (!Frame_scelta->isVisible()) return;
  const auto grassetto = std::ranges::find_if(Text1, [](const QLineEdit* t) { return t->font().bold(); });
  if (grassetto != Text1.end()) (*grassetto)->setFocus();
}

void Formpond::alla_chiusura() {
  salva_cliente(codice_stadio);
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

void Formpond::collega_regole() {
  for (QLineEdit* c : Text3) solo_cifre(c);
  for (QLineEdit* c : Text8) {
    al_cambio(c, [this] {
      if (!numerici(std::span(Text8).first<2>())) return;
      Text7[1]->setText(Text8[0]->text());
      Text7[2]->setText(Text8[1]->text());
    });
  }
  for (std::size_t i = 0; i < Text2.size(); ++i) al_cambio(Text2[i], [this, i] { cambia_bfa(i); });
  collega_pliche();
  al_clic(Combo1, [this] { applica_stress(); });
  allo_scatto(Timer1, [this] { sali_scala(); });
  al_clic(Command2, [this] { apri_formbmi(); });
  al_clic(Img_undo, [this] {
    avvisato_ = false;
    mostra_scelta();
  });
  for (QLineEdit* nome : Text1) nome->installEventFilter(this);
}

// ---- the two computed panels

void Formpond::riempi_larn() {
  const Formanag& a = schermata<Formanag>();
  riempi_pannello(Text8, Text9, [&a](float peso) {
    return double{metabolismo_larn(peso, a.Combosesso->currentText(), a.Txtanni->text())};
  });
}

void Formpond::riempi_hb() {
  const Formanag& a = schermata<Formanag>();
  riempi_pannello(Text3, Text4, [&a](float peso) {
    return metabolismo_hb(peso, a.Txtalt->text(), a.Txtanni->text(), a.Combosesso->currentText());
  });
}

// ---- body fat analyser

void Formpond::cambia_bfa(std::size_t riga) {
  const Formanag& a = schermata<Formanag>();
  abbandona([&] {
    if (riga == 0 && numerico(Text2[0]->text())) {
      Text2[1]->setText(calcola_bmi(singolo(Text2[0]), intero(a.Txtalt)));
    }
    if (riga == 2 && numerici(std::array{Text2[2], Text8[2], Text9[2]})) {
      const auto totale = fabbisogno_totale(intero(Text2[2]), static_cast<std::int16_t>(a.Combocost->currentIndex()));
      if (totale) Text2[3]->setText(testo(std::floor(*totale)));
    }
  });
}

// ---- skinfolds

void Formpond::collega_pliche() {
  for (std::size_t i = 0; i < Text5.size(); ++i) {
    solo_cifre(Text5[i]);
    all_uscita(Text5[i], [this, i] { lascia_plica(i); });
    al_cambio(Text5[i], [this, i] { cambia_plica(i); });
  }
}

void Formpond::lascia_plica(std::size_t riga) {
  if (numerici(std::span(Text5).first<pliche>())) somma_pliche();
  // A closing screen loses its focus too, and must not bring the master data back.
  if (riga == braccio && caricata<Formanag>()) calcola_ama();
}

void Formpond::cambia_plica(std::size_t riga) {
  const Formanag& a = schermata<Formanag>();
  calcola_ama();
  if (numerici(std::span(Text5).first<pliche>()) && numerici(std::array{a.Txtalt, a.Txtpeso, a.Txtanni}) &&
      !a.Combosesso->currentText().isEmpty()) {
    calcola_plico();
  }
  if (riga == ama && numerico(Text5[ama]->text())) classifica_muscolo();
}

void Formpond::somma_pliche() {
  double somma = 0;
  for (const QLineEdit* plica : std::span(Text5).first<pliche>()) somma += tronco(plica);
  Text7[0]->setText(testo(somma));
}

/// The muscle area of the arm, cm², without the bone, after Heymsfield and others (1982), with 3.14 for π.
void Formpond::calcola_ama() {
  if (!numerici(std::array{Text5[0], Text5[1], Text5[braccio]})) return;
  const QString sesso = schermata<Formanag>().Combosesso->currentText();
  if (sesso != u"M" && sesso != u"F") return;
  const float pieghe = singolo(Text5[1]) + singolo(Text5[0]);
  const double u = valore(Text5[braccio]->text()) - pieghe * 3.14 / 20;
  Text5[ama]->setText(fmt(u * u / 12.56 - (sesso == u"M" ? 10 : 6.5), "0.00"));
}

void Formpond::classifica_muscolo() {
  const QString sesso = schermata<Formanag>().Combosesso->currentText();
  if (sesso != u"M" && sesso != u"F") return;
  const double area = tronco(Text5[ama]);
  for (const StatoMuscolo& s : stati_muscolo) {
    const auto [da, a] = sesso == u"M" ? std::pair{s.da_uomo, s.a_uomo} : std::pair{s.da_donna, s.a_donna};
    if (area >= da && area <= a) Text5[muscolo]->setText(s.testo.toString());
  }
}

void Formpond::calcola_plico() {
  abbandona([this] {
    const Formanag& a = schermata<Formanag>();
    const QString sesso = a.Combosesso->currentText();
    somma_pliche();
    Text7[2]->setText(calcola_bmi(singolo(a.Txtpeso), intero(a.Txtalt)));
    Text7[1]->setText(a.Txtpeso->text());
    const auto grasso =
        static_cast<float>(percentuale_grasso(singolo(Text7[0]), sesso, intero(a.Txtanni), avvisa).value_or(0));
    const double peso = valore(Text7[1]->text());
    const float massa_grassa = ripreso(peso * grasso / 100, "0.0");
    const float massa_magra = ripreso(peso - massa_grassa, "0.0");
    Text7[3]->setText(testo(metabolismo_superficie(intero(a.Txtalt), intero(a.Txtpeso), sesso)));
    const auto ideale = static_cast<float>(grasso_ideale(intero(a.Txtanni), sesso).value_or(0));
    if (ideale > 0) Text6[0]->setText(QString::number(pliche_ideali(ideale, a.Txtanni->text(), sesso, avvisa)));
    const std::int16_t peso_ideale =
        round16(std::floor(double{massa_magra}) * (100 / (100 - std::floor(double{ideale}))));
    Text6[1]->setText(QString::number(peso_ideale));
    const float q = metri_quadrati(a.Txtalt);
    Text6[2]->setText(fmt(peso_ideale != 0 && q != 0 ? peso_ideale / double{q} : 0.0, "0.0"));
    Text6[3]->setText(testo(metabolismo_ideale_larn(singolo(Text6[1]), sesso, a.Txtanni->text())));
  });
}

void Formpond::applica_stress() {
  if (!numerici(std::array{Text7[3], Text6[3]})) return;
  const double lavoro = fattore_di(fattori_lavoro, schermata<Formanag>().Combolav);
  const double stress = fattore_di(fattori_stress, Combo1);
  for (const auto& colonna : {Text7, Text6}) {
    colonna[4]->setText(testo(std::floor(tronco(colonna[3]) * lavoro * stress)));
  }
}

// ---- scale of the body mass index

void Formpond::avvia_scala() {
  ProgressBar1->setValue(ProgressBar1->minimum());
  Timer1->start();
}

void Formpond::sali_scala() {
  int meta = 0;
  if (numerico(Text8[1]->text())) {
    if (const auto classe = classe_bmi(singolo(Text8[1]))) meta = meta_banda + banda * *classe;
  } else {
    Timer1->stop();
  }
  ProgressBar1->setValue(ProgressBar1->value() + 1);
  if (ProgressBar1->value() >= meta) Timer1->stop();
}

void Formpond::apri_formbmi() {
  auto& b = schermata<Formbmi>();
  abbandona([&] {
    if (const auto conto = conteggio_bmi(Text8[0]->text(), schermata<Formanag>().Txtalt->text())) b.scrivi(*conto);
  });
  mostra<Formbmi>();
}

// ---- choice of a method

Formpond::CampiMetodo Formpond::campi_metodo(std::size_t metodo) const {
  const std::array<CampiMetodo, 4> campi{
      {{Text8[3], Text9[0]}, {Text3[3], Text4[0]}, {Text2[2], Text2[0]}, {Text7[4], Text6[1]}}};
  return campi.at(metodo);
}

void Formpond::evidenzia_metodo(std::size_t metodo) {
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    QFont carattere = Text1[i]->font();
    carattere.setBold(i == metodo);
    Text1[i]->setFont(carattere);
  }
}

void Formpond::mostra_scelta() {
  mostra_faccia(Faccia::scelta);
  if (!numerico(Lab_scelta.text())) return;
  const auto metodo = static_cast<std::size_t>(round16(valore(Lab_scelta.text())));
  evidenzia_metodo(metodo);
  Text1.at(metodo)->setFocus();
}

bool Formpond::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto nome = std::ranges::find(Text1, oggetto);
  if (nome == Text1.end()) return QWidget::eventFilter(oggetto, evento);
  const auto metodo = nome - Text1.begin();
  if (evento->type() == QEvent::FocusIn) evidenzia_metodo(static_cast<std::size_t>(metodo));
  if (evento->type() == QEvent::KeyPress) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) {
      esegui_regola([&] { scegli_con_invio(static_cast<int>(metodo)); });
      return true;
    }
  }
  return QWidget::eventFilter(oggetto, evento);
}
