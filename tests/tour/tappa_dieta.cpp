#include "base/archivio.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "diet/formelabora.h"
#include "passi.h"
#include "tappe.h"

#include <QFileInfo>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void richiama(const QString& cognome) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[0]);
  auto& s = schermata<Formsched>();
  s.SSTabschedario->setCurrentIndex(cognome == u"BIANCHI" ? scheda_tutti : cognome[0].unicode() - u'A');
  int riga = 0;
  while (riga < s.Tabella->rowCount() && s.testo(riga, 2) != cognome) ++riga;
  pretendi(riga < s.Tabella->rowCount(), "the client is not in the archive");
  scegli(s.Tabella, riga);
  quadro(m, cognome.toLower() + u"_archivio"_s);
  clic(s.Command10[2]);
  if (cognome == u"BIANCHI") scelta_degli_alimenti();
  clic(m.cmdsopra[5]);
  pretendi(caricata<Formelabora>() != nullptr, "the elaboration did not open");
}

void rivedi(const QString& nome) {
  auto& m = schermata<Mdiorza>();
  auto& f = schermata<Formelabora>();
  scegli(f.Combo1, 0);
  clic(f.Option1[2]);
  for (int giorno = 0; giorno < giorni; ++giorno) {
    scegli(f.List1, giorno);
    pretendi(!f.Text4[8]->text().isEmpty(), "a day without its totals");
    for (QRadioButton* pasto : f.Option1) {
      clic(pasto);
      pretendi(!f.Text1[0]->text().isEmpty(), "a meal without foods");
    }
    if (giorno == 0) {
      clic(f.Option1[2]);
      quadro(m, nome + u"_pranzo"_s);
    }
  }
}

/// Three grams more of the first food of Sunday's dinner.
QString cambia_una_quantita(const QString& nome) {
  auto& f = schermata<Formelabora>();
  QTest::mouseDClick(f.Text1[0], Qt::LeftButton);
  const int prima = f.Text2[0]->text().toInt();
  for (int i = 0; i < 3; ++i) clic(f.Command1);
  pretendi(f.Text2[0]->text().toInt() == prima + 3, "three presses are not three grams");
  quadro(schermata<Mdiorza>(), nome + u"_grammi"_s);
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

}  // namespace

void settimana_di_dieta(const QString& cognome) {
  std::printf("%s\n", qPrintable(cognome));
  const QString nome = cognome.toLower();
  richiama(cognome);
  auto& f = schermata<Formelabora>();
  scegli(f.Combo1, 0);
  pretendi(f.test->isEnabled(), "a chosen week does not enable the elaboration");
  clic(f.test);
  quadro(schermata<Mdiorza>(), nome + u"_elaborata"_s);
  rivedi(nome);
  const QString grammi = cambia_una_quantita(nome);
  clic(f.Command5[0]);
  verifica_salvata(percorso_cliente(), grammi);
}
