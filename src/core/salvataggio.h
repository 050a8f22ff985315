// The general save: what turns the session's work into lasting data.
#pragma once

#include <QString>

/// Asks, and on Yes saves the stage in front, copies the working copy to the client's file, brings the registry up to
/// date and mirrors the client in the address book. Throws Errore; the working copy survives.
void salvataggio_generale();

/// File and registry: where the registry knows the client already, asks whether to overwrite it or to give the copy a
/// new number.
void salva_in_archivio();

/// True where the registry knows the banner's client.
[[nodiscard]] bool cod_in_schedario();

/// Adds or rewrites the client's row in the registry; `file` is the full path of the client's file.
void aggiorna_schedario(const QString& file);
