// The address book's store: people by letter, and one person's rows in its four tables.
#pragma once

#include "base/archivio.h"

#include <QStringList>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// The tables that follow a person's name: home, office, telephones.
inline constexpr std::size_t schede = 3;

struct Persona {
  QString nome, cognome;
  std::array<QStringList, schede> testi;  // in the order of the fields; those without a text are empty
};

/// A person as the list shows it.
struct Nominativo {
  qint64 id;
  QString testo;
};

/// The people whose surname begins with the letter, large or small, by surname and name.
[[nodiscard]] std::vector<Nominativo> nominativi(Archivio& rubrica, QChar lettera);

/// A person with all its fields; those that are null or whose row is missing are empty. Throws Errore 3021 where the
/// number is nobody's.
[[nodiscard]] Persona leggi_persona(Archivio& rubrica, qint64 id);

/// The error of a person that lacks a row in one of the tables.
inline constexpr int riga_mancante = 3159;

/// Adds a person, or writes over the one with this number. All four tables are written or none. Throws Errore,
/// `riga_mancante` where one of the person's rows is not there.
void salva_persona(Archivio& rubrica, const Persona& persona, std::optional<qint64> id);

/// Deletes a person's rows in all four tables. Throws Errore.
void elimina_persona(Archivio& rubrica, qint64 id);
