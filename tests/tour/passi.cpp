#include "passi.h"

#include <QAbstractItemView>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Where a dialog has closed, the offscreen platform leaves no window in front; a desktop gives the next one its turn.
void attiva(QWidget* finestra) {
  if (finestra->isActiveWindow()) return;
  finestra->activateWindow();
  pretendi(QTest::qWaitForWindowActive(finestra), u"comes in front: "_s + finestra->windowTitle());
}

void premi(QWidget* dove, QPoint punto) {
  conta_passo();
  attiva(dove->window());
  QTest::mouseClick(dove, Qt::LeftButton, {}, punto);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // as between two clicks of a hand
}

void clic_in(QAbstractItemView* vista, const QModelIndex& dove) {
  pretendi(dove.isValid(), u"a line is there to click: "_s + vista->objectName());
  vista->scrollTo(dove);
  premi(vista->viewport(), vista->visualRect(dove).center());
}

/// A box is clicked on its tick: its text may end long before its frame.
QPoint punto_di(const QWidget* c) {
  const bool con_segno = c->inherits("QCheckBox") || c->inherits("QRadioButton");
  return con_segno ? QPoint(8, c->height() / 2) : c->rect().center();
}

QString celle(const QAbstractItemView& vista) {
  QStringList righe;
  const QAbstractItemModel* m = vista.model();
  for (int r = 0; r < m->rowCount(); ++r) {
    QStringList celle;
    for (int c = 0; c < m->columnCount(); ++c) {
      const QModelIndex cella = m->index(r, c);
      celle << cella.data().toString() + (cella.data(Qt::DecorationRole).isNull() ? u""_s : u"*"_s);
    }
    righe << celle.join(u'|');
  }
  return righe.join(u'\n');
}

/// What a control says; nothing for a control that says nothing of its own.
std::optional<QString> detto(const QWidget* w) {
  if (const auto* c = qobject_cast<const QLineEdit*>(w)) return c->text();
  if (const auto* c = qobject_cast<const QComboBox*>(w)) return c->currentText();
  if (const auto* c = qobject_cast<const QPlainTextEdit*>(w)) return c->toPlainText();
  if (const auto* c = qobject_cast<const QDateEdit*>(w)) return c->text();
  if (const auto* c = qobject_cast<const QLabel*>(w)) return c->text();
  if (const auto* c = qobject_cast<const QAbstractItemView*>(w)) return c->model() ? celle(*c) : QString();
  if (const auto* c = qobject_cast<const QAbstractButton*>(w)) return c->isChecked() ? u"1"_s : u"0"_s;
  return {};
}

}  // namespace

void quadro(QWidget& finestra, const QString& nome, const QString& guida) {
  static int numero = 0;
  QTest::qWait(1);
  const QPixmap immagine = finestra.grab();
  const QDir& cartella = cartella_risultati();
  const bool scritto = immagine.save(cartella.filePath(u"%1_%2.png"_s.arg(++numero, 2, 10, QChar(u'0')).arg(nome)));
  const bool in_guida = guida.isEmpty() || immagine.save(cartella.filePath(u"guida/%1.png"_s.arg(guida)));
  pretendi(scritto && in_guida, u"a picture can be written: "_s + nome);
  conta_quadro();
}

void clic(QWidget* controllo) {
  pretendi(controllo->isEnabled() && controllo->isVisible(), u"can be clicked: "_s + controllo->objectName());
  premi(controllo, punto_di(controllo));
}

void clic_scheda(QTabBar* schede, const QString& testo) {
  int quale = schede->count() - 1;
  while (quale >= 0 && schede->tabText(quale) != testo) --quale;
  pretendi(quale >= 0, u"the tab is there: "_s + testo);
  premi(schede, schede->tabRect(quale).center());
}

void scrivi(QWidget* campo, const QString& testo) {
  const auto* riga = qobject_cast<QLineEdit*>(campo);
  pretendi(campo->isEnabled() && campo->isVisible() && !(riga && riga->isReadOnly()),
           u"can be typed into: "_s + campo->objectName());
  premi(campo, campo->rect().center());
  campo->setFocus();
  if (riga) {
    QTest::keyClick(campo, Qt::Key_Home);
    QTest::keyClick(campo, Qt::Key_End, Qt::ShiftModifier);
  }
  QTest::keyClicks(campo, testo);
}

void scegli(QComboBox* lista, int riga) {
  pretendi(lista->isEnabled() && lista->isVisible() && riga < lista->count(),
           u"can be chosen from: "_s + lista->objectName());
  conta_passo();
  lista->setFocus();
  QTest::keyClick(lista, Qt::Key_F4);
  lista->view()->setCurrentIndex(lista->model()->index(riga, 0));
  QTest::keyClick(lista->view(), Qt::Key_Return);
}

void scegli(QComboBox* lista, const QString& riga) {
  const int i = lista->findText(riga);
  pretendi(i >= 0, u"%1 is in the list %2"_s.arg(riga, lista->objectName()));
  scegli(lista, i);
}

void scegli(QListWidget* lista, int riga) { clic_in(lista, lista->model()->index(riga, 0)); }

void scegli(QTableView* griglia, int riga, int colonna) { clic_in(griglia, griglia->model()->index(riga, colonna)); }

bool tieni(QAbstractButton* pulsante, const std::function<bool()>& finche) {
  conta_passo();
  QTest::mousePress(pulsante, Qt::LeftButton);
  const bool giunto = QTest::qWaitFor(finche, 2000);
  QTest::mouseRelease(pulsante, Qt::LeftButton);
  return giunto;
}

Contenuto contenuto(const QWidget& schermo) {
  Contenuto testi;
  for (const auto* w : schermo.findChildren<QWidget*>()) {
    if (w->objectName().isEmpty() || w->objectName().startsWith(u"qt_"_s)) continue;
    if (const auto t = detto(w)) testi[w->objectName()] = *t;
  }
  return testi;
}

void verifica_uguali(const Contenuto& trovato, const Contenuto& atteso, const QString& dove) {
  verifica(trovato.size() == atteso.size(),
           u"%1: %2 controls instead of %3"_s.arg(dove).arg(trovato.size()).arg(atteso.size()));
  for (auto i = atteso.begin(); i != atteso.end(); ++i) {
    verifica_uguali(trovato.value(i.key()), i.value(), dove + u", "_s + i.key());
  }
}
