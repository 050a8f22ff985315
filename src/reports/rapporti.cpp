#include "reports/rapporti.h"

#include "reports/scrittori.h"

#include <algorithm>

namespace {

template <int settimana>
void giorno_di_dieta(Bersaglio& b, int pagina) {
  stampa_dieta(settimana, pagina - 1, b);
}

void dati_personali(Bersaglio& b, int) { stampa_dati_personali(b); }

// clang-format off
constexpr Rapporto rapporti[]{
    {u"1", u"Dati personali", 0, nullptr, 1, false, false, dati_personali},
    {u"3", u"Preferenze alimenti", 4, nullptr, 4, true, false, stampa_preferenze},
    {u"21", u"Dieta 1° settimana", 7, nullptr, 7, true, false, giorno_di_dieta<1>},
    {u"22", u"Dieta 2° settimana", 7, nullptr, 7, true, false, giorno_di_dieta<2>},
    {u"23", u"Dieta 3° settimana", 7, nullptr, 7, true, false, giorno_di_dieta<3>},
    {u"24", u"Dieta 4° settimana", 7, nullptr, 7, true, false, giorno_di_dieta<4>},
    {u"4", u"Gruppi alimentari", 3, nullptr, 3, true, true, stampa_gruppi},
    {u"7", u"Elenco calorie e nutrienti per alimento", 9, nullptr, 3, true, true, stampa_calorie},
    {u"8", u"Elenco scelte del diario alimentare", 0, pagine_diario, 0, false, false, stampa_diario},
};
// clang-format on

}  // namespace

const Rapporto* rapporto(QStringView codice) {
  const auto r = std::ranges::find(rapporti, codice, &Rapporto::codice);
  return r == std::end(rapporti) ? nullptr : r;
}
