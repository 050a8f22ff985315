#include "intake/formtipolavoro.h"

#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr std::pair<QStringView, QStringView> tabella[]{
    {u"Letto", u"soggetto allettato per debolezza, malattia o vecchiaia"},
    {u"Sedentario", u"lavorare seduti (80%) o non lavorare, movimento nessuno o scarso"},
    {u"Leggero", u"lavorare seduti (50%) e in piedi (50%), movimento leggero-medio, nessuna fatica"},
    {u"Medio", u"lavorare in piedi (60-70%), movimento molto, fatica leggera"},
    {u"Pesante", u"lavorare in piedi (80%), movimento molto, fatica medio-alta"},
};

QGridLayout* disegna_tabella() {
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  const auto metti = [griglia](QLabel* e, int riga, int colonna) {
    e->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    griglia->addWidget(e, riga, colonna);
  };
  metti(testa(u"Tipo"_s), 0, 0);
  metti(testa(u"Descrizione"_s), 0, 1);
  int riga = 0;
  for (const auto& [tipo, descrizione] : tabella) {
    auto* spiega = new QLabel(descrizione.toString());
    spiega->setProperty("ruolo", u"valore"_s);
    metti(testa(tipo.toString()), ++riga, 0);
    metti(spiega, riga, 1);
  }
  return griglia;
}

}  // namespace

Formtipolavoro::Formtipolavoro() {
  setObjectName(u"Formtipolavoro"_s);
  setWindowTitle(u"Schema tipo di lavoro"_s);
  setModal(true);
  Command1 = pulsante(u"Command1"_s, u"Chiudi"_s, u"Chiudi la finestra"_s);
  Command1->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(18, 16, 18, 12);
  colonna->setSpacing(12);
  colonna->addLayout(disegna_tabella());
  colonna->addWidget(Command1, 0, Qt::AlignHCenter);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command1, scarica<Formtipolavoro>);
}

void Formtipolavoro::reject() { esegui_regola(scarica<Formtipolavoro>); }
