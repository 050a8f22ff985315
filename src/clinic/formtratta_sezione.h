// The follow-up sheet between its screen and the working copy. Both throw Errore; no failure is passed over.
#pragma once

void salva_trattamento();

/// Fills the screen; the first visit takes its date and weight from the master data, and its first measures, as long
/// as the waist is empty, from the clinical history and the skinfolds. Nothing happens to a client without a sheet.
void carica_trattamento();
