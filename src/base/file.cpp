#include "base/file.h"

#include "base/errori.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString suffisso = u".nuovo"_s;

/// What the user reads of a cause, whatever language the system speaks.
struct Guasto {
  int causa;  // errno
  int numero;
  const char* dice;
  const char* aggiunge = "";
};
constexpr Guasto guasti[]{
    {ENOENT, 53, "Impossibile trovare il file"},
    {ENOTDIR, 53, "Impossibile trovare il file"},
    {ENAMETOOLONG, 52, "Il nome è troppo lungo per un file:"},
    {ENOSPC, 61, "Spazio su disco insufficiente per il file", salvati_intatti},
    {EDQUOT, 61, "Spazio su disco insufficiente per il file", salvati_intatti},
    {EACCES, 70, "Autorizzazione negata per il file"},
    {EPERM, 70, "Autorizzazione negata per il file"},
    {EROFS, 70, "Autorizzazione negata per il file"},
};

/// The temporary file is called by the name of the one that it was to become.
[[noreturn]] void fallisci(int causa, const QString& file) {
  const QString vero = file.endsWith(suffisso) ? file.chopped(suffisso.size()) : file;
  const std::string nome = " '" + vero.toStdString() + "'";
  const auto g = std::ranges::find(guasti, causa, &Guasto::causa);
  if (g == std::end(guasti)) {
    throw Errore(57, "Errore del disco sul file" + nome + " (codice del sistema " + std::to_string(causa) + ").");
  }
  throw Errore(g->numero, g->dice + nome + '.' + g->aggiunge);
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

void scrivi(const Descrittore& a, const QString& nome, const char* dati, qint64 quanti) {
  for (qint64 fatti = 0; fatti < quanti;) {
    const ssize_t scritti = ::write(a.fd(), dati + fatti, static_cast<std::size_t>(quanti - fatti));
    if (scritti < 0 && errno != EINTR) fallisci(errno, nome);
    if (scritti > 0) fatti += scritti;
  }
}

void copia_contenuto(const QString& da, const Descrittore& a, const QString& nome_a) {
  const Descrittore origine(da, O_RDONLY);
  std::array<char, 1 << 16> blocco;
  for (;;) {
    const ssize_t letti = ::read(origine.fd(), blocco.data(), blocco.size());
    if (letti == 0) return;
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) fallisci(errno, da);
    scrivi(a, nome_a, blocco.data(), letti);
  }
}

QString giornale(const QString& file) { return file + u"-journal"_s; }

/// `riempi` writes the temporary file that then takes the place of `a`.
template <class F>
void rimpiazza(const QString& a, F&& riempi) {
  const QString provvisorio = a + suffisso;
  try {
    Descrittore nuovo(provvisorio, O_WRONLY | O_CREAT | O_TRUNC);
    riempi(nuovo, provvisorio);
    nuovo.al_disco();
    nuovo.chiudi();
    QFile::remove(giornale(a));  // left there, it would be played back into the new file
    rinomina(provvisorio, a);
  } catch (const Errore&) {
    QFile::remove(provvisorio);
    throw;
  }
}

}  // namespace

void sostituisci_file(const QString& da, const QString& a) {
  rimpiazza(a, [&](const Descrittore& nuovo, const QString& nome) { copia_contenuto(da, nuovo, nome); });
}

void scrivi_file(const QByteArray& dati, const QString& a) {
  rimpiazza(a,
            [&](const Descrittore& nuovo, const QString& nome) { scrivi(nuovo, nome, dati.constData(), dati.size()); });
}

void rinomina(const QString& da, const QString& a) {
  if (::rename(QFile::encodeName(da).constData(), QFile::encodeName(a).constData()) != 0) fallisci(errno, a);
  fissa_cartella(QFileInfo(a).absolutePath());
}

void fissa_cartella(const QString& cartella) {
  const Descrittore d(cartella, O_RDONLY | O_DIRECTORY);
  if (::fsync(d.fd()) != 0) fallisci(errno, cartella);
}

bool sparito(const QString& file) {
  struct stat s {};
  return ::stat(QFile::encodeName(file).constData(), &s) != 0 &&
         (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG);
}

void elimina_archivio(const QString& file) {
  if (QFile::exists(file) && !QFile::remove(file)) fallisci(EACCES, file);
  QFile::remove(giornale(file));
}
