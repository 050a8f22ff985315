// The general save: what turns the session's work into lasting data.
#pragma once

#include <QString>

/// Asks, and on Yes copies the working copy to the client's file and brings the registry up to date. Throws Errore;
/// the working copy survives.
void salvataggio_generale();

/// True where the registry knows the banner's client.
[[nodiscard]] bool cod_in_schedario();

/// Adds or rewrites the client's row in the registry; `file` is the full path of the client's file.
void aggiorna_schedario(const QString& file);
