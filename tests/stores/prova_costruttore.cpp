// The builder: it makes the program's stores anew, keeps the user's, refuses a faulty table by its place.
#include "attrezzi.h"
#include "base/archivio.h"
#include "base/liste.h"
#include "tabella_csv.h"

#include <QProcess>
#include <QTemporaryDir>
#include <map>

using namespace Qt::StringLiterals;

namespace {

class Costruttore : public ::testing::Test {
 protected:
  /// Runs the builder; empty where it went well, else what it says.
  QString costruisci(const QString& sorgenti) {
    QProcess p;
    p.start(QStringLiteral(COSTRUTTORE), {sorgenti, programma.path()});
    if (!p.waitForFinished()) return u"?"_s;
    const QString dice = QString::fromUtf8(p.readAllStandardError()).trimmed();
    return p.exitCode() == 0 ? QString() : u"exit "_s + QString::number(p.exitCode()) + u": "_s + dice;
  }
  QString posto(const QString& nome) const { return QDir(programma.path()).filePath(nome); }

  QTemporaryDir programma;
};

}  // namespace

TEST_F(Costruttore, KeepsTheStoresOfTheUserAndRenewsItsOwn) {
  const QString sorgenti = QStringLiteral(CARTELLA_SORGENTI);
  ASSERT_EQ(costruisci(sorgenti), QString());
  ASSERT_TRUE(QFile::rename(posto(u"Agenda.jed"_s), posto(u"agenda.jed"_s)));
  const QStringList utente{u"0_1.chk"_s, u"studio.jed"_s, u"fc.jed"_s, u"rubrica.jed"_s, u"agenda.jed"_s};
  Archivio(posto(u"fc.jed"_s)).esegui(u"INSERT INTO schedario VALUES (12, 'ROSSI', '/x')"_s);
  std::map<QString, QByteArray> prima;
  for (const QString& nome : utente) prima[nome] = contenuto(posto(nome));
  scrivi(posto(u"sa_dieta.jed"_s), "damaged");
  scrivi(posto(u"matrix.jed.tmp"_s), "left by a crash");

  ASSERT_EQ(costruisci(sorgenti), QString());
  for (const QString& nome : utente) EXPECT_EQ(contenuto(posto(nome)), prima[nome]) << nome.toStdString();
  EXPECT_FALSE(QFile::exists(posto(u"Agenda.jed"_s)));
  EXPECT_FALSE(Archivio(posto(u"sa_dieta.jed"_s)).righe(u"SELECT 1 FROM alimenti"_s).empty());
  EXPECT_TRUE(QDir(programma.path()).entryList({u"*.tmp*"_s}).isEmpty());
}

TEST_F(Costruttore, LaysTheStoresOfTheUserReadyForTheFirstStart) {
  ASSERT_EQ(costruisci(QStringLiteral(CARTELLA_SORGENTI)), QString());
  for (const auto& [archivio, tabelle] : {std::pair{u"0_1.chk"_s, u"login"_s},
                                          {u"fc.jed"_s, u"schedario"_s},
                                          {u"rubrica.jed"_s, u"Nomi Abitazione Ufficio Numtel"_s},
                                          {u"Agenda.jed"_s, u"Diario"_s}}) {
    Archivio a(posto(archivio));
    for (const QString& t : tabelle.split(u' '))
      EXPECT_TRUE(a.righe(u"SELECT * FROM "_s + t).empty()) << t.toStdString();
  }
  EXPECT_EQ(Archivio(posto(u"studio.jed"_s)).righe(u"SELECT * FROM studio"_s).size(), 1U);
  const auto ore = Archivio(posto(u"Agenda.jed"_s)).righe(u"SELECT * FROM Giorno"_s);
  ASSERT_EQ(ore.size(), 48U);
  EXPECT_EQ(ore[17][u"Ora"].toString() + ore[47][u"Ora"].toString(), u"08:3023:30");
  EXPECT_FALSE(ore[47][u"Promemoria"].isNull());
}

TEST_F(Costruttore, FaultyTablesAreRefusedByTheirPlace) {
  const QTemporaryDir copia;
  const QDir origine(QStringLiteral(CARTELLA_SORGENTI) + u"/stores"_s), stores(copia.filePath(u"stores"_s));
  stores.mkpath(u"."_s);
  for (const QString& nome : origine.entryList({u"*.sql"_s, u"*.csv"_s})) {
    QFile::copy(origine.filePath(nome), stores.filePath(nome));
  }
  ASSERT_EQ(costruisci(copia.path()), QString());
  const QByteArray sana = contenuto(posto(u"lifeins.jed"_s));
  const QString file = stores.filePath(u"peso_ideale.csv"_s);
  const QByteArray buona = contenuto(file);
  const std::tuple<int, const char*, const char*> guasti[]{
      {3, "146;;;;47,3;51.2;55.5", "riga 3, colonna piccolaF: «47,3» non è un numero"},
      {4, "147.5;;;;47.3;51.2;55.5", "riga 4, colonna altezza: «147.5» non è un numero intero"},
      {5, ";;;;47.3;51.2;55.5", "riga 5, colonna altezza: «» non è un numero"},
      {6, "149;;;;47.3;51.2", "riga 6: 6 valori invece di 7"},
      {7, "145;;;;47.3;51.2;55.5", "riga 7: Valori duplicati"},
      {8, "151;;;;47.3;51.2;55.\xe9", "riga 8: il testo non è UTF-8"},
      {1, "altezza;piccolaM;mediaM;grandeM;piccolaF;mediaF;grande", "colonna grandeF: la colonna manca"},
  };
  for (const auto& [riga, valori, dice] : guasti) {
    QList<QByteArray> righe = buona.split('\n');
    righe[riga - 1] = valori;
    scrivi(file, righe.join('\n'));
    const QString detto = costruisci(copia.path());
    EXPECT_TRUE(detto.contains(u"peso_ideale.csv, riga "_s) && detto.contains(QString::fromUtf8(dice)))
        << dice << " / " << detto.toStdString();
    EXPECT_EQ(contenuto(posto(u"lifeins.jed"_s)), sana) << "the store in place stays";
  }
  scrivi(file, buona);
  QFile::remove(stores.filePath(u"comuni.csv"_s));
  EXPECT_TRUE(costruisci(copia.path()).contains(u"comuni.csv"_s));
}

/// The sample clients as they are laid beside the program.
class Esempi : public ::testing::TestWithParam<const char*> {
 protected:
  static QString file(const QString& nome) { return QStringLiteral(CARTELLA_ARCHIVI) + u'/' + nome; }
  Riga una(const QString& tabella) { return dati.righe(u"SELECT * FROM "_s + tabella).at(0); }

  Archivio dati{file(u"esempi/"_s + QString::fromUtf8(GetParam()) + u".orzaline"_s), accesso,
                Archivio::Modo::sola_lettura};
};

TEST_P(Esempi, DaysAndMealsAddUp) {
  const Riga sport = una(u"sport"_s);
  std::map<QString, QStringList> giorno;
  for (const QString& campo : {u"protidi"_s, u"lipidi"_s, u"glucidi"_s, u"calorie_totali"_s, u"minuti"_s}) {
    giorno[campo] = elementi(sport[campo].toString(), u'+');
    ASSERT_EQ(giorno[campo].size(), 7) << campo.toStdString();
  }
  EXPECT_EQ(elementi(sport[u"attivitàgg"].toString(), u',').size(), 7);
  for (int d = 0; d < 7; ++d) {
    EXPECT_EQ(giorno[u"protidi"_s][d].toInt() + giorno[u"lipidi"_s][d].toInt() + giorno[u"glucidi"_s][d].toInt(),
              giorno[u"calorie_totali"_s][d].toInt())
        << d;
  }
  EXPECT_EQ(dati.righe(u"SELECT colazione+spuntino+pranzo+merenda+cena AS s FROM consumi"_s).at(0)[u"s"].toInt(), 100);
  const Riga dieta = una(u"dietologica"_s);
  EXPECT_EQ(static_cast<int>(dieta[u"prot"].toDouble() * 4 + 1e-9), giorno[u"protidi"_s][6].toInt());
  EXPECT_EQ(static_cast<int>(dieta[u"lip"].toDouble() * 9 + 1e-9), giorno[u"lipidi"_s][6].toInt());
}

INSTANTIATE_TEST_SUITE_P(Clienti, Esempi, ::testing::Values("1300_bianchi", "1900_ferri", "2600_moretti"),
                         [](const auto& p) { return std::string("kcal_") + p.param; });
