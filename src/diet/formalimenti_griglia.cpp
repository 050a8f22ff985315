#include "diet/formalimenti_griglia.h"

#include "base/numeri.h"
#include "core/aspetto.h"

#include <QHeaderView>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int altezza_riga = 18, lato_spunta = 13;
constexpr QColor grigio{230, 230, 230}, accento{0x14, 0x61, 0x4b};
constexpr std::array colori_segni{QColor{165, 255, 158}, QColor{255, 126, 126}, QColor{108, 219, 255}};

QColor colore(Segno s) { return colori_segni[static_cast<std::size_t>(s)]; }

/// Odd groups stand on grey, and the three columns of the marks in their colours.
QVariant colora_riga(int cod1, int colonna) {
  if (const auto segno = segno_di_colonna(colonna)) return colore(*segno);
  return colonna <= colonna_di::calorie && cod1 % 2 != 0 ? QVariant(grigio) : QVariant();
}

QString testo_cella(const AlimentoScheda& r, int colonna) {
  using namespace colonna_di;
  switch (colonna) {
    case cod1: return QString::number(r.cod1);
    case cod2: return QString::number(r.cod2);
    case cod3: return QString::number(r.cod3);
    case cod4: return QString::number(r.cod4);
    case nome: return r.descrizione;
    case calorie: return testo(r.calorie);
    case abb_ok:
    case abb_lv:
    case abb_sd: return r.liste[static_cast<std::size_t>(colonna - abb_ok)];
    default: return {};
  }
}

/// The marks stand in the middle of their cells, and the cell at hand keeps its colour under a border.
class Cella : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* p, const QStyleOptionViewItem& opzioni, const QModelIndex& indice) const override {
    QStyleOptionViewItem o = opzioni;
    const bool qui = o.state & QStyle::State_HasFocus;
    o.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    QStyledItemDelegate::paint(p, o, indice);
    if (!qui) return;
    p->save();
    p->setPen(QPen(accento, 2));
    p->drawRect(o.rect.adjusted(1, 1, -1, -1));
    p->restore();
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* o, const QModelIndex& indice) const override {
    QStyledItemDelegate::initStyleOption(o, indice);
    o->decorationAlignment = Qt::AlignCenter;
    o->decorationSize = {lato_spunta, lato_spunta};
    if (segno_di_colonna(indice.column())) o->decorationPosition = QStyleOptionViewItem::Top;
  }
};

QTableView* griglia_di(QAbstractItemModel* modello, QTableView* g) {
  modello->setParent(g);
  g->setModel(modello);
  g->setSelectionMode(QAbstractItemView::NoSelection);
  g->setEditTriggers(QAbstractItemView::NoEditTriggers);
  g->setTabKeyNavigation(false);
  g->setWordWrap(false);
  g->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  g->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  g->verticalHeader()->hide();
  g->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  g->verticalHeader()->setMinimumSectionSize(altezza_riga);
  g->verticalHeader()->setDefaultSectionSize(altezza_riga);
  g->horizontalHeader()->setHighlightSections(false);
  g->horizontalHeader()->setSectionsClickable(false);
  g->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  return g;
}

}  // namespace

std::optional<Segno> segno_di_colonna(int colonna) {
  if (colonna < colonna_di::ok || colonna > colonna_di::sd) return {};
  return tutti_i_segni[static_cast<std::size_t>(colonna - colonna_di::ok)];
}

QIcon icona_spunta() {
  const QPixmap figura(percorso(u"spunta.gif"_s));
  return figura.isNull() ? icona(u"spunta"_s) : QIcon(figura);
}

// ---- grid of foods

ModelloScheda::ModelloScheda(QObject* padre) : QAbstractTableModel(padre) {}

int ModelloScheda::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(scheda_.size());
}

int ModelloScheda::columnCount(const QModelIndex& padre) const { return padre.isValid() ? 0 : int{colonna_di::quante}; }

QVariant ModelloScheda::data(const QModelIndex& indice, int ruolo) const {
  const AlimentoScheda& r = scheda_[static_cast<std::size_t>(indice.row())];
  switch (ruolo) {
    case Qt::DisplayRole: return testo_cella(r, indice.column());
    case Qt::BackgroundRole: return colora_riga(r.cod1, indice.column());
    case Qt::DecorationRole: {
      const auto segno = segno_di_colonna(indice.column());
      return segno && r.segnato(*segno) ? QVariant(spunta_) : QVariant();
    }
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter | (indice.column() == colonna_di::calorie ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
  }
}

QVariant ModelloScheda::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  struct Testa {
    QStringView scritta;
    Qt::Alignment verso;
  };
  static const std::array<Testa, 5> teste{{{u"Alimenti", Qt::AlignLeft},
                                           {u"Kc", Qt::AlignRight},
                                           {u"Ok", Qt::AlignCenter},
                                           {u"LV", Qt::AlignCenter},
                                           {u"SD", Qt::AlignCenter}}};
  const int i = sezione - colonna_di::nome;
  if (verso != Qt::Horizontal || i < 0 || i >= std::ssize(teste)) return {};
  const Testa& t = teste[static_cast<std::size_t>(i)];
  if (ruolo == Qt::DisplayRole) return t.scritta.toString();
  if (ruolo == Qt::TextAlignmentRole) return QVariant(t.verso | Qt::AlignVCenter);
  static const std::array suggerimenti{u"Alimento accettato"_s, u"Alimento obbligatorio dal lunedì al venerdì"_s,
                                       u"Alimento obbligatorio sabato e domenica"_s};
  if (ruolo == Qt::ToolTipRole && i >= 2) return suggerimenti[static_cast<std::size_t>(i - 2)];
  return {};
}

void ModelloScheda::riempi(Scheda scheda) {
  beginResetModel();
  scheda_ = std::move(scheda);
  endResetModel();
}

// ---- list of the chosen

int ModelloScelti::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(scelti_.size());
}

int ModelloScelti::columnCount(const QModelIndex& padre) const { return padre.isValid() ? 0 : 4; }

QVariant ModelloScelti::data(const QModelIndex& indice, int ruolo) const {
  const Scelto& s = scelti_[static_cast<std::size_t>(indice.row())];
  if (ruolo == Qt::BackgroundRole) return colore(s.segno);
  if (ruolo != Qt::DisplayRole) return {};
  switch (indice.column()) {
    case 0: return s.cod2;
    case 1: return s.cod1;
    case 2: return static_cast<int>(s.riga);
    default: return s.descrizione;
  }
}

QVariant ModelloScelti::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal || sezione != 3) return {};
  if (ruolo == Qt::DisplayRole) return u"Alimenti Scelti (rosso/blu=obbligatori, verde=accettati)"_s;
  if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

void ModelloScelti::riempi(std::vector<Scelto> scelti) {
  beginResetModel();
  scelti_ = std::move(scelti);
  endResetModel();
}

// ---- views

QTableView* griglia_alimenti(const QString& nome) {
  auto* g = griglia_di(new ModelloScheda(nullptr), nominato(new QTableView, nome));
  g->setItemDelegate(new Cella(g));
  g->viewport()->setCursor(Qt::PointingHandCursor);
  for (int i = 0; i < colonna_di::quante; ++i) {
    const bool mostrata = i >= colonna_di::nome && i <= colonna_di::sd;
    g->setColumnHidden(i, !mostrata);
    if (mostrata) g->setColumnWidth(i, i == colonna_di::calorie ? 44 : 38);
  }
  g->horizontalHeader()->setSectionResizeMode(colonna_di::nome, QHeaderView::Stretch);
  return g;
}

QTableView* griglia_scelti(const QString& nome) {
  auto* g = griglia_di(new ModelloScelti, nominato(new QTableView, nome));
  for (int i = 0; i < 3; ++i) g->setColumnHidden(i, true);
  g->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
  return g;
}
