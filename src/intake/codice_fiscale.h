// The Italian fiscal code, composed from the master data.
#pragma once

#include <QString>
#include <cstdint>

/// What the code is made of, as it stands on the screen.
struct DatiCodice {
  QString cognome, nome;
  QString data;    // of birth, as typed
  QString sesso;   // "M", "F" or empty
  QString comune;  // four-character code of the municipality of birth; empty where unknown
};

enum class Parte { cognome, nome };

/// Three letters for a surname or a name in capitals; empty where it has too few letters or a sign that is none.
[[nodiscard]] QString componi_nome(const QString& testo, Parte parte);

/// Month letter of a two-digit month; empty for any other text.
[[nodiscard]] QString lettera_mese(const QString& mese);

/// Value of a character in an odd position; 0 for any other text.
[[nodiscard]] std::int16_t valore_dispari(QStringView carattere);

/// Check letter over the groups: three letters each, year 0 to 99, month letter, day 1 to 71, letter and three digits.
/// Empty where one of the groups has not that form; the month letter alone may be anything, and then counts 0.
[[nodiscard]] QString carattere_controllo(const QString& cognome, const QString& nome, std::int16_t anno,
                                          const QString& mese, std::int16_t giorno, const QString& comune);

/// The whole code, its five groups parted by blanks; a group that cannot be formed stays empty.
[[nodiscard]] QString componi_codice(const DatiCodice& dati);
