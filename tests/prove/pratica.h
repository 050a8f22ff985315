// A whole practice for the proofs that kill the program: all stores, three clients, a password; and what is found in it
// afterwards.
#pragma once

#include "banco.h"
#include "base/archivio.h"

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
  /// Dates the exports and prints back: what is written from here on is newer.
  void invecchia() const;

  QTemporaryDir radice;
  QString pratica, fuori;  // the program's folder; where exports and prints go
};

/// The stores as they come, with the sample clients imported and saved in state 1. What stood there goes.
void prepara(const Cartelle& dove);

struct Trovato {
  std::size_t clienti = 0;   // rows of the registry whose file is there
  int righe_senza_file = 0;  // of an import that was cut short
  int stato = 0;             // of the client's file
  int dieta = 0;             // the mark of the diet in the client's file
  int in_rubrica = 0;        // the client's state in the address book, 0 where it has none
  int stato_esportato = 0;   // of the file exported since invecchia(), 0 where there is none
  bool stampa = false;       // printed since invecchia()
};

/// A number, below 65536, by which a stored diet is known again.
[[nodiscard]] int impronta_dieta(Archivio& cliente);

/// Fails the proof where a store or a client's file is not whole, a file is no row's, a row's number or surname is not
/// its file's, or the print is cut off.
[[nodiscard]] Trovato esamina(const Cartelle& dove, const QString& cognome);

}  // namespace pratica
