// Makes the documents of the help from the texts of a folder:
//   costruttore_guida <folder of .md> <folder of the program>
// Names that begin with a digit become help/NAME.doc, the others NAME.doc beside the program. The documents are RTF:
// every word processor opens it, whatever the name. The texts may use headings, paragraphs, lists, notes, tables,
// pictures, bold and italics; the rest is refused by file and line.
#include <QDir>
#include <QRegularExpression>
#include <QSaveFile>
#include <QtEndian>
#include <cstdio>
#include <numeric>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza = 9638;  // twips of text on an A4 page with margins of 2 cm
constexpr int twip_per_pixel = 15, twip_per_lettera = 112, twip_per_cella = 190;

/// What begins a document, up to its title; fonts, colours and styles that the paragraphs below name by number.
constexpr const char* apertura = R"({\rtf1\ansi\ansicpg1252\uc1\deff0\deflang1040
{\fonttbl{\f0\fswiss\fcharset0 Arial;}}
{\colortbl;\red31\green94\blue72;\red110\green120\blue115;\red226\green236\blue230;}
{\stylesheet{\s0\f0\fs21 Normal;}{\s1\sbasedon0\snext0\f0\fs36\b heading 1;}
{\s2\sbasedon0\snext0\f0\fs27\b heading 2;}{\s3\sbasedon0\snext0\f0\fs22\b heading 3;}}
{\info{\title )";
constexpr const char* pagina = R"(}}
\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134
{\footer\pard\plain\qc\f0\fs16\cf2 )";
constexpr const char* stili_titolo[] = {R"(\s1\outlinelevel0\keepn\sa240\f0\fs36\b\cf1 )",
                                        R"(\s2\outlinelevel1\keepn\sb320\sa120\f0\fs27\b\cf1 )",
                                        R"(\s3\outlinelevel2\keepn\sb200\sa80\f0\fs22\b )"};
constexpr const char* stile_testo = R"(\s0\sa140\sl264\slmult1\f0\fs21 )";
/// Signs and numbers of lists are text: every reader shows them alike, and a list never counts on from another.
constexpr const char* stile_elenco = R"(\s0\fi-340\li624\tx624\sa80\sl264\slmult1\f0\fs21 )";
constexpr const char* stile_nota = R"(\s0\li284\ri284\brdrl\brdrs\brdrw45\brsp120\brdrcf1\sa160\f0\fs21 )";
constexpr const char* stile_figura = R"(\s0\qc\keepn\sb120\sa60\f0\fs21 )";
constexpr const char* stile_didascalia = R"(\s0\qc\sa200\f0\fs18\i\cf2 )";
constexpr const char* stile_cella = R"(\intbl\sb50\sa50\f0\fs19 )";

[[noreturn]] void rifiuta(const QString& cosa) { throw std::runtime_error(cosa.toStdString()); }

QByteArray contenuto(const QString& file) {
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) rifiuta(file + u": "_s + f.errorString());
  return f.readAll();
}

/// A letter behind \uN counts as 16 bits with a sign; the question mark is for readers that do not know it.
QByteArray segno(QChar c) {
  if (c == u'\\' || c == u'{' || c == u'}') return QByteArray("\\") + c.toLatin1();
  if (c.unicode() >= 0x20 && c.unicode() < 0x7F) return QByteArray(1, c.toLatin1());
  return "\\u" + QByteArray::number(static_cast<qint16>(c.unicode())) + '?';
}

/// A text with its bold and italic parts; a backslash takes the meaning from the sign behind it.
QByteArray scritto(const QString& testo) {
  QByteArray b;
  bool grassetto = false, corsivo = false;
  for (qsizetype i = 0; i < testo.size(); ++i) {
    if (testo[i] == u'\\' && i + 1 < testo.size()) {
      b += segno(testo[++i]);
    } else if (testo[i] != u'*') {
      b += segno(testo[i]);
    } else if (testo.mid(i, 2) == u"**") {
      b += std::exchange(grassetto, !grassetto) ? "\\b0 " : "\\b ";
      ++i;
    } else {
      b += std::exchange(corsivo, !corsivo) ? "\\i0 " : "\\i ";
    }
  }
  if (grassetto || corsivo) rifiuta(u"bold or italics without an end"_s);
  return b;
}

/// A picture in its own size, or as wide as the text where it is wider.
QByteArray figura(const QByteArray& png) {
  if (!png.startsWith("\x89PNG\r\n") || png.size() < 24) rifiuta(u"not a PNG picture"_s);
  const auto largo = qFromBigEndian<quint32>(png.constData() + 16),
             alto = qFromBigEndian<quint32>(png.constData() + 20);
  const double scala = std::min(double(twip_per_pixel), larghezza / double(largo));
  const auto numero = [](double n) { return QByteArray::number(qRound(n)); };
  QByteArray b = R"({\pict\pngblip\picw)" + numero(largo) + "\\pich" + numero(alto) + "\\picwgoal" +
                 numero(largo * scala) + "\\pichgoal" + numero(alto * scala);
  const QByteArray cifre = png.toHex();
  for (qsizetype i = 0; i < cifre.size(); i += 128) b += '\n' + cifre.mid(i, 128);
  return b + '}';
}

class Traduttore {
 public:
  explicit Traduttore(const QFileInfo& file)
      : cartella(file.path()),
        nome(file.fileName()),
        righe(QString::fromUtf8(contenuto(file.filePath())).split(u'\n')) {}

  QByteArray traduci() {
    try {
      if (!righe[0].startsWith(u"# "_s)) rifiuta(u"the title comes first"_s);
      const QByteArray titolo = scritto(righe[0].mid(2));
      while (n < righe.size()) blocco();
      return apertura + titolo + pagina + titolo + "  -  \\chpgn\\par}\n" + corpo + "}\n";
    } catch (const std::exception& e) {
      rifiuta(u"%1:%2: %3"_s.arg(nome).arg(n + 1).arg(QString::fromUtf8(e.what())));
    }
  }

 private:
  QString qui() const { return righe.value(n); }

  void paragrafo(const char* stile, const QByteArray& testo) {
    corpo += QByteArray("\\pard\\plain") + stile + testo + "\\par\n";
  }

  /// This line and those that continue it, as one text without what begins each of them.
  QString insieme(const QRegularExpression& seguito) {
    QString testo = righe[n++].trimmed();
    for (QRegularExpressionMatch m; (m = seguito.match(qui())).hasMatch(); ++n) testo += u' ' + m.captured(1).trimmed();
    return testo;
  }

  void blocco() {
    static const QRegularExpression rientro(u"^ +(\\S.*)"_s), nota(u"^> ?(.*)"_s),
        testo(u"^(?![#|>!]|- |\\d+\\. )(\\S.*)"_s);
    static const QRegularExpression voce(u"^(-|\\d+\\.) (.*)"_s), titolo(u"^(#{1,3}) (.*)"_s);
    const QString riga = qui();
    if (riga.trimmed().isEmpty()) {
      ++n;
    } else if (const auto t = titolo.match(riga); t.hasMatch()) {
      paragrafo(stili_titolo[t.capturedLength(1) - 1], scritto(t.captured(2)));
      ++n;
    } else if (riga.startsWith(u'|')) {
      tabella();
    } else if (riga.startsWith(u"!["_s)) {
      illustrazione();
    } else if (riga.startsWith(u'>')) {
      paragrafo(stile_nota, scritto(insieme(nota).mid(1).trimmed()));
    } else if (voce.match(riga).hasMatch()) {
      const auto v = voce.match(insieme(rientro));
      paragrafo(stile_elenco,
                (v.captured(1) == u"-" ? segno(u'•') : v.captured(1).toLatin1()) + "\\tab " + scritto(v.captured(2)));
    } else if (testo.match(riga).hasMatch() && !riga.startsWith(u"```"_s)) {
      paragrafo(stile_testo, scritto(insieme(testo)));
    } else {
      rifiuta(u"not understood: '%1'"_s.arg(riga));
    }
  }

  void illustrazione() {
    static const QRegularExpression forma(u"^!\\[(.+)\\]\\((.+\\.png)\\)$"_s);
    const auto m = forma.match(qui());
    if (!m.hasMatch()) rifiuta(u"a picture is ![caption](file.png)"_s);
    const QString file = QDir(cartella).filePath(m.captured(2));
    if (QFile::exists(file)) {
      paragrafo(stile_figura, figura(contenuto(file)));
      paragrafo(stile_didascalia, scritto(m.captured(1)));
    } else {
      std::fprintf(stderr, "%s:%lld: warning: picture '%s' is missing and left out\n", qUtf8Printable(nome),
                   static_cast<long long>(n + 1), qUtf8Printable(m.captured(2)));
    }
    ++n;
  }

  static QStringList celle(const QString& riga) {
    QStringList l = riga.trimmed().split(u'|');
    if (l.size() < 3 || !l.last().isEmpty()) rifiuta(u"a row of a table begins and ends with |"_s);
    for (QString& cella : l) cella = cella.trimmed();
    return l.mid(1, l.size() - 2);
  }

  void tabella() {
    static const QRegularExpression linea(u"^:?-{3,}:?$"_s);
    QList<QStringList> tutte;
    for (const qsizetype prima = n; qui().startsWith(u'|'); ++n) {
      const QStringList c = celle(qui());
      if (!tutte.isEmpty() && c.size() != tutte[0].size()) rifiuta(u"a row with more or fewer cells"_s);
      if ((n == prima + 1) != linea.match(c[0]).hasMatch()) rifiuta(u"the second row, and only it, is a line"_s);
      if (n != prima + 1) tutte << c;
    }
    const QList<int> margini = colonne(tutte);
    for (const QStringList& riga : tutte) riga_tabella(riga, margini, &riga == tutte.data());
    corpo += "\\pard\\plain\\s0\\sa80\\fs10\\par\n";
  }

  /// The right edges of the columns: each holds its longest word, and long texts share what is left.
  static QList<int> colonne(const QList<QStringList>& tutte) {
    QList<int> larghe(tutte[0].size(), 0), lunghe(tutte[0].size(), 1);
    for (const QStringList& riga : tutte) {
      for (qsizetype i = 0; i < riga.size(); ++i) {
        lunghe[i] = std::max(lunghe[i], std::min(static_cast<int>(riga[i].size()), 70));
        for (const QString& parola : riga[i].split(u' '))
          larghe[i] = std::max(larghe[i], twip_per_cella + twip_per_lettera * static_cast<int>(parola.size()));
      }
    }
    const int resto = larghezza - std::reduce(larghe.begin(), larghe.end());
    const int somma = std::reduce(lunghe.begin(), lunghe.end());
    if (resto < 0) rifiuta(u"a table that is too wide"_s);
    for (int i = 0, margine = 0; i < larghe.size(); ++i) larghe[i] = margine += larghe[i] + resto * lunghe[i] / somma;
    return larghe;
  }

  void riga_tabella(const QStringList& testi, const QList<int>& margini, bool testa) {
    corpo += QByteArray(R"(\trowd\trgaph80\trleft0\trkeep)") + (testa ? "\\trhdr" : "");
    for (const int margine : margini) {
      for (const char* lato : {"t", "l", "b", "r"})
        corpo += QByteArray("\\clbrdr") + lato + R"(\brdrs\brdrw10\brdrcf2)";
      corpo += QByteArray(testa ? "\\clcbpat3" : "") + "\\cellx" + QByteArray::number(margine);
    }
    corpo += '\n';
    for (const QString& t : testi)
      corpo += QByteArray("\\pard\\plain") + stile_cella + (testa ? "\\b " : "") + scritto(t) + "\\cell\n";
    corpo += "\\row\n";
  }

  QString cartella, nome;
  QStringList righe;
  qsizetype n = 0;
  QByteArray corpo;
};

void scrivi(const QString& file, const QByteArray& dati) {
  QDir().mkpath(QFileInfo(file).path());
  QSaveFile f(file);
  if (!f.open(QIODevice::WriteOnly) || f.write(dati) != dati.size() || !f.commit())
    rifiuta(file + u": "_s + f.errorString());
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 3) rifiuta(u"uso: costruttore_guida <cartella dei .md> <cartella del programma>"_s);
    const QDir programma(QFile::decodeName(argv[2]));
    for (const QFileInfo& f : QDir(QFile::decodeName(argv[1])).entryInfoList({u"*.md"_s}, QDir::Files)) {
      const QString nome = f.completeBaseName() + u".doc"_s;
      scrivi(programma.filePath(nome[0].isDigit() ? u"help/"_s + nome : nome), Traduttore(f).traduci());
    }
    return 0;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "costruttore_guida: %s\n", e.what());
    return 1;
  }
}
