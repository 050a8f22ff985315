// The foods that the client accepts, read once a search into the order of the draws.
#pragma once

#include "base/archivio.h"

#include <array>
#include <cstdint>
#include <vector>

/// Which mark of a row offers it: free, obligatory Monday to Friday, obligatory Saturday and Sunday.
enum class Segno { ok, LV, SD };

/// One food offered for one meal code (1 colazione, 2 colazione bio, 3 spuntino, 4 pranzo, 5 merenda, 6 cena).
struct Spuntato {
  std::int16_t cod1 = 0, cod2 = 0, cod3 = 0, cod4 = 0, pasto = 0;
  bool ok = false, lv = false, sd = false;
  QString abb_ok, abb_lv, abb_sd;  // companion lists by use
  std::int16_t n_volte_pranzo = 0, n_volte_cena = 0;

  [[nodiscard]] const QString& abbinamenti(Segno segno) const {
    return segno == Segno::ok ? abb_ok : segno == Segno::LV ? abb_lv : abb_sd;
  }
};

/// The rows of the client's list `alimenti_spuntati` that carry a mark. They come out in the order cod1, cod2, cod3,
/// cod4.
class Spuntati {
 public:
  /// Reads the list. Throws Errore where it cannot be read.
  void leggi(Archivio& dati);

  /// The rows marked ok for a meal code.
  [[nodiscard]] const std::vector<const Spuntato*>& offerti(std::int16_t pasto) const;

  /// The rows of a meal code with a mark, by their course (cod3) or their group (cod1).
  [[nodiscard]] const std::vector<const Spuntato*>& per_portata(Segno segno, std::int16_t pasto, int cod3) const;
  [[nodiscard]] const std::vector<const Spuntato*>& per_gruppo(Segno segno, std::int16_t pasto, int cod1) const;

  /// Counts one use of each food (cod1, cod2) at lunch (m 2) or dinner (m 4), for the draws at once and for the store
  /// at the next `scrivi_usi`. Obligatory foods are not counted.
  void conta_uso_alimenti(const std::vector<std::pair<std::int16_t, std::int16_t>>& cibi, int m);

  /// Writes the uses counted since the last time to the store, all or none.
  void scrivi_usi(Archivio& dati);

  /// Sets all use counters to 0, in the store and here.
  void azzera_n_volte(Archivio& dati);

 private:
  static constexpr std::size_t pasti_codici = 7, valori = 32;
  using Elenco = std::vector<const Spuntato*>;
  using PerValore = std::array<Elenco, valori>;
  using PerPasto = std::array<std::array<PerValore, pasti_codici>, 3>;  // by mark, meal code, value

  void indicizza();

  std::vector<Spuntato> righe_;
  std::array<std::vector<QVariantList>, 2> da_scrivere_;  // uses at lunch, at dinner
  std::array<Elenco, pasti_codici> offerti_;
  PerPasto portate_, gruppi_;
};
