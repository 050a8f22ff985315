// A print that goes to the printer or, where the user asked for one, to a file.
#pragma once

#include <QPagedPaintDevice>
#include <QPrinter>
#include <functional>

/// Draws on the printer. Where the printer is a file, the document is made in memory and takes the file's place as a
/// whole: the toolkit's own writer tells nothing of a full disk. Throws Errore of `base/file.h`; the old file stays.
void stampa_o_scrivi(QPrinter& p, const std::function<void(QPagedPaintDevice&)>& disegna);
