// The user guide as documents beside the program, and the tool that makes them.
#include "attrezzi.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// What is wrong with the frame of a document, or nothing: its beginning, its braces, letters beyond ASCII.
QString difetto(const QByteArray& rtf) {
  if (!rtf.startsWith("{\\rtf1\\ansi")) return u"beginning"_s;
  qsizetype aperte = 0, fine = 0;
  for (qsizetype i = 0; i < rtf.size(); ++i) {
    if (static_cast<uchar>(rtf[i]) > 0x7E) return u"letter beyond ASCII"_s;
    if (rtf[i] == '\\')
      ++i;
    else if (rtf[i] == '{' || rtf[i] == '}')
      aperte += rtf[i] == '{' ? 1 : -1;
    if (aperte == 0 && fine == 0) fine = i + 1;
  }
  return aperte != 0 || rtf.mid(fine) != "\n" ? u"braces"_s : QString();
}

/// The letters of a document as a reader gathers them: \uN? becomes its letter.
QString lettere(const QByteArray& rtf) {
  static const QRegularExpression unicode(u"\\\\u(-?\\d+)\\?"_s);
  QString t = QString::fromLatin1(rtf);
  for (QRegularExpressionMatch m; (m = unicode.match(t)).hasMatch();)
    t.replace(m.capturedStart(), m.capturedLength(), QChar(static_cast<char16_t>(m.captured(1).toInt())));
  return t;
}

struct Prodotto {
  int esito;
  QString errori;
  QByteArray rtf;
};

/// The document that the tool makes of a text.
Prodotto traduci(const QTemporaryDir& cartella, const QByteArray& testo) {
  scrivi(cartella.filePath(u"1.md"_s), testo);
  QProcess p;
  p.start(QStringLiteral(COSTRUTTORE_GUIDA), {cartella.path(), cartella.path()});
  p.waitForFinished();
  return {p.exitCode(), QString::fromUtf8(p.readAllStandardError()), contenuto(cartella.filePath(u"help/1.doc"_s))};
}

}  // namespace

TEST(Guida, EveryDocumentThatTheProgramOpensIsThere) {
  const QString documenti =
      u"help/00_Guida_Premessa help/01_Guida_inizio help/02_Guida_Anagrafica help/03_Guida_DatiPersonali "
      "help/04_Guida_anPatologica help/05_Guida_Antropo help/05_Guida_Antropo_2 help/06_Guida_DiarioAlim "
      "help/07_Guida_SceltAlim help/08_Guida_Elaboraz help/09_Guida_Trattam help/10_Guida_Attività Norme Dietologia"_s;
  for (const QString& nome : documenti.split(u' ')) {
    const QByteArray rtf = contenuto(QStringLiteral(CARTELLA_ARCHIVI) + u'/' + nome + u".doc"_s);
    EXPECT_EQ(difetto(rtf), QString()) << nome.toStdString();
    EXPECT_TRUE(rtf.contains("\\fs36\\b\\cf1 ")) << "a title, " << nome.toStdString();
  }
}

TEST(Guida, SignsOfTheFormatStayLettersAndPicturesFitThePage) {
  QTemporaryDir cartella;
  const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000007d0000003e8");  // 2000 x 1000 pixels
  scrivi(cartella.filePath(u"y.png"_s), png);
  const Prodotto p = traduci(
      cartella, "# È {1}\n\nA\\*b \\\\ **c**\nd\n![Manca](x.png)\n![Sì](y.png)\n- e\n  f\n\n|g|h|\n|---|---|\n|1|2|\n");
  EXPECT_EQ(p.esito, 0);
  EXPECT_TRUE(p.errori.contains(u"1.md:5: warning: picture 'x.png'")) << p.errori.toStdString();
  EXPECT_EQ(difetto(p.rtf), QString());
  const QString t = lettere(p.rtf);
  for (const char* pezzo : {"È \\{1\\}", "A*b \\\\ \\b c\\b0  d\\par", "•\\tab e f\\par", "\\b g\\cell", " 2\\cell"})
    EXPECT_TRUE(t.contains(QString::fromUtf8(pezzo))) << pezzo;
  EXPECT_TRUE(p.rtf.contains("\\picw2000\\pich1000\\picwgoal9638\\pichgoal4819\n" + png.toHex() + "}"));
  EXPECT_FALSE(t.contains(u"Manca"));
}

TEST(Guida, ATextThatWouldComeOutWrongIsRefusedByItsPlace) {
  const std::pair<const char*, const char*> casi[] = {
      {"**a", "without an end"}, {"|a|b|\n|---|---|\n|c|", "more or fewer cells"}, {"#### a", "not understood"}};
  for (const auto& [testo, dice] : casi) {
    QTemporaryDir cartella;
    const Prodotto p = traduci(cartella, "# A\n" + QByteArray(testo) + "\n");
    EXPECT_TRUE(p.esito == 1 && p.errori.contains(u"1.md:") && p.errori.contains(QLatin1StringView(dice)))
        << testo << ": " << p.errori.toStdString();
  }
}
