#include "base/pasti.h"
#include "core/aspetto.h"
#include "core/griglie.h"
#include "core/schermate.h"
#include "diet/formelabora.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString sfondo_bianco = u"#ffffff"_s, sfondo_normale = u"#eef1ef"_s, sfondo_scelto = u"#ffff80"_s;

QLabel* casella(const QString& nome, std::size_t indice, Qt::Alignment verso) {
  auto* c = nominato(new QLabel, nome_indice(nome, indice));
  c->setProperty("ruolo", u"cibo"_s);
  c->setAlignment(verso | Qt::AlignVCenter);
  c->setFixedHeight(17);
  return c;
}

QPushButton* grammo(const QString& nome, const QString& segno, const QString& suggerimento) {
  QPushButton* b = pulsante(nome, segno, suggerimento);
  b->setFixedSize(30, 26);
  b->setAccessibleName(suggerimento);
  return b;
}

}  // namespace

void Formelabora::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formelabora"_s);
  setWindowTitle(u"Elaborazione Dieta"_s);
  auto* colonne = new QHBoxLayout(this);
  colonne->setContentsMargins(6, 4, 6, 6);
  colonne->setSpacing(6);
  colonne->addWidget(disegna_scelte());
  auto* destra = new QVBoxLayout;
  destra->setSpacing(6);
  destra->addWidget(disegna_alimenti(), 1);
  destra->addWidget(disegna_valori());
  colonne->addLayout(destra, 1);
  Timer1 = new QTimer(this);
  Timer1->setInterval(5000);
  Picmemo = nominato(new QLabel(this), u"Picmemo"_s);
  Picmemo->setPixmap(icona(u"memo"_s).pixmap(120, 90));
  Picmemo->setGeometry(597, 160, 120, 90);
  Picmemo->hide();
  colora_righe(-1);
}

QWidget* Formelabora::disegna_scelte() {
  const Cornice c = cornice(u"Dieta"_s);
  c.box->setFixedWidth(206);
  int riga_griglia = 0;
  const auto sotto = [&](QWidget* w) { c.griglia->addWidget(w, riga_griglia++, 0); };
  sotto(guida(u"Selezionare nell'ordine:"_s));
  Combo1 = nominato(new Lista, u"Combo1"_s, u"Settimana della dieta"_s);
  for (int i = 1; i <= settimane; ++i) Combo1->addItem(u"%1° settimana"_s.arg(i));
  Combo1->setCurrentIndex(-1);
  sotto(etichetta_di(u"settimana:"_s, Combo1));
  sotto(Combo1);
  List1 = nominato(new QListWidget, u"List1"_s, u"Giorno da mostrare"_s);
  List1->addItems({u"Lunedì"_s, u"Martedì"_s, u"Mercoledì"_s, u"Giovedì"_s, u"Venerdì"_s, u"Sabato"_s, u"Domenica"_s});
  distanzia_voci(List1);
  List1->setFixedHeight(giorni * altezza_voce + 2);
  List1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  sotto(etichetta_di(u"giorno:"_s, List1));
  sotto(List1);
  sotto(new QLabel(u"pasto:"_s));
  for (std::size_t i = 0; i < Option1.size(); ++i) {
    Option1[i] =
        nominato(new QRadioButton(nomi_pasti[i].toString()), nome_indice(u"Option1", i), u"Pasto da mostrare"_s);
    sotto(Option1[i]);
  }
  c.griglia->setRowStretch(riga_griglia++, 1);
  ProgressBar1 = nominato(new QProgressBar, u"ProgressBar1"_s);
  ProgressBar1->setRange(0, giorni * pasti);
  ProgressBar1->setFormat(u"%v di %m pasti"_s);
  ProgressBar1->setFixedHeight(18);
  QSizePolicy fermo = ProgressBar1->sizePolicy();
  fermo.setRetainSizeWhenHidden(true);
  ProgressBar1->setSizePolicy(fermo);
  ProgressBar1->hide();
  sotto(ProgressBar1);
  test = pulsante(u"test"_s, u"Elaborazione DIETA"_s, u"Elabora la settimana selezionata"_s);
  test->setFixedHeight(42);
  sotto(test);
  return c.box;
}

QWidget* Formelabora::disegna_alimenti() {
  const Cornice c = cornice(u"Pasto in evidenza"_s);
  c.griglia->setVerticalSpacing(1);
  c.griglia->addWidget(testa(u"Gruppi Alimentari"_s), 0, 0);
  c.griglia->addWidget(testa(u"Quantità gr."_s), 0, 1);
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    Text1[i] = casella(u"Text1"_s, i, Qt::AlignLeft);
    Text1[i]->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    Text1[i]->setCursor(Qt::PointingHandCursor);
    Text1[i]->setToolTip(u"Cliccare 2 volte per variare la quantità"_s);
    Text2[i] = casella(u"Text2"_s, i, Qt::AlignRight);
    c.griglia->addWidget(Text1[i], static_cast<int>(i) + 1, 0);
    c.griglia->addWidget(Text2[i], static_cast<int>(i) + 1, 1);
  }
  c.griglia->setColumnStretch(0, 1);
  c.griglia->setColumnMinimumWidth(1, 76);
  auto* lato = new QVBoxLayout;
  lato->setSpacing(3);
  Command1 = grammo(u"Command1"_s, u"+"_s, u"Un grammo in più"_s);
  Command3 = grammo(u"Command3"_s, u"−"_s, u"Un grammo in meno"_s);
  lato->addWidget(Command1);
  lato->addWidget(Command3);
  Label1 =
      nominato(guida(u"Per variare le quantità in grammi proposte dal programma, cliccare 2 volte sull'alimento da "
                     "variare, poi con i tasti a lato inserire la quantità voluta. Salvare di nuovo la dieta per "
                     "renderle operative."_s),
               u"Label1"_s);
  lato->addWidget(Label1);
  lato->addStretch();
  const std::array scritte{u"Salva "_s, u"Annulla Modifiche"_s};
  const std::array suggerimenti{u"Salva la dieta elaborata ed eventualmente modificata"_s,
                                u"Annulla TUTTE le variazioni apportate"_s};
  for (std::size_t i = 0; i < Command5.size(); ++i) {
    Command5[i] = pulsante(nome_indice(u"Command5", i), scritte[i], suggerimenti[i]);
    lato->addWidget(Command5[i]);
  }
  c.griglia->addLayout(lato, 0, 2, static_cast<int>(Text1.size()) + 1, 1);
  c.griglia->setColumnMinimumWidth(2, 150);
  return c.box;
}

QWidget* Formelabora::disegna_valori() {
  const Cornice c = cornice(u"Valori calorici"_s);
  const std::array colonne{u"Ideali"_s, u"Elaborati"_s, u"Pasto in evidenza e %"_s};
  const std::array righe{u"Calorie Tot."_s, u"Protidi"_s, u"Lipidi"_s, u"Glucidi"_s};
  for (std::size_t k = 0; k < colonne.size(); ++k) {
    const int colonna = 1 + 3 * static_cast<int>(k);
    c.griglia->addWidget(testa(colonne[k]), 0, colonna, 1, 2);
    c.griglia->setColumnMinimumWidth(colonna + 2, 10);
    for (std::size_t r = 0; r < righe.size(); ++r) {
      for (std::size_t meta = 0; meta < 2; ++meta) {
        const std::size_t i = k * 8 + meta * 4 + r;
        Text4[i] = campo_calcolato(nome_indice(u"Text4", i));
        Text4[i]->setAccessibleName(righe[r] + u", "_s + colonne[k] + (meta ? u", per cento"_s : u""_s));
        c.griglia->addWidget(Text4[i], static_cast<int>(r) + 1, colonna + static_cast<int>(meta));
      }
    }
  }
  for (std::size_t r = 0; r < righe.size(); ++r) c.griglia->addWidget(new QLabel(righe[r]), static_cast<int>(r) + 1, 0);
  c.griglia->setColumnStretch(0, 1);
  return c.box;
}

/// White lines, or the chosen one in yellow among grey ones.
void Formelabora::colora_righe(int scelta) {
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    const QString sfondo = scelta < 0 ? sfondo_bianco : static_cast<int>(i) == scelta ? sfondo_scelto : sfondo_normale;
    Text1[i]->setStyleSheet(u"background:%1"_s.arg(sfondo));
  }
}
