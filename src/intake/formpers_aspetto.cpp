#include "core/aspetto.h"
#include "core/schermate.h"
#include "intake/formpers.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A list with its label; the lines are parted by "|". A field where there are no lines.
struct Voce {
  QStringView etichetta;
  QStringView voci = {};
};

struct Uso {
  Voce voce;
  QStringView unita, suggerimento;
};

constexpr QStringView fino_a_cinque = u"0|1|2|3|4|5|> 5", fino_a_quattro = u"0|1|2|3|4|>4", si_no = u"Si|No";
constexpr QStringView giudizi = u"Buona|Mediocre|Scarsa|Pessima", sonni = u"regolare|leggero|pesante|irregolare";
constexpr QStringView in_terapia = u"Cliccare se in terapia";

constexpr Uso uso[]{
    {{u"Fumo", u"0|1|2|5|10|20|30|40|> 40"}, u"Sigarette al giorno", u"Un toscano = 2 sigarette"},
    {{u"Vino ai pasti", fino_a_cinque}, u"Bicchieri da tavola (180 ml)", u"Bicchiere da 180 ml."},
    {{u"Liquori", fino_a_cinque}, u"Bicchieri da dessert (120 ml)", u"Bicchiere da 120 ml."},
    {{u"Caffè/Thè", fino_a_cinque}, u"Tazzine/Bustine", u"Caffè casalingo lungo = 2 tazzine"},
    {{u"Acqua", u"0|0,5|1|1,5|2|> 2"}, u"Litri al giorno", {}},
};

constexpr Voce fisiologica[]{
    {u"Appetito", u"scarso|normale|forte|irregolare"},
    {u"Pasti", u"regolari|irregolari|abbondanti|fast-food"},
    {u"Digestione", u"lenta|pesantezza|normale|veloce|acidità"},
    {u"Alvo", u"regolare|stitichezza lieve|stitichezza forte|irregolare"},
    {u"Diuresi", u"regolare|frequente|notturna"},
    {u"Sonno: qualità", sonni},
    {u"Sonno: quantità", sonni},
};
constexpr std::size_t prima_in_terapia = 2;  // the first of them that has a tick

constexpr Voce psichico[]{
    {u"Autostima", u"Si|No|Parzialmente"},
    {u"Stato psicologico", u"Depresso|Calmo|Stanco|Emotivo|Ansioso|Stressato"},
    {u"Aspettative",
     u"Diminuire di peso|Migliorare la salute|Migliorare la linea|Migliorare la mobilità|"
     "Mantenere il peso raggiunto"},
    {u"Adattabilità al nuovo", u"Pessima|Mediocre|Normale|Buona|Eccellente"},
    {u"Sessualità", giudizi},
    {u"Rapporto col partner", giudizi},
};
constexpr QStringView turbe[]{u"Turbe cognitive", u"Turbe affettive"};

/// A row of the women's frame: an element of Combo1 where it has lines, of Text23 where it has none.
struct Rosa {
  std::size_t indice;
  Voce voce;
};
constexpr Rosa rosa[]{
    {0, {u"Età menarca", u"< 10|10-11|12-13|14-15|16-17|>17"}},
    {0, {u"Ciclo mensile"}},
    {1, {u"Gravidanze", fino_a_quattro}},
    {2, {u"Parti", fino_a_quattro}},
    {1, {u"Problemi"}},
    {3, {u"Menopausa"}},
    {3, {u"Osteoporosi", u"Nessuna|Lieve|Media|Forte|Avanzata|Molto forte"}},
    {4, {u"In gravidanza", si_no}},
    {5, {u"di mesi", u"2|3|4|5|6|7|8|A termine"}},
    {6, {u"In allattamento", si_no}},
    {7, {u"da mesi", u"1|2|3|4|5|6|7|8|>8"}},
    {5, {u"Progestinici"}},
    {6, {u"Estrogeni"}},
    {2, {u"Pillola anticoncezionale"}},
};
constexpr std::size_t osteoporosi = 3, nota_osteoporosi = 4;
constexpr int larghezza_rosa = 235, larghezza_etichetta_rosa = 90;  // the longest label takes two lines
constexpr int righe_sopra = 8, righe_psichico = 5;                  // the two share the height by their rows

/// A list of fixed lines in a grid, with its label one column left of it.
QComboBox* lista(QGridLayout& griglia, int riga, int colonna, QStringView nome, std::size_t i, const Voce& v,
                 int campata = 1) {
  QComboBox* l = nominato(lista_fissa(v.voci), nome_indice(nome, i));
  griglia.addWidget(etichetta_di(v.etichetta.toString(), l), riga, colonna - 1);
  griglia.addWidget(l, riga, colonna, 1, campata);
  return l;
}

QLineEdit* campo(QGridLayout& griglia, int riga_griglia, int colonna, const QString& nome, QStringView etichetta) {
  auto* c = nominato(new QLineEdit, nome);
  riga(griglia, riga_griglia, etichetta.toString(), c, colonna);
  return c;
}

QCheckBox* terapia(QStringView nome, std::size_t i, QStringView che) {
  auto* c = nominato(new QCheckBox, nome_indice(nome, i), in_terapia.toString());
  c->setAccessibleName(che.toString() + u", in terapia"_s);
  return c;
}

QLabel* testa_terapia() {
  QLabel* e = testa(in_terapia.toString());
  e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  e->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // its row grows no more than the others
  return e;
}

QPushButton* bottone_nota(QStringView nome, std::size_t i, QStringView che) {
  return pulsantino(nome_indice(nome, i), u"…"_s, che.toString() + u" nel blocco note"_s);
}

}  // namespace

void Formpers::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formpers"_s);
  setWindowTitle(u"Anamnesi fisiologica & Dati personali"_s);
  auto* colonne = new QHBoxLayout(this);
  colonne->setContentsMargins(6, 4, 6, 6);
  colonne->setSpacing(6);
  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(6);
  auto* sopra = new QHBoxLayout;
  sopra->setSpacing(6);
  auto* abitudini = new QVBoxLayout;
  abitudini->setSpacing(6);
  abitudini->addWidget(disegna_uso(), int{std::size(uso)});
  abitudini->addWidget(disegna_medico(), 2);
  sopra->addLayout(abitudini);
  sopra->addWidget(disegna_fisiologica(), 1);
  sinistra->addLayout(sopra, righe_sopra);
  sinistra->addWidget(disegna_psichico(), righe_psichico);
  colonne->addLayout(sinistra, 1);
  colonne->addWidget(disegna_rosa());
}

QWidget* Formpers::disegna_uso() {
  const Cornice c = cornice(u"Uso/Abuso"_s);
  for (std::size_t i = 0; i < Combo6.size(); ++i) {
    const int r = static_cast<int>(i);
    Combo6[i] = lista(*c.griglia, r, 1, u"Combo6", i, uso[i].voce);
    Combo6[i]->setToolTip(uso[i].suggerimento.toString());
    Combo6[i]->setFixedWidth(larghezza_numero);
    c.griglia->addWidget(new QLabel(uso[i].unita.toString()), r, 2);
  }
  return c.box;
}

QWidget* Formpers::disegna_medico() {
  const Cornice c = cornice(u"Medico ed esenzioni"_s);
  Txtmed = campo(*c.griglia, 0, 1, u"Txtmed"_s, u"Medico curante Dr.");
  c.griglia->addWidget(Cmdnote[2] = bottone_nota(u"Cmdnote", 2, u"Medico curante"), 0, 2);
  TxtASL = campo(*c.griglia, 1, 1, u"TxtASL"_s, u"Esenzioni ASL");
  c.griglia->addWidget(Cmdnote[3] = bottone_nota(u"Cmdnote", 3, u"Esenzioni ASL"), 1, 2);
  return c.box;
}

QWidget* Formpers::disegna_fisiologica() {
  const Cornice c = cornice(u"Anamnesi fisiologica"_s);
  for (std::size_t i = 0; i < Combo17.size(); ++i) {
    const bool con_spunta = i >= prima_in_terapia;
    const int r = static_cast<int>(i) + con_spunta;
    if (i == prima_in_terapia) c.griglia->addWidget(testa_terapia(), r - 1, 0, 1, 3);
    Combo17[i] = lista(*c.griglia, r, 1, u"Combo17", i, fisiologica[i]);
    if (!con_spunta) continue;
    QCheckBox*& spunta = Check1[i - prima_in_terapia];
    spunta = terapia(u"Check1", i - prima_in_terapia, fisiologica[i].etichetta);
    c.griglia->addWidget(spunta, r, 2);
  }
  c.griglia->setColumnStretch(1, 1);
  return c.box;
}

QWidget* Formpers::disegna_psichico() {
  const Cornice c = cornice(u"Vissuto psichico"_s);
  constexpr std::size_t a_sinistra[]{0, 3, 2, 5}, a_destra[]{1, 4};  // elements of Combo16, row by row
  c.griglia->addWidget(testa_terapia(), 0, 2, 1, 4);
  for (std::size_t i = 0; i < Check2.size(); ++i) {
    const int r = static_cast<int>(i) + 1;
    const std::size_t s = a_sinistra[i];
    Combo16[s] = lista(*c.griglia, r, 1, u"Combo16", s, psichico[s]);
    QStringView che;
    if (i < Text2.size()) {
      che = turbe[i];
      Text2[i] = campo(*c.griglia, r, 3, nome_indice(u"Text2", i), che);
      c.griglia->addWidget(Cmdnote[i] = bottone_nota(u"Cmdnote", i, che), r, 4);
    } else {
      const std::size_t d = a_destra[i - Text2.size()];
      che = psichico[d].etichetta;
      Combo16[d] = lista(*c.griglia, r, 3, u"Combo16", d, psichico[d], 2);
    }
    c.griglia->addWidget(Check2[i] = terapia(u"Check2", i, che), r, 5);
  }
  c.griglia->setColumnMinimumWidth(1, 168);  // the longest expectation in full
  c.griglia->setColumnStretch(3, 1);
  return c.box;
}

QWidget* Formpers::disegna_rosa() {
  const Cornice c = cornice(u"Femmine"_s);
  FrameRosa = nominato(c.box, u"FrameRosa"_s);
  FrameRosa->setFixedWidth(larghezza_rosa);
  for (int r = 0; r < int{std::size(rosa)}; ++r) disegna_riga_rosa(*c.griglia, r);
  Combo1[osteoporosi]->setEditable(true);
  Combo1[osteoporosi]->setInsertPolicy(QComboBox::NoInsert);
  Combo1[osteoporosi]->setCurrentIndex(-1);
  for (auto* etichetta : c.box->findChildren<QLabel*>()) {
    etichetta->setWordWrap(true);
    etichetta->setFixedWidth(larghezza_etichetta_rosa);
  }
  c.griglia->setColumnStretch(1, 1);
  return c.box;
}

/// Lists take the place of the note's button too, but for the osteoporosis, which has one.
void Formpers::disegna_riga_rosa(QGridLayout& griglia, int riga_griglia) {
  const auto& [i, voce] = rosa[riga_griglia];
  const bool fissa = !voce.voci.isEmpty(), con_nota = !fissa || i == osteoporosi;
  if (fissa) {
    Combo1[i] = lista(griglia, riga_griglia, 1, u"Combo1", i, voce, con_nota ? 1 : 2);
  } else {
    Text23[i] = campo(griglia, riga_griglia, 1, nome_indice(u"Text23", i), voce.etichetta);
  }
  if (!con_nota) return;
  const std::size_t nota = fissa ? nota_osteoporosi : i;
  griglia.addWidget(Command8[nota] = bottone_nota(u"Command8", nota, voce.etichetta), riga_griglia, 2);
}
