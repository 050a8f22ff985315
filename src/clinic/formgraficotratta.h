// The course of one measure over the visits, as a line or as bars, with the values written at the points.
#pragma once

#include <QChartView>
#include <QDialog>
#include <QPushButton>
#include <span>

struct PuntoGrafico {
  QString etichetta;
  int valore;
};

enum class TipoGrafico { linea, barre };

class Formgraficotratta : public QDialog {
 public:
  Formgraficotratta();
  void al_caricamento() {}
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  /// Draws the points from left to right under a title; labels may be empty and may repeat.
  void riempi(const QString& titolo, std::span<const PuntoGrafico> punti, TipoGrafico tipo);

  QChartView* MSChart1{};
  QPushButton* commchiudi{};
};
