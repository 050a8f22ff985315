// Damage of the program's own stores, through the functions that open them.
#pragma once

namespace mutanti {

/// Flips single bits and cuts the stores short, in turn. A store then fails with its error, and stays byte for byte, or
/// reads exactly as before.
void prova_archivi(int capovolti, int troncati);

}  // namespace mutanti
