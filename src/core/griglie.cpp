#include "core/griglie.h"

#include "core/aspetto.h"

#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>

namespace {

constexpr int per_pixel = 15;
constexpr int barra_e_bordi = 15;
constexpr int altezza_riga = 19;

/// A cell that sorts by its characters, as the search compares them.
class Cella : public QTableWidgetItem {
 public:
  using QTableWidgetItem::QTableWidgetItem;
  bool operator<(const QTableWidgetItem& altra) const override { return text() < altra.text(); }
};

int pixel(const Colonna& c) { return (c.larghezza + per_pixel / 2) / per_pixel; }

}  // namespace

QTableWidget* griglia(const QString& nome, std::span<const Colonna> colonne) {
  auto* g = nominato(new QTableWidget(0, static_cast<int>(colonne.size())), nome);
  g->setSelectionBehavior(QAbstractItemView::SelectRows);
  g->setSelectionMode(QAbstractItemView::SingleSelection);
  g->setEditTriggers(QAbstractItemView::NoEditTriggers);
  g->setAlternatingRowColors(true);
  g->setTabKeyNavigation(false);
  g->setWordWrap(false);
  g->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  g->verticalHeader()->hide();
  g->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  g->verticalHeader()->setDefaultSectionSize(altezza_riga);
  g->horizontalHeader()->setHighlightSections(false);
  g->horizontalHeader()->setMinimumSectionSize(20);
  // The narrow columns hold their heads only in the plain face.
  g->horizontalHeader()->setStyleSheet(
      QStringLiteral("QHeaderView::section { padding: 3px 2px; font-weight: normal; }"));
  for (int i = 0; i < g->columnCount(); ++i) {
    const Colonna& c = colonne[static_cast<std::size_t>(i)];
    auto* t = new QTableWidgetItem(c.testa.toString());
    t->setTextAlignment(c.verso | Qt::AlignVCenter);
    g->setHorizontalHeaderItem(i, t);
    g->setColumnWidth(i, pixel(c));
  }
  return g;
}

int larghezza_di(std::span<const Colonna> colonne) {
  int somma = barra_e_bordi;
  for (const Colonna& c : colonne) somma += pixel(c);
  return somma;
}

void aggiungi_riga(QTableWidget* griglia, const QStringList& testi) {
  const int riga = griglia->rowCount();
  griglia->insertRow(riga);
  for (int i = 0; i < griglia->columnCount(); ++i) {
    auto* t = new Cella(testi.value(i));
    t->setData(Qt::TextAlignmentRole, griglia->horizontalHeaderItem(i)->data(Qt::TextAlignmentRole));
    griglia->setItem(riga, i, t);
  }
}

void distanzia_voci(QListView* lista) {
  class Voce : public QStyledItemDelegate {
   public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& o, const QModelIndex& i) const override {
      return {QStyledItemDelegate::sizeHint(o, i).width(), altezza_voce};
    }
  };
  lista->setItemDelegate(new Voce(lista));
}
