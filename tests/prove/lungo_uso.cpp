// A long day at the desk: one process elaborates, walks the stages and shows previews by the thousand, and neither
// memory nor handles nor widgets grow.
//
//   prova_lungo_uso [elaborations] [walks over the stages] [rounds of previews]      (40, 1 and 1 by default)
//
// A walk changes the stage 25 times: eight steps on, eight back, nine jumps by the toolbar. A round shows the nine
// reports. A tenth more of each kind of work comes first, to warm up.
#include "banco.h"
#include "base/file.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/salvataggio.h"
#include "core/sessione.h"
#include "core/stadi.h"
#include "diet/formelabora.h"
#include "misure.h"
#include "reports/formstampe.h"

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr double crescita_massima = 1e9;  // the sanitizer keeps what is given back: files and widgets count alone
#else
constexpr double crescita_massima = 0.05;
#endif
constexpr int elaborazioni_a_cliente = 100, cambi_di_stadio = 25, anteprime = 9;  // of a turn
constexpr std::array campioni{u"1300_bianchi", u"1900_ferri", u"2600_moretti"};

/// What the process holds between two clicks.
struct Stato {
  double memoria;  // MB
  qsizetype file, controlli, finestre;
};

void respira() {
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Stato stato() {
  respira();
  return {banco::memoria_mb(),
          QDir(u"/proc/self/fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size(),
          QApplication::allWidgets().size(), QApplication::topLevelWidgets().size()};
}

/// Each turn must leave the program where it found it.
void lavora(const QString& che, int volte, int passi, const std::function<void(int)>& giro) {
  const int riscaldamento = std::max(1, volte / 10);
  int fatti = 0;
  for (; fatti < riscaldamento; ++fatti) giro(fatti);
  const Stato prima = stato();
  for (; fatti < riscaldamento + volte; ++fatti) giro(fatti);
  const Stato dopo = stato();
  const auto cresciuti = [&](const QString& cosa, qsizetype da, qsizetype a) {
    if (da != a) prove::fallito(u"%1: %2 %3 before, %4 after"_s.arg(che, cosa).arg(da).arg(a));
  };
  cresciuti(u"open files"_s, prima.file, dopo.file);
  cresciuti(u"widgets"_s, prima.controlli, dopo.controlli);
  cresciuti(u"windows"_s, prima.finestre, dopo.finestre);
  const double crescita = dopo.memoria / prima.memoria - 1;
  const QString figure = u"%1 MB after warm-up, %2 MB at the end (%3 %; limit %4 %)"_s.arg(prima.memoria, 0, 'f', 1)
                             .arg(dopo.memoria, 0, 'f', 1)
                             .arg(100 * crescita, 0, 'f', 1)
                             .arg(100 * crescita_massima);
  if (std::abs(crescita) > crescita_massima) prove::fallito(che + u": "_s + figure);
  prove::esito(che, volte * passi,
               figure + u", %1 files and %2 widgets before and after"_s.arg(dopo.file).arg(dopo.controlli));
}

/// The sample clients in the archive, each in the folder of its name, as general saves leave them.
void iscrivi_campioni(const QString& archivi) {
  for (const QStringView campione : campioni) {
    const QString origine = u"%1/esempi/%2.orzaline"_s.arg(archivi, campione);
    const Riga r =
        Archivio(origine, accesso, Archivio::Modo::sola_lettura).righe(u"SELECT cod, cognome FROM anagrafe"_s).front();
    const QString nome = u"%1_%2"_s.arg(r[u"cod"].toInt()).arg(r[u"cognome"].toString().section(u' ', 0, 0));
    const QString file = percorso(u"%1/%1.orzaline"_s.arg(nome));
    QDir(percorso({})).mkdir(nome);
    sostituisci_file(origine, file);
    iscrivi({r[u"cod"].toInt(), nome.section(u'_', 1), file});
  }
}

/// From the archive's tab of all to the master data.
void richiama(int riga) {
  schermata<Mdiorza>().cmdsopra[0]->click();
  auto& s = schermata<Formsched>();
  s.SSTabschedario->setCurrentIndex(scheda_tutti);
  s.scegli_riga(riga);
  s.Command10[2]->click();
  respira();
  if (schermata<Mdiorza>().qualeform.text() != u"0") prove::fallito(u"a client is not recalled"_s);
}

void elabora(int volta) {
  Mdiorza& m = schermata<Mdiorza>();
  if (volta % elaborazioni_a_cliente == 0) {
    richiama(static_cast<int>(volta / elaborazioni_a_cliente % std::ssize(campioni)));
    m.cmdsopra[5]->click();
  }
  Formelabora& f = *caricata<Formelabora>();
  f.Combo1->setCurrentIndex(volta % settimane);
  f.test->click();
  if (motore().menu(volta % settimane + 1, 0, 0, 0).cod1 == 0) prove::fallito(u"nothing was elaborated"_s);
  respira();
}

void cambia_stadi(int) {
  Mdiorza& m = schermata<Mdiorza>();
  const auto verso = [&m](QAbstractButton* b, const Stadio& s) {
    b->click();
    respira();
    if (m.qualeform.text() != QString::number(s.codice)) prove::fallito(u"a stage does not come in front"_s);
  };
  for (const Stadio& s : stadi().subspan(1)) verso(m.Command1[1], s);
  for (std::size_t i = stadi().size() - 1; i > 0; --i) verso(m.Command1[0], stadi()[i - 1]);
  for (const Stadio& s : stadi()) verso(m.cmdsopra[s.pulsante], s);
  m.cmdsopra[stadi()[0].pulsante]->click();
}

/// A report, every page, and a second zoom.
void guarda_anteprima(const QString& codice, const QString& verso) {
  apri_stampa(codice, verso);
  Formstampe& f = *caricata<Formstampe>();
  for (int pagina = f.Slider1->minimum(); pagina <= f.Slider1->maximum(); ++pagina) f.Slider1->setValue(pagina);
  f.List1->setCurrentRow(1);
  f.Cmdchar[2]->click();
  respira();
  if (caricata<Formstampe>()) prove::fallito(u"the preview does not close"_s);
}

/// A week that was elaborated, saved, and a diary: no report is without its pages.
void riempi_cliente() {
  parla_con([](const Riquadro& r) { return r.titolo != u"Attenzione"; });  // over the client that the archive knows
  Mdiorza& m = schermata<Mdiorza>();
  m.cmdsopra[5]->click();
  Formelabora& f = *caricata<Formelabora>();
  f.Combo1->setCurrentIndex(0);
  f.test->click();
  f.Command5[0]->click();
  dati_tmp().esegui_copione(
      u"INSERT INTO scelte_diario (pasto, cod1, cod2, dose)"
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 23)"
      "SELECT i / 5, 1, 1 + i % 3, 100 FROM n"_s);
  salvataggio_generale();
  richiama(0);
  parla_con([](const Riquadro& r) {
    prove::fallito(u"a preview says: "_s + r.testo);
    return false;
  });
}

void guarda_anteprime(int) {
  for (const QStringView codice : {u"1", u"21", u"22", u"23", u"24", u"3", u"8"})
    guarda_anteprima(codice.toString(), u"v"_s);
  for (const QStringView codice : {u"4", u"7"}) guarda_anteprima(codice.toString(), u"o"_s);
}

void lungo_uso(int elaborazioni, int giri, int viste) {
  const QTemporaryDir cartella;
  const QString archivi = QStringLiteral(CARTELLA_ARCHIVI);
  banco::posa_archivi(archivi, cartella.path());
  schedario().esegui(u"DELETE FROM schedario"_s);
  iscrivi_campioni(archivi);
  caso_in_uso() = caso_con_seme(1);
  parla_con([](const Riquadro&) { return true; });
  mostra<Mdiorza>();
  lavora(u"Elaborations in one process"_s, elaborazioni, 1, elabora);
  richiama(0);
  lavora(u"Stage changes in one process"_s, giri, cambi_di_stadio, cambia_stadi);
  riempi_cliente();
  lavora(u"Previews in one process"_s, viste, anteprime, guarda_anteprime);
  abbandona_schermate();
  chiudi_archivi();
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    Applicazione app(argc, argv);
    imposta_aspetto(app);
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    lungo_uso(prove::quante(argc, argv, 1, 40), prove::quante(argc, argv, 2, 1), prove::quante(argc, argv, 3, 1));
  });
}
