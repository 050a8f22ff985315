// What a user does while something stands in the way: by the screens' own buttons, in a child, with what the user is
// told written down.
#pragma once

#include "banco.h"

#include <QStringList>
#include <functional>
#include <span>

namespace prove {

/// Where a proof works: the practice's folder and one outside it, for exports, imports and printed files, side by side
/// in one folder; the file in which a child writes down what the user is told; the state that the action is to bring.
struct Luogo {
  QString base, studio, fuori, detti;
  int stato;
  QString cognome;  // of a new client
};
Luogo luogo(const QString& cartella);

/// The folders as they stand now, to be put back before each turn.
class Origine {
 public:
  explicit Origine(const QString& base);
  void rimetti() const;

 private:
  QString base_;
};

struct Azione {
  const char* nome;
  void (*prima)(const Luogo&);     // up to the button
  void (*fa)(const Luogo&);        // the button
  bool (*riuscita)(const Luogo&);  // afterwards: what the button promises stands there
};

/// Start, archive, recall, general save, section, export, import, address book, agenda, print.
std::span<const Azione> azioni();
/// A client is typed, saved, recalled by the archive and exported.
extern const Azione cliente_nuovo;

/// Lets a child see what the user is told, and end as the program does at a run-time error.
void ascolta_utente(const Luogo& l);

struct Resoconto {
  bool riuscita;
  QStringList detti;  // boxes but for those of success, and the run-time's message
};

/// Runs an action in a child. `metti` and `togli` put what is in the way and take it off. Fails the proof where the
/// child crashes, hangs, says something that is not Italian, or neither does what it should nor says so.
Resoconto svolgi(const Luogo& l, const Azione& a, const QString& che, const std::function<void()>& metti = {},
                 const std::function<void()>& togli = {});

/// Judges what stands there once the obstacle is gone: the client's file in the old state or the new one, export,
/// print, import and the address book's person whole or not at all, every store sound. Where something was told, the
/// same action then comes off without a word, and all is judged again.
void giudica(const Luogo& l, const Azione& a, const Resoconto& r, const QString& che);

/// The stores, client 1 in state 1, a login, a client's file to import and a former export: what every action needs.
void prepara_tutto(const Luogo& l);

}  // namespace prove
