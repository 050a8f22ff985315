#include "base/numeri.h"

#include "base/errori.h"

#include <QLocale>
#include <QRegularExpression>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <optional>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

/// The text with the locale's signs turned into C's, or empty where it is no number.
QByteArray in_forma_c(QStringView testo) {
  static const QRegularExpression numero(u"^[+-]?(\\d+\\.?\\d*|\\.\\d+)$"_s);
  QString t = testo.trimmed().toString();
  const QLocale locale;
  if (locale.groupSeparator() != u" "_s) t.remove(locale.groupSeparator());
  t.replace(locale.decimalPoint(), u"."_s);
  return numero.match(t).hasMatch() ? t.toLatin1() : QByteArray();
}

/// The number a text stands for; none where it is no number, or one that no double holds.
std::optional<double> numero_di(QStringView testo) {
  QByteArray c = in_forma_c(testo);
  if (c.isEmpty()) return {};
  if (c.startsWith('+')) c.remove(0, 1);
  double x = 0;
  if (std::from_chars(c.constData(), c.constData() + c.size(), x).ec != std::errc()) return {};
  return x;
}

/// Sign, significant digits and decimal exponent of a number cut to `cifre` digits.
struct Decimale {
  bool negativo;
  QByteArray cifre;
  int esponente;  // value = 0.cifre x 10^esponente
};

Decimale decimale(double x, int cifre) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.*e", cifre - 1, std::fabs(x));
  QByteArray t(buffer);
  const int e = static_cast<int>(t.indexOf('e'));
  QByteArray c = t.left(e);
  c.remove(1, 1);
  return {std::signbit(x), c, t.mid(e + 1).toInt() + 1};
}

/// Rounds half away from zero after `decimali` places, on the digits themselves.
void arrotonda(Decimale& d, int decimali) {
  const int tenute = d.esponente + decimali;
  if (tenute >= d.cifre.size()) return;
  const bool su = tenute >= 0 && d.cifre[tenute] >= '5';
  d.cifre.truncate(std::max(tenute, 0));
  if (!su) return;
  int i = static_cast<int>(d.cifre.size()) - 1;
  while (i >= 0 && d.cifre[i] == '9') d.cifre[i--] = '0';
  if (i >= 0) {
    ++d.cifre[i];
  } else {
    d.cifre.prepend('1');
    ++d.esponente;
  }
}

QString scrivi(const Decimale& d, int decimali, bool zero_iniziale) {
  QByteArray intero, frazione;
  for (int posto = d.esponente; posto > -decimali; --posto) {
    const int i = d.esponente - posto;
    const char c = i < d.cifre.size() ? d.cifre[i] : '0';
    (posto > 0 ? intero : frazione).append(c);
  }
  while (frazione.size() < decimali) frazione.prepend('0');
  if (intero.isEmpty() && zero_iniziale) intero = "0";
  const bool nullo = intero.count('0') == intero.size() && frazione.count('0') == frazione.size();
  QString t = QString::fromLatin1(intero);
  if (decimali > 0) t += QLocale().decimalPoint() + QString::fromLatin1(frazione);
  return d.negativo && !nullo ? u"-"_s + t : t;
}

QString formatta(double x, const char* forma, int cifre) {
  const char* punto = std::strchr(forma, '.');
  const int decimali = punto ? static_cast<int>(std::strlen(punto + 1)) : 0;
  Decimale d = decimale(x, cifre);
  if (x == 0) d = {false, "", 0};
  arrotonda(d, decimali);
  return scrivi(d, decimali, forma[0] == '0');
}

QString testo_semplice(double x, int cifre) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.*g", cifre, x + 0.0);  // a zero has no minus sign
  return QString::fromLatin1(buffer).replace(u'.', QLocale().decimalPoint());
}

}  // namespace

bool numerico(QStringView testo) { return numero_di(testo).has_value(); }

double valore(QStringView testo) {
  const auto x = numero_di(testo);
  if (!x) throw Errore(13, "Tipo non corrispondente");
  return *x;
}

std::int16_t round16(double x) {
  const double r = std::nearbyint(x);
  using Limiti = std::numeric_limits<std::int16_t>;
  if (!(r >= Limiti::min() && r <= Limiti::max())) throw Errore(6, "Overflow");
  return static_cast<std::int16_t>(r);
}

QString fmt(double x, const char* forma) { return formatta(x, forma, 15); }
QString fmt(float x, const char* forma) { return formatta(static_cast<double>(x), forma, 7); }
QString testo(double x) { return testo_semplice(x, 15); }
QString testo(float x) { return testo_semplice(static_cast<double>(x), 7); }
