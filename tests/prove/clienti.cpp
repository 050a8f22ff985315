// Clients as a practice may meet them, drawn at random, through the program's own screens: from the master data to the
// saved week. None crashes or hangs the program, and every meal that the search accepted keeps its promises, judged by
// code that shares nothing with it.
//
//   prova_clienti [clients] [first number]      (25 and 1 by default)
//
// A client's number is the seed of all that is drawn for it: a failure names it.
#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "banco.h"
#include "base/date.h"
#include "base/numeri.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "diary/formintegrat.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "misure.h"
#include "tolleranze.h"

#include <unistd.h>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <csignal>
#include <ctime>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr double secondi_al_massimo = 5;
constexpr unsigned attesa_al_massimo = 300;                 // s by the clock, for a client that never comes back
enum : std::size_t { razione = 1, giorni_di_razione = 4 };  // of Text10

double secondi_di_processore() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// What was said in boxes since the client came.
QStringList detti;
bool detto(const QString& parole) {
  return std::ranges::any_of(detti, [&](const QString& d) { return d.contains(parole); });
}

/// A client, and what the dietitian does for it.
class Cliente {
 public:
  explicit Cliente(int numero) : caso_(static_cast<unsigned>(numero)) {}

  void anagrafica();
  void ponderali();
  void attività();
  void alimenti();
  void elabora();

  /// Why no ration came of the assessment; empty where one did.
  QString rifiuto;
  tolleranze::GruppiTolti tolti;

 private:
  int fra(int da, int a) { return std::uniform_int_distribution(da, a)(caso_); }
  bool uno_su(int n) { return fra(1, n) == 1; }
  void scegli(QComboBox* lista) { lista->setCurrentIndex(fra(0, lista->count() - 1)); }
  void misure(const Formpond& f);
  void obiettivo(Formpond& f);
  void a_mano(Formalimenti& f);
  void preferenze(Formalimenti& f, std::size_t pasto);
  void segna(const Formalimenti& f, int pasto, int colonna);
  void integratore(const Formalimenti& f);

  std::mt19937 caso_;
};

void Cliente::anagrafica() {
  schermata<Mdiorza>().cmdsopra[0]->click();
  schermata<Formsched>().Command10[0]->click();
  auto& f = schermata<Formanag>();
  const int anni = fra(10, 99);
  f.Txtcognome->setText(u"ROSSI"_s);
  f.TxtNOME->setText(u"ANNA"_s);
  f.Txtdatanasc->setText(data_breve(oggi().addYears(-anni).addDays(-fra(0, 300))));
  f.mettiAnni();
  const int statura = anni < 15 ? fra(125, 175) : fra(140, 205);
  const int peso = statura * statura * fra(150, 450) / 100000;
  // Now and then something was not asked.
  const int manca = fra(1, 100);
  if (manca != 1) f.Txtalt->setText(QString::number(statura));
  if (manca != 2) f.Txtpeso->setText(QString::number(peso));
  if (manca != 3) scegli(f.Combosesso);
  if (manca != 4) scegli(f.Combolav);
  if (manca != 5) scegli(f.Combocost);
}

void Cliente::misure(const Formpond& f) {
  if (!uno_su(4)) {
    for (std::size_t i = 0; i < 4; ++i) f.Text5[i]->setText(QString::number(fra(3, uno_su(20) ? 80 : 40)));
    f.Text5[4]->setText(QString::number(fra(18, 45)));
    scegli(f.Combo1);
  }
  if (!uno_su(4)) {
    f.Text2[0]->setText(QString::number(fra(35, 95)));
    f.Text2[2]->setText(QString::number(fra(900, 2400)));
  }
}

/// Target, days and ration moved by hand.
void Cliente::obiettivo(Formpond& f) {
  for (int i = uno_su(3) ? fra(1, 8) : 0; i > 0; --i) f.CmdSU2[0]->click();
  for (int i = uno_su(3) ? fra(1, 8) : 0; i > 0; --i) f.CmdGIU2[0]->click();
  if (uno_su(4) && numerico(f.Text10[giorni_di_razione]->text())) {
    f.Text10[giorni_di_razione]->setText(QString::number(fra(1, 400)));
    f.ricalcola(u"sopra"_s);
  }
  if (uno_su(4) && numerico(f.Text10[razione]->text())) {
    f.Text10[razione]->setText(testo(valore(f.Text10[razione]->text()) + 5 * fra(-60, 60)));
    f.ricalcola(u"sotto"_s);
  }
  for (const std::size_t i : {0U, 1U}) {
    for (int n = uno_su(3) ? fra(1, 15) : 0; n > 0; --n) (uno_su(2) ? f.CmdSU[i] : f.CmdGIU[i])->click();
  }
}

void Cliente::ponderali() {
  schermata<Mdiorza>().cmdsopra[3]->click();
  auto& f = schermata<Formpond>();
  misure(f);
  f.Image1[static_cast<std::size_t>(fra(0, 3))]->click();
  if (f.Lab_scelta.text().isEmpty()) {
    rifiuto = u"a figure of the method is missing or 0"_s;
    return;
  }
  obiettivo(f);
  if (!numerico(f.Text10[razione]->text())) rifiuto = u"no ration comes of the objective"_s;
}

void Cliente::attività() {
  schermata<Mdiorza>().cmdsopra[15]->click();
  const auto& f = schermata<Formattività>();
  for (std::size_t g = 0; g < 7; ++g) {
    if (!uno_su(4)) continue;
    scegli(f.Combo13);
    f.Combo14[g]->setCurrentIndex(fra(0, uno_su(10) ? f.Combo14[g]->count() - 1 : 6));
  }
  for (int n = uno_su(2) ? fra(1, 10) : 0; n > 0; --n) {
    const auto i = static_cast<std::size_t>(fra(0, 4));
    (uno_su(2) ? f.CmdUP[i] : f.CmdDOWN[i])->click();
  }
  if (uno_su(3)) f.CmdUtilizza[1]->click();
}

/// Marks a food of a group that was not taken away.
void Cliente::segna(const Formalimenti& f, int pasto, int colonna) {
  const auto* m = f.MSFlex1->model();
  const QModelIndex dove = m->index(fra(0, m->rowCount() - 1), colonna);
  const int gruppo = dove.siblingAtColumn(colonna_di::cod1).data().toInt();
  if (!tolti.contains({pasto, gruppo})) Q_EMIT f.MSFlex1->clicked(dove);
}

void Cliente::preferenze(Formalimenti& f, std::size_t pasto) {
  constexpr int primo_gruppo = 4;  // of the boxes of lunch and dinner
  f.CmdPasto[pasto]->click();
  const bool veloce = f.LabSceltaFF.text() == u"1"_s;
  const bool pranzo = pasto == 3, cena = pasto == 5;
  const int indice = pranzo ? 2 : 4;  // of the meal in the diet
  const auto& caselle = f.riquadri[*insieme_del_pasto(static_cast<int>(pasto), veloce)].Check;
  const int quante = uno_su(3) ? 3 : 12;
  for (std::size_t i = 0; i < caselle.size(); ++i) {
    if (!uno_su(quante)) continue;
    caselle[i]->click();
    if (cena || (pranzo && !veloce)) tolti.insert({indice, static_cast<int>(i) + primo_gruppo});
  }
  const auto* m = f.MSFlex1->model();
  for (int n = fra(0, 12); n > 0; --n) {
    const QModelIndex dove = m->index(fra(0, m->rowCount() - 1), colonna_di::ok);
    if (!dove.data(Qt::DecorationRole).isNull()) Q_EMIT f.MSFlex1->clicked(dove);
  }
  if (!pranzo && !cena) return;
  if (uno_su(3)) segna(f, indice, colonna_di::lv);
  if (uno_su(3)) segna(f, indice, colonna_di::sd);
}

void Cliente::integratore(const Formalimenti& f) {
  f.CmdPasto[6]->click();
  const auto& w = schermata<Formintegrat>();
  w.Text1[0]->setText(u"Integratore"_s);
  for (std::size_t i = 2; i < w.Text1.size(); ++i) w.Text1[i]->setText(QString::number(fra(0, 30)));
  w.Command1[0]->click();
  if (f.MSFlex1->model()->rowCount() == 0) return;
  for (const int colonna : {colonna_di::lv, colonna_di::sd}) {
    if (!uno_su(2)) continue;
    Q_EMIT f.MSFlex1->clicked(f.MSFlex1->model()->index(0, colonna));
    if (caricata<Formintegrat>()) schermata<Formintegrat>().Command1[0]->click();
  }
}

void Cliente::a_mano(Formalimenti& f) {
  for (std::size_t pasto = 0; pasto < 6; ++pasto) {
    if (f.CmdPasto[pasto]->isEnabled()) preferenze(f, pasto);
  }
  if (uno_su(4)) integratore(f);
}

void Cliente::alimenti() {
  schermata<Mdiorza>().cmdsopra[4]->click();
  auto& f = schermata<Formalimenti>();
  const bool mano = uno_su(2);
  f.OptFF[uno_su(4) ? 1 : 0]->click();
  f.CmdContinuaFF->click();
  f.OptAlim[mano ? 1 : 0]->click();
  f.CmdContinuaAlimenti->click();
  if (mano) a_mano(f);
}

void Cliente::elabora() {
  caso_in_uso() = caso_con_seme(caso_());
  schermata<Mdiorza>().cmdsopra[5]->click();
  const auto& f = schermata<Formelabora>();
  f.Combo1->setCurrentIndex(0);
  f.test->click();
  f.Command5[0]->click();
}

/// The three nutrients of a day make its energy, and the meals share all of it.
QString conti_sbagliati() {
  const auto sport = dati_tmp().righe(u"SELECT * FROM sport"_s), consumi = dati_tmp().righe(u"SELECT * FROM consumi"_s);
  if (sport.size() != 1 || consumi.size() != 1) return u"no week was stored"_s;
  const auto giorno = [&](QStringView campo, int g) {
    return sport.front()[campo].toString().split(u'+').value(g).toInt();
  };
  for (int g = 0; g < 7; ++g) {
    const int nutrienti = giorno(u"protidi", g) + giorno(u"lipidi", g) + giorno(u"glucidi", g);
    if (nutrienti != giorno(u"calorie_totali", g)) return u"the nutrients of day %1 do not make its energy"_s.arg(g);
  }
  int percento = 0;
  for (const QStringView pasto : {u"colazione", u"spuntino", u"pranzo", u"merenda", u"cena"}) {
    percento += consumi.front()[pasto].toInt();
  }
  return percento == 100 ? QString() : u"the meals share %1 % of the day"_s.arg(percento);
}

class Prova {
 public:
  void cliente(int numero);
  void esiti(int quanti) const;

 private:
  void settimana(int numero, const Cliente& c);

  std::map<QString, int> rifiuti_, mancate_;
  int elaborate_ = 0, intere_ = 0, pasti_ = 0, cibi_ = 0;
  double peggiore_ = 0;
};

void Prova::settimana(int numero, const Cliente& c) {
  ++elaborate_;
  const tolleranze::Verdetto v = tolleranze::giudica(percorso({}), c.tolti);
  if (!v.infrazioni.isEmpty()) prove::fallito(u"client %1: %2"_s.arg(numero).arg(v.infrazioni.join(u"; ")));
  pasti_ += v.pasti_pieni;
  cibi_ += v.cibi;
  if (v.intera()) {
    ++intere_;
  } else if (motore().ripresa_pasto != 0) {
    ++mancate_[motore().ripresa_pasto == 2 ? u"stopped at a lunch"_s : u"stopped at a dinner"_s];
  } else {
    ++mancate_[detto(u"ERRORE"_s) ? u"a light meal left empty"_s : u"a dinner used up by the day"_s];
  }
}

void Prova::cliente(int numero) {
  ::alarm(attesa_al_massimo);
  gestisci_errori_con([numero](const std::exception& e) {
    prove::fallito(u"client %1: %2"_s.arg(numero).arg(QString::fromUtf8(e.what())));
  });
  detti.clear();
  const double inizio = secondi_di_processore();
  Cliente c(numero);
  c.anagrafica();
  c.ponderali();
  c.attività();
  c.alimenti();
  if (c.rifiuto.isEmpty()) {
    c.elabora();
    if (const QString errati = conti_sbagliati(); !errati.isEmpty()) {
      prove::fallito(u"client %1: %2"_s.arg(numero).arg(errati));
    }
    settimana(numero, c);
  } else {
    ++rifiuti_[c.rifiuto];
  }
  const double secondi = secondi_di_processore() - inizio;
  if (secondi > secondi_al_massimo) prove::fallito(u"client %1 takes %2 s"_s.arg(numero).arg(secondi));
  peggiore_ = std::max(peggiore_, secondi);
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The archive stays small: it is opened for every client, and lists all.
void sgombra() {
  for (const Iscritto& i : iscritti()) {
    cancella_iscritto(i.cod);
    QFileInfo(i.file).dir().removeRecursively();
  }
}

QString elenco(const std::map<QString, int>& conti) {
  QStringList voci;
  for (const auto& [che, quanti] : conti) voci << u"%1 %2"_s.arg(quanti).arg(che);
  return voci.isEmpty() ? u"none"_s : voci.join(u", "_s);
}

void Prova::esiti(int quanti) const {
  constexpr int pasti_di_settimana = 35;
  if (2 * elaborate_ < quanti || 4 * pasti_ < 3 * pasti_di_settimana * elaborate_)
    prove::fallito(u"only %1 weeks with %2 meals came of it"_s.arg(elaborate_).arg(pasti_));
  prove::esito(u"Random clients from the master data to the week"_s, quanti,
               u"no crash, slowest %1 s of processor; refused: %2"_s.arg(peggiore_, 0, 'f', 2).arg(elenco(rifiuti_)));
  prove::esito(u"Weeks elaborated for them in one press"_s, elaborate_,
               u"%1 whole; others: %2"_s.arg(intere_).arg(elenco(mancate_)));
  prove::esito(u"Meals judged anew"_s, pasti_, u"0 broken rules in %1 foods"_s.arg(cibi_));
}

}  // namespace

int main(int argc, char** argv) {
  return prove::esegui([&] {
    Applicazione app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    std::signal(SIGALRM, [](int) {
      constexpr std::string_view detto_infine = "FAILED: a client hangs\n";
      static_cast<void>(::write(STDERR_FILENO, detto_infine.data(), detto_infine.size()));
      ::_exit(1);
    });
    const QTemporaryDir cartella;
    banco::posa_archivi(QStringLiteral(CARTELLA_ARCHIVI), cartella.path());
    schedario().esegui(u"DELETE FROM schedario"_s);
    parla_con([](const Riquadro& r) {
      detti << r.testo;
      return true;
    });
    static_cast<void>(schermata<Mdiorza>());  // neither styled nor shown: half the time
    const int quanti = prove::quante(argc, argv, 1, 25), primo = prove::quante(argc, argv, 2, 1);
    Prova prova;
    for (int i = 0; i < quanti; ++i) {
      prova.cliente(primo + i);
      sgombra();
    }
    prova.esiti(quanti);
    abbandona_schermate();
    chiudi_archivi();
  });
}
