#include "core/lingua.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

void imposta_lingua() {
  const QLocale italiano(QLocale::Italian, QLocale::Italy);
  if (QLocale::system().language() == QLocale::C) QLocale::setDefault(italiano);
  auto* parole = new QTranslator(QCoreApplication::instance());
  if (parole->load(italiano, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(parole);
  }
}
