// The set-up of an elaboration: the client's daily totals and meal shares, handed to the search.
#pragma once

#include "diet/motore.h"

/// The value at a 0-based position of a text of numbers, each followed by a plus sign; empty past the end. An item that
/// is no number is passed over at the wanted position, and the position moves on.
[[nodiscard]] QString estrai_valore_giorno(int indice, const QString& testo);

/// Reads `sport` and `consumi` of the working copy and elaborates the week in force. Where one of them is empty a
/// message says so and nothing runs. Throws Errore where the working copy cannot be read.
void elabora_dieta(Motore& motore, const Tramite& tramite);
