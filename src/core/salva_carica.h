// The client's sections between the screens and the working copy, by stage.
#pragma once

#include <QString>
#include <QVariantMap>

/// Writes the section of a stage's screen to the working copy, which is opened where it is not; other codes write
/// nothing. Throws Errore.
void salva_cliente(int codice);

/// Fills a stage's screen from the working copy; other codes read nothing. A working copy that cannot be opened is
/// reported in a box.
void carica_cliente(int codice);

/// Gives the master data, where they were loaded unseen, what a shown screen has: provinces, municipalities and the
/// fields that depend on them. Until then these fields are not saved from the screen.
void carica_luoghi();

/// The row of a section that is loaded with failing statements passed over; none where the working copy is not open. A
/// row that is there and cannot be read is told in a box: its screen comes empty.
[[nodiscard]] QVariantMap riga_da_caricare(const QString& tabella);
