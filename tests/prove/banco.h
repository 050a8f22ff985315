// What the proofs share: a practice's folder with one client, states that can be told apart, the oracle that reads them
// back, children that are killed or fail, and the rows of the table of results.
#pragma once

#include <sys/types.h>
#include <QString>
#include <functional>

class Archivio;

namespace prove {

/// Ends the proof with 1: what the user was promised does not hold.
[[noreturn]] void fallito(const QString& che);

/// A row of the table of results, with the seconds since the last one; to standard output.
void esito(const QString& che, int quante, const QString& risultato);

/// The number at a place of the command line, or the one that stands without it.
int quante(int argc, char** argv, int posto, int predefinite);

/// Offscreen, unbuffered, and the one way out of a proof whose promise does not hold.
int esegui(const std::function<void()>& prova);

/// Fails the proof unless a store passes the engine's check and reads in full.
void sano(Archivio& a, const QString& file);

/// A state of the client's file is one number, the same in the master data and in 900 rows of diet: a mixture shows.
/// The address and the telephone take it on into the address book.
void scrivi_stato(int stato);

/// The state that a client's file holds. Fails the proof where the file is damaged, does not read in full or is mixed.
int stato_di(const QString& file);

/// All stores and every client's file of a folder open, pass the engine's check and read in full; the registry knows
/// just the files that stand, by path and number; the address book holds one whole state of client 1. Answers the
/// lowest state found in the files and in the address book.
int verifica(const QString& cartella);

/// The program's stores and client 1, BIANCHI, saved in state 1.
void prepara(const QString& cartella);

/// In a child: the banner of client 1 in the elaboration, every question answered as below.
void prendi_banner();

/// In a child: the client open in the elaboration, every question answered with yes, "new client?" with no.
void apri_cliente(const QString& cartella);

/// In a child: writes a state and saves it as a whole: file, registry, address book.
void salva_stato(int stato);

QString file_cliente(const QString& cartella);

/// A child process with an application of its own in a practice's folder, that tells numbers through a pipe.
struct Figlio {
  pid_t pid;
  int racconto;
};

/// What a child runs; it tells a number by calling what it is handed.
using Lavoro = std::function<void(const std::function<void(int)>& racconta)>;

/// The child ends with 0, or with 3 where an error left its work.
Figlio avvia(const QString& cartella, const Lavoro& lavoro);

/// Waits for the next number; false where the child ended first.
bool ascolta(const Figlio& f, int& numero);

struct Fine {
  int ultimo;  // last number told
  int esito;   // as waitpid gives it
};
Fine raccogli(const Figlio& f, int ultimo);

}  // namespace prove
