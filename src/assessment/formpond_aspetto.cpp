#include "assessment/formpond.h"
#include "assessment/formule.h"
#include "core/aspetto.h"
#include "core/schermate.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>
#include <span>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza_scala = 150, altezza_banda = 55;
constexpr int larghezza_sinistra = 274;  // of the panels left on the first face
constexpr int larghezza_livelli = 274;   // of the panels right on the second face
constexpr int larghezza_spunta = 18, larghezza_nome = 130, larghezza_cifra = 60, rientro_cifra = 12;  // of a level
constexpr int larghezza_nutriente = 52;
constexpr std::array colonne_nutrienti{1, 2, 4, 5};  // grams per kilogram, grams, kcal, percent
constexpr QColor su_fondo_scuro{0xdf, 0xee, 0xe8}, marcato{0xff, 0xff, 0x00};

template <std::size_t N>
void calcolati(std::array<QLineEdit*, N>& campi, const QString& nome, int larghezza = larghezza_numero) {
  for (std::size_t i = 0; i < N; ++i) campi[i] = campo_calcolato(nome_indice(nome, i), larghezza);
}

constexpr std::array<QStringView, 4> righe_metabolismo{u"Peso Kg", u"B. M. I.", u"Metabolismo basale Kc",
                                                       u"Fabbisogno tot. calorie"};

/// A label that leaves spare height to the rows around it.
QLabel* bassa(QLabel* etichetta) {
  etichetta->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return etichetta;
}

/// Two columns of figures under their heads, with the labels of the rows left of them.
void due_colonne(QGridLayout& g, int riga, std::span<const QStringView> etichette, std::span<QLineEdit* const> attuale,
                 std::span<QLineEdit* const> ideale) {
  g.addWidget(bassa(testa(u"ATTUALE"_s)), riga, 1);
  g.addWidget(bassa(testa(u"IDEALE"_s)), riga, 2);
  for (std::size_t i = 0; i < etichette.size(); ++i) {
    const int r = riga + 1 + static_cast<int>(i);
    const QString scritta = etichette[i].toString();
    g.addWidget(etichetta_di(scritta, attuale[i]), r, 0);
    g.addWidget(attuale[i], r, 1);
    g.addWidget(ideale[i], r, 2);
    attuale[i]->setAccessibleName(scritta + u", attuale"_s);
    ideale[i]->setAccessibleName(scritta + u", ideale"_s);
  }
  g.setColumnStretch(0, 1);
}

QPushButton* freccia(const QString& nome, std::size_t indice, bool su, const QString& suggerimento) {
  QPushButton* b = pulsante(nome_indice(nome, indice), {}, suggerimento, su ? u"freccia_su"_s : u"freccia_giu"_s);
  b->setProperty("ruolo", u"freccia"_s);
  b->setIconSize({9, 9});
  b->setFixedSize(22, 19);
  b->setAccessibleName(suggerimento);
  return b;
}

QHBoxLayout* coppia(QWidget* su, QWidget* giu) {
  auto* fila = new QHBoxLayout;
  fila->setSpacing(2);
  fila->addWidget(su);
  fila->addWidget(giu);
  return fila;
}

void marca_riga(QAbstractButton& riga, bool si) {
  riga.setChecked(si);
  QPalette colori = riga.palette();
  colori.setColor(QPalette::WindowText, si ? marcato : su_fondo_scuro);
  riga.setPalette(colori);
}

/// A row of the two tables of levels: it shows which one applied and cannot be chosen. Its text holds a name and two
/// figures parted by blanks, which it draws in columns.
template <class C>
class RigaLivello : public C {
 public:
  RigaLivello(const QString& nome, std::size_t indice, QStringView testo) : C(testo.toString()) {
    nominato(this, nome_indice(nome, indice));
    this->setAutoExclusive(false);
    this->setFocusPolicy(Qt::NoFocus);
    this->setAttribute(Qt::WA_TransparentForMouseEvents);
    marca_riga(*this, false);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStyleOptionButton spunta;
    this->initStyleOption(&spunta);
    spunta.text.clear();
    QStylePainter p(this);
    p.drawControl(std::is_same_v<C, QCheckBox> ? QStyle::CE_CheckBox : QStyle::CE_RadioButton, spunta);
    p.setPen(this->palette().color(QPalette::WindowText));
    const QStringList parti = this->text().split(u"   "_s, Qt::SkipEmptyParts);
    QRect posto(larghezza_spunta, 0, larghezza_nome - larghezza_spunta, this->height());
    p.drawText(posto, Qt::AlignLeft | Qt::AlignVCenter, parti[0].trimmed());
    posto = {larghezza_nome, 0, larghezza_cifra - rientro_cifra, this->height()};
    for (const QString& cifra : parti.mid(1)) {
      p.drawText(posto, Qt::AlignRight | Qt::AlignVCenter, cifra.trimmed());
      posto.translate(larghezza_cifra, 0);
    }
  }
};

/// Heads over the columns of the levels.
QHBoxLayout* teste_livelli(const QString& prima) {
  auto* fila = new QHBoxLayout;
  fila->setSpacing(0);
  for (const auto& [scritta, larghezza] :
       {std::pair{prima, larghezza_nome}, std::pair{u"Protidi g."_s, larghezza_cifra},
        std::pair{u"Lipidi g."_s, larghezza_cifra}}) {
    QLabel* t = testa(scritta);
    t->setFixedWidth(larghezza);
    fila->addWidget(t);
  }
  fila->addStretch();
  return fila;
}

/// The rows of a table of levels on their dark ground, where the yellow of a mark can be read.
QFrame* fondo_scuro(std::span<QWidget* const> righe) {
  auto* fondo = new QFrame;
  fondo->setProperty("ruolo", u"scuro"_s);
  auto* colonna = new QVBoxLayout(fondo);
  colonna->setContentsMargins(2, 3, 2, 3);
  colonna->setSpacing(0);
  for (QWidget* r : righe) colonna->addWidget(r);
  return fondo;
}

/// A frame of a table of levels: heads, then rows.
template <class C, std::size_t N>
QWidget* tabella_livelli(QWidget* in, QGroupBox*& frame, const QString& nome, const QString& titolo,
                         const QString& prima, const std::array<C*, N>& righe) {
  const Cornice c = cornice(titolo, in);
  frame = nominato(c.box, nome);
  c.griglia->addLayout(teste_livelli(prima), 0, 0);
  const std::vector<QWidget*> tutte(righe.begin(), righe.end());
  c.griglia->addWidget(fondo_scuro(tutte), 1, 0);
  c.griglia->setRowStretch(1, 1);
  return frame;
}

}  // namespace

void Formpond::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formpond"_s);
  setWindowTitle(u"Dati Ponderali & Antropometrici"_s);
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(6, 4, 6, 6);
  fila->setSpacing(6);
  facce_ = new QStackedLayout;
  facce_->addWidget(disegna_scelta());
  facce_->addWidget(disegna_faccia_obiettivo());
  fila->addLayout(facce_, 1);
  fila->addWidget(disegna_scala(this));
  for (QTimer** t : {&Timer1, &Timer2, &Timer3, &Timer4, &Timer5}) {
    *t = new QTimer(this);
    (*t)->setInterval(100);
  }
}

void Formpond::mostra_faccia(Faccia faccia) {
  const bool scelta = faccia == Faccia::scelta;
  setWindowTitle(scelta ? u"Dati ponderali & Antropometrici"_s : u"Obiettivo & Livello nutrienti"_s);
  facce_->setCurrentIndex(scelta ? 0 : 1);
  LabSCELTA->setVisible(scelta);
}

// ---- first face

QWidget* Formpond::disegna_scelta() {
  auto* faccia = new QWidget(this);
  auto* colonna = new QVBoxLayout(faccia);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(6);
  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(6);
  for (QWidget* w : {disegna_larn(faccia), disegna_hb(faccia), disegna_bfa(faccia)}) {
    w->setFixedWidth(larghezza_sinistra);
    sinistra->addWidget(w);
  }
  auto* sopra = new QHBoxLayout;
  sopra->setSpacing(6);
  sopra->addLayout(sinistra);
  sopra->addWidget(disegna_plico(faccia), 1);
  colonna->addLayout(sopra, 1);
  colonna->addWidget(disegna_metodi(faccia));
  return faccia;
}

QWidget* Formpond::disegna_larn(QWidget* in) {
  const Cornice c = cornice(u"Situazione secondo L.A.R.N."_s, in);
  Frame_larn = nominato(c.box, u"Frame_larn"_s);
  Command2 = pulsante(u"Command2"_s, u"Cos'è il B. M. I. ?"_s, u"Spiega come si ricava l'indice di massa corporea"_s);
  Command2->setProperty("ruolo", u"freccia"_s);
  c.griglia->setRowMinimumHeight(0, 19);
  c.griglia->addWidget(Command2, 0, 0);
  calcolati(Text8, u"Text8"_s);
  calcolati(Text9, u"Text9"_s);
  due_colonne(*c.griglia, 0, righe_metabolismo, Text8, Text9);
  return Frame_larn;
}

QWidget* Formpond::disegna_hb(QWidget* in) {
  const Cornice c = cornice(u"Situazione secondo H. Benedict"_s, in);
  Frame_hb = nominato(c.box, u"Frame_hb"_s);
  for (std::size_t i = 0; i < Text3.size(); ++i) Text3[i] = campo_numero(nome_indice(u"Text3", i));
  calcolati(Text4, u"Text4"_s);
  due_colonne(*c.griglia, 0, righe_metabolismo, Text3, Text4);
  return Frame_hb;
}

QWidget* Formpond::disegna_bfa(QWidget* in) {
  const Cornice c = cornice(u"Dati da Body Fat Analizer"_s, in);
  Framebfa = nominato(c.box, u"Framebfa"_s);
  const std::array etichette{u"Peso ideale in Kg"_s, u"B. M. I. ideale"_s, u"Attuale Met. basale in Kc"_s,
                             u"Fabbisogno ideale tot. calorie"_s};
  for (std::size_t i : {1U, 3U}) Text2[i] = campo_calcolato(nome_indice(u"Text2", i));
  Text2[0] = campo_numero(u"Text2_0"_s, u"Peso ideale indicato dallo strumento"_s);
  Text2[2] = campo_numero(u"Text2_2"_s, u"Metabolismo basale indicato dallo strumento"_s);
  for (std::size_t i = 0; i < Text2.size(); ++i) riga(*c.griglia, static_cast<int>(i), etichette[i], Text2[i]);
  c.griglia->setColumnStretch(0, 1);
  return Framebfa;
}

QWidget* Formpond::disegna_plico(QWidget* in) {
  const Cornice c = cornice(u"Plicometria (Durnin)"_s, in);
  Frame_plico = nominato(c.box, u"Frame_plico"_s);
  c.griglia->addWidget(bassa(guida(u"Inserire i valori in mm."_s)), 0, 0, 1, 3);
  constexpr std::array<QStringView, 7> misure{u"Plica bicipitale",
                                              u"Plica tricipitale",
                                              u"Plica sottoscapolare",
                                              u"Plica soprailiaca",
                                              u"Circonferenza mediana braccio",
                                              u"A.M.A. cm",
                                              u"Situazione muscolare"};
  for (std::size_t i = 0; i < Text5.size(); ++i) {
    const QString nome = nome_indice(u"Text5", i);
    Text5[i] = i < 5 ? campo_numero(nome, i < 4 ? u"Spessore in millimetri"_s : u"Circonferenza in centimetri"_s)
                     : campo_calcolato(nome);
    riga(*c.griglia, 1 + static_cast<int>(i), misure[i].toString(), Text5[i]);
  }
  Text5[6]->setFixedWidth(2 * larghezza_numero + 6);
  Text5[6]->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  c.griglia->addWidget(Text5[6], 7, 1, 1, 2);
  constexpr std::array<QStringView, 5> righe{u"Tot. 4 pliche", u"Peso Kg.", u"BMI (IMC)", u"Met. basale Kc/gg",
                                             u"Fabbisogno tot. calorie"};
  calcolati(Text7, u"Text7"_s);
  calcolati(Text6, u"Text6"_s);
  due_colonne(*c.griglia, 8, righe, Text7, Text6);
  Combo1 = nominato(new Lista, u"Combo1"_s, u"Stress che accresce il fabbisogno"_s);
  Combo1->addItems({u"Nessuno"_s, u"Leggero"_s, u"Medio"_s, u"Alto"_s});
  Combo1->setCurrentIndex(-1);
  c.griglia->addWidget(etichetta_di(u"Fattore stress"_s, Combo1), 14, 0);
  c.griglia->addWidget(Combo1, 14, 1, 1, 2);
  return Frame_plico;
}

QWidget* Formpond::disegna_metodi(QWidget* in) {
  const Cornice c = cornice({}, in);
  Frame_scelta = nominato(c.box, u"Frame_scelta"_s);
  LabSCELTA = nominato(guida(u"Cliccare sulla figura per selezionare il metodo voluto."_s), u"LabSCELTA"_s);
  c.griglia->addWidget(LabSCELTA, 0, 0, 2, 1);
  const std::array metodi{u"L.A.R.N."_s, u"H. Benedict"_s, u"B. Fat Analyz."_s, u"Plicometria"_s};
  for (std::size_t i = 0; i < metodi.size(); ++i) {
    Image1[i] = nominato(new QToolButton, nome_indice(u"Image1", i), u"Seleziona il metodo "_s + metodi[i]);
    Image1[i]->setIcon(icona(u"metodo_%1"_s.arg(i)));
    Image1[i]->setIconSize({44, 40});
    Image1[i]->setFixedSize(108, 44);
    Image1[i]->setFocusPolicy(Qt::TabFocus);
    Image1[i]->setAccessibleName(metodi[i]);
    Text1[i] = campo_calcolato(nome_indice(u"Text1", i), 108, Qt::AlignHCenter);
    Text1[i]->setText(metodi[i]);
    Text1[i]->setToolTip(u"Invio seleziona il metodo"_s);
    Text1[i]->setFocusPolicy(Qt::StrongFocus);
    const int colonna = 1 + static_cast<int>(i);
    c.griglia->addWidget(Image1[i], 0, colonna);
    c.griglia->addWidget(Text1[i], 1, colonna);
  }
  c.griglia->setColumnStretch(0, 1);
  return Frame_scelta;
}

QWidget* Formpond::disegna_scala(QWidget* in) {
  const Cornice c = cornice(u"Body Mass Index"_s, in);
  c.box->setFixedWidth(larghezza_scala);
  constexpr int bande = int{classi_bmi.size()}, altezza = bande * altezza_banda;
  ProgressBar1 = nominato(new QProgressBar, u"ProgressBar1"_s, u"Situazione del peso"_s);
  ProgressBar1->setOrientation(Qt::Vertical);
  ProgressBar1->setTextVisible(false);
  ProgressBar1->setRange(0, 112);
  ProgressBar1->setFixedSize(20, altezza);
  auto* colori = new QLabel;
  colori->setPixmap(icona(u"scala_bmi"_s).pixmap(8, altezza));
  colori->setFixedSize(8, altezza);
  c.griglia->addWidget(ProgressBar1, 0, 0, bande, 1);
  c.griglia->addWidget(colori, 0, 1, bande, 1);
  c.griglia->setVerticalSpacing(0);
  c.griglia->setHorizontalSpacing(4);
  for (int i = 0; i < bande; ++i) {
    const auto classe = static_cast<std::size_t>(i);
    Picture1[classe] =
        nominato(new QLabel(u"%1\n%2"_s.arg(classi_bmi[classe].etichetta_scala, classi_bmi[classe].intervallo_scala)),
                 nome_indice(u"Picture1", classe));
    Picture1[classe]->setFixedHeight(altezza_banda);
    c.griglia->addWidget(Picture1[classe], bande - 1 - i, 2);
  }
  c.griglia->setColumnStretch(2, 1);
  return c.box;
}

// ---- second face

QWidget* Formpond::disegna_faccia_obiettivo() {
  auto* faccia = new QWidget(this);
  auto* colonna = new QVBoxLayout(faccia);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(6);
  auto* griglia = new QGridLayout;
  griglia->setSpacing(6);
  griglia->addWidget(disegna_obiettivo(faccia), 0, 0);
  griglia->addWidget(disegna_nutrienti(faccia), 1, 0);
  griglia->addWidget(disegna_livelli_eta(faccia), 0, 1);
  griglia->addWidget(disegna_livelli_peso(faccia), 1, 1);
  for (QWidget* w : {Frame11, Frame12}) w->setFixedWidth(larghezza_livelli);
  griglia->setColumnStretch(0, 1);
  griglia->setRowStretch(0, 1);
  griglia->setRowStretch(1, 1);
  colonna->addLayout(griglia, 1);
  colonna->addWidget(disegna_ritorno(faccia));
  return faccia;
}

void Formpond::disegna_frecce() {
  const std::array quantita{u"peso da raggiungere"_s, u"giorni"_s, u"razione"_s};
  const std::array passi{u"un chilogrammo"_s, u"un giorno"_s, u"5 calorie"_s};
  for (std::size_t i = 0; i < CmdSU2.size(); ++i) {
    CmdSU2[i] = freccia(u"CmdSU2"_s, i, true, u"Aumenta di "_s + passi[i] + u": "_s + quantita[i]);
    CmdGIU2[i] = freccia(u"CmdGIU2"_s, i, false, u"Diminuisce di "_s + passi[i] + u": "_s + quantita[i]);
  }
}

QWidget* Formpond::disegna_obiettivo(QWidget* in) {
  const Cornice c = cornice(u"Obiettivo"_s, in);
  Frame_obiettivo = nominato(c.box, u"Frame_obiettivo"_s);
  txtpesoragg = campo_numero(u"txtpesoragg"_s, u"Peso a cui arrivare, in chilogrammi"_s);
  calcolati(Text10, u"Text10"_s);
  disegna_frecce();
  struct RigaObiettivo {
    QLabel** etichetta;
    QString nome, scritta;
    QLineEdit* campo;
    int tasti;  // index of its buttons, -1 for none
  };
  const RigaObiettivo righe[]{
      {&Label31[0], u"Label31_0"_s, u"Peso da raggiungere in 1° fase Kg."_s, txtpesoragg, 0},
      {&Label31[5], u"Label31_5"_s, u"Peso da perdere in Kg"_s, Text10[5], -1},
      {&Label31[4], u"Label31_4"_s, u"Giorni di razionamento n°"_s, Text10[4], 1},
      {&Label31[3], u"Label31_3"_s, u"Perdita giornaliera in gr."_s, Text10[3], -1},
      {&LabMETAB, u"LabMETAB"_s, u"Consumo Kcal attuale"_s, Text10[0], -1},
      {&Label31[2], u"Label31_2"_s, u"Calorie/gg da togliere"_s, Text10[2], -1},
      {&LabRAZ, u"LabRAZ"_s, u"Razione Kc/gg secondo  "_s, Text10[1], 2},
  };
  for (int i = 0; i < int{std::size(righe)}; ++i) {
    const RigaObiettivo& r = righe[i];
    *r.etichetta = nominato(riga(*c.griglia, i, r.scritta, r.campo), r.nome);
    if (r.tasti < 0) continue;
    const auto t = static_cast<std::size_t>(r.tasti);
    c.griglia->addLayout(coppia(CmdSU2[t], CmdGIU2[t]), i, 2);
  }
  c.griglia->setColumnStretch(0, 1);
  return Frame_obiettivo;
}

QWidget* Formpond::disegna_nutrienti(QWidget* in) {
  const Cornice c = cornice(u"Livello Nutrienti di base (senza attività fisica)"_s, in);
  Frame_nutrienti = nominato(c.box, u"Frame_nutrienti"_s);
  const std::array teste{u"g/Kg di peso ideale"_s, u"g. totali"_s, u"Kcal"_s, u"%"_s};
  for (std::size_t i = 0; i < teste.size(); ++i) {
    QLabel* t = bassa(testa(teste[i]));
    t->setWordWrap(true);
    t->setFixedWidth(larghezza_nutriente);
    c.griglia->addWidget(t, 0, colonne_nutrienti[i]);
  }
  c.griglia->setHorizontalSpacing(4);
  Txtprotg_Kg =
      campo_numero(u"Txtprotg_Kg"_s, u"Grammi di protidi per chilogrammo di peso ideale"_s, larghezza_nutriente);
  Txtlipg_Kg = campo_numero(u"Txtlipg_Kg"_s, u"Grammi di lipidi per chilogrammo di peso ideale"_s, larghezza_nutriente);
  for (std::size_t i = 0; i < Text13.size(); ++i) disegna_nutriente(*c.griglia, i);
  Txtkcal = campo_calcolato(u"Txtkcal"_s, larghezza_nutriente);
  Txtkcalperc = campo_calcolato(u"Txtkcalperc"_s, larghezza_nutriente);
  Txtkcalperc->setText(u"100"_s);
  c.griglia->addWidget(etichetta_di(u"Totale"_s, Txtkcal), 4, 0);
  c.griglia->addWidget(Txtkcal, 4, colonne_nutrienti[2]);
  c.griglia->addWidget(Txtkcalperc, 4, colonne_nutrienti[3]);
  c.griglia->setColumnStretch(0, 1);
  return Frame_nutrienti;
}

/// A row of the nutrients: protein and fat are for typing, carbohydrate is what remains.
void Formpond::disegna_nutriente(QGridLayout& griglia, std::size_t i) {
  const std::array nomi{u"Protidi"_s, u"Lipidi"_s, u"Glucidi"_s};
  const int r = 1 + static_cast<int>(i);
  const bool libero = i < CmdSU.size();
  const QString grammi = nome_indice(u"Text13", i);
  Text13[i] = libero ? campo_numero(grammi, nomi[i] + u" al giorno, in grammi"_s, larghezza_nutriente)
                     : campo_calcolato(grammi, larghezza_nutriente);
  Text11[i] = campo_calcolato(nome_indice(u"Text11", i), larghezza_nutriente);
  Text12[i] = campo_calcolato(nome_indice(u"Text12", i), larghezza_nutriente);
  QLineEdit* per_chilo = i == 0 ? Txtprotg_Kg : Txtlipg_Kg;
  griglia.addWidget(etichetta_di(nomi[i], libero ? per_chilo : Text13[i]), r, 0);
  if (libero) griglia.addWidget(per_chilo, r, colonne_nutrienti[0]);
  const std::array campi{Text13[i], Text11[i], Text12[i]};
  const std::array misure{u", grammi"_s, u", kcal"_s, u", per cento"_s};
  for (std::size_t k = 0; k < campi.size(); ++k) {
    campi[k]->setAccessibleName(nomi[i] + misure[k]);
    griglia.addWidget(campi[k], r, colonne_nutrienti[k + 1]);
  }
  if (!libero) return;
  CmdSU[i] = freccia(u"CmdSU"_s, i, true, nomi[i] + u": un grammo in più"_s);
  CmdGIU[i] = freccia(u"CmdGIU"_s, i, false, nomi[i] + u": un grammo in meno"_s);
  griglia.addLayout(coppia(CmdSU[i], CmdGIU[i]), r, 3);
}

QWidget* Formpond::disegna_livelli_eta(QWidget* in) {
  constexpr std::array<QStringView, 6> righe{
      u"   10 - 13 anni          1,55            1,10", u"   14 - 16 anni          1,30            1,10",
      u"   17 - 20 anni          1,10            1,05", u"   21 - 50 anni          1,10            1,05",
      u"   51 - 60 anni          1,10            1,00", u"       > 60 anni          1,10            1,00"};
  for (std::size_t i = 0; i < righe.size(); ++i) Check4[i] = new RigaLivello<QCheckBox>(u"Check4"_s, i, righe[i]);
  return tabella_livelli(in, Frame11, u"Frame11"_s, u"Protidi e Lipidi  in base all'età (g x Kg.P.I.)"_s,
                         u"Età del soggetto"_s, Check4);
}

QWidget* Formpond::disegna_livelli_peso(QWidget* in) {
  constexpr std::array<QStringView, 8> righe{
      u"Sottopeso grave       + 0,20         + 0,20",       u"Sottopeso                 + 0,20         + 0,10",
      u"Peso normale                   0                0", u"Sovrappeso lieve      + 0,10               0",
      u"Sovrappeso              + 0,15               0",    u"Obesità lieve             + 0,20          - 0,05",
      u"Obesità grave           + 0,25          - 0,10",    u"Obesità Patologica   + 0,25          - 0,10"};
  for (std::size_t i = 0; i < righe.size(); ++i) Option2[i] = new RigaLivello<QRadioButton>(u"Option2"_s, i, righe[i]);
  return tabella_livelli(in, Frame12, u"Frame12"_s, u"Variazione in base alla situazione del peso"_s, {}, Option2);
}

QWidget* Formpond::disegna_ritorno(QWidget* in) {
  const Cornice c = cornice({}, in);
  Img_undo = nominato(new QToolButton, u"Img_undo"_s, u"Torna al quadro di scelta "_s);
  Img_undo->setIcon(icona(u"torna"_s));
  Img_undo->setIconSize({44, 40});
  Img_undo->setFixedSize(54, 46);
  Img_undo->setFocusPolicy(Qt::StrongFocus);
  Img_undo->setAccessibleName(Img_undo->toolTip().trimmed());
  LabTorna = nominato(guida(u"Cliccare per tornare al quadro precendente."_s), u"LabTorna"_s);
  c.griglia->addWidget(Img_undo, 0, 0);
  c.griglia->addWidget(LabTorna, 0, 1);
  c.griglia->setColumnStretch(1, 1);
  return c.box;
}

void Formpond::marca(QAbstractButton& riga, bool si) { marca_riga(riga, si); }
