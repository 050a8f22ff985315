// The address book: who is listed where, a person's way into the store, back and out of it.
#include "office/formrubrica.h"

#include "intake/formanag.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso senza_nome{u"Nome e/o cognome non inseriti, uscendo non verranno salvate le modifiche\nUscire ?"_s,
                        u"Errore"_s, false};

struct ProvaRubrica : Ambiente {
  ProvaRubrica() { mostra<Mdiorza>(); }
  Mdiorza& m = schermata<Mdiorza>();

  static Formrubrica& f() { return schermata<Formrubrica>(); }
  void apri(const std::vector<Persona>& persone = {}) {
    Archivio rubrica(percorso(u"rubrica.jed"_s));
    for (const Persona& p : persone) salva_persona(rubrica, p, {});
    m.cmdsopra[12]->click();
  }
  static void lettera(QChar l) {
    const int scheda = l.unicode() - u'A';
    QTest::mouseClick(f().SSTab2, Qt::LeftButton, {}, f().SSTab2->tabRect(scheda).center());
  }
  static QString elenco() { return f().Data1.stringList().join(u", "_s); }
  static void scegli_riga(int riga) { clic(f().DBList1, riga); }
  static QStringList righe(const QString& tabella) {
    return righe_di(Archivio(percorso(u"rubrica.jed"_s)), u"SELECT * FROM "_s + tabella)
        .split(u'|', Qt::SkipEmptyParts);
  }
  static QStringList tutto() {
    return righe(u"Nomi"_s) + righe(u"Abitazione"_s) + righe(u"Ufficio"_s) + righe(u"NumTel"_s);
  }
};

}  // namespace

TEST_F(ProvaRubrica, ALetterListsItsSurnamesWhateverTheyHold) {
  apri({{u"Ugo"_s, u"amato"_s, {}},
        {u"Ada"_s, u"AMATO"_s, {}},
        {u"Pio"_s, u"D'Angelo"_s, {}},
        {u"%"_s, u"D%_*\"';--"_s, {}},
        {u"Eva"_s, u"Èlite"_s, {}},
        {u"Lia"_s, u"3M"_s, {}},
        {u"Ivo"_s, u"%Z"_s, {}},
        {u"Zoe"_s, u"Z"_s, {}}});
  EXPECT_EQ(elenco(), u"Ada AMATO, Ugo amato"_s) << "it opens on A";
  for (const auto& [l, attesi] : {std::pair{u'D', u"% D%_*\"';--, Pio D'Angelo"_s},
                                  {u'E', u""_s},
                                  {u'Z', u"Zoe Z"_s},
                                  {u'A', u"Ada AMATO, Ugo amato"_s}}) {
    lettera(l);
    EXPECT_EQ(elenco(), attesi);
  }
  Archivio(percorso(u"rubrica.jed"_s)).esegui(u"UPDATE Nomi SET NomeCognome = 'Ida Amato' WHERE nome = 'Ada'"_s);
  lettera(u'A');
  EXPECT_EQ(elenco(), u"Ida Amato, Ugo amato"_s) << "a click on the tab that stands reads again";
}

TEST_F(ProvaRubrica, EachBoxGoesToItsFieldAndComesBack) {
  apri({{u"Ada"_s, u"Amato"_s, {}}});
  f().Command1->click();
  EXPECT_TRUE(f().SSTab1->isVisible());
  EXPECT_FALSE(f().SSTab2->isVisible());
  const auto caselle = f().Frame1->findChildren<QLineEdit*>();
  EXPECT_EQ(caselle.size(), 27);
  for (QLineEdit* c : caselle) c->setText(c->objectName());
  f().Text2->setText(u"Abate"_s);
  f().Text29->clear();
  f().Command4->click();
  EXPECT_EQ(elenco(), u"Text1 Abate, Ada Amato"_s);
  const std::pair<QString, QString> attesi[]{
      {u"Nomi"_s, u"2 Text1 Abate Text1 Abate"_s},
      {u"Abitazione"_s, u"2 Text3 Text4 Text5 Text6 Text7"_s},
      {u"Ufficio"_s, u"2 Text10 Text11 Text12 Text13 Text14 Text15 Text16 Text17 Text18 Text19"_s},
      {u"NumTel"_s, u"2 Text20 Text21 Text22 Text23 Text26 Text27 Text28  Text30 Text31"_s}};
  for (const auto& [tabella, riga] : attesi) EXPECT_EQ(righe(tabella).value(1), riga);

  f().Command2->click();
  EXPECT_FALSE(f().Frame1->isVisible()) << "nobody is selected";
  scegli_riga(0);
  f().Command2->click();
  EXPECT_EQ(f().Text31->text(), u"Text31"_s);
  f().Text5->setText(u"L'Aquila"_s);
  f().Command5->click();
  EXPECT_EQ(righe(u"Nomi"_s).size(), 2);
  EXPECT_EQ(righe(u"Abitazione"_s)[1], u"2 Text3 Text4 L'Aquila Text6 Text7"_s);

  f().Command1->click();
  for (const QLineEdit* c : caselle) EXPECT_EQ(c->text(), QString()) << c->objectName().toStdString();
}

TEST_F(ProvaRubrica, WithoutNameOrSurnameNothingIsSaved) {
  apri();
  for (const auto& [nome, cognome] : {std::pair{u"Ada"_s, u""_s}, {u""_s, u"Amato"_s}}) {
    f().Command1->click();
    f().Text1->setText(nome);
    f().Text2->setText(cognome);
    const Dialogo d({senza_nome, con_un_si(senza_nome)});
    for (const bool resta : {true, false}) {
      f().Command3->click();
      EXPECT_EQ(f().Frame1->isVisible(), resta);
    }
  }
  EXPECT_TRUE(tutto().isEmpty());
}

TEST_F(ProvaRubrica, DeletingAsksAndTakesTheFourRows) {
  apri({{u"Ada"_s, u"Amato"_s, {}}, {u"Ugo"_s, u"Arco"_s, {}}, {u"Lia"_s, u"Asti"_s, {}}});
  f().Command6->click();  // nobody is selected
  scegli_riga(1);
  const Atteso chiede{u"Eliminare nominativo Ugo Arco?"_s, u"Conferma eliminazione"_s, false};
  const Dialogo d({chiede, con_un_si(chiede)});
  f().Command6->click();
  EXPECT_EQ(tutto().size(), 12);
  QTest::keyClick(f().DBList1, Qt::Key_Delete);
  EXPECT_EQ(elenco(), u"Ada Amato, Lia Asti"_s);
  EXPECT_EQ(tutto().size(), 8);
  EXPECT_TRUE(tutto().filter(u"2"_s).isEmpty());
}

TEST_F(ProvaRubrica, APersonThatLacksARowIsNotHalfWritten) {
  apri({{u"Ada"_s, u"Amato"_s, {}}});
  Archivio(percorso(u"rubrica.jed"_s)).esegui(u"DELETE FROM NumTel"_s);
  const QStringList prima = tutto();
  scegli_riga(0);
  QTest::mouseDClick(f().DBList1->viewport(), Qt::LeftButton, {}, f().DBList1->visualRect(f().Data1.index(0)).center());
  f().Text2->setText(u"Abate"_s);
  f().Command5->click();
  EXPECT_EQ(tutto(), prima);
  EXPECT_EQ(f().Text2->text(), u"Abate"_s) << "what was typed still stands";
  f().Text1->clear();
  const Dialogo d({con_un_si(senza_nome)});
  f().Command5->click();
  EXPECT_EQ(elenco(), u"Ada Amato"_s);
}

TEST_F(ProvaRubrica, ItStandsBesideAClientAndGivesTheStageBack) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  m.menurubr->trigger();
  EXPECT_TRUE(f().isVisible());
  EXPECT_EQ(m.qualeform.text(), u"0"_s);
  f().Command7->click();
  EXPECT_FALSE(caricata<Formrubrica>());
  EXPECT_TRUE(schermata<Formanag>().isVisible());
  EXPECT_EQ(m.qualeform.text(), u"0"_s);
}
