#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QLocale>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication app(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  return RUN_ALL_TESTS();
}
