// What one search works on.
#pragma once

#include "diet/alimenti.h"
#include "diet/motore.h"
#include "diet/spuntati.h"

struct Contesto {
  Motore& motore;
  ArchiviDieta archivi;
  Spuntati spuntati;
  const Caso& caso;
};
