// Nothing saved is lost when the process is killed: general saves cut short by SIGKILL at random moments.
//
//   prova_uccisioni [kills]      (30 by default)
//
// A child saves one state of a client after the other and is killed. The client's file must then hold one whole state,
// not older than the last one whose save came back.
#include "banco.h"

#include <unistd.h>
#include <QTemporaryDir>
#include <climits>
#include <csignal>
#include <random>

using namespace Qt::StringLiterals;

namespace {

void salvataggi(int uccisioni) {
  const QTemporaryDir cartella;
  prove::prepara(cartella.path());
  std::mt19937 caso(1);
  int ultimo = 1, prima_del_racconto = 0;
  for (int i = 0; i < uccisioni; ++i) {
    const prove::Figlio f = prove::avvia(cartella.path(), [&](const auto& racconta) {
      prove::apri_cliente(cartella.path());
      for (int stato = ultimo + 1; stato < INT_MAX; ++stato) {
        prove::salva_stato(stato);
        racconta(stato);
      }
    });
    int stato = 0;
    if (!prove::ascolta(f, stato)) prove::fallito(u"the child did not save"_s);
    ::usleep(std::uniform_int_distribution<unsigned>(0, 40000)(caso));
    ::kill(f.pid, SIGKILL);
    const prove::Fine fine = prove::raccogli(f, stato);
    const int trovato = prove::verifica(cartella.path());
    if (trovato < fine.ultimo) prove::fallito(u"a save that came back was lost"_s);
    prima_del_racconto += trovato > fine.ultimo;
    ultimo = trovato;
  }
  prove::esito(u"General saves killed"_s, uccisioni,
               u"0 lost, 0 torn; %1 states saved, %2 kills between the rename and its report"_s.arg(ultimo).arg(
                   prima_del_racconto));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] { salvataggi(prove::quante(argc, argv, 1, 30)); });
}
