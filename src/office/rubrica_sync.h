// The open client as a person of the address book.
#pragma once

#include <QString>

/// The banner's name up to its first blank, that one included: the surname as the address book takes it.
[[nodiscard]] QString cognome_da_soggetto();

/// What stands behind the first blank of the banner's name.
[[nodiscard]] QString nome_da_soggetto();

/// True where the address book holds the banner's name. Throws Errore where the store cannot be read.
[[nodiscard]] bool nome_in_rubrica();

/// Writes name, home and telephones of the master data to the address book, and empties the office. All is written or
/// nothing. Throws Errore; 3159 where a person lacks its row in one of the tables.
void aggiorna_rubrica();
