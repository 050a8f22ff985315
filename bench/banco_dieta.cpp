// How fast a week of diet is elaborated, and how often it comes out whole in one press.
//
//   banco_dieta [seeds for each sample client] [seeds for each target]      (200 and 3 by default)
//
// The sample clients measure a whole press: stores and working copy read, meals counted in the store. The targets of
// 200 plausible clients, by band of their lowest day, measure the food base with the automatic selection.
#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "diet/bersagli.h"
#include "diet/ricerca.h"
#include "diet/selezione_automatica.h"
#include "misure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// What one press came to.
struct Settimana {
  double ms = 0;
  int pasti_pieni = 0, pasti_voluti = giorni * pasti, estrazioni = 0, cibi_diversi = 0;
  bool intera() const { return pasti_pieni == pasti_voluti; }
};

struct Riepilogo {
  std::vector<double> ms;
  int intere = 0, pasti_pieni = 0, pasti_voluti = 0;
  std::vector<int> estrazioni, diversi;

  void aggiungi(const Settimana& s) {
    ms.push_back(s.ms);
    intere += s.intera();
    pasti_pieni += s.pasti_pieni;
    pasti_voluti += s.pasti_voluti;
    estrazioni.push_back(s.estrazioni);
    diversi.push_back(s.cibi_diversi);
  }

  double percento() const { return ms.empty() ? 100 : 100.0 * intere / static_cast<double>(ms.size()); }

  void scrivi(const QString& nome) {
    if (ms.empty()) return;
    for (auto* v : {&estrazioni, &diversi}) std::ranges::sort(*v);
    std::ranges::sort(ms);
    const auto meta = ms.size() / 2;
    std::printf("%-28s %6zu %9.1f %9.2f %9.2f %9.2f %9d %9d\n", nome.toUtf8().constData(), ms.size(), percento(),
                100.0 * pasti_pieni / pasti_voluti, ms[meta], ms.back(), estrazioni[meta], diversi[meta]);
  }
};

void testata(const char* titolo) {
  std::printf("\n%s\n%-28s %6s %9s %9s %9s %9s %9s %9s\n", titolo, "", "weeks", "whole %", "meals %", "median ms",
              "worst ms", "draws", "foods");
}

/// One press with a fresh engine; `premi` runs the search.
template <class F>
Settimana misura(std::uint64_t seme, F&& premi) {
  static Motore motore;
  motore = {};
  Settimana s;
  const Caso caso = caso_con_seme(seme);
  const Tramite tramite{[](const Riquadro&) {},
                        [](int) {},
                        [](bool) {},
                        {[&] {
                           ++s.estrazioni;
                           return caso.rnd();
                         },
                         [] {}}};
  s.ms = banco::millisecondi([&] { premi(motore, tramite); });
  std::vector<int> cibi;
  for (int i = 0; i < giorni * pasti; ++i) {
    s.pasti_pieni += motore.menu(1, i / pasti, i % pasti, 0).cod1 != 0;
    for (int p = 0; p < posti; ++p) {
      const voce_pasto& v = motore.menu(1, i / pasti, i % pasti, p);
      if (v.cod1) cibi.push_back(v.cod1 * 1000 + v.cod2);
    }
  }
  std::ranges::sort(cibi);
  s.cibi_diversi = static_cast<int>(std::unique(cibi.begin(), cibi.end()) - cibi.begin());
  return s;
}

void prepara(const QDir& lavoro) {
  const QDir archivi(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome : {u"matrix.jed"_s, u"sa_dieta.jed"_s, u"sa_dieta_minus.jed"_s, u"sa_dieta_plus.jed"_s}) {
    sostituisci_file(archivi.filePath(nome), lavoro.filePath(nome));
  }
  imposta_cartella(lavoro.path());
}

void clienti_campione(int semi) {
  testata("Sample clients, one whole press");
  const QDir esempi(QStringLiteral(CARTELLA_ARCHIVI) + u"/esempi"_s);
  double mediana = 0, peggiore = 0, intere = 100;
  for (const QString& nome : esempi.entryList({u"*.orzaline"_s}, QDir::Files, QDir::Name)) {
    sostituisci_file(esempi.filePath(nome), percorso(u"dati.tmp"_s));
    Riepilogo r;
    for (int seme = 1; seme <= semi; ++seme) {
      r.aggiungi(misura(static_cast<std::uint64_t>(seme), [](Motore& m, const Tramite& e) { elabora_dieta(m, e); }));
    }
    r.scrivi(nome);
    mediana = std::max(mediana, banco::mediana(r.ms));
    peggiore = std::max(peggiore, std::ranges::max(r.ms));
    intere = std::min(intere, r.percento());
  }
  banco::budget("Week elaborated, slowest sample client's median", semi, mediana, {10, "ms"});
  banco::budget("Week elaborated, worst of all sample clients", semi, peggiore, {300, "ms"});
  banco::budget("Weeks whole, sample client with the fewest", semi, intere, {98, "%", true});
}

struct Cliente {
  int id = 0;
  bool veloce = false;
  TotaliGiornalieri totali;
  PercentualiPasti percentuali{};
  std::int32_t minimo = 0;
};

std::vector<Cliente> leggi_bersagli() {
  QFile f(QStringLiteral(BERSAGLI));
  if (!f.open(QIODevice::ReadOnly)) throw Errore(53, "bersagli.csv");
  std::vector<Cliente> clienti;
  for (const QString& riga : QString::fromUtf8(f.readAll()).split(u'\n', Qt::SkipEmptyParts).mid(1)) {
    const QStringList c = riga.trimmed().split(u';');
    Cliente k{.id = c[0].toInt(), .veloce = c[5] == u"1", .totali = {}};
    for (int d = 0; d < giorni; ++d) {
      const auto i = static_cast<std::size_t>(d);
      k.totali.calorie[i] = estrai_valore_giorno(d, c[6]).toInt();
      k.totali.protidi[i] = estrai_valore_giorno(d, c[7]).toFloat();
      k.totali.lipidi[i] = estrai_valore_giorno(d, c[8]).toFloat();
    }
    for (int m = 0; m < pasti; ++m) k.percentuali[static_cast<std::size_t>(m)] = c[10 + m].toShort();
    k.minimo = std::ranges::min(k.totali.calorie);
    clienti.push_back(k);
  }
  return clienti;
}

void prepara_lista(bool veloce) {
  const QString dati = percorso(u"dati.tmp"_s);
  sostituisci_file(percorso(u"matrix.jed"_s), dati);
  Archivio copia(dati), base(percorso(u"sa_dieta.jed"_s));
  copia.esegui(u"INSERT INTO alimenti (pranzoFF) VALUES (?)"_s, veloce ? 12 : 18);
  seleziona_automatico(copia, base, veloce);
}

void bersagli(int semi) {
  testata("Targets of 200 plausible clients, automatic selection, by lowest day in kcal");
  constexpr std::array limiti{1400, 1600, 1800, 2000, 2400, 100000};
  const std::array nomi{u"below 1400"_s, u"1400-1599"_s, u"1600-1799"_s,
                        u"1800-1999"_s,  u"2000-2399"_s, u"2400 and more"_s};
  std::array<Riepilogo, limiti.size()> fasce;
  Riepilogo tutti, veloci;
  const auto clienti = leggi_bersagli();
  for (const bool veloce : {false, true}) {
    prepara_lista(veloce);
    for (const Cliente& k : clienti) {
      if (k.veloce != veloce) continue;
      const auto fascia = static_cast<std::size_t>(std::ranges::upper_bound(limiti, k.minimo) - limiti.begin());
      for (int seme = 1; seme <= semi; ++seme) {
        // Each client has seeds of its own: with one seed for all the first draws would be shared.
        const auto proprio = static_cast<std::uint64_t>(k.id) * 1000003U + static_cast<std::uint64_t>(seme);
        Settimana s =
            misura(proprio, [&](Motore& m, const Tramite& e) { elabora_settimana(m, k.totali, k.percentuali, e); });
        // A meal without a share of the day stays empty by intent.
        s.pasti_voluti -= giorni * static_cast<int>(std::ranges::count(k.percentuali, 0));
        for (Riepilogo* r : {&fasce[fascia], &tutti}) r->aggiungi(s);
        if (veloce) veloci.aggiungi(s);
      }
    }
  }
  for (std::size_t i = 0; i < fasce.size(); ++i) fasce[i].scrivi(nomi[i]);
  tutti.scrivi(u"all"_s);
  veloci.scrivi(u"fast-food lunch alone"_s);
  const auto n = static_cast<int>(tutti.ms.size());
  banco::budget("Weeks whole, 200 targets", n, tutti.percento(), {98, "%", true});
  banco::budget("Weeks whole, band of rations with the fewest", n,
                std::ranges::min(fasce, {}, &Riepilogo::percento).percento(), {90, "%", true});
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  const QTemporaryDir cartella;
  try {
    prepara(QDir(cartella.path()));
    clienti_campione(argc > 1 ? std::atoi(argv[1]) : 200);
    bersagli(argc > 2 ? std::atoi(argv[2]) : 3);
  } catch (const Errore& e) {
    std::fprintf(stderr, "%d: %s\n", e.numero, e.what());
    return 1;
  }
}
