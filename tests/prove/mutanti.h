// Damaged and hostile client files, each made from its number alone, so that any of them can be had again.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <random>
#include <vector>

namespace mutanti {

/// The kinds, from the cheapest attacker to the one who knows the format of the pages.
enum Genere : int { grezzi, contenuti, pagine, generi };

/// Draws that depend on the seed alone; the standard's distributions would differ from library to library.
class Caso {
 public:
  explicit Caso(std::uint64_t seme) : motore_(seme * 0x9E3779B97F4A7C15ULL + 1) {}
  /// 0 to n - 1
  qsizetype sotto(qsizetype n) { return static_cast<qsizetype>(motore_() % static_cast<std::uint64_t>(n)); }
  bool uno_su(qsizetype n) { return sotto(n) == 0; }
  template <class C>
  const auto& uno_di(const C& c) {
    return c[sotto(static_cast<qsizetype>(std::size(c)))];
  }

 private:
  std::mt19937_64 motore_;
};

/// What mutants are made of: the sample clients, and stores that are no client's.
struct Origini {
  std::vector<QByteArray> clienti, estranei;
};

QByteArray leggi(const QString& file);
void scrivi(const QString& file, const QByteArray& dati);

/// Raw bytes of the encrypted file, and things in the file system that are no file.
void grezzo(Caso& caso, const Origini& origini, const QString& file);

/// Contents behind the valid key. The statements that make a mutant; those that the engine refuses are passed over.
QStringList contenuto(Caso& caso);
void esegui_copione(const QByteArray& cliente, const QStringList& istruzioni, const QString& file);

/// Damage of the decrypted pages, encrypted and authenticated anew.
QByteArray pagina(Caso& caso, const QByteArray& cliente);
/// The whole image in plain, as a database that asks for no key.
QByteArray in_chiaro(const QByteArray& cliente);

}  // namespace mutanti
