#include "pratica.h"

#include "base/archivio.h"
#include "base/file.h"
#include "core/file_cliente.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/trasferimento.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;
using prove::fallito;

namespace pratica {

namespace {

QStringList file_in(const QString& cartella, const QStringList& modelli) {
  QStringList trovati;
  for (QDirIterator i(cartella, modelli, QDir::Files, QDirIterator::Subdirectories); i.hasNext();) trovati << i.next();
  return trovati;
}

struct Contenuto {
  int stato, dieta;
};

/// A client's file is whole and holds the client that it is to be.
Contenuto contenuto_del_cliente(const QString& file, int cod, const QString& cognome) {
  Archivio a(file, accesso, Archivio::Modo::sola_lettura);
  prove::sano(a, file);
  verifica_cliente(a);
  const Riga r = a.righe(u"SELECT cod, cognome, indirizzo FROM anagrafe"_s).front();
  if (r[u"cod"].toInt() != cod || r[u"cognome"].toString() != cognome) fallito(u"another client is in "_s + file);
  return {r[u"indirizzo"].toInt(), impronta_dieta(a)};
}

int stato_in_rubrica(const Cartelle& dove, const QString& cognome) {
  Archivio rubrica(QDir(dove.pratica).filePath(u"rubrica.jed"_s));
  const auto righe =
      rubrica.righe(u"SELECT indirizzo FROM Nomi JOIN Abitazione USING (id) WHERE cognome = ?"_s, cognome);
  if (righe.size() > 1) fallito(u"a client is twice in the address book"_s);
  return righe.empty() ? 0 : righe.front()[u"indirizzo"].toInt();
}

bool recente(const QString& file) {
  const QFileInfo f(file);
  return f.exists() && f.lastModified().toSecsSinceEpoch() > 0;
}

/// The document ends, and its table of contents stands where it says.
bool pdf_intero(const QByteArray& pdf) {
  const qsizetype fine = pdf.lastIndexOf("startxref\n");
  return pdf.startsWith("%PDF") && pdf.endsWith("%%EOF\n") && fine > 0 &&
         pdf.mid(pdf.mid(fine + 10).split('\n').first().toInt(), 4) == "xref";
}

void importa_esempi(const Cartelle& dove) {
  const prove::Figlio f = prove::avvia(dove.pratica, [&](const auto& racconta) {
    parla_con([](const Riquadro&) { return true; });
    importa_clienti(file_in(esempi(), {u"*.orzaline"_s}));
    for (const Iscritto& i : iscritti()) Archivio(i.file).esegui(u"UPDATE anagrafe SET indirizzo = '1'"_s);
    racconta(static_cast<int>(iscritti().size()));
  });
  if (prove::raccogli(f, 0).ultimo != 3) fallito(u"the sample clients do not come in"_s);
}

}  // namespace

QString esempi() { return QStringLiteral(CARTELLA_ARCHIVI "/esempi"); }

Cartelle::Cartelle() : pratica(radice.filePath(u"pratica"_s)), fuori(radice.filePath(u"fuori"_s)) {}

void Cartelle::invecchia() const {
  for (const QString& nome : file_in(fuori, {u"*"_s})) {
    QFile f(nome);
    if (!f.open(QIODevice::ReadWrite) ||
        !f.setFileTime(QDateTime::fromSecsSinceEpoch(0), QFileDevice::FileModificationTime))
      fallito(u"cannot be dated back: "_s + nome);
  }
}

int impronta_dieta(Archivio& cliente) {
  QByteArray tutto;
  for (const Riga& r : cliente.righe(u"SELECT * FROM dieta ORDER BY rowid"_s)) {
    for (const QString& campo : r.campi()) tutto += r[campo].toString().toUtf8() + ',';
  }
  return qChecksum(tutto);
}

void prepara(const Cartelle& dove) {
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI)), qui(dove.pratica);
  for (const QString& c : {dove.pratica, dove.fuori}) {
    QDir(c).removeRecursively();
    QDir().mkpath(c);
  }
  for (const QString& nome : origine.entryList({u"*.jed"_s, u"*.chk"_s})) {
    sostituisci_file(origine.filePath(nome), qui.filePath(nome));
  }
  Archivio login(qui.filePath(u"0_1.chk"_s));
  login.esegui(u"DELETE FROM login"_s);
  login.esegui(u"INSERT INTO login (nome_utente, password) VALUES ('dietista', ?)"_s, parola);
  importa_esempi(dove);
}

Trovato esamina(const Cartelle& dove, const QString& cognome) {
  for (const QString& file : file_in(dove.pratica, {u"*.jed"_s, u"*.chk"_s})) {
    Archivio a(file);  // for writing: what a kill left half done is taken back, as at the next start
    prove::sano(a, file);
  }
  Trovato t;
  QStringList file = file_in(dove.pratica, {u"*.orzaline"_s});
  Archivio registro(QDir(dove.pratica).filePath(u"fc.jed"_s));
  for (const Riga& r : registro.righe(u"SELECT * FROM schedario"_s)) {
    const QString suo = r[u"nome_files"].toString(), chi = r[u"cognome"].toString();
    if (!file.removeOne(suo)) {
      ++t.righe_senza_file;
      continue;
    }
    ++t.clienti;
    const auto [stato, dieta] = contenuto_del_cliente(suo, r[u"cod"].toInt(), chi);
    if (chi != cognome) continue;
    t.stato = stato;
    t.dieta = dieta;
    const QString fuori = QDir(dove.fuori).filePath(QFileInfo(suo).fileName());
    if (!QFile::exists(fuori)) continue;
    const int esportato = contenuto_del_cliente(fuori, r[u"cod"].toInt(), chi).stato;
    if (recente(fuori)) t.stato_esportato = esportato;
  }
  if (!file.isEmpty()) fallito(u"a client's file that is not in the registry: "_s + file.join(u' '));
  t.in_rubrica = stato_in_rubrica(dove, cognome);
  QFile pdf(dove.pdf());
  if (pdf.open(QIODevice::ReadOnly) && !pdf_intero(pdf.readAll())) fallito(u"the print is cut off"_s);
  t.stampa = recente(dove.pdf());
  return t;
}

}  // namespace pratica
