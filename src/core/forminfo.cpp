#include "core/forminfo.h"

#include "core/aspetto.h"
#include "core/programma.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel* riga_di_testo(const QString& testo, const QString& nome = {}) {
  auto* e = nominato(new QLabel(testo), nome);
  e->setAlignment(Qt::AlignCenter);
  return e;
}

}  // namespace

Forminfo::Forminfo() {
  setObjectName(u"Forminfo"_s);
  setWindowTitle(u"Informazioni su Orzaline"_s);
  setModal(true);
  auto* disegno = riga_di_testo({});
  disegno->setPixmap(icona(u"orzaline"_s).pixmap(64, 64));
  auto* nome = riga_di_testo(u"ORZALINE"_s, u"LabNome"_s);
  nome->setStyleSheet(u"font-size: 20px; font-weight: bold; color: #14614b;"_s);
  Text2 = riga_di_testo({}, u"Text2"_s);
  Command1 = pulsante(u"Command1"_s, u"Ok"_s, u"Chiudi la finestra"_s);
  Command1->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(28, 18, 28, 14);
  colonna->setSpacing(6);
  for (QWidget* w :
       {static_cast<QWidget*>(disegno), static_cast<QWidget*>(nome),
        static_cast<QWidget*>(riga_di_testo(u"Programma per lo studio del dietologo"_s)), static_cast<QWidget*>(Text2),
        static_cast<QWidget*>(riga_di_testo(u"Realizzato dagli autori di Orzaline"_s)),
        static_cast<QWidget*>(riga_di_testo(u"Software libero, licenza GPL 3.0 o successiva"_s))}) {
    colonna->addWidget(w);
  }
  colonna->addSpacing(6);
  colonna->addWidget(Command1, 0, Qt::AlignHCenter);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command1, scarica<Forminfo>);
}

void Forminfo::al_caricamento() { Text2->setText(u"Versione "_s + versione_programma().toString()); }

void Forminfo::reject() { esegui_regola(scarica<Forminfo>); }
