// Makes the placeable metafiles that lie beside the program from the drawings of a folder:
//   costruttore_wmf <folder of .svg> <folder of the program>
// It knows the few shapes that the drawings use and refuses everything else, so that no stroke gets lost unseen.
#include <QDir>
#include <QHash>
#include <QPointF>
#include <QRegularExpression>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <cmath>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using Punti = QList<QPointF>;
using Parole = QList<qint64>;  // 16-bit words of a file; higher bits are cut off

[[noreturn]] void rifiuta(const QString& cosa) { throw std::runtime_error(cosa.toStdString()); }

/// How a shape is drawn; colours are 0xBBGGRR, -1 for none.
struct Stile {
  qint64 tratto = -1, fondo = 0;
  double spessore = 1;
};

QByteArray in_byte(const Parole& parole) {
  QByteArray b;
  for (const qint64 p : parole) b.append(static_cast<char>(p & 0xFF)).append(static_cast<char>(p >> 8 & 0xFF));
  return b;
}

/// Pixels of 1/96 inch as the file's units, twips.
qint64 twip(double pixel) {
  const double t = std::round(pixel * 15);
  if (!(std::abs(t) < 32768)) rifiuta(u"coordinate out of range"_s);
  return static_cast<qint64>(t);
}

class Metafile {
 public:
  Metafile(double larghezza, double altezza) : largo(twip(larghezza)), alto(twip(altezza)) {
    record(0x001E, {});             // SaveDC
    record(0x020B, {0, 0});         // SetWindowOrg
    record(0x020C, {alto, largo});  // SetWindowExt
  }

  void usa(const Stile& s) {
    scegli(0x02FA, s.tratto < 0 ? Parole{5, 0, 0, 0, 0} : Parole{0, twip(s.spessore), 0, s.tratto, s.tratto >> 16});
    scegli(0x02FC, s.fondo < 0 ? Parole{1, 0, 0, 0} : Parole{0, s.fondo, s.fondo >> 16, 0});
    pieno = s.fondo >= 0;
  }
  void linea(const Punti& punti, bool chiusa) {
    if (punti.size() < 2) return;
    if (pieno && !chiusa) rifiuta(u"an open line cannot be filled"_s);
    Parole parole{punti.size()};
    for (const QPointF& p : punti) parole << twip(p.x()) << twip(p.y());
    record(chiusa ? 0x0324 : 0x0325, parole);  // Polygon, Polyline
  }
  void rettangolo(double x, double y, double l, double a) { riquadro(0x041B, x, y, x + l, y + a); }
  void ellisse(double x, double y, double rx, double ry) { riquadro(0x0418, x - rx, y - ry, x + rx, y + ry); }

  QByteArray chiudi() {
    record(0x0127, {-1});  // RestoreDC: an object in use must not be deleted
    for (qint64 i = 0; i < oggetti.size(); ++i) record(0x01F0, {i});
    record(0, {});
    Parole testa{0xCDD7, 0x9AC6, 0, 0, 0, largo, alto, 1440, 0, 0};
    qint64 somma = 0;
    for (const qint64 p : testa) somma ^= p;
    const qint64 parole = 9 + ordini.size() / 2;
    testa += {somma, 1, 9, 0x0300, parole, parole >> 16, oggetti.size(), maggiore, maggiore >> 16, 0};
    return in_byte(testa) + ordini;
  }

 private:
  void record(qint64 funzione, const Parole& parole) {
    const qint64 lungo = 3 + parole.size();
    ordini += in_byte(Parole{lungo, lungo >> 16, funzione} + parole);
    maggiore = std::max(maggiore, lungo);
  }
  void riquadro(qint64 forma, double x1, double y1, double x2, double y2) {
    record(forma, {twip(y2), twip(x2), twip(y1), twip(x1)});
  }
  /// Pens and brushes are made once and stay to the end, so that their places in the file's table never move.
  void scegli(qint64 crea, const Parole& parole) {
    const Parole chiave = Parole{crea} + parole;
    if (!oggetti.contains(chiave)) {
      record(crea, parole);
      oggetti.insert(chiave, oggetti.size());
    }
    record(0x012D, {oggetti.value(chiave)});  // SelectObject
  }

  qint64 largo, alto, maggiore = 0;
  bool pieno = false;
  QByteArray ordini;
  QHash<Parole, qint64> oggetti;
};

QList<double> numeri(const QString& testo) {
  static const QRegularExpression separatori(u"[\\s,]+"_s);
  QList<double> elenco;
  for (const QString& t : testo.split(separatori, Qt::SkipEmptyParts)) {
    bool bene = false;
    elenco << t.toDouble(&bene);
    if (!bene) rifiuta(u"not a number: '%1'"_s.arg(t));
  }
  return elenco;
}

Punti coppie(const QString& testo) {
  const QList<double> valori = numeri(testo);
  if (valori.isEmpty() || valori.size() % 2 != 0) rifiuta(u"points come in pairs"_s);
  Punti punti;
  for (qsizetype i = 0; i < valori.size(); i += 2) punti << QPointF(valori[i], valori[i + 1]);
  return punti;
}

qint64 colore(const QString& testo) {
  if (testo == u"none") return -1;
  bool bene = false;
  const uint rgb = testo.mid(1).toUInt(&bene, 16);
  if (!bene || testo.size() != 7) rifiuta(u"not a colour: '%1'"_s.arg(testo));
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

/// A cubic curve from the line's last point, as short straight pieces.
void curva(Punti& linea, const Punti& c) {
  const QPointF da = linea.last();
  for (int i = 1; i <= 16; ++i) {
    const double t = i / 16.0, u = 1 - t;
    linea << u * u * u * da + 3 * u * u * t * c[0] + 3 * u * t * t * c[1] + t * t * t * c[2];
  }
}

void percorso(Metafile& m, const QString& d) {
  static const QRegularExpression passi(u"([A-Za-z])([^A-Za-z]*)"_s);
  Punti linea;
  for (const auto& passo : passi.globalMatch(d)) {
    const QString ordine = passo.captured(1);
    const Punti punti = ordine == u"Z" ? Punti() : coppie(passo.captured(2));
    if (ordine == u"M") {
      m.linea(std::exchange(linea, punti), false);
    } else if (linea.isEmpty()) {
      rifiuta(u"a path begins with M"_s);
    } else if (ordine == u"Z") {
      m.linea(std::exchange(linea, {}), true);
    } else if (ordine == u"L") {
      linea += punti;
    } else if (ordine == u"C" && punti.size() % 3 == 0) {
      for (qsizetype i = 0; i < punti.size(); i += 3) curva(linea, punti.mid(i, 3));
    } else {
      rifiuta(u"path order '%1'"_s.arg(passo.captured()));
    }
  }
  m.linea(linea, false);
}

/// The attributes that give the shape of an element; none for what is not known.
QStringList misure_di(const QString& nome) {
  static const QHash<QString, QString> forme{{u"rect"_s, u"x y width height"_s},
                                             {u"circle"_s, u"cx cy r"_s},
                                             {u"ellipse"_s, u"cx cy rx ry"_s},
                                             {u"line"_s, u"x1 y1 x2 y2"_s},
                                             {u"polyline"_s, u"points"_s},
                                             {u"polygon"_s, u"points"_s},
                                             {u"path"_s, u"d"_s}};
  return forme.value(nome).split(u' ', Qt::SkipEmptyParts);
}

void disegna(Metafile& m, const QString& nome, const QStringList& misure, const QXmlStreamAttributes& attributi) {
  QString valori;
  for (const QString& misura : misure) valori.append(attributi.value(misura)).append(u' ');
  if (nome == u"path") return percorso(m, valori);
  if (nome == u"line" || misure.size() == 1) return m.linea(coppie(valori), nome == u"polygon");
  const QList<double> v = numeri(valori);
  if (v.size() != misure.size()) rifiuta(u"'%1' lacks a measure"_s.arg(nome));
  nome == u"rect" ? m.rettangolo(v[0], v[1], v[2], v[3]) : m.ellisse(v[0], v[1], v[2], v.last());
}

/// What an element draws with: what it inherits, changed by its own attributes.
Stile stile_di(const QXmlStreamAttributes& attributi, const QStringList& misure, Stile s) {
  for (const QXmlStreamAttribute& a : attributi) {
    const QString chiave = a.name().toString(), valore = a.value().toString();
    if (chiave == u"fill" || chiave == u"stroke")
      (chiave == u"fill" ? s.fondo : s.tratto) = colore(valore);
    else if (chiave == u"stroke-width")
      s.spessore = numeri(valore).value(0);
    else if (!misure.contains(chiave) && (!chiave.startsWith(u"stroke-line") || valore != u"round"))
      rifiuta(u"attribute '%1'"_s.arg(a.qualifiedName()));
  }
  return s;
}

void leggi_contenuto(QXmlStreamReader& xml, Metafile& m, const Stile& ereditato) {
  while (xml.readNextStartElement()) {
    const QString nome = xml.name().toString();
    const QStringList misure = misure_di(nome);
    if (misure.isEmpty() && nome != u"g") rifiuta(u"element '%1'"_s.arg(nome));
    const QXmlStreamAttributes attributi = xml.attributes();
    const Stile s = stile_di(attributi, misure, ereditato);
    if (misure.isEmpty()) {
      leggi_contenuto(xml, m, s);
    } else {
      m.usa(s);
      disegna(m, nome, misure, attributi);
      xml.skipCurrentElement();
    }
  }
}

QByteArray converti(const QString& file) {
  QFile disegno(file);
  if (!disegno.open(QIODevice::ReadOnly)) rifiuta(file + u": "_s + disegno.errorString());
  QXmlStreamReader xml(&disegno);
  try {
    xml.readNextStartElement();
    const QList<double> vista = numeri(xml.attributes().value(u"viewBox"_s).toString());
    if (vista.size() != 4 || vista[0] != 0 || vista[1] != 0) rifiuta(u"a viewBox that begins at 0 0 is needed"_s);
    Metafile m(vista[2], vista[3]);
    leggi_contenuto(xml, m, {});
    if (xml.hasError()) rifiuta(xml.errorString());
    return m.chiudi();
  } catch (const std::exception& e) {
    rifiuta(u"%1:%2: %3"_s.arg(file).arg(xml.lineNumber()).arg(QString::fromUtf8(e.what())));
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 3) rifiuta(u"uso: costruttore_wmf <cartella dei .svg> <cartella del programma>"_s);
    QDir().mkpath(QFile::decodeName(argv[2]));
    for (const QFileInfo& f : QDir(QFile::decodeName(argv[1])).entryInfoList({u"*.svg"_s}, QDir::Files)) {
      const QByteArray dati = converti(f.filePath());
      QSaveFile figura(QDir(QFile::decodeName(argv[2])).filePath(f.completeBaseName() + u".WMF"_s));
      if (!figura.open(QIODevice::WriteOnly) || figura.write(dati) != dati.size() || !figura.commit())
        rifiuta(figura.fileName() + u": "_s + figura.errorString());
    }
    return 0;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "costruttore_wmf: %s\n", e.what());
    return 1;
  }
}
