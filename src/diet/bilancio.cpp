#include "diet/bilancio.h"

#include "base/errori.h"
#include "base/numeri.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Tolerances by meal, as fractions of the target.
struct Tolleranza {
  double proteine, grassi, calorie;
};

Tolleranza tolleranza(int m, bool pranzo_ff) {
  static constexpr std::array<Tolleranza, 5> di_pasto{
      {{0.50, 0.50, 0.20}, {0.90, 0.90, 0.20}, {0.09, 0.09, 0.08}, {0.90, 0.90, 0.20}, {0.12, 0.12, 0.08}}};
  static constexpr Tolleranza pranzo_veloce{0.35, 0.35, 0.12};
  return m == 2 && pranzo_ff ? pranzo_veloce : di_pasto.at(static_cast<std::size_t>(m));
}

constexpr double passo = 0.2;
constexpr double tetto = 2.0;
constexpr auto oltre_il_tetto = static_cast<float>(2.0 + 0.1);
constexpr int giri_massimi = 3000;

/// Half to even, without the cost of a library call; exact below 2^51.
double pari(double x) {
  constexpr double magia = 0x1.8p52;
  return x + magia - magia;
}

inline int intero16(double x) {
  const double r = pari(x);
  if (!(r >= -32768 && r <= 32767)) throw Errore(6, "Overflow");
  return static_cast<int>(r);
}

/// What scaling changes in an entry.
struct Porzione {
  int quant = 0, cal = 0;
  float prot = 0, lip = 0, gluc = 0, fattore = 0;
  bool operator==(const Porzione&) const = default;
};

/// A portion taken from its factor to the factor n. Rounding builds on what was rounded before.
Porzione scalata(const Porzione& p, float n) {
  const double f = p.fattore, a = n;
  const auto nutriente = [&](float v) { return static_cast<float>(tre_decimali(a * v / f)); };
  return {intero16(a * p.quant / f), intero16(a * p.cal / f), nutriente(p.prot),
          nutriente(p.lip),          nutriente(p.gluc),       n};
}

/// One entry on the odometer. Its portions repeat from turn to turn, so each is worked out once.
class Ruota {
 public:
  explicit Ruota(const voce_pasto& v) : unico(v.unico) {
    passi_[0] = {v.quant, v.cal, v.prot, v.lip, v.gluc, v.fattore};
  }

  [[nodiscard]] const Porzione& porzione() const { return passi_[posto_]; }

  /// One step up; false when the entry went back to base and the one before it is to move.
  bool avanza() {
    if (posto_ + 1 < noti_) {
      ++posto_;
      return true;
    }
    const auto n = static_cast<float>(porzione().fattore + passo);
    if (!(n > oltre_il_tetto)) {
      passi_[noti_] = scalata(porzione(), n);
      posto_ = noti_++;
      return true;
    }
    const Porzione base = scalata(porzione(), 1);
    if (base != passi_[0]) noti_ = 1;
    passi_[0] = base;
    posto_ = 0;
    return false;
  }

  bool unico;

 private:
  std::array<Porzione, 8> passi_;
  std::size_t posto_ = 0, noti_ = 1;
};

struct Somme {
  int cal = 0, prot = 0, lip = 0;
};

struct Intervallo {
  int da, a;
  [[nodiscard]] bool contiene(int x) const { return da <= x && x <= a; }
};

/// The working meal on a small flat array; writes itself back when it goes, also by a failure.
class Odometro {
 public:
  explicit Odometro(Motore& m) : motore_(m) {
    ruote_.reserve(static_cast<std::size_t>(m.conta_voci));
    for (int i = 0; i < m.conta_voci; ++i) ruote_.emplace_back(m.pasto_lavoro[static_cast<std::size_t>(i)]);
    somma_da(0);
  }
  ~Odometro() {
    for (std::size_t i = 0; i < ruote_.size(); ++i) {
      const Porzione& p = ruote_[i].porzione();
      voce_pasto& v = motore_.pasto_lavoro[i];
      v.quant = static_cast<std::int16_t>(p.quant);
      v.cal = static_cast<std::int16_t>(p.cal);
      v.prot = p.prot;
      v.lip = p.lip;
      v.gluc = p.gluc;
      v.fattore = p.fattore;
    }
  }
  Odometro(const Odometro&) = delete;
  Odometro& operator=(const Odometro&) = delete;

  [[nodiscard]] const Somme& somme() const { return somme_[contate_]; }

  /// The sum at double portions over the entries that count; indivisible ones stay as they are.
  [[nodiscard]] int piena(auto valore) const {
    int somma = 0;
    for (std::size_t i = 0; i < contate_; ++i) {
      const double v = valore(ruote_[i].porzione());
      somma = intero16(somma + (ruote_[i].unico ? v : tetto * v));
    }
    return somma;
  }

  /// The next setting, the last entry moving fastest; false when there is none left.
  bool avanza() {
    std::size_t i = ruote_.size();
    bool mossa = false;
    while (i > 0 && !mossa) {
      --i;
      if (!ruote_[i].unico) mossa = ruote_[i].avanza();
    }
    somma_da(i);
    return mossa;
  }

 private:
  /// Entries from index `i` on have changed. The sums stop at the first entry without calories.
  void somma_da(std::size_t i) {
    if (i > contate_) return;
    const std::size_t fine = std::min<std::size_t>(ruote_.size(), voci_contate);
    for (; i < fine && ruote_[i].porzione().cal != 0; ++i) {
      const Porzione& p = ruote_[i].porzione();
      const Somme& s = somme_[i];
      somme_[i + 1] = {intero16(s.cal + p.cal), intero16(s.prot + double{p.prot}), intero16(s.lip + double{p.lip})};
    }
    contate_ = i;
  }

  Motore& motore_;
  std::vector<Ruota> ruote_;
  std::array<Somme, voci_contate + 1> somme_{};  // over the entries before each index
  std::size_t contate_ = 0;
};

/// Takes the deviations of the day's earlier meals off a dinner's targets. The fat test divides by the protein sum;
/// a correction of a fifth upwards or of three tenths downwards is skipped.
void correggi_cena(std::int16_t& P, std::int16_t& L, float compP, float compL) {
  const auto ammessa = [&](std::int16_t obiettivo) {
    const double divisore = obiettivo - double{compP};
    if (divisore == 0) throw Errore(11, "Divisione per zero");
    const auto r = static_cast<float>(obiettivo / divisore);
    return r > 0.7F && r < 1.2F;
  };
  if (ammessa(P)) P = round16(P - double{compP});
  if (ammessa(L)) L = round16(L - double{compL});
}

Intervallo intorno(int obiettivo, double t) {
  return {intero16(obiettivo - t * obiettivo), intero16(obiettivo + t * obiettivo)};
}

struct Intervalli {
  Intervallo calorie, proteine, grassi;
  [[nodiscard]] bool contengono(const Somme& s) const {
    return proteine.contiene(s.prot) && grassi.contiene(s.lip) && calorie.contiene(s.cal);
  }
};

/// Can the meal be saved at all? Calories first, then protein, then fat; each asks whether double portions reach the
/// target and whether base portions are beyond it already. 1 where the odometer may start.
std::int16_t prima_prova(Motore& motore, const Odometro& o, const Intervalli& i, int K) {
  const auto troppo = [](std::int16_t& errori) {
    errori = round16(errori + 1);
    return std::int16_t{-1};
  };
  if (o.piena([](const Porzione& p) { return double(p.cal); }) < K) return 0;
  if (o.somme().cal > i.calorie.a) return troppo(motore.errori_kcal);
  if (o.piena([](const Porzione& p) { return double{p.prot}; }) < i.proteine.da) return 0;
  if (o.somme().prot >= i.proteine.a) return troppo(motore.errori_prot);
  if (o.piena([](const Porzione& p) { return double{p.lip}; }) < i.grassi.da) return 0;
  if (o.somme().lip >= i.grassi.a) return troppo(motore.errori_lip);
  return 1;
}

void annota_scarto(Motore& motore, const scarto& s) {
  if (motore.conta_scarti >= static_cast<int>(motore.scarti.size()))
    throw Errore(9, "Indice non incluso nell'intervallo");
  motore.scarti[static_cast<std::size_t>(motore.conta_scarti)] = s;
  ++motore.conta_scarti;
}

}  // namespace

double tre_decimali(double x) {
  const double y = x * 1000;
  const double intera = std::trunc(y);
  const double resto = y - intera;
  // Near a tie the decimal text decides; elsewhere 15 digits are far finer than the distance to it.
  if (std::fabs(resto - 0.5) < 1e-5) return valore(fmt(x, "#.000"));
  return (resto > 0.5 ? intera + 1 : intera) / 1000;
}

std::int16_t bilancia_pasto(Motore& motore, std::int16_t P, std::int16_t L, std::int16_t K, int m, float compP,
                            float compL, bool scala) {
  if (m == 4) correggi_cena(P, L, compP, compL);
  const Tolleranza t = tolleranza(m, motore.pranzo_ff);
  const Intervalli intervalli{{K, intero16(K + intero16(t.calorie * K))}, intorno(P, t.proteine), intorno(L, t.grassi)};
  Odometro odometro(motore);
  if (const auto esito = prima_prova(motore, odometro, intervalli, K); esito != 1) return esito;
  for (int giri = 1;; ++giri) {
    const Somme& s = odometro.somme();
    if (intervalli.contengono(s)) {
      if (m != 4) {
        annota_scarto(motore, {round16(s.cal - K), static_cast<float>(s.prot - P), static_cast<float>(s.lip - L)});
      }
      return 1;
    }
    if (!scala || !odometro.avanza() || giri > giri_massimi) return 0;
  }
}
