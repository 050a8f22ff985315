// Tables kept as text beside the program's sources: semicolons, UTF-8, one header line, no quotes.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

struct TabellaCsv {
  struct Riga {
    int numero;  // line of the file, the header being line 1
    QStringList valori;
  };
  QString nome;
  QStringList colonne;
  std::vector<Riga> righe;

  /// Throws Errore 3274 with the place of the fault: file, line and, where there is one, column.
  [[noreturn]] void errore(int riga, const QString& colonna, const QString& guasto) const;
};

/// Reads a table. Throws Errore: 53 no such file, 3274 a line that is not UTF-8 or has more or fewer values than the
/// header.
[[nodiscard]] TabellaCsv leggi_csv(const QString& file);
