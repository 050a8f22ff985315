#include "assessment/formule.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/numeri.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView uomo = u"M", donna = u"F";
constexpr QStringView senza_limite = u"\uffff";  // no text sorts above it

struct Ideale {
  float donna, altri;
};
constexpr std::array<Ideale, 3> bmi_ideali{{{19.7F, 21.0F}, {20.8F, 22.0F}, {22.3F, 23.5F}}};

constexpr std::array<double, 4> fattori{1.2, 1.4, 1.6, 1.8};

/// Rate = a × weight + b.
struct Retta {
  float a;
  int b;
};
struct RigaLarn {
  QStringView da, a;
  Retta uomo, altri;
};
constexpr RigaLarn righe_larn[]{
    {u"10", u"17", {17.7F, 650}, {13.4F, 693}},
    {u"18", u"29", {15.3F, 679}, {14.7F, 496}},
    {u"30", u"59", {11.6F, 879}, {8.7F, 829}},
    {u"60", senza_limite, {11.9F, 700}, {9.2F, 688}},
};

constexpr int ore = 24, kcal_uomo = 40, kcal_donna = 36;  // a day; per m² and hour

struct GrassoIdeale {
  std::int16_t fino_a;  // years
  double uomo, donna;
};
constexpr GrassoIdeale grassi_ideali[]{
    {20, 13, 23.5}, {25, 13, 26},   {30, 14.5, 26.5}, {35, 19.5, 29}, {40, 22, 30},
    {45, 22, 31},   {50, 22.5, 33}, {55, 23.5, 34},   {60, 24.5, 35}, {INT16_MAX, 26, 37},
};

/// An age band of the skinfold table. As numbers the bands have no gaps; as text they do.
struct Banda {
  std::int16_t da;  // years
  QStringView testo_da, testo_a;
  QStringView campo;  // without the letter of the sex
};
constexpr std::array<Banda, 4> bande{{
    {15, u"15", u"29", u"primo"},
    {30, u"30", u"39", u"secondo"},
    {40, u"40", u"49", u"terzo"},
    {50, u"50", senza_limite, u"quarto"},
}};

/// The column of a band and sex; empty where there is none.
QString campo_grasso(const Banda* banda, QStringView sesso) {
  return banda && (sesso == uomo || sesso == donna) ? banda->campo.toString() + sesso.toString() : QString();
}

const Banda* banda_di(std::int16_t eta) {
  const auto b = std::find_if(bande.rbegin(), bande.rend(), [&](const Banda& x) { return eta >= x.da; });
  return b == bande.rend() ? nullptr : &*b;
}

const Banda* banda_di(QStringView anni) {
  const auto* b = std::ranges::find_if(bande, [&](const Banda& x) { return tra(anni, x.testo_da, x.testo_a); });
  return b == bande.end() ? nullptr : b;
}

/// The skinfold table in stored order, which ascends; its file is closed again at once.
std::vector<Riga> tab_plico() {
  return Archivio(percorso(u"Durnin.jed"_s), accesso, Archivio::Modo::sola_lettura)
      .righe(u"SELECT * FROM tab_plico ORDER BY rowid"_s);
}

}  // namespace

std::optional<int> classe_bmi(float bmi) {
  constexpr int ultima = int{classi_bmi.size()} - 1;
  if (bmi < classi_bmi.front().a) return 0;
  if (bmi > classi_bmi.back().da) return ultima;
  for (int i = 1; i < ultima; ++i) {
    const ClasseBmi& c = classi_bmi[static_cast<std::size_t>(i)];
    if (bmi >= c.da && bmi <= c.a) return i;
  }
  return {};
}

QString calcola_bmi(float peso, std::int16_t statura) {
  const auto m = static_cast<float>(statura / 100.0);
  const float q = m * m;
  return fmt(peso != 0 && q != 0 ? peso / q : 0.0F, "0.0");
}

std::optional<ConteggioBmi> conteggio_bmi(const QString& peso, const QString& statura) {
  if (!numerico(peso)) return {};
  const double w = valore(peso), m = valore(statura) / 100;
  if (m == 0) throw Errore(11, "Divisione per zero");
  return ConteggioBmi{testo(w), fmt(m, "#.00"), testo(m * m), fmt(w / (m * m), "0.00")};
}

float bmi_ideale(QStringView sesso, int costituzione, const Avviso& avvisa) {
  if (costituzione < 0 || costituzione >= int{bmi_ideali.size()}) {
    avvisa({.testo = u"indicare la costituzione"_s, .titolo = {}});
    return 0;
  }
  const Ideale& ideale = bmi_ideali[static_cast<std::size_t>(costituzione)];
  return sesso == donna ? ideale.donna : ideale.altri;
}

std::optional<double> fabbisogno_totale(std::int16_t metabolismo, std::int16_t fattore) {
  if (fattore < 0 || fattore > int{fattori.size()}) return {};
  if (fattore == int{fattori.size()}) return round16(metabolismo * 2);
  return metabolismo * fattori[static_cast<std::size_t>(fattore)];
}

float metabolismo_larn(float peso, QStringView sesso, QStringView anni) {
  const auto* riga = std::ranges::find_if(righe_larn, [&](const RigaLarn& r) { return tra(anni, r.da, r.a); });
  if (riga == std::end(righe_larn)) return 0;
  const Retta& r = sesso == uomo ? riga->uomo : riga->altri;
  return static_cast<float>(std::floor(double{r.a} * peso + r.b));
}

float metabolismo_ideale_larn(float peso, QStringView sesso, QStringView anni) {
  return metabolismo_larn(peso, sesso, anni);
}

double metabolismo_hb(float peso, QStringView statura, QStringView anni, QStringView sesso) {
  if (!numerico(statura) || !numerico(anni)) return 0;
  const std::int16_t h = round16(valore(statura)), y = round16(valore(anni));
  if (y < 16) return 22.1 + 31.05 * peso + 1.16 * h;
  if (sesso == uomo) return 66.5 + 13.5 * peso + round16(5 * h) - 6.75 * y;
  return 665.0 + 9.56 * peso + 1.85 * h - 4.67 * y;
}

float metabolismo_superficie(std::int16_t statura, std::int16_t peso, QStringView sesso) {
  const int prodotto = int{statura} * peso;
  if (prodotto < 0) throw Errore(5, "Chiamata di routine o argomento non validi");
  const auto s = static_cast<float>(valore(fmt(std::sqrt(prodotto) / 60, "0.00")));
  if (sesso == uomo) return static_cast<float>(std::floor(double{s} * ore * kcal_uomo));
  if (sesso == donna) return static_cast<float>(std::floor(double{s} * ore * kcal_donna));
  return s;
}

std::optional<double> percentuale_grasso(float somma, QStringView sesso, std::int16_t eta, const Avviso& avvisa) {
  const std::vector<Riga> righe = tab_plico();
  const auto riga = std::ranges::find_if(righe, [&](const Riga& r) { return r[u"pliche"].toDouble() >= somma; });
  if (riga == righe.end()) {
    avvisa({.testo = u"ERRORE: Ricontrollare i valori delle pliche\n"
                     "I valori attualmente inseriti sono fuori dal limite di calcolo"_s,
            .titolo = {}});
    return 100;
  }
  const QString campo = campo_grasso(banda_di(eta), sesso);
  if (campo.isEmpty()) return {};
  return (*riga)[campo].toDouble();
}

std::optional<double> grasso_ideale(std::int16_t eta, QStringView sesso) {
  if (eta < 16 || (sesso != uomo && sesso != donna)) return {};
  const auto* riga = std::ranges::find_if(grassi_ideali, [&](const GrassoIdeale& g) { return eta <= g.fino_a; });
  return sesso == uomo ? riga->uomo : riga->donna;
}

std::int16_t pliche_ideali(float grasso, QStringView anni, QStringView sesso, const Avviso& avvisa) {
  const std::vector<Riga> righe = tab_plico();
  const QString campo = campo_grasso(banda_di(anni), sesso);
  const auto basta = [&](const Riga& r) { return r[campo].toDouble() >= grasso; };
  const auto riga = campo.isEmpty() ? righe.end() : std::ranges::find_if(righe, basta);
  if (riga != righe.end()) return round16((*riga)[u"pliche"].toDouble());
  avvisa({.testo = u"Impossibile calcolare le pliche ideali! Il valore eccede il range dei valori statistici"_s,
          .titolo = {}});
  return 0;
}
