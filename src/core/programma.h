// The program's title and version, set by the build.
#pragma once

#include <QString>
#include <QVersionNumber>

/// The title that boxes and sheets show.
[[nodiscard]] QString titolo_programma();

[[nodiscard]] QVersionNumber versione_programma();

/// A line of the practice's identity: 1 name, 2 qualification, 3 address; empty where it is not filled in. Throws
/// Errore where the store cannot be read.
[[nodiscard]] QString leggi_studio(int n);
