#include "chiamate_guaste.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>

namespace guasti {

namespace {

bool armato = false;
Piano piano{};
std::vector<std::string> cartelle;

/// Shared with the children.
Conti* comuni() {
  static auto* const c =
      static_cast<Conti*>(::mmap(nullptr, sizeof(Conti), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  return c;
}

enum Esito { passa, fallisce, a_meta };

Esito esito(Genere g, const std::string& file) {
  if (!armato) return passa;
  const bool nostro = std::ranges::any_of(cartelle, [&](const std::string& c) { return file.starts_with(c); });
  if (!nostro) return passa;
  const int n = ++comuni()->chiamate[g];
  if (g != piano.genere || n < piano.numero || (n > piano.numero && !piano.da_li_in_poi)) return passa;
  ++comuni()->colpite;
  if (piano.causa == 0) return a_meta;
  errno = piano.causa;
  return fallisce;
}

Esito esito(Genere g, int fd) {
  if (!armato) return passa;
  std::array<char, PATH_MAX> nome{};
  const std::string via = "/proc/self/fd/" + std::to_string(fd);
  const ssize_t n = ::readlink(via.c_str(), nome.data(), nome.size());
  return n > 0 ? esito(g, std::string(nome.data(), static_cast<std::size_t>(n))) : passa;
}

template <class F>
F* vera(const char* nome) {
  return reinterpret_cast<F*>(::dlsym(RTLD_NEXT, nome));
}

/// A call that moves bytes: whole, half of them, or not at all.
template <class F>
ssize_t muovi(Genere g, int fd, std::size_t quanti, F&& chiama) {
  switch (esito(g, fd)) {
    case fallisce: return -1;
    case a_meta: return chiama(std::max<std::size_t>(1, quanti / 2));
    case passa: break;
  }
  return chiama(quanti);
}

template <class Dove, class F>
int intera(Genere g, const Dove& dove, F&& chiama) {
  return esito(g, dove) == fallisce ? -1 : chiama();
}

template <class F>
int apri(const char* file, int modo, F&& chiama) {
  const bool scrive = (modo & O_ACCMODE) != O_RDONLY;
  return intera(scrive ? apertura_in_scrittura : apertura_in_lettura, std::string(file), chiama);
}

}  // namespace

void arma(const Piano& p, std::vector<std::string> c) {
  piano = p;
  cartelle = std::move(c);
  armato = p.numero >= 0;
}
void disarma() { armato = false; }
const Conti& conti() { return *comuni(); }
void azzera() { *comuni() = {}; }

}  // namespace guasti

using namespace guasti;

extern "C" {

ssize_t write(int fd, const void* da, size_t quanti) {
  static auto* const f = vera<ssize_t(int, const void*, size_t)>("write");
  return muovi(scrittura, fd, quanti, [&](size_t n) { return f(fd, da, n); });
}
ssize_t pwrite(int fd, const void* da, size_t quanti, off_t dove) {
  static auto* const f = vera<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  return muovi(scrittura, fd, quanti, [&](size_t n) { return f(fd, da, n, dove); });
}
ssize_t pwrite64(int fd, const void* da, size_t quanti, off64_t dove) {
  static auto* const f = vera<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
  return muovi(scrittura, fd, quanti, [&](size_t n) { return f(fd, da, n, dove); });
}
ssize_t writev(int fd, const iovec* pezzi, int quanti) {
  static auto* const f = vera<ssize_t(int, const iovec*, int)>("writev");
  return muovi(scrittura, fd, 1, [&](size_t) { return f(fd, pezzi, quanti); });
}
ssize_t read(int fd, void* in, size_t quanti) {
  static auto* const f = vera<ssize_t(int, void*, size_t)>("read");
  return muovi(lettura, fd, quanti, [&](size_t n) { return f(fd, in, n); });
}
ssize_t pread64(int fd, void* in, size_t quanti, off64_t dove) {
  static auto* const f = vera<ssize_t(int, void*, size_t, off64_t)>("pread64");
  return muovi(lettura, fd, quanti, [&](size_t n) { return f(fd, in, n, dove); });
}

int ftruncate(int fd, off_t misura) noexcept {
  static auto* const f = vera<int(int, off_t)>("ftruncate");
  return intera(scrittura, fd, [&] { return f(fd, misura); });
}
int ftruncate64(int fd, off64_t misura) noexcept {
  static auto* const f = vera<int(int, off64_t)>("ftruncate64");
  return intera(scrittura, fd, [&] { return f(fd, misura); });
}
int fsync(int fd) {
  static auto* const f = vera<int(int)>("fsync");
  return intera(sincronia, fd, [&] { return f(fd); });
}
int fdatasync(int fd) {
  static auto* const f = vera<int(int)>("fdatasync");
  return intera(sincronia, fd, [&] { return f(fd); });
}

int rename(const char* da, const char* a) noexcept {
  static auto* const f = vera<int(const char*, const char*)>("rename");
  return intera(nomi, std::string(a), [&] { return f(da, a); });
}
int renameat2(int d1, const char* da, int d2, const char* a, unsigned modo) noexcept {
  static auto* const f = vera<int(int, const char*, int, const char*, unsigned)>("renameat2");
  return intera(nomi, std::string(a), [&] { return f(d1, da, d2, a, modo); });
}
int unlink(const char* file) noexcept {
  static auto* const f = vera<int(const char*)>("unlink");
  return intera(nomi, std::string(file), [&] { return f(file); });
}
int mkdir(const char* cartella, mode_t modo) noexcept {
  static auto* const f = vera<int(const char*, mode_t)>("mkdir");
  return intera(nomi, std::string(cartella), [&] { return f(cartella, modo); });
}
int rmdir(const char* cartella) noexcept {
  static auto* const f = vera<int(const char*)>("rmdir");
  return intera(nomi, std::string(cartella), [&] { return f(cartella); });
}

int open(const char* file, int modo, ...) {
  static auto* const f = vera<int(const char*, int, mode_t)>("open");
  va_list resto;
  va_start(resto, modo);
  const mode_t permessi = (modo & (O_CREAT | O_TMPFILE)) ? va_arg(resto, mode_t) : 0;
  va_end(resto);
  return apri(file, modo, [&] { return f(file, modo, permessi); });
}
int open64(const char* file, int modo, ...) {
  static auto* const f = vera<int(const char*, int, mode_t)>("open64");
  va_list resto;
  va_start(resto, modo);
  const mode_t permessi = (modo & (O_CREAT | O_TMPFILE)) ? va_arg(resto, mode_t) : 0;
  va_end(resto);
  return apri(file, modo, [&] { return f(file, modo, permessi); });
}
int openat(int cartella, const char* file, int modo, ...) {
  static auto* const f = vera<int(int, const char*, int, mode_t)>("openat");
  va_list resto;
  va_start(resto, modo);
  const mode_t permessi = (modo & (O_CREAT | O_TMPFILE)) ? va_arg(resto, mode_t) : 0;
  va_end(resto);
  return apri(file, modo, [&] { return f(cartella, file, modo, permessi); });
}
int creat(const char* file, mode_t permessi) {
  static auto* const f = vera<int(const char*, mode_t)>("creat");
  return apri(file, O_WRONLY, [&] { return f(file, permessi); });
}
}
