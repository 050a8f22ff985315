#include "clinic/formesami.h"

#include "clinic/formfunzio.h"
#include "core/aspetto.h"
#include "core/filtri.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Formesami::Formesami() {
  disegna();
  filtro_data(Textdata);
  data_breve_in_uscita(Textdata);
  al_clic(Command1[0], [this] { inserisci(); });
  al_clic(Command1[1], scarica<Formesami>);
}

void Formesami::disegna() {
  setObjectName(u"Formesami"_s);
  setModal(true);
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(8);
  griglia->setVerticalSpacing(6);
  const auto posa = [griglia](QLineEdit*& campo, const QString& nome, const QString& scritta, int fila, int colonna,
                              const QString& suggerimento, int larghezza) {
    campo = nominato(new QLineEdit, nome, suggerimento);
    campo->setFixedWidth(larghezza);
    riga(*griglia, fila, scritta, campo, colonna);
    griglia->setAlignment(campo, Qt::AlignLeft);
  };
  posa(Textdata, u"Textdata"_s, u"Data"_s, 0, 1, u"Giorno/mese/anno"_s, 90);
  posa(Textesame, u"Textesame"_s, u"Esame sostenuto"_s, 1, 1, u"Nome dell'esame"_s, 330);
  posa(Textvalore, u"Textvalore"_s, u"Risultato"_s, 2, 1, u"Valore trovato"_s, 90);
  griglia->addWidget(testa(u"Valori di Riferimento"_s), 3, 0, 1, 2, Qt::AlignLeft);
  posa(Textmin, u"Textmin"_s, u"Minimo"_s, 4, 1, u"Limite inferiore"_s, 90);
  posa(Textmax, u"Textmax"_s, u"Massimo"_s, 5, 1, u"Limite superiore"_s, 90);
  posa(Txtreferto, u"Txtreferto"_s, u"Referto"_s, 6, 1, u"Commento del laboratorio o del medico"_s, 330);
  Command1[0] = pulsante(nome_indice(u"Command1", 0), u"Inserisci"_s, u"Riporta l'esame nella scheda"_s);
  Command1[0]->setDefault(true);
  Command1[1] = pulsante(nome_indice(u"Command1", 1), u"Annulla"_s, u"Chiudi senza riportare l'esame"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(16, 14, 16, 12);
  colonna->setSpacing(12);
  colonna->addLayout(griglia);
  colonna->addLayout(barra({}, {Command1[0], Command1[1]}));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void Formesami::riempi(const QStringList& celle) {
  qsizetype i = 0;
  for (QLineEdit* c : caselle()) c->setText(celle.value(i++));
}

void Formesami::inserisci() {
  if (QWidget* w = focusWidget()) w->clearFocus();  // Return inserts without leaving the date
  QStringList celle;
  for (const QLineEdit* c : caselle()) celle << c->text();
  Formfunzio& f = schermata<Formfunzio>();
  windowTitle() == inserimento_esame ? f.aggiungi_esame(celle) : f.cambia_esame(celle);
  scarica<Formesami>();
}

void Formesami::reject() { esegui_regola(scarica<Formesami>); }
