// The grid of foods that a client accepts or must have at a meal: its rows, its marks, the boxes that mark whole
// groups.
#pragma once

#include "base/archivio.h"
#include "diet/spuntati.h"

#include <QStringList>
#include <array>
#include <optional>
#include <span>
#include <vector>

/// Meals of the grid, in the order of their buttons; a meal's code is its position + 1.
namespace scheda_di {
enum : int { colazione, colazione_bio, spuntino, pranzo, merenda, cena, integratori };
}

inline constexpr std::array tutti_i_segni{Segno::ok, Segno::LV, Segno::SD};

/// A row of the grid.
struct AlimentoScheda {
  int cod1 = 0, cod2 = 0, cod3 = 0, cod4 = 0;
  QString descrizione;
  double calorie = 0;              // kcal per 100 g
  QString abb2;                    // the food's own companions
  std::array<QString, 3> liste{};  // companions in force, by mark
  std::array<bool, 3> segni{};
  QStringList valori{};  // of a supplement: name, daily grams, kcal and grams per 100 g, as its window takes them

  [[nodiscard]] bool segnato(Segno s) const { return segni[static_cast<std::size_t>(s)]; }
  [[nodiscard]] QString& lista(Segno s) { return liste[static_cast<std::size_t>(s)]; }
  [[nodiscard]] const QString& lista(Segno s) const { return liste[static_cast<std::size_t>(s)]; }
};
using Scheda = std::vector<AlimentoScheda>;

/// True for a food of group `cod1` with that portion (grams) in the grid of meal `sel`; `fast_food` is the client's
/// lunch on weekdays.
[[nodiscard]] bool alimento_in_scheda(int sel, int cod1, int quantita, bool fast_food);

/// The foods of a store for the grid of meal `sel`, in code order, each with its own companions in all three lists.
[[nodiscard]] Scheda leggi_alimenti(Archivio& sa_dieta, int sel, bool fast_food);

/// The supplements of the client's diet as rows of the grid.
[[nodiscard]] Scheda leggi_integratori(Archivio& dati);

/// Marks a row and puts its own companions in force, where it has any; nothing where the mark stands.
void imposta_segno(AlimentoScheda& riga, Segno segno);

/// Takes a mark away. A food with companions takes theirs along; one without leaves the lists of its group.
void togli_segno(Scheda& scheda, std::size_t riga, Segno segno);

/// Gives or takes the acceptance of every food whose first column holds `a` and whose column `colonna`, counted from
/// 1, holds `b`.
void spunta_gruppo(Scheda& scheda, int a, int b, int colonna, bool accetta);

/// A call of `spunta_gruppo`; column 0 stands for none.
struct Chiamata {
  int a = 0, b = 0, colonna = 0;
};
struct Casella {
  QStringView scritta;
  Chiamata prima, seconda{};
};
/// The boxes of a meal: name of frame and controls, title, field that keeps the ones not ticked.
struct InsiemeCaselle {
  QStringView nome, titolo, campo;
  std::span<const Casella> caselle;
};

/// The seven sets of boxes in the order of the meals, the fast-food lunch after the lunch.
[[nodiscard]] std::span<const InsiemeCaselle> insiemi_caselle();

/// Which set serves a meal; none for the supplements.
[[nodiscard]] std::optional<std::size_t> insieme_del_pasto(int sel, bool fast_food);

/// Re-applies all boxes of a set, one by one.
void applica_caselle(Scheda& scheda, const InsiemeCaselle& insieme, const std::vector<bool>& spuntate);

/// A line of the list of chosen foods.
struct Scelto {
  int cod2 = 0, cod1 = 0;
  std::size_t riga = 0;  // of the grid, the food's or its base food's
  QString descrizione;
  Segno segno = Segno::ok;
};

/// What is marked, row by row and mark by mark, each food after its companions.
[[nodiscard]] std::vector<Scelto> alimenti_scelti(const Scheda& scheda);
