// The personal history between its screen and the working copy.
#pragma once

/// Writes the history, and whether the client smokes where the number of cigarettes is one. Throws Errore.
void salva_personale();

/// Fills the screen; without a stored history it stays as it is. Throws Errore 380 for a position outside its list.
void carica_personale();
