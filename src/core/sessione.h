// The client session: the working copy `dati.tmp`, the shared handles, and the ways in and out of a client.
#pragma once

#include "base/archivio.h"

#include <QString>

enum class Scopo { salvare, caricare };

/// Opens the working copy unless it is open; where there is none, the empty template becomes it. Before a load every
/// failure is reported in a box and the call returns; before a save it throws Errore.
void apri_dati_tmp(Scopo scopo);

/// The open working copy. Throws Errore 91 where it is not open.
Archivio& dati_tmp();

/// Opens the registry of clients unless it is open. Throws Errore.
void apri_schedario();

/// The registry, opened where it is not.
Archivio& schedario();

/// Closes the registry and the working copy where they are open.
void chiudi_archivi();

/// True while the working copy exists, open or not.
[[nodiscard]] bool esiste_dati_tmp();

/// Closes the shared handles and deletes the working copy. Throws Errore 70 where it stays.
void elimina_dati_tmp();

/// The path of the open client's own file, from the banner: cod_word/cod_word.orzaline, word being the first of the
/// surname.
[[nodiscard]] QString percorso_cliente();

/// Copies the working copy over the client's own file and returns its path. The old file gives way only to a whole
/// new one. Throws Errore that names the file.
QString salva_su_file_cliente();

/// Leaves the client: screens closed, working copy deleted, banner emptied. What was not saved is lost.
void chiudi_cliente();

void azzera_banner();

/// Closes every screen of a client's; each saves itself as it closes, so the order is that of the writing.
void scarica_schede();

/// The shorter round of the menu's "Chiudi".
void scarica_schede_da_menu();

/// True while a saved diet stands in the elaboration's menu.
inline bool dieta_caricata = false;
