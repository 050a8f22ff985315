// The legs of the tour.
#pragma once

#include <QString>

/// A client's whole life: begun by typing, saved, found, recalled, exported, deleted and imported again.
void vita_di_un_cliente(const QString& cartella_esporta);

/// The sample clients come in through the import.
void importa_esempi(const QString& cartella);

/// The foods of the client that is open, looked at meal by meal and left as they are.
void scelta_degli_alimenti();

/// One week of diet for a client of the archive: elaborated, reviewed, changed, saved.
void settimana_di_dieta(const QString& cognome);

/// Address book and agenda.
void ufficio();
