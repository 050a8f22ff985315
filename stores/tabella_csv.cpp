#include "tabella_csv.h"

#include "base/errori.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

void TabellaCsv::errore(int riga, const QString& colonna, const QString& guasto) const {
  QString dove = u"%1, riga %2"_s.arg(nome).arg(riga);
  if (!colonna.isEmpty()) dove += u", colonna "_s + colonna;
  throw Errore(3274, (dove + u": "_s + guasto).toStdString());
}

TabellaCsv leggi_csv(const QString& file) {
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) throw Errore(53, "Impossibile leggere il file '" + file.toStdString() + "'.");
  TabellaCsv t{QFileInfo(file).fileName(), {}, {}};
  for (int riga = 1; !f.atEnd(); ++riga) {
    QByteArray byte = f.readLine();
    while (byte.endsWith('\n') || byte.endsWith('\r')) byte.chop(1);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString linea = utf8(byte);
    if (utf8.hasError()) t.errore(riga, {}, u"il testo non è UTF-8"_s);
    const QStringList valori = linea.split(u';');
    if (riga == 1) {
      t.colonne = valori;
    } else if (valori.size() != t.colonne.size()) {
      t.errore(riga, {}, u"%1 valori invece di %2"_s.arg(valori.size()).arg(t.colonne.size()));
    } else {
      t.righe.push_back({riga, valori});
    }
  }
  return t;
}
