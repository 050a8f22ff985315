// A report's page on a grid of characters, and its comparison with the page kept beside the tests.
#pragma once

#include "reports/bersaglio.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QSet>

/// One column a character. Below the page stand the lines that are red or underlined, and whether the logo was painted.
class Foglio : public Bersaglio {
 public:
  void colore(QRgb colore) override { rosso_ = colore == qRgb(255, 0, 0); }
  void sottolinea(bool si) override { sottolinea_ = si; }
  void logo() override { logo_ = true; }

  [[nodiscard]] QString testo() const {
    QStringList t;
    for (const QString& r : righe_) t << (r.isNull() ? QStringLiteral("") : r);
    if (logo_) t << QStringLiteral("[logo]");
    if (!rosse_.isEmpty()) t << QStringLiteral("[rosse: %1]").arg(rosse_.join(u' '));
    if (!sottolineate_.isEmpty()) t << QStringLiteral("[sottolineate: %1]").arg(sottolineate_.join(u' '));
    return t.join(u'\n') + u'\n';
  }

 protected:
  double larghezza(const QString& testo) const override { return static_cast<double>(testo.size()); }
  void dipingi(double colonne, int riga, const QString& testo) override {
    while (righe_.size() <= riga) righe_ << QString();
    QString& r = righe_[riga];
    r = r.leftJustified(static_cast<qsizetype>(colonne)) + testo;
    const QString numero = QString::number(riga + 1);
    if (rosso_ && !rosse_.contains(numero)) rosse_ << numero;
    if (sottolinea_ && !sottolineate_.contains(numero)) sottolineate_ << numero;
  }

 private:
  QStringList righe_, rosse_, sottolineate_;
  bool rosso_ = false, sottolinea_ = false, logo_ = false;
};

/// Compares with tests/reports/attesi/<nome>.txt; with ATTESI_NUOVI set in the environment it writes that page instead.
inline void confronta(const Foglio& foglio, const QString& nome) {
  const QString file = QStringLiteral(CARTELLA_SORGENTI "/tests/reports/attesi/%1.txt").arg(nome);
  if (qEnvironmentVariableIsSet("ATTESI_NUOVI")) {
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(foglio.testo().toUtf8());
    return;
  }
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << file.toStdString();
  EXPECT_EQ(foglio.testo().toStdString(), f.readAll().toStdString()) << file.toStdString();
}
