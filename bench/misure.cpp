#include "misure.h"

#include "base/archivio.h"
#include "base/file.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace banco {

double mediana(std::vector<double> valori) {
  if (valori.empty()) return 0;
  std::ranges::sort(valori);
  return valori[valori.size() / 2];
}

Tempo scrivi_tempo(const char* che, std::vector<double> ms) {
  const Tempo t{mediana(ms), std::ranges::max(ms)};
  std::printf("%-40s %9.1f %9.1f\n", che, t.mediana, t.peggiore);
  return t;
}

double memoria_mb() {
  QFile f(u"/proc/self/status"_s);
  if (!f.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& riga : f.readAll().split('\n')) {
    if (riga.startsWith("VmRSS:")) return riga.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

void posa_archivi(const QString& origine, const QString& cartella) {
  const QDir da(origine);
  for (const QString& nome : da.entryList({u"*.jed"_s, u"*.chk"_s, u"*.gif"_s})) {
    sostituisci_file(da.filePath(nome), QDir(cartella).filePath(nome));
  }
  imposta_cartella(cartella);
}

void budget(const char* che, int quante, double misurato, const Limite& limite) {
  static auto ultima = std::chrono::steady_clock::now();
  const auto ora = std::chrono::steady_clock::now();
  const bool preso = limite.almeno ? misurato >= limite.valore : misurato <= limite.valore;
  std::printf("| %s | %d | %.4g %s (%s %g)%s | %.0f s |\n", che, quante, misurato, limite.unità,
              limite.almeno ? "at least" : "at most", limite.valore, preso ? "" : " MISSED",
              std::chrono::duration<double>(ora - ultima).count());
  ultima = ora;
}

}  // namespace banco
