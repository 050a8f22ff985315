// The tour: the whole program offscreen, driven by keyboard and mouse as a practitioner would on a first day.
//
//   giro [folder of results]
//
// Leaves pictures, printed sheets and a sheet of results there. Ends with 1 where a check fails.
#include "base/archivio.h"
#include "base/riquadro.h"
#include "core/aspetto.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/messaggi.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "diet/motore.h"
#include "tappe.h"

#include <QLocale>
#include <QProcess>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Tappa {
  QStringView nome;
  void (*percorri)(Viaggio&);
};
constexpr Tappa tappe[]{
    {u"Login and archive", ingresso},
    {u"Master data", anagrafica},
    {u"Personal history", personali},
    {u"Clinical history", patologica},
    {u"Weight and objective", antropometria},
    {u"Food diary", diario},
    {u"Activities", attività},
    {u"Choice of foods", scelta_alimenti},
    {u"Elaboration", elaborazione},
    {u"Follow-up", controlli},
    {u"Saved, closed, recalled", ritorno},
    {u"Sheets printed", stampe},
    {u"Address book", rubrica},
    {u"Agenda", agenda},
    {u"Second client", secondo_cliente},
    {u"Sample clients", esempi},
    {u"Exported, deleted, imported", esporta_elimina_importa},
};

/// The boxes that the tour expects, by their first words. Any other is a fault.
struct Riquadro_atteso {
  QStringView inizio;
  bool risposta;
};
constexpr Riquadro_atteso attesi[]{
    {u"Questo è il primo caricamento", true},
    {u"Salvataggio generale degli archivi", true},
    {u"Dieta salvata", true},
    {u"La dieta precedentemente salvata è stata caricata", true},
    {u"Si sta uscendo dall'archivio del soggetto", true},
    {u"Sei sicuro di voler eliminare il cliente", true},
    {u"Eliminare nominativo", true},
    {u"Il paziente è già presente in archivio.", false},  // overwritten
    {u"Attenzione: il codice del cliente che si è deciso di importare esiste già.", true},
    {u"Importazione riuscita !", true},
    {u"Si è deciso di copiare i dati del cliente", true},
    {u"File esportato con successo !", true},
};

bool rispondi(const Riquadro& r) {
  for (const auto& a : attesi) {
    if (r.testo.startsWith(a.inizio)) return a.risposta;
  }
  verifica(false, u"unexpected box: %1 | %2"_s.arg(r.titolo, r.testo));
  return false;
}

/// The stores as they come with the program; login, register and address book as on the first day.
void posa_archivi(const QString& cartella) {
  const int esito = QProcess::execute(QStringLiteral(COSTRUTTORE), {QStringLiteral(CARTELLA_SORGENTI), cartella});
  pretendi(esito == 0, u"the stores can be built"_s);
  imposta_cartella(cartella);
}

/// What the offscreen platform lacks is no news.
void taci(QtMsgType, const QMessageLogContext&, const QString& testo) {
  if (!testo.startsWith(u"This plugin does not support")) std::fprintf(stderr, "%s\n", qPrintable(testo));
}

int giro() {
  comincia_tappa(u"Stores built"_s);
  Viaggio v;
  posa_archivi(v.lavoro.path());
  parla_con(rispondi);
  gestisci_errori_con([](const std::exception& e) { verifica(false, u"error: "_s + QString::fromUtf8(e.what())); });
  caso_in_uso() = caso_con_seme(2026);
  esterno().oggi = [] { return QDate(2026, 3, 2); };
  for (const Tappa& t : tappe) {
    comincia_tappa(t.nome.toString());
    t.percorri(v);
  }
  abbandona_schermate();
  chiudi_archivi();
  return chiudi_foglio();
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(taci);
  Applicazione app(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  imposta_aspetto(app);
  apri_foglio(QDir::current().absoluteFilePath(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/giro"_s));
  return giro();
}
