#include "clinic/formgraficotratta.h"

#include "base/numeri.h"
#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QLineSeries>
#include <QPen>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor tinta{0x14, 0x61, 0x4b}, tinta_barre{0x6f, 0xb3, 0x9b}, griglia_chiara{0xd3, 0xdb, 0xd7};

QLineSeries* linea(std::span<const PuntoGrafico> punti) {
  auto* serie = new QLineSeries;
  serie->setPen(QPen(tinta, 2));
  serie->setColor(tinta);
  serie->setPointsVisible(true);
  for (std::size_t i = 0; i < punti.size(); ++i) serie->append(static_cast<qreal>(i), punti[i].valore);
  return serie;
}

/// Writes the values of a line where it does not run: under a valley, over a peak, on the free side of a slope.
class ConValori : public QChartView {
 protected:
  void drawForeground(QPainter* p, const QRectF&) override {
    p->setPen(tinta);
    p->setFont(font());
    for (QAbstractSeries* s : chart()->series()) {
      const auto* linea = qobject_cast<QLineSeries*>(s);
      for (qsizetype i = 0; linea && i < linea->count(); ++i) {
        const QString valore = testo(linea->at(static_cast<int>(i)).y());
        p->drawText(posto(*linea, i, p->fontMetrics().size(0, valore)), Qt::AlignCenter, valore);
      }
    }
  }

 private:
  static constexpr qreal distanza = 5;

  [[nodiscard]] QRectF posto(const QLineSeries& linea, qsizetype i, QSizeF misura) const {
    const auto dove = [&](qsizetype k) {
      const auto quale = static_cast<int>(std::clamp<qsizetype>(k, 0, linea.count() - 1));
      return chart()->mapToPosition(linea.at(quale), const_cast<QLineSeries*>(&linea));
    };
    const QPointF qui = dove(i);
    const bool scende = dove(i - 1).y() < qui.y(), sale = dove(i + 1).y() < qui.y();
    QRectF r(qui - QPointF(misura.width() / 2, misura.height() + distanza), misura);
    if (scende && sale) {
      r.moveTop(qui.y() + distanza);
    } else if (scende) {
      r.moveLeft(qui.x() + distanza);
    } else if (sale) {
      r.moveRight(qui.x() - distanza);
    }
    return r;
  }
};

QBarSeries* barre(std::span<const PuntoGrafico> punti) {
  auto* valori = new QBarSet({});
  valori->setColor(tinta_barre);
  valori->setLabelColor(tinta);
  for (const PuntoGrafico& p : punti) valori->append(p.valore);
  auto* serie = new QBarSeries;
  serie->append(valori);
  serie->setLabelsVisible(true);
  serie->setLabelsFormat(u"@value"_s);
  serie->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
  return serie;
}

/// An axis of categories takes no name twice: blanks of no width tell the points apart, and nobody sees them.
QBarCategoryAxis* asse_visite(std::span<const PuntoGrafico> punti) {
  auto* asse = new QBarCategoryAxis;
  for (const PuntoGrafico& p : punti) asse->append(p.etichetta + QString(asse->count() + 1, QChar(0x200b)));
  asse->setGridLineVisible(false);
  asse->setTruncateLabels(false);
  return asse;
}

/// Bars stand on 0. A line that nowhere comes down to it shows the part of the scale where it moves.
QValueAxis* asse_valori(std::span<const PuntoGrafico> punti, TipoGrafico tipo) {
  const auto [minimo, massimo] = std::ranges::minmax(punti, {}, &PuntoGrafico::valore);
  const int salto = massimo.valore - minimo.valore, margine = std::max(salto / 2, 2);
  const bool da_zero = tipo == TipoGrafico::barre || minimo.valore <= margine;
  auto* asse = new QValueAxis;
  asse->setRange(da_zero ? std::min(minimo.valore, 0) : minimo.valore - margine,
                 std::max(massimo.valore, 0) + std::max(salto / 8, 4));
  asse->applyNiceNumbers();
  asse->setLabelFormat(u"%.0f"_s);
  asse->setGridLineColor(griglia_chiara);
  return asse;
}

}  // namespace

Formgraficotratta::Formgraficotratta() {
  setObjectName(u"Formgraficotratta"_s);
  setModal(true);
  MSChart1 = nominato(new ConValori, u"MSChart1"_s);
  MSChart1->setRenderHint(QPainter::Antialiasing);
  MSChart1->setFocusPolicy(Qt::NoFocus);
  MSChart1->chart()->setBackgroundRoundness(4);
  MSChart1->chart()->legend()->hide();
  commchiudi = pulsante(u"commchiudi"_s, u"Chiudi"_s, u"Chiudi il grafico"_s);
  commchiudi->setDefault(true);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 10, 10, 10);
  colonna->setSpacing(8);
  colonna->addWidget(MSChart1, 1);
  colonna->addLayout(barra({}, {commchiudi}));
  resize(700, 430);
  al_clic(commchiudi, scarica<Formgraficotratta>);
}

void Formgraficotratta::riempi(const QString& titolo, std::span<const PuntoGrafico> punti, TipoGrafico tipo) {
  setWindowTitle(titolo);
  QChart& grafico = *MSChart1->chart();
  QFont grassetto = font();
  grassetto.setBold(true);
  grafico.setTitleFont(grassetto);
  grafico.setTitle(titolo.toHtmlEscaped());
  QAbstractSeries* serie = tipo == TipoGrafico::linea ? static_cast<QAbstractSeries*>(linea(punti)) : barre(punti);
  grafico.addSeries(serie);
  for (const auto& [asse, lato] : {std::pair<QAbstractAxis*, Qt::Alignment>{asse_visite(punti), Qt::AlignBottom},
                                   {asse_valori(punti, tipo), Qt::AlignLeft}}) {
    asse->setLabelsFont(font());
    grafico.addAxis(asse, lato);
    serie->attachAxis(asse);
  }
}

void Formgraficotratta::reject() { esegui_regola(scarica<Formgraficotratta>); }
