#include "reports/formstampe.h"

#include "base/errori.h"
#include "core/attesa.h"
#include "core/dialoghi.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "reports/foglio_dipinto.h"
#include "reports/fonti.h"
#include "reports/stampante_o_file.h"

#include <QPrinter>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int twip = 15;               // to the pixel
constexpr double punto = 96.0 / 72;    // pixels
constexpr QPointF unità(8, 16);        // of the surface's scale, pixels
constexpr QSizeF logo_intero(64, 64);  // pixels
constexpr QSizeF logo_piccolo(4 * unità.x(), 2 * unità.y());
constexpr double corpo_su_carta = 10;  // points
constexpr double pollice = 2.54;       // cm

struct Zoom {
  QStringView orientamento;
  int indice;
  QSize misura;  // twips
  double corpo;  // points
  int sinistra;  // twips
};
constexpr Zoom zoom[]{
    {u"v", 0, {7770, 10989}, 7, 90},
    {u"v", 1, {3885, 5494}, 3.3, 2000},
    {u"o", 0, {11300, 7900}, 7, 90},
    {u"o", 1, {5650, 3950}, 3.3, 1500},
};

const Zoom* zoom_di(const QString& orientamento, int indice) {
  const auto z =
      std::ranges::find_if(zoom, [&](const Zoom& v) { return v.orientamento == orientamento && v.indice == indice; });
  return z == std::end(zoom) ? nullptr : z;
}

/// How far a bar scrolls: by hundreds of twips, with 500 to spare.
int corsa(int finestra, int foglio) {
  const int avanzo = finestra * twip - foglio * twip - 500;
  return avanzo < 1 ? static_cast<int>(std::nearbyint(std::abs(avanzo / 100.0))) : 0;
}

}  // namespace

Formstampe::Formstampe() : Pic_logo(u":/pictures/logo.svg"_s), corpo_(zoom[0].corpo * punto) {
  disegna();
  collega_regole();
}

void Formstampe::collega_regole() {
  al_clic(List1, [this] { scegli_zoom(); });
  QObject::connect(Slider1, &QSlider::valueChanged, this, [this] { esegui_regola([this] { scrivi_pagina(); }); });
  QObject::connect(VScroll1, &QScrollBar::valueChanged, this,
                   [this](int v) { Picture1->move(Picture1->x(), (60 - 100 * v) / twip); });
  QObject::connect(HScroll1, &QScrollBar::valueChanged, this,
                   [this](int v) { Picture1->move((60 - 100 * v) / twip, Picture1->y()); });
  al_clic(Cmdchar[1], [this] { stampa(); });
  al_clic(Cmdchar[2], scarica<Formstampe>);
}

/// The choice of the zoom draws the page.
void Formstampe::all_attivazione() { List1->setCurrentRow(0); }

void Formstampe::scegli_zoom() {
  if (List1->currentRow() < 0) return;
  const Attesa attesa;
  Picture1->clear();
  misura_foglio();
  const Rapporto* r = rapporto(Labstampa.text());
  if (!r) return;
  prepara_pagine(*r);
  scrivi_pagina();
  setWindowTitle(r->titolo.toString() + u" - Anteprima di stampa"_s);
}

/// A report without orientation leaves the surface as it is.
void Formstampe::misura_foglio() {
  const Zoom* z = zoom_di(Laborienta.text(), List1->currentRow());
  if (!z) return;
  Picture1->resize(z->misura / twip);
  corpo_ = z->corpo * punto;
  misura_barre();
  Picture1->move(z->sinistra / twip, Picture1->y());
}

void Formstampe::misura_barre() {
  VScroll1->setMaximum(corsa(Picturesotto->height(), Picture1->height()));
  HScroll1->setMaximum(corsa(Picturesotto->width(), Picture1->width()));
}

/// A report of several pages shows the selector; a single sheet leaves it hidden.
void Formstampe::prepara_pagine(const Rapporto& r) {
  int pagine = r.pagine;
  if (r.conta_pagine) abbandona([&] { pagine = r.conta_pagine(); });
  if (pagine == 0) return;
  const bool molte = pagine > 1;
  if (!molte) Slider1->setMinimum(0);
  Slider1->setMaximum(pagine);
  Labdi->setText(u"di %1"_s.arg(pagine));
  for (QWidget* w : std::initializer_list<QWidget*>{Labpag, Slider1, Labdi}) w->setVisible(molte);
}

void Formstampe::scrivi_pagina() {
  const Rapporto* r = rapporto(Labstampa.text());
  if (!r) return;
  const Attesa attesa;
  QPixmap foglio(Picture1->size() * devicePixelRatioF());
  foglio.setDevicePixelRatio(devicePixelRatioF());
  foglio.fill(Qt::white);
  {
    QPainter pittore(&foglio);
    const QPointF logo(0.5 * unità.x(), 0.2 * unità.y());
    const QSizeF misura_logo = List1->currentRow() == 0 ? logo_intero : logo_piccolo;
    FoglioDipinto b(pittore, {corpo_, QPointF(unità.x(), 0), logo, misura_logo}, Pic_logo);
    scrivi_fin_dove_va([&] { r->scrivi(b, std::max(1, Slider1->value())); });
  }
  Picture1->setPixmap(foglio);
}

void Formstampe::stampa() {
  const Rapporto* r = rapporto(Labstampa.text());
  if (!r) return;
  try {
    QPrinter& p = stampante();
    if (!esterno().imposta_stampante(p)) throw Errore(32755, "Annullato");
    const Attesa attesa;
    stampa_su(p, *r);
  } catch (const std::exception&) {
    avvisa_stampante();
  }
}

void Formstampe::stampa_su(QPrinter& p, const Rapporto& r) {
  p.setFullPage(true);
  p.setPageOrientation(r.orizzontale ? QPageLayout::Landscape : QPageLayout::Portrait);
  stampa_o_scrivi(p, [&](QPagedPaintDevice& carta) { dipingi(carta, r); });
}

/// Upright sheets begin 1 cm from the left and 3 cm from the top of the paper, landscape ones 1 cm from both; 1 cm
/// stays free at the foot.
void Formstampe::dipingi(QPagedPaintDevice& carta, const Rapporto& r) {
  QPainter pittore;
  if (!pittore.begin(&carta)) throw Errore(482, "Errore della stampante");
  const double dpi = carta.logicalDpiY(), cm = dpi / pollice;
  const QPointF origine(cm, r.orizzontale ? cm : 3 * cm);
  const QSizeF logo = logo_intero * (dpi / (72 * punto));
  const auto nuovo = [&] {
    if (!carta.newPage()) throw Errore(482, "Errore della stampante");
  };
  FoglioDipinto b(pittore, {corpo_su_carta / 72 * dpi, origine, {}, logo, carta.height() - origine.y() - cm}, Pic_logo,
                  nuovo);
  const int pagine = r.stampate ? r.stampate : std::max(1, Slider1->maximum());
  for (int pagina = 1; pagina <= pagine; ++pagina) {
    r.scrivi(b, pagina);
    if (!r.stacca || pagina == pagine) continue;  // no empty sheet behind the last page
    nuovo();
    b.ricomincia();
  }
  if (!pittore.end()) throw Errore(482, "Errore della stampante");
}

void apri_stampa(const QString& codice, const QString& orientamento) {
  scarica<Formstampe>();
  Formstampe& f = schermata<Formstampe>();
  f.Labstampa.setText(codice);
  f.Laborienta.setText(orientamento);
  mostra<Formstampe>();
}
