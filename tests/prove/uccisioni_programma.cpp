// The whole program killed at random moments of its work: what it told is there, every file is whole, and the next
// start works without a question.
//
//   prova_uccisioni_programma [kills]      (3 by default)
//
// A child starts the program, recalls a client from the archive and then, in random order, saves, exports, imports,
// elaborates a week and prints to a file; another child is the next start.
#include "base/archivio.h"
#include "base/file.h"
#include "core/aspetto.h"
#include "core/dialoghi.h"
#include "core/file_cliente.h"
#include "core/formi_e.h"
#include "core/formsched.h"
#include "core/frmlogin.h"
#include "core/lingua.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "core/trasferimento.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "pratica.h"
#include "reports/formstampe.h"

#include <unistd.h>
#include <QApplication>
#include <QDir>
#include <QPrinter>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <optional>
#include <random>
#include <set>

using namespace Qt::StringLiterals;
using prove::fallito;

namespace {

const QString cognome = u"BIANCHI"_s;
constexpr std::size_t troppi_clienti = 8;
std::mt19937 caso(1);

/// What the working child tells: the kind of event times a million, and the state or the diet's mark.
enum Evento { salvato = 1, esportato, importato, stampato, dieta_scritta, dieta_salvata, imprevisto };
constexpr int milione = 1'000'000;

using Racconto = std::function<void(int)>;

// ---- in a child

void respira() {
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void clic(QAbstractButton* b) {
  if (!b->isEnabled()) fallito(u"cannot be clicked: "_s + b->objectName());
  b->click();
  respira();
}

/// As the program's main does, up to the open window.
void entra() {
  imposta_lingua();
  imposta_aspetto(*static_cast<QApplication*>(QCoreApplication::instance()));
  mostra<frmLogin>();
  respira();
  auto& login = schermata<frmLogin>();
  login.txtPassword->setText(pratica::parola);
  clic(login.cmdOK);
  if (!caricata<Mdiorza>()) fallito(u"the login does not lead in"_s);
}

Formsched& archivio() {
  clic(schermata<Mdiorza>().cmdsopra[0]);
  auto& s = schermata<Formsched>();
  s.SSTabschedario->setCurrentIndex(scheda_tutti);
  respira();
  return s;
}

void richiama(const QString& chi) {
  auto& s = archivio();
  int riga = s.Tabella->rowCount() - 1;
  while (riga >= 0 && s.testo(riga, 2) != chi) --riga;
  if (riga < 0) fallito(u"is not in the archive: "_s + chi);
  s.scegli_riga(riga);
  clic(s.Command10[2]);
  if (schermata<Mdiorza>().qualeform.text() != u"0") fallito(u"is not recalled: "_s + chi);
}

int impronta_di_lavoro() {
  Archivio dati(percorso(u"dati.tmp"_s), accesso, Archivio::Modo::sola_lettura);
  return pratica::impronta_dieta(dati);
}

struct Lavoratore {
  const pratica::Cartelle& dove;
  int stato;

  void salva(const Racconto& racconta) {
    auto& m = schermata<Mdiorza>();
    clic(m.cmdsopra[1]);
    schermata<Formanag>().Txtind->setText(QString::number(stato));
    clic(m.Command2[1]);
    racconta(salvato * milione + stato++);
  }
  void esporta() const {
    clic(schermata<Mdiorza>().cmdsopra[9]);
    const auto& f = schermata<Formi_e>();
    for (int r = 0; r < f.MSFlexGrid1->rowCount(); ++r) {
      if (f.MSFlexGrid1->item(r, 1)->text() == cognome) f.MSFlexGrid1->selectRow(r);
    }
    f.Dir1->vai(dove.fuori);
    clic(f.Command2);
    clic(f.Command3);
  }
  void importa() const {
    clic(schermata<Mdiorza>().cmdsopra[9]);
    const auto& f = schermata<Formi_e>();
    f.Dir2->vai(pratica::esempi());
    f.File1->setCurrentRow(1);  // not BIANCHI
    clic(f.Cmdimp);
    clic(f.Command3);
  }
  /// The box tells of the working copy, the general save after it brings the diet into the client's file.
  static void elabora(const Racconto& racconta) {
    clic(schermata<Mdiorza>().cmdsopra[5]);
    const auto& f = schermata<Formelabora>();
    f.Combo1->setCurrentIndex(0);
    clic(f.test);
    clic(f.Command5[0]);
    racconta(dieta_salvata * milione + impronta_di_lavoro());
  }
  void stampa(const Racconto& racconta) const {
    esterno().imposta_stampante = [this](QPrinter& p) {
      p.setOutputFileName(dove.pdf());
      return true;
    };
    schermata<Mdiorza>().stampe->findChild<QAction*>(u"menudp"_s)->trigger();
    respira();
    const auto& f = schermata<Formstampe>();
    clic(f.Cmdchar[1]);
    clic(f.Cmdchar[2]);
    racconta(stampato * milione);
  }
};

struct Risposta {
  QStringView inizio;
  bool sì;
  int evento;  // 0 where the box tells nothing that must last
};
constexpr Risposta risposte[]{
    {u"Salvataggio generale degli archivi", true, 0},
    {u"Il paziente è già presente in archivio.", false, 0},  // overwritten
    {u"Ho difficoltà ad elaborare", true, 0},
    {u"Errori KCAL", true, 0},
    {u"Attenzione: la difficoltà di elaborare", true, 0},
    {u"Dieta salvata", true, dieta_scritta},
    {u"La dieta precedentemente salvata è stata caricata", true, 0},
    {u"Attenzione: il codice del cliente che si è deciso di importare esiste già.", true, 0},
    {u"Si è deciso di copiare i dati del cliente", true, 0},
    {u"Importazione riuscita !", true, importato},
    {u"File esportato con successo !", true, esportato},
};

void lavora(const pratica::Cartelle& dove, int stato, std::uint32_t seme, const Racconto& racconta) {
  Lavoratore l{dove, stato};
  int in_archivio = stato - 1;  // what an export takes with it
  parla_con([&](const Riquadro& r) {
    for (const Risposta& a : risposte) {
      if (!r.testo.startsWith(a.inizio)) continue;
      if (a.evento) racconta(a.evento * milione + (a.evento == dieta_scritta ? impronta_di_lavoro() : in_archivio));
      return a.sì;
    }
    std::fprintf(stderr, "unexpected box: %s | %s\n", qPrintable(r.titolo), qPrintable(r.testo));
    racconta(imprevisto * milione);
    return false;
  });
  entra();
  richiama(cognome);
  std::vector<std::function<void()>> passi{[&] {
                                             l.salva(racconta);
                                             in_archivio = l.stato - 1;
                                           },
                                           [&] { l.esporta(); }, [&] { l.importa(); },
                                           [&] { Lavoratore::elabora(racconta); }, [&] { l.stampa(racconta); }};
  passi.push_back(passi.front());
  std::ranges::shuffle(passi, std::mt19937(seme));
  for (const auto& p : passi) p();
}

/// No box at all may come, every client is listed, the known one and another are recalled.
void riparti(std::size_t clienti, int stato, const QString& altro, const Racconto& racconta) {
  parla_con([&](const Riquadro& r) -> bool { fallito(u"the next start asks: "_s + r.testo); });
  entra();
  const auto& s = archivio();
  if (s.Tabella->rowCount() != static_cast<int>(clienti)) fallito(u"the archive does not list all clients"_s);
  richiama(altro);
  richiama(cognome);
  if (schermata<Formanag>().Txtind->text() != QString::number(stato)) fallito(u"another state is recalled"_s);
  racconta(1);
}

// ---- in the parent

struct Conto {
  int uccisi = 0, finiti = 0;
  int importati = 0, esportati = 0, stampati = 0, a_metà = 0;
  std::set<int> diete;  // the marks that were told
};

/// What a working child told, the last of each; 0 for what it did not tell.
struct Detto {
  int salvato = 0, esportato = 0, stampati = 0;
  std::size_t importati = 0;
  std::optional<int> dieta_scritta, dieta_salvata;
};

Detto ascolta_tutto(const prove::Figlio& f) {
  Detto d;
  for (int n = 0; prove::ascolta(f, n);) {
    switch (n / milione) {
      case salvato: d.salvato = n % milione; break;
      case esportato: d.esportato = n % milione; break;
      case importato: ++d.importati; break;
      case stampato: ++d.stampati; break;
      case dieta_scritta: d.dieta_scritta = n % milione; break;
      case dieta_salvata: d.dieta_salvata = n % milione; break;
      default: fallito(u"an unexpected box in the work"_s);
    }
  }
  return d;
}

/// What was told before the kill must be there, and what stood there before must not have gone.
void giudica(const pratica::Trovato& prima, const Detto& d, const pratica::Trovato& t) {
  if (t.stato < std::max(prima.stato, d.salvato)) fallito(u"a save that was told is lost"_s);
  if (t.in_rubrica < std::max(prima.in_rubrica, d.salvato))
    fallito(u"a save that was told is not in the address book"_s);
  if (t.in_rubrica > t.stato) fallito(u"the address book is ahead of the client's file"_s);
  if (t.stato_esportato < d.esportato) fallito(u"an export that was told is not there"_s);
  if (t.clienti < prima.clienti + d.importati) fallito(u"an import that was told is not there"_s);
  if (d.stampati && !t.stampa) fallito(u"a print that was told is not there"_s);
  const bool nota =
      d.dieta_salvata ? t.dieta == *d.dieta_salvata : t.dieta == prima.dieta || t.dieta == d.dieta_scritta;
  if (!nota) fallito(u"the client's file holds another diet than was told"_s);
}

void riavvia(const pratica::Cartelle& dove, int stato) {
  const pratica::Trovato prima = pratica::esamina(dove, cognome);
  const QString altro = std::uniform_int_distribution(0, 1)(caso) ? u"FERRI"_s : u"MORETTI"_s;
  const prove::Figlio f =
      prove::avvia(dove.pratica, [&](const auto& racconta) { riparti(prima.clienti, stato, altro, racconta); });
  const prove::Fine fine = prove::raccogli(f, 0);
  if (fine.ultimo != 1 || fine.esito != 0) fallito(u"the next start does not work"_s);
  if (pratica::esamina(dove, cognome).righe_senza_file != 0) fallito(u"the registry keeps a client without a file"_s);
}

/// Microseconds that a whole work takes; the kills fall between none and that.
unsigned durata(const pratica::Cartelle& dove) {
  const auto inizio = std::chrono::steady_clock::now();
  const prove::Fine fine =
      prove::raccogli(prove::avvia(dove.pratica, [&](const auto& racconta) { lavora(dove, 2, 1, racconta); }), 0);
  if (fine.esito != 0) fallito(u"the work does not come to its end"_s);
  return static_cast<unsigned>(
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - inizio).count());
}

/// One work, killed where it has not come to its end by then.
void uccidi(const pratica::Cartelle& dove, unsigned tutto, Conto& conto) {
  dove.invecchia();
  const pratica::Trovato prima = pratica::esamina(dove, cognome);
  const auto seme = static_cast<std::uint32_t>(caso());
  const prove::Figlio f =
      prove::avvia(dove.pratica, [&](const auto& racconta) { lavora(dove, prima.stato + 1, seme, racconta); });
  ::usleep(std::uniform_int_distribution<unsigned>(0, tutto)(caso));
  ::kill(f.pid, SIGKILL);
  const Detto d = ascolta_tutto(f);
  const int esito = prove::raccogli(f, 0).esito;
  if (esito != 0 && esito != SIGKILL) fallito(u"the work ended before it was killed"_s);
  const pratica::Trovato t = pratica::esamina(dove, cognome);
  giudica(prima, d, t);
  ++(esito == 0 ? conto.finiti : conto.uccisi);
  conto.importati += static_cast<int>(d.importati);
  conto.esportati += d.esportato != 0;
  conto.stampati += d.stampati;
  if (d.dieta_salvata) conto.diete.insert(*d.dieta_salvata);
  conto.a_metà += t.righe_senza_file;
  riavvia(dove, t.stato);
}

void programma(int uccisioni) {
  const pratica::Cartelle dove;
  pratica::prepara(dove);
  const unsigned tutto = durata(dove);
  Conto conto;
  while (conto.uccisi < uccisioni) {
    if (pratica::esamina(dove, cognome).clienti > troppi_clienti) pratica::prepara(dove);
    uccidi(dove, tutto, conto);
    if (conto.finiti > uccisioni + 10) fallito(u"most works end before they are killed"_s);
  }
  prove::esito(u"Whole program killed and started again"_s, conto.uccisi,
               u"0 lost, 0 torn, 0 questions; told: %1 exports, %2 imports, %3 prints, %4 different diets; %5 imports "
               "cut short; %6 works that came to their end not counted"_s.arg(conto.esportati)
                   .arg(conto.importati)
                   .arg(conto.stampati)
                   .arg(conto.diete.size())
                   .arg(conto.a_metà)
                   .arg(conto.finiti));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] { programma(prove::quante(argc, argv, 1, 3)); });
}
