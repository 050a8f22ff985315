// The formulas of the assessment: body mass index, basal metabolic rate, total requirement, body fat by skinfolds.
// Weight in kg, stature in cm, skinfolds in mm, energy in kcal a day, fat in percent of weight; sex "M" or "F".
#pragma once

#include "base/riquadro.h"

#include <QString>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>

/// Shows a message box to the user.
using Avviso = std::function<void(const Riquadro&)>;

/// A class of the body mass index, limits included; the first class is open below and excludes `a`, the last one is
/// open above and excludes `da`. An index between two rows belongs to no class.
struct ClasseBmi {
  float da, a;
  QStringView etichetta, intervallo;              // as the explanation of the index names them
  QStringView etichetta_scala, intervallo_scala;  // as the scale of the weight screen names them
};

inline constexpr std::array<ClasseBmi, 8> classi_bmi{{
    {0.0F, 17.5F, u"Sottopeso grave", u"BMI < a 17,5", u"Sottopeso grave", u"BMI < 17,5"},
    {17.6F, 18.5F, u"Sottopeso", u"BMI da 17,6 a 18,5", u"Sottopeso", u"BMI 17,5-18,5"},
    {18.6F, 23.9F, u"Peso normale", u"BMI da 18,6 a 23.9", u"Peso Normale", u"BMI 18,6-23,9"},
    {24.0F, 26.9F, u"Sovrappeso lieve", u"BMI da 24 a 26.9", u"Sopra peso lieve", u"BMI 24-26,9"},
    {27.0F, 29.9F, u"Sovrappeso", u"BMI da 27 a 29.9", u"Sopra peso", u"BMI 27-29,9"},
    {30.0F, 34.9F, u"Obesità I°", u"BMI da 30 a 34.9", u"Obesità lieve", u"BMI 30-34,9"},
    {35.0F, 40.0F, u"Obesità II°", u"BMI da 35 a 40", u"Obesità grave", u"BMI 35-40"},
    {40.0F, 40.0F, u"Obesità Patologica", u"BMI > 40", u"Obesità patologica", u"BMI > 40"},
}};

/// Row of `classi_bmi`, 0 to 7, for an index compared as a number; empty where it belongs to no class.
[[nodiscard]] std::optional<int> classe_bmi(float bmi);

/// Body mass index, kg/m² (Quetelet's), as text with one decimal; "0,0" where weight or stature is 0.
[[nodiscard]] QString calcola_bmi(float peso, std::int16_t statura);

/// How the index is worked out, step by step, as the explanation shows it.
struct ConteggioBmi {
  QString peso;              // kg
  QString altezza;           // m, two decimals
  QString altezza_quadrata;  // m²
  QString bmi;               // two decimals
};

/// The steps for the weight and the stature in their fields; empty where the weight is no number, and the screen then
/// leaves its boxes as they are. Throws Errore 13 for a stature that is no number, 11 for 0.
[[nodiscard]] std::optional<ConteggioBmi> conteggio_bmi(const QString& peso, const QString& statura);

/// Ideal body mass index by constitution: 0 longitipo, 1 normotipo, 2 brachitipo, the line chosen on the master data;
/// any sex but "F" counts as "M". With none chosen (-1) it says so and gives 0.
[[nodiscard]] float bmi_ideale(QStringView sesso, int costituzione, const Avviso& avvisa);

/// Total requirement, not rounded: the metabolic rate times 1.2, 1.4, 1.6, 1.8 or 2 for factor 0 to 4; empty for any
/// other. Throws Errore 6 where the double of the rate leaves 16 bits.
[[nodiscard]] std::optional<double> fabbisogno_totale(std::int16_t metabolismo, std::int16_t fattore);

/// Basal rate in whole kcal by the equations of the Italian recommended intakes (LARN, SINU, revision of 1996). `anni`
/// is the text of the age field, compared with the two-digit limits as text: "9" takes the row from "60" up, "100" that
/// from "10" to "17"; a text in no row gives 0. Any sex but "M" counts as "F".
[[nodiscard]] float metabolismo_larn(float peso, QStringView sesso, QStringView anni);

/// The same rate for the ideal weight of the skinfold panel.
[[nodiscard]] float metabolismo_ideale_larn(float peso, QStringView sesso, QStringView anni);

/// Basal rate with fractions after Harris and Benedict (1919), whose equation for infants serves below 16 years. The
/// coefficients are the practice's: 13.5 per kg for "M" and the constant 665.0 for any other sex stand where 13.75 and
/// 655.1 were published. `statura` and `anni` are the texts of their fields: 0 where one is no number. Throws Errore 6
/// where one of them leaves 16 bits, or for "M" from 16 years five times the stature.
[[nodiscard]] double metabolismo_hb(float peso, QStringView statura, QStringView anni, QStringView sesso);

/// Basal rate in whole kcal by body surface, √(stature × weight) / 60 m² to two decimals (Mosteller 1987), at 40 kcal
/// per m² and hour for "M" and 36 for "F"; for any other sex the surface itself. Throws Errore 5 where one measure
/// alone is negative.
[[nodiscard]] float metabolismo_superficie(std::int16_t statura, std::int16_t peso, QStringView sesso);

/// Body fat by the sum of four skinfolds (Durnin and Womersley 1974, through Siri 1961): the first row of the table
/// whose sum is not below the given one. Empty below 15 years and for any other sex; the screen reads that as 0. A sum
/// above the table says so and gives 100. Throws Errore where the table cannot be read.
[[nodiscard]] std::optional<double> percentuale_grasso(float somma, QStringView sesso, std::int16_t eta,
                                                       const Avviso& avvisa);

/// Ideal fat by age in years; empty below 16 and for any sex but "M" and "F".
[[nodiscard]] std::optional<double> grasso_ideale(std::int16_t eta, QStringView sesso);

/// Sum of skinfolds in whole mm at which the table reaches an ideal fat. `anni` is the text of the age field, compared
/// as text: "9" falls in the last band, "100" in none. Where no row or no band fits it says so and gives 0. Throws
/// Errore where the table cannot be read.
[[nodiscard]] std::int16_t pliche_ideali(float grasso, QStringView anni, QStringView sesso, const Avviso& avvisa);
