// How long the archive takes to list its clients, and the address book its people.
//
//   banco_schedario [fills of each tab]      (3 by default)
//
// Fills 100, 1,000 and 5,000 of them into a temporary folder and times the whole list and one letter.
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "misure.h"
#include "scala.h"

#include <cstdio>

namespace {

void scrivi(const char* che, const std::vector<Scala>& scale) {
  std::printf("%-14s %12s %14s %14s %14s\n", che, "all, ms", "ms an item", "one letter, ms", "ms an item");
  for (const Scala& s : scale) {
    std::printf("%14d %12.1f %14.3f %14.1f %14.3f\n", s.voci, s.tutti, s.tutti / s.voci, s.lettera, s.lettera / s.voci);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  setvbuf(stdout, nullptr, _IOLBF, 0);
  Applicazione app(argc, argv);
  imposta_aspetto(app);
  const int volte = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
  const std::vector<int> misure{100, 1000, 5000};
  const auto clienti = scala_schedario(misure, volte);
  scrivi("clients", clienti);
  scrivi("address book", scala_rubrica(misure, volte));
  banco::budget("Archive's tab of all with 1,000 clients, median", volte, clienti[1].tutti, {1000, "ms"});
}
