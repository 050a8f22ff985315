// Export and import of client files: what goes out, what comes in, and what is refused.
#include "core/formi_e.h"
#include "core/trasferimento.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const QString titolo = u"Orzaline control"_s;
const Atteso importata{u"Importazione riuscita !"_s, {}}, importazione_fallita{u"Importazione fallita !"_s, {}};
const Atteso esportato{u"File esportato con successo !"_s, {}}, esportazione_fallita{u"Esportazione fallita !!"_s, {}};

Atteso codice_preso(int libero, bool risposta = true) {
  return {
      u"Attenzione: il codice del cliente che si è deciso di importare esiste già.\n"
      "Il cliente verrà inserito con codice %1\nContinuare ?"_s.arg(libero),
      titolo, risposta};
}

Atteso copiare(const QString& chi, const QString& meta, bool risposta = true) {
  return {u"Si è deciso di copiare i dati del cliente "_s + chi + u"\nin ..\n"_s + meta + u"\nContinuare ?"_s, titolo,
          risposta};
}

struct ProvaTrasferimento : Ambiente {
  ProvaTrasferimento() {
    schedario().esegui(u"DELETE FROM schedario"_s);
    mostra<Mdiorza>();
    schermata<Mdiorza>().cmdsopra[9]->click();
    QDir(cartella.path()).mkdir(u"fuori"_s);
  }
  Formi_e& f = schermata<Formi_e>();
  const QString fuori = percorso(u"fuori"_s);

  /// A client's file outside the archive.
  QString straniero(const QString& nome, const QVariant& cod, const QVariant& cognome) const {
    const QString file = QDir(fuori).filePath(nome + u".orzaline"_s);
    scrivi(file, contenuto(cliente("1900_ferri")));
    Archivio(file).esegui(u"UPDATE anagrafe SET cod = ?, cognome = ?"_s, cod, cognome);
    return file;
  }
  QString grezzo(const QString& nome, const QByteArray& dentro) const {
    const QString file = QDir(fuori).filePath(nome + u".orzaline"_s);
    scrivi(file, dentro);
    return file;
  }
  /// What is imported, in the registry or not.
  static QString importa(const QStringList& file, const std::deque<Atteso>& attesi) {
    const Dialogo d(attesi);
    importa_clienti(file);
    return registro().join(u", "_s);
  }
  [[nodiscard]] QStringList cartelle() const {
    return QDir(cartella.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  }
};

}  // namespace

TEST_F(ProvaTrasferimento, ImportedClientsGetRowFolderWholeSurnameAndAFreeNumber) {
  const QString primo = straniero(u"a"_s, 12, u"DE ROSSI"_s), secondo = straniero(u"b"_s, 12, u"VERDI"_s);
  const QByteArray prima = contenuto(secondo);
  const QString dentro =
      u"12 DE ROSSI 12_DE ROSSI/12_DE ROSSI.orzaline, 3 NERI 3_NERI/3_NERI.orzaline, 13 VERDI "
      u"13_VERDI/13_VERDI.orzaline, "
      "6 X/../../ROSSI 6_X-..-..-ROSSI/6_X-..-..-ROSSI.orzaline"_s;
  EXPECT_EQ(importa({primo, secondo, straniero(u"c"_s, 3, u"NERI"_s), straniero(u"esce"_s, 6, u"X/../../ROSSI"_s)},
                    {codice_preso(13), importata}),
            dentro);
  for (const auto& [file, cod] :
       {std::pair{u"12_DE ROSSI/12_DE ROSSI.orzaline"_s, 12}, {u"13_VERDI/13_VERDI.orzaline"_s, 13}}) {
    EXPECT_EQ(Archivio(percorso(file)).righe(u"SELECT cod FROM anagrafe"_s).front()[u"cod"].toInt(), cod);
  }
  EXPECT_EQ(contenuto(secondo), prima);
  EXPECT_EQ(importa({primo, straniero(u"d"_s, 50, u"BLU"_s)}, {codice_preso(14, false)}), dentro)
      << "a No ends the whole import, without a word";
}

TEST_F(ProvaTrasferimento, AFileThatIsNoWholeClientLeavesTheArchiveAsItWas) {
  const QByteArray buono = contenuto(cliente("1900_ferri"));
  const QString monca = straniero(u"monca"_s, 5, u"ROSSI"_s);
  Archivio(monca).esegui(u"DROP TABLE dieta"_s);
  const QString altra = QDir(fuori).filePath(u"altra.orzaline"_s);
  Archivio(altra, u";PWD=altra", Archivio::Modo::nuovo).esegui_copione(u"CREATE TABLE anagrafe (cod, cognome)"_s);
  const QString assassino = straniero(u"assassino"_s, 8, u"ROSSI"_s);  // ends the engine that reads it
  Archivio(assassino).esegui_copione(
      u"PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = 'CREATE TABLE dieta AS SELECT 1' WHERE name = 'dieta'"_s);
  const QString buono_prima = straniero(u"prima"_s, 1, u"PRIMA"_s);
  const QStringList rifiutati{grezzo(u"vuoto"_s, {}),
                              grezzo(u"mozzo"_s, buono.chopped(1024)),
                              grezzo(u"guasto"_s, rovinato(buono, buono.size() - 500)),
                              altra,
                              monca,
                              assassino,
                              percorso(u"fc.jed"_s),
                              straniero(u"senza"_s, {}, u"ROSSI"_s),
                              straniero(u"anonimo"_s, 6, {}),
                              straniero(u"grande"_s, 40000, u"ROSSI"_s),
                              straniero(u"testo"_s, u"dodici"_s, u"ROSSI"_s),
                              QDir(fuori).filePath(u"manca.orzaline"_s)};
  const QStringList prima = cartelle();
  for (const QString& file : rifiutati) {
    EXPECT_EQ(importa({file, buono_prima}, {importazione_fallita}), QString()) << file.toStdString();
    EXPECT_EQ(cartelle(), prima) << file.toStdString();
  }
}

TEST_F(ProvaTrasferimento, AClientWhosePathTheEngineCannotOpenIsNotTakenIn) {
  const QString lungo = straniero(u"lungo"_s, 9, QString(238, u'L'));
  const QStringList prima = cartelle();
  static_cast<void>(importa({lungo}, {importazione_fallita}));
  EXPECT_EQ(cartelle(), prima);
}

TEST_F(ProvaTrasferimento, AFileWithoutAClientEndsTheImportAfterTheEarlierOnes) {
  const QString vuoto = straniero(u"b"_s, 2, u"B"_s);
  Archivio(vuoto).esegui(u"DELETE FROM anagrafe"_s);
  EXPECT_EQ(importa({straniero(u"a"_s, 1, u"A"_s), vuoto, straniero(u"c"_s, 3, u"C"_s)}, {}),
            u"1 A 1_A/1_A.orzaline"_s);
}

TEST_F(ProvaTrasferimento, WhatStandsWhereTheFolderWouldIsNotWrittenOver) {
  const QString altrui = percorso(u"4_NERI/4_NERI.orzaline"_s);
  scrivi(altrui, "di un altro");
  scrivi(percorso(u"8_BLU"_s), "un file, dove starebbe la cartella");
  EXPECT_EQ(importa({straniero(u"a"_s, 4, u"NERI"_s)}, {importata}), u"4 NERI 4_NERI/4_NERI.orzaline"_s);
  EXPECT_EQ(contenuto(altrui), "di un altro");
  schedario().esegui(u"DELETE FROM schedario"_s);
  EXPECT_NE(importa({straniero(u"b"_s, 8, u"BLU"_s)}, {importazione_fallita}), QString());
  schermata<Mdiorza>().cmdsopra[0]->click();
  EXPECT_TRUE(registro().isEmpty()) << "the archive removes the row of a copy that failed";
}

TEST_F(ProvaTrasferimento, AnExportIsTheFileByteForByte) {
  const int cod = registra(cliente("1900_ferri"));
  const QByteArray file = contenuto(iscritto(cod)->file);
  const QString meta = grezzo(u"2_FERRI"_s, "vecchio"), manca = percorso(u"manca"_s);
  const Atteso chiede = copiare(u"FERRI"_s, meta);
  const std::tuple<int, QString, std::deque<Atteso>, QByteArray> casi[]{
      {cod, fuori, {copiare(u"FERRI"_s, meta, false), esportazione_fallita}, "vecchio"},
      {cod, fuori + u'/', {chiede, esportato}, file},
      {99, fuori, {esportazione_fallita}, file},
      {cod, manca, {copiare(u"FERRI"_s, manca + u"/2_FERRI.orzaline"_s), esportazione_fallita}, file}};
  for (const auto& [chi, dove, attesi, dopo] : casi) {
    const Dialogo d(attesi);
    esporta_cliente(chi, dove);
    EXPECT_EQ(contenuto(meta), dopo);
  }
  QFile::remove(iscritto(cod)->file);
  const Dialogo d({esportazione_fallita});
  esporta_cliente(cod, fuori);
}

TEST_F(ProvaTrasferimento, TheScreenExportsTheChosenClientAndImportsTheChosenFiles) {
  EXPECT_FALSE(f.MSFlexGrid1->isEnabled() || f.Command2->isEnabled());
  EXPECT_EQ(f.Dir1->cartella(), QDir::homePath());
  EXPECT_EQ(f.Dir2->cartella(), QDir(percorso({})).absolutePath());
  straniero(u"a"_s, 1, u"ALBA"_s);
  straniero(u"b"_s, 2, u"BRUNI"_s);
  scrivi(QDir(fuori).filePath(u"lettera.txt"_s), "Gentile");
  ASSERT_TRUE(f.Dir2->vai(fuori) && f.Dir1->vai(fuori));
  EXPECT_EQ(f.File1->count(), 2);
  EXPECT_FALSE(f.Cmdimp->isEnabled());
  f.File1->selectAll();
  const QString meta = QDir(fuori).filePath(u"2_BRUNI.orzaline"_s);
  const Dialogo d({importata, copiare(u"BRUNI"_s, meta), esportato});
  f.Cmdimp->click();
  EXPECT_EQ(f.Cmdimp->text(), u"Importa"_s);
  EXPECT_FALSE(f.Animation->isVisible());
  ASSERT_EQ(f.MSFlexGrid1->rowCount(), 2);
  f.MSFlexGrid1->selectRow(1);
  f.Command2->click();
  EXPECT_EQ(contenuto(meta), contenuto(iscritto(2)->file));
}

TEST_F(ProvaTrasferimento, ADriveThatDoesNotAnswerLeavesTheListsWhereTheyWere) {
  const std::tuple<QComboBox*, Cartelle*, QString> casi[]{{f.Drive1, f.Dir1, u"Periferica non pronta !"_s},
                                                          {f.Drive2, f.Dir2, u"Dischetto non inserito !"_s}};
  for (const auto& [drive, dir, testo] : casi) {
    const int prima = drive->currentIndex();
    const QString dove = dir->cartella();
    drive->addItem(u"A:"_s, percorso(u"non_montato"_s));
    Dialogo d({{testo, {}}});
    scegli(drive, drive->count() - 1);
    EXPECT_EQ(drive->currentIndex(), prima);
    EXPECT_EQ(dir->cartella(), dove);
    drive->addItem(u"B:"_s, fuori);
    scegli(drive, drive->count() - 1);
    EXPECT_EQ(dir->cartella(), fuori);
  }
}

TEST_F(ProvaTrasferimento, FoldersAreWalkedDownAndUp) {
  QDir(fuori).mkpath(u"anno 2026/marzo"_s);
  ASSERT_TRUE(f.Dir1->vai(fuori));
  for (const auto& [nome, arrivo] :
       {std::pair{u"anno 2026"_s, u"/anno 2026"_s}, {u"marzo"_s, u"/anno 2026/marzo"_s}, {u"fuori"_s, u""_s}}) {
    for (int i = 0; i < f.Dir1->count(); ++i) {
      if (f.Dir1->item(i)->text().trimmed() != nome) continue;
      emit f.Dir1->itemActivated(f.Dir1->item(i));
      break;
    }
    EXPECT_EQ(f.Dir1->cartella(), fuori + arrivo);
  }
  EXPECT_FALSE(f.Dir1->vai(fuori + u"/manca"_s));
  EXPECT_EQ(f.Dir1->cartella(), fuori);
}
