// The builder: it makes the program's stores anew, keeps the user's, refuses a faulty table by its place.
#include "base/archivio.h"
#include "base/liste.h"
#include "tabella_csv.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QByteArray contenuto(const QString& file) {
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void scrivi(const QString& file, const QByteArray& dati) {
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(dati);
}

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

QStringList copia_sorgenti(const QDir& dove) {
  const QDir origine(QStringLiteral(CARTELLA_SORGENTI));
  dove.mkpath(u"stores"_s);
  QStringList nomi;
  for (const QString& nome : QDir(origine.filePath(u"stores"_s)).entryList({u"*.sql"_s, u"*.csv"_s})) {
    QFile::copy(origine.filePath(u"stores/"_s + nome), dove.filePath(u"stores/"_s + nome));
    nomi << nome;
  }
  return nomi;
}

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
  EXPECT_EQ(ore[0][u"Ora"].toString(), u"00:00");
  EXPECT_EQ(ore[17][u"Ora"].toString(), u"08:30");
  EXPECT_EQ(ore[47][u"Ora"].toString(), u"23:30");
  EXPECT_FALSE(ore[47][u"Promemoria"].isNull());
}

TEST_F(Costruttore, FaultyTablesAreRefusedByTheirPlace) {
  const QTemporaryDir copia;
  const QDir stores(copia.filePath(u"stores"_s));
  ASSERT_FALSE(copia_sorgenti(QDir(copia.path())).isEmpty());
  ASSERT_EQ(costruisci(copia.path()), QString());
  const QByteArray sana = contenuto(posto(u"lifeins.jed"_s));
  struct Caso {
    int riga;
    const char *valori, *dice;
  };
  for (const Caso& k :
       {Caso{3, "146;;;;47,3;51.2;55.5", "riga 3, colonna piccolaF: «47,3» non è un numero"},
        Caso{4, "147.5;;;;47.3;51.2;55.5", "riga 4, colonna altezza: «147.5» non è un numero intero"},
        Caso{5, ";;;;47.3;51.2;55.5", "riga 5, colonna altezza: «» non è un numero"},
        Caso{6, "149;;;;47.3;51.2", "riga 6: 6 valori invece di 7"},
        Caso{7, "145;;;;47.3;51.2;55.5", "riga 7: Valori duplicati"},
        Caso{8, "151;;;;47.3;51.2;55.\xe9", "riga 8: il testo non è UTF-8"},
        Caso{1, "altezza;piccolaM;mediaM;grandeM;piccolaF;mediaF;grande", "colonna grandeF: la colonna manca"}}) {
    const QString file = stores.filePath(u"peso_ideale.csv"_s);
    const QByteArray buona = contenuto(file);
    QList<QByteArray> righe = buona.split('\n');
    righe[k.riga - 1] = k.valori;
    scrivi(file, righe.join('\n'));
    const QString detto = costruisci(copia.path());
    EXPECT_TRUE(detto.contains(u"peso_ideale.csv, riga "_s) && detto.contains(QString::fromUtf8(k.dice)))
        << k.dice << " / " << detto.toStdString();
    EXPECT_EQ(contenuto(posto(u"lifeins.jed"_s)), sana) << "the store in place stays";
    scrivi(file, buona);
  }
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

TEST_P(Esempi, BirthplaceAgreesWithTheFiscalCode) {
  const Riga a = una(u"anagrafe"_s);
  Archivio ccc(file(u"ccc.jed"_s));
  const auto province = ccc.righe(u"SELECT DISTINCT provincia FROM Comuni ORDER BY provincia"_s);
  const auto comuni = ccc.righe(u"SELECT * FROM Comuni WHERE provincia=?"_s,
                                province.at(a[u"prov_n"].toUInt())[u"provincia"].toString());
  const Riga& comune = comuni.at(a[u"comune_n"].toUInt());
  EXPECT_EQ(a[u"cod_fiscale"].toString().split(u' ').at(3), comune[u"codice"].toString());
  EXPECT_EQ(a[u"cap"].toString(), comune[u"cap"].toString());
}

TEST_P(Esempi, FoodsAreOfferedAndObligatoryOnesFitACourse) {
  EXPECT_EQ(una(u"checkAlimentiSpuntati"_s)[u"CheckPranzo"].toString() == u"5;",
            una(u"alimenti"_s)[u"pranzoFF"].toInt() < 15);
  EXPECT_EQ(dati.righe(u"SELECT DISTINCT pasto FROM alimenti_spuntati WHERE ok"_s).size(), 5U);
  const bool a_mano = una(u"alimenti"_s)[u"pranzoFF"].toInt() == 21;
  const auto segnati = dati.righe(u"SELECT * FROM alimenti_spuntati WHERE LV OR SD"_s);
  EXPECT_EQ(!segnati.empty(), a_mano);
  for (const Riga& r : segnati) {
    EXPECT_TRUE(r[u"cod4"].toInt() == 1 && r[u"cod3"].toInt() > 1 && r[u"cod3"].toInt() < 11) << r[u"cod1"].toInt();
  }
}

TEST_P(Esempi, CompanionsOfLightMealsAreAccepted) {
  // The draw looks a companion up among the accepted foods of the same meal, and fails without it.
  std::map<int, QSet<QString>> accettati;
  const auto righe = dati.righe(u"SELECT * FROM alimenti_spuntati WHERE ok AND pasto IN (1, 3, 5)"_s);
  for (const Riga& r : righe) accettati[r[u"pasto"].toInt()] << r[u"cod2"].toString();
  for (const Riga& r : righe) {
    for (const QString& a : elementi(r[u"abb_OK"].toString(), u',')) {
      EXPECT_TRUE(accettati[r[u"pasto"].toInt()].contains(a)) << r[u"cod1"].toInt() << " " << r[u"cod2"].toInt();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Clienti, Esempi, ::testing::Values("1300_bianchi", "1900_ferri", "2600_moretti"),
                         [](const auto& p) { return std::string("kcal_") + p.param; });
