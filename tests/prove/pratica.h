// A whole practice for the proofs that kill the program: all stores, three clients, a password; and what is found in it
// afterwards.
#pragma once

#include "banco.h"

#include <QString>
#include <QTemporaryDir>
#include <cstddef>

namespace pratica {

inline const QString parola = QStringLiteral("orzo e farro");

/// The sample clients, as files to be imported.
[[nodiscard]] QString esempi();

struct Cartelle {
  Cartelle();
  [[nodiscard]] QString pdf() const { return fuori + QStringLiteral("/stampa.pdf"); }

  QTemporaryDir radice;
  QString pratica, fuori;  // the program's folder; where exports and prints go
};

/// The stores as they come, with the sample clients imported and saved in state 1. What stood there goes.
void prepara(const Cartelle& dove);

struct Trovato {
  std::size_t clienti = 0;   // rows of the registry whose file is there
  int righe_senza_file = 0;  // of an import that was cut short
  int stato = 0;             // of the client's file
  int stato_esportato = 0;   // of the exported file, 0 where there is none
  bool stampa = false;
};

/// Fails the proof where a store or a client's file is not whole, a file is no row's, a row's number or surname is not
/// its file's, or the print is cut off.
[[nodiscard]] Trovato esamina(const Cartelle& dove, const QString& cognome);

}  // namespace pratica
