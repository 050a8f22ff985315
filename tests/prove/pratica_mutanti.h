// A practice of two clients, through which one mutant after the other is taken: import, archive, recall, stages.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <array>
#include <functional>
#include <set>

namespace mutanti {

enum class Stadi { non_aperti, aperti, errore_di_run_time };

/// What became of a mutant.
struct Sorte {
  bool importato = false, richiamato = false;
  Stadi stadi = Stadi::non_aperti;
  double secondi = 0;  // of processor, for the slowest step
};

/// Ends the child: what the user was promised does not hold.
[[noreturn]] void violata(const QString& promessa);

/// Where the step at work is noted, for who has to say what a child died of.
using Passo = std::array<char, 40>;
inline Passo* passo = nullptr;

/// Ends the process by a signal where the work takes more seconds of processor than that, or a minute in all. Answers
/// the seconds of processor.
double sotto_sorveglianza(const char* quale, const std::function<void()>& lavoro, int limite = 1);

/// All tables of a client in one text, the number in the first row of the master data left out. Throws Errore.
QString tutto(const QString& file);

/// The application of a child, with a folder of its own in memory. A child ends without taking it down.
class Pratica {
 public:
  Pratica();

  /// Where the next mutant is to be written, outside the practice.
  [[nodiscard]] QString fuori() const;
  /// Takes the mutant through import, archive and recall, and on demand through the nine stages. Where contents are
  /// given, one that is recalled must read as one of them.
  Sorte prova(bool con_stadi, const std::set<QString>& contenuti = {});
  /// Removes the folder.
  void chiudi() { radice_.remove(); }

 private:
  bool importa();
  void elenca();
  bool richiama();
  void sgombra_importato(const QString& prima);
  [[nodiscard]] QString registro() const;
  [[nodiscard]] QString file() const;

  QTemporaryDir radice_;
  QString registro_;        // as it must always be again
  QString ultima_casella_;  // words of the last box
  double secondi_ = 0;
};

}  // namespace mutanti
