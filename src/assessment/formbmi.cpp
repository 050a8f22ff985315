#include "assessment/formbmi.h"

#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int larghezza_testo = 400;
}

Formbmi::Formbmi() {
  setObjectName(u"Formbmi"_s);
  setWindowTitle(u"Body Mass Index"_s);
  setModal(true);
  Label1 = nominato(
      new QLabel(u"Il valore di BMI (Body Mass Index) o indice di massa corporea, consente di valutare rapidamente la "
                 "situazione del soggetto in esame, rispetto al suo peso teorico ideale. Questo valore si ricava "
                 "dividendo il peso in Kg per la statura in mt al quadrato. Le possibilità sono:"_s),
      u"Label1"_s);
  Label1->setWordWrap(true);
  Label1->setFixedWidth(larghezza_testo);
  Command1 = pulsante(u"Command1"_s, u"Chiudi"_s, u"Chiudi la finestra"_s);
  Command1->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(18, 16, 18, 12);
  colonna->setSpacing(12);
  colonna->addWidget(Label1);
  colonna->addLayout(disegna_classi());
  colonna->addLayout(disegna_conto());
  colonna->addWidget(Command1, 0, Qt::AlignHCenter);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  al_clic(Command1, scarica<Formbmi>);
}

QGridLayout* Formbmi::disegna_classi() {
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  for (int i = 0; i < int{classi_bmi.size()}; ++i) {
    const ClasseBmi& classe = classi_bmi[static_cast<std::size_t>(i)];
    for (int c = 0; c < 2; ++c) {
      auto* e = new QLabel((c == 0 ? classe.etichetta : classe.intervallo).toString());
      e->setProperty("ruolo", u"valore"_s);
      griglia->addWidget(e, i, c);
      griglia->setColumnStretch(c, 1);
    }
  }
  return griglia;
}

/// Weight / square of the stature, step by step.
QGridLayout* Formbmi::disegna_conto() {
  for (std::size_t i = 0; i < Txtpeso.size(); ++i) {
    Txtpeso[i] = campo_calcolato(nome_indice(u"Txtpeso", i));
    txtaltquadr[i] = campo_calcolato(nome_indice(u"txtaltquadr", i));
  }
  Txtalt = campo_calcolato(u"Txtalt"_s);
  Txtbmi = campo_calcolato(u"Txtbmi"_s);
  auto* g = new QGridLayout;
  g->setHorizontalSpacing(6);
  g->setVerticalSpacing(3);
  riga(*g, 0, u"Peso Kg"_s, Txtpeso[0]);
  riga(*g, 1, u"Statura mt"_s, Txtalt);
  riga(*g, 1, u"al quadrato"_s, txtaltquadr[0], 3);
  riga(*g, 2, u"BMI ="_s, Txtpeso[1]);
  riga(*g, 2, u"diviso"_s, txtaltquadr[1], 3);
  riga(*g, 2, u"="_s, Txtbmi, 5);
  Txtbmi->setAccessibleName(u"BMI"_s);
  g->setColumnStretch(6, 1);
  return g;
}

void Formbmi::scrivi(const ConteggioBmi& conteggio) {
  for (QLineEdit* c : Txtpeso) c->setText(conteggio.peso);
  for (QLineEdit* c : txtaltquadr) c->setText(conteggio.altezza_quadrata);
  Txtalt->setText(conteggio.altezza);
  Txtbmi->setText(conteggio.bmi);
}

void Formbmi::reject() { esegui_regola(scarica<Formbmi>); }
