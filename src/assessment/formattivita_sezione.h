// The week's sport between its screen and the working copy.
#pragma once

/// Writes the screen's week to `sport`. Throws Errore.
void salva_sport();

/// Brings back the day's activities and their minutes; everything else is worked out anew from them. Statements that
/// fail are passed over one by one.
void carica_sport();
