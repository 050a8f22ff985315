// Nothing saved is lost when the disk is full, and no save says it came off when it did not.
//
//   prova_disco_pieno [saves]      (30 by default)
//
// A small disk leaves a different room free at each turn, from none to more than a save needs.
#include "banco.h"

#include <sys/mount.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Fills the disk with a file and takes that many bytes off it again.
void riempi(const QString& zavorra, qint64 spazio) {
  QFile z(zavorra);
  if (!z.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) prove::fallito(u"no room for the ballast"_s);
  while (z.write(QByteArray(4096, 'z')) > 0) continue;
  if (!z.resize(std::max<qint64>(0, z.size() - spazio))) prove::fallito(u"the ballast cannot be cut"_s);
}

void salvataggi(const QString& disco, int volte) {
  prove::prepara(disco);
  int ultimo = 1, falliti = 0;
  for (int i = 0; i < volte; ++i) {
    const QString zavorra = QDir(disco).filePath(u"zavorra"_s);
    riempi(zavorra, 8192LL * i);
    const prove::Figlio f = prove::avvia(disco, [&](const auto& racconta) {
      prove::apri_cliente(disco);
      prove::salva_stato(ultimo + 1);
      racconta(ultimo + 1);
    });
    const prove::Fine fine = prove::raccogli(f, ultimo);
    falliti += fine.esito != 0;
    const int trovato = prove::verifica(disco);
    if (trovato < fine.ultimo || trovato > ultimo + 1) prove::fallito(u"a save that came back was lost"_s);
    ultimo = trovato;
    QFile::remove(zavorra);
  }
  prove::esito(u"General saves on a full disk"_s, volte, u"0 lost; %1 failed and said so"_s.arg(falliti));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    const QTemporaryDir punto;
    const QByteArray dove = QFile::encodeName(punto.path());
    if (::mount("tmpfs", dove.constData(), "tmpfs", 0, "size=4m") != 0) {
      return prove::esito(u"Full disk"_s, 0, u"left out: no small disk can be mounted here"_s);
    }
    salvataggi(punto.path(), prove::quante(argc, argv, 1, 30));
    ::umount(dove.constData());
  });
}
