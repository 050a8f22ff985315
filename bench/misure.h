// What the benches share: a practice's folder, times and memory, and the rows of the table of budgets.
#pragma once

#include <QString>
#include <chrono>
#include <vector>

namespace banco {

template <class F>
double millisecondi(F&& opera) {
  const auto inizio = std::chrono::steady_clock::now();
  opera();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inizio).count();
}

/// 0 for no values.
[[nodiscard]] double mediana(std::vector<double> valori);

struct Tempo {
  double mediana = 0, peggiore = 0;  // ms
};

/// Times `opera` and prints the figures; what `prima` does each time before does not count.
template <class P, class F>
Tempo tempo(const char* che, int volte, P&& prima, F&& opera);

/// Resident memory of this process.
[[nodiscard]] double memoria_mb();

/// The stores and pictures that come with the program, in a folder that becomes the program's.
void posa_archivi(const QString& origine, const QString& cartella);

/// A budget: met by a figure of at most that much, or of at least that much.
struct Limite {
  double valore;
  const char* unità;
  bool almeno = false;
};

/// A row of the table of budgets, with the seconds since the last one; a figure that misses its budget says so.
void budget(const char* che, int quante, double misurato, const Limite& limite);

// ---- what has no name of its own

Tempo scrivi_tempo(const char* che, std::vector<double> ms);

template <class P, class F>
Tempo tempo(const char* che, int volte, P&& prima, F&& opera) {
  std::vector<double> ms;
  for (int i = 0; i < volte; ++i) {
    prima();
    ms.push_back(millisecondi(opera));
  }
  return scrivi_tempo(che, std::move(ms));
}

}  // namespace banco
