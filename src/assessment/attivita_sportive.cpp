#include "assessment/attivita_sportive.h"

#include "base/numeri.h"

#include <cmath>

namespace {

constexpr AttivitàSportiva elenco[]{
    {u"Attività marziali", 6.0F, u"Judo.WMF"},
    {u"Ballare (ritmo moderato)", 5.0F, u"ballo.WMF"},
    {u"Ballare (ritmo veloce)", 6.0F, u"BalloRock.WMF"},
    {u"Bicicletta ritmo lento (9 km/h in pianura)", 4.2F, u"Bicicletta.WMF"},
    {u"Bicicletta ritmo veloce (15 km/h in pianura)", 5.08F, u"BiciVeloce.WMF"},
    {u"Body Building", 5.0F, u"BodyBuilding.WMF"},
    {u"Bowling", 3.5F, u"Bowling.WMF"},
    {u"Boxe (Allenamento)", 4.1F, u"Boxe.WMF"},
    {u"Calcio", 6.9F, u"Football.WMF"},
    {u"Camminare 1 normalmente (3,2 Km/h) ", 2.93F, u"CamminoLento.WMF"},
    {u"Camminare 2 velocemente (5 Km/h)", 3.18F, u"CamminoMedio.WMF"},
    {u"Camminare 3 velocemente (6,4 Km/h)", 5.2F, u"CamminoVeloce.WMF"},
    {u"Camminare 4 in salita", 13.4F, u"Salita.WMF"},
    {u"Camminare 5 con carico 10 Kg (4 Km/h)", 9.0F, u"CamminarePeso.WMF"},
    {u"Correre (lentamente - 6km/h)", 9.0F, u"CorsaVeloce.WMF"},
    {u"Correre (mediamente - 8 km/h)", 10.8F, u"CorsaMedia.WMF"},
    {u"Correre (velocemente - 10 km/h)", 13.0F, u"CorsaVeloce10.WMF"},
    {u"Correre (velocemente - 12 km/h)", 16.5F, u"CorsaVeloce12.WMF"},
    {u"Correre (molto velocemente - 16 km/h)", 19.8F, u"CorsaMoltoVeloce.WMF"},
    {u"Danza", 6.5F, u"danza1.WMF"},
    {u"Equitazione leggera (maneggio)", 6.0F, u"Ippica.WMF"},
    {u"Equitazione media (campagna)", 7.5F, u"Equitazione.WMF"},
    {u"Ginnastica lenta", 5.4F, u"Danza.WMF"},
    {u"Ginnastica veloce", 9.2F, u"ginnastica.WMF"},
    {u"Golf (portando la sacca)", 4.1F, u"Golf.WMF"},
    {u"Nuotare lentamente", 6.65F, u"Nuoto.WMF"},
    {u"Nuotare velocemente", 10.0F, u"Nuoto2.WMF"},
    {u"Pallacanestro", 5.8F, u"Pallacanestro.WMF"},
    {u"Pallanuoto", 10.0F, u"Pallanuoto.WMF"},
    {u"Pallavolo", 4.3F, u"Volley.WMF"},
    {u"Pattinaggio", 5.0F, u"PattiniGhiaccio.WMF"},
    {u"Ping Pong", 4.6F, u"PingPong.WMF"},
    {u"Remare sul pattino ( piccola barca, canoa)", 5.5F, u"Remare.WMF"},
    {u"Sciare fondo", 9.8F, u"Sci1.WMF"},
    {u"Sciare in discesa", 8.0F, u"Scisalto.WMF"},
    {u"Sollevamento pesi", 7.7F, u"SollevamentoPesi.WMF"},
    {u"Squash", 7.5F, u"Squash.WMF"},
    {u"Tennis in doppio", 4.0F, u"TennisDolce.WMF"},
    {u"Tennis singolo", 6.0F, u"Tennis.WMF"},
};

}  // namespace

std::span<const AttivitàSportiva> attività_sportive() { return elenco; }

float costo_attivita(std::int16_t indice) {
  return indice >= 0 && indice < std::ssize(elenco) ? elenco[indice].costo : 0.0F;
}

std::int16_t calorie_attività(std::int16_t indice, std::int16_t minuti) {
  return round16(minuti * round16(double{costo_attivita(indice)}));
}

Ripartizione ripartisci(double calorie, double protidi, double lipidi) {
  const double intere = std::floor(calorie);
  const double p = std::floor(intere * protidi / 100), l = std::floor(intere * lipidi / 100);
  return {p, l, intere - p - l};
}

PastiPrincipali ribilanciati(QChar segno, bool di_pranzo, const std::array<double, 5>& percentuali) {
  const std::int16_t p = round16(percentuali[pranzo]), c = round16(percentuali[cena]);
  const double resto =
      100 - std::floor(percentuali[colazione]) - std::floor(percentuali[merenda]) - std::floor(percentuali[spuntino]);
  const bool a_pranzo = !di_pranzo && (segno == u'+' ? p > c : p < c);
  return a_pranzo ? PastiPrincipali{round16(resto - c), c} : PastiPrincipali{p, round16(resto - p)};
}
