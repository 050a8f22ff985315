#include "assessment/attivita_sportive.h"
#include "assessment/formattivita.h"
#include "core/aspetto.h"
#include "core/schermate.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGraphicsLayout>
#include <QLegend>
#include <QLocale>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <QValueAxis>

using namespace Qt::StringLiterals;

namespace {

const QStringList nomi_giorni{u"Lunedì"_s,  u"Martedì"_s, u"Mercoledì"_s, u"Giovedì"_s,
                              u"Venerdì"_s, u"Sabato"_s,  u"Domenica"_s};
const QStringList voci_minuti{u"0"_s,   u"15"_s,  u"30"_s,  u"45"_s,  u"60"_s, u"90"_s,
                              u"120"_s, u"150"_s, u"180"_s, u"210"_s, u"240"_s};

/// A meal in the order of the day, which is that of the screen: its place among the percentages and what it is called.
struct Voce {
  std::size_t pasto;
  QStringView nome;
};
constexpr Voce pasti_del_giorno[]{
    {colazione, u"Colazione"}, {spuntino, u"Spuntino"}, {pranzo, u"Pranzo"}, {merenda, u"Merenda"}, {cena, u"Cena"}};

constexpr QColor inchiostro{0x1f, 0x2a, 0x30}, verde{0x4f, 0xa0, 0x86}, verde_scuro{0x14, 0x61, 0x4b};
constexpr QColor linee{0xdd, 0xe4, 0xe0}, fondo{0xf7, 0xf9, 0xf8};  // of the grid, of a frame
constexpr int larghezza_calorie = 52, larghezza_razione = 68, larghezza_percento = 34, larghezza_freccia = 18;

QComboBox* lista(const QString& nome, const QStringList& voci, const QString& suggerimento) {
  auto* l = nominato(new Lista, nome, suggerimento);
  l->addItems(voci);
  l->setCurrentIndex(-1);
  l->setMaxVisibleItems(14);
  return l;
}

QPushButton* freccia(const QString& nome, const QString& suggerimento, const QString& nome_icona) {
  QPushButton* b = pulsante(nome, {}, suggerimento, nome_icona);
  b->setAccessibleName(suggerimento);
  b->setProperty("ruolo", u"freccia"_s);
  b->setIconSize({7, 7});
  b->setFixedSize(larghezza_freccia, 21);
  return b;
}

QLabel* testa_a_capo(QStringView scritta) {
  QLabel* t = testa(scritta.toString());
  t->setWordWrap(true);
  t->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  return t;
}

/// The bars with their values at the ends.
QBarSeries* barre(QBarSet* valori) {
  valori->setColor(verde);
  valori->setBorderColor(verde);
  valori->setLabelColor(inchiostro);
  auto* serie = new QBarSeries;
  serie->append(valori);
  serie->setBarWidth(0.6);
  serie->setLabelsVisible(true);
  serie->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
  return serie;
}

QChart* grafico_nudo(const QString& titolo) {
  auto* grafico = new QChart;
  grafico->setTitle(titolo);
  grafico->setTitleBrush(verde_scuro);
  grafico->setLocale(QLocale());
  grafico->setLocalizeNumbers(true);
  grafico->legend()->hide();
  grafico->setBackgroundVisible(false);
  grafico->setMargins({});
  grafico->layout()->setContentsMargins(0, 0, 0, 0);
  return grafico;
}

void metti_assi(QChart& grafico, QBarSeries& serie, const QStringList& nomi, QValueAxis* scala) {
  auto* categorie = new QBarCategoryAxis;
  categorie->append(nomi);
  categorie->setGridLineVisible(false);
  categorie->setTruncateLabels(false);
  scala->setLabelsVisible(false);
  scala->setLineVisible(false);
  scala->setGridLineColor(linee);
  grafico.addAxis(categorie, Qt::AlignBottom);
  grafico.addAxis(scala, Qt::AlignLeft);
  for (QAbstractAxis* asse : std::initializer_list<QAbstractAxis*>{categorie, scala}) serie.attachAxis(asse);
}

}  // namespace

void Formattività::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formattività"_s);
  setWindowTitle(u"Attività fisica"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(6, 4, 6, 6);
  colonna->setSpacing(4);
  colonna->addWidget(disegna_settimana());
  auto* sotto = new QHBoxLayout;
  sotto->setSpacing(6);
  auto* percentuali = new QVBoxLayout;
  percentuali->setSpacing(4);
  percentuali->addWidget(disegna_in_uso());
  percentuali->addWidget(disegna_dal_diario());
  sotto->addLayout(percentuali);
  sotto->addWidget(disegna_grafico(), 1);
  colonna->addLayout(sotto, 1);
}

QWidget* Formattività::disegna_settimana() {
  const Cornice c = cornice(u"Attività della settimana"_s, this);
  auto* scelta = new QVBoxLayout;
  scelta->setSpacing(3);
  QStringList nomi;
  for (const AttivitàSportiva& a : attività_sportive()) nomi << a.nome.toString();
  Combo13 = lista(u"Combo13"_s, nomi, u"Attività da assegnare ai giorni"_s);
  Combo13->setFixedWidth(244);
  scelta->addWidget(etichetta_di(u"Attività fisica"_s, Combo13));
  scelta->addWidget(Combo13);
  scelta->addWidget(guida(u"Scegliere l'attività, poi i minuti dei giorni in cui si pratica."_s));
  Immaginesport = nominato(new QLabel, u"Immaginesport"_s);
  Immaginesport->setAlignment(Qt::AlignCenter);
  Immaginesport->setAccessibleName(u"Figura dell'attività"_s);
  scelta->addWidget(Immaginesport, 1);
  c.griglia->addLayout(scelta, 0, 0, static_cast<int>(Combo14.size()) + 1, 1);
  c.griglia->setColumnStretch(0, 1);
  disegna_giorni(*c.griglia);
  return c.box;
}

void Formattività::disegna_giorni(QGridLayout& griglia) {
  struct Colonna {
    QStringView testa, nome;
    std::array<QLineEdit*, 7>* campi;
    int larghezza;
  };
  const Colonna colonne[]{{u"Calorie /gg", u"Text15", &Text15, larghezza_calorie},
                          {u"Razione Calorica Giornaliera", u"Text1", &Text1, larghezza_razione},
                          {u"Calorie da Elaborare", u"Text14", &Text14, larghezza_razione},
                          {u"Protidi", u"Text2", &Text2, larghezza_calorie},
                          {u"Lipidi", u"Text3", &Text3, larghezza_calorie},
                          {u"Glucidi", u"Text4", &Text4, larghezza_calorie}};
  for (std::size_t i = 0; i < Combo14.size(); ++i) disegna_minuti(griglia, i);
  griglia.addWidget(testa_a_capo(u"Minuti/gg"), 0, 2);
  for (int posto = 3; const Colonna& c : colonne) {
    griglia.addWidget(testa_a_capo(c.testa), 0, posto);
    for (std::size_t i = 0; i < c.campi->size(); ++i) {
      QLineEdit* campo = (*c.campi)[i] = campo_calcolato(nome_indice(c.nome, i), c.larghezza);
      campo->setAccessibleName(nomi_giorni[static_cast<qsizetype>(i)] + u", "_s + c.testa.toString());
      griglia.addWidget(campo, static_cast<int>(i) + 1, posto, Qt::AlignCenter);
    }
    ++posto;
  }
}

void Formattività::disegna_minuti(QGridLayout& griglia, std::size_t giorno) {
  Combo14[giorno] = lista(nome_indice(u"Combo14", giorno), voci_minuti, u"Minuti al giorno dell'attività scelta"_s);
  Combo14[giorno]->setFixedWidth(58);
  riga(griglia, static_cast<int>(giorno) + 1, nomi_giorni[static_cast<qsizetype>(giorno)], Combo14[giorno], 2);
  TxtAttività[giorno] = nominato(new QLineEdit(u"-1"_s, this), nome_indice(u"TxtAttività", giorno));
  TxtAttività[giorno]->setFocusPolicy(Qt::NoFocus);
  TxtAttività[giorno]->hide();
}

QWidget* Formattività::disegna_in_uso() {
  const Cornice c = cornice(u"Percentuali di utilizzo per l'elaborazione"_s, this);
  auto* corte = new QRegularExpressionValidator(QRegularExpression(u".{0,4}"_s), this);
  for (int colonna = 0; const Voce& v : pasti_del_giorno) {
    const QString nome = v.nome.toString();
    QLineEdit* campo = Txt[v.pasto] =
        campo_numero(nome_indice(u"Txt", v.pasto), nome + u", per cento"_s, larghezza_percento);
    campo->setText(percentuali_solite[v.pasto].toString());
    campo->setValidator(corte);
    CmdUP[v.pasto] = freccia(nome_indice(u"CmdUP", v.pasto), nome + u": aumenta di 1"_s, u"freccia_su"_s);
    CmdDOWN[v.pasto] = freccia(nome_indice(u"CmdDOWN", v.pasto), nome + u": diminuisci di 1"_s, u"freccia_giu"_s);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(1);
    for (QWidget* w : std::initializer_list<QWidget*>{campo, CmdUP[v.pasto], CmdDOWN[v.pasto]}) fila->addWidget(w);
    c.griglia->addWidget(etichetta_di(nome, campo), 0, colonna);
    c.griglia->addLayout(fila, 1, colonna++);
  }
  CmdUtilizza[1] =
      pulsante(nome_indice(u"CmdUtilizza", 1), u"Ripristina"_s, u"Clicca per ripristinare le percentuali."_s);
  c.griglia->addWidget(CmdUtilizza[1], 2, 0, 1, 2, Qt::AlignLeft);
  c.griglia->setRowStretch(3, 1);
  return c.box;
}

QWidget* Formattività::disegna_dal_diario() {
  const Cornice c = cornice(u"Percentuali ricavate automaticamente dal diario alimentare"_s, this);
  for (int colonna = 0; const Voce& v : pasti_del_giorno) {
    const std::size_t i = 9 - v.pasto;
    Txt[i] = campo_calcolato(nome_indice(u"Txt", i), larghezza_percento);
    c.griglia->addWidget(etichetta_di(v.nome.toString(), Txt[i]), 0, colonna);
    c.griglia->addWidget(Txt[i], 1, colonna++, Qt::AlignLeft);
  }
  CmdUtilizza[0] = pulsante(nome_indice(u"CmdUtilizza", 0), u"Utilizza"_s,
                            u"Clicca per utilizzare i valori del diario alimentare"_s);
  c.griglia->addWidget(CmdUtilizza[0], 2, 0, 1, 2, Qt::AlignLeft);
  c.griglia->setRowStretch(3, 1);
  for (int colonna = 0; colonna < 5; ++colonna) {
    c.griglia->setColumnMinimumWidth(colonna, larghezza_percento + 2 * larghezza_freccia + 2);
  }
  return c.box;
}

QWidget* Formattività::disegna_grafico() {
  const Cornice c = cornice({}, this);
  ritmo_ = new QBarSet(u"%"_s);
  QStringList nomi;
  for (const Voce& v : pasti_del_giorno) {
    *ritmo_ << 0;
    nomi << v.nome.toString();
  }
  scala_ = new QValueAxis;
  QBarSeries* serie = barre(ritmo_);
  QChart* grafico = grafico_nudo(u"Ritmo alimentare giornaliero"_s);
  grafico->addSeries(serie);
  metti_assi(*grafico, *serie, nomi, scala_);
  MSChart1 = nominato(new QChartView(grafico), u"MSChart1"_s);
  MSChart1->setBackgroundBrush(fondo);
  MSChart1->setFrameShape(QFrame::NoFrame);
  MSChart1->setRenderHint(QPainter::Antialiasing);
  MSChart1->setFocusPolicy(Qt::NoFocus);
  MSChart1->setAccessibleName(grafico->title());
  c.griglia->addWidget(testa(u"Ripartizione % delle calorie tra i vari pasti"_s), 0, 0);
  c.griglia->addWidget(MSChart1, 1, 0);
  return c.box;
}

/// White, or red for a dinner that has nothing left.
void Formattività::colora_cena(bool positiva) {
  Txt[cena]->setStyleSheet(positiva ? QString() : u"background: #ff0000; color: #000000;"_s);
}
