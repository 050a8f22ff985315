// A sheet that a painter draws: the preview's surface or the printer's paper.
#pragma once

#include "reports/bersaglio.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <functional>
#include <limits>

class QSvgRenderer;

/// Where and how large the painter writes, in its own units.
struct Misure {
  double corpo;  // of the font
  QPointF origine;
  QPointF logo;  // of the logo's corner, from the origin
  QSizeF misura_logo;
  double altezza = std::numeric_limits<double>::infinity();  // of a sheet's lines together
};

class FoglioDipinto : public Bersaglio {
 public:
  /// `foglio_nuovo` is called when the text runs beyond the last line of a sheet.
  FoglioDipinto(QPainter& pittore, const Misure& misure, QSvgRenderer& logo, std::function<void()> foglio_nuovo = {});

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
  QSvgRenderer& logo_;
  std::function<void()> foglio_nuovo_;
  QFontMetricsF metrica_;
  int righe_;           // lines on a sheet
  int prima_riga_ = 0;  // first line on the sheet at hand
};
