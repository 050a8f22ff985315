#include "base/archivio.h"

#include "base/errori.h"
#include "base/file.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QString& cartella() {
  static QString c;
  return c;
}

// Codes of the engine, which its C header would give; that header and SQLiteCpp's cannot stand in one file.
enum Codice {
  permesso = 3,
  occupato = 5,
  bloccato = 6,
  sola_lettura = 8,
  io = 10,
  corrotto = 11,
  pieno = 13,
  non_apribile = 14,
  vincolo = 19,
  non_archivio = 26
};

[[noreturn]] void errore_di(const SQLite::Exception& e, const QString& file) {
  const std::string nome = QFileInfo(file).fileName().toStdString();
  const std::string dice = e.what();
  switch (e.getErrorCode()) {
    case permesso:
    case non_apribile: throw Errore(3051, "Impossibile aprire il file '" + nome + "'.");
    case occupato:
    case bloccato: throw Errore(3218, "Impossibile aggiornare, il file '" + nome + "' è bloccato.");
    case sola_lettura: throw Errore(3027, "Impossibile aggiornare, il file '" + nome + "' è di sola lettura.");
    case io: throw Errore(3043, "Errore del disco sul file '" + nome + "'.");
    case pieno: throw Errore(3026, "Spazio su disco insufficiente per '" + nome + "'." + salvati_intatti);
    case vincolo: throw Errore(3022, "Valori duplicati o non ammessi in '" + nome + "'.");
    case corrotto:
    case non_archivio:
      throw Errore(3343, "Il file '" + nome + "' è danneggiato, non è un archivio o ha un'altra password.");
    default: break;
  }
  const std::string tabella = "no such table: ";
  if (dice.starts_with(tabella)) {
    throw Errore(3078, "Tabella '" + dice.substr(tabella.size()) + "' non trovata in '" + nome + "'.");
  }
  // What the engine says of a failed read that it can tell no more of.
  if (dice.starts_with("SQL logic error")) throw Errore(3043, "Errore del disco sul file '" + nome + "'.");
  throw Errore(3075, "Errore in '" + nome + "': " + dice);
}

/// The engine's raw key for a connect string. A password's own derivation would cost 39 ms at every opening.
const std::string& chiave(QStringView connessione) {
  static std::map<QString, std::string> note;
  std::string& k = note[connessione.toString()];
  if (k.empty()) {
    QString password;
    for (const QStringView voce : connessione.split(u';')) {
      if (voce.startsWith(u"PWD=", Qt::CaseInsensitive)) password = voce.mid(4).toString();
    }
    const QByteArray h =
        QCryptographicHash::hash(u"orzaline\n"_s.toUtf8() + password.toUtf8(), QCryptographicHash::Sha256);
    k = h.toHex().toStdString();
  }
  return k;
}

void lega(SQLite::Statement& s, const QVariantList& valori) {
  int i = 0;
  for (const QVariant& v : valori) {
    ++i;
    switch (v.typeId()) {
      case QMetaType::UnknownType:
      case QMetaType::Nullptr: s.bind(i); break;
      case QMetaType::Float:
      case QMetaType::Double: s.bind(i, v.toDouble()); break;
      case QMetaType::QString: s.bind(i, v.toString().toStdString()); break;
      default: s.bind(i, static_cast<std::int64_t>(v.toLongLong())); break;
    }
  }
}

QVariant valore_di(const SQLite::Column& c) {
  if (c.isNull()) return {};
  if (c.isInteger()) return QVariant(static_cast<qlonglong>(c.getInt64()));
  if (c.isFloat()) return c.getDouble();
  return QString::fromUtf8(c.getText(), c.getBytes());
}

/// The program has one thread: the engine's own locks between threads are left out.
int modo_di_apertura(Archivio::Modo modo) {
  if (modo == Archivio::Modo::nuovo) return SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX;
  return SQLite::OPEN_NOMUTEX | (modo == Archivio::Modo::sola_lettura ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE);
}

/// A file that is missing or empty would pass for a new store with the engine; it is none. What is no file at all is
/// not opened: a pipe would wait for its writer for ever.
void pretendi_file(const QString& file, Archivio::Modo modo) {
  const QFileInfo f(file);
  const std::string nome = f.fileName().toStdString();
  if (modo == Archivio::Modo::nuovo) {
    if (f.exists()) throw Errore(3204, "Il file '" + nome + "' esiste già.");
    return;
  }
  if (!f.exists()) throw Errore(3024, "Impossibile trovare il file '" + f.absoluteFilePath().toStdString() + "'.");
  if (!f.isFile()) throw Errore(3051, "Impossibile aprire il file '" + nome + "'.");
  if (f.size() == 0) throw Errore(3343, "Il file '" + nome + "' è vuoto: non è un archivio.");
}

}  // namespace

QString percorso(const QString& nome) {
  const QDir d(cartella().isEmpty() ? QCoreApplication::applicationDirPath() : cartella());
  if (nome.compare(u"agenda.jed", Qt::CaseInsensitive) == 0 && !d.exists(nome)) {
    for (const QString& altro : {u"Agenda.jed"_s, u"agenda.jed"_s}) {
      if (d.exists(altro)) return d.filePath(altro);
    }
  }
  return d.filePath(nome);
}

void imposta_cartella(const QString& c) { cartella() = c; }

Riga::Riga(std::shared_ptr<const QStringList> nomi, std::vector<QVariant> valori)
    : nomi_(std::move(nomi)), valori_(std::move(valori)) {}

const QVariant& Riga::operator[](QStringView campo) const {
  for (qsizetype i = 0; i < nomi_->size(); ++i) {
    if ((*nomi_)[i].compare(campo, Qt::CaseInsensitive) == 0) return valori_[static_cast<std::size_t>(i)];
  }
  throw Errore(3265, "Elemento non trovato in questo insieme: " + campo.toString().toStdString());
}

struct Archivio::Dentro {
  QString file;
  SQLite::Database base;
  bool in_transazione = false;
};

Archivio::Archivio(const QString& file, QStringView connessione, Modo modo) {
  pretendi_file(file, modo);
  try {
    d_.reset(new Dentro{file, SQLite::Database(file.toStdString(), modo_di_apertura(modo), 2000)});
    // The password is public: guarding the memory that holds it would only cost time.
    d_->base.exec("PRAGMA cipher_memory_security = OFF");
    d_->base.exec("PRAGMA key = \"x'" + chiave(connessione) + "'\"");
    d_->base.exec("PRAGMA cipher_compatibility = 3");
    // The working copy dies with its session: a killed process must leave it whole, a power cut need not.
    if (file.endsWith(u".tmp")) d_->base.exec("PRAGMA synchronous = OFF");
    d_->base.execAndGet("SELECT count(*) FROM sqlite_master");
  } catch (const SQLite::Exception& e) {
    errore_di(e, file);
  }
}

Archivio::~Archivio() = default;
Archivio::Archivio(Archivio&&) noexcept = default;
Archivio& Archivio::operator=(Archivio&&) noexcept = default;

int Archivio::esegui_con(const QString& sql, const QVariantList& valori) { return esegui_serie(sql, {valori}); }

int Archivio::esegui_serie(const QString& sql, const std::vector<QVariantList>& serie) {
  try {
    SQLite::Statement s(d_->base, sql.toStdString());
    int righe = 0;
    for (const QVariantList& valori : serie) {
      lega(s, valori);
      righe += s.exec();
      s.reset();
    }
    return righe;
  } catch (const SQLite::Exception& e) {
    errore_di(e, d_->file);
  }
}

void Archivio::esegui_copione(const QString& sql) {
  try {
    d_->base.exec(sql.toStdString());
  } catch (const SQLite::Exception& e) {
    errore_di(e, d_->file);
  }
}

std::vector<Riga> Archivio::righe_con(const QString& sql, const QVariantList& valori) {
  try {
    SQLite::Statement s(d_->base, sql.toStdString());
    lega(s, valori);
    auto nomi = std::make_shared<QStringList>();
    for (int i = 0; i < s.getColumnCount(); ++i) *nomi << QString::fromUtf8(s.getColumnName(i));
    std::vector<Riga> righe;
    while (s.executeStep()) {
      std::vector<QVariant> valori_riga;
      valori_riga.reserve(static_cast<std::size_t>(s.getColumnCount()));
      for (int i = 0; i < s.getColumnCount(); ++i) valori_riga.push_back(valore_di(s.getColumn(i)));
      righe.emplace_back(nomi, std::move(valori_riga));
    }
    return righe;
  } catch (const SQLite::Exception& e) {
    errore_di(e, d_->file);
  }
}

std::int64_t Cursore::intero(int colonna) const {
  return static_cast<SQLite::Statement*>(istruzione_)->getColumn(colonna).getInt64();
}

double Cursore::numero(int colonna) const {
  return static_cast<SQLite::Statement*>(istruzione_)->getColumn(colonna).getDouble();
}

QString Cursore::testo(int colonna) const {
  const SQLite::Column c = static_cast<SQLite::Statement*>(istruzione_)->getColumn(colonna);
  const char* t = c.getText();
  return QString::fromUtf8(t, c.getBytes());
}

void Archivio::scorri(const QString& sql, const std::function<void(const Cursore&)>& riga) {
  try {
    SQLite::Statement s(d_->base, sql.toStdString());
    while (s.executeStep()) riga(Cursore(&s));
  } catch (const SQLite::Exception& e) {
    errore_di(e, d_->file);
  }
}

void Archivio::transazione(const std::function<void()>& scritture) {
  if (d_->in_transazione) return scritture();
  const QScopedValueRollback fino_in_fondo(d_->in_transazione, true);
  try {
    SQLite::Transaction t(d_->base);
    scritture();
    t.commit();
  } catch (const SQLite::Exception& e) {
    errore_di(e, d_->file);
  }
}

qint64 Archivio::ultimo_id() const { return d_->base.getLastInsertRowid(); }
