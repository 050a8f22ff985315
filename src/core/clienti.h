// From the archive into a client and out of it: recalling, beginning, deleting.
#pragma once

/// Makes the file of the archive's selected client the working copy. 0, or -1 after a box where it cannot be done.
[[nodiscard]] int richiama_cliente();

/// Closes the archive and every screen of a client's, and opens the master data.
void apri_cliente_scheda();

/// Begins a client: an empty working copy, a free number, today's visit. The registry learns of it at the first
/// general save.
void nuovo_cliente();

/// The first values of a new client's master data and follow-up sheet; what fails is passed over.
void prepara_nuovo_cliente();

/// Asks, and on Yes deletes the selected client's row, folder and line. Throws Errore 76 where the folder does not
/// bear the surname of the grid: the row is gone by then.
void elimina_cliente();
