// A second opinion on a stored week of diet: the rules of the meals written anew, from what a dietitian is promised,
// so that a fault of the search cannot hide in a part that both share. Reads `dieta` and what it rests on with
// statements of its own.
#pragma once

#include <QString>
#include <QStringList>
#include <set>
#include <utility>

namespace tolleranze {

/// What one week of a client came to.
struct Verdetto {
  int pasti_pieni = 0;     // meals that hold foods
  int pasti_voluti = 0;    // meals that have energy to share out
  int cibi = 0;            // foods looked at
  QStringList infrazioni;  // one a broken rule, in words
  [[nodiscard]] bool intera() const { return pasti_pieni == pasti_voluti; }
};

/// Groups that the dietitian has taken away: meal 0 to 4 and food group.
using GruppiTolti = std::set<std::pair<int, int>>;

/// Judges week 1 of the working copy and the food stores of a folder.
[[nodiscard]] Verdetto giudica(const QString& cartella, const GruppiTolti& tolti);

}  // namespace tolleranze
