#include "core/formsched.h"

#include "core/clienti.h"
#include "core/formricerca.h"
#include "core/griglie.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/regole.h"
#include "core/sessione.h"

#include <QKeyEvent>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

enum { colonna_cognome = 2, colonna_nome = 3 };

void nuovo() {
  azzera_banner();
  chiudi_archivi();
  nuovo_cliente();
}

void richiama() {
  azzera_banner();
  if (richiama_cliente() != -1) apri_cliente_scheda();
}

}  // namespace

Formsched::Formsched() {
  disegna();
  collega_regole();
  imposta_tabella();
  aggiorna_comandi_schedario();
}

void Formsched::collega_regole() {
  connect(SSTabschedario, &QTabBar::currentChanged, this, [this] { esegui_regola([this] { cambia_scheda(); }); });
  connect(Tabella, &QTableWidget::cellClicked, this, [this](int riga) {
    if (riga == 0) ordina();
  });
  connect(Tabella, &QTableWidget::cellDoubleClicked, this, [this] { Command10[2]->click(); });
  Tabella->installEventFilter(this);
  al_clic(Command10[0], nuovo);
  al_clic(Command10[1], mostra<Formricerca>);
  al_clic(Command10[2], richiama);
  al_clic(Command10[3], scarica<Formsched>);
  al_clic(Cmddelete, elimina_cliente);
}

void Formsched::all_attivazione() {
  segnalati_.clear();
  pulisci_schedario();
  imposta_tabella();
  // The strip starts on the tab of all: the step to A is what fills the grid.
  {
    const QSignalBlocker muta(SSTabschedario);
    SSTabschedario->setCurrentIndex(scheda_tutti);
  }
  SSTabschedario->setCurrentIndex(0);
}

void Formsched::alla_disattivazione() {
  schermata<Mdiorza>().afc->setEnabled(false);
  chiudi_archivi();
}

void Formsched::alla_chiusura() { alla_disattivazione(); }

void Formsched::cambia_scheda() {
  imposta_tabella();
  riempi_schedario(SSTabschedario->currentIndex());
  ordina();
  if (Tabella->rowCount() > 0) Tabella->selectRow(0);
  aggiorna_comandi_schedario();
}

void Formsched::imposta_tabella() {
  Tabella->setRowCount(0);
  conta();
}

void Formsched::aggiungi(const QStringList& testi) {
  aggiungi_riga(Tabella, testi);
  QFont stretto = Tabella->font();  // a fiscal code of twenty signs just fills its column
  stretto.setLetterSpacing(QFont::AbsoluteSpacing, -0.5);
  Tabella->item(Tabella->rowCount() - 1, Tabella->columnCount() - 1)->setFont(stretto);
  conta();
}

void Formsched::conta() {
  Txtcont->setText(QString::number(Tabella->rowCount()));
  Tabella->setEnabled(Tabella->rowCount() > 0);
}

void Formsched::ordina() {
  Tabella->sortItems(colonna_nome);
  Tabella->sortItems(colonna_cognome);
}

void Formsched::aggiorna_comandi_schedario() {
  const bool presenti = Txtcont->text().toInt() > 0;
  Cmddelete->setEnabled(presenti);
  Command10[2]->setEnabled(presenti);
  schermata<Mdiorza>().afc->setEnabled(presenti);
}

void Formsched::segnala(const QString& cliente) {
  if (segnalati_.insert(cliente).second) da_segnalare_ << cliente;
}

void Formsched::mostra_segnalati() {
  if (da_segnalare_.isEmpty()) return;
  messaggio(
      u"I dati di questi clienti non si possono leggere; restano nello schedario :\n"_s + da_segnalare_.join(u'\n'),
      u"Orzaline  control"_s, Icona::critica);
  da_segnalare_.clear();
}

int Formsched::riga_scelta() const {
  const auto scelte = Tabella->selectionModel()->selectedRows();
  return scelte.isEmpty() ? -1 : scelte.front().row();
}

QString Formsched::testo(int riga, int colonna) const { return Tabella->item(riga, colonna)->text(); }

void Formsched::scegli_riga(int riga) {
  Tabella->scrollToItem(Tabella->item(riga, 0), QAbstractItemView::PositionAtTop);
  Tabella->selectRow(riga);
  Tabella->setFocus();
}

void Formsched::togli_riga(int riga) {
  Tabella->removeRow(riga);
  conta();
  aggiorna_comandi_schedario();
}

bool Formsched::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    const bool invio = tasto == Qt::Key_Return || tasto == Qt::Key_Enter;
    if (invio || tasto == Qt::Key_Delete) {
      (invio ? Command10[2] : Cmddelete)->click();
      return true;
    }
  }
  // Who comes with the Tab key finds a line to move from.
  const bool con_tab =
      evento->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(evento)->reason() == Qt::TabFocusReason;
  if (con_tab && riga_scelta() < 0) Tabella->selectRow(0);
  return QWidget::eventFilter(oggetto, evento);
}
