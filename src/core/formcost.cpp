#include "core/formcost.h"

#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza_testo = 380;

constexpr QStringView tabella[][3]{
    {u"", u"Femmine", u"Maschi"},
    {u"Longitipo", u"meno di 52", u"meno di 51"},
    {u"Normotipo", u"da 52,1 a 54", u"da 51,1 a 53"},
    {u"Brachitipo", u"più di 54", u"più di 53"},
};

QGridLayout* disegna_tabella() {
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  for (int r = 0; r < int{std::size(tabella)}; ++r) {
    for (int c = 0; c < 3; ++c) {
      const QString scritta = tabella[r][c].toString();
      QLabel* e = r == 0 || c == 0 ? testa(scritta) : new QLabel(scritta);
      e->setAlignment(c == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
      if (r > 0 && c > 0) e->setProperty("ruolo", u"valore"_s);
      griglia->addWidget(e, r, c);
      griglia->setColumnStretch(c, 1);
    }
  }
  return griglia;
}

}  // namespace

Formcost::Formcost() {
  setObjectName(u"Formcost"_s);
  setWindowTitle(u"Determinazione della costituzione scheletrica"_s);
  setModal(true);
  auto* spiega = new QLabel(
      u"Per determinare la costituzione scheletrica, occorre misurare la statura del soggetto  "
      "eretto su di un sedile rigido, si misura l'altezza del sedile, indi togliendo la misura "
      "del sedile si ottiene la misura del tronco. Si divide la misura del tronco in cm. per la "
      "statura in piedi in mt. e si paragona il risultato con gli indici della tabella "
      "seguente:"_s);
  spiega->setWordWrap(true);
  spiega->setFixedWidth(larghezza_testo);
  Command3 = pulsante(u"Command3"_s, u"Chiudi"_s, u"Chiudi la finestra"_s);
  Command3->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(18, 16, 18, 12);
  colonna->setSpacing(12);
  colonna->addWidget(spiega);
  colonna->addLayout(disegna_tabella());
  colonna->addWidget(Command3, 0, Qt::AlignHCenter);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command3, scarica<Formcost>);
}

void Formcost::reject() { esegui_regola(scarica<Formcost>); }
