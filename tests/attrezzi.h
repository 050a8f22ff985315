// Tools of every test: files, and the number of an error.
#pragma once

#include "base/archivio.h"
#include "base/errori.h"
#include "stampa.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

inline QByteArray contenuto(const QString& file) {
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(no file)");
}

/// Writes a file, and the folder it stands in.
inline void scrivi(const QString& file, const QByteArray& dati) {
  QDir().mkpath(QFileInfo(file).path());
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(dati);
}

/// The same bytes but for one bit.
inline QByteArray rovinato(QByteArray dati, qsizetype dove) {
  dati[dove] = static_cast<char>(dati[dove] ^ 1);
  return dati;
}

/// What a query gives: a blank between fields, a bar between rows.
inline QString righe_di(auto&& a, const QString& sql) {
  QStringList testi;
  for (const Riga& r : a.righe(sql)) {
    QStringList campi;
    for (const QString& c : r.campi()) campi << r[c].toString();
    testi << campi.join(u' ');
  }
  return testi.join(u'|');
}

/// The number of the error that comes out; 0 for none.
template <class F>
int numero_errore(F&& f) {
  try {
    f();
  } catch (const Errore& e) {
    return e.numero;
  }
  return 0;
}
