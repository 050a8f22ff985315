#include "core/formalert.h"

#include "core/aspetto.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int sovrascrivere = 0, nuovo = 1;

QString titolo() { return u"Attenzione"_s; }

const QStringList& frasi() {
  static const QStringList f{u"Il paziente è già presente in archivio."_s,
                             u"Se si vuol salvare sovrascrivendo i dati, cliccare su SOVRASCRIVERE."_s,
                             u"Se si vuol salvare con diverso codice, cliccare su NUOVO"_s};
  return f;
}

}  // namespace

FormAlert::FormAlert(QWidget* sopra) : QDialog(sopra, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName(u"FormAlert"_s);
  setWindowTitle(titolo());
  Command1 = {pulsante(nome_indice(u"Command1", 0), u"NUOVO"_s, u"Salva una copia con un nuovo codice"_s),
              pulsante(nome_indice(u"Command1", 1), u"SOVRASCRIVERE"_s, u"Salva con lo stesso codice"_s)};
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(20, 16, 20, 14);
  colonna->setSpacing(6);
  for (const QString& frase : frasi()) colonna->addWidget(new QLabel(frase));
  colonna->addSpacing(8);
  colonna->addLayout(barra({}, {Command1[1], Command1[0]}));
  setTabOrder(Command1[1], Command1[0]);
  Command1[1]->setDefault(true);
  Command1[1]->setFocus();
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command1[0], [this] { done(nuovo); });
  al_clic(Command1[1], [this] { done(sovrascrivere); });
}

bool chiedi_nuovo() {
  return domanda_con({frasi().join(u'\n'), titolo(), Icona::nessuna, true},
                     [] { return FormAlert(&schermata<Mdiorza>()).exec() == nuovo; });
}
