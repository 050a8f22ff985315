// The practice may grow: what a client or a person costs in its list does not rise with their number.
//
//   prova_scala [largest size] [fills]      (200 and 3 by default)
//
// A fifth and a fiftieth of the largest size are timed too. The medians' cost per item at the largest size is at most
// twice that at either of the smaller ones.
#include "scala.h"
#include "banco.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double crescita_massima = 2;

void piatto(const QString& che, const std::vector<Scala>& scale, double Scala::*tempo) {
  const auto costo = [&](const Scala& s) { return s.*tempo / s.voci; };
  const Scala& grande = scale.back();
  double crescita = 0;
  for (const Scala& s : scale) crescita = std::max(crescita, costo(grande) / costo(s));
  if (crescita > crescita_massima) prove::fallito(u"%1: an item costs %2 times as much"_s.arg(che).arg(crescita));
  prove::esito(
      che, grande.voci,
      u"%1 ms; an item costs at most %2 times what it costs among fewer (limit %3)"_s.arg(grande.*tempo, 0, 'f', 1)
          .arg(crescita, 0, 'f', 2)
          .arg(crescita_massima));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    Applicazione app(argc, argv);
    imposta_aspetto(app);
    const int voci = prove::quante(argc, argv, 1, 200), volte = prove::quante(argc, argv, 2, 3);
    const std::vector<int> misure{voci / 50, voci / 5, voci};
    const auto clienti = scala_schedario(misure, volte);
    piatto(u"Archive, tab of all"_s, clienti, &Scala::tutti);
    piatto(u"Archive, one letter"_s, clienti, &Scala::lettera);
    const auto persone = scala_rubrica(misure, volte);
    piatto(u"Address book, all letters in turn"_s, persone, &Scala::tutti);
    piatto(u"Address book, one letter"_s, persone, &Scala::lettera);
  });
}
