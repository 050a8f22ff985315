#include "scala.h"

#include "base/archivio.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "misure.h"
#include "office/formrubrica.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int altra_scheda = 25;  // an almost empty tab to come from
constexpr int una_lettera = 1;

QString cognome_di(int cod) { return QChar(u'A' + cod * 7 % 25) + u"COGNOME%1"_s.arg(cod); }

void iscrivi_cliente(const QString& campione, int cod) {
  const QString nome = u"%1_%2"_s.arg(cod).arg(cognome_di(cod));
  const QString file = percorso(nome + u'/' + nome + u".orzaline"_s);
  QDir(percorso({})).mkdir(nome);
  QFile::copy(campione, file);
  Archivio cliente(file);
  cliente.esegui(u"PRAGMA synchronous = OFF"_s);
  cliente.esegui(u"UPDATE anagrafe SET cod = ?, cognome = ?"_s, cod, cognome_di(cod));
  schedario().esegui(u"INSERT INTO schedario (cod, cognome, nome_files) VALUES (?, ?, ?)"_s, cod, cognome_di(cod),
                     file);
}

void porta_schedario_a(int clienti) {
  schedario().transazione([&] {
    for (int cod = prossimo_cod(); cod <= clienti; ++cod) {
      iscrivi_cliente(QStringLiteral(CARTELLA_ARCHIVI "/esempi/1900_ferri.orzaline"), cod);
    }
  });
}

void porta_rubrica_a(int persone) {
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  const int presenti = rubrica.righe(u"SELECT count(*) AS n FROM Nomi"_s).front()[u"n"].toInt();
  rubrica.transazione([&] {
    for (int i = presenti + 1; i <= persone; ++i) {
      rubrica.esegui(u"INSERT INTO Nomi (nome, cognome, NomeCognome) VALUES ('Anna', ?, ?)"_s, cognome_di(i),
                     u"Anna "_s + cognome_di(i));
      for (const QString& tabella : {u"Abitazione"_s, u"Ufficio"_s, u"NumTel"_s}) {
        rubrica.esegui(u"INSERT INTO %1 (id) VALUES (?)"_s.arg(tabella), rubrica.ultimo_id());
      }
    }
  });
}

/// Median of the fills of some tabs, each come to from another one, painted.
double riempi(QTabBar* strisce, const std::vector<int>& schede, int volte) {
  std::vector<double> ms;
  for (int i = 0; i < volte; ++i) {
    strisce->setCurrentIndex(altra_scheda);
    ms.push_back(banco::millisecondi([&] {
      for (const int scheda : schede) {
        strisce->setCurrentIndex(scheda);
        QApplication::processEvents();
      }
    }));
  }
  return banco::mediana(ms);
}

/// Fills and times the sizes in a practice's folder of its own. `tutte` are the tabs that show the whole.
template <class S>
std::vector<Scala> scala(const std::vector<int>& misure, int volte, void (*porta_a)(int), QTabBar* S::*strisce,
                         const std::vector<int>& tutte) {
  const QTemporaryDir cartella;
  banco::posa_archivi(QStringLiteral(CARTELLA_ARCHIVI), cartella.path());
  schedario().esegui(u"DELETE FROM schedario"_s);
  mostra<Mdiorza>();
  std::vector<Scala> esiti;
  for (const int voci : misure) {
    porta_a(voci);
    mostra<S>();
    QTabBar* qui = schermata<S>().*strisce;
    esiti.push_back({voci, riempi(qui, tutte, volte), riempi(qui, {una_lettera}, volte)});
    scarica<S>();
  }
  abbandona_schermate();
  chiudi_archivi();
  return esiti;
}

}  // namespace

std::vector<Scala> scala_schedario(const std::vector<int>& misure, int volte) {
  return scala(misure, volte, porta_schedario_a, &Formsched::SSTabschedario, {scheda_tutti});
}

std::vector<Scala> scala_rubrica(const std::vector<int>& misure, int volte) {
  std::vector<int> lettere;
  for (int i = 0; i < altra_scheda; ++i) lettere.push_back(i);
  return scala(misure, volte, porta_rubrica_a, &Formrubrica::SSTab2, lettere);
}
