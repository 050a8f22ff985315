// The tour: the whole program offscreen, driven as a practitioner would, from the login to a saved week of diet.
//
//   giro [folder of pictures]
//
// Leaves a picture of each step and checks what reached the clients' files. Ends with 1 at the first thing amiss.
#include "base/archivio.h"
#include "base/riquadro.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "core/formalert.h"
#include "core/formcost.h"
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "diet/motore.h"
#include "passi.h"
#include "tappe.h"

#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Yes to every question; a client that the archive knows is overwritten, which is the window's No.
bool rispondi(const Riquadro& r) {
  std::printf("  [%s] %s\n", qPrintable(r.titolo), qPrintable(QString(r.testo).replace(u'\n', u' ')));
  return r.titolo != u"Attenzione";
}

/// The stores as they come with the program; login, register and address book as on the first day.
void posa_archivi(const QString& cartella) {
  const int esito = QProcess::execute(QStringLiteral(COSTRUTTORE), {QStringLiteral(CARTELLA_SORGENTI), cartella});
  pretendi(esito == 0, "the stores cannot be built");
  imposta_cartella(cartella);
}

void entra() {
  mostra<frmLogin>();
  auto& login = schermata<frmLogin>();
  scrivi(login.txtUserName, u"dietista"_s);
  scrivi(login.txtPassword, u"orzo e farro"_s);
  quadro(login, u"accesso"_s);
  clic(login.cmdOK);
  pretendi(caricata<Mdiorza>() != nullptr, "the main window did not come");
  quadro(schermata<Mdiorza>(), u"finestra"_s);
}

/// Windows that the tour answers without seeing.
void ritratti() {
  auto& m = schermata<Mdiorza>();
  FormAlert alert(&m);
  alert.show();
  quadro(alert, u"sovrascrivere"_s);
  Formcost costituzione;
  costituzione.show();
  quadro(costituzione, u"costituzione"_s);
}

void giro() {
  const QTemporaryDir lavoro, esportati;
  posa_archivi(lavoro.path());
  parla_con(rispondi);
  gestisci_errori_con([](const std::exception& e) { pretendi(false, e.what()); });
  caso_in_uso() = caso_con_seme(2026);
  entra();
  ufficio();
  vita_di_un_cliente(esportati.path());
  importa_esempi(QDir(lavoro.path()).filePath(u"esempi"_s));
  for (const QString& cognome : {u"BIANCHI"_s, u"FERRI"_s, u"MORETTI"_s}) settimana_di_dieta(cognome);
  ritratti();
  abbandona_schermate();
  chiudi_archivi();
  std::printf("the tour is done\n");
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Applicazione app(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  imposta_aspetto(app);
  apri_quadri(QDir::current().absoluteFilePath(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/giro"_s));
  giro();
}
