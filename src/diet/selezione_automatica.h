// The foods that the program chooses by itself when the dietitian does not pick them by hand.
#pragma once

#include "base/archivio.h"

#include <cstdint>

/// Adds one offered food to the client's list: the food's codes and, for all three uses, its companion list (empty
/// where it has none). `alimento` is a row of a food store.
void copia_alimento_spuntato(const Riga& alimento, Archivio& dati, std::int16_t pasto, bool ok);

/// Fills `checkAlimentiSpuntati` and `alimenti_spuntati` of the working copy with simple and common foods, all or
/// nothing. `fast_food` is the weekday lunch of fast food or ready dishes.
void seleziona_automatico(Archivio& dati, Archivio& sa_dieta, bool fast_food);
