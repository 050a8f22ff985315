// Whole-file copies that leave either the old file or the new one, never something between.
#pragma once

#include <QString>

/// Copies `da` over `a`: a temporary file in the same folder is written, checked, flushed to the disk and renamed.
/// Throws Errore (53 no such file, 61 disk full, 70 permission, 57 any other) and leaves `a` as it was.
/// No handle of this process may be open on either file.
void sostituisci_file(const QString& da, const QString& a);

/// Deletes a store and the engine's journal beside it. Throws Errore 70 where it stays; a missing file is no error.
void elimina_archivio(const QString& file);
