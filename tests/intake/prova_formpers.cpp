// Stage 3 as the practitioner fills it in: lists that depend on each other, a man's record, smoking, notes.
#include "ambiente.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/formnote.h"
#include "core/salva_carica.h"
#include "core/sezioni_cliente.h"
#include "intake/formpers.h"

using namespace Qt::StringLiterals;

namespace {

struct ProvaPersonale : AmbienteDi<Formpers> {
  void SetUp() override {
    m.show();
    m.Txtcod->setText(u" 7 "_s);
    m.Txtsesso->setText(u"F"_s);
    apri();
  }
  [[nodiscard]] QString rosa() const {
    QString testi;
    for (const QComboBox* c : f->Combo1) testi += c->currentText();
    for (const QLineEdit* c : f->Text23) testi += c ? c->text() : QString();
    return testi;
  }
  void riempi_rosa() const {
    for (QComboBox* c : f->Combo1) c->setCurrentIndex(0);
    f->Combo1[1]->setCurrentIndex(3);
    f->Combo1[2]->setCurrentIndex(2);
    f->Combo1[3]->setEditText(u" lieve, in cura "_s);
    for (QLineEdit* c : f->Text23) {
      if (c) c->setText(u" da anni "_s);
    }
  }
};

}  // namespace

TEST_F(ProvaPersonale, WhatWasFilledInComesBack) {
  EXPECT_EQ(m.qualeform.text(), u"3"_s);
  riempi_rosa();
  scegli(f->Combo16[2], 4);
  scegli(f->Combo17[6], 1);
  scegli(f->Combo6[4], 3);
  QTest::keyClick(f->Check1[4], Qt::Key_Space);
  QTest::keyClick(f->Check2[0], Qt::Key_Space);
  QTest::keyClicks(f->Txtmed, u" D'Angelo "_s);
  QTest::keyClicks(f->TxtASL, u"48"_s);
  const QVariantMap scritti = leggi_controlli(*f, sezione_personale());
  apri();
  QVariantMap attesi = scritti;
  attesi[u"cod_cli"_s] = u"7"_s;
  EXPECT_EQ(carica_riga(dati_tmp(), u"personale"_s), attesi);
  EXPECT_EQ(leggi_controlli(*f, sezione_personale()), scritti);
  for (const auto& [nome, valore] : {std::pair{u"verde"_s, u"-1,-1,4,-1,-1,-1,"_s},
                                     {u"terapia1"_s, u"0,0,0,0,1,"_s},
                                     {u"Combo1"_s, u"0,3,2,0,0,0,0,"_s},
                                     {u"medico"_s, u"D'Angelo"_s},
                                     {u"osteoporosi"_s, u"lieve, in cura"_s},
                                     {u"pillola"_s, u"da anni"_s}}) {
    EXPECT_EQ(scritti.value(nome), valore) << nome.toStdString();
  }
}

TEST_F(ProvaPersonale, TheMonthsAndTheBirthsFollowTheirQuestions) {
  for (const auto& [domanda, mesi] : {std::pair{4, 5}, std::pair{6, 7}}) {
    QComboBox* quando = f->Combo1[static_cast<std::size_t>(mesi)];
    QComboBox* si = f->Combo1[static_cast<std::size_t>(domanda)];
    scegli(si, 0);
    scegli(quando, 7);
    scegli(si, 1);
    EXPECT_EQ(quando->currentIndex(), -1);
    EXPECT_FALSE(quando->isEnabled());
    scegli(si, 0);
    EXPECT_TRUE(quando->isEnabled());
  }
  QComboBox *gravidanze = f->Combo1[1], *parti = f->Combo1[2];
  const std::tuple<int, int, QString> casi[]{{2, 3, u"2"_s}, {2, 1, u"1"_s}, {4, 5, u"4"_s}, {1, 1, u"1"_s}};
  for (const auto& [quante, scelti, restano] : casi) {
    scegli(gravidanze, quante);
    scegli(parti, scelti);
    EXPECT_EQ(parti->currentText(), restano) << quante << ' ' << scelti;
  }
  scegli(gravidanze, 0);
  EXPECT_FALSE(parti->isEnabled());
  EXPECT_EQ(parti->currentIndex(), -1);
  Fallimenti errori;
  scegli(gravidanze, 5);
  EXPECT_EQ(errori.numeri, std::vector{13}) << "more than four is no number";
}

TEST_F(ProvaPersonale, AMansRecordHasNoWomensHistory) {
  riempi_rosa();
  for (const auto& [sesso, aperta] : {std::pair{u"M"_s, false}, {u"F"_s, true}}) {
    m.Txtsesso->setText(sesso);
    apri();
    EXPECT_EQ(rosa(), QString()) << "a later change of sex finds it empty";
    EXPECT_EQ(f->Command8[0]->isEnabled() && f->Text23[0]->isEnabled(), aperta);
  }
  EXPECT_EQ(campo(u"personale"_s, u"Combo1"_s), u"-1,-1,-1,-1,-1,-1,-1,"_s);
}

TEST_F(ProvaPersonale, CigarettesTellTheSmokerUnlessTheyAreNoNumber) {
  const std::tuple<int, int, int> casi[]{{0, 0, 1}, {1, 1, 0}, {8, 1, 1}, {8, 0, 0}, {-1, 1, 1}, {7, 1, 0}};
  for (const auto& [riga, prima, dopo] : casi) {
    salva_riga(dati_tmp(), u"Anamnesi"_s, {{u"fumatore"_s, prima}});
    f->Combo6[0]->setCurrentIndex(riga);
    salva_cliente(3);
    EXPECT_EQ(campo(u"Anamnesi"_s, u"fumatore"_s), dopo) << riga;
  }
}

TEST_F(ProvaPersonale, ANoteGoesBackWhereItCameFrom) {
  const QString psichico = u"Vissuto psichico/"_s, fisiologica = u"Anamnesi Personale Fisiologica/"_s;
  const auto& clinica = schermata<Formfunzio>();
  const auto& controlli = schermata<Formtratta>();
  controlli.Text24[2]->setText(u"01/03/2026"_s);
  const std::tuple<QPushButton*, QLineEdit*, QString> casi[]{
      {f->Cmdnote[0], f->Text2[0], psichico + u"Turbe cognitive"_s},
      {f->Cmdnote[1], f->Text2[1], psichico + u"Turbe affettive"_s},
      {f->Cmdnote[2], f->Txtmed, u"/Medico curante Dr."_s},
      {f->Cmdnote[3], f->TxtASL, u"/Esenzioni ASL"_s},
      {f->Command8[0], f->Text23[0], fisiologica + u"Ciclo mensile"_s},
      {f->Command8[4], f->Combo1[3]->lineEdit(), fisiologica + u"Osteoporosi"_s},
      {f->Command8[6], f->Text23[6], fisiologica + u"Estrogeni"_s},
      {clinica.Command1[3], clinica.Text1[3], u"Anamnesi/Polso/Cuore/Circolo"_s},
      {controlli.Command13[2], controlli.Text22[2], u"Trattamento cliente/Visita del 01/03/2026"_s}};
  for (const auto& [bottone, campo, titoli] : casi) {
    campo->setText(u"lieve"_s);
    bottone->click();
    auto* n = caricata<Formnote>();
    ASSERT_TRUE(n && n->isModal()) << titoli.toStdString();
    EXPECT_EQ(n->Labcat->text() + u'/' + n->labchi->text(), titoli);
    QTest::keyClicks(n->txtnote, u"ma"_s);
    clic(n->cmdclosenote);
    EXPECT_EQ(campo->text(), u"lieve ma"_s) << titoli.toStdString();
  }
}

TEST_F(ProvaPersonale, OnlyTheFrameOfTheNoteEditorGivesATextUp) {
  f->Text2[0]->setText(u"insonnia"_s);
  const auto nota = [&]() -> Formnote& {
    clic(f->Cmdnote[0]);
    return schermata<Formnote>();
  };
  nota().txtnote->setPlainText(u"altro"_s);
  nota().close();
  EXPECT_EQ(caricata<Formnote>(), nullptr);
  EXPECT_EQ(f->Text2[0]->text(), u"insonnia"_s);
  auto& n = nota();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&n));
  EXPECT_EQ(n.focusWidget(), n.txtnote);
  QTest::keyClicks(n.txtnote, u"lieve\rda mesi"_s);
  QTest::keyClick(n.txtnote, Qt::Key_Escape);
  EXPECT_EQ(f->Text2[0]->text(), u"insonnia lieve\nda mesi"_s);
  clic(f->Cmdnote[0]);
  clic(schermata<Formnote>().cmdclosenote);
  EXPECT_EQ(f->Text2[0]->text(), u"insonnia lieve\nda mesi "_s) << "each opening adds a blank";
  apri();
  EXPECT_EQ(f->Text2[0]->text(), u"insonnia lieve\nda mesi"_s) << "saving trims it";
}
