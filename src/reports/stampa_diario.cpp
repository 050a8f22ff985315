#include "base/date.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "base/pasti.h"
#include "core/dialoghi.h"
#include "core/programma.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "diary/formdiario.h"
#include "reports/fonti.h"
#include "reports/scrittori.h"

#include <QFile>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

std::vector<Riga> scelte() {
  apri_dati_tmp(Scopo::salvare);
  return dati_tmp().righe(
      u"SELECT pasto, cod1, cod2, dose FROM scelte_diario WHERE dose > 0 ORDER BY pasto, cod1, cod2"_s);
}

int pagine(const std::vector<Riga>& righe) { return static_cast<int>(righe.size()) / 25 + 1; }

/// Three windows of rows; any later page repeats the first row.
Finestra finestra(int pagina) {
  static constexpr std::array<Finestra, 3> f{{{0, 25}, {26, 50}, {51, 75}}};
  return pagina <= 3 ? f.at(static_cast<std::size_t>(pagina - 1)) : Finestra{0, 0};
}

void testata(Bersaglio& b, const Riga& anagrafe) {
  b.logo();
  b.all_origine();
  b.a_capo();
  riga(b, Tab{30}, u"Data:    "_s, data_breve(oggi()), u"    "_s, titolo_programma());
  b.a_capo();
  riga(b, Tab{30}, u"Diario alimentare di:   "_s, anagrafe[u"nome"], u" "_s, anagrafe[u"cognome"]);
  righe_vuote(b, 4);
}

void testa_pasto(Bersaglio& b, int pasto) {
  if (pasto < 0 || pasto >= std::ssize(nomi_pasti)) throw Errore(9, "Indice fuori dai limiti");
  b.a_capo();
  b.sottolinea(true);
  riga(b, nomi_pasti[static_cast<std::size_t>(pasto)].toString(), Tab{60}, u"Dose g."_s, Tab{80}, u"KCal"_s, Tab{90},
       u"Prot"_s, Tab{100}, u"Lip"_s, Tab{110}, u"Gluc"_s);
  b.sottolinea(false);
}

void scrivi_scelte(Bersaglio& b, const std::vector<Riga>& righe) {
  Archivio diario(percorso(u"sa_diario.jed"_s), accesso, Archivio::Modo::sola_lettura);
  int ultimo = -1;
  for (const Riga& r : righe) {
    const int pasto = r[u"pasto"].toInt();
    if (pasto != ultimo) testa_pasto(b, pasto);
    ultimo = pasto;
    const Riga a = alimento_scelto(diario, r);
    riga(b, a[u"Descrizione"], Tab{60}, r[u"dose"], Tab{80}, a[u"calorie"], Tab{90}, a[u"protidi"], Tab{100},
         a[u"lipidi"], Tab{110}, a[u"glucidi"]);
  }
}

/// The boxes of a nutrient at the five meals and over the day; every fourth box from `prima` on.
void caselle(Bersaglio& b, const QString& nome, const Formdiario& f, std::size_t prima) {
  pezzo(b, nome);
  for (std::size_t m = 0; m < 6; ++m) {
    pezzo(b, Tab{15 + 13 * static_cast<int>(m)}, f.TxtLivelli[prima + 4 * m]->text());
  }
}

/// Percent of the day's energy, with two decimals.
QString quota(double energia, double kcal) {
  if (kcal == 0) throw Errore(11, "Divisione per zero");
  return fmt(energia / kcal * 100, "0.00");
}

/// Energy of the day by nutrient; carbohydrate takes what the others leave.
void scrivi_analisi(Bersaglio& b, const Formdiario& f) {
  const double kcal = valore(f.TxtLivelli[23]->text());
  const double p = std::nearbyint(valore(f.TxtLivelli[22]->text()) * 4);
  const double l = std::nearbyint(valore(f.TxtLivelli[21]->text()) * 9);
  riga(b, Tab{15}, u"Colazione"_s, Tab{28}, u"Spuntino"_s, Tab{41}, u"Pranzo"_s, Tab{54}, u"Merenda"_s, Tab{67},
       u"Cena"_s, Tab{80}, u"Tot.Giorno"_s, Tab{93}, u"Tot. Kc/gg"_s, Tab{106}, u"Tot. %/gg"_s);
  b.a_capo();
  caselle(b, u"Kcal"_s, f, 3);
  riga(b, Tab{93}, f.TxtLivelli[23]->text(), Tab{106}, u"100"_s);
  caselle(b, u"Protidi g."_s, f, 2);
  const QString p100 = quota(p, kcal), l100 = quota(l, kcal);
  riga(b, Tab{93}, p, Tab{106}, p100);
  caselle(b, u"Lipidi g."_s, f, 1);
  riga(b, Tab{93}, l, Tab{106}, l100);
  caselle(b, u"Glucidi g."_s, f, 0);
  riga(b, Tab{93}, std::nearbyint(kcal - p - l), Tab{106},
       std::nearbyint((100 - valore(p100) - valore(l100)) * 100) / 100);
}

void scrivi_ritmo(Bersaglio& b, const Formdiario& f) {
  righe_vuote(b, 2);
  riga(b, Tab{30}, u"Ritmo Alimentare Giornaliero calcolato sulle Kc."_s);
  b.a_capo();
  for (std::size_t m = 0; m < nomi_pasti.size(); ++m) {
    riga(b, Tab{40}, nomi_pasti[m].toString() + u" %"_s, Tab{60}, f.TxtRAG[m]->text());
  }
}

}  // namespace

int pagine_diario() { return QFile::exists(percorso_cliente()) ? pagine(scelte()) : 0; }

void stampa_diario(Bersaglio& b, int pagina) {
  auto cliente = cliente_salvato();
  if (!cliente) return;
  const auto righe = scelte();
  if (righe.empty()) return;
  const Riga anagrafe = anagrafe_di(*cliente);
  if (pagina == 1) {
    testata(b, anagrafe);
  } else {
    b.a_capo();
  }
  riga(b, Tab{80}, u"I valori sono espressi per 100 g."_s);
  scrivi_scelte(b, nella_finestra(righe, finestra(pagina)));
  if (pagina != pagine(righe)) return;
  righe_vuote(b, 2);
  const InLettura<Formdiario> f;
  scrivi_analisi(b, *f);
  scrivi_ritmo(b, *f);
}
