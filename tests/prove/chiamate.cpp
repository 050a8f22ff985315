// No failing call of the system loses a saved client, ends in a crash or goes by in silence.
//
//   prova_chiamate [faults]      (20 by default, drawn from all of them)
//
// Each call that an action makes on files of the practice fails in its turn: alone, or with all that follow. A short
// read or write comes at every call.
#include "azioni.h"
#include "chiamate_guaste.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

enum Quante { una, da_li_in_poi, tutte };

struct Causa {
  guasti::Genere genere;
  int causa;
  Quante quante;
};
constexpr Causa cause[]{
    {guasti::scrittura, EIO, una},
    {guasti::scrittura, ENOSPC, da_li_in_poi},
    {guasti::scrittura, 0, tutte},
    {guasti::scrittura, EINTR, una},
    {guasti::sincronia, EIO, una},
    {guasti::sincronia, EIO, da_li_in_poi},
    {guasti::nomi, EACCES, una},
    {guasti::nomi, EIO, da_li_in_poi},
    {guasti::apertura_in_scrittura, EACCES, una},
    {guasti::apertura_in_scrittura, ENOSPC, da_li_in_poi},
    {guasti::apertura_in_lettura, EACCES, una},
    {guasti::apertura_in_lettura, EMFILE, da_li_in_poi},
    {guasti::lettura, EIO, una},
    {guasti::lettura, 0, tutte},
};

struct Guasto {
  const prove::Azione* azione;
  guasti::Piano piano;

  [[nodiscard]] QString detto() const {
    return u"%1, kind %2, call %3, cause %4%5"_s.arg(QLatin1StringView(azione->nome))
        .arg(int{piano.genere})
        .arg(piano.numero)
        .arg(piano.causa)
        .arg(piano.da_li_in_poi ? u" from there on"_s : QString());
  }
};

prove::Resoconto con_guasto(const prove::Luogo& l, const Guasto& g) {
  guasti::azzera();
  return prove::svolgi(
      l, *g.azione, g.detto(),
      [&] {
        guasti::arma(g.piano, {l.studio.toStdString() + '/', l.fuori.toStdString() + '/'});
      },
      guasti::disarma);
}

/// Every call that the actions make, with every cause that it may fail of.
std::vector<Guasto> tutti(const prove::Luogo& l, const prove::Origine& origine) {
  std::vector<Guasto> guasti_possibili;
  for (const prove::Azione& a : prove::azioni()) {
    origine.rimetti();
    const prove::Resoconto r = con_guasto(l, {&a, {}});
    if (!r.riuscita || !r.detti.isEmpty()) prove::fallito(u"without a fault: "_s + r.detti.join(u' '));
    for (const Causa& c : cause) {
      const int chiamate = guasti::conti().chiamate[c.genere];
      for (int n = 1; n <= (c.quante == tutte ? std::min(1, chiamate) : chiamate); ++n)
        guasti_possibili.push_back({&a, {c.genere, n, c.causa, c.quante != una}});
    }
  }
  return guasti_possibili;
}

struct Conto {
  int possibili, riusciti, detti;
};

void guasta(const prove::Luogo& l, std::size_t quanti) {
  prove::prepara_tutto(l);
  const prove::Origine origine(l.base);
  std::vector<Guasto> scelti;
  const std::vector<Guasto> possibili = tutti(l, origine);
  std::ranges::sample(possibili, std::back_inserter(scelti), static_cast<std::ptrdiff_t>(quanti), std::mt19937(1));
  std::map<const prove::Azione*, Conto> conti;
  for (const Guasto& g : possibili) ++conti[g.azione].possibili;
  for (const Guasto& g : scelti) {
    origine.rimetti();
    const prove::Resoconto r = con_guasto(l, g);
    if (guasti::conti().colpite == 0) prove::fallito(g.detto() + u": it did not strike"_s);
    prove::giudica(l, *g.azione, r, g.detto());
    ++(r.detti.isEmpty() ? conti[g.azione].riusciti : conti[g.azione].detti);
  }
  for (const auto& [azione, n] : conti) {
    prove::esito(
        u"Calls failing: "_s + QLatin1StringView(azione->nome), n.riusciti + n.detti,
        u"of %1; 0 lost, 0 silent; %2 told, %3 came off all the same"_s.arg(n.possibili).arg(n.detti).arg(n.riusciti));
  }
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    const QTemporaryDir base;
    guasta(prove::luogo(base.path()), static_cast<std::size_t>(prove::quante(argc, argv, 1, 20)));
  });
}
