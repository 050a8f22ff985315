#include "intake/codice_fiscale.h"

#include "base/date.h"

#include <QRegularExpression>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView vocali = u"AEIOU";
constexpr QStringView lettere_dei_mesi = u"ABCDEHLMPRST";
constexpr std::array<std::int16_t, 26> dispari_lettere{1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                                       20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};
constexpr int giorni_di_donna = 40;  // added to a woman's day

bool maiuscola(QChar c) { return c >= u'A' && c <= u'Z'; }
bool cifra(QChar c) { return c >= u'0' && c <= u'9'; }
int valore_pari(QChar lettera) { return lettera.unicode() - u'A'; }

QString due_cifre(int n) { return QString::number(n).rightJustified(2, u'0'); }

/// The letters of a code by their places: "c1", "v2" … or the filling "X". Empty where a letter is not there.
QString combina(QStringView consonanti, QStringView vocali_sue, QStringView schema) {
  QString codice;
  for (qsizetype i = 0; i < schema.size(); i += 2) {
    const qsizetype n = schema[i + 1].digitValue() - 1;
    const QStringView fonte = schema[i] == u'c' ? consonanti : schema[i] == u'v' ? vocali_sue : QStringView(u"X");
    if (n >= fonte.size()) return {};
    codice += fonte[n];
  }
  return codice;
}

QStringView schema_di(qsizetype consonanti, qsizetype vocali_sue, Parte parte) {
  switch (consonanti) {
    case 0: return u"v1v2X1";
    case 1: return vocali_sue < 2 ? u"c1v1X1" : u"c1v1v2";
    case 2: return u"c1c2v1";
    case 3: return u"c1c2c3";
    default: return parte == Parte::nome ? u"c1c3c4" : u"c1c2c3";
  }
}

bool sono_lettere(const QString& codice) { return codice.size() == 3 && std::ranges::all_of(codice, maiuscola); }

}  // namespace

QString componi_nome(const QString& testo, Parte parte) {
  QString consonanti, vocali_sue;
  for (const QChar c : testo) {
    if (vocali.contains(c)) {
      vocali_sue += c;
    } else if (maiuscola(c)) {
      consonanti += c;
    } else if (c != u' ') {
      return {};
    }
  }
  return combina(consonanti, vocali_sue, schema_di(consonanti.size(), vocali_sue.size(), parte));
}

QString lettera_mese(const QString& mese) {
  const int n = mese.toInt();
  return mese.size() == 2 && n >= 1 && n <= 12 ? QString(lettere_dei_mesi[n - 1]) : QString();
}

std::int16_t valore_dispari(QStringView carattere) {
  if (carattere.size() != 1) return 0;
  const QChar c = carattere[0];
  if (maiuscola(c)) return dispari_lettere[c.unicode() - u'A'];
  return cifra(c) ? dispari_lettere[c.unicode() - u'0'] : std::int16_t{0};  // 0 to 9 count as A to J
}

QString carattere_controllo(const QString& cognome, const QString& nome, std::int16_t anno, const QString& mese,
                            std::int16_t giorno, const QString& comune) {
  static const QRegularExpression forma_comune(u"^[A-Z][0-9]{3}$"_s);
  if (!sono_lettere(cognome) || !sono_lettere(nome) || !forma_comune.match(comune).hasMatch()) return {};
  const int pari = valore_pari(cognome[1]) + valore_pari(nome[0]) + valore_pari(nome[2]) + anno % 10 + giorno / 10 +
                   valore_pari(comune[0]) + comune[2].digitValue();
  int dispari = valore_dispari(mese);
  for (const QChar c : {cognome[0], cognome[2], nome[1], QChar(u'0' + anno / 10 % 10), QChar(u'0' + giorno % 10),
                        comune[1], comune[3]}) {
    dispari += valore_dispari(QStringView(&c, 1));
  }
  return QChar(u'A' + (pari + dispari) % 26);
}

QString componi_codice(const DatiCodice& dati) {
  const QString cognome = componi_nome(dati.cognome.trimmed().toUpper(), Parte::cognome);
  const QString nome = componi_nome(dati.nome.trimmed().toUpper(), Parte::nome);
  QString nascita, controllo;
  if (const QDate data = data_di(dati.data); data.isValid()) {
    const QString mese = dati.sesso.isEmpty() ? due_cifre(data.month()) : lettera_mese(due_cifre(data.month()));
    const int giorno = data.day() + (dati.sesso == u"F"_s ? giorni_di_donna : 0);
    nascita = due_cifre(data.year() % 100) + mese + due_cifre(giorno);
    controllo = carattere_controllo(cognome, nome, static_cast<std::int16_t>(data.year() % 100), mese,
                                    static_cast<std::int16_t>(giorno), dati.comune);
  }
  return QStringList{cognome, nome, nascita, dati.comune, controllo}.join(u' ');
}
