// A folder of stores of its own for each test, as they come with the program, and no screen left behind.
#pragma once

#include "base/archivio.h"
#include "core/dialoghi.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "dialogo.h"

#include <QDir>
#include <QTemporaryDir>

class Ambiente : public ::testing::Test {
 protected:
  Ambiente() {
    const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
    for (const QString& nome : origine.entryList({QStringLiteral("*.jed"), QStringLiteral("*.chk")})) {
      QFile::copy(origine.filePath(nome), cartella.filePath(nome));
    }
    QDir(cartella.path()).mkdir(QStringLiteral("help"));
    imposta_cartella(cartella.path());
  }
  ~Ambiente() override {
    abbandona_schermate();
    chiudi_archivi();
    esterno() = esterno_;
  }

  [[nodiscard]] static QString cliente(const char* nome) {
    return QStringLiteral(CARTELLA_ARCHIVI "/esempi/") + QString::fromLatin1(nome) + QStringLiteral(".orzaline");
  }
  static QByteArray contenuto(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(no file)");
  }
  static void scrivi(const QString& file, const QByteArray& contenuto) {
    QDir().mkpath(QFileInfo(file).path());
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(contenuto);
  }

  QTemporaryDir cartella;

 private:
  const Esterno esterno_ = esterno();
};
