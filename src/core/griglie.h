// The grids of clients: whole lines to be chosen, widths in units of 15 to the pixel. Lists with some air.
#pragma once

#include <QString>
#include <QTableWidget>
#include <span>

class QListView;

inline constexpr int altezza_voce = 17;  // pixels of a line of a list

struct Colonna {
  QStringView testa;
  int larghezza;  // units of 15 to the pixel
  Qt::Alignment verso;
};

/// A grid without lines: read-only, one line chosen at a time, heads over its columns.
[[nodiscard]] QTableWidget* griglia(const QString& nome, std::span<const Colonna> colonne);

/// The width that shows all columns and the scroll bar, in pixels.
[[nodiscard]] int larghezza_di(std::span<const Colonna> colonne);

/// Adds a line; each text stands as its column's head does.
void aggiungi_riga(QTableWidget* griglia, const QStringList& testi);

/// Gives the lines of a list their height.
void distanzia_voci(QListView* lista);
