// The weight objective: a method is chosen, and target, days and ration follow each other.
#include "assessment/formpond.h"
#include "assessment/obiettivo.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "intake/formanag.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t consumo = 0, razione = 1, kcal = 2, grammi = 3, giorni = 4, chili = 5;  // of Text10
constexpr QStringView sopra = u"sopra", sotto = u"sotto", analizzatore = u"2";

constexpr std::array<QStringView, 4> scritte_consumo{
    u"Consumo Kcal attuale (L.A.R.N.)", u"Consumo Kcal attuale (H. Benedict)", u"Consumo Kcal attuale (B.Fat Analyzer)",
    u"Consumo Kcal attuale (Plicometria)"};

/// The words that follow the direction of the objective, by the index of their label.
struct Scritta {
  std::size_t indice;
  QStringView calo, aumento;
};
constexpr std::array<Scritta, 3> scritte{{
    {chili, u"Peso da perdere in Kg", u"Peso da aggiungere in Kg"},
    {grammi, u"Perdita giornaliera in gr.", u"Guadagno giornaliero in gr."},
    {kcal, u"Calorie/gg da togliere", u"Calorie/gg da aggiungere"},
}};

struct Cliente {
  double peso;  // kg
  bool donna;
};

/// Weight and sex as the working copy has them; empty where it has no weight.
std::optional<Cliente> cliente() {
  apri_dati_tmp(Scopo::caricare);
  const auto righe = dati_tmp().righe(u"SELECT peso, sex FROM anagrafe LIMIT 1"_s);
  if (righe.empty() || righe[0][u"peso"].isNull()) return {};
  return Cliente{righe[0][u"peso"].toDouble(), righe[0][u"sex"].toInt() == 1};
}

bool sono_numeri(std::initializer_list<QString> testi) { return std::ranges::all_of(testi, numerico); }

void scrivi(QLineEdit* campo, std::optional<int> numero) {
  if (numero) campo->setText(QString::number(*numero));
}

}  // namespace

void Formpond::collega_obiettivo() {
  for (std::size_t i = 0; i < Image1.size(); ++i) {
    al_clic(Image1[i], [this, i] { scegli_con_figura(static_cast<int>(i)); });
  }
  al_cambio(Lab_metab, [this] { Text10[consumo]->setText(Lab_metab.text()); });
  al_cambio(Lab_scelta, [this] { cambia_metodo(); });
  al_cambio(txtpesoragg, [this] { cambia_traguardo(); });
  al_cambio(Text10[razione], [this] {
    if (numerico(Text10[razione]->text())) Txtkcal->setText(Text10[razione]->text());
  });
  al_pressione(CmdSU2[0], [this] { sposta_traguardo(1); });
  al_pressione(CmdGIU2[0], [this] { sposta_traguardo(-1); });
  for (const auto& [tasto, timer] : {std::pair{CmdSU2[1], Timer2}, std::pair{CmdGIU2[1], Timer3},
                                     std::pair{CmdSU2[2], Timer4}, std::pair{CmdGIU2[2], Timer5}}) {
    al_pressione(tasto, [t = timer] { t->start(); });
    al_rilascio(tasto, [t = timer] { t->stop(); });
    all_uscita(tasto, [t = timer] { t->stop(); });  // its space bar may be let go elsewhere
  }
  allo_scatto(Timer2, [this] { sposta_giorni(1); });
  allo_scatto(Timer3, [this] { sposta_giorni(-1); });
  allo_scatto(Timer4, [this] { sposta_razione(passo_kcal); });
  allo_scatto(Timer5, [this] { sposta_razione(-passo_kcal); });
}

// ---- choice of a method

bool Formpond::mostra_obiettivo(int metodo) {
  const CampiMetodo campi = campi_metodo(static_cast<std::size_t>(metodo));
  Lab_metab.setText(campi.consumo->text());
  Lab_pesoid.setText(campi.peso_ideale->text());
  const bool numeri = sono_numeri({Lab_metab.text(), Lab_pesoid.text()});
  const auto nullo = [](const Valore& v) { return std::floor(valore(v.text())) == 0; };
  if (!numeri || nullo(Lab_metab) || nullo(Lab_pesoid)) {
    QApplication::beep();
    messaggio(u"ATTENZIONE: Inserire i dati relativi alla scelta effettuata."_s);
    return !numeri;
  }
  mostra_faccia(Faccia::obiettivo);
  Lab_scelta.setText(QString::number(metodo));
  txtpesoragg->setFocus();
  return false;
}

void Formpond::scegli_con_figura(int metodo) {
  Text1[static_cast<std::size_t>(metodo)]->setFocus();
  if (mostra_obiettivo(metodo)) return;
  proponi_obiettivo();
  Txtlipg_Kg->clear();
  Txtprotg_Kg->clear();
  deriva_livelli();
  LabSCELTA->hide();
}

void Formpond::scegli_con_invio(int metodo) {
  static_cast<void>(mostra_obiettivo(metodo));
  calcola_kcal();
}

void Formpond::proponi_obiettivo() {
  if (numerico(Lab_txtpesoragg.text())) {
    txtpesoragg->setText(Lab_txtpesoragg.text());
  } else {
    abbandona([this] { txtpesoragg->setText(testo(peso_fase1())); });
  }
  if (numerico(Lab_giornimodificati.text())) {
    Text10[giorni]->setText(Lab_giornimodificati.text());
    ricalcola(sopra);
  } else if (Lab_scelta.text() == analizzatore) {
    Text10[razione]->setText(Text2[3]->text());
    ricalcola(sotto);
  } else {
    calcola_kcal();
  }
}

void Formpond::cambia_metodo() {
  if (!numerico(Lab_scelta.text())) return;
  const double metodo = valore(Lab_scelta.text());
  if (metodo < 0 || metodo >= double{scritte_consumo.size()}) return;
  LabMETAB->setText(scritte_consumo[static_cast<std::size_t>(metodo)].toString());
  LabRAZ->setText(u"Valore calorico della dieta"_s);
}

double Formpond::peso_fase1() const {
  if (Lab_scelta.text() == analizzatore) return valore(Text2[0]->text());
  return ::peso_fase1(valore(Text8[0]->text()), valore(Lab_pesoid.text()));
}

void Formpond::riempi_di_là() {
  if (numerico(Lab_txtpesoragg.text())) {
    txtpesoragg->setText(Lab_txtpesoragg.text());
  } else if (numerico(Text8[0]->text())) {
    txtpesoragg->setText(testo(peso_in_apertura(valore(Text8[0]->text()))));
  }
  if (numerico(Lab_giornimodificati.text())) {
    Text10[giorni]->setText(Lab_giornimodificati.text());
    ricalcola(sopra);
  } else {
    calcola_kcal();
  }
  deriva_livelli();
}

// ---- target, days, ration

void Formpond::cambia_traguardo() {
  abbandona([this] {
    const QString traguardo = txtpesoragg->text();
    if (!numerico(traguardo) || valore(traguardo) <= peso_da_superare) return;
    const auto c = cliente();
    if (!c) return;
    const std::int16_t diff = differenza(c->peso, valore(traguardo));
    for (const Scritta& s : scritte) Label31[s.indice]->setText((diff < 0 ? s.aumento : s.calo).toString());
    scrivi(Text10[chili], std::abs(int{diff}));
  });
}

void Formpond::calcola_kcal() {
  if (!sono_numeri({txtpesoragg->text(), Lab_metab.text()})) return;
  const double traguardo = valore(txtpesoragg->text()), metabolismo = valore(Lab_metab.text());
  if (traguardo <= peso_da_superare || std::floor(metabolismo) <= 0) return;
  Conteggio conto;
  abbandona([&] {
    if (const auto c = cliente()) ::calcola_kcal({c->peso, traguardo, metabolismo, c->donna}, conto);
  });
  scrivi(Text10[giorni], conto.giorni);
  scrivi(Text10[grammi], conto.grammi);
  scrivi(Text10[kcal], conto.kcal);
  scrivi(Text10[razione], conto.razione);
}

void Formpond::ricalcola(QStringView direzione) {
  abbandona([&] {
    const Formanag& f = schermata<Formanag>();
    if (!sono_numeri({f.Txtpeso->text(), txtpesoragg->text(), Lab_metab.text()})) return;
    const bool da_sopra = direzione == sopra;
    const QString mosso = Text10[da_sopra ? giorni : razione]->text();
    if (!numerico(mosso) || (da_sopra && mosso == u"0")) return;
    const Partenza p{valore(f.Txtpeso->text()), valore(txtpesoragg->text()), valore(Lab_metab.text()),
                     f.Combosesso->currentText() == u"F"};
    const auto r = da_sopra ? da_giorni(p, valore(mosso)) : da_razione(p, valore(mosso));
    if (!r) return avviso_negativo();
    if (r->razione < livello_sicurezza(p.donna)) avvisa_sicurezza();
    scrivi(Text10[giorni], r->giorni);
    scrivi(Text10[grammi], r->grammi);
    scrivi(Text10[kcal], r->kcal);
    scrivi(Text10[razione], r->razione);
  });
}

void Formpond::ferma_timer() {
  for (QTimer* t : {Timer2, Timer3, Timer4, Timer5}) t->stop();
}

/// The timers stop before the box comes, or they would go on ticking behind it.
void Formpond::avvisa_sicurezza() {
  if (avvisato_) return;
  avvisato_ = true;
  ferma_timer();
  messaggio(
      u"ATTENZIONE: Avete raggiunto il livello calorico di sicurezza,\n"
      "sotto il quale conviene integrare con minerali e vitamine"_s);
}

void Formpond::avviso_negativo() {
  avvisato_ = false;
  ferma_timer();
  messaggio(
      u"ATTENZIONE:Siete arrivati ad un valore negativo,\n"
      "controllare nella scheda anagrafica l'inserimento dei livelli di costituzione e lavoro."_s);
  calcola_kcal();
}

// ---- steps of the buttons

void Formpond::sposta_traguardo(int kg) {
  if (!numerico(txtpesoragg->text())) return;
  txtpesoragg->setText(testo(std::floor(valore(txtpesoragg->text())) + kg));
  ricalcola(sopra);
}

/// Up in whole numbers of 16 bits, down to 0.
void Formpond::sposta_giorni(int passo) {
  abbandona([&] {
    if (!numerico(Text10[giorni]->text())) return;
    const double ora = valore(Text10[giorni]->text());
    const double nuovi = passo > 0 ? round16(round16(ora) + passo) : ora + passo;
    if (passo < 0 && nuovi < 0) return;
    Text10[giorni]->setText(testo(nuovi));
    ricalcola(sopra);
  });
}

void Formpond::sposta_razione(int passo) {
  if (!numerico(Text10[razione]->text())) return;
  Text10[razione]->setText(testo(valore(Text10[razione]->text()) + passo));
  ricalcola(sotto);
}
