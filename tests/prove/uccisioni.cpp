// Nothing saved is lost when the process is killed: general saves and the writes of every store cut short by SIGKILL at
// random moments.
//
//   prova_uccisioni [general saves] [store writes]      (12 and 24 by default)
//
// A child saves one state after the other and is killed. The file must then hold one whole state, the last one whose
// save came back or the next; after a general save, the address book too, and never one ahead of the file.
#include "banco.h"
#include "scritture.h"

#include <unistd.h>
#include <QTemporaryDir>
#include <climits>
#include <csignal>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

std::mt19937 caso(1);

/// Lets a child go on for a moment after its first save; answers the last state that it told.
int uccidi(const prove::Figlio& f, unsigned al_più, const QString& che) {
  int stato = 0;
  if (!prove::ascolta(f, stato)) prove::fallito(u"the child did not save: "_s + che);
  ::usleep(std::uniform_int_distribution<unsigned>(0, al_più)(caso));
  ::kill(f.pid, SIGKILL);
  const prove::Fine fine = prove::raccogli(f, stato);
  if (fine.esito != SIGKILL) prove::fallito(u"the child ended before it was killed: "_s + che);
  return fine.ultimo;
}

void salvataggi(int uccisioni) {
  const QTemporaryDir cartella;
  prove::prepara(cartella.path());
  int ultimo = 1, prima_del_racconto = 0, prima_della_rubrica = 0;
  for (int i = 0; i < uccisioni; ++i) {
    const prove::Figlio f = prove::avvia(cartella.path(), [&](const auto& racconta) {
      prove::apri_cliente(cartella.path());
      for (int stato = ultimo + 1; stato < INT_MAX; ++stato) {
        prove::salva_stato(stato);
        racconta(stato);
      }
    });
    const int detto = uccidi(f, 40000, u"general save"_s);
    const int trovato = prove::verifica(cartella.path());
    const int nel_file = prove::stato_di(prove::file_cliente(cartella.path()));
    if (trovato < detto) prove::fallito(u"a save that came back was lost"_s);
    if (nel_file > detto + 1) prove::fallito(u"a state from nowhere"_s);
    if (trovato != nel_file && trovato != nel_file - 1) prove::fallito(u"the address book does not follow the file"_s);
    prima_della_rubrica += trovato < nel_file;
    prima_del_racconto += nel_file > detto;
    ultimo = trovato;
  }
  prove::esito(u"General saves killed"_s, uccisioni,
               u"0 lost, 0 torn; %1 states saved, %2 kills between the rename and its report, %3 of them before the "
               "address book"_s.arg(ultimo)
                   .arg(prima_del_racconto)
                   .arg(prima_della_rubrica));
}

void archivi(int uccisioni) {
  const QTemporaryDir cartella;
  prove::prepara_scritture(cartella.path());
  const auto& quali = prove::scritture();
  std::vector<int> ultimi(quali.size(), 0);
  for (int i = 0; i < uccisioni; ++i) {
    const prove::Scrittura& s = quali[static_cast<std::size_t>(i) % quali.size()];
    int& ultimo = ultimi[static_cast<std::size_t>(i) % quali.size()];
    const prove::Figlio f = prove::avvia(cartella.path(), [&](const auto& racconta) {
      prove::prendi_banner();
      for (int stato = ultimo + 1; stato < INT_MAX; ++stato) {
        s.scrivi(stato, 1);
        racconta(stato);
      }
    });
    const int detto = uccidi(f, 10000, s.nome);
    const int trovato = prove::stato_scritto(s, cartella.path());
    if (trovato != detto && trovato != detto + 1) {
      prove::fallito(u"%1: state %2 found, %3 told"_s.arg(s.nome).arg(trovato).arg(detto));
    }
    ultimo = trovato;
  }
  const int stati = std::accumulate(ultimi.begin(), ultimi.end(), 0);
  prove::esito(u"Store writes killed, %1 kinds"_s.arg(quali.size()), uccisioni,
               u"0 lost, 0 torn; %1 states written"_s.arg(stati));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    salvataggi(prove::quante(argc, argv, 1, 12));
    archivi(prove::quante(argc, argv, 2, 24));
  });
}
