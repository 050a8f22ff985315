// Cardiovascular risk as the clinical history counts it: the marks of its factors, and the level they add up to.
#pragma once

#include <QString>
#include <optional>

inline constexpr int fattori_di_rischio = 5;

/// Waist over hips, both in cm, with one decimal and in single precision; nothing where one of them is no number, the
/// hips are not above 0 or the ratio is out of range.
[[nodiscard]] std::optional<QString> rapporto_vita_fianchi(QStringView vita, QStringView fianchi);

/// The mark of a ratio: "+" below 1.0, "-" from there on; nothing for a text that is no number.
[[nodiscard]] std::optional<QString> segno_rapporto(QStringView rapporto);

/// The mark of an abdomen in cm: "+" above 102 for "M", above 88 for "F" (National Cholesterol Education Program,
/// JAMA 2001; 285: 2486), "-" up to there; nothing for another sex or a text that is no number.
[[nodiscard]] std::optional<QString> segno_addome(QStringView sesso, QStringView cm);

/// What a body-mass index in kg/m² says of the weight: overweight above 24, obese above 30. A text that is no number
/// says nothing, and counts as normal.
enum class ClassePeso { normale, sovrappeso, obeso };
[[nodiscard]] ClassePeso classe_peso(QStringView bmi);

/// The level in words of a count of marks "+", 0 to 5; empty for 0 and for any other text.
[[nodiscard]] QString livello_rischio(QStringView presenti);
