#include "core/mdiorza.h"

#include "assessment/formpond.h"
#include "base/archivio.h"
#include "base/errori.h"
#include "core/clienti.h"
#include "core/dialoghi.h"
#include "core/formi_e.h"
#include "core/forminfo.h"
#include "core/formsched.h"
#include "core/messaggi.h"
#include "core/programma.h"
#include "core/regole.h"
#include "core/salvataggio.h"
#include "core/sessione.h"
#include "core/stadi.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"

#include <QCloseEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize misura{800, 613};
constexpr QPoint posto_iniziale{133, 67};

/// The help document of each stage.
const std::map<QString, QString> guide{
    {u"0"_s, u"02_Guida_Anagrafica"_s}, {u"3"_s, u"03_Guida_DatiPersonali"_s}, {u"4"_s, u"04_Guida_anPatologica"_s},
    {u"5"_s, u"05_Guida_Antropo"_s},    {u"6"_s, u"10_Guida_Attività"_s},      {u"9"_s, u"06_Guida_DiarioAlim"_s},
    {u"7"_s, u"07_Guida_SceltAlim"_s},  {u"8"_s, u"08_Guida_Elaboraz"_s},      {u"10"_s, u"09_Guida_Trattam"_s},
};

void apri_archivio() {
  scarica_schede();
  elimina_dati_tmp();
  schermata<Mdiorza>().segui_cliente(false);
  mostra<Formsched>();
}

/// The banner's values go as soon as the client comes: what they say of the former one must not reach this one.
void richiama_da_menu() {
  if (richiama_cliente() == -1) return;
  azzera_banner();
  apri_cliente_scheda();
}

void chiudi_da_menu() {
  scarica_schede_da_menu();
  elimina_dati_tmp();
  schermata<Mdiorza>().segui_cliente(false);
}

void chiedi_chiusura() {
  if (domanda(u"Si sta uscendo dall'archivio del soggetto.\nSono stati salvati i dati inseriti ?"_s, titolo_programma(),
              Icona::informazione)) {
    chiudi_cliente();
  }
}

void informazioni_di_sistema() {
  for (const QString& nome : {u"hardinfo2"_s, u"hardinfo"_s}) {
    const QString programma = QStandardPaths::findExecutable(nome);
    if (!programma.isEmpty() && QProcess::startDetached(programma, {})) return;
  }
  messaggio(u"Le informazioni di sistema non sono disponibili !!"_s);
}

}  // namespace

Mdiorza::Mdiorza() {
  disegna();
  collega_regole();
  ospita_con({[this](QWidget& s) { incornicia(s); }, [this](QWidget& s, const RegoleFiglia& r) { ospita(s, r); },
              [this](QWidget& s) { congeda(s); }});
}

Mdiorza::~Mdiorza() {
  ospita_con({});
  davanti_ = nullptr;  // at the end nobody comes in front any more
  for (QMdiSubWindow* finestra : area_->subWindowList()) {
    if (finestra->widget()) finestra->widget()->setParent(nullptr);  // a screen outlives the window that shows it
  }
}

void Mdiorza::al_caricamento() {
  setWindowTitle(u"ORZALINE  -  "_s + leggi_studio(1));
  Statusbar->hide();
  disabilita_stadi();
  segui_cliente(false);
  Command1[0]->setEnabled(false);
  const bool con_guida = QFileInfo(percorso(u"help"_s)).isDir();
  menuaiuto->setEnabled(con_guida);
  cmdsopra[13]->setEnabled(con_guida);
  if (screen()->size() == QSize(800, 600)) {
    setWindowState(Qt::WindowMaximized);
  } else {
    move(posto_iniziale);
    resize(misura);
  }
}

void Mdiorza::collega_regole() {
  collega_menu();
  collega_barra();
  al_cambio(qualeform, cambia_qualeform);
  al_clic(Command1[0], indietro);
  al_clic(Command1[1], avanti);
  al_clic(Command2[0], chiedi_chiusura);
  al_clic(Command2[1], salvataggio_generale);
  connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* finestra) {
    if (finestra && !ospitando_ && davanti_) QTimer::singleShot(0, this, [this] { tieni_davanti(); });
  });
}

void Mdiorza::collega_menu() {
  al_comando(afc, richiama_da_menu);
  al_comando(menuchiudi, chiudi_da_menu);
  al_comando(uscita, [this] { chiedi_uscita(); });
  al_comando(menuag, mostra<Formagenda>);
  al_comando(menurubr, mostra<Formrubrica>);
  al_comando(i_e, mostra<Formi_e>);
  al_comando(impstamp, [] { esterno().imposta_stampante(stampante()); });
  al_comando(menuaiuto, [this] { apriGuida(); });
  al_comando(menuinfo, mostra<Forminfo>);
  al_comando(info, informazioni_di_sistema);
}

void Mdiorza::collega_barra() {
  al_clic(cmdsopra[0], apri_archivio);
  for (const Stadio& s : stadi()) al_clic(cmdsopra[s.pulsante], [&s] { salta_a(s); });
  al_clic(cmdsopra[9], mostra<Formi_e>);
  al_clic(cmdsopra[10], [this] { apri_stampe(); });
  al_clic(cmdsopra[11], mostra<Formagenda>);
  al_clic(cmdsopra[12], mostra<Formrubrica>);
  al_clic(cmdsopra[13], [this] { apriGuida(); });
  al_clic(cmdsopra[14], [this] { chiedi_uscita(); });
}

void Mdiorza::apriGuida() {
  if (Statusbar->isHidden()) {
    const Formsched* archivio = caricata<Formsched>();
    guida_ = archivio && archivio->isVisible() ? u"01_Guida_inizio"_s : u"00_Guida_Premessa"_s;
  } else if (const auto g = guide.find(qualeform.text()); g != guide.end()) {
    guida_ = g->second;
    // The weight screen has a guide for each of its faces.
    const Formpond* pond = caricata<Formpond>();
    if (g->first == u"5" && pond && pond->LabSCELTA->isHidden()) guida_ += u"_2"_s;
  }
  if (!guida_.isEmpty()) apri_documento(u"help/"_s + guida_ + u".doc"_s);
}

void Mdiorza::apri_documento(const QString& nome) {
  const QString file = percorso(nome);
  if (!QFile::exists(file)) throw Errore(53, "Impossibile trovare il file " + file.toStdString());
  if (!esterno().apri_documento(file)) throw Errore(429, "Nessun programma apre il documento " + file.toStdString());
}

bool Mdiorza::chiedi_uscita() {
  if (!domanda(u"Sei sicuro di voler uscire dal programma ?"_s, u"Orzaline control"_s)) return false;
  scarica<Formagenda>();  // its day is kept
  elimina_dati_tmp();
  QCoreApplication::exit();
  return true;
}

void Mdiorza::segui_cliente(bool aperto) {
  Command2[1]->setEnabled(aperto);
  Command1[1]->setEnabled(aperto);
}

void Mdiorza::closeEvent(QCloseEvent* evento) {
  evento->ignore();
  esegui_regola([&] { evento->setAccepted(chiedi_uscita()); });
}

void Mdiorza::resizeEvent(QResizeEvent* evento) {
  QMainWindow::resizeEvent(evento);
  if (!(windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen))) setFixedSize(misura);
}

void Mdiorza::ospita(QWidget& schermo, const RegoleFiglia& regole) {
  ospitando_ = true;
  figlie_.try_emplace(&schermo, regole);
  auto* finestra = qobject_cast<QMdiSubWindow*>(schermo.parentWidget());
  if (!finestra) finestra = incornicia(schermo);
  finestra->show();
  schermo.show();
  area_->setActiveSubWindow(finestra);
  finestra->raise();
  ospitando_ = false;
  porta_davanti(&schermo);
}

void Mdiorza::congeda(QWidget& schermo) {
  figlie_.erase(&schermo);
  if (auto* finestra = qobject_cast<QMdiSubWindow*>(schermo.parentWidget())) {
    ospitando_ = true;
    finestra->hide();
    finestra->deleteLater();  // with the screen in it: taking it out first would style every control anew
    ospitando_ = false;
  }
  if (davanti_ != &schermo) return;
  davanti_ = nullptr;
  auto rimaste = area_->subWindowList(QMdiArea::StackingOrder);
  rimaste.removeIf([this](QMdiSubWindow* w) { return !figlie_.contains(w->widget()); });
  if (!rimaste.isEmpty()) porta_davanti(rimaste.last()->widget());
}

/// The area picks a frame of its own, unseen ones included, when a frame goes or the user comes back from another
/// program: the screen that stood in front stays there.
void Mdiorza::tieni_davanti() {
  auto* finestra = davanti_ ? qobject_cast<QMdiSubWindow*>(davanti_->parentWidget()) : nullptr;
  if (!finestra) return;
  ospitando_ = true;
  area_->setActiveSubWindow(finestra);
  finestra->raise();
  ospitando_ = false;
}

void Mdiorza::porta_davanti(QWidget* schermo) {
  if (davanti_ == schermo) return;
  const auto prima = figlie_.find(std::exchange(davanti_, schermo));
  if (prima != figlie_.end() && prima->second.disattivazione) prima->second.disattivazione();
  figlie_.at(schermo).attivazione();
}
