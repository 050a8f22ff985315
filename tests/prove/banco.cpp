#include "banco.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "core/errore_non_gestito.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/salva_carica.h"
#include "core/salvataggio.h"
#include "core/sessione.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <array>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace prove {

namespace {

constexpr int righe_di_dieta = 900;

using orologio = std::chrono::steady_clock;
orologio::time_point ultimo_esito = orologio::now();

std::vector<QString> file_di(const QString& cartella, const QStringList& modelli) {
  std::vector<QString> nomi;
  for (QDirIterator i(cartella, modelli, QDir::Files, QDirIterator::Subdirectories); i.hasNext();)
    nomi.push_back(i.next());
  return nomi;
}

/// Every row of the registry bears the path and the number of a file, and every file is a row's.
void verifica_schedario(const QString& cartella, std::vector<QString> clienti) {
  Archivio registro(QDir(cartella).filePath(u"fc.jed"_s));
  for (const Riga& r : registro.righe(u"SELECT cod, nome_files FROM schedario"_s)) {
    const QString file = r[u"nome_files"].toString();
    if (std::erase(clienti, file) != 1) fallito("a client went missing: "_L1 + file);
    if (QFileInfo(file).fileName().section(u'_', 0, 0) != r[u"cod"].toString())
      fallito("another client's number in the registry: "_L1 + file);
  }
  if (!clienti.empty()) fallito("a client's file that is not in the registry: "_L1 + clienti.front());
}

/// The state of client 1 in the address book, in two of its tables.
int stato_in_rubrica(const QString& cartella) {
  Archivio rubrica(QDir(cartella).filePath(u"rubrica.jed"_s));
  const auto stati = rubrica.righe(
      u"SELECT indirizzo AS stato FROM Nomi JOIN Abitazione USING (id) WHERE cognome = 'BIANCHI' "
      "UNION SELECT abitazione FROM Nomi JOIN NumTel USING (id) WHERE cognome = 'BIANCHI'"_s);
  if (stati.size() != 1) fallito(u"no state or a mixed one in the address book"_s);
  return stati.front()[u"stato"].toInt();
}

/// What the offscreen platform lacks is no news.
void taci(QtMsgType, const QMessageLogContext&, const QString& testo) {
  if (!testo.startsWith(u"This plugin does not support")) std::fprintf(stderr, "%s\n", qPrintable(testo));
}

[[noreturn]] void figlio(const QString& cartella, const Lavoro& lavoro, int racconto) {
  std::array<char*, 1> argomenti{const_cast<char*>("prova")};
  int n = 1;
  qInstallMessageHandler(taci);
  Applicazione app(n, argomenti.data());
  imposta_cartella(cartella);
  try {
    lavoro([racconto](int numero) { static_cast<void>(::write(racconto, &numero, sizeof numero)); });
  } catch (const std::exception&) {
    ::_exit(3);
  }
  ::_exit(0);
}

}  // namespace

void fallito(const QString& che) {
  std::fprintf(stderr, "FAILED: %s\n", qPrintable(che));
  std::quick_exit(1);  // screens that stand open outlive no static
}

void esito(const QString& che, int quante, const QString& risultato) {
  const double secondi = std::chrono::duration<double>(orologio::now() - ultimo_esito).count();
  ultimo_esito = orologio::now();
  std::printf("| %s | %d | %s | %.0f s |\n", qPrintable(che), quante, qPrintable(risultato), secondi);
}

int quante(int argc, char** argv, int posto, int predefinite) {
  return argc > posto ? std::atoi(argv[posto]) : predefinite;
}

int esegui(const std::function<void()>& prova) {
  ::qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir del_sistema;  // Qt speaks up in every child without one
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
    ::qputenv("XDG_RUNTIME_DIR", QFile::encodeName(del_sistema.path()));
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  try {
    prova();
  } catch (const std::exception& e) {
    fallito(QString::fromUtf8(e.what()));
  }
  return 0;
}

void sano(Archivio& a, const QString& file) {
  if (a.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"].toString() != u"ok")
    fallito("damaged: "_L1 + file);
  for (const Riga& t : a.righe(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s)) {
    static_cast<void>(a.righe(u"SELECT * FROM \"%1\""_s.arg(t[u"name"].toString())));
  }
}

void scrivi_stato(int stato) {
  Archivio dati(percorso(u"dati.tmp"_s));
  dati.transazione([&] {
    dati.esegui(u"UPDATE anagrafe SET indirizzo = ?, tel1 = ?"_s, QString::number(stato), QString::number(stato));
    dati.esegui(u"DELETE FROM dieta"_s);
    std::vector<QVariantList> righe(righe_di_dieta, {QString::number(stato)});
    dati.esegui_serie(u"INSERT INTO dieta (descr) VALUES (?)"_s, righe);
  });
}

int stato_di(const QString& file) {
  Archivio a(file, accesso, Archivio::Modo::sola_lettura);
  sano(a, file);
  const auto stati = a.righe(u"SELECT indirizzo AS stato FROM anagrafe UNION SELECT descr FROM dieta"_s);
  const auto righe = a.righe(u"SELECT count(*) AS n FROM dieta"_s).front()[u"n"].toInt();
  if (stati.size() != 1 || righe != righe_di_dieta) fallito("a mixed state: "_L1 + file);
  return stati.front()[u"stato"].toInt();
}

int verifica(const QString& cartella) {
  for (const QString& file : file_di(cartella, {u"*.jed"_s, u"*.chk"_s})) {
    Archivio a(file);  // for writing: what a kill left half done is taken back, as at the next start
    sano(a, file);
  }
  const std::vector<QString> clienti = file_di(cartella, {u"*.orzaline"_s});
  verifica_schedario(cartella, clienti);
  int stato = stato_in_rubrica(cartella);
  for (const QString& file : clienti) stato = std::min(stato, stato_di(file));
  return stato;
}

QString file_cliente(const QString& cartella) { return QDir(cartella).filePath(u"1_BIANCHI/1_BIANCHI.orzaline"_s); }

void prepara(const QString& cartella) {
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome :
       {u"matrix.jed"_s, u"fc.jed"_s, u"rubrica.jed"_s, u"studio.jed"_s, u"ccc.jed"_s, u"0_1.chk"_s}) {
    sostituisci_file(origine.filePath(nome), QDir(cartella).filePath(nome));
  }
  QDir(cartella).mkpath(u"1_BIANCHI"_s);
  sostituisci_file(origine.filePath(u"esempi/1300_bianchi.orzaline"_s), file_cliente(cartella));
  const Figlio f = avvia(cartella, [&](const auto& racconta) {
    apri_cliente(cartella);
    salva_stato(1);
    racconta(1);
  });
  const Fine fine = raccogli(f, 0);
  if (fine.ultimo != 1 || fine.esito != 0 || verifica(cartella) != 1) fallito(u"the first save did not come off"_s);
}

void apri_cliente(const QString& cartella) {
  sostituisci_file(file_cliente(cartella), percorso(u"dati.tmp"_s));
  prendi_banner();
}

void prendi_banner() {
  auto& m = schermata<Mdiorza>();
  m.Txtcod->setText(u"1"_s);
  m.Txtsoggetto->setText(u"BIANCHI ELENA"_s);
  m.qualeform.setText(u"8"_s);
  // Yes, save; and overwrite the client that the archive knows.
  parla_con([](const Riquadro& r) { return r.titolo != u"Attenzione"; });
}

void salva_stato(int stato) {
  scrivi_stato(stato);
  carica_cliente(0);  // the address book takes what the form shows
  salvataggio_generale();
}

Figlio avvia(const QString& cartella, const Lavoro& lavoro) {
  std::array<int, 2> tubo{};
  if (::pipe(tubo.data()) != 0) fallito(u"pipe"_s);
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::close(tubo[0]);
    figlio(cartella, lavoro, tubo[1]);
  }
  ::close(tubo[1]);
  return {pid, tubo[0]};
}

bool ascolta(const Figlio& f, int& numero) { return ::read(f.racconto, &numero, sizeof numero) == sizeof numero; }

Fine raccogli(const Figlio& f, int ultimo) {
  for (int numero = 0; ascolta(f, numero);) ultimo = numero;
  ::close(f.racconto);
  int esito = 0;
  ::waitpid(f.pid, &esito, 0);
  return {ultimo, esito};
}

}  // namespace prove
