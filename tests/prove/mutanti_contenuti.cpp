// Hostile contents behind the valid key, which is public: what anyone can write with the engine itself.
#include "mutanti.h"

#include "base/archivio.h"
#include "base/errori.h"

#include <QFile>
#include <QStringList>
#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace mutanti {

namespace {

/// The template's tables and their columns, read once.
const std::vector<std::pair<QString, QStringList>>& tabelle() {
  static const auto tutte = [] {
    std::vector<std::pair<QString, QStringList>> t;
    Archivio modello(QStringLiteral(CARTELLA_ARCHIVI "/matrix.jed"), accesso, Archivio::Modo::sola_lettura);
    for (const Riga& r : modello.righe(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s)) {
      QStringList campi;
      for (const Riga& c : modello.righe(u"PRAGMA table_info(\"%1\")"_s.arg(r[u"name"].toString())))
        campi << u'"' + c[u"name"].toString() + u'"';
      t.emplace_back(r[u"name"].toString(), campi);
    }
    return t;
  }();
  return tutte;
}

const QStringList valori{u"NULL"_s,
                         u"''"_s,
                         u"' '"_s,
                         u"0"_s,
                         u"-1"_s,
                         u"1"_s,
                         u"2"_s,
                         u"7"_s,
                         u"32767"_s,
                         u"32768"_s,
                         u"-32769"_s,
                         u"2147483648"_s,
                         u"9223372036854775807"_s,
                         u"1e308"_s,
                         u"-1e308"_s,
                         u"9e999"_s,
                         u"-9e999"_s,
                         u"5e-324"_s,
                         u"0.5"_s,
                         u"'nan'"_s,
                         u"'inf'"_s,
                         u"'1e308'"_s,
                         u"'1.000,5'"_s,
                         u"','"_s,
                         u"'+'"_s,
                         u"';'"_s,
                         u"'1,2,3,'"_s,
                         u"'-1,-1,-1,'"_s,
                         u"'99999,99999,'"_s,
                         u"'72+1e400+x+'"_s,
                         u"'0;1;999;-5;x;'"_s,
                         u"replace(hex(zeroblob(3000)), '00', '9,')"_s,
                         u"replace(hex(zeroblob(3000)), '00', '7+')"_s,
                         u"replace(hex(zeroblob(3000)), '00', '3;')"_s,
                         u"'31/02/2020'"_s,
                         u"'00/00/0000'"_s,
                         u"'99/99/9999'"_s,
                         u"'1/1/1'"_s,
                         u"'29/02/1900'"_s,
                         u"'1/1/32000'"_s,
                         u"'01/01/2003'"_s,
                         u"x''"_s,
                         u"x'00ff41'"_s,
                         u"zeroblob(100000)"_s,
                         u"replace(hex(zeroblob(500000)), '00', 'A ')"_s,
                         u"replace(hex(zeroblob(500000)), '00', char(10) || 'x')"_s,
                         u"hex(zeroblob(500000))"_s,
                         u"hex(zeroblob(2500))"_s,
                         u"CAST(x'410042' AS TEXT)"_s,
                         u"CAST(x'fffec080' AS TEXT)"_s,
                         u"CAST(x'eda080edb080f4908080' AS TEXT)"_s,
                         u"CAST(x'01070a0d1b7f' AS TEXT)"_s,
                         u"char(8238) || 'ROSSI'"_s,
                         u"'%1%2%n%s%99'"_s,
                         u"'<b>x</b><img src=\"file:///dev/zero\">'"_s,
                         u"'<table>' || hex(zeroblob(5000))"_s,
                         u"'M'"_s,
                         u"'F'"_s,
                         u"'/dev/zero'"_s,
                         u"'/'"_s,
                         u"'.'"_s,
                         u"random()"_s,
                         u"randomblob(40)"_s};

const QStringList nomi{u"'../../fuori/X'"_s,
                       u"'/tmp/X'"_s,
                       u"'..'"_s,
                       u"'.'"_s,
                       u"'../'"_s,
                       u"'X/../../Y'"_s,
                       u"''"_s,
                       u"' '"_s,
                       u"'A\\B'"_s,
                       u"'ROSSI'"_s,
                       u"'DE ROSSI'"_s,
                       u"'rossi '"_s,
                       u"NULL"_s,
                       u"x'2e2e2f41'"_s,
                       u"CAST(x'2e2e2f41' AS TEXT)"_s,
                       u"CAST(x'410042' AS TEXT)"_s,
                       u"CAST(x'412f0042' AS TEXT)"_s,
                       u"CAST(x'fffec080' AS TEXT)"_s,
                       u"CAST(x'c0af2e2ec0af' AS TEXT)"_s,
                       u"CAST(x'010a0d1b7f' AS TEXT)"_s,
                       u"hex(zeroblob(2500))"_s,
                       u"hex(zeroblob(115))"_s,
                       u"hex(zeroblob(118))"_s,
                       u"hex(zeroblob(125))"_s,
                       u"hex(zeroblob(500000))"_s,
                       u"12"_s,
                       u"1e308"_s,
                       u"'*?<>|:\"'"_s,
                       u"char(8238) || 'A'"_s,
                       u"'.orzaline'"_s,
                       u"'~'"_s,
                       u"'CON'"_s,
                       u"'<img src=\"/dev/zero\">'"_s,
                       u"char(65295) || 'A'"_s};

const QStringList numeri{u"1"_s,     u"2"_s,     u"3"_s,       u"0"_s,     u"-1"_s,   u"-32768"_s,
                         u"32767"_s, u"32768"_s, u"1e308"_s,   u"9e999"_s, u"NULL"_s, u"'12'"_s,
                         u"'x'"_s,   u"''"_s,    u"x'3132'"_s, u"2.5"_s,   u"77"_s,   u"'1.000'"_s};

using Bersaglio = std::pair<QString, QStringList>;
using Arma = QStringList (*)(Caso&, const Bersaglio&);

/// A value in all rows of a column; one of a megabyte in the first row alone.
QString ovunque(const Bersaglio& t, const QString& campo, const QString& valore) {
  const QString solo_la_prima = u" WHERE rowid = (SELECT min(rowid) FROM %1)"_s.arg(t.first);
  return u"UPDATE %1 SET %2 = %3"_s.arg(t.first, campo, valore) +
         (valore.contains(u"00000)") ? solo_la_prima : QString());
}

QString infinita() { return u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "_s; }

/// The table with its columns defined otherwise, and its rows poured in as far as they fit.
QStringList rifatta(const Bersaglio& t, const QStringList& campi, const QString& coda = {}) {
  return {u"ALTER TABLE %1 RENAME TO vecchia"_s.arg(t.first),
          u"CREATE TABLE %1 (%2) %3"_s.arg(t.first, campi.join(u", "), coda),
          u"INSERT INTO %1 SELECT * FROM vecchia"_s.arg(t.first), u"DROP TABLE vecchia"_s};
}

QStringList tutti_uguali(const Bersaglio& t, const QString& valore) {
  return {u"UPDATE %1 SET %2 = %3"_s.arg(t.first, t.second.join(u" = %1, "_s.arg(valore)), valore)};
}

/// What defines a column or a table, where the file's author could hide work.
QStringList con_trucco(Caso& c, const Bersaglio& t) {
  QStringList campi = t.second;
  QString& campo = campi[c.sotto(campi.size())];
  static const QStringList trucchi{u" CHECK (length(hex(zeroblob(400000000))) > 0)"_s,
                                   u" DEFAULT (hex(zeroblob(400000000)))"_s,
                                   u" NOT NULL"_s,
                                   u" UNIQUE"_s,
                                   u" COLLATE RTRIM"_s,
                                   u" REFERENCES dieta(cod1)"_s,
                                   u" VARCHAR(20)"_s,
                                   u" BLOB"_s,
                                   u" CHECK (0)"_s,
                                   u" INTEGER PRIMARY KEY"_s,
                                   u" PRIMARY KEY ON CONFLICT ROLLBACK"_s};
  campo += c.uno_di(trucchi);
  return rifatta(t, campi, c.uno_su(3) ? u"WITHOUT ROWID"_s : QString());
}

QStringList vista(Caso& c, const Bersaglio& t) {
  const QString uno = u"SELECT 5 AS "_s + t.second.join(u", 5 AS "_s),
                tutte = infinita() + u"SELECT i AS "_s + t.second.join(u", i AS "_s);
  const QString corpo = c.uno_di(QStringList{uno, tutte + u" FROM n"_s, tutte + u" FROM n WHERE i < 0"_s,
                                             u"SELECT * FROM "_s + t.first, u"SELECT * FROM dieta, dieta, dieta"_s});
  QStringList s{u"DROP TABLE "_s + t.first};
  if (c.uno_su(2)) return s << u"CREATE VIEW %1 AS %2"_s.arg(t.first, corpo);
  // A view that the list of the schema calls a table.
  return QStringList{u"PRAGMA writable_schema = ON"_s,
                     u"UPDATE sqlite_master SET sql = 'CREATE VIEW %1 AS %2' WHERE name = '%1'"_s.arg(t.first, corpo)};
}

QStringList grilletto(Caso& c, const Bersaglio& t) {
  const QString corpo = c.uno_di(QStringList{
      u"DELETE FROM dieta"_s, u"UPDATE anagrafe SET cod = 99, cognome = '../X'"_s, u"SELECT RAISE(FAIL, 'no')"_s,
      u"INSERT INTO dieta (descr) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n"_s,
      u"SELECT hex(zeroblob(400000000))"_s});
  const QString evento = c.uno_di(QStringList{u"UPDATE"_s, u"INSERT"_s, u"DELETE"_s});
  return {u"CREATE TRIGGER g AFTER %1 ON %2 BEGIN %3; END"_s.arg(evento, c.uno_su(2) ? u"anagrafe"_s : t.first, corpo)};
}

QStringList indice(Caso& c, const Bersaglio& t) {
  const QString campo = c.uno_di(t.second);
  return {c.uno_di(QStringList{u"CREATE UNIQUE INDEX u ON %1 (%2)"_s,
                               u"CREATE INDEX p ON %1 (%2) WHERE %2 LIKE '%a%b%c%d%'"_s,
                               u"CREATE INDEX e ON %1 (hex(%2))"_s,
                               u"CREATE INDEX z ON %1 (length(hex(zeroblob(200000))), %2)"_s})
              .arg(t.first, campo)};
}

/// The engine's own list of the schema, written by hand. "CREATE TABLE … AS SELECT" is left out: SQLite 3.15 ends
/// there, by a null pointer, as soon as any statement makes it read the schema. The import tries a file in a child
/// process first and has a test of its own; a file put into the archive by hand is not tried.
QStringList schema(Caso& c, const Bersaglio& t) {
  const QString radice = QString::number(c.sotto(60));
  const QString cosa = c.uno_di(
      QStringList{u"rootpage = "_s + radice,
                  u"rootpage = NULL"_s,
                  u"rootpage = 99999999"_s,
                  u"rootpage = -5"_s,
                  u"rootpage = 1"_s,
                  u"sql = NULL"_s,
                  u"sql = ''"_s,
                  u"sql = 'DELETE FROM dieta'"_s,
                  u"sql = replace(sql, 'INTEGER', 'TEXT')"_s,
                  u"sql = replace(sql, ',', ', x')"_s,
                  u"sql = sql || hex(zeroblob(500000))"_s,
                  u"sql = replace(sql, 'cod', 'cog')"_s,
                  u"sql = 'CREATE VIRTUAL TABLE %1 USING fts3(a)'"_s.arg(t.first),
                  u"sql = 'CREATE TABLE %1 (' || replace(hex(zeroblob(3000)), '00', 'a,') || 'z)'"_s.arg(t.first),
                  u"name = 'sqlite_master'"_s,
                  u"name = NULL"_s,
                  u"name = 'dieta'"_s,
                  u"type = 'index'"_s,
                  u"type = 'view'"_s,
                  u"tbl_name = 'x'"_s,
                  u"sql = CAST(x'435245' AS TEXT)"_s,
                  u"sql = sql || ' WITHOUT ROWID'"_s});
  return {u"PRAGMA writable_schema = ON"_s, u"UPDATE sqlite_master SET %1 WHERE name = '%2'"_s.arg(cosa, t.first)};
}

QStringList molte_righe(Caso& c, const Bersaglio& t) {
  const QString quante = QString::number(c.uno_di(std::array{2, 20, 900, 4000}));
  QStringList v;
  for (qsizetype i = 0; i < t.second.size(); ++i) v << (c.uno_su(2) ? u"i"_s : c.uno_di(valori.first(31)));
  return {
      u"INSERT INTO %1 WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) SELECT %3 FROM n"_s
          .arg(t.first, quante, v.join(u", "))};
}

const std::array<Arma, 22> armi{
    [](Caso& c, const Bersaglio& t) { return QStringList{ovunque(t, c.uno_di(t.second), c.uno_di(valori))}; },
    [](Caso& c, const Bersaglio& t) { return QStringList{ovunque(t, c.uno_di(t.second), c.uno_di(valori))}; },
    [](Caso& c, const Bersaglio& t) {
      QStringList s;
      for (const QString& campo : t.second) s << ovunque(t, campo, c.uno_di(valori));
      return s;
    },
    [](Caso& c, const Bersaglio& t) {
      const QString valore = c.uno_di(valori.first(31)), resto = QString::number(c.sotto(7));
      return QStringList{ovunque(t, c.uno_di(t.second), valore) + u" WHERE rowid % 7 = "_s + resto};
    },
    [](Caso& c, const Bersaglio& t) { return tutti_uguali(t, c.uno_di(valori.first(31))); },
    [](Caso&, const Bersaglio& t) { return tutti_uguali(t, u"NULL"_s); },
    [](Caso& c, const Bersaglio&) { return QStringList{u"UPDATE anagrafe SET cognome = "_s + c.uno_di(nomi)}; },
    [](Caso& c, const Bersaglio&) { return QStringList{u"UPDATE anagrafe SET cognome = "_s + c.uno_di(nomi)}; },
    [](Caso& c, const Bersaglio&) { return QStringList{u"UPDATE anagrafe SET cod = "_s + c.uno_di(numeri)}; },
    [](Caso& c, const Bersaglio&) { return QStringList{u"UPDATE anagrafe SET foto = "_s + c.uno_di(nomi)}; },
    [](Caso&, const Bersaglio& t) { return QStringList{u"DELETE FROM "_s + t.first}; },
    [](Caso&, const Bersaglio& t) { return QStringList{u"INSERT INTO %1 DEFAULT VALUES"_s.arg(t.first)}; },
    [](Caso&, const Bersaglio& t) { return QStringList{u"INSERT INTO %1 SELECT * FROM %1"_s.arg(t.first)}; },
    molte_righe,
    [](Caso&, const Bersaglio& t) { return QStringList{u"DROP TABLE "_s + t.first}; },
    [](Caso& c, const Bersaglio& t) { return rifatta(t, t.second.first(c.sotto(t.second.size()) + 1)); },
    [](Caso& c, const Bersaglio& t) {
      return rifatta(t, QStringList(t.second).replaceInStrings(c.uno_di(t.second), u"\"altro nome\""_s));
    },
    con_trucco,
    vista,
    grilletto,
    indice,
    schema};

}  // namespace

QStringList contenuto(Caso& caso) {
  // In the order of the list: what would run at every later statement comes last.
  std::multiset<qsizetype> scelte;
  for (auto n = caso.sotto(3) + 1; n > 0; --n) scelte.insert(caso.sotto(std::ssize(armi)));
  QStringList s;
  for (const qsizetype i : scelte) {
    s += armi[static_cast<std::size_t>(i)](caso, caso.uno_su(4) ? tabelle().front() : caso.uno_di(tabelle()));
  }
  return s;
}

void esegui_copione(const QByteArray& cliente, const QStringList& istruzioni, const QString& file) {
  const QString provvisorio = file + u".tmp"_s;  // the engine writes such a file without waiting for the disk
  scrivi(provvisorio, cliente);
  {
    Archivio a(provvisorio);
    a.esegui_copione(u"PRAGMA ignore_check_constraints = ON; BEGIN"_s);
    for (const QString& i : istruzioni) prosegui([&] { a.esegui_copione(i); });
    prosegui([&] { a.esegui_copione(u"COMMIT"_s); });
  }
  QFile::rename(provvisorio, file);
}

}  // namespace mutanti
