#include "diet/bersagli.h"

#include "base/archivio.h"
#include "base/numeri.h"
#include "diet/ricerca.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

double numero_giorno(int giorno, const QVariant& testo) {
  const QString valore_giorno = estrai_valore_giorno(giorno, testo.toString());
  return valore_giorno.isEmpty() ? 0 : valore(valore_giorno);
}

TotaliGiornalieri leggi_totali(const Riga& sport) {
  TotaliGiornalieri t;
  for (int d = 0; d < giorni; ++d) {
    const auto i = static_cast<std::size_t>(d);
    t.calorie[i] = static_cast<std::int32_t>(std::nearbyint(numero_giorno(d, sport[u"calorie_totali"])));
    t.protidi[i] = static_cast<float>(numero_giorno(d, sport[u"protidi"]));
    t.lipidi[i] = static_cast<float>(numero_giorno(d, sport[u"lipidi"]));
    t.glucidi[i] = static_cast<float>(numero_giorno(d, sport[u"glucidi"]));
  }
  return t;
}

PercentualiPasti leggi_percentuali(const Riga& consumi) {
  PercentualiPasti p{};
  const std::array<QStringView, pasti> campi{u"colazione", u"spuntino", u"pranzo", u"merenda", u"cena"};
  for (std::size_t m = 0; m < pasti; ++m) p[m] = round16(consumi[campi[m]].toDouble());
  return p;
}

Riquadro mancano(const QString& che) {
  return {.testo = u"Impossibile elaborare la dieta mancano "_s + che,
          .titolo = u"ORZALINE 2003"_s,
          .icona = Icona::critica};
}

}  // namespace

QString estrai_valore_giorno(int indice, const QString& testo) {
  QString raccolto;
  int posizione = 0;
  for (const QChar c : testo) {
    if (c != u'+') {
      raccolto += c;
      continue;
    }
    if (posizione == indice && numerico(raccolto)) return raccolto;
    ++posizione;
    raccolto.clear();
  }
  return {};
}

void elabora_dieta(Motore& motore, const Tramite& tramite) {
  std::vector<Riga> sport, consumi;
  {
    Archivio dati(percorso(u"dati.tmp"_s));
    sport = dati.righe(u"SELECT * FROM sport"_s);
    if (sport.empty()) return tramite.messaggio(mancano(u"i totali calorici giornalieri !"_s));
    consumi = dati.righe(u"SELECT * FROM consumi"_s);
    if (consumi.empty()) return tramite.messaggio(mancano(u"i consumi giornalieri percentuali !"_s));
  }
  elabora_settimana(motore, leggi_totali(sport.front()), leggi_percentuali(consumi.front()), tramite);
}
