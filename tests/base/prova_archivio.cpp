// Stores: what is none is refused and left untouched; whole-file copies leave one state or the other.
#include "attrezzi.h"
#include "base/archivio.h"
#include "base/file.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class ProvaArchivio : public ::testing::Test {
 protected:
  QString nuovo(const QString& nome, QStringView connessione = accesso) {
    const QString file = QDir(cartella.path()).filePath(nome);
    Archivio a(file, connessione, Archivio::Modo::nuovo);
    a.esegui_copione(u"CREATE TABLE t (nome TEXT COLLATE NOCASE, n INTEGER, x REAL)"_s);
    a.transazione([&] {
      for (int i = 0; i < 300; ++i) a.esegui(u"INSERT INTO t VALUES (?, ?, ?)"_s, u"Perché %1"_s.arg(i), i, 0.5F);
    });
    return file;
  }
  QTemporaryDir cartella;
};

}  // namespace

TEST_F(ProvaArchivio, ValuesComeBackAsTheyWereStored) {
  const QString file = nuovo(u"a.jed"_s);
  Archivio a(file);
  a.esegui(u"INSERT INTO t VALUES (?, NULL, ?)"_s, u"'; drop"_s, 1.25);
  const auto r = a.righe(u"SELECT * FROM t WHERE nome IN (?, ?) ORDER BY x"_s, u"PERCHé 7"_s, u"'; DROP"_s);
  ASSERT_EQ(r.size(), 2U) << "text is compared without regard to case";
  EXPECT_EQ(r[0][u"n"].toInt(), 7);
  EXPECT_FLOAT_EQ(r[0][u"x"].toFloat(), 0.5F);
  EXPECT_TRUE(r[1][u"n"].isNull());
  EXPECT_EQ(numero_errore([&] { (void)r[0][u"manca"]; }), 3265);
  EXPECT_EQ(numero_errore([&] { (void)a.righe(u"SELECT * FROM manca"_s); }), 3078);
}

TEST_F(ProvaArchivio, WhatIsNoStoreIsRefusedAndLeftUntouched) {
  const QString file = nuovo(u"a.jed"_s);
  const QByteArray buono = contenuto(file);
  EXPECT_FALSE(buono.contains("SQLite format")) << "the whole file is encrypted";
  for (const QByteArray& dati :
       {QByteArray(), buono.left(100), QByteArray(5000, 'x'), buono.left(4096), rovinato(buono, 200)}) {
    scrivi(file, dati);
    EXPECT_EQ(numero_errore([&] { (void)Archivio(file).righe(u"SELECT * FROM t"_s); }), 3343) << dati.size();
    EXPECT_EQ(contenuto(file), dati) << dati.size();
  }
  const QString altra = nuovo(u"b.jed"_s, u";PWD=altra");
  EXPECT_EQ(numero_errore([&] { Archivio a(altra); }), 3343) << "another password";
  EXPECT_EQ(numero_errore([&] { Archivio a(altra, u";PWD=altra"); }), 0);
  const QString assente = QDir(cartella.path()).filePath(u"assente.jed"_s);
  EXPECT_EQ(numero_errore([&] { Archivio a(assente); }), 3024);
  EXPECT_FALSE(QFile::exists(assente));
}

TEST_F(ProvaArchivio, AFailedGroupOfWritesLeavesNothing) {
  Archivio a(nuovo(u"a.jed"_s));
  const auto gruppo = [&] {
    a.transazione([&] {
      a.esegui(u"DELETE FROM t"_s);
      a.esegui(u"INSERT INTO manca VALUES (1)"_s);
    });
  };
  EXPECT_EQ(numero_errore(gruppo), 3078);
  EXPECT_EQ(a.righe(u"SELECT * FROM t"_s).size(), 300U);
}

TEST_F(ProvaArchivio, AReplacedFileIsTheOldOneOrTheNewOne) {
  const QDir d(cartella.path());
  scrivi(d.filePath(u"vecchio"_s), "vecchio");
  scrivi(d.filePath(u"vecchio-journal"_s), "giornale");
  scrivi(d.filePath(u"nuovo"_s), "nuovo");
  EXPECT_EQ(numero_errore([&] { sostituisci_file(d.filePath(u"assente"_s), d.filePath(u"vecchio"_s)); }), 53);
  EXPECT_EQ(contenuto(d.filePath(u"vecchio"_s)), "vecchio");
  sostituisci_file(d.filePath(u"nuovo"_s), d.filePath(u"vecchio"_s));
  EXPECT_EQ(contenuto(d.filePath(u"vecchio"_s)), "nuovo");
  EXPECT_EQ(d.entryList(QDir::Files), (QStringList{u"nuovo"_s, u"vecchio"_s})) << "no journal, no leftovers";
}

#ifdef Q_OS_LINUX
TEST_F(ProvaArchivio, AFullDiskLeavesTheOldFileWhole) {
  const QString pieno = u"/dev/full"_s;
  if (!QFile::exists(pieno)) GTEST_SKIP();
  const QDir d(cartella.path());
  scrivi(d.filePath(u"vecchio"_s), "vecchio");
  scrivi(d.filePath(u"nuovo"_s), QByteArray(100000, 'n'));
  ASSERT_TRUE(QFile::link(pieno, d.filePath(u"vecchio.nuovo"_s)));
  EXPECT_EQ(numero_errore([&] { sostituisci_file(d.filePath(u"nuovo"_s), d.filePath(u"vecchio"_s)); }), 61);
  EXPECT_EQ(contenuto(d.filePath(u"vecchio"_s)), "vecchio");
}
#endif
