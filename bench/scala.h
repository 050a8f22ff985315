// How the lists of a practice grow: the archive and the address book, filled to a size and timed.
#pragma once

#include <vector>

/// A list at one size, medians in milliseconds: the whole of it, and one letter.
struct Scala {
  int voci;
  double tutti, lettera;
};

/// The archive with so many clients, each a copy of a sample client; the sizes ascend.
[[nodiscard]] std::vector<Scala> scala_schedario(const std::vector<int>& misure, int volte);

/// The address book with so many people. It has no tab of all: the whole is all its letters in turn.
[[nodiscard]] std::vector<Scala> scala_rubrica(const std::vector<int>& misure, int volte);
