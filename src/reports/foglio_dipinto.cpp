#include "reports/foglio_dipinto.h"

#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Shares of the font's size, for any face with Arial's metrics. A column is the mean width of Italian text.
constexpr double colonna = 0.4416;
constexpr double interlinea = 1.149;
constexpr double ascendente = 0.905;

/// Measured at one large size, so that a line parts alike at every zoom and on paper.
constexpr int corpo_di_misura = 200;

QFont carattere() {
  QFont f(u"Arial"_s);
  f.setHintingPreference(QFont::PreferNoHinting);
  return f;
}

QFont alto(double pixel, const QPaintDevice& foglio) {
  QFont f = carattere();
  f.setPointSizeF(pixel * 72 / foglio.logicalDpiY());
  return f;
}

QFont di_misura() {
  QFont f = carattere();
  f.setPixelSize(corpo_di_misura);
  return f;
}

}  // namespace

FoglioDipinto::FoglioDipinto(QPainter& pittore, const Misure& misure, QSvgRenderer& logo,
                             std::function<void()> foglio_nuovo)
    : pittore_(pittore),
      misure_(misure),
      logo_(logo),
      foglio_nuovo_(std::move(foglio_nuovo)),
      metrica_(di_misura()),
      righe_(static_cast<int>(std::min(misure.altezza / (interlinea * misure.corpo), 1e6))) {
  pittore_.setFont(alto(misure_.corpo, *pittore.device()));
}

void FoglioDipinto::ricomincia() {
  all_origine();
  prima_riga_ = 0;
}

void FoglioDipinto::colore(QRgb colore) { pittore_.setPen(QColor(colore)); }

void FoglioDipinto::sottolinea(bool si) {
  QFont f = pittore_.font();
  f.setUnderline(si);
  pittore_.setFont(f);
}

void FoglioDipinto::logo() { logo_.render(&pittore_, QRectF(misure_.origine + misure_.logo, misure_.misura_logo)); }

double FoglioDipinto::larghezza(const QString& testo) const {
  return metrica_.horizontalAdvance(testo) / (colonna * corpo_di_misura);
}

void FoglioDipinto::dipingi(double colonne, int quale, const QString& testo) {
  while (quale - prima_riga_ >= righe_) {
    prima_riga_ += righe_;
    if (foglio_nuovo_) foglio_nuovo_();
  }
  const double y = (quale - prima_riga_) * interlinea + ascendente;
  pittore_.drawText(misure_.origine + misure_.corpo * QPointF(colonne * colonna, y), testo);
}
