// Opening a client's file: it becomes the working copy, and the banner shows whose it is.
#pragma once

#include <QString>

/// Leaves the present client, takes the file as the working copy and opens the elaboration. False where the file
/// cannot be taken, after a box that says so; a file that is no client's leaves everything as it was.
bool apri_file_cliente(const QString& file);
