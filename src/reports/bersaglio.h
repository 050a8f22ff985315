// What a report is written on: a few operations, the same on the preview, on paper and in the tests.
#pragma once

#include <QtGui/qrgb.h>
#include <QString>
#include <QVariant>
#include <concepts>

/// A text cursor over lines and character columns. Column 1 is the left edge; a line wraps at no width.
class Bersaglio {
 public:
  virtual ~Bersaglio() = default;

  /// The cursor goes to the top left corner of the page.
  void all_origine();
  /// Writes at the cursor, which then stands behind the text.
  void scrivi(const QString& testo);
  /// To column n of this line; of the next one where the cursor already stands past it.
  void tab(int n);
  void a_capo();

  virtual void colore(QRgb colore) = 0;
  virtual void sottolinea(bool si) = 0;
  /// Paints the practice's logo at the place that this target has for it.
  virtual void logo() = 0;

 protected:
  /// Width of a text in columns of the font in use.
  [[nodiscard]] virtual double larghezza(const QString& testo) const = 0;
  /// Draws a text; `colonne` from the left edge, `riga` from 0 at the top.
  virtual void dipingi(double colonne, int riga, const QString& testo) = 0;

 private:
  double colonne_ = 0;
  int riga_ = 0;
};

/// An item of a line: where the next one begins.
struct Tab {
  int colonna;
};

/// A number as a report shows it: a blank in front, where the minus would stand, and a blank behind.
[[nodiscard]] QString cifra(double x);

inline void metti(Bersaglio& b, Tab t) { b.tab(t.colonna); }
inline void metti(Bersaglio& b, const QString& testo) { b.scrivi(testo); }
template <class N>
requires std::integral<N> || std::floating_point<N>
void metti(Bersaglio& b, N x) { b.scrivi(cifra(static_cast<double>(x))); }
/// A field of a store: a number as such, a text as it stands, nothing where there is none.
void metti(Bersaglio& b, const QVariant& campo);

/// Items of a line that goes on.
template <class... V>
void pezzo(Bersaglio& b, const V&... voci) {
  (metti(b, voci), ...);
}

/// Items of a line, and its end.
template <class... V>
void riga(Bersaglio& b, const V&... voci) {
  pezzo(b, voci...);
  b.a_capo();
}

void righe_vuote(Bersaglio& b, int quante);
