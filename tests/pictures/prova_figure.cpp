// The pictures of the activities as metafiles beside the program, and the tool that makes them.
#include "assessment/attivita_sportive.h"
#include "attrezzi.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

/// Words of 16 bits of a file, 0 behind its end.
struct Parole {
  QByteArray dati;

  qsizetype numero() const { return dati.size() / 2; }
  quint32 a16(qsizetype i) const { return i < numero() ? qFromLittleEndian<quint16>(dati.constData() + 2 * i) : 0; }
  quint32 a32(qsizetype i) const { return a16(i) | a16(i + 1) << 16; }
};

/// Walks the records from the first to the one that ends the file; says what is wrong, or nothing.
QString difetto(const Parole& f) {
  quint32 somma = 0, maggiore = 0, oggetti = 0;
  for (int i = 0; i < 11; ++i) somma ^= f.a16(i);
  if (f.a32(0) != 0x9AC6CDD7 || somma != 0) return u"placeable header"_s;
  if (f.a16(5) != f.a16(6) || f.a16(5) != f.a16(7)) return u"not 96 pixels square"_s;
  if (f.a16(11) != 1 || f.a16(12) != 9 || f.a16(13) != 0x0300) return u"header"_s;
  if (f.a32(14) != f.numero() - 11) return u"size of the file"_s;
  qsizetype i = 20;
  for (quint32 lungo = 0; i < f.numero(); i += lungo) {
    lungo = f.a32(i);
    maggiore = std::max(maggiore, lungo);
    const quint32 funzione = f.a16(i + 2), punti = f.a16(i + 3);
    if (funzione == 0)
      return lungo != 3 || i + 3 != f.numero()               ? u"end"_s
             : maggiore != f.a32(17) || oggetti != f.a16(16) ? u"counts of the header"_s
                                                             : QString();
    if (lungo < 3) return u"empty record"_s;
    if ((funzione == 0x0324 || funzione == 0x0325) && lungo != 4 + 2 * punti) return u"number of points"_s;
    if (funzione == 0x012D && punti >= oggetti) return u"selects what is not made yet"_s;
    if (funzione == 0x02FA || funzione == 0x02FC) ++oggetti;
  }
  return u"no end"_s;
}

}  // namespace

TEST(Figure, EveryActivityHasAWholeMetafile) {
  const QDir programma(QStringLiteral(CARTELLA_ARCHIVI));
  const QStringList posate = programma.entryList({u"*.WMF"_s});
  for (const AttivitàSportiva& a : attività_sportive()) {
    const QString file = a.figura.toString();  // letter by letter, whatever the file system thinks of case
    EXPECT_TRUE(posate.contains(file)) << file.toStdString();
    EXPECT_EQ(difetto({contenuto(programma.filePath(file))}), QString()) << file.toStdString();
  }
}

TEST(Figure, ADrawingThatWouldLoseAStrokeIsRefusedByItsPlace) {
  const std::pair<const char*, const char*> casi[] = {{"<path d='M1 1 Q2 2 4 4'/>", "path order"},
                                                      {"<path d='L1 1 Z'/>", "begins with M"},
                                                      {"<text>x</text>", "element 'text'"},
                                                      {"<g transform='scale(2)'/>", "'transform'"},
                                                      {"<rect x='1' y='1' width='2'/>", "lacks a measure"},
                                                      {"<polyline fill='#000000' points='1,1 2,2'/>", "open line"},
                                                      {"<circle cx='1' cy='1' r='9999'/>", "out of range"},
                                                      {"<g>", "mismatch"}};
  for (const auto& [corpo, dice] : casi) {
    QTemporaryDir cartella;
    scrivi(cartella.filePath(u"a.svg"_s), "<svg viewBox='0 0 9 9'>\n" + QByteArray(corpo) + "\n</svg>");
    QProcess p;
    p.start(QStringLiteral(COSTRUTTORE_WMF), {cartella.path(), cartella.path()});
    ASSERT_TRUE(p.waitForFinished());
    const QString errore = QString::fromUtf8(p.readAllStandardError());
    EXPECT_TRUE(p.exitCode() == 1 && errore.contains(u"a.svg:") && errore.contains(QLatin1StringView(dice)))
        << corpo << ": " << errore.toStdString();
    EXPECT_FALSE(QFile::exists(cartella.filePath(u"a.WMF"_s))) << corpo;
  }
}
