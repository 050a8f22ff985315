// Structural damage behind a valid key: pages are decrypted, mutated, encrypted and authenticated anew, as an attacker
// would who knows the format. AES-256 in CBC, HMAC-SHA1, 1 KiB pages that end in vector, code and padding.
#include "mutanti.h"

#include <openssl/evp.h>
#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <array>

using namespace Qt::StringLiterals;

namespace mutanti {

namespace {

constexpr qsizetype pagina_byte = 1024, riserva = 48, vettore = 16, codice = 20, sale = 16;

QByteArray hmac(const QByteArray& dati, const QByteArray& chiave) {
  return QMessageAuthenticationCode::hash(dati, chiave, QCryptographicHash::Sha1);
}

/// The key of the pages, as `base/archivio.cpp` derives it from the connect string.
const QByteArray& chiave() {
  static const QByteArray k = QCryptographicHash::hash("orzaline\npescara74", QCryptographicHash::Sha256);
  return k;
}

/// Key of the codes: two rounds of PBKDF2 over the file's salt with every byte turned.
QByteArray chiave_dei_codici(QByteArray sale_del_file) {
  for (char& b : sale_del_file) b = static_cast<char>(b ^ 0x3a);
  QByteArray k;
  for (const char blocco : {'\1', '\2'}) {
    const QByteArray primo = hmac(sale_del_file + QByteArray("\0\0\0", 3) + blocco, chiave());
    QByteArray secondo = hmac(primo, chiave());
    for (qsizetype i = 0; i < secondo.size(); ++i) secondo[i] = static_cast<char>(secondo[i] ^ primo[i]);
    k += secondo;
  }
  return k.first(32);
}

QByteArray aes(const QByteArray& dati, const QByteArray& iv, bool cifra) {
  const auto byte = [](const QByteArray& b) { return reinterpret_cast<const unsigned char*>(b.constData()); };
  QByteArray esito(dati.size() + 32, '\0');
  int fatti = 0;
  EVP_CIPHER_CTX* c = EVP_CIPHER_CTX_new();
  EVP_CipherInit_ex(c, EVP_aes_256_cbc(), nullptr, byte(chiave()), byte(iv), cifra ? 1 : 0);
  EVP_CIPHER_CTX_set_padding(c, 0);
  EVP_CipherUpdate(c, reinterpret_cast<unsigned char*>(esito.data()), &fatti, byte(dati),
                   static_cast<int>(dati.size()));
  EVP_CIPHER_CTX_free(c);
  return esito.first(fatti);
}

/// A client's file with its pages in plain; pages count from 0 here. The first one keeps the salt in its first bytes.
class Immagine {
 public:
  explicit Immagine(QByteArray file) : file_(std::move(file)), codici_(chiave_dei_codici(file_.first(sale))) {}

  [[nodiscard]] qsizetype quante() const { return file_.size() / pagina_byte; }
  [[nodiscard]] QByteArray in_chiaro(qsizetype n) const {
    const qsizetype da = inizio(n), fine = (n + 1) * pagina_byte - riserva;
    return aes(file_.mid(da, fine - da), file_.mid(fine, vettore), false);
  }
  void cifra(qsizetype n, const QByteArray& chiaro) {
    const qsizetype da = inizio(n), fine = (n + 1) * pagina_byte - riserva;
    const QByteArray iv = file_.mid(fine, vettore);
    const QByteArray cifrato = aes(chiaro, iv, true) + iv;
    const auto numero = static_cast<quint32>(n + 1);
    const QByteArray numero_byte(reinterpret_cast<const char*>(&numero), sizeof numero);
    file_.replace(da, cifrato.size(), cifrato);
    file_.replace(fine + vettore, codice, hmac(cifrato + numero_byte, codici_));
  }
  [[nodiscard]] const QByteArray& file() const { return file_; }
  /// Where the content of a page begins in the file; what stands before it in the first page is the salt.
  static qsizetype inizio(qsizetype n) { return n == 0 ? sale : n * pagina_byte; }

 private:
  QByteArray file_, codici_;
};

/// Bytes of a page in plain with its offsets as the format counts them.
struct Pagina {
  QByteArray d;
  qsizetype spostamento;  // 16 in the first page, whose salt is not in plain
  qsizetype testata;      // where the tree's header begins: after the file's own in the first page

  void byte(qsizetype dove, qsizetype v) {
    const qsizetype i = dove - spostamento;
    if (i >= 0 && i < d.size()) d[i] = static_cast<char>(v);
  }
  void due(qsizetype dove, qsizetype v) {
    byte(dove, v >> 8);
    byte(dove + 1, v & 0xff);
  }
  void quattro(qsizetype dove, qsizetype v) {
    due(dove, v >> 16);
    due(dove + 2, v & 0xffff);
  }
  [[nodiscard]] qsizetype due(qsizetype dove) const {
    const qsizetype i = dove - spostamento;
    if (i < 0 || i + 1 >= d.size()) return 0;
    return (static_cast<unsigned char>(d[i]) << 8) | static_cast<unsigned char>(d[i + 1]);
  }
  [[nodiscard]] qsizetype celle() const { return due(testata + 3); }
  [[nodiscard]] qsizetype cella(Caso& c) const { return celle() == 0 ? 0 : due(testata + 8 + 2 * c.sotto(celle())); }
};

constexpr std::array<qsizetype, 10> estremi{0, 1, 2, 5, 0x7f, 0x80, 0xff, 0x7fff, 0xffff, 0x7fffffff};

using Danno = void (*)(Caso&, Pagina&, qsizetype pagine);

constexpr std::array<Danno, 12> danni{
    [](Caso& c, Pagina& p, qsizetype) {
      p.byte(p.testata, c.uno_di(std::array{0, 2, 5, 10, 13, 255}));
    },
    [](Caso& c, Pagina& p, qsizetype) { p.due(p.testata + 1, c.sotto(pagina_byte)); },  // first free block
    [](Caso& c, Pagina& p, qsizetype) { p.due(p.testata + 3, p.celle() + c.sotto(5) - 2); },
    [](Caso& c, Pagina& p, qsizetype) { p.due(p.testata + 3, c.uno_di(estremi)); },
    [](Caso& c, Pagina& p, qsizetype) { p.due(p.testata + 5, c.sotto(2 * pagina_byte)); },  // where the cells begin
    [](Caso& c, Pagina& p, qsizetype pagine) { p.quattro(p.testata + 8, c.sotto(pagine + 3)); },  // right-most child
    [](Caso& c, Pagina& p, qsizetype) {                                                           // a cell elsewhere
      p.due(p.testata + 8 + 2 * c.sotto(std::max<qsizetype>(1, p.celle())), c.sotto(pagina_byte + 100));
    },
    [](Caso& c, Pagina& p, qsizetype) {  // head of a cell: lengths, row number, types of the values
      const qsizetype cella = p.cella(c);
      for (auto n = c.sotto(4) + 1; n > 0; --n) p.byte(cella + c.sotto(14), c.uno_di(estremi));
    },
    [](Caso& c, Pagina& p, qsizetype) {  // a length of nine bytes
      const qsizetype cella = p.cella(c);
      for (qsizetype i = 0; i < 9; ++i) p.byte(cella + i, 0xff);
    },
    [](Caso& c, Pagina& p, qsizetype pagine) { p.quattro(p.cella(c), c.sotto(pagine + 3)); },  // child, or a length
    [](Caso& c, Pagina& p, qsizetype) {
      for (auto n = c.sotto(20) + 1; n > 0; --n) p.byte(c.sotto(pagina_byte), c.sotto(256));
    },
    [](Caso& c, Pagina& p, qsizetype) { p.byte(c.sotto(pagina_byte), c.uno_di(estremi)); },
};

/// The file's own header: page size, formats, size, free list, schema's cookie, encoding.
void guasta_testata(Caso& c, Pagina& p, qsizetype pagine) {
  constexpr std::array<qsizetype, 14> campi{16, 18, 19, 20, 21, 24, 28, 32, 36, 40, 44, 52, 56, 64};
  const qsizetype dove = c.uno_di(campi);
  if (c.uno_su(2)) return p.byte(dove, c.sotto(256));
  p.quattro(dove, c.uno_su(2) ? c.sotto(pagine + 2) : c.uno_di(estremi));
}

/// The text of the schema: the name of a kind, a letter of a name, a root page.
void guasta_schema(Caso& c, Pagina& p) {
  constexpr std::array<std::array<const char*, 2>, 8> scambi{{{"CREATE TABLE", "CREATE  VIEW"},
                                                              {"CREATE TABLE", "DELETE FROM "},
                                                              {"INTEGER", "CHECK(1"},
                                                              {"COLLATE NOCASE", "COLLATE RTRIMX"},
                                                              {"COLLATE NOCASE", "PRIMARY KEY   "},
                                                              {"table", "index"},
                                                              {"TEXT", "BLOB"},
                                                              {"cod", "\xff\0d"}}};
  const auto& s = c.uno_di(scambi);
  const QByteArray da(s[0]);
  qsizetype dove = p.d.indexOf(da, c.sotto(p.d.size()));
  if (dove < 0) dove = p.d.indexOf(da);
  if (dove >= 0) p.d.replace(dove, da.size(), s[1], da.size());
}

void guasta(Caso& c, Immagine& i) {
  const bool nello_schema = c.uno_su(4);
  const qsizetype n = nello_schema ? c.sotto(std::min<qsizetype>(8, i.quante())) : c.sotto(i.quante());
  Pagina p{i.in_chiaro(n), n == 0 ? sale : 0, n == 0 ? 100 : 0};
  if (n == 0 && c.uno_su(2)) {
    guasta_testata(c, p, i.quante());
  } else if (nello_schema && c.uno_su(2)) {
    guasta_schema(c, p);
  } else if (c.uno_su(12) && n > 0) {  // another page's content
    const QByteArray altra = i.in_chiaro(c.sotto(i.quante() - 1) + 1);
    p.d = altra;
  } else {
    c.uno_di(danni)(c, p, i.quante());
  }
  i.cifra(n, p.d);
}

}  // namespace

QByteArray pagina(Caso& caso, const QByteArray& cliente) {
  Immagine i(cliente);
  for (auto n = caso.uno_su(3) ? caso.sotto(4) + 1 : 1; n > 0; --n) guasta(caso, i);
  return i.file();
}

QByteArray in_chiaro(const QByteArray& cliente) {
  const Immagine i(cliente);
  QByteArray tutto = QByteArray("SQLite format 3\0", sale);
  for (qsizetype n = 0; n < i.quante(); ++n) tutto += i.in_chiaro(n) + QByteArray(riserva, '\0');
  return tutto;
}

}  // namespace mutanti
