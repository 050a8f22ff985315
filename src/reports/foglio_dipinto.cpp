#include "reports/foglio_dipinto.h"

#include <utility>

namespace {

/// A column is the mean width of Italian text in this face: 0.4416 of the font's size in any face with its metrics.
constexpr double colonna_su_corpo = 0.4416;

double corpo(const QFont& carattere, const QPaintDevice& foglio) {
  return carattere.pointSizeF() * foglio.logicalDpiY() / 72;
}

}  // namespace

FoglioDipinto::FoglioDipinto(QPainter& pittore, Misure misure, const QPixmap& logo, std::function<void()> foglio_nuovo)
    : pittore_(pittore),
      misure_(std::move(misure)),
      logo_(logo),
      foglio_nuovo_(std::move(foglio_nuovo)),
      metrica_(misure_.carattere, pittore.device()),
      colonna_(colonna_su_corpo * corpo(misure_.carattere, *pittore.device())) {
  pittore_.setFont(misure_.carattere);
}

void FoglioDipinto::ricomincia() {
  all_origine();
  prima_riga_ = 0;
}

void FoglioDipinto::colore(QRgb colore) { pittore_.setPen(QColor(colore)); }

void FoglioDipinto::sottolinea(bool si) {
  QFont f = misure_.carattere;
  f.setUnderline(si);
  pittore_.setFont(f);
}

void FoglioDipinto::logo() {
  pittore_.drawPixmap(QRectF(misure_.origine + misure_.logo, misure_.misura_logo), logo_, QRectF(logo_.rect()));
}

double FoglioDipinto::larghezza(const QString& testo) const { return metrica_.horizontalAdvance(testo) / colonna_; }

void FoglioDipinto::dipingi(double colonne, int riga, const QString& testo) {
  while (riga - prima_riga_ >= misure_.righe) {
    prima_riga_ += misure_.righe;
    if (foglio_nuovo_) foglio_nuovo_();
  }
  const double y = (riga - prima_riga_) * metrica_.lineSpacing() + metrica_.ascent();
  pittore_.drawText(misure_.origine + QPointF(colonne * colonna_, y), testo);
}
