#include "riempimento.h"

#include "base/errori.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

enum class Tipo { testo, intero, numero };

struct Campo {
  QString nome;
  Tipo tipo;
  bool nullo;
  qsizetype posto;  // in the rows of the text
};

std::vector<Campo> campi_di(Archivio& archivio, const QString& tabella, const TabellaCsv& csv,
                            const QString& porzione) {
  std::vector<Campo> campi;
  for (const Riga& r : archivio.righe(u"PRAGMA table_info(%1)"_s.arg(tabella))) {
    const QString nome = r[u"name"].toString();
    const QString tipo = r[u"type"].toString();
    const QString colonna = nome == u"quantità"_s ? porzione : nome;
    campi.push_back({nome,
                     tipo == u"INTEGER"_s ? Tipo::intero
                     : tipo == u"REAL"_s  ? Tipo::numero
                                          : Tipo::testo,
                     r[u"notnull"].toInt() == 0 && r[u"pk"].toInt() == 0, csv.colonne.indexOf(colonna)});
    if (campi.back().posto < 0) csv.errore(1, colonna, u"la colonna manca"_s);
  }
  return campi;
}

/// Null for a text that is no number of that type. The tables keep a decimal point whatever the user's locale.
QVariant numero_di(const QString& testo, Tipo tipo) {
  static const QRegularExpression intero(u"^-?\\d{1,9}$"_s), numero(u"^-?\\d{1,9}(\\.\\d+)?$"_s);
  if (!(tipo == Tipo::intero ? intero : numero).match(testo).hasMatch()) return {};
  return tipo == Tipo::intero ? QVariant(testo.toInt()) : QVariant(testo.toDouble());
}

QVariant valore_di(const Campo& c, const TabellaCsv::Riga& riga, const TabellaCsv& csv) {
  const QString& testo = riga.valori[c.posto];
  if (testo.isEmpty() && c.nullo) return {};
  if (c.tipo == Tipo::testo) return testo;
  const QVariant n = numero_di(testo, c.tipo);
  if (n.isNull()) {
    csv.errore(
        riga.numero, csv.colonne[c.posto],
        u"«%1» non è un numero%2"_s.arg(testo, c.tipo == Tipo::intero ? u" intero"_s : u" (col punto decimale)"_s));
  }
  return n;
}

}  // namespace

void riempi(Archivio& archivio, const QString& tabella, const TabellaCsv& csv, const QString& porzione) {
  const std::vector<Campo> campi = campi_di(archivio, tabella, csv, porzione);
  QStringList nomi, segni;
  for (const Campo& c : campi) {
    nomi << c.nome;
    segni << u"?"_s;
  }
  const QString sql = u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(tabella, nomi.join(u','), segni.join(u','));
  for (const TabellaCsv::Riga& riga : csv.righe) {
    QVariantList valori;
    for (const Campo& c : campi) valori << valore_di(c, riga, csv);
    try {
      archivio.esegui_con(sql, valori);
    } catch (const Errore& e) {
      csv.errore(riga.numero, {}, QString::fromStdString(e.what()));
    }
  }
}
