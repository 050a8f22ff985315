// A food in a meal, as tests write it.
#pragma once

#include "diet/contesto.h"

/// Kilocalories of the portion and of each nutrient in it; grams.
inline voce_pasto voce(int cod1, const QString& nome, int cal, float prot, float lip, float gluc, int quant) {
  voce_pasto v;
  v.descr = nome;
  v.cod1 = static_cast<std::int16_t>(cod1);
  v.cod2 = 1;
  v.cal = static_cast<std::int16_t>(cal);
  v.prot = prot;
  v.lip = lip;
  v.gluc = gluc;
  v.quant = static_cast<std::int16_t>(quant);
  return v;
}
