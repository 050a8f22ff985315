#include "core/aspetto.h"
#include "core/schermate.h"
#include "reports/formstampe.h"

#include <QVBoxLayout>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize finestra(626, 412);  // of the page's viewport: a whole upright page wide
constexpr int larghezza_comandi = 110;

}  // namespace

void Formstampe::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formstampe"_s);
  const Cornice c = cornice(u"Anteprima di stampa"_s);
  connect(this, &QWidget::windowTitleChanged, c.box, &QGroupBox::setTitle);
  setWindowTitle(c.box->title());
  c.griglia->addWidget(disegna_foglio(), 0, 0);
  c.griglia->addWidget(disegna_comandi(), 0, 1);
  auto* fuori = new QVBoxLayout(this);
  fuori->setContentsMargins(6, 4, 6, 6);
  fuori->addWidget(c.box);
  setFixedSize(larghezza_schermo, altezza_schermo);
}

QWidget* Formstampe::disegna_foglio() {
  auto* w = new QWidget;
  auto* g = new QGridLayout(w);
  g->setContentsMargins(0, 0, 0, 0);
  g->setSpacing(2);
  Picturesotto = nominato(new QFrame, u"Picturesotto"_s);
  Picturesotto->setFixedSize(finestra);
  Picture1 = nominato(new QLabel(Picturesotto), u"Picture1"_s);
  Picture1->move(6, 4);
  VScroll1 = nominato(new QScrollBar(Qt::Vertical), u"VScroll1"_s, u"Scorri la pagina in verticale"_s);
  HScroll1 = nominato(new QScrollBar(Qt::Horizontal), u"HScroll1"_s, u"Scorri la pagina in orizzontale"_s);
  for (QScrollBar* s : {VScroll1, HScroll1}) {
    s->setRange(0, 0);
    s->setPageStep(10);
    s->setFocusPolicy(Qt::StrongFocus);
    s->setAccessibleName(s->toolTip());
  }
  g->addWidget(Picturesotto, 0, 0);
  g->addWidget(VScroll1, 0, 1);
  g->addWidget(HScroll1, 1, 0);
  return w;
}

QWidget* Formstampe::disegna_comandi() {
  auto* w = new QWidget;
  w->setFixedWidth(larghezza_comandi);
  auto* v = new QVBoxLayout(w);
  v->setContentsMargins(0, 0, 0, 0);
  List1 = nominato(new QListWidget, u"List1"_s, u"Grandezza della pagina sullo schermo"_s);
  List1->addItems({u"100%"_s, u"50%"_s});
  List1->setFixedHeight(40);
  Slider1 = nominato(new QSlider(Qt::Horizontal), u"Slider1"_s, u"Scegli la pagina da mostrare"_s);
  Slider1->setRange(1, 7);
  Slider1->setTickPosition(QSlider::TicksBelow);
  Slider1->setPageStep(1);
  Labpag = nominato(etichetta_di(u"Pagina"_s, Slider1), u"Labpag"_s);
  Labdi = nominato(new QLabel, u"Labdi"_s);
  Cmdchar[1] = pulsante(u"Cmdchar_1"_s, u"Stampa"_s, u"Stampa il documento"_s);
  Cmdchar[2] = pulsante(u"Cmdchar_2"_s, u"Chiudi anteprima"_s, u"Chiudi la finestra"_s);
  v->addWidget(etichetta_di(u"Zoom"_s, List1));
  v->addWidget(List1);
  v->addSpacing(12);
  v->addWidget(Labpag);
  v->addWidget(Slider1);
  v->addWidget(Labdi, 0, Qt::AlignRight);
  v->addStretch();
  v->addWidget(Cmdchar[1]);
  v->addWidget(Cmdchar[2]);
  for (QWidget* nascosto : std::initializer_list<QWidget*>{Labpag, Slider1, Labdi}) nascosto->hide();
  return w;
}

void Formstampe::wheelEvent(QWheelEvent* evento) { VScroll1->event(evento); }
