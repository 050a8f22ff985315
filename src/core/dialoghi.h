// What the program asks of the world around it. One record of functions, so that a test can answer in their place.
#pragma once

#include <QDate>
#include <QString>
#include <functional>

class QPrinter;

struct Esterno {
  /// A file the user chooses; empty where the dialog was left.
  std::function<QString(const QString& titolo, const QString& cartella, const QString& filtro)> scegli_file;
  /// The system's printer set-up; false where the dialog was left.
  std::function<bool(QPrinter&)> imposta_stampante;
  /// Opens a document with the application associated with its type; false where there is none.
  std::function<bool(const QString& file)> apri_documento;
  std::function<QDate()> oggi;
};

/// The record in use; tests put their own functions in it.
Esterno& esterno();

[[nodiscard]] QDate oggi();

/// The one printer of the session, as the user set it up.
QPrinter& stampante();
