// Raw damage: bits, runs, pages, lengths, and what is no file at all.
#include "mutanti.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <array>

namespace mutanti {

namespace {

constexpr qsizetype pagina = 1024;

qsizetype una_pagina(Caso& c, const QByteArray& d) {
  return c.sotto(std::max<qsizetype>(1, d.size() / pagina)) * pagina;
}

QByteArray rumore(Caso& c, qsizetype quanti) {
  QByteArray r(quanti, '\0');
  for (char& b : r) b = static_cast<char>(c.sotto(256));
  return r;
}

void capovolgi(Caso& c, QByteArray& d) {
  const qsizetype dove = c.sotto(d.size());
  d[dove] = static_cast<char>(d[dove] ^ (1 << c.sotto(8)));
}

using Danno = void (*)(Caso&, QByteArray&, const Origini&);

constexpr std::array<Danno, 12> danni{
    [](Caso& c, QByteArray& d, const Origini&) { capovolgi(c, d); },
    [](Caso& c, QByteArray& d, const Origini&) {
      for (auto n = c.sotto(50) + 2; n > 0; --n) capovolgi(c, d);
    },
    [](Caso& c, QByteArray& d, const Origini&) {  // a run of bytes
      const QByteArray r = rumore(c, c.sotto(4000) + 1);
      d.replace(c.sotto(d.size()), r.size(), r);
    },
    [](Caso& c, QByteArray& d, const Origini&) { d.replace(una_pagina(c, d), pagina, QByteArray(pagina, '\0')); },
    [](Caso& c, QByteArray& d, const Origini&) {  // two pages change places
      const qsizetype a = una_pagina(c, d), b = una_pagina(c, d);
      const QByteArray una = d.mid(a, pagina), altra = d.mid(b, pagina);
      d.replace(a, pagina, altra).replace(b, pagina, una);
    },
    [](Caso& c, QByteArray& d, const Origini&) {
      d.replace(una_pagina(c, d), pagina, d.mid(una_pagina(c, d), pagina));
    },
    [](Caso& c, QByteArray& d, const Origini&) { d.insert(una_pagina(c, d), d.mid(una_pagina(c, d), pagina)); },
    [](Caso& c, QByteArray& d, const Origini&) { d.remove(una_pagina(c, d), pagina); },
    [](Caso& c, QByteArray& d, const Origini&) { d.truncate(c.uno_su(2) ? c.sotto(d.size()) : una_pagina(c, d)); },
    [](Caso& c, QByteArray& d, const Origini&) { d.truncate(c.sotto(200)); },
    [](Caso& c, QByteArray& d, const Origini&) { d += rumore(c, c.sotto(3 * pagina) + 1); },
    [](Caso& c, QByteArray& d, const Origini& o) {  // a page of another client
      const QByteArray& altro = c.uno_di(o.clienti);
      const qsizetype dove = una_pagina(c, altro);
      d.replace(dove, pagina, altro.mid(dove, pagina));
    },
};

void presa(const QString& file) {
  sockaddr_un indirizzo{};
  indirizzo.sun_family = AF_UNIX;
  const QByteArray nome = QFile::encodeName(file);
  qstrncpy(indirizzo.sun_path, nome.constData(), sizeof indirizzo.sun_path);
  const int s = ::socket(AF_UNIX, SOCK_STREAM, 0);
  static_cast<void>(::bind(s, reinterpret_cast<const sockaddr*>(&indirizzo), sizeof indirizzo));
  ::close(s);
}

/// What stands under the name is no file: it must neither hang the reader nor pass for a client.
void strano(Caso& c, const QString& file) {
  const QByteArray nome = QFile::encodeName(file);
  static constexpr std::array mete{"/dev/null", "/dev/zero", "/dev/full",     "/dev/urandom",
                                   "manca",     "/",         "/proc/self/mem"};
  switch (c.sotto(6)) {
    case 0: return static_cast<void>(QDir().mkdir(file));
    case 1: return static_cast<void>(::mkfifo(nome.constData(), 0644));
    case 2: return static_cast<void>(::symlink(nome.constData(), nome.constData()));
    case 3: return presa(file);
    default: return static_cast<void>(::symlink(c.uno_di(mete), nome.constData()));
  }
}

}  // namespace

QByteArray leggi(const QString& file) {
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void scrivi(const QString& file, const QByteArray& dati) {
  QFile f(file);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(dati) != dati.size())
    qFatal("no room for a mutant");
}

void grezzo(Caso& caso, const Origini& origini, const QString& file) {
  if (caso.uno_su(60)) return strano(caso, file);
  if (caso.uno_su(40)) return scrivi(file, caso.uno_di(origini.estranei));
  QByteArray d = caso.uno_di(origini.clienti);
  for (auto n = caso.uno_su(4) ? caso.sotto(3) + 1 : 1; n > 0 && !d.isEmpty(); --n)
    caso.uno_di(danni)(caso, d, origini);
  scrivi(file, d);
}

}  // namespace mutanti
