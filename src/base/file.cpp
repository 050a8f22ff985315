#include "base/file.h"

#include "base/errori.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fallisci(int causa, const QString& file) {
  const int numero = causa == ENOENT                      ? 53
                     : causa == ENOSPC || causa == EDQUOT ? 61
                     : causa == EACCES || causa == EPERM  ? 70
                                                          : 57;
  throw Errore(numero, QFile::encodeName(file).toStdString() + ": " + std::strerror(causa));
}

/// A file descriptor that closes itself.
class Descrittore {
 public:
  Descrittore(const QString& file, int modo)
      : file_(file), fd_(::open(QFile::encodeName(file).constData(), modo | O_CLOEXEC, 0644)) {
    if (fd_ < 0) fallisci(errno, file);
  }
  ~Descrittore() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;

  [[nodiscard]] int fd() const { return fd_; }
  void al_disco() const {
    if (::fdatasync(fd_) != 0) fallisci(errno, file_);
  }
  void chiudi() {
    if (::close(std::exchange(fd_, -1)) != 0) fallisci(errno, file_);
  }

 private:
  QString file_;
  int fd_;
};

void copia_contenuto(const Descrittore& da, const QString& nome_da, const Descrittore& a, const QString& nome_a) {
  std::array<char, 1 << 16> blocco;
  for (;;) {
    const ssize_t letti = ::read(da.fd(), blocco.data(), blocco.size());
    if (letti == 0) return;
    if (letti < 0) fallisci(errno, nome_da);
    for (ssize_t fatti = 0; fatti < letti;) {
      const ssize_t scritti = ::write(a.fd(), blocco.data() + fatti, static_cast<std::size_t>(letti - fatti));
      if (scritti < 0) fallisci(errno, nome_a);
      fatti += scritti;
    }
  }
}

QString giornale(const QString& file) { return file + u"-journal"_s; }

/// A journal left beside the old file would be played back into the new one.
void scambia(const QString& provvisorio, const QString& a) {
  QFile::remove(giornale(a));
  if (::rename(QFile::encodeName(provvisorio).constData(), QFile::encodeName(a).constData()) != 0) fallisci(errno, a);
  const Descrittore cartella(QFileInfo(a).absolutePath(), O_RDONLY | O_DIRECTORY);
  if (::fsync(cartella.fd()) != 0) fallisci(errno, a);
}

}  // namespace

void sostituisci_file(const QString& da, const QString& a) {
  const QString provvisorio = a + u".nuovo"_s;
  try {
    const Descrittore origine(da, O_RDONLY);
    Descrittore copia(provvisorio, O_WRONLY | O_CREAT | O_TRUNC);
    copia_contenuto(origine, da, copia, provvisorio);
    copia.al_disco();
    copia.chiudi();
    scambia(provvisorio, a);
  } catch (const Errore&) {
    QFile::remove(provvisorio);
    throw;
  }
}

void elimina_archivio(const QString& file) {
  if (QFile::exists(file) && !QFile::remove(file)) fallisci(EACCES, file);
  QFile::remove(giornale(file));
}
