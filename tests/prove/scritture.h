// The writes of single stores, each of a numbered state that can be read back: sections of the client's working copy,
// the stored diet, the choices of foods, address book, agenda, registry.
#pragma once

#include <QStringList>
#include <vector>

namespace prove {

/// A column in which every row holds the state, alone or as every element of a list.
struct Luogo {
  QString tabella, colonna;
  int righe;
};

struct Scrittura {
  QString nome;
  QString file;  // in the practice's folder
  /// In a child with the client's banner: writes the state. Where a text may be long, it holds the state that many
  /// times.
  void (*scrivi)(int stato, int volte);
  std::vector<Luogo> luoghi;
};

[[nodiscard]] const std::vector<Scrittura>& scritture();

/// Every store as it comes with the program, and the working copy of a client.
void prepara_scritture(const QString& cartella);

/// The state that the file holds after a write, 0 before the first. Fails the proof where the store is damaged, does
/// not read in full, or holds several states.
[[nodiscard]] int stato_scritto(const Scrittura& s, const QString& cartella);

}  // namespace prove
