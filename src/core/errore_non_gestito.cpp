#include "core/errore_non_gestito.h"

#include "base/errori.h"
#include "core/messaggi.h"

#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int errore_interno = 51;

int numero_di(const std::exception& errore) {
  const auto* e = dynamic_cast<const Errore*>(&errore);
  return e ? e->numero : errore_interno;
}

Gestore& gestore() {
  static Gestore g = mostra_e_termina;
  return g;
}

}  // namespace

void mostra_e_termina(const std::exception& errore) {
  static bool in_corso = false;
  if (std::exchange(in_corso, true)) return;  // a timer's rule failed under the open box: one box is enough
  messaggio(u"Errore di run-time '%1':\n\n%2"_s.arg(numero_di(errore)).arg(QString::fromUtf8(errore.what())), {},
            Icona::critica);
  std::quick_exit(EXIT_FAILURE);
}

void errore_non_gestito(const std::exception& errore) { gestore()(errore); }

Gestore gestisci_errori_con(Gestore nuovo) { return std::exchange(gestore(), std::move(nuovo)); }

Applicazione::Applicazione(int& argc, char** argv) : QApplication(argc, argv) {
  // The program ends by its own question alone, and for a moment no window is open between login and shell.
  setQuitOnLastWindowClosed(false);
}

bool Applicazione::notify(QObject* destinatario, QEvent* evento) {
  try {
    return QApplication::notify(destinatario, evento);
  } catch (const std::exception& e) {
    errore_non_gestito(e);
    return false;
  }
}
