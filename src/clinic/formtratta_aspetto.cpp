#include "clinic/formtratta.h"
#include "core/aspetto.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int colonna_gruppo = 0, colonna_misura = 1, prima_visita = 2;
constexpr int fila_date = 1, larghezza_gruppo = 106, larghezza_nome = 122, larghezza_radio = 17;

/// The rows of measures under one caption; the weight's own caption says it all.
struct Gruppo {
  QStringView scritta;
  std::size_t da, a;
};
constexpr Gruppo gruppi[]{
    {u"", 0, 0}, {u"Circonferenze cm.", 1, 5}, {u"Plicometria mm.", 6, 9}, {u"Impedenziometria %", 10, 12}};

int colonna_visita(std::size_t visita) { return prima_visita + static_cast<int>(visita); }

/// The boxes of a row. What comes from the master data each time is for reading.
void disponi(QGridLayout& griglia, Formtratta::Serie& serie, QStringView nome, const QString& detto, int fila,
             bool prima_calcolata = false) {
  for (std::size_t i = 0; i < serie.size(); ++i) {
    serie[i] = nominato(new QLineEdit, nome_indice(nome, i), detto);
    serie[i]->setAccessibleName(u"%1, visita %2"_s.arg(detto).arg(i + 1));
    griglia.addWidget(serie[i], fila, colonna_visita(i));
  }
  if (!prima_calcolata) return;
  serie[0]->setReadOnly(true);
  serie[0]->setFocusPolicy(Qt::ClickFocus);
  serie[0]->setToolTip(u"Dalla scheda anagrafica"_s);
}

}  // namespace

void Formtratta::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formtratta"_s);
  setWindowTitle(u"Controlli"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(6, 4, 6, 6);
  colonna->setSpacing(6);
  colonna->addWidget(disegna_rilevamenti(), 1);
  colonna->addLayout(disegna_grafico());
}

QWidget* Formtratta::disegna_rilevamenti() {
  const Cornice c = cornice(u"Rilevamenti periodici dell'andamento"_s);
  c.griglia->setHorizontalSpacing(4);
  c.griglia->setVerticalSpacing(4);
  c.griglia->addWidget(testa(u"Inizio"_s), 0, prima_visita);
  c.griglia->addWidget(testa(u"Controlli"_s), 0, prima_visita + 1, 1, static_cast<int>(visite) - 1);
  c.griglia->addWidget(new QLabel(u"Data"_s), fila_date, colonna_gruppo);
  disponi(*c.griglia, Text24, u"Text24", u"Data della visita"_s, fila_date, true);
  auto* scelta = new QButtonGroup(this);
  int fila = fila_date + 1;
  for (const Gruppo& g : gruppi) {
    if (!g.scritta.isEmpty()) c.griglia->addWidget(new QLabel(g.scritta.toString()), fila, colonna_gruppo);
    for (std::size_t m = g.da; m <= g.a; ++m) {
      disegna_misura(*c.griglia, m, fila++);
      scelta->addButton(Option3[m]);
    }
    c.griglia->setRowMinimumHeight(fila++, 4);
  }
  c.griglia->addWidget(new QLabel(u"Note"_s), fila, colonna_gruppo);
  disponi(*c.griglia, Text22, u"Text22", u"Nota della visita"_s, fila);
  for (std::size_t i = 0; i < visite; ++i) {
    Command13[i] = pulsante(nome_indice(u"Command13", i), u"Nota…"_s, u"Apri blocco note per la visita"_s);
    Command13[i]->setAccessibleName(u"Nota della visita %1 nel blocco note"_s.arg(i + 1));
    c.griglia->addWidget(Command13[i], fila + 1, colonna_visita(i));
    c.griglia->setColumnStretch(colonna_visita(i), 1);
  }
  c.griglia->setRowStretch(c.griglia->rowCount(), 1);
  c.griglia->setColumnMinimumWidth(colonna_gruppo, larghezza_gruppo);
  c.griglia->setColumnMinimumWidth(colonna_misura, larghezza_nome);
  return c.box;
}

void Formtratta::disegna_misura(QGridLayout& griglia, std::size_t misura, int fila) {
  const Misura& m = misure[misura];
  const QString scritta = m.scritta.toString();
  Option3[misura] =
      nominato(new QRadioButton(scritta), nome_indice(u"Option3", misura), u"Rilevamento da mostrare nel grafico"_s);
  QString detto = scritta;
  if (misura == 0) {
    griglia.addWidget(Option3[misura], fila, colonna_gruppo);
  } else if (!scritta.isEmpty()) {
    griglia.addWidget(Option3[misura], fila, colonna_misura);
  } else {
    const std::size_t libera = misura - prima_misura_libera;
    detto = u"Circonferenza libera %1"_s.arg(libera + 1);
    Option3[misura]->setAccessibleName(detto);
    txtCirco[libera] =
        nominato(new QLineEdit, nome_indice(u"txtCirco", libera), u"Nome della circonferenza, a scelta"_s);
    txtCirco[libera]->setAccessibleName(u"Nome della circonferenza libera %1"_s.arg(libera + 1));
    Option3[misura]->setFixedWidth(larghezza_radio);
    QHBoxLayout* nome = barra({Option3[misura], txtCirco[libera]}, {});
    nome->setStretch(1, 1);
    nome->setSpacing(1);
    griglia.addLayout(nome, fila, colonna_misura);
  }
  disponi(griglia, this->*m.serie, m.nome, detto, fila, misura == 0);
  for (QLineEdit* c : this->*m.serie) c->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QLayout* Formtratta::disegna_grafico() {
  auto* tipo = new QButtonGroup(this);
  const std::array scritte{u"lineare"_s, u"a barre"_s};
  for (std::size_t i = 0; i < Option4.size(); ++i) {
    Option4[i] = nominato(new QRadioButton(scritte[i]), nome_indice(u"Option4", i), u"Tipo di grafico"_s);
    tipo->addButton(Option4[i]);
  }
  Command10 = pulsante(u"Command10"_s, u"Grafico"_s, u"Mostra l'andamento del rilevamento scelto"_s);
  QLabel* come = guida(u"Grafico: scegliere un rilevamento e il tipo"_s);
  come->setWordWrap(false);
  return barra({come}, {Option4[0], Option4[1], Command10});
}
