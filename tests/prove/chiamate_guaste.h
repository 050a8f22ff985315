// Calls of the system that fail on command: libc's own functions, defined once more in the proof's program, where Qt's
// and the engine's calls find them first.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace guasti {

enum Genere { scrittura, sincronia, nomi, apertura_in_scrittura, apertura_in_lettura, lettura, generi };

/// The call of a kind that fails, counted from 1: 0 for none. A cause of 0 lets half of the bytes through.
struct Piano {
  Genere genere;
  int numero;
  int causa;          // errno
  bool da_li_in_poi;  // and all after it
};

/// From now on the calls on files of these folders are counted, and fail as planned.
void arma(const Piano& piano, std::vector<std::string> cartelle);
void disarma();

/// Counted since the last `azzera`, in this process and in its children.
struct Conti {
  std::array<int, generi> chiamate;
  int colpite;
};
const Conti& conti();
void azzera();

}  // namespace guasti
