// Whatever the user may not read or write, nothing is lost, and the user is told in a sentence.
//
//   prova_permessi [turns] [names]      (20 and 5 by default, drawn from all of them)
//
// Every action meets every obstacle, as an ordinary user does; then the obstacle goes, and the action must come off.
// Clients of unusual names are typed, saved, recalled and exported.
#include "azioni.h"

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned nessuno = 65534;
constexpr unsigned via = ~0U;  // the file or folder is gone

struct Ostacolo {
  const char* file;
  unsigned permessi;
  const char* solo_a = "";  // the only actions that meet it; none named: all
};
// The archive strikes a client whose file is gone off the registry without a word: those two actions stay away.
constexpr Ostacolo ostacoli[]{
    {"studio", 0555},
    {"studio", via},
    {"studio/1_BIANCHI", 0555},
    {"studio/1_BIANCHI", 0},
    {"studio/1_BIANCHI", via, "general save, export, section, print"},
    {"studio/1_BIANCHI/1_BIANCHI.orzaline", 0444},
    {"studio/1_BIANCHI/1_BIANCHI.orzaline", 0},
    {"studio/fc.jed", 0444},
    {"studio/fc.jed", 0},
    {"studio/fc.jed", via},
    {"studio/rubrica.jed", 0444},
    {"studio/rubrica.jed", via},
    {"studio/Agenda.jed", 0444},
    {"studio/Agenda.jed", 0},
    {"studio/dati.tmp", 0444},
    {"studio/dati.tmp", 0},
    {"studio/matrix.jed", 0},
    {"studio/0_1.chk", 0444},
    {"studio/0_1.chk", 0},
    {"studio/studio.jed", 0},
    {"studio/ccc.jed", 0},
    {"fuori", 0555},
    {"fuori", via},
    {"fuori/1_BIANCHI.orzaline", 0444},
    {"fuori/altri", 0},
    {"fuori/altri/7_ROSSI.orzaline", 0},
};

std::vector<QString> cognomi() {
  return {u"D'ANGELO"_s,      u"NICOLÒ"_s,        u"O\"NEIL\\"_s,     u"  DE  ROSSI  "_s,  u".."_s,
          u"-RF *"_s,         u"%1%2"_s,          u"A/B"_s,           u"../../../FUORI"_s, QString(100, u'A'),
          QString(200, u'A'), QString(236, u'A'), QString(240, u'A'), QString(250, u'A'),  QString(125, u'È')};
}

class Intralcio {
 public:
  Intralcio(const prove::Luogo& l, const Ostacolo& o)
      : file_((l.base + u'/' + QLatin1StringView(o.file)).toStdString()), permessi_(o.permessi) {}

  void metti() const {
    if (permessi_ == via) return std::filesystem::rename(file_, file_ + ".via");
    ::chmod(file_.c_str(), permessi_);
  }
  void togli() const {
    if (permessi_ != via) {
      ::chmod(file_.c_str(), std::filesystem::is_directory(file_) ? 0755 : 0644);
    } else if (!std::filesystem::exists(file_)) {
      std::filesystem::rename(file_ + ".via", file_);
    } else {  // the program has made a new one
      std::filesystem::remove_all(file_ + ".via");
    }
  }

 private:
  std::string file_;
  unsigned permessi_;
};

struct Turno {
  const prove::Azione* azione;
  const Ostacolo* ostacolo;
};

std::vector<Turno> turni() {
  std::vector<Turno> tutti;
  for (const prove::Azione& a : prove::azioni()) {
    for (const Ostacolo& o : ostacoli) {
      const std::string_view solo_a = o.solo_a;
      if (solo_a.empty() || solo_a.find(a.nome) != solo_a.npos) tutti.push_back({&a, &o});
    }
  }
  return tutti;
}

/// Root is refused nothing: from here on the proof is an ordinary user, and so are its children.
void diventa_utente(const QString& cartella) {
  if (::geteuid() != 0) return;
  const auto cedi = [](const std::filesystem::path& p) {
    if (::lchown(p.c_str(), nessuno, nessuno) != 0) prove::fallito(u"the folders cannot be given away"_s);
  };
  cedi(cartella.toStdString());
  for (const auto& p : std::filesystem::recursive_directory_iterator(cartella.toStdString())) cedi(p.path());
  if (::setgroups(0, nullptr) != 0 || ::setgid(nessuno) != 0 || ::setuid(nessuno) != 0)
    prove::fallito(u"root cannot be left"_s);
}

template <class T>
std::vector<T> scegli(const std::vector<T>& tutti, int quanti) {
  std::vector<T> scelti;
  std::ranges::sample(tutti, std::back_inserter(scelti), quanti, std::mt19937(1));
  return scelti;
}

void prova_ostacoli(const prove::Luogo& l, const prove::Origine& origine, int quanti) {
  const std::vector<Turno> scelti = scegli(turni(), quanti);
  int detti = 0;
  for (const auto& [azione, ostacolo] : scelti) {
    origine.rimetti();
    const Intralcio i(l, *ostacolo);
    const QString che = u"%1, %2 %3"_s.arg(QLatin1StringView(azione->nome), QLatin1StringView(ostacolo->file))
                            .arg(ostacolo->permessi, 0, 8);
    const prove::Resoconto r = prove::svolgi(
        l, *azione, che, [&] { i.metti(); }, [&] { i.togli(); });
    i.togli();
    prove::giudica(l, *azione, r, che);
    detti += !r.detti.isEmpty();
  }
  prove::esito(u"Obstacles of files and folders"_s, static_cast<int>(scelti.size()),
               u"0 lost, 0 silent; %1 told"_s.arg(detti));
}

/// A name either works throughout, or is refused and leaves everything as it was; it never leads out of the practice.
void prova_nomi(prove::Luogo l, const prove::Origine& origine, int quanti) {
  const std::vector<QString> scelti = scegli(cognomi(), quanti);
  const auto intorno = [&] {
    QStringList nomi =
        QDir(l.base).entryList(QDir::Dirs | QDir::NoDotAndDotDot) + QDir(l.studio).entryList(QDir::NoFilter);
    nomi.removeIf([](const QString& n) { return n.startsWith(u"dati.tmp"); });  // the session's, not a client's
    return nomi;
  };
  int rifiutati = 0;
  for (const QString& cognome : scelti) {
    origine.rimetti();
    const qsizetype prima = intorno().size();
    l.cognome = cognome;
    const prove::Resoconto r = prove::svolgi(l, prove::cliente_nuovo, cognome);
    if (r.riuscita != r.detti.isEmpty()) prove::fallito(cognome + u": "_s + r.detti.join(u" / "_s));
    if (intorno().size() - prima != (r.riuscita ? 1 : 0))
      prove::fallito(cognome + u": the folders are not as they should be"_s);
    if (!prove::svolgi(l, prove::azioni()[1], cognome).riuscita) prove::fallito(cognome + u": the archive is lost"_s);
    rifiutati += !r.riuscita;
  }
  prove::esito(u"Clients of unusual names"_s, static_cast<int>(scelti.size()), u"%1 refused, 0 lost"_s.arg(rifiutati));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    const QTemporaryDir base;
    const prove::Luogo l = prove::luogo(base.path());
    prove::prepara_tutto(l);
    diventa_utente(base.path());
    const prove::Origine origine(l.base);
    prova_ostacoli(l, origine, prove::quante(argc, argv, 1, 20));
    prova_nomi(l, origine, prove::quante(argc, argv, 2, 5));
  });
}
