// The clinical history between its screen and the working copy. Both throw Errore; no failure is passed over.
#pragma once

/// Exams, drugs, pressure and notes, table by table in this order. A table is replaced whole or stays as it was.
void salva_funzionale();
void carica_funzionale();
