#include "core/aspetto.h"
#include "core/mdiorza.h"
#include "core/stadi.h"

#include <QLabel>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A button of the toolbar that leads to no stage.
struct Attrezzo {
  std::size_t indice;
  QStringView suggerimento;
};
constexpr Attrezzo archivio{0, u"Apri lo schedario nominativi"};
constexpr Attrezzo dopo_gli_stadi[]{
    {9, u"Importa/Esporta dati cliente"},
    {10, u"Elenco tipi di stampe possibili"},
    {11, u"Agenda"},
    {12, u"Rubrica telefonica dei pazienti memorizzati"},
    {13, u"Guida in linea contestuale"},
    {14, u"Esci dal programma"},
};
constexpr std::size_t inizio_di_gruppo[]{9, 11, 13};  // a line stands before these

QToolButton* attrezzo(std::size_t indice, const QString& suggerimento) {
  auto* b = nominato(new QToolButton, nome_indice(u"cmdsopra", indice), suggerimento);
  b->setIcon(icona(u"cmdsopra_%1"_s.arg(indice)));
  b->setIconSize({22, 22});
  b->setAccessibleName(suggerimento);
  return b;
}

/// What the Tab key goes through: toolbar, screen in front, bottom bar. Screens behind the one in front are passed by.
QWidgetList giro_del_fuoco(QWidget& finestra) {
  const auto* area = finestra.findChild<QMdiArea*>();
  const QWidget *davanti = area->activeSubWindow(), *fondo = schermata<Mdiorza>().Command2[0]->parentWidget();
  std::array<QWidgetList, 3> zone;
  for (QWidget* w = finestra.nextInFocusChain(); w != &finestra; w = w->nextInFocusChain()) {
    const bool accetta = (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy() && w->isEnabled() && w->isVisible();
    if (!accetta && w != finestra.focusWidget()) continue;
    if (fondo->isAncestorOf(w)) {
      zone[2] << w;
    } else if (!area->isAncestorOf(w)) {
      zone[0] << w;
    } else if (davanti && davanti->isAncestorOf(w)) {
      zone[1] << w;
    }
  }
  return zone[0] + zone[1] + zone[2];
}

/// A part of the window from which the Tab key goes round the whole of it. By itself a frame of the area keeps the key
/// among its own controls.
template <class W>
class Zona : public W {
 public:
  using W::W;

 protected:
  bool focusNextPrevChild(bool avanti) override {
    const QWidgetList giro = giro_del_fuoco(*this->window());
    if (giro.isEmpty()) return false;
    const qsizetype qui = giro.indexOf(this->window()->focusWidget()), ultimo = giro.size() - 1;
    QWidget* dopo = avanti ? giro[qui < ultimo ? qui + 1 : 0] : giro[qui > 0 ? qui - 1 : ultimo];
    dopo->setFocus(avanti ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
};

QAction* voce(QMenu* menu, const QString& nome, const QString& scritta, bool attiva = true) {
  QAction* a = menu->addAction(scritta);
  a->setObjectName(nome);
  a->setEnabled(attiva);
  return a;
}

}  // namespace

void Mdiorza::disegna() {
  setObjectName(u"Mdiorza"_s);
  setWindowIcon(icona(u"orzaline"_s));
  disegna_menu();
  disegna_barra();
  disegna_stampe();
  area_ = new QMdiArea;
  area_->setBackground(QColor(0xeef1ef));
  area_->setFrameShape(QFrame::NoFrame);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  auto* centro = new Zona<QWidget>;
  auto* colonna = new QVBoxLayout(centro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(disegna_banner());
  colonna->addWidget(area_, 1);
  colonna->addWidget(disegna_fondo());
  setCentralWidget(centro);
}

void Mdiorza::disegna_menu() {
  QMenu* file = nominato(menuBar()->addMenu(u"&File"_s), u"file"_s);
  nc = voce(file, u"nc"_s, u"Nuovo cliente"_s, false);
  afc = voce(file, u"afc"_s, u"Richiama dati cliente"_s, false);
  menuchiudi = voce(file, u"menuchiudi"_s, u"Chiudi"_s);
  uscita = voce(file, u"uscita"_s, u"&Uscita"_s);
  QMenu* ut = nominato(menuBar()->addMenu(u"&Utilità"_s), u"ut"_s);
  menuag = voce(ut, u"menuag"_s, u"Agenda"_s);
  menurubr = voce(ut, u"menurubr"_s, u"Rubrica"_s);
  i_e = voce(ut, u"i_e"_s, u"Importa / Esporta cliente..."_s);
  ut->addSeparator()->setObjectName(u"s2"_s);
  impstamp = voce(ut, u"impstamp"_s, u"Imposta stampante"_s);
  QMenu* aiuto = nominato(menuBar()->addMenu(u"?"_s), u"menuhelp"_s);
  menuaiuto = voce(aiuto, u"menuaiuto"_s, u"&Aiuto in linea"_s);
  menuinfo = voce(aiuto, u"menuinfo"_s, u"Informazioni su Orzaline"_s);
  info = voce(aiuto, u"info"_s, u"Informazioni sul sistema"_s);
}

void Mdiorza::disegna_barra() {
  QToolBar* b = nominato(new Zona<QToolBar>(u"Stadi"_s), u"stadi"_s);
  addToolBar(b);
  b->setMovable(false);
  b->setContextMenuPolicy(Qt::PreventContextMenu);
  const auto aggiungi = [&](std::size_t indice, QStringView suggerimento) {
    cmdsopra[indice] = attrezzo(indice, suggerimento.toString());
    b->addWidget(cmdsopra[indice]);
  };
  aggiungi(archivio.indice, archivio.suggerimento);
  b->addSeparator();
  for (const Stadio& s : stadi()) {
    aggiungi(s.pulsante, s.suggerimento);
    cmdsopra[s.pulsante]->setCheckable(true);
  }
  for (const Attrezzo& a : dopo_gli_stadi) {
    if (std::ranges::count(inizio_di_gruppo, a.indice) > 0) b->addSeparator();
    aggiungi(a.indice, a.suggerimento);
  }
}

QFrame* Mdiorza::disegna_banner() {
  Statusbar = nominato(new QFrame, u"Statusbar"_s);
  struct Campo {
    QLineEdit** campo;
    QStringView nome;
    QStringView scritta;
    int larghezza;
    Qt::Alignment verso;
  };
  const Campo campi[]{
      {&Txtcod, u"Txtcod", u"Cod", 40, Qt::AlignRight},
      {&Txtsoggetto, u"Txtsoggetto", u"", 230, Qt::AlignLeft},
      {&Txtsesso, u"Txtsesso", u"Sesso", 26, Qt::AlignHCenter},
      {&Txtetà, u"Txtetà", u"Età", 34, Qt::AlignRight},
      {&Txtstatura, u"Txtstatura", u"Statura cm.", 40, Qt::AlignRight},
      {&Txtpeso, u"Txtpeso", u"Peso Kg.", 46, Qt::AlignRight},
      {&Txtbmi, u"Txtbmi", u"BMI", 40, Qt::AlignRight},
  };
  auto* fila = new QHBoxLayout(Statusbar);
  fila->setContentsMargins(8, 3, 8, 3);
  for (const Campo& c : campi) {
    *c.campo = campo_calcolato(c.nome.toString(), c.larghezza, c.verso);
    if (!c.scritta.isEmpty()) fila->addWidget(etichetta_di(c.scritta.toString(), *c.campo));
    fila->addWidget(*c.campo);
  }
  fila->addStretch();
  QSizePolicy misura = Statusbar->sizePolicy();
  misura.setRetainSizeWhenHidden(true);  // the screens keep their place between two stages
  misura.setVerticalPolicy(QSizePolicy::Fixed);
  Statusbar->setSizePolicy(misura);
  return Statusbar;
}

QWidget* Mdiorza::disegna_fondo() {
  Command2[1] = pulsante(nome_indice(u"Command2", 1), u"Salva"_s, u"Salva i dati del paziente"_s, u"salva"_s);
  Command2[0] = pulsante(nome_indice(u"Command2", 0), u"Chiudi"_s, u"Chiudi l'archivio del paziente"_s, u"chiudi"_s);
  Command1[0] = pulsante(nome_indice(u"Command1", 0), u"Indietro"_s, u"Torna allo stadio precedente"_s, u"indietro"_s);
  Command1[1] = pulsante(nome_indice(u"Command1", 1), u"Avanti"_s, u"Passa allo stadio successivo"_s, u"avanti"_s);
  Command1[1]->setLayoutDirection(Qt::RightToLeft);  // its arrow stands after the word
  auto* fondo = new QWidget;
  fondo->setLayout(barra({Command2[1], Command2[0]}, {Command1[0], Command1[1]}));
  fondo->layout()->setContentsMargins(8, 4, 8, 6);
  return fondo;
}

QMdiSubWindow* Mdiorza::incornicia(QWidget& schermo) {
  QMdiSubWindow* finestra = area_->addSubWindow(new Zona<QMdiSubWindow>(area_->viewport(), Qt::FramelessWindowHint));
  finestra->setWidget(&schermo);
  finestra->setSystemMenu(nullptr);  // a screen is closed by the program alone
  finestra->setFixedSize(larghezza_schermo, altezza_schermo);
  finestra->move(0, 0);
  return finestra;
}
