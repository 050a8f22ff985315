#include "tolleranze.h"

#include "base/archivio.h"

#include <QDir>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace tolleranze {

namespace {

constexpr int giorni = 7, pasti = 5;
enum Pasto { colazione, spuntino, pranzo, merenda, cena };
constexpr int supplemento = 23, voci_al_massimo = 11, usi_a_pranzo = 2;
constexpr std::array nomi_pasti{"colazione", "spuntino", "pranzo", "merenda", "cena"};

struct Tolleranza {
  double proteine, grassi, calorie;
};
Tolleranza tolleranza(int pasto, bool veloce) {
  switch (pasto) {
    case colazione: return {0.50, 0.50, 0.20};
    case pranzo: return veloce ? Tolleranza{0.35, 0.35, 0.12} : Tolleranza{0.09, 0.09, 0.08};
    case cena: return {0.12, 0.12, 0.08};
    default: return {0.90, 0.90, 0.20};
  }
}

/// To the nearest whole number, ties to the even one.
int tondo(double x) {
  const double giu = std::floor(x), resto = x - giu;
  const auto base = static_cast<int>(giu);
  if (resto < 0.5) return base;
  if (resto > 0.5) return base + 1;
  return base % 2 == 0 ? base : base + 1;
}

/// Three decimals, a tie away from zero by the number's 15 digits.
double millesimi(double x) { return std::floor(QString::number(x * 1000, 'g', 12).toDouble() + 0.5) / 1000; }

/// A portion's figures: grams and kcal.
struct Porzione {
  int grammi = 0, calorie = 0;
  double proteine = 0, grassi = 0, carboidrati = 0;

  [[nodiscard]] bool e(const Porzione& altra) const {
    const auto vicini = [](double a, double b) { return std::fabs(a - b) < 0.0015 + 1e-6 * std::fabs(b); };
    return grammi == altra.grammi && calorie == altra.calorie && vicini(proteine, altra.proteine) &&
           vicini(grassi, altra.grassi) && vicini(carboidrati, altra.carboidrati);
  }
};

/// The portion brought from one size to another; figures are rounded at every step, and so may drift.
Porzione portata(const Porzione& p, double a, double da) {
  return {tondo(a * p.grammi / da), tondo(a * p.calorie / da), millesimi(a * p.proteine / da),
          millesimi(a * p.grassi / da), millesimi(a * p.carboidrati / da)};
}

/// Sizes go from 1 to 2 by a fifth, then back to 1, round after round.
bool raggiungibile(const Porzione& base, const Porzione& servita) {
  constexpr int giri_al_massimo = 60;
  Porzione p = base;
  for (int giro = 0; giro < giri_al_massimo; ++giro) {
    const Porzione inizio = p;
    float taglia = 1;
    for (;;) {
      if (p.e(servita)) return true;
      const auto prossima = static_cast<float>(double{taglia} + 0.2);
      if (prossima > 2.1F) break;
      p = portata(p, double{prossima}, double{taglia});
      taglia = prossima;
    }
    p = portata(p, 1, double{taglia});
    if (giro > 0 && p.e(inizio)) return false;
  }
  return false;
}

struct Cibo {
  int gruppo = 0, numero = 0;
  QString nome;
  Porzione porzione;
};

/// A sum that is rounded after each addition. The order of the additions is not stored and matters for exact halves
/// alone: so it lies between two bounds.
struct Somma {
  int da = 0, a = 0;
  void aggiungi(double x) {
    const bool mezzo = std::fabs(x - std::floor(x) - 0.5) < 1e-9;
    da += mezzo ? static_cast<int>(std::floor(x)) : tondo(x);
    a += mezzo ? static_cast<int>(std::ceil(x)) : tondo(x);
  }
  [[nodiscard]] Somma meno(int x) const { return {da - x, a - x}; }
  Somma& operator+=(const Somma& s) {
    da += s.da;
    a += s.a;
    return *this;
  }
};

struct Sommato {
  int calorie = 0;
  Somma proteine, grassi;
};

/// What an accepted meal overshoots its targets by.
struct Scarto {
  int calorie = 0;
  Somma proteine, grassi;
};

struct Obiettivo {
  int calorie = 0, proteine = 0, grassi = 0;
};

/// What the store of a day says of a food.
struct Alimento {
  Porzione porzione;
  bool indivisibile = false;
  int portata = 0, ordine = 0;
};
using Base = std::map<std::pair<int, int>, Alimento>;

/// What the client's list says of a food at a meal.
struct Permesso {
  bool ok = false, feriale = false, festivo = false;
};
using Lista = std::map<std::array<int, 3>, Permesso>;  // by meal code, group, number

std::array<double, giorni> sette(const QString& testo) {
  std::array<double, giorni> v{};
  const QStringList parti = testo.split(u'+');
  for (int i = 0; i < giorni && i < parti.size() - 1; ++i) {
    v[static_cast<std::size_t>(i)] = QString(parti[i]).replace(u',', u'.').toDouble();
  }
  return v;
}

class Giudice {
 public:
  Giudice(const QString& cartella, const GruppiTolti& tolti)
      : cartella_(cartella), tolti_(tolti), dati_(QDir(cartella).filePath(u"dati.tmp"_s)) {}

  Verdetto giudica();

 private:
  void leggi_obiettivi();
  void leggi_lista();
  void leggi_dieta();
  const Base& base(int giorno);
  void conta_voluti();
  void guarda_bilancio();
  void guarda_pasto(int pasto, int giorno);
  bool cena_giusta(int giorno, const Sommato& s) const;
  void guarda_porzione(int pasto, int giorno, const Cibo& c);
  void guarda_supplemento(int pasto, int giorno, const Cibo& c);
  void guarda_permesso(int pasto, int giorno, const Cibo& c);
  void guarda_obblighi();
  void guarda_usi();
  [[nodiscard]] int lista_di(int pasto, int giorno) const;
  [[nodiscard]] std::vector<Cibo>& cibi(int pasto, int giorno) {
    return cibi_[static_cast<std::size_t>(pasto * giorni + giorno)];
  }
  [[nodiscard]] Obiettivo& obiettivo(int pasto, int giorno) {
    return obiettivi_[static_cast<std::size_t>(pasto * giorni + giorno)];
  }
  void infrazione(int pasto, int giorno, const QString& che) {
    v_.infrazioni << u"%1 of day %2: %3"_s.arg(QString::fromLatin1(nomi_pasti[static_cast<std::size_t>(pasto)]))
                         .arg(giorno)
                         .arg(che);
  }

  QString cartella_;
  const GruppiTolti& tolti_;
  Archivio dati_;
  Verdetto v_;
  bool veloce_ = false;
  std::array<double, giorni> energia_{};
  std::array<Obiettivo, pasti * giorni> obiettivi_{};
  std::array<std::vector<Cibo>, pasti * giorni> cibi_;
  std::vector<Scarto> scarti_;
  Lista lista_;
  std::map<int, Base> basi_;
};

void Giudice::leggi_obiettivi() {
  const Riga s = dati_.righe(u"SELECT calorie_totali, protidi, lipidi FROM sport"_s).front();
  const Riga c = dati_.righe(u"SELECT colazione, spuntino, pranzo, merenda, cena FROM consumi"_s).front();
  const auto lunch = dati_.righe(u"SELECT pranzoFF FROM alimenti"_s);
  const int tipo = lunch.empty() ? 0 : lunch.front()[u"pranzoFF"].toInt();
  veloce_ = tipo == 12 || tipo == 14;
  energia_ = sette(s[u"calorie_totali"].toString());
  for (double& e : energia_) e = tondo(e);
  const auto proteine = sette(s[u"protidi"].toString()), grassi = sette(s[u"lipidi"].toString());
  for (int p = 0; p < pasti; ++p) {
    const int quota = tondo(c[QString::fromLatin1(nomi_pasti[static_cast<std::size_t>(p)])].toDouble());
    for (std::size_t g = 0; g < giorni; ++g) {
      obiettivo(p, static_cast<int>(g)) = {tondo(energia_[g] * quota / 100),
                                           tondo(quota * double{static_cast<float>(proteine[g])} / 100),
                                           tondo(quota * double{static_cast<float>(grassi[g])} / 100)};
    }
  }
}

void Giudice::leggi_lista() {
  for (const Riga& r : dati_.righe(u"SELECT cod1, cod2, pasto, ok, LV, SD FROM alimenti_spuntati"_s)) {
    lista_[{r[u"pasto"].toInt(), r[u"cod1"].toInt(), r[u"cod2"].toInt()}] = {r[u"ok"].toBool(), r[u"LV"].toBool(),
                                                                             r[u"SD"].toBool()};
  }
}

void Giudice::leggi_dieta() {
  for (const Riga& r : dati_.righe(u"SELECT * FROM dieta WHERE dieta = 1 ORDER BY rowid"_s)) {
    cibi(r[u"pasto"].toInt(), r[u"giorno"].toInt())
        .push_back({r[u"cod1"].toInt(),
                    r[u"cod2"].toInt(),
                    r[u"descr"].toString(),
                    {r[u"quant"].toInt(), r[u"cal"].toInt(), r[u"prot"].toDouble(), r[u"lip"].toDouble(),
                     r[u"gluc"].toDouble()}});
  }
}

/// The foods as the store of the day has them: a lean day has smaller portions, a rich one larger ones.
const Base& Giudice::base(int giorno) {
  const double e = energia_[static_cast<std::size_t>(giorno)];
  const int quale = e < 1500 ? 0 : e <= 2300 ? 1 : 2;
  Base& b = basi_[quale];
  if (!b.empty()) return b;
  const QString nome = quale == 0 ? u"sa_dieta_minus.jed"_s : quale == 1 ? u"sa_dieta.jed"_s : u"sa_dieta_plus.jed"_s;
  Archivio a(QDir(cartella_).filePath(nome), accesso, Archivio::Modo::sola_lettura);
  for (const Riga& r : a.righe(u"SELECT * FROM alimenti"_s)) {
    const int q = r[u"quantità"].toInt();
    const auto energia = [&](QStringView campo, int al_grammo) {
      return double{static_cast<float>(r[campo].toDouble() * al_grammo * q / 100)};
    };
    b[{r[u"cod1"].toInt(), r[u"cod2"].toInt()}] = {
        {q, tondo(q * r[u"calorie"].toDouble() / 100), energia(u"protidi", 4), energia(u"lipidi", 9),
         energia(u"glucidi", 4)},
        r[u"unico"].toBool(),
        r[u"cod3"].toInt(),
        r[u"cod4"].toInt()};
  }
  return b;
}

/// The weekend lunch of who eats fast food in the week is chosen from the dinner's list.
int Giudice::lista_di(int pasto, int giorno) const {
  if (pasto == colazione) return 1;
  return pasto == pranzo && veloce_ && giorno >= 5 ? 6 : pasto + 2;
}

// ---- balance

/// Energy is never below the target; each overshoot of the day's other meals is taken off its dinner. Deviations are
/// listed as meals are accepted, a week of breakfasts first, and a dinner takes every seventh.
void Giudice::guarda_bilancio() {
  for (int p = 0; p < pasti; ++p) {
    for (int g = 0; g < giorni; ++g) {
      if (!cibi(p, g).empty()) guarda_pasto(p, g);
    }
  }
}

/// A deviation corrects a dinner's target unless it is too large a part of it. For fat, too, the protein decides.
Obiettivo obiettivo_di_cena(const Obiettivo& o, int comp_proteine, int comp_grassi) {
  const auto corregge = [&](int obiettivo) {
    const auto r = static_cast<float>(double(obiettivo) / (obiettivo - comp_proteine));
    return r > 0.7F && r < 1.2F;
  };
  Obiettivo n = o;
  if (corregge(o.proteine)) n.proteine = o.proteine - comp_proteine;
  if (corregge(o.grassi)) n.grassi = o.grassi - comp_grassi;
  return n;
}

/// True where some sum within the bounds lies within the tolerance of the target.
bool dentro(const Somma& s, int obiettivo, double t) {
  return s.a >= tondo(obiettivo - t * obiettivo) && s.da <= tondo(obiettivo + t * obiettivo);
}

void Giudice::guarda_pasto(int pasto, int giorno) {
  Sommato s;
  for (const Cibo& c : cibi(pasto, giorno)) {
    s.calorie += c.porzione.calorie;
    s.proteine.aggiungi(c.porzione.proteine);
    s.grassi.aggiungi(c.porzione.grassi);
    if (c.porzione.calorie == 0) infrazione(pasto, giorno, u"%1 has no energy"_s.arg(c.nome));
  }
  const Obiettivo o = obiettivo(pasto, giorno);
  const Tolleranza t = tolleranza(pasto, veloce_);
  int energia = o.calorie;
  if (pasto == cena) {
    for (std::size_t i = static_cast<std::size_t>(giorno); i < scarti_.size(); i += giorni)
      energia -= scarti_[i].calorie;
  } else {
    scarti_.push_back({s.calorie - o.calorie, s.proteine.meno(o.proteine), s.grassi.meno(o.grassi)});
  }
  if (s.calorie < energia || s.calorie > energia + tondo(t.calorie * energia)) {
    infrazione(pasto, giorno, u"%1 kcal for %2"_s.arg(s.calorie).arg(energia));
  }
  const bool bene = pasto == cena ? cena_giusta(giorno, s)
                                  : dentro(s.proteine, o.proteine, t.proteine) && dentro(s.grassi, o.grassi, t.grassi);
  if (!bene) {
    infrazione(
        pasto, giorno,
        u"protein %1 for %2, fat %3 for %4 kcal"_s.arg(s.proteine.da).arg(o.proteine).arg(s.grassi.da).arg(o.grassi));
  }
}

bool Giudice::cena_giusta(int giorno, const Sommato& s) const {
  const Tolleranza t = tolleranza(cena, veloce_);
  const Obiettivo& o = obiettivi_[static_cast<std::size_t>(cena * giorni + giorno)];
  Somma proteine, grassi;
  for (std::size_t i = static_cast<std::size_t>(giorno); i < scarti_.size(); i += giorni) {
    proteine += scarti_[i].proteine;
    grassi += scarti_[i].grassi;
  }
  for (int cp = proteine.da; cp <= proteine.a; ++cp) {
    for (int cg = grassi.da; cg <= grassi.a; ++cg) {
      const Obiettivo n = obiettivo_di_cena(o, cp, cg);
      if (dentro(s.proteine, n.proteine, t.proteine) && dentro(s.grassi, n.grassi, t.grassi)) return true;
    }
  }
  return false;
}

// ---- foods

void Giudice::guarda_porzione(int pasto, int giorno, const Cibo& c) {
  const Base& b = base(giorno);
  const auto a = b.find({c.gruppo, c.numero});
  if (a == b.end()) return infrazione(pasto, giorno, u"%1 is in no store"_s.arg(c.nome));
  const Alimento& alimento = a->second;
  const bool giusta =
      alimento.indivisibile ? alimento.porzione.e(c.porzione) : raggiungibile(alimento.porzione, c.porzione);
  if (!giusta) {
    infrazione(pasto, giorno,
               u"%1 g of %2 is no portion of %3 g"_s.arg(c.porzione.grammi).arg(c.nome).arg(alimento.porzione.grammi));
  }
}

/// A lunch holds at most one supplement: the first with a dose that is for this kind of day, as it was typed.
void Giudice::guarda_supplemento(int pasto, int giorno, const Cibo& c) {
  if (pasto != pranzo) return infrazione(pasto, giorno, u"a supplement outside lunch"_s);
  for (const Riga& r : dati_.righe(u"SELECT * FROM Integratore_dieta ORDER BY rowid"_s)) {
    const double q = r[u"quantità"].toDouble();
    if (q == 0 || !r[giorno < 5 ? u"LV" : u"SD"].toBool()) continue;
    const Porzione p{tondo(q), tondo(r[u"calorie"].toDouble() * q / 100), r[u"protidi"].toDouble() * 4 * q / 100,
                     r[u"lipidi"].toDouble() * 9 * q / 100, r[u"glucidi"].toDouble() * 4 * q / 100};
    if (!p.e(c.porzione) || r[u"Descrizione"].toString() != c.nome) {
      infrazione(pasto, giorno, u"the supplement is not as typed"_s);
    }
    return;
  }
  infrazione(pasto, giorno, u"a supplement on a day that is not its own"_s);
}

void Giudice::guarda_permesso(int pasto, int giorno, const Cibo& c) {
  const auto p = lista_.find({lista_di(pasto, giorno), c.gruppo, c.numero});
  const bool principale = pasto == pranzo || pasto == cena;
  const bool permesso =
      p != lista_.end() && (p->second.ok || (principale && (giorno < 5 ? p->second.feriale : p->second.festivo)));
  if (!permesso) infrazione(pasto, giorno, c.nome + u" is not accepted"_s);
  const int scelto_per = lista_di(pasto, giorno) == 6 ? int{cena} : pasto;
  if (tolti_.contains({scelto_per, c.gruppo})) infrazione(pasto, giorno, c.nome + u" is of a group taken away"_s);
}

/// An obligatory food is found by its course, 2 to 11, and only the first three kinds of a course are ever served.
void Giudice::guarda_obblighi() {
  for (const int pasto : {int{pranzo}, int{cena}}) {
    for (int g = 0; g < giorni; ++g) {
      if (cibi(pasto, g).empty()) continue;
      std::set<std::pair<int, int>> obbligati;
      for (const auto& [chiave, permesso] : lista_) {
        if (chiave[0] != lista_di(pasto, g) || !(g < 5 ? permesso.feriale : permesso.festivo)) continue;
        const auto a = base(g).find({chiave[1], chiave[2]});
        if (a == base(g).end()) continue;
        const Alimento& x = a->second;
        if (x.portata >= 2 && x.portata <= 11 && x.ordine <= 3) obbligati.insert({chiave[1], chiave[2]});
      }
      bool servito = obbligati.empty();
      for (const Cibo& c : cibi(pasto, g)) servito = servito || obbligati.contains({c.gruppo, c.numero});
      if (!servito) infrazione(pasto, g, u"the obligatory food is missing"_s);
    }
  }
}

/// Two lunches a week with the same food, unless it is obligatory. The weekend lunch from the dinner's list counts by
/// itself.
void Giudice::guarda_usi() {
  std::map<std::array<int, 3>, int> usi;
  for (int g = 0; g < giorni; ++g) {
    std::set<std::array<int, 3>> oggi;
    for (const Cibo& c : cibi(pranzo, g)) {
      const std::array<int, 3> chiave{lista_di(pranzo, g), c.gruppo, c.numero};
      const auto p = lista_.find(chiave);
      if (p == lista_.end() || p->second.feriale || p->second.festivo || !oggi.insert(chiave).second) continue;
      if (++usi[chiave] > usi_a_pranzo) infrazione(pranzo, g, c.nome + u" comes at a third lunch"_s);
    }
  }
}

void Giudice::conta_voluti() {
  for (int p = 0; p < pasti; ++p) {
    for (int g = 0; g < giorni; ++g) v_.pasti_voluti += obiettivo(p, g).calorie >= 1;
  }
}

Verdetto Giudice::giudica() {
  leggi_obiettivi();
  leggi_lista();
  leggi_dieta();
  conta_voluti();
  for (int p = 0; p < pasti; ++p) {
    for (int g = 0; g < giorni; ++g) {
      const auto& qui = cibi(p, g);
      v_.pasti_pieni += !qui.empty();
      v_.cibi += static_cast<int>(qui.size());
      if (std::ssize(qui) > voci_al_massimo) infrazione(p, g, u"%1 foods"_s.arg(qui.size()));
      int supplementi = 0;
      for (const Cibo& c : qui) {
        if (c.gruppo == supplemento) {
          if (++supplementi > 1) infrazione(p, g, u"a second supplement"_s);
          guarda_supplemento(p, g, c);
        } else {
          guarda_porzione(p, g, c);
          guarda_permesso(p, g, c);
        }
      }
    }
  }
  guarda_bilancio();
  guarda_obblighi();
  guarda_usi();
  return std::move(v_);
}

}  // namespace

Verdetto giudica(const QString& cartella, const GruppiTolti& tolti) { return Giudice(cartella, tolti).giudica(); }

}  // namespace tolleranze
