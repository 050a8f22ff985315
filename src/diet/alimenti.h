// The food base of the elaboration: three stores of the same foods that differ in their portions.
#pragma once

#include "base/archivio.h"

#include <QString>
#include <cstdint>
#include <map>
#include <vector>

/// A food as its store holds it; portion in grams, nutrients per 100 g (kcal and grams).
struct Alimento {
  std::int16_t cod1 = 0, cod2 = 0;  // group and number within it: together they identify the food
  std::int16_t cod3 = 0;            // course that it fills in a lunch or dinner
  std::int16_t cod4 = 0;            // sub-group: base food, first companion kind, second
  QString descrizione;
  std::int16_t quantita = 0;
  double calorie = 0, protidi = 0, lipidi = 0, glucidi = 0;
  bool unico = false;  // an indivisible unit, never scaled
};

/// Store for a day of `calorie` kcal: 0 minus below 1500, 1 standard up to 2300, 2 plus above.
[[nodiscard]] std::int16_t tipo_archivio(std::int32_t calorie);

/// The three food stores, each read once; one of them is the current one.
class ArchiviDieta {
 public:
  /// Makes a store the current one: 0 minus, 1 standard, 2 plus, any other value the one opened last.
  /// Throws Errore where the store cannot be read; the former one then stays current.
  void apri_archivio_dieta(std::int16_t tipo);

  /// True once a store was opened.
  [[nodiscard]] bool aperto() const { return corrente_ != nullptr; }

  /// The food of that pair in the current store, null where it has none. Throws Errore 91 with no store open.
  [[nodiscard]] const Alimento* trova(std::int16_t cod1, std::int16_t cod2) const;

  /// The current store's foods in the order cod1, cod2, cod3, cod4.
  [[nodiscard]] const std::vector<Alimento>& alimenti() const;

 private:
  QString file_;
  std::map<QString, std::vector<Alimento>> letti_;
  const std::vector<Alimento>* corrente_ = nullptr;
};

/// True where the client's working copy asks for a fast-food or ready-dish lunch on weekdays (choices 12 and 14).
[[nodiscard]] bool leggi_tipo_pranzo(Archivio& dati);
