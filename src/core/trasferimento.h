// Carrying a client from one installation to another: whole-file copies out and in.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>

/// Called when a copy begins and when it ends, so that the screen can show it.
using Copia = std::function<void(bool in_corso)>;

/// Copies the file of a client to a folder as `cod_cognome.orzaline`, after a question. Anything but a copy made,
/// a No included, is told as a failure.
void esporta_cliente(int cod, const QString& cartella, const Copia& in_corso = {});

/// Takes the files in, in order: row of the registry, folder, copy with its number. A number that is taken is
/// replaced by a free one, after a question. A file that is no client's, damaged or of another password leaves the
/// archive as it was.
void importa_clienti(const QStringList& file, const Copia& in_corso = {});

/// Writes the number into the first row of the file's master data.
void scrivi_cod_importato(const QString& file, std::int16_t cod);
