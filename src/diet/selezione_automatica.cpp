#include "diet/selezione_automatica.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Codici {
  int cod1, cod3, cod4;
};

bool tra_questi(int cod1, std::initializer_list<int> gruppi) { return std::ranges::find(gruppi, cod1) != gruppi.end(); }

/// Which foods a meal's list takes, and which of them may be drawn.
struct Regola {
  std::int16_t pasto;
  bool (*entra)(const Codici&);
  bool (*ok)(const Codici&);
};

// The box indices that start unticked; a box's index + 4 is its group, so this list and the groups that lunch
// and dinner offer without drawing them are the same set: a new default changes both.
constexpr QStringView caselle_pasti = u"1;3;5;6;8;12;13;15;16;17;";

bool da_pasto(const Codici& c) { return c.cod1 > 3; }
bool gruppo_comune(const Codici& c) { return !tra_questi(c.cod1, {5, 7, 9, 10, 12, 16, 17, 19, 20, 21}); }

constexpr Regola colazione{1, [](const Codici& c) { return c.cod1 == 1; },
                           [](const Codici& c) { return c.cod4 != 5 && (c.cod4 != 2 || c.cod3 != 1); }};
constexpr Regola colazione_bio{2, [](const Codici& c) { return c.cod1 == 2; }, [](const Codici&) { return false; }};
constexpr Regola spuntino{3, [](const Codici& c) { return c.cod1 == 3; }, [](const Codici& c) { return c.cod4 != 1; }};
constexpr Regola merenda{5, spuntino.entra, spuntino.ok};
constexpr Regola pranzo{4, da_pasto, gruppo_comune};
constexpr Regola pranzo_veloce{4,
                               [](const Codici& c) {
                                 return tra_questi(c.cod1, {7, 15, 18, 19, 21});
                               },
                               [](const Codici& c) { return c.cod1 != 21 || c.cod4 != 2; }};
constexpr Regola cena{6, da_pasto, gruppo_comune};

void scrivi_caselle(Archivio& dati, bool fast_food) {
  if (dati.righe(u"SELECT 1 FROM checkAlimentiSpuntati"_s).empty()) {
    dati.esegui(u"INSERT INTO checkAlimentiSpuntati DEFAULT VALUES"_s);
  }
  const QString pasti = caselle_pasti.toString();
  dati.esegui(
      u"UPDATE checkAlimentiSpuntati SET CheckColazione=?, CheckColazioneBio=?, CheckSpuntino=?, CheckPranzo=?, "
      "CheckMerenda=?, CheckCena=?"_s,
      u"1;3;"_s, u"0;1;2;3;"_s, u"0;"_s, fast_food ? u"5;"_s : pasti, u"0;"_s, pasti);
}

}  // namespace

void copia_alimento_spuntato(const Riga& alimento, Archivio& dati, std::int16_t pasto, bool ok) {
  const QVariant& abb2 = alimento[u"abb2"];
  const QString abbinamenti = abb2.isNull() ? u""_s : abb2.toString();
  dati.esegui(
      u"INSERT INTO alimenti_spuntati (cod1, cod2, cod3, cod4, pasto, ok, abb_OK, abb_LV, abb_SD) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
      alimento[u"cod1"], alimento[u"cod2"], alimento[u"cod3"], alimento[u"cod4"], pasto, ok, abbinamenti, abbinamenti,
      abbinamenti);
}

void seleziona_automatico(Archivio& dati, Archivio& sa_dieta, bool fast_food) {
  const auto alimenti = sa_dieta.righe(u"select * from alimenti where quantità <> 0 order by cod1,cod2,cod3,cod4"_s);
  dati.transazione([&] {
    scrivi_caselle(dati, fast_food);
    dati.esegui(u"delete from alimenti_spuntati"_s);
    for (const Regola& r : {colazione, colazione_bio, spuntino, fast_food ? pranzo_veloce : pranzo, merenda, cena}) {
      for (const Riga& a : alimenti) {
        const Codici c{a[u"cod1"].toInt(), a[u"cod3"].toInt(), a[u"cod4"].toInt()};
        if (r.entra(c)) copia_alimento_spuntato(a, dati, r.pasto, r.ok(c));
      }
    }
  });
}
