#include "diet/ricerca.h"

#include "base/errori.h"
#include "base/numeri.h"
#include "diet/bilancio.h"
#include "diet/registrazione.h"
#include "diet/selezione.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int pranzo = 2, cena = 4;
constexpr int prima_portata = 2, ultima_portata = 11, fine_salto = 14;
constexpr int eccessi_massimi = 200, tentativi_massimi = 150, tentativi_del_conteggio = 75;
constexpr int cicli_massimi = 4;
// No list of foods may hang the program: so many attempts in a row that cost nothing count as one that failed.
constexpr int attese_massime = 3000;

/// Targets by meal and day, in kcal.
struct Bersagli {
  using Tavola = std::array<std::array<std::int16_t, giorni>, pasti>;
  Tavola kcal{}, proteine{}, grassi{};
};

Bersagli calcola_bersagli(const TotaliGiornalieri& t, const PercentualiPasti& percentuali) {
  Bersagli b;
  for (std::size_t m = 0; m < pasti; ++m) {
    const double p = percentuali[m];
    for (std::size_t d = 0; d < giorni; ++d) {
      prosegui([&] { b.kcal[m][d] = round16(t.calorie[d] * p / 100); });
      prosegui([&] { b.proteine[m][d] = round16(p * double{t.protidi[d]} / 100); });
      prosegui([&] { b.grassi[m][d] = round16(p * double{t.lipidi[d]} / 100); });
    }
  }
  return b;
}

/// One run of the search. Each statement of its procedures that can fail stands in its own `prosegui`.
class Elaborazione {
 public:
  Elaborazione(Motore& motore, const TotaliGiornalieri& totali, const PercentualiPasti& percentuali,
               const Tramite& tramite)
      : c_{motore, {}, {}, tramite.caso},
        s_(motore),
        calorie_(totali.calorie),
        bersagli_(calcola_bersagli(totali, percentuali)),
        tramite_(tramite) {}

  void esegui();

 private:
  enum class Esito { avanti, salta_pasto, sospesa };

  Archivio& dati();
  void prepara();
  void finisci(bool intera);
  void apri_giorno();
  void compensa_cena();
  Esito elabora_giorno();
  void pasto_leggero();
  void abbandona_pasto_leggero(const QString& inizio);
  Esito pasto_principale();
  void tentativo();
  void carica_integratore();
  void estrai_portata();
  void bilancia();
  void registra();
  void tentativo_fallito();
  void conta_errori();
  Esito ciclo_fallito();
  void sblocca();

  Contesto c_;
  Motore& s_;
  std::array<std::int32_t, giorni> calorie_;
  Bersagli bersagli_;
  const Tramite& tramite_;
  std::optional<Archivio> dati_;
  std::optional<std::vector<Riga>> integratori_;

  int m_ = 0, d_ = 0;  // meal and day in hand
  std::int16_t K_ = 0;
  float compP_ = 0, compL_ = 0;
  std::int16_t risultato_ = 0;
  bool fatto_ = false, fissi_fatti_ = false, integratore_fatto_ = false;
  int tentativi_ = 0, attese_ = 0;
  int cod_ = 0, sel_ = 0;
  int cicli_ = 0;
};

Archivio& Elaborazione::dati() {
  if (!dati_) {
    dati_.emplace(percorso(u"dati.tmp"_s));
    // Nobody else reads the working copy while the search runs: its locks need not come and go with each meal.
    dati_->esegui_copione(u"PRAGMA locking_mode = EXCLUSIVE"_s);
  }
  return *dati_;
}

void Elaborazione::prepara() {
  prosegui([&] { s_.pranzo_ff = leggi_tipo_pranzo(dati()); });
  prosegui([&] { c_.spuntati.leggi(dati()); });
  if (s_.ripresa_pasto != 0 || s_.ripresa_giorno != 0) return;
  s_.azzera_scarti();
  prosegui([&] { s_.azzera_settimana(); });
  prosegui([&] { c_.spuntati.azzera_n_volte(dati()); });
  tramite_.progresso(0);
}

void Elaborazione::esegui() {
  prepara();
  for (m_ = s_.ripresa_pasto; m_ < pasti; ++m_) {
    for (d_ = s_.ripresa_giorno; d_ < giorni; ++d_) {
      const Esito esito = elabora_giorno();
      if (esito == Esito::sospesa) return finisci(false);
      if (esito == Esito::salta_pasto) break;
    }
    s_.ripresa_giorno = 0;
  }
  s_.ripresa_pasto = 0;
  s_.ripresa_giorno = 0;
  finisci(true);
}

/// The uses of the foods go to the store in one piece: one write a meal would take a third of the time of a week.
void Elaborazione::finisci(bool intera) {
  prosegui([&] { c_.spuntati.scrivi_usi(dati()); });
  dati_.reset();
  tramite_.termine(intera);
}

void Elaborazione::apri_giorno() {
  tramite_.progresso(m_ * giorni + d_ + 1);
  s_.svuota_pasto();
  const auto d = static_cast<std::size_t>(d_);
  K_ = bersagli_.kcal[static_cast<std::size_t>(m_)][d];
  risultato_ = 0;
  fatto_ = fissi_fatti_ = integratore_fatto_ = false;
  tentativi_ = attese_ = 0;
  prosegui([&] { c_.archivi.apri_archivio_dieta(tipo_archivio(calorie_[d])); });
}

/// The deviations of the day's four earlier meals. They stand a week apart as long as every meal was accepted.
void Elaborazione::compensa_cena() {
  int kcal = 0;
  double prot = 0, lip = 0;
  for (int i = d_; i < 28; i += giorni) {
    const scarto& s = s_.scarti[static_cast<std::size_t>(i)];
    kcal += s.kcal;
    prot += double{s.prot};
    lip += double{s.lip};
  }
  prosegui([&] { K_ = round16(K_ - kcal); });
  compP_ = static_cast<float>(prot);
  compL_ = static_cast<float>(lip);
}

Elaborazione::Esito Elaborazione::elabora_giorno() {
  for (;;) {
    apri_giorno();
    if (m_ == cena) compensa_cena();
    if (K_ < 1) return Esito::salta_pasto;
    if (m_ != pranzo && m_ != cena) {
      pasto_leggero();
      return Esito::avanti;
    }
    if (pasto_principale() == Esito::avanti) return Esito::avanti;
    if (ciclo_fallito() == Esito::sospesa) return Esito::sospesa;
  }
}

void Elaborazione::bilancia() {
  const auto m = static_cast<std::size_t>(m_), d = static_cast<std::size_t>(d_);
  prosegui([&] {
    risultato_ = bilancia_pasto(s_, bersagli_.proteine[m][d], bersagli_.grassi[m][d], K_, m_, compP_, compL_, true);
  });
}

void Elaborazione::registra() {
  prosegui([&] { registra_pasto(s_, d_, m_, s_.settimana_corrente); });
  if (m_ == pranzo || m_ == cena) prosegui([&] { conta_usi(s_, c_.spuntati, d_, m_); });
}

void Elaborazione::pasto_leggero() {
  const int codice = m_ == 0 ? 1 : 3;
  while (risultato_ != 1) {
    bool trovato = false;
    prosegui([&] { trovato = scegli_pasto_leggero(c_, m_, codice); });
    if (trovato) bilancia();
    if (trovato && risultato_ == 1) return registra();
    if (trovato && risultato_ == -1) {
      s_.svuota_pasto();
      attese_ = 0;
      if (++tentativi_ > eccessi_massimi) return abbandona_pasto_leggero(u"ERRORE nel caricamento "_s);
    } else if (!trovato || ++attese_ >= attese_massime) {
      if (s_.conta_voci > 2 || trovato) s_.svuota_pasto();
      attese_ = 0;
      if (++tentativi_ > tentativi_massimi) return abbandona_pasto_leggero(u"ERRORE nel caricamento"_s);
    }
  }
}

void Elaborazione::abbandona_pasto_leggero(const QString& inizio) {
  tramite_.messaggio({.testo = inizio + u"%1 %2"_s.arg(m_).arg(d_), .titolo = {}});
}

/// `sospesa` where the cycle has failed.
Elaborazione::Esito Elaborazione::pasto_principale() {
  s_.errori_kcal = s_.errori_prot = s_.errori_lip = 0;
  while (!fatto_) {
    const int prima = tentativi_;
    tentativo();
    attese_ = tentativi_ == prima ? attese_ + 1 : 0;
    if (!fatto_ && attese_ >= attese_massime) sblocca();
    if (tentativi_ > tentativi_massimi) return Esito::sospesa;
  }
  return Esito::avanti;
}

void Elaborazione::sblocca() {
  attese_ = 0;
  tentativo_fallito();
}

void Elaborazione::tentativo() {
  if (m_ == pranzo && !integratore_fatto_) prosegui([&] { carica_integratore(); });
  cod_ = prima_portata;
  risultato_ = 0;
  while (cod_ <= ultima_portata) {
    while (cod_ < fine_salto && s_.usati_cod3[static_cast<std::size_t>(cod_)]) ++cod_;
    estrai_portata();
    if (sel_ > 0) bilancia();
    if (risultato_ == 1) {
      registra();
      fatto_ = true;
      return;
    }
    if (risultato_ == -1) {
      integratore_fatto_ = false;
      return tentativo_fallito();
    }
    if (++cod_ != ultima_portata + 1) continue;
    // The courses are exhausted. Where none was obligatory, the next attempt walks them with the free foods.
    if (fissi_fatti_) return tentativo_fallito();
    fissi_fatti_ = true;
  }
}

/// The first obligatory group of the day comes before all free foods, and the courses are then walked from the start.
void Elaborazione::estrai_portata() {
  if (fissi_fatti_) {
    prosegui([&] { sel_ = scegli_gruppo(c_, cod_, m_, d_, false); });
    if (sel_ > 0) prosegui([&] { carica_gruppo(c_, sel_, m_, d_, false); });
    return;
  }
  prosegui([&] { sel_ = scegli_gruppo(c_, cod_, m_, d_, true); });
  if (sel_ <= 0) return;
  prosegui([&] { carica_gruppo(c_, sel_, m_, d_, true); });
  prosegui([&] { carica_gruppo(c_, sel_, m_, d_, false); });
  fissi_fatti_ = true;
  cod_ = prima_portata - 1;
}

void Elaborazione::carica_integratore() {
  if (!integratori_) integratori_ = dati().righe(u"SELECT * FROM Integratore_dieta"_s);
  if (integratori_->empty()) integratore_fatto_ = true;
  for (const Riga& r : *integratori_) {
    if (r[u"quantità"].toDouble() == 0 || !r[d_ < 5 ? u"LV" : u"SD"].toBool()) continue;
    if (s_.conta_voci >= voci_di_lavoro) throw Errore(9, "Indice non incluso nell'intervallo");
    s_.pasto_lavoro[static_cast<std::size_t>(s_.conta_voci)] = voce_integratore(r);
    ++s_.conta_voci;
    integratore_fatto_ = true;
    return;
  }
}

/// Also after an overshoot; only there the supplement is loaded again.
void Elaborazione::tentativo_fallito() {
  s_.svuota_pasto();
  fissi_fatti_ = false;
  ++tentativi_;
  conta_errori();
}

/// At the 75th failed attempt the dominant cause is told and steers the next attempt, that one alone.
void Elaborazione::conta_errori() {
  s_.tipo_errore.clear();
  if (tentativi_ != tentativi_del_conteggio) return;
  s_.tipo_errore = u"K"_s;
  if (s_.errori_prot > s_.errori_kcal) {
    s_.tipo_errore = s_.errori_lip > s_.errori_prot ? u"L"_s : u"P"_s;
  } else if (s_.errori_lip > s_.errori_kcal) {
    s_.tipo_errore = u"L"_s;
  }
  tramite_.messaggio({.testo = u"Errori KCAL: %1\nErrori Prot: %2\nErrori Lip: %3\n%4"_s.arg(s_.errori_kcal)
                                   .arg(s_.errori_prot)
                                   .arg(s_.errori_lip)
                                   .arg(s_.tipo_errore),
                      .titolo = {}});
  s_.errori_kcal = s_.errori_prot = s_.errori_lip = 0;
}

Elaborazione::Esito Elaborazione::ciclo_fallito() {
  tramite_.messaggio({.testo = u"Ho difficoltà ad elaborare "_s + (m_ == pranzo ? u"il pranzo"_s : u"la cena."_s) +
                               u"\nPremi Invio (Enter) per iniziare un nuovo ciclo di ricerca !"_s,
                      .titolo = {},
                      .icona = Icona::critica});
  s_.ripresa_pasto = static_cast<std::int16_t>(m_);
  s_.ripresa_giorno = static_cast<std::int16_t>(d_);
  if (++cicli_ < cicli_massimi) return Esito::avanti;
  const QStringList consiglio{u"Attenzione: la difficoltà di elaborare il pasto in sospeso può dipendere da:"_s,
                              u"- Calorie (per variarle, variare i giorni)"_s,
                              u"- Protidi (controllare il livello per kg. di peso ideale)"_s,
                              u"- Lipidi (controllare il livello per kg. di peso ideale)"_s,
                              u"- Alimenti (le scelte fatte probabilmente non sono sufficienti)"_s};
  tramite_.messaggio({.testo = consiglio.join(u'\n'), .titolo = {}});
  return Esito::sospesa;
}

}  // namespace

void elabora_settimana(Motore& motore, const TotaliGiornalieri& totali, const PercentualiPasti& percentuali,
                       const Tramite& tramite) {
  Elaborazione(motore, totali, percentuali, tramite).esegui();
}
