#include "core/mdiorza.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "passi.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

void rubrica() {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[12]);
  auto& f = schermata<Formrubrica>();
  clic(f.Command1);
  scrivi(f.Text1, u"Maria Grazia"_s);
  scrivi(f.Text2, u"Antonelli D'Amico"_s);
  scrivi(f.Text3, u"via Nazionale Adriatica Nord 127"_s);
  scrivi(f.Text4, u"Francavilla al Mare"_s);
  scrivi(f.Text5, u"Chieti"_s);
  scrivi(f.Text6, u"66023"_s);
  quadro(m, u"rubrica_persona"_s);
  clic(f.Command5);
  pretendi(f.Data1.stringList() == QStringList{u"Maria Grazia Antonelli D'Amico"_s}, "the person is not listed");
  quadro(m, u"rubrica"_s);
  clic(f.Command7);
}

void agenda() {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[11]);
  auto& f = schermata<Formagenda>();
  const auto segna = [&f](int riga, const QString& testo) {
    f.DBGrid1->setCurrentCell(riga, 1);
    QTest::keyClicks(f.DBGrid1, testo.left(1));
    QTest::keyClicks(f.DBGrid1->viewport()->findChildren<QLineEdit*>().last(), testo.mid(1));
  };
  segna(18, u"Antonelli: prima visita, portare gli esami del sangue"_s);
  segna(21, u"Bianchi, controllo del peso"_s);
  segna(30, u"telefonare al dott. Quagliarella"_s);
  quadro(m, u"agenda"_s);
  const QDate giorno = f.Calendar1->selectedDate();
  f.Calendar1->setSelectedDate(giorno.addDays(1));
  f.Calendar1->setSelectedDate(giorno);
  pretendi(f.DBGrid1->item(30, 1)->text().startsWith(u"telefonare"), "the day was not kept");
  clic(f.Command1);
}

}  // namespace

void ufficio() {
  rubrica();
  agenda();
}
