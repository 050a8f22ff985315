#include "core/aspetto.h"
#include "reports/form_anteprima_diario.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza_nome = 176, larghezza_dose = 36, larghezza_testo = 90;

/// The levels' rows as the sheet lists them, with their boxes in `Text1`.
struct Colonna {
  QStringView titolo;
  QStringView etichette;
  std::array<std::size_t, 5> caselle;
};
constexpr QStringView nutrienti = u"Peso Kg.|Kcal|Protidi g.|Lipidi g.|Glucidi g.";
constexpr Colonna colonne[]{
    {u"Livello consigliato", nutrienti, {0, 1, 2, 3, 4}},
    {u"Livello attuale ", nutrienti, {9, 8, 7, 6, 5}},
    {u"Differenza", nutrienti, {14, 13, 12, 11, 10}},
    {u"Dati anamnestici", u"Tipo di lavoro|Costituzione|Peso ideale Kg.|Età anni|Peso Kg.", {15, 16, 17, 18, 19}},
};

using Foglio = Form_anteprima_diario;
struct ListaPasto {
  QStringView titolo, nomi, dosi;
  Foglio::Caselle Foglio::*caselle_nomi;
  Foglio::Caselle Foglio::*caselle_dosi;
};
constexpr ListaPasto liste[]{
    {u"Colazione", u"TxtCOLAZIONE", u"TxtDOSEC", &Foglio::TxtCOLAZIONE, &Foglio::TxtDOSEC},
    {u"Merenda", u"TxtMERENDA", u"TxtDOSEM", &Foglio::TxtMERENDA, &Foglio::TxtDOSEM},
    {u"Pranzo", u"TxtPRANZO", u"TxtDOSEP", &Foglio::TxtPRANZO, &Foglio::TxtDOSEP},
    {u"Cena", u"TxtCENA", u"TxtDOSECE", &Foglio::TxtCENA, &Foglio::TxtDOSECE},
};

}  // namespace

void Form_anteprima_diario::disegna() {
  setObjectName(u"Form_anteprima_diario"_s);
  setWindowTitle(u"Anteprima di stampa DIARIO ALIMENTARE"_s);
  Command1 = pulsante(u"Command1"_s, u"Stampa"_s, u"Stampa il foglio come si vede"_s);
  QSizePolicy posto = Command1->sizePolicy();
  posto.setRetainSizeWhenHidden(true);
  Command1->setSizePolicy(posto);
  auto* fuori = new QVBoxLayout(this);
  fuori->setSpacing(6);
  fuori->addLayout(disegna_testa());
  fuori->addLayout(disegna_livelli());
  fuori->addLayout(disegna_pasti());
  fuori->addWidget(Command1, 0, Qt::AlignRight);
  fuori->setSizeConstraint(QLayout::SetFixedSize);
}

QGridLayout* Form_anteprima_diario::disegna_testa() {
  auto* g = new QGridLayout;
  Txtdata = campo_calcolato(u"Txtdata"_s, larghezza_testo, Qt::AlignLeft);
  Txtstudio = campo_calcolato(u"Txtstudio"_s, 240, Qt::AlignLeft);
  Txtcliente = campo_calcolato(u"Txtcliente"_s, 240, Qt::AlignLeft);
  riga(*g, 0, u"Data"_s, Txtdata, 1);
  riga(*g, 0, u"Studio"_s, Txtstudio, 3);
  riga(*g, 0, u"Cliente"_s, Txtcliente, 5);
  g->setColumnStretch(6, 1);
  return g;
}

QHBoxLayout* Form_anteprima_diario::disegna_livelli() {
  auto* fila = new QHBoxLayout;
  for (const Colonna& c : colonne) {
    const Cornice box = cornice(c.titolo.toString());
    const QStringList etichette = c.etichette.toString().split(u'|');
    for (std::size_t i = 0; i < c.caselle.size(); ++i) {
      QLineEdit*& t = Text1.at(c.caselle[i]);
      const bool a_testo = c.caselle[i] == 15 || c.caselle[i] == 16;
      t = campo_calcolato(nome_indice(u"Text1", c.caselle[i]), a_testo ? larghezza_testo : larghezza_numero,
                          a_testo ? Qt::AlignLeft : Qt::AlignRight);
      riga(*box.griglia, static_cast<int>(i), etichette[static_cast<qsizetype>(i)], t);
    }
    fila->addWidget(box.box);
  }
  return fila;
}

QHBoxLayout* Form_anteprima_diario::disegna_pasti() {
  auto* fila = new QHBoxLayout;
  for (const ListaPasto& l : liste) {
    const Cornice box = cornice(l.titolo.toString());
    box.griglia->setHorizontalSpacing(2);
    box.griglia->setVerticalSpacing(1);
    for (std::size_t i = 0; i < posti; ++i) {
      QLineEdit*& nome = (this->*l.caselle_nomi)[i];
      QLineEdit*& dose = (this->*l.caselle_dosi)[i];
      nome = campo_calcolato(nome_indice(l.nomi, i), larghezza_nome, Qt::AlignLeft);
      dose = campo_calcolato(nome_indice(l.dosi, i), larghezza_dose);
      box.griglia->addWidget(nome, static_cast<int>(i), 0);
      box.griglia->addWidget(dose, static_cast<int>(i), 1);
    }
    fila->addWidget(box.box);
  }
  return fila;
}
