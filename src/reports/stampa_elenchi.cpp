#include "reports/fonti.h"
#include "reports/scrittori.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<Finestra, 9> finestre_calorie{
    {{0, 33}, {34, 70}, {71, 100}, {101, 130}, {131, 170}, {171, 200}, {201, 230}, {231, 270}, {271, 300}}};
constexpr std::array<Finestra, 3> finestre_gruppi{{{0, 33}, {34, 73}, {74, 100}}};

void testa_calorie(Bersaglio& b, const Studio& studio, int pagina) {
  if (pagina > 1) return righe_vuote(b, 2);
  b.all_origine();
  b.a_capo();
  riga(b, studio.nome);
  righe_vuote(b, 2);
  riga(b, u"Orzaline   -   Elenco calorie e nutrienti per alimento"_s);
  b.a_capo();
}

void testa_gruppi(Bersaglio& b, const Studio& studio, int pagina) {
  if (pagina > 1) return righe_vuote(b, pagina == 2 ? 2 : 4);
  b.all_origine();
  righe_vuote(b, 2);
  riga(b, Tab{40}, u"Orzaline - SCHEDA ALIMENTI DI GRUPPI DIVERSI - DIETA MEDICALE"_s);
  riga(b, Tab{40}, u"Gli alimenti compresi nello stesso gruppo sono scambiabili a parita' di dose"_s);
  b.a_capo();
  riga(b, studio.nome);
  b.a_capo();
}

/// A head without a food of its own leaves the line open for the next row.
void scrivi_gruppo(Bersaglio& b, const QVariant& gruppo, const QVariant& alimento) {
  if (!gruppo.isNull()) pezzo(b, gruppo);
  if (!alimento.isNull()) return riga(b, Tab{40}, alimento);
  if (gruppo.isNull()) riga(b, u" "_s);
}

}  // namespace

void stampa_calorie(Bersaglio& b, int pagina) {
  const Studio studio = identità();
  auto alimenti = archivio_alimenti(u"sa_dieta.jed"_s);
  if (!alimenti) return;
  testa_calorie(b, studio, pagina);
  riga(b, u"Descrizione"_s, Tab{80}, u"KCal"_s, Tab{90}, u"Prot"_s, Tab{100}, u"Lip"_s, Tab{110}, u"Gluc"_s);
  b.a_capo();
  const auto righe = alimenti->righe(u"SELECT * FROM alimenti WHERE quantità <> 0 ORDER BY cod1, cod2"_s);
  for (const Riga& r : nella_finestra(righe, finestre_calorie.at(static_cast<std::size_t>(pagina - 1)))) {
    riga(b, r[u"Descrizione"], Tab{80}, r[u"calorie"], Tab{90}, r[u"protidi"], Tab{100}, r[u"lipidi"], Tab{110},
         r[u"glucidi"]);
  }
}

void stampa_gruppi(Bersaglio& b, int pagina) {
  const Studio studio = identità();
  auto elenco = archivio_alimenti(u"gruppi_elenco.jed"_s);
  if (!elenco) return;
  testa_gruppi(b, studio, pagina);
  const auto righe = elenco->righe(u"SELECT gruppo, Descrizione FROM gruppi ORDER BY cont"_s);
  for (const Riga& r : nella_finestra(righe, finestre_gruppi.at(static_cast<std::size_t>(pagina - 1)))) {
    scrivi_gruppo(b, r[u"gruppo"], r[u"Descrizione"]);
  }
}
