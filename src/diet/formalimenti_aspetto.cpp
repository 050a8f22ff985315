#include "core/aspetto.h"
#include "core/schermate.h"
#include "diet/formalimenti.h"

#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza_passo = 560, larghezza_griglia = 428, altezza_casella = 18;

constexpr std::array<QStringView, 7> pulsanti_pasti{u"Colazione", u"Colazione Bio", u"Spuntino",   u"Pranzo",
                                                    u"Merenda",   u"Cena",          u"Integratore"};

/// A step of two choices and its button to go on.
struct Passo {
  QStringView nome, titolo, guida, opzione, conferma;
  std::array<QStringView, 2> scritte;
};

QGroupBox* disegna_passo(const Passo& p, std::array<QRadioButton*, 2>& opzioni, QPushButton*& continua) {
  const Cornice c = cornice(p.titolo.toString());
  c.box->setObjectName(p.nome.toString());
  c.box->setFixedWidth(larghezza_passo);
  c.griglia->setVerticalSpacing(8);
  c.griglia->addWidget(guida(p.guida.toString()), 0, 0);
  for (std::size_t i = 0; i < opzioni.size(); ++i) {
    opzioni[i] =
        nominato(new QRadioButton(p.scritte[i].toString()), nome_indice(p.opzione, i), p.scritte[i].toString());
    c.griglia->addWidget(opzioni[i], static_cast<int>(i) + 1, 0);
  }
  continua = pulsante(p.conferma.toString(), u"Continua"_s, u"Conferma la scelta e continua"_s, u"avanti"_s);
  c.griglia->addLayout(barra({}, {continua}), 3, 0);
  return c.box;
}

RiquadroPasto disegna_riquadro(const InsiemeCaselle& insieme) {
  const QString nome = insieme.nome.toString();
  const Cornice c = cornice(insieme.titolo.toString());
  RiquadroPasto r{.Frame = nominato(c.box, u"Frame"_s + nome), .Check = {}};
  c.griglia->setVerticalSpacing(0);
  QLabel* frase = guida(u"Togliere la spunta per l'eliminazione rapida di gruppi alimentari."_s);
  frase->setContentsMargins(0, 0, 0, 3);
  c.griglia->addWidget(frase, 0, 0);
  int riga_griglia = 1;
  for (const Casella& voce : insieme.caselle) {
    auto* casella = nominato(new QCheckBox(voce.scritta.toString()), nome_indice(u"Check"_s + nome, r.Check.size()),
                             u"Togliere la spunta per eliminare il gruppo"_s);
    casella->setChecked(true);
    casella->setFixedHeight(altezza_casella);
    r.Check.push_back(casella);
    c.griglia->addWidget(casella, riga_griglia++, 0);
  }
  c.griglia->setRowStretch(riga_griglia++, 1);
  r.CmdConferma = pulsante(u"CmdConferma"_s + nome, u"Conferma"_s, u"Cliccare per confermare il pasto"_s);
  c.griglia->addWidget(r.CmdConferma, riga_griglia, 0);
  return r;
}

}  // namespace

void Formalimenti::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formalimenti"_s);
  setWindowTitle(u"Scelta Alimenti"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(6, 4, 6, 6);
  colonna->setSpacing(6);
  FrameSceltaFF = disegna_passo_pranzo();
  FrameSceltaAlimenti = disegna_passo_scelta();
  for (QGroupBox* passo : {FrameSceltaFF, FrameSceltaAlimenti}) colonna->addWidget(passo, 1, Qt::AlignCenter);
  FramePulsantiPasti = disegna_pasti();
  colonna->addWidget(FramePulsantiPasti);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(6);
  MSFlex1 = griglia_alimenti(u"MSFlex1"_s);
  MSFlex1->setToolTip(u"Cliccare nelle colonne Ok, LV e SD per mettere o togliere la spunta"_s);
  MSFlex1->setAccessibleName(u"Alimenti"_s);
  MSFlex1->setFixedWidth(larghezza_griglia);
  modello_ = static_cast<ModelloScheda*>(MSFlex1->model());
  fila->addWidget(MSFlex1);
  fila->addWidget(disegna_caselle(), 1);
  colonna->addLayout(fila, 1);
  for (QWidget* w : {static_cast<QWidget*>(FrameSceltaAlimenti), static_cast<QWidget*>(FramePulsantiPasti),
                     static_cast<QWidget*>(MSFlex1), destra_}) {
    w->hide();
  }
}

QGroupBox* Formalimenti::disegna_passo_pranzo() {
  return disegna_passo({u"FrameSceltaFF",
                        u"Step 1: Scelta del tipo di pranzo",
                        u"Selezionare il tipo di pranzo consumato abitualmente dal lunedì al venerdì",
                        u"OptFF",
                        u"CmdContinuaFF",
                        {u"Pranzo normale, tipo casalingo.", u"Fast Food o Piatti Pronti."}},
                       OptFF, CmdContinuaFF);
}

QGroupBox* Formalimenti::disegna_passo_scelta() {
  return disegna_passo({u"FrameSceltaAlimenti",
                        u"Step 2: Scelta degli alimenti",
                        u"Selezionare la modalità di scelta degli alimenti",
                        u"OptAlim",
                        u"CmdContinuaAlimenti",
                        {u"Il programma selezionerà automaticamente solo alimenti semplici o comuni.",
                         u"Desidero selezionare singolarmente gli alimenti o i gruppi graditi o non tollerati dal "
                         "soggetto."}},
                       OptAlim, CmdContinuaAlimenti);
}

QGroupBox* Formalimenti::disegna_pasti() {
  const Cornice c = cornice(u"Pasto"_s);
  c.box->setObjectName(u"FramePulsantiPasti"_s);
  c.griglia->setContentsMargins(8, 4, 8, 6);
  for (std::size_t i = 0; i < CmdPasto.size(); ++i) {
    const QString scritta = pulsanti_pasti[i].toString();
    CmdPasto[i] = pulsante(nome_indice(u"CmdPasto", i), scritta, u"Alimenti del pasto: "_s + scritta);
    c.griglia->addWidget(CmdPasto[i], 0, static_cast<int>(i));
    c.griglia->setColumnStretch(static_cast<int>(i), 1);
  }
  return c.box;
}

/// Boxes of all meals and list of the chosen in one place, one of them shown at a time.
QWidget* Formalimenti::disegna_caselle() {
  destra_ = new QWidget;
  auto* posto = new QGridLayout(destra_);
  posto->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = 0; i < riquadri.size(); ++i) {
    riquadri[i] = disegna_riquadro(insiemi_caselle()[i]);
    posto->addWidget(riquadri[i].Frame, 0, 0);
  }
  MSFlex2 = griglia_scelti(u"MSFlex2"_s);
  MSFlex2->setToolTip(u"Alimenti accettati e obbligatori del pasto"_s);
  MSFlex2->setAccessibleName(u"Alimenti Scelti"_s);
  scelti_ = static_cast<ModelloScelti*>(MSFlex2->model());
  posto->addWidget(MSFlex2, 0, 0);
  guida_integratori_ = guida(u"Cliccare su un integratore per variarlo, eliminarlo o inserirne un altro."_s);
  posto->addWidget(guida_integratori_, 0, 0, Qt::AlignTop);
  guida_integratori_->hide();
  azzera_frame();
  return destra_;
}

void Formalimenti::mostra_pasti() {
  for (QWidget* w : {static_cast<QWidget*>(FramePulsantiPasti), static_cast<QWidget*>(MSFlex1), destra_}) w->show();
  const auto apribile = std::ranges::find_if(CmdPasto, &QPushButton::isEnabled);
  if (apribile != CmdPasto.end()) (*apribile)->setFocus();
}

/// Yellow for the meal on display.
void Formalimenti::colora_pulsanti(std::size_t scelto) {
  for (std::size_t i = 0; i < CmdPasto.size(); ++i) {
    CmdPasto[i]->setProperty("scelto", i == scelto);
    CmdPasto[i]->style()->unpolish(CmdPasto[i]);
    CmdPasto[i]->style()->polish(CmdPasto[i]);
  }
}
