// How the whole program reads dates from text and writes them back.
#pragma once

#include <QDate>
#include <QString>

/// The date a text stands for: day, month and year with "/", "-" or "." between; two-digit years 30 to 99 are
/// 19xx, 00 to 29 are 20xx. Invalid where the text is no date.
[[nodiscard]] QDate data_di(QStringView testo);

/// The pattern of a date's short form.
[[nodiscard]] QString formato_data_breve();

/// The short form of a date, dd/MM/yyyy under Italian; empty for an invalid date.
[[nodiscard]] QString data_breve(QDate data);
