#include "diet/selezione.h"

#include "base/errori.h"
#include "base/numeri.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Righe = std::vector<const Spuntato*>;

template <class T>
auto& elemento(T& vettore, int i, int da = 0) {
  if (i < da || i >= static_cast<int>(vettore.size())) throw Errore(9, "Indice non incluso nell'intervallo");
  return vettore[static_cast<std::size_t>(i)];
}

const Spuntato& riga(const Righe& righe, int i) {
  if (i < 0 || i >= static_cast<int>(righe.size())) throw Errore(3021, "Nessun record corrente.");
  return *righe[static_cast<std::size_t>(i)];
}

/// Rows by sub-group, 1 to N.
template <std::size_t N>
std::array<int, N + 1> conta_cod4(const Righe& righe) {
  std::array<int, N + 1> conteggi{};
  for (const Spuntato* r : righe) ++elemento(conteggi, r->cod4, 1);
  return conteggi;
}

Segno segno_del_giorno(int d, bool fisso) {
  if (!fisso) return Segno::ok;
  return d < 5 ? Segno::LV : Segno::SD;
}

/// Which list and which counter hold the foods of a main meal. The weekend lunch of a fast-food client draws on the
/// dinner's list. Dinners look at the lunches' counter, which nothing writes for their rows: they repeat freely.
struct Fonte {
  std::int16_t pasto;
  std::int16_t Spuntato::*contatore;
};

Fonte fonte(const Motore& motore, int m, int d) {
  const bool lunga = (d == 5 || d == 6) && m == 2 && motore.pranzo_ff;
  const int offset = lunga ? 4 : 2;
  return {static_cast<std::int16_t>(m + offset), lunga ? &Spuntato::n_volte_cena : &Spuntato::n_volte_pranzo};
}

constexpr int usi_in_settimana = 2;

/// The rows still free this week, without the groups left out.
Righe usabili(const Righe& righe, const Fonte& f, const std::vector<int>& esclusi = {}) {
  Righe scelte;
  scelte.reserve(righe.size());
  for (const Spuntato* r : righe) {
    if (r->*f.contatore < usi_in_settimana && std::ranges::find(esclusi, r->cod1) == esclusi.end()) scelte.push_back(r);
  }
  return scelte;
}

/// After many rejections for one cause the groups that bring most of it are left out.
std::vector<int> gruppi_esclusi(const QString& tipo_errore) {
  if (tipo_errore == u"K") return {6, 7, 8, 9, 13, 14};
  if (tipo_errore == u"P") return {8, 9, 14};
  if (tipo_errore == u"L") return {9, 13, 14};
  return {};
}

/// Ten draws count; the eleventh ends the search for a sub-group whatever it hits.
int estrai_sottogruppo(Contesto& c, int codice, const std::array<int, 11>& conteggi) {
  const auto& usati = c.motore.usati_cod4[static_cast<std::size_t>(codice)];
  for (int giro = 1; giro <= 11; ++giro) {
    c.caso.semina();
    const int g = c.caso.estrai(6);
    const auto i = static_cast<std::size_t>(g);
    const bool escluso = codice == 1 ? g == 4 : g == 4 || g == 6;
    if (conteggi[i] > 0 && !usati[i] && !escluso && giro < 11) return g;
  }
  return 0;
}

/// The scan has no end of its own: a companion that the meal's list does not hold is a failure of the draw.
void aggiungi_abbinamento(Contesto& c, const Righe& righe, int cod2) {
  for (int i = 0;; ++i) {
    const Spuntato& r = riga(righe, i);
    if (r.cod2 == cod2) return aggiungi_alimento(c, r.cod1, r.cod2);
  }
}

/// The rows of one group for one meal, and the three stages of a draw among them.
class Gruppo {
 public:
  Gruppo(Contesto& c, int sel, int m, int d, bool fisso)
      : c_(c),
        segno_(segno_del_giorno(d, fisso)),
        righe_(usabili(c.spuntati.per_gruppo(segno_, fonte(c.motore, m, d).pasto, sel), fonte(c.motore, m, d))),
        conteggi_(conta_cod4<5>(righe_)),
        usati_(elemento(c.motore.usati_cod4, sel, 1)) {}

  void alimento_base() {
    if (!ce(1)) return;
    const Spuntato& base = riga(righe_, c_.caso.estrai(conteggi_[1]) - 1);
    aggiungi_alimento(c_, base.cod1, base.cod2);
    // The list's length alone counts: it caps how far into the companions the next draw can reach.
    conteggi_[2] = std::min(conteggi_[2], conta_abbinamenti(base.abbinamenti(segno_)));
    c_.caso.semina();
  }

  /// True when the stage was entered: it closes the rows behind it.
  bool primo_abbinamento() {
    if (!ce(2)) return false;
    const Spuntato& primo = riga(righe_, conteggi_[1] + c_.caso.estrai(conteggi_[2]) - 1);
    aggiungi_alimento(c_, primo.cod1, primo.cod2);
    c_.caso.semina();
    return true;
  }

  /// Once a first companion was taken the draw is still made, but there are no rows left to read.
  void secondo_abbinamento(bool chiuso) {
    if (!ce(3)) return;
    const int posto = conteggi_[2] + c_.caso.estrai(conteggi_[3]) + conteggi_[1] - 1;
    if (chiuso) throw Errore(3420, "L'oggetto non è più valido.");
    const Spuntato& secondo = riga(righe_, posto);
    aggiungi_alimento(c_, secondo.cod1, secondo.cod2);
  }

 private:
  [[nodiscard]] bool ce(std::size_t cod4) const { return conteggi_[cod4] >= 1 && !usati_[cod4]; }

  Contesto& c_;
  Segno segno_;
  Righe righe_;
  std::array<int, 6> conteggi_;
  const std::array<bool, 9>& usati_;
};

}  // namespace

void aggiungi_alimento(Contesto& c, std::int16_t cod1, std::int16_t cod2) {
  const Alimento* a = c.archivi.trova(cod1, cod2);
  if (!a) return;
  Motore& m = c.motore;
  voce_pasto& v = elemento(m.pasto_lavoro, m.conta_voci);
  const double quantita = a->quantita;
  v = {.cod1 = cod1,
       .cod2 = cod2,
       .descr = a->descrizione,
       .unico = a->unico,
       .cal = round16(quantita * a->calorie / 100),
       .prot = static_cast<float>(a->protidi * 4 * quantita / 100),
       .lip = static_cast<float>(a->lipidi * 9 * quantita / 100),
       .gluc = static_cast<float>(a->glucidi * 4 * quantita / 100),
       .quant = a->quantita,
       .fattore = 1,
       .quant_mod = {}};
  ++m.conta_voci;
  elemento(elemento(m.usati_cod4, cod1, 1), a->cod4, 1) = true;
  if (a->cod3 >= 2) elemento(m.usati_cod3, a->cod3) = true;
}

bool scegli_pasto_leggero(Contesto& c, int m, int codice) {
  const int pasto = m == 0 ? codice : m == 1 ? 3 : 5;
  const Righe& righe = c.spuntati.offerti(static_cast<std::int16_t>(pasto));
  const auto conteggi = conta_cod4<10>(righe);
  const int g = estrai_sottogruppo(c, codice, conteggi);
  if (g == 0) return false;
  int posto = c.caso.estrai(conteggi[static_cast<std::size_t>(g)]) - 1;
  for (int i = 1; i < g; ++i) posto += conteggi[static_cast<std::size_t>(i)];
  const Spuntato& scelto = riga(righe, posto);
  aggiungi_alimento(c, scelto.cod1, scelto.cod2);
  if (const int cod2 = scegli_abbinamento(c.caso, scelto.abb_ok); cod2 > 0) aggiungi_abbinamento(c, righe, cod2);
  return true;
}

int scegli_abbinamento(const Caso& caso, const QString& lista) {
  const QStringList voci = lista.split(u',');
  const auto u = static_cast<int>(voci.size()) - 1;
  if (u == 0) return 0;
  return round16(valore(voci[caso.estrai(u) - 1]));
}

int conta_abbinamenti(const QString& lista) { return static_cast<int>(lista.count(u',')); }

int scegli_gruppo(Contesto& c, int cod, int m, int d, bool fisso) {
  const Fonte f = fonte(c.motore, m, d);
  const auto esclusi = fisso ? std::vector<int>{} : gruppi_esclusi(c.motore.tipo_errore);
  const Righe righe = usabili(c.spuntati.per_portata(segno_del_giorno(d, fisso), f.pasto, cod), f, esclusi);
  c.caso.semina();
  if (righe.empty()) return 0;
  return riga(righe, c.caso.estrai(static_cast<int>(righe.size())) - 1).cod1;
}

void carica_gruppo(Contesto& c, int sel, int m, int d, bool fisso) {
  Gruppo g(c, sel, m, d, fisso);
  c.caso.semina();
  g.alimento_base();
  const bool chiuso = g.primo_abbinamento();
  g.secondo_abbinamento(chiuso);
}
