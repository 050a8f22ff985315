#include "core/aspetto.h"
#include "core/errore_non_gestito.h"

#include <gtest/gtest.h>
#include <QLocale>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // discovery runs where no window platform is set
  Applicazione app(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  imposta_aspetto(app);
  gestisci_errori_con([](const std::exception& e) { ADD_FAILURE() << "error that no rule caught: " << e.what(); });
  return RUN_ALL_TESTS();
}
