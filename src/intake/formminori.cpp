#include "intake/formminori.h"

#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Formminori::Formminori() {
  setObjectName(u"Formminori"_s);
  setWindowTitle(u"Orzaline Control"_s);
  setModal(true);
  Label1 = nominato(new QLabel(u"Orzaline è ottimizzato per soggetti a partire da 10 anni, sotto tale età può dare "
                               "errore, comunque non garantisce risultati attendibili."_s),
                    u"Label1"_s);
  Label1->setWordWrap(true);
  Label1->setFixedWidth(300);
  Command1 = pulsante(u"Command1"_s, u"Chiudi"_s, u"Chiudi la finestra"_s);
  Command1->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(18, 16, 18, 12);
  colonna->setSpacing(14);
  colonna->addWidget(Label1);
  colonna->addWidget(Command1, 0, Qt::AlignHCenter);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command1, scarica<Formminori>);
}

void Formminori::reject() { esegui_regola(scarica<Formminori>); }
