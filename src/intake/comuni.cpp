#include "intake/comuni.h"

#include "base/archivio.h"

#include <QDateTime>
#include <QFileInfo>
#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

Comuni::Tabella Comuni::leggi(const QString& file) {
  Tabella t;
  Archivio archivio(file, accesso, Archivio::Modo::sola_lettura);
  archivio.scorri(u"SELECT DISTINCT provincia FROM Comuni ORDER BY provincia ASC"_s,
                  [&](const Cursore& c) { t.province << c.testo(0); });
  archivio.scorri(u"SELECT provincia, Descrizione, codice, cap FROM Comuni ORDER BY rowid"_s, [&](const Cursore& c) {
    const QString cap = c.testo(3);
    t.comuni.push_back({c.testo(0), c.testo(1), c.testo(2), cap.isEmpty() ? cap : cap.rightJustified(5, u'0')});
  });
  return t;
}

void Comuni::apri() {
  static std::tuple<QString, QDateTime, qint64> letto;
  static std::shared_ptr<const Tabella> ultima;
  if (aperti()) return;
  const QFileInfo f(percorso(u"ccc.jed"_s));
  const std::tuple questo(f.filePath(), f.lastModified(), f.size());
  if (!ultima || questo != letto) {
    ultima = std::make_shared<Tabella>(leggi(f.filePath()));
    letto = questo;
  }
  tabella_ = ultima;
}

void Comuni::chiudi() { tabella_.reset(); }

QStringList Comuni::di(const QString& provincia) const {
  QStringList nomi;
  if (!tabella_) return nomi;
  for (const Comune& c : tabella_->comuni) {
    if (c.provincia == provincia) nomi << c.nome;
  }
  return nomi;
}

const Comune* Comuni::trova(const QString& nome) const {
  if (!tabella_) return nullptr;
  const auto c = std::ranges::find(tabella_->comuni, nome, &Comune::nome);
  return c == tabella_->comuni.end() ? nullptr : &*c;
}
