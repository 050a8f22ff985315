// The acceptance test of a meal: tolerances, their inclusive and exclusive ends, the odometer and its rounding.
#include "attrezzi.h"
#include "base/numeri.h"
#include "diet/bilancio.h"
#include "diet/voce.h"

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;

namespace {

struct Voce {
  int cal;
  float prot, lip;
  bool unico = false;
};

void componi(Motore& m, const std::vector<Voce>& voci) {
  m.svuota_pasto();
  for (const Voce& v : voci) {
    voce_pasto& x = m.pasto_lavoro[static_cast<std::size_t>(m.conta_voci++)];
    x = voce(4, {}, v.cal, v.prot, v.lip, static_cast<float>(v.cal) / 3, 100);
    x.unico = v.unico;
    x.fattore = 1;
  }
}

/// The rules written down literally: every sum anew at each turn, every rounding through the text.
int alla_lettera(Motore& m, int P, int L, int K, double tp, double tl, double tk) {
  const int n = m.conta_voci;
  auto& v = m.pasto_lavoro;
  bool finito = false, primo = true;
  for (int giri = 0;;) {
    if (finito) return 0;
    int sk = 0, sp = 0, sl = 0, fk = 0, fp = 0, fl = 0;
    for (std::size_t i = 0; i <= 10 && v[i].cal != 0; ++i) {
      const double f = v[i].unico ? 1 : 2;
      sk += v[i].cal;
      sp = round16(sp + double{v[i].prot});
      sl = round16(sl + double{v[i].lip});
      fk = round16(fk + f * v[i].cal);
      fp = round16(fp + f * double{v[i].prot});
      fl = round16(fl + f * double{v[i].lip});
    }
    const int p1 = round16(P - tp * P), p2 = round16(P + tp * P), l1 = round16(L - tl * L), l2 = round16(L + tl * L);
    const int k2 = K + round16(tk * K);
    if (primo) {
      if (fk < K) return 0;
      if (sk > k2) return -1;
      if (fp < p1) return 0;
      if (sp >= p2) return -1;
      if (fl < l1) return 0;
      if (sl >= l2) return -1;
    }
    primo = false;
    ++giri;
    if (p1 <= sp && sp <= p2 && l1 <= sl && sl <= l2 && K <= sk && sk <= k2) return 1;
    int i = n - 1;
    for (; i >= 0; --i) {
      voce_pasto& x = v[static_cast<std::size_t>(i)];
      if (x.unico) continue;
      const auto su = static_cast<float>(double{x.fattore} + 0.2);
      const bool sale = !(su > static_cast<float>(2.1));
      const float nuovo = sale ? su : 1;
      const auto tre = [&](float y) {
        return static_cast<float>(valore(fmt(double{nuovo} * double{y} / double{x.fattore}, "#.000")));
      };
      x.quant = round16(double{nuovo} * x.quant / double{x.fattore});
      x.cal = round16(double{nuovo} * x.cal / double{x.fattore});
      x.prot = tre(x.prot);
      x.lip = tre(x.lip);
      x.gluc = tre(x.gluc);
      x.fattore = nuovo;
      if (sale) break;
    }
    if (i < 0) finito = true;
    if (giri > 3000) return 0;
  }
}

}  // namespace

TEST(Bilancio, EndsOfTheRanges) {
  // Lunch at home: protein and fat 9 percent either way, calories 8 percent upwards only.
  struct Esempio {
    const char* che;
    std::vector<Voce> voci;
    int P, L, K;
    int esito;
    std::array<int, 3> errori{};
  };
  for (const Esempio& c : {
           Esempio{"on target", {{400, 80, 120, true}}, 80, 120, 400, 1, {}},
           {"calories at the upper end pass", {{432, 80, 120, true}}, 80, 120, 400, 1, {}},
           {"one above is too much", {{433, 80, 120, true}}, 80, 120, 400, -1, {1, 0, 0}},
           {"below the calories there is nothing to scale", {{399, 80, 120, true}}, 80, 120, 400, 0, {}},
           {"protein at the upper end is too much at base", {{400, 109, 120, true}}, 100, 120, 400, -1, {0, 1, 0}},
           {"protein one below it passes", {{400, 108, 120, true}}, 100, 120, 400, 1, {}},
           {"protein at the lower end passes", {{400, 91, 120, true}}, 100, 120, 400, 1, {}},
           {"too little protein even doubled", {{400, 45, 120}}, 100, 120, 400, 0, {}},
           {"fat at the upper end is too much at base", {{400, 100, 109, true}}, 100, 100, 400, -1, {0, 0, 1}},
           {"no fat wanted: any is too much", {{400, 100, 1, true}}, 100, 0, 400, -1, {0, 0, 1}},
           {"calories are asked first", {{500, 200, 200, true}}, 100, 100, 400, -1, {1, 0, 0}},
           {"an empty meal", {}, 100, 100, 400, 0, {}},
           {"what follows a food without calories does not count", {{0, 0, 0}, {400, 100, 100}}, 100, 100, 400, 0, {}},
           {"doubled to reach it", {{200, 50, 50}}, 100, 100, 400, 1, {}},
       }) {
    Motore m;
    componi(m, c.voci);
    EXPECT_EQ(bilancia_pasto(m, static_cast<std::int16_t>(c.P), static_cast<std::int16_t>(c.L),
                             static_cast<std::int16_t>(c.K), 2, 0, 0, true),
              c.esito)
        << c.che;
    EXPECT_EQ((std::array<int, 3>{m.errori_kcal, m.errori_prot, m.errori_lip}), c.errori) << c.che;
    EXPECT_EQ(m.conta_scarti, c.esito == 1 ? 1 : 0) << c.che;
  }
}

TEST(Bilancio, DeviationIsKeptForDinnerAndTakenOffThere) {
  Motore m;
  componi(m, {{420, 95, 103, true}});
  ASSERT_EQ(bilancia_pasto(m, 100, 100, 400, 2, 0, 0, true), 1);
  EXPECT_EQ(m.scarti[0].kcal, 20);
  EXPECT_FLOAT_EQ(m.scarti[0].prot, -5);
  EXPECT_FLOAT_EQ(m.scarti[0].lip, 3);
  const std::tuple<const char*, float, float, float, int> cene[]{
      {"corrected target 90", 90, 10, 0, 1},
      {"the ratio 100 / 80 is beyond 1.2: target stays 100", 100, 20, 0, 1},
      {"... so 80 is too little, and a whole piece cannot grow", 80, 20, 0, 0},
      {"a deficit raises the target to 120", 120, -20, 0, 1},
      {"the fat test divides by the protein sum: 100 / 60 skips a fat correction", 100, 40, 5, 1},
  };
  for (const auto& [che, prot, compP, compL, esito] : cene) {
    componi(m, {{400, prot, 100, true}});
    EXPECT_EQ(bilancia_pasto(m, 100, 100, 400, 4, compP, compL, true), esito) << che;
  }
  EXPECT_EQ(m.conta_scarti, 1) << "a dinner leaves no deviation";
  componi(m, {{400, 100, 100, true}});
  for (const auto& [P, comp] : {std::pair<std::int16_t, float>{50, 50.F}, {0, 0.F}}) {
    EXPECT_EQ(numero_errore([&] { (void)bilancia_pasto(m, P, 100, 400, 4, comp, 0, true); }), 11) << P;
  }
}

TEST(Bilancio, FastFoodLunchIsWider) {
  Motore m;
  componi(m, {{440, 130, 70, true}});
  EXPECT_EQ(bilancia_pasto(m, 100, 100, 400, 2, 0, 0, true), -1);
  m.pranzo_ff = true;
  EXPECT_EQ(bilancia_pasto(m, 100, 100, 400, 2, 0, 0, true), 1);
}

TEST(Bilancio, TheLastFoodMovesFastestAndWholePiecesNever) {
  Motore m;
  componi(m, {{100, 20, 20}, {100, 20, 20, true}, {100, 20, 20}});
  // 100 x f1 + 100 + 100 x f3 = 400 first comes with f1 1, f3 2.
  ASSERT_EQ(bilancia_pasto(m, 80, 80, 400, 2, 0, 0, true), 1);
  EXPECT_FLOAT_EQ(m.pasto_lavoro[0].fattore, 1);
  EXPECT_FLOAT_EQ(m.pasto_lavoro[1].fattore, 1);
  EXPECT_FLOAT_EQ(m.pasto_lavoro[2].fattore, 2);
  EXPECT_EQ(m.pasto_lavoro[2].quant, 200);
  componi(m, {{100, 20, 20}, {100, 20, 20}});
  EXPECT_EQ(bilancia_pasto(m, 80, 80, 400, 2, 0, 0, false), 0) << "without scaling the base portions stand";
  EXPECT_FLOAT_EQ(m.pasto_lavoro[1].fattore, 1);
}

TEST(Bilancio, FastOdometerEqualsTheRuleToTheLetter) {
  std::mt19937 caso(7);
  const auto tra_numeri = [&](int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso); };
  std::array<int, 3> esiti{};
  for (int prova = 0; prova < 400; ++prova) {
    std::vector<Voce> voci;
    for (int i = tra_numeri(1, 13); i > 0; --i) {
      voci.push_back({tra_numeri(0, 20) == 0 ? tra_numeri(0, 3) : tra_numeri(5, 150),
                      static_cast<float>(tra_numeri(0, 40000)) / 1000, static_cast<float>(tra_numeri(0, 60000)) / 1000,
                      tra_numeri(0, 4) == 0});
    }
    Motore veloce, lento;
    componi(veloce, voci);
    componi(lento, voci);
    // Twice: the second time starts from the factors that the first one left.
    for (int volta = 0; volta < 2; ++volta) {
      int K = 0, P = 0, L = 0;
      for (const Voce& v : voci) {
        K += v.cal * tra_numeri(8, 20) / 10;
        P += 1 + static_cast<int>(v.prot * 1.4F);
        L += 1 + static_cast<int>(v.lip * 1.4F);
      }
      const int atteso = alla_lettera(lento, P, L, K, 0.12, 0.12, 0.08);
      const int avuto = bilancia_pasto(veloce, static_cast<std::int16_t>(P), static_cast<std::int16_t>(L),
                                       static_cast<std::int16_t>(K), 4, 0, 0, true);
      ASSERT_EQ(avuto, atteso) << prova;
      ++esiti[static_cast<std::size_t>(atteso + 1)];
      for (std::size_t i = 0; i < voci_di_lavoro; ++i) {
        const voce_pasto &a = veloce.pasto_lavoro[i], &b = lento.pasto_lavoro[i];
        ASSERT_TRUE(a.cal == b.cal && a.quant == b.quant && a.prot == b.prot && a.lip == b.lip && a.gluc == b.gluc &&
                    a.fattore == b.fattore)
            << prova << ", entry " << i;
      }
    }
  }
  for (const int volte : esiti) EXPECT_GT(volte, 20) << "every answer must have come up";
}

TEST(Bilancio, ThreeDecimalsAreThoseOfTheText) {
  std::mt19937_64 caso(3);
  const auto come_testo = [](double x) { return valore(fmt(x, "#.000")); };
  for (int i = 0; i < 20000; ++i) {
    const double x = std::uniform_real_distribution<double>(0, 2000)(caso);
    ASSERT_EQ(tre_decimali(x), come_testo(x)) << testo(x).toStdString();
    const double pareggio = (std::floor(x * 1000) + 0.5) / 1000;
    for (const double y : {pareggio, std::nextafter(pareggio, 0), std::nextafter(pareggio, 1e9)}) {
      ASSERT_EQ(tre_decimali(y), come_testo(y)) << testo(y).toStdString();
    }
  }
}
