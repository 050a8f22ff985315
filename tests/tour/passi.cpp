#include "passi.h"

#include <QAbstractItemView>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QDir quadri;
int numero_quadro = 0;

void clic_in(QAbstractItemView* vista, const QModelIndex& dove) {
  vista->scrollTo(dove);
  QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, vista->visualRect(dove).center());
}

}  // namespace

void pretendi(bool vero, const char* che) {
  if (vero) return;
  std::fprintf(stderr, "giro: %s\n", che);
  std::exit(1);
}

void apri_quadri(const QString& cartella) {
  quadri.setPath(cartella);
  pretendi(quadri.mkpath(u"."_s), "the folder of pictures cannot be made");
  for (const QString& vecchio : quadri.entryList({u"[0-9][0-9]_*.png"_s})) quadri.remove(vecchio);
}

void quadro(QWidget& finestra, const QString& nome) {
  QTest::qWait(20);
  const QString file = quadri.filePath(u"%1_%2.png"_s.arg(++numero_quadro, 2, 10, QChar(u'0')).arg(nome));
  pretendi(finestra.grab().save(file), "a picture could not be written");
  std::printf("  %s\n", qPrintable(QDir::current().relativeFilePath(file)));
}

void clic(QWidget* controllo) {
  pretendi(controllo->isEnabled(), qPrintable(u"not enabled: "_s + controllo->objectName()));
  QTest::mouseClick(controllo, Qt::LeftButton);
}

void scrivi(QWidget* campo, const QString& testo) {
  campo->setFocus();
  QTest::keyClicks(campo, testo);
}

void scegli(QComboBox* lista, int riga) {
  QTest::keyClick(lista, Qt::Key_F4);
  lista->view()->setCurrentIndex(lista->model()->index(riga, 0));
  QTest::keyClick(lista->view(), Qt::Key_Return);
  pretendi(lista->currentIndex() == riga, qPrintable(u"not chosen: "_s + lista->objectName()));
}

void scegli(QComboBox* lista, const QString& riga) {
  const int i = lista->findText(riga);
  pretendi(i >= 0, qPrintable(u"not in the list: "_s + riga));
  scegli(lista, i);
}

void scegli(QListWidget* lista, int riga) { clic_in(lista, lista->model()->index(riga, 0)); }

void scegli(QTableWidget* griglia, int riga) { clic_in(griglia, griglia->model()->index(riga, 0)); }

QMap<QString, QString> contenuto(const QWidget& schermo) {
  QMap<QString, QString> testi;
  for (const auto* c : schermo.findChildren<QLineEdit*>()) {
    if (!c->objectName().isEmpty() && !c->objectName().startsWith(u"qt_"_s)) testi[c->objectName()] = c->text();
  }
  for (const auto* c : schermo.findChildren<QComboBox*>()) testi[c->objectName()] = c->currentText();
  for (const auto* c : schermo.findChildren<QPlainTextEdit*>()) testi[c->objectName()] = c->toPlainText();
  return testi;
}
