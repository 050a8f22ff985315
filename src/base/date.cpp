#include "base/date.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QDate data_di(QStringView testo) {
  static const QRegularExpression forma(u"^(\\d{1,2})([/.-])(\\d{1,2})\\2(\\d{4}|\\d{2})$"_s);
  const auto m = forma.match(testo.trimmed().toString());
  if (!m.hasMatch()) return {};
  int anno = m.captured(4).toInt();
  if (m.capturedLength(4) == 2) anno += anno >= 30 ? 1900 : 2000;
  return {anno, m.captured(3).toInt(), m.captured(1).toInt()};
}

QString formato_data_breve() {
  const QLocale l;
  return l.language() == QLocale::Italian ? u"dd/MM/yyyy"_s : l.dateFormat(QLocale::ShortFormat);
}

QString data_breve(QDate data) { return QLocale().toString(data, formato_data_breve()); }
