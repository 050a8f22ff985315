// What a client's file is called, and what it must be before it is taken in.
#pragma once

#include "base/archivio.h"

/// Name of a client's folder and, but for its ending, of the file: number, "_", surname. It never leads elsewhere.
[[nodiscard]] QString nome_cliente(const QString& cod, const QString& cognome);

/// Opens a file that came from elsewhere in a child process first. Throws Errore 3343 where the child does not come
/// back: there are texts of a schema that end the engine, and with it whoever opens them.
void pretendi_apribile(const QString& file);

/// Throws Errore 3343 where the store holds more than tables and their indices: whatever the engine would run by itself
/// as soon as a table is read or written. To be called before any other look into a file that came from elsewhere.
void pretendi_sole_tabelle(Archivio& cliente);

/// Reads the whole file. Throws Errore 3343 where it is damaged or holds more than tables, 3078 where it lacks a table
/// of a client's.
void verifica_cliente(Archivio& cliente);
