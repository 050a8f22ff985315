#include "core/mdiorza.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "tappe.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

const QString persona = u"Maria Grazia Antonelli D'Amico"_s;

void scegli_nome(const Formrubrica& f, const QString& nome) {
  const int riga = static_cast<int>(f.Data1.stringList().indexOf(nome));
  pretendi(riga >= 0, u"is listed: "_s + nome);
  const QModelIndex dove = f.Data1.index(riga);
  conta_passo();
  QTest::mouseClick(f.DBList1->viewport(), Qt::LeftButton, {}, f.DBList1->visualRect(dove).center());
}

void aggiungi(const Formrubrica& f) {
  clic(f.Command1);
  scrivi(f.Text1, u"Maria Grazia"_s);
  scrivi(f.Text2, u"Antonelli D'Amico"_s);
  const QLineEdit* const campi[]{f.Text3, f.Text4, f.Text5, f.Text6, f.Text7};
  const QStringList testi{u"via Nazionale Adriatica Nord 127"_s, u"Francavilla al Mare"_s, u"Chieti"_s, u"66023"_s,
                          u"Italia"_s};
  for (qsizetype i = 0; i < testi.size(); ++i) scrivi(const_cast<QLineEdit*>(campi[i]), testi[i]);
  quadro(schermata<Mdiorza>(), u"rubrica_persona"_s);
  clic(f.Command5);
}

void cambia(const Formrubrica& f) {
  scegli_nome(f, persona);
  clic(f.Command2);
  scrivi(f.Text4, u"Ortona"_s);
  clic_scheda(f.SSTab1->tabBar(), f.SSTab1->tabText(1));
  scrivi(f.Text15, u"studio Antonelli"_s);
  quadro(schermata<Mdiorza>(), u"rubrica_lavoro"_s);
  clic(f.Command4);
  scegli_nome(f, persona);
  clic(f.Command2);
  verifica_uguali(f.Text4->text(), u"Ortona"_s, u"the town of the person"_s);
  clic(f.Command5);
}

void segna(const Formagenda& f, int riga, const QString& testo) {
  conta_passo();
  f.DBGrid1->setCurrentCell(riga, 1);
  QTest::keyClicks(f.DBGrid1, testo.left(1));
  QTest::keyClicks(QApplication::focusWidget(), testo.mid(1));
}

void verifica_giorno(const Formagenda& f, int riga, const QString& testo) {
  verifica_uguali(f.DBGrid1->item(riga, 1)->text(), testo, f.Text1->text());
}

}  // namespace

void rubrica(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[12]);
  const auto& f = schermata<Formrubrica>();
  aggiungi(f);
  cambia(f);
  clic_scheda(f.SSTab2, u"R"_s);
  scegli_nome(f, u"MARIA ROSSI"_s);
  quadro(m, u"rubrica_r"_s);
  clic_scheda(f.SSTab2, u"A"_s);
  scegli_nome(f, persona);
  quadro(m, u"rubrica"_s, u"rubrica"_s);
  clic(f.Command6);
  verifica(!f.Data1.stringList().contains(persona), u"the person is deleted"_s);
  clic(f.Command7);
}

/// Three appointments on two days, left and found again.
void agenda(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[11]);
  {
    const auto& f = schermata<Formagenda>();
    const QDate oggi = f.Calendar1->selectedDate();
    segna(f, 18, u"Antonelli: prima visita, portare gli esami del sangue"_s);
    segna(f, 21, u"Rossi, controllo del peso"_s);
    f.Calendar1->setSelectedDate(oggi.addDays(1));
    verifica_giorno(f, 18, {});
    segna(f, 20, u"telefonare al dott. Quagliarella"_s);
    f.Calendar1->setSelectedDate(oggi);
    verifica_giorno(f, 21, u"Rossi, controllo del peso"_s);
    quadro(m, u"agenda"_s, u"agenda"_s);
    clic(f.Command1);
  }
  clic(m.cmdsopra[11]);
  const auto& f = schermata<Formagenda>();
  verifica_giorno(f, 18, u"Antonelli: prima visita, portare gli esami del sangue"_s);
  f.Calendar1->setSelectedDate(f.Calendar1->selectedDate().addDays(1));
  verifica_giorno(f, 20, u"telefonare al dott. Quagliarella"_s);
  clic(f.Command1);
}
