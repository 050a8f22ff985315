// Rows of a text table into a store's table.
#pragma once

#include "base/archivio.h"
#include "tabella_csv.h"

/// Adds every row to the table, column by column by name; other columns of the text are ignored. `porzione` names the
/// column that fills `quantità`, where the table has one. A value is read as its column's declared type, numbers with
/// a decimal point; an empty one is null, or the empty text where the column takes no null.
/// Throws Errore naming file, line and column of a value that does not fit, line alone for one that the store refuses.
void riempi(Archivio& archivio, const QString& tabella, const TabellaCsv& csv, const QString& porzione);
