// What a client's file must be before it is taken in.
#pragma once

#include "base/archivio.h"

/// Throws Errore 3343 where the store is damaged, 3078 where it lacks a table of a client's.
void verifica_cliente(Archivio& cliente);
