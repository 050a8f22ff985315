#include "base/date.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "base/pasti.h"
#include "core/dialoghi.h"
#include "core/messaggi.h"
#include "core/programma.h"
#include "reports/fonti.h"
#include "reports/scrittori.h"

using namespace Qt::StringLiterals;

namespace {

enum Quota { kcal, protidi, lipidi, glucidi, quote };
using Totali = std::array<std::int16_t, quote>;

/// A whole number where the field holds one, else 0.
std::int16_t intero(const QVariant& campo) {
  const bool numero = campo.typeId() == QMetaType::QString ? numerico(campo.toString()) : !campo.isNull();
  if (!numero) return 0;
  return round16(campo.typeId() == QMetaType::QString ? valore(campo.toString()) : campo.toDouble());
}

void testata(Bersaglio& b, const Studio& studio, const Riga& anagrafe, int settimana, int giorno) {
  b.logo();
  b.all_origine();
  b.a_capo();
  riga(b, Tab{30}, u"Data:    "_s, data_breve(oggi()), u"    "_s, titolo_programma());
  b.a_capo();
  riga(b, Tab{30}, u"Consigli alimentari riservati a:   "_s, anagrafe[u"nome"], u" "_s, anagrafe[u"cognome"]);
  righe_vuote(b, 4);
  riga(b, u"Elaborazione: "_s, Tab{17}, studio.nome, u" - "_s, studio.qualifica);
  riga(b, Tab{17}, studio.indirizzo);
  b.a_capo();
  riga(b, giorno + 1, u"gg/"_s, settimana, u"sett"_s, Tab{105}, u"Grammi"_s);
}

/// The row's share of the day: as stored, or in proportion where the dietitian changed the grams.
double parte(const Riga& r, QStringView campo, std::optional<double> modificati) {
  const double intera = r[campo].toDouble();
  if (!modificati) return intera;
  const double grammi = r[u"quant"].toDouble();
  if (grammi == 0) throw Errore(11, "Divisione per zero");
  return intera * *modificati / grammi;
}

/// The last digit stands in column 110.
void scrivi_alimento(Bersaglio& b, const Riga& r, Totali& totali) {
  static constexpr std::array<QStringView, quote> campi{u"cal", u"prot", u"lip", u"gluc"};
  const QString a_mano = r[u"quant_mod"].toString();
  const std::optional modificati = numerico(a_mano) ? std::optional(valore(a_mano)) : std::nullopt;
  const double grammi = modificati.value_or(r[u"quant"].toDouble());
  riga(b, Tab{5}, r[u"descr"], Tab{110 - static_cast<int>(testo(grammi).size())}, grammi);
  for (std::size_t q = 0; q < quote; ++q) totali[q] = round16(totali[q] + parte(r, campi[q], modificati));
}

Totali scrivi_pasti(Bersaglio& b, const std::vector<Riga>& del_giorno) {
  Totali totali{};
  for (std::size_t pasto = 0; pasto < nomi_pasti.size(); ++pasto) {
    b.a_capo();
    riga(b, nomi_pasti[pasto].toString());
    for (const Riga& r : del_giorno) {
      if (r[u"pasto"].toInt() == static_cast<int>(pasto)) scrivi_alimento(b, r, totali);
    }
  }
  return totali;
}

void chiusa(Bersaglio& b) {
  righe_vuote(b, 2);
  riga(b,
       u"Gli alimenti prescritti vanno pesati tal quali, con buccia, ossa e scarti vari, poichè di questi il programma "
       u"tiene "_s);
  riga(b, u"conto nel determinare il valore alimentare di ogni alimento."_s);
  b.a_capo();
  riga(b,
       u"E' opportuno qualora nella dieta non siano compresi, inserire giornalmente frutta e verdure anche in piccole "
       u"quantità"_s);
  b.a_capo();
}

/// Right-aligned before column `fine`, the sign's blank counted.
void a_destra(Bersaglio& b, int fine, std::int16_t x) {
  pezzo(b, Tab{fine - static_cast<int>(cifra(x).trimmed().size()) - (x < 0 ? 0 : 1)}, x);
}

void riepilogo(Bersaglio& b, const std::array<std::int16_t, 3>& cliente, const Totali& totali) {
  static constexpr std::array<QStringView, 3> di_sinistra{u"Peso attuale : Kg. ", u"Peso desiderato: Kg. ",
                                                          u"Tempo previsto: gg. "};
  static constexpr std::array<QStringView, quote> di_destra{u"Totale Calorie :", u"Calorie da protidi:",
                                                            u"Calorie da lipidi :", u"Calorie da glucidi:"};
  for (std::size_t i = 0; i < quote; ++i) {
    if (i < cliente.size()) {
      pezzo(b, Tab{10}, di_sinistra[i].toString());
      a_destra(b, 39, cliente[i]);
    }
    pezzo(b, Tab{70}, di_destra[i].toString());
    a_destra(b, 94, totali[i]);
    riga(b, Tab{100}, u"Kcal"_s);
  }
}

}  // namespace

void stampa_dieta(int settimana, int giorno, Bersaglio& b) {
  const Studio studio = identità();
  auto cliente = cliente_salvato();
  if (!cliente) return;
  const Riga anagrafe = anagrafe_di(*cliente);
  const auto obiettivo = prima_riga(*cliente, u"dietologica"_s);
  if (!obiettivo) return avvisa_cliente_assente();
  if (!prima_riga(*cliente, u"dieta"_s)) {
    return messaggio(u"Per stampare la dieta è prima necessario salvarla !"_s);
  }
  const std::array persona{intero(anagrafe[u"peso"]), intero((*obiettivo)[u"peso_ragg"]), intero((*obiettivo)[u"gg"])};
  testata(b, studio, anagrafe, settimana, giorno);
  const Totali totali = scrivi_pasti(
      b, cliente->righe(u"SELECT * FROM dieta WHERE dieta = ? AND giorno = ? ORDER BY rowid"_s, settimana, giorno));
  chiusa(b);
  riepilogo(b, persona, totali);
}
