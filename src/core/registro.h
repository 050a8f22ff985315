// The registry of clients: their numbers, surnames and files, and the archive's list made of those files.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

/// The tab of the archive that lists every client; tabs 0 to 25 are the letters A to Z.
inline constexpr int scheda_tutti = 26;

/// A row of the registry.
struct Iscritto {
  int cod;
  QString cognome;  // first word of the surname, or the whole of it after an import
  QString file;     // full path
};

/// All rows, by surname. The registry is opened where it is not; throws Errore.
[[nodiscard]] std::vector<Iscritto> iscritti();

/// The row of a client's number.
[[nodiscard]] std::optional<Iscritto> iscritto(int cod);

/// Adds a row. Throws Errore 3022 where the number is taken.
void iscrivi(const Iscritto& nuovo);

/// Deletes the row of a number, and nothing on the disk.
void cancella_iscritto(int cod);

/// The highest number of the registry plus one; 1 where it is empty.
[[nodiscard]] int prossimo_cod();

/// The same as a 16-bit number. Throws Errore 6 beyond 32767.
[[nodiscard]] std::int16_t cod_libero();

/// Deletes without a word the rows whose file is gone.
void pulisci_schedario();

/// Fills the archive's grid with the clients of a tab, reading each client's own file. A client whose file is gone
/// loses the row, after a box; one whose file cannot be read keeps it, is named in a box and passed over.
void riempi_schedario(int tab);

/// Adds a client's line to the archive's grid where it belongs to the tab: the client's surname begins with the
/// tab's letter, or the tab is that of all. Throws Errore where the file cannot be read.
void aggiungi_riga_schedario(const QString& file, int tab);
