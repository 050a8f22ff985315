// Whole-file copies that leave either the old file or the new one, never something between.
#pragma once

#include <QByteArray>
#include <QString>

/// What the message of a full disk says beside the cause: no write takes the place of saved data before it is whole.
inline constexpr const char* salvati_intatti = " I dati già salvati restano come erano.";

/// Copies `da` over `a`: a temporary file in the same folder is written, checked, flushed to the disk and renamed.
/// Throws Errore (52 name too long, 53 no such file, 61 disk full, 70 permission, 57 any other), in Italian, and leaves
/// `a` as it was. No handle of this process may be open on either file.
void sostituisci_file(const QString& da, const QString& a);

/// Writes `dati` over `a` in the same way, with the same errors.
void scrivi_file(const QByteArray& dati, const QString& a);

/// Gives a file or a folder another name on the same disk, and waits until the disk knows it. Throws Errore.
void rinomina(const QString& da, const QString& a);

/// Flushes to the disk what files and folders a folder holds. Throws Errore as above.
void fissa_cartella(const QString& cartella);

/// True where a file is surely not there; one that cannot be reached is not gone.
[[nodiscard]] bool sparito(const QString& file);

/// Deletes a store and the engine's journal beside it. Throws Errore 70 where it stays; a missing file is no error.
void elimina_archivio(const QString& file);
