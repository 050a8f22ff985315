#include "office/formrubrica.h"

#include "base/errori.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

Formrubrica::Formrubrica() {
  disegna();
  collega_regole();
}

void Formrubrica::al_caricamento() {
  rubrica_.emplace(percorso(u"rubrica.jed"_s));
  filtra_rubrica(u'a');
}

void Formrubrica::collega_regole() {
  const auto filtra = [this](int scheda) { esegui_regola([&] { filtra_rubrica(SSTab2->tabText(scheda).front()); }); };
  connect(SSTab2, &QTabBar::currentChanged, this, filtra);
  connect(SSTab2, &QTabBar::tabBarClicked, this, [=, this](int scheda) {
    if (scheda == SSTab2->currentIndex()) filtra(scheda);
  });
  DBList1->installEventFilter(this);
  al_doppio_clic(DBList1, [this] { richiama(); });
  al_clic(Command1, [this] { nuovo(); });
  al_clic(Command2, [this] { richiama(); });
  al_clic(Command6, [this] { elimina(); });
  al_clic(Command7, scarica<Formrubrica>);
  for (QPushButton* chiudi : {Command5, Command4, Command3}) al_clic(chiudi, [this] { salva(); });
}

void Formrubrica::filtra_rubrica(QChar lettera) {
  lettera_ = lettera;
  elenco_ = nominativi(*rubrica_, lettera);
  QStringList testi;
  for (const Nominativo& n : elenco_) testi << n.testo;
  Data1.setStringList(testi);
}

const Nominativo* Formrubrica::scelto() const {
  const QModelIndexList scelti = DBList1->selectionModel()->selectedIndexes();
  if (scelti.isEmpty()) return nullptr;
  const Nominativo& n = elenco_[static_cast<std::size_t>(scelti.front().row())];
  return n.testo.isEmpty() ? nullptr : &n;
}

void Formrubrica::nuovo() { mostra_dettaglio({}, {}); }

void Formrubrica::richiama() {
  if (const Nominativo* n = scelto()) mostra_dettaglio(leggi_persona(*rubrica_, n->id), n->id);
}

void Formrubrica::mostra_dettaglio(const Persona& persona, std::optional<qint64> id) {
  in_modifica_ = id;
  Text1->setText(persona.nome);
  Text2->setText(persona.cognome);
  for (std::size_t s = 0; s < schede; ++s) {
    for (qsizetype i = 0; i < caselle_[s].size(); ++i) caselle_[s][i]->setText(persona.testi[s].value(i));
  }
  SSTab1->setCurrentIndex(0);
  viste_->setCurrentWidget(Frame1);
  Text1->setFocus();
}

Persona Formrubrica::scritta() const {
  Persona p{Text1->text(), Text2->text(), {}};
  for (std::size_t s = 0; s < schede; ++s) {
    for (const QLineEdit* casella : caselle_[s]) p.testi[s] << casella->text();
  }
  return p;
}

bool Formrubrica::registra() {
  try {
    salva_persona(*rubrica_, scritta(), in_modifica_);
    return true;
  } catch (const Errore& e) {
    if (e.numero != riga_mancante) throw;
    return false;
  }
}

void Formrubrica::salva() {
  if (Text1->text().isEmpty() || Text2->text().isEmpty()) {
    if (!domanda(u"Nome e/o cognome non inseriti, uscendo non verranno salvate le modifiche\nUscire ?"_s,
                 u"Errore"_s)) {
      return;
    }
  } else if (!registra()) {
    return;
  }
  torna_all_elenco();
}

void Formrubrica::torna_all_elenco() {
  viste_->setCurrentIndex(0);
  filtra_rubrica(lettera_);
  DBList1->setFocus();
}

void Formrubrica::elimina() {
  const Nominativo* n = scelto();
  if (!n || !domanda(u"Eliminare nominativo "_s + n->testo + u'?', u"Conferma eliminazione"_s)) return;
  elimina_persona(*rubrica_, n->id);
  filtra_rubrica(lettera_);
}

bool Formrubrica::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    const bool invio = tasto == Qt::Key_Return || tasto == Qt::Key_Enter;
    if (invio || tasto == Qt::Key_Delete) {
      (invio ? Command2 : Command6)->click();
      return true;
    }
  }
  // Who comes with the Tab key finds a line to move from.
  const bool con_tab =
      evento->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(evento)->reason() == Qt::TabFocusReason;
  if (con_tab && !scelto()) DBList1->setCurrentIndex(Data1.index(0));
  return QWidget::eventFilter(oggetto, evento);
}
