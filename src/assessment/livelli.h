// Nutrient levels in grams per kg of reference weight: by age, varied by the class of the body mass index.
#pragma once

#include <QStringView>
#include <cstddef>
#include <cstdint>
#include <optional>

inline constexpr int kcal_protidi = 4, kcal_lipidi = 9, kcal_glucidi = 4;  // per gram

/// A row of a table of levels and its values; where no row fits, row 0 with nothing.
struct Livello {
  std::size_t riga;
  float protidi, lipidi;  // g per kg
};

/// Level by age, rows 0 to 5. `anni` is compared as text with the two-digit limits: "9" takes the last row, "100" the
/// first.
[[nodiscard]] Livello livello_per_eta(QStringView anni);

/// Variation by the class of the body mass index, rows 0 to 7. `bmi` is compared as text with limits in the locale's
/// form: "100,0" stands below "17,5", "40,0" above "40".
[[nodiscard]] Livello livello_per_bmi(QStringView bmi);

/// Weight in kg that the levels count by: the ideal one, from an index of 27 on the middle between present and ideal;
/// fractions are cut. Empty where a weight that it needs is no number or leaves 16 bits.
[[nodiscard]] std::optional<std::int16_t> peso_di_riferimento(QStringView bmi, QStringView attuale, QStringView ideale);
