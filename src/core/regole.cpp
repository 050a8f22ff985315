#include "core/regole.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <memory>

namespace {

/// Watches the events of one object and dies with it.
class Guardia : public QObject {
 public:
  Guardia(QObject* guardato, std::function<void(QEvent*)> vista) : QObject(guardato), vista_(std::move(vista)) {
    guardato->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* evento) override {
    vista_(evento);
    return false;
  }

 private:
  std::function<void(QEvent*)> vista_;
};

/// Runs a list's rule once where a choice arrives as two signals: "another line" and "chosen". `nuova` tells that
/// the first has come since the user's last touch of the list.
struct Scelta {
  std::function<void()> regola;
  bool nuova = false;

  void cambiata() {
    nuova = true;
    regola();
  }
  void scelta() {
    if (!std::exchange(nuova, false)) regola();
  }
};

std::shared_ptr<Scelta> scelta_su(const QObjectList& toccati, std::function<void()> regola) {
  auto s = std::make_shared<Scelta>(Scelta{std::move(regola)});
  for (QObject* toccato : toccati) {
    new Guardia(toccato, [s](QEvent* e) {
      if (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::KeyPress || e->type() == QEvent::Wheel) {
        s->nuova = false;
      }
    });
  }
  return s;
}

}  // namespace

void dettaglio::clic_di_lista(QComboBox* lista, std::function<void()> regola) {
  QObjectList toccati{lista};
  if (lista->isEditable()) toccati << lista->lineEdit();
  auto s = scelta_su(toccati, std::move(regola));
  QObject::connect(lista, &QComboBox::currentIndexChanged, lista, [s] { s->cambiata(); });
  QObject::connect(lista, &QComboBox::activated, lista, [s] { s->scelta(); });
}

void dettaglio::clic_di_lista(QListWidget* lista, std::function<void()> regola) {
  auto s = scelta_su({lista->viewport()}, std::move(regola));
  QObject::connect(lista, &QListWidget::currentRowChanged, lista, [s, lista](int riga) {
    // The focus alone makes the first line current without choosing it.
    if (riga < 0 || lista->item(riga)->isSelected()) s->cambiata();
  });
  // The press chooses the line, with whichever button and wherever it is let go.
  QObject::connect(lista, &QListWidget::itemPressed, lista, [s] { s->scelta(); });
  // The space bar chooses the line that the focus made current.
  new Guardia(lista, [s, lista](QEvent* e) {
    const bool spazio = e->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(e)->key() == Qt::Key_Space;
    if (spazio && !lista->selectedItems().isEmpty()) s->scelta();
  });
}

/// The true going down or up of mouse or space bar: a held mouse that leaves the button and comes back is neither.
void dettaglio::su_tasto(QAbstractButton* pulsante, bool giu, std::function<void()> regola) {
  new Guardia(pulsante, [pulsante, giu, regola = std::move(regola)](QEvent* e) {
    const auto tipo = e->type();
    const bool mouse = giu ? tipo == QEvent::MouseButtonPress || tipo == QEvent::MouseButtonDblClick
                           : tipo == QEvent::MouseButtonRelease;
    const auto spazio = [e] {
      const auto* tasto = static_cast<QKeyEvent*>(e);
      return tasto->key() == Qt::Key_Space && !tasto->isAutoRepeat();
    };
    const bool tastiera = tipo == (giu ? QEvent::KeyPress : QEvent::KeyRelease) && spazio();
    if ((mouse || tastiera) && pulsante->isEnabled()) regola();
  });
}

void dettaglio::su_doppio_clic(QWidget* controllo, std::function<void()> regola) {
  auto* vista = qobject_cast<QAbstractItemView*>(controllo);
  new Guardia(vista ? vista->viewport() : controllo, [regola = std::move(regola)](QEvent* e) {
    if (e->type() == QEvent::MouseButtonDblClick) regola();
  });
}

void dettaglio::su_uscita(QWidget* controllo, std::function<void()> regola) {
  new Guardia(controllo, [regola = std::move(regola)](QEvent* e) {
    if (e->type() != QEvent::FocusOut) return;
    switch (static_cast<QFocusEvent*>(e)->reason()) {
      case Qt::ActiveWindowFocusReason:
      case Qt::PopupFocusReason:
      case Qt::MenuBarFocusReason: return;
      default: regola();
    }
  });
}

void riempi_lista(QComboBox* lista, const QStringList& righe) {
  const QSignalBlocker muta(lista);
  lista->clear();
  lista->addItems(righe);
  lista->setCurrentIndex(-1);
}
