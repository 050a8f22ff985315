#include "diet/registrazione.h"

#include "base/numeri.h"

using namespace Qt::StringLiterals;

void registra_pasto(Motore& motore, int d, int m, int settimana) {
  for (int i = 0; i < posti; ++i) motore.menu(settimana, d, m, i) = {};
  int libero = 0;
  for (int cod1 = 1; cod1 <= 30; ++cod1) {
    for (int i = 0; i < voci_contate; ++i) {
      const voce_pasto& v = motore.pasto_lavoro[static_cast<std::size_t>(i)];
      if (v.cod1 == cod1) motore.menu(settimana, d, m, libero++) = v;
    }
  }
}

void conta_usi(const Motore& motore, Spuntati& spuntati, int d, int m) {
  std::vector<std::pair<std::int16_t, std::int16_t>> cibi;
  for (int i = 0; i < posti; ++i) {
    const voce_pasto& v = motore.menu(motore.settimana_corrente, d, m, i);
    if (v.cod1 == 0) break;
    cibi.emplace_back(v.cod1, v.cod2);
  }
  spuntati.conta_uso_alimenti(cibi, m);
}

voce_pasto voce_integratore(const Riga& r) {
  const double q = r[u"quantità"].toDouble();
  const auto energia = [&](QStringView campo, int kcal_al_grammo) {
    return static_cast<float>(r[campo].toDouble() * kcal_al_grammo * q / 100);
  };
  return {.cod1 = 23,
          .cod2 = 0,
          .descr = r[u"Descrizione"].toString(),
          .unico = true,
          .cal = round16(r[u"calorie"].toDouble() * q / 100),
          .prot = energia(u"protidi", 4),
          .lip = energia(u"lipidi", 9),
          .gluc = energia(u"glucidi", 4),
          .quant = round16(q),
          .fattore = 1,
          .quant_mod = {}};
}
