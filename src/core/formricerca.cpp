#include "core/formricerca.h"

#include "core/aspetto.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QApplication>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString scritta_iniziale = u"Immettere il "_s;

/// What each kind of search asks for, and the grid's column that it walks.
struct Tipo {
  QStringView scritta;
  QStringView richiesta;
  int colonna;
};
constexpr Tipo tipi[]{
    {u"Ricerca per codice", u"Immettere il codice", 0},
    {u"Ricerca per cognome", u"Immettere il cognome", 2},
};

/// The first line whose text stands at the value or after it; -1 where none does.
int riga_da(const Formsched& f, int colonna, const QString& valore) {
  for (int riga = 0; riga < f.Tabella->rowCount(); ++riga) {
    if (f.testo(riga, colonna) >= valore) return riga;
  }
  return -1;
}

}  // namespace

Formricerca::Formricerca() {
  disegna();
  collega_regole();
}

void Formricerca::disegna() {
  setObjectName(u"Formricerca"_s);
  setWindowTitle(u"Ricerca cliente"_s);
  setModal(true);
  tipo_ = new QButtonGroup(this);
  const Cornice c = cornice(u"Tipo di ricerca"_s);
  for (int i = 0; i < 2; ++i) {
    const auto k = static_cast<std::size_t>(i);
    Option1[k] = nominato(new QRadioButton(tipi[k].scritta.toString()), nome_indice(u"Option1", k));
    tipo_->addButton(Option1[k]);
    c.griglia->addWidget(Option1[k], 0, i);
  }
  Textval = nominato(new QLineEdit, u"Textval"_s, u"Valore da cercare"_s);
  Label1 = nominato(etichetta_di(scritta_iniziale, Textval), u"Label1"_s);
  Label1->setMinimumWidth(110);
  Labelatt = nominato(new QLabel(u"Attenzione !! Valore non trovato"_s), u"Labelatt"_s);
  Labelatt->setStyleSheet(u"font-weight: bold;"_s);
  QSizePolicy fermo = Labelatt->sizePolicy();
  fermo.setRetainSizeWhenHidden(true);
  Labelatt->setSizePolicy(fermo);
  cmdricerca = pulsante(u"cmdricerca"_s, u"Ricerca"_s, u"Ricerca il valore"_s);
  Cmdannulla = pulsante(u"Cmdannulla"_s, u"Annulla"_s, u"Annulla la ricerca"_s);
  Command1 = pulsante(u"Command1"_s, u"Esci"_s, u"Chiudi la ricerca cliente"_s);
  cmdricerca->setDefault(true);
  for (QPushButton* b : {Cmdannulla, Command1}) b->setAutoDefault(false);
  auto* fila = new QHBoxLayout;
  fila->addWidget(Label1);
  fila->addWidget(Textval, 1);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 8, 10, 10);
  colonna->setSpacing(8);
  colonna->addWidget(c.box);
  colonna->addLayout(fila);
  colonna->addWidget(Labelatt);
  colonna->addLayout(barra({cmdricerca, Cmdannulla}, {Command1}));
  setFixedSize(320, sizeHint().height());
  annulla();
}

void Formricerca::collega_regole() {
  for (std::size_t i = 0; i < Option1.size(); ++i) {
    al_cambio(Option1[i], [this, i] {
      if (Option1[i]->isChecked()) Label1->setText(tipi[i].richiesta.toString());
    });
  }
  connect(Textval, &QLineEdit::textEdited, this, [this](const QString& testo) {
    const int dove = Textval->cursorPosition();
    Textval->setText(testo.toUpper());
    Textval->setCursorPosition(dove);
  });
  al_cambio(Textval, [this] { segui_valore(); });
  al_clic(cmdricerca, [this] { cerca(); });
  al_clic(Cmdannulla, [this] { annulla(); });
  al_clic(Command1, scarica<Formricerca>);
}

void Formricerca::all_attivazione() { move(schermata<Mdiorza>().frameGeometry().center() - rect().center()); }

void Formricerca::reject() { esegui_regola(scarica<Formricerca>); }

void Formricerca::segui_valore() {
  const bool vuoto = Textval->text().trimmed().isEmpty();
  cmdricerca->setEnabled(!vuoto);
  if (vuoto) Labelatt->hide();
}

void Formricerca::annulla() {
  tipo_->setExclusive(false);
  for (QRadioButton* o : Option1) o->setChecked(false);
  tipo_->setExclusive(true);
  Textval->clear();
  segui_valore();
  Label1->setText(scritta_iniziale);
}

void Formricerca::cerca() {
  Formsched& f = schermata<Formsched>();
  f.SSTabschedario->setCurrentIndex(scheda_tutti);
  for (std::size_t i = 0; i < Option1.size(); ++i) {
    const int riga = Option1[i]->isChecked() ? riga_da(f, tipi[i].colonna, Textval->text()) : -1;
    if (riga < 0) continue;
    Labelatt->hide();
    scarica<Formricerca>();
    f.scegli_riga(riga);
    return;
  }
  QApplication::beep();
  Textval->setFocus();
  Labelatt->show();
}
