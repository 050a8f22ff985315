#include "office/formagenda.h"

#include "base/date.h"
#include "core/dialoghi.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "office/agenda.h"

#include <QScrollBar>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

enum { colonna_ora, colonna_promemoria };

constexpr int riga_del_mattino = 14;
constexpr int arresto = 15;  // never the first visible row

}  // namespace

Formagenda::Formagenda() {
  disegna();
  collega_regole();
}

void Formagenda::al_caricamento() {
  aggiorna();
  svuota_giorno();
  Text1->setText(data_breve(oggi()));
  nessun_giorno_ = true;
  {
    const QSignalBlocker muta(Calendar1);
    Calendar1->setSelectedDate(oggi());
  }
  salva_giorno();
  carica_giorno();
  primo_disegno_ = true;
}

void Formagenda::collega_regole() {
  // The calendar tells when it has moved: the day that is left still stands in Text1.
  connect(Calendar1, &QCalendarWidget::selectionChanged, this, [this] {
    esegui_regola([this] {
      salva_giorno();
      carica_giorno();
    });
  });
  connect(DBGrid1, &QTableWidget::cellChanged, this, [this](int riga) {
    esegui_regola([&] {
      scrivi_promemoria({DBGrid1->item(riga, colonna_ora)->text(), DBGrid1->item(riga, colonna_promemoria)->text()});
    });
  });
  collega_freccia(Image1, true);
  collega_freccia(Image2, false);
  allo_scatto(Timer1, [this] { scorri(); });
  al_clic(Command1, scarica<Formagenda>);
}

void Formagenda::collega_freccia(QToolButton* freccia, bool verso) {
  al_pressione(freccia, [this, verso] {
    verso_ = verso;
    Timer1->start();
  });
  const auto ferma = [this] { Timer1->stop(); };
  al_rilascio(freccia, ferma);
  all_uscita(freccia, ferma);  // the release of a key goes where the focus went
}

void Formagenda::all_attivazione() {
  if (!primo_disegno_) return;
  scorri_al_mattino();
  primo_disegno_ = false;
}

void Formagenda::alla_chiusura() { salva_giorno(); }

void Formagenda::salva_giorno() {
  DBGrid1->setCurrentItem(nullptr);  // ends what is being typed
  if (!nessun_giorno_) ::salva_giorno(Text1->text());
}

void Formagenda::carica_giorno() {
  Text1->setText(data_breve(Calendar1->selectedDate()));
  ::carica_giorno(Text1->text());
  aggiorna();
  nessun_giorno_ = false;
  scorri_al_mattino();
}

void Formagenda::aggiorna() {
  const QSignalBlocker muta(DBGrid1);
  const std::vector<Impegno> slot = giorno();
  DBGrid1->setRowCount(static_cast<int>(slot.size()));
  for (int riga = 0; riga < DBGrid1->rowCount(); ++riga) {
    const Impegno& s = slot[static_cast<std::size_t>(riga)];
    if (!DBGrid1->item(riga, colonna_ora)) {
      auto* ora = new QTableWidgetItem;
      ora->setFlags(Qt::NoItemFlags);
      ora->setForeground(palette().color(QPalette::Active, QPalette::Text));
      ora->setTextAlignment(Qt::AlignCenter);
      DBGrid1->setItem(riga, colonna_ora, ora);
      DBGrid1->setItem(riga, colonna_promemoria, new QTableWidgetItem);
    }
    DBGrid1->item(riga, colonna_ora)->setText(s.ora);
    DBGrid1->item(riga, colonna_promemoria)->setText(s.promemoria);
  }
}

void Formagenda::scorri_al_mattino() {
  if (QTableWidgetItem* mattino = DBGrid1->item(riga_del_mattino, colonna_promemoria)) {
    DBGrid1->scrollToItem(mattino, QAbstractItemView::PositionAtTop);
  }
}

void Formagenda::scorri() {
  QScrollBar* barra = DBGrid1->verticalScrollBar();
  barra->setValue(barra->value() + (verso_ ? 1 : -1));
  if (verso_ && barra->value() == arresto) barra->setValue(arresto - 1);
}
