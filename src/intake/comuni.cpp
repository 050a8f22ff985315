#include "intake/comuni.h"

#include "base/archivio.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void Comuni::apri() {
  if (aperti()) return;
  Archivio archivio(percorso(u"ccc.jed"_s), accesso, Archivio::Modo::sola_lettura);
  archivio.scorri(u"SELECT DISTINCT provincia FROM Comuni ORDER BY provincia ASC"_s,
                  [this](const Cursore& c) { province_ << c.testo(0); });
  archivio.scorri(u"SELECT provincia, Descrizione, codice, cap FROM Comuni ORDER BY rowid"_s, [this](const Cursore& c) {
    const QString cap = c.testo(3);
    tutti_.push_back({c.testo(0), c.testo(1), c.testo(2), cap.isEmpty() ? cap : cap.rightJustified(5, u'0')});
  });
}

void Comuni::chiudi() {
  tutti_.clear();
  province_.clear();
}

QStringList Comuni::di(const QString& provincia) const {
  QStringList nomi;
  for (const Comune& c : tutti_) {
    if (c.provincia == provincia) nomi << c.nome;
  }
  return nomi;
}

const Comune* Comuni::trova(const QString& nome) const {
  const auto c = std::ranges::find(tutti_, nome, &Comune::nome);
  return c == tutti_.end() ? nullptr : &*c;
}
