// The end of everything that no rule caught: the run-time's message, then the end of the program.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

/// Hands an error that no rule caught to its handler.
void errore_non_gestito(const std::exception& errore);

/// Who takes the errors: `mostra_e_termina` unless a test steps in. Returns the former one.
using Gestore = std::function<void(const std::exception&)>;
Gestore gestisci_errori_con(Gestore nuovo);

/// Shows "Errore di run-time 'n':" with the error's text and ends the program at once. The working copy stays.
void mostra_e_termina(const std::exception& errore);

/// The application object. Rules catch their errors at their own door; this is the last net below them.
class Applicazione : public QApplication {
 public:
  Applicazione(int& argc, char** argv);
  bool notify(QObject* destinatario, QEvent* evento) override;
};
