#include "core/aspetto.h"
#include "core/griglie.h"
#include "core/schermate.h"
#include "office/formagenda.h"

#include <QHeaderView>
#include <QItemDelegate>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr Colonna colonne[]{{u"Ora", 540, Qt::AlignHCenter}, {u"Promemoria", 5688, Qt::AlignLeft}};

constexpr int scatto = 10;        // ms
constexpr int altezza_slot = 13;  // from the morning's first slot to the last of the day without a scroll
constexpr int slot_in_vista = 34;
constexpr int lato_freccia = 22;

/// The names of the days in two letters; the days themselves as the calendar draws them.
class DueLettere : public QItemDelegate {
 public:
  explicit DueLettere(QAbstractItemView* mese) : QItemDelegate(mese), giorni_(mese->itemDelegate()) {}
  void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
    if (i.row() > 0) return giorni_->paint(p, o, i);
    QItemDelegate::paint(p, o, i);
  }

 protected:
  void drawDisplay(QPainter* p, const QStyleOptionViewItem& o, const QRect& r, const QString& testo) const override {
    QItemDelegate::drawDisplay(p, o, r, testo.left(2));
  }

 private:
  QAbstractItemDelegate* giorni_;
};

/// What is typed stands in a box higher than the slot.
class Scrittura : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void updateEditorGeometry(QWidget* casella, const QStyleOptionViewItem& o, const QModelIndex&) const override {
    casella->setGeometry(o.rect.adjusted(0, -3, 0, 3));
  }
};

QToolButton* freccia(const QString& nome, const QString& disegno, const QString& suggerimento) {
  auto* f = nominato(new QToolButton, nome, suggerimento);
  f->setIcon(icona(disegno));
  f->setAccessibleName(suggerimento);
  f->setStyleSheet(u"QToolButton { padding: 1px; } QToolButton:focus { padding: 0; }"_s);
  f->setFixedWidth(lato_freccia);
  return f;
}

}  // namespace

void Formagenda::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formagenda"_s);
  setWindowTitle(u"Agenda degli appuntamenti"_s);
  Timer1 = new QTimer(this);
  Timer1->setObjectName(u"Timer1"_s);
  Timer1->setInterval(scatto);
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(6, 2, 6, 4);
  fila->setSpacing(6);
  fila->addWidget(disegna_mese(), 1);
  fila->addLayout(disegna_giorno());
}

QWidget* Formagenda::disegna_mese() {
  const Cornice c = cornice(windowTitle());
  Text1 = campo_calcolato(u"Text1"_s, 80, Qt::AlignHCenter);
  Calendar1 = nominato(new QCalendarWidget, u"Calendar1"_s, u"Scegliere il giorno"_s);
  Calendar1->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
  Calendar1->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  Calendar1->setDateEditEnabled(false);
  Calendar1->setFixedHeight(230);
  if (auto* mese = Calendar1->findChild<QAbstractItemView*>(u"qt_calendar_calendarview"_s)) {
    mese->setItemDelegate(new DueLettere(mese));
    mese->setAccessibleName(u"Calendario"_s);
  }
  Command1 = pulsante(u"Command1"_s, u"Chiudi l'agenda"_s, u"Salva il giorno e chiudi la finestra"_s, u"chiudi"_s);
  c.griglia->addLayout(barra({etichetta_di(u"Giorno"_s, Text1), Text1}, {}), 0, 0);
  c.griglia->addWidget(Calendar1, 1, 0);
  c.griglia->addWidget(guida(u"Gli impegni si scrivono accanto all'ora e si conservano cambiando giorno."_s), 2, 0);
  c.griglia->setVerticalSpacing(8);
  c.griglia->setRowStretch(3, 1);
  c.griglia->addWidget(Command1, 4, 0, Qt::AlignLeft);
  return c.box;
}

QLayout* Formagenda::disegna_giorno() {
  DBGrid1 = griglia(u"DBGrid1"_s, colonne);
  DBGrid1->setToolTip(u"Impegni del giorno"_s);
  DBGrid1->setAccessibleName(DBGrid1->toolTip());
  DBGrid1->setSelectionBehavior(QAbstractItemView::SelectItems);
  DBGrid1->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                           QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  DBGrid1->setItemDelegate(new Scrittura(DBGrid1));
  DBGrid1->setShowGrid(false);
  DBGrid1->verticalHeader()->setMinimumSectionSize(altezza_slot);
  DBGrid1->verticalHeader()->setDefaultSectionSize(altezza_slot);
  DBGrid1->setFixedWidth(larghezza_di(colonne));
  DBGrid1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  DBGrid1->setFixedHeight(DBGrid1->horizontalHeader()->sizeHint().height() + slot_in_vista * altezza_slot + 2);
  Image1 = freccia(u"Image1"_s, u"freccia_giu"_s, u"Ore seguenti"_s);
  Image2 = freccia(u"Image2"_s, u"freccia_su"_s, u"Ore precedenti"_s);
  auto* frecce = new QVBoxLayout;
  frecce->addWidget(Image2);
  frecce->addStretch();
  frecce->addWidget(Image1);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(3);
  fila->addWidget(DBGrid1, 0, Qt::AlignTop);
  fila->addLayout(frecce);
  return fila;
}
