// Key filters of entry fields: what becomes of each typed character. Writing by program and pasting with the mouse
// pass.
#pragma once

#include <QChar>

class QLineEdit;

/// Digits and the backspace.
void solo_cifre(QLineEdit* campo);

/// Digits and the backspace, as long as the field holds fewer than `cifre` characters; the backspace always.
void solo_cifre(QLineEdit* campo, int cifre);

/// "-" and "." become "/".
void filtro_data(QLineEdit* campo);

/// Capitals without accents, the digits 1 to 9, blanks, the backspace and the copy key.
void filtro_nome(QLineEdit* campo);

/// Leaving the field rewrites a date in its short form; any other text stays.
void data_breve_in_uscita(QLineEdit* campo);
