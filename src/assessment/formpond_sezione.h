// Stage 5 between the weight screen and the working copy.
#pragma once

/// Writes the stage, and before it the activities, whose figures rest on it. Throws Errore.
void salva_dietologica();

/// Fills the screen: estimates first, then what is stored, then the objective. The plan comes back only while the
/// weight is the one that the client's file held. Throws Errore.
void carica_dietologica();
