#include "core/dialoghi.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QUrl>

namespace {

QString chiedi_file(const QString& titolo, const QString& cartella, const QString& filtro) {
  return QFileDialog::getOpenFileName(QApplication::activeWindow(), titolo, cartella, filtro);
}

bool chiedi_stampante(QPrinter& p) {
  return QPrintDialog(&p, QApplication::activeWindow()).exec() == QDialog::Accepted;
}

bool apri_con_programma(const QString& file) { return QDesktopServices::openUrl(QUrl::fromLocalFile(file)); }

}  // namespace

Esterno& esterno() {
  static Esterno e{chiedi_file, chiedi_stampante, apri_con_programma, &QDate::currentDate};
  return e;
}

QDate oggi() { return esterno().oggi(); }

QPrinter& stampante() {
  static auto* p = new QPrinter(QPrinter::HighResolution);  // outlives the application object, as the system may ask
  return *p;
}
