// A sheet that a painter draws: the preview's surface or the printer's paper.
#pragma once

#include "reports/bersaglio.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPixmap>
#include <functional>
#include <limits>

/// Where and how large the painter writes, in its own units.
struct Misure {
  QFont carattere;
  QPointF origine;
  QPointF logo;  // of the logo's corner, from the origin
  QSizeF misura_logo;
  int righe = std::numeric_limits<int>::max();  // lines on a sheet
};

class FoglioDipinto : public Bersaglio {
 public:
  /// `foglio_nuovo` is called when the text runs beyond the last line of a sheet.
  FoglioDipinto(QPainter& pittore, Misure misure, const QPixmap& logo, std::function<void()> foglio_nuovo = {});

  /// The cursor is at the top of a fresh sheet.
  void ricomincia();

  void colore(QRgb colore) override;
  void sottolinea(bool si) override;
  void logo() override;

 protected:
  [[nodiscard]] double larghezza(const QString& testo) const override;
  void dipingi(double colonne, int riga, const QString& testo) override;

 private:
  QPainter& pittore_;
  Misure misure_;
  QPixmap logo_;
  std::function<void()> foglio_nuovo_;
  QFontMetricsF metrica_;
  double colonna_;      // width of a column
  int prima_riga_ = 0;  // first line on the sheet at hand
};
