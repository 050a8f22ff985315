// The writers of the printed sheets. Each reads its stores anew and writes one page; nothing is kept between pages. A
// failure of a store or of the arithmetic leaves them as Errore, and what was written stays on the page.
#pragma once

#include "reports/bersaglio.h"

/// The sheet of personal data and measurements; one page.
void stampa_dati_personali(Bersaglio& b);

/// A day of the saved diet: week 1 to 4, day 0 to 6.
void stampa_dieta(int settimana, int giorno, Bersaglio& b);

/// Foods of the diary with their values per 100 g, the analysis on the last page. `pagina` from 1.
void stampa_diario(Bersaglio& b, int pagina);

/// Pages of the diary list: one more than the full 25 rows; 0 for a client who was never saved.
[[nodiscard]] int pagine_diario();

/// Energy and nutrients of the diet's foods; pages 1 to 9.
void stampa_calorie(Bersaglio& b, int pagina);

/// Exchangeable foods group by group; pages 1 to 3.
void stampa_gruppi(Bersaglio& b, int pagina);

/// The sheet on which the client's refusals are marked; pages 1 to 4.
void stampa_preferenze(Bersaglio& b, int pagina);
