// The tour: the whole program offscreen, driven through its main job on each sample client as a practitioner would do
// it.
//
//   giro <folder of pictures>
//
// Leaves a picture of each step and checks what reached the client's file. Ends with 1 at the first thing amiss.
#include "base/archivio.h"
#include "core/aspetto.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "diet/formelabora.h"

#include <QAbstractItemView>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QDir quadri;
int numero_quadro = 0;

void pretendi(bool vero, const char* che) {
  if (vero) return;
  std::fprintf(stderr, "giro: %s\n", che);
  std::exit(1);
}

void quadro(QWidget& finestra, const QString& nome) {
  QTest::qWait(20);
  const QString file = quadri.filePath(u"%1_%2.png"_s.arg(++numero_quadro, 2, 10, QChar(u'0')).arg(nome));
  pretendi(finestra.grab().save(file), "a picture could not be written");
  std::printf("  %s\n", qPrintable(QDir::current().relativeFilePath(file)));
}

bool rispondi(const Riquadro& r) {
  std::printf("  [%s] %s\n", qPrintable(r.titolo), qPrintable(QString(r.testo).replace(u'\n', u' ')));
  return true;
}

void clic(QWidget* controllo) { QTest::mouseClick(controllo, Qt::LeftButton); }

void scegli(QComboBox* lista, int riga) {
  QTest::keyClick(lista, Qt::Key_F4);
  lista->view()->setCurrentIndex(lista->model()->index(riga, 0));
  QTest::keyClick(lista->view(), Qt::Key_Return);
}

void scegli(QListWidget* lista, int riga) {
  const QPoint dove = lista->visualItemRect(lista->item(riga)).center();
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, dove);
}

void copia_archivi(const QString& cartella) {
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome : origine.entryList({u"*.jed"_s, u"*.chk"_s})) {
    QFile::copy(origine.filePath(nome), QDir(cartella).filePath(nome));
  }
  QFile::remove(QDir(cartella).filePath(u"0_1.chk"_s));  // the first run, whatever the workstation's own store holds
  Archivio login(QDir(cartella).filePath(u"0_1.chk"_s), accesso, Archivio::Modo::nuovo);
  login.esegui(u"CREATE TABLE login (nome_utente TEXT, password TEXT)"_s);
  imposta_cartella(cartella);
}

void entra() {
  mostra<frmLogin>();
  auto& login = schermata<frmLogin>();
  QTest::keyClicks(login.txtUserName, u"dietista"_s);
  QTest::keyClicks(login.txtPassword, u"orzo e farro"_s);
  quadro(login, u"accesso"_s);
  clic(login.cmdOK);
  pretendi(caricata<Mdiorza>() != nullptr, "the main window did not come");
  quadro(schermata<Mdiorza>(), u"finestra"_s);
}

void elabora_una_settimana(Mdiorza& m, const QString& nome) {
  auto& f = schermata<Formelabora>();
  scegli(f.Combo1, 0);
  pretendi(f.test->isEnabled(), "a chosen week does not enable the elaboration");
  quadro(m, nome + u"_settimana"_s);
  clic(f.test);
  quadro(m, nome + u"_elaborata"_s);
  scegli(f.Combo1, 0);
  clic(f.Option1[2]);
  for (int giorno = 0; giorno < giorni; ++giorno) {
    scegli(f.List1, giorno);
    pretendi(!f.Text4[8]->text().isEmpty(), "a day without its totals");
    for (QRadioButton* pasto : f.Option1) {
      clic(pasto);
      pretendi(!f.Text1[0]->text().isEmpty(), "a meal without foods");
    }
    if (giorno < 2) clic(f.Option1[giorno == 0 ? 2 : 4]);
    if (giorno < 2) quadro(m, nome + (giorno == 0 ? u"_pranzo"_s : u"_cena"_s));
  }
}

/// Three grams more of the first food of Sunday's dinner.
QString cambia_una_quantita(Mdiorza& m, const QString& nome) {
  auto& f = schermata<Formelabora>();
  QTest::mouseDClick(f.Text1[0], Qt::LeftButton);
  const int prima = f.Text2[0]->text().toInt();
  for (int i = 0; i < 3; ++i) clic(f.Command1);
  pretendi(f.Text2[0]->text().toInt() == prima + 3, "three presses are not three grams");
  quadro(m, nome + u"_grammi"_s);
  return QString::number(prima + 3);
}

void verifica_salvata(const QString& file, const QString& grammi) {
  Archivio cliente(file, accesso, Archivio::Modo::sola_lettura);
  const auto pasti_salvati = cliente.righe(u"SELECT DISTINCT giorno, pasto FROM dieta WHERE dieta = 1"_s).size();
  const auto variati = cliente.righe(u"SELECT quant_mod FROM dieta WHERE quant_mod <> ''"_s);
  std::printf("  %s: %zu meals\n", qPrintable(QFileInfo(file).fileName()), pasti_salvati);
  pretendi(pasti_salvati == giorni * pasti, "the client's file does not hold the whole week");
  pretendi(variati.size() == 1 && variati.front()[u"quant_mod"].toString() == grammi,
           "the altered grams were not saved");
}

void cliente(const QString& file) {
  const QString nome = QFileInfo(file).baseName();
  std::printf("%s\n", qPrintable(nome));
  auto& m = schermata<Mdiorza>();
  esterno().scegli_file = [&](const QString&, const QString&, const QString&) { return file; };
  clic(m.cmdsopra[0]);
  pretendi(caricata<Formelabora>() != nullptr, "the elaboration did not open");
  elabora_una_settimana(m, nome);
  const QString grammi = cambia_una_quantita(m, nome);
  clic(schermata<Formelabora>().Command5[0]);
  verifica_salvata(percorso_cliente(), grammi);
}

int giro(const QString& cartella_quadri) {
  quadri.setPath(cartella_quadri);
  pretendi(quadri.mkpath(u"."_s), "the folder of pictures cannot be made");
  for (const QString& vecchio : quadri.entryList({u"[0-9][0-9]_*.png"_s})) quadri.remove(vecchio);
  const QTemporaryDir lavoro;
  copia_archivi(lavoro.path());
  parla_con(rispondi);
  gestisci_errori_con([](const std::exception& e) { pretendi(false, e.what()); });
  caso_in_uso() = caso_con_seme(2026);
  entra();
  const QDir esempi(QStringLiteral(CARTELLA_ARCHIVI) + u"/esempi"_s);
  const QStringList clienti = esempi.entryList({u"*.orzaline"_s}, QDir::Files, QDir::Name);
  pretendi(!clienti.isEmpty(), "there are no sample clients");
  for (const QString& nome : clienti) cliente(esempi.filePath(nome));
  abbandona_schermate();
  chiudi_archivi();
  std::printf("%lld clients, each with a saved week\n", static_cast<long long>(clienti.size()));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Applicazione app(argc, argv);
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  imposta_aspetto(app);
  return giro(QDir::current().absoluteFilePath(argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"build/giro"_s));
}
