// Stage 4: marks and count of the risk, what is stored of drugs, pressure and exams, and what comes back.
#include "clinic/formfunzio.h"

#include "clinic/formesami.h"
#include "core/mdiorza.h"
#include "core/salva_carica.h"
#include "core/sezioni.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

struct ProvaFunzionale : AmbienteDi<Formfunzio> {
  void SetUp() override {
    attiva_finestra();
    m.Txtsesso->setText(u"M"_s);
    apri();
  }
  [[nodiscard]] std::array<QLabel*, 5> fattori() const {
    return {f->LabRapporto, f->LabAddome, f->LabSituazioni[0], f->LabSituazioni[1], f->LabSituazioni[2]};
  }
  [[nodiscard]] QString segni() const { return testi(fattori(), u"|"_s); }
  [[nodiscard]] QString riga(int r) const {
    QStringList celle;
    for (int c = 0; c < f->MSFlex2->columnCount(); ++c) celle << f->MSFlex2->item(r, c)->text();
    return celle.join(u'|');
  }
  static Formesami& esame() { return schermata<Formesami>(); }
  void nuovo_esame(const QString& data, const QString& nome, const QString& valore) {
    clic(f->Command6[0]);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&esame()));
    QTest::keyClicks(esame().Textdata, data);
    QTest::keyClicks(esame().Textesame, nome);
    QTest::keyClicks(esame().Textvalore, valore);
    clic(esame().Command1[0]);
  }
  static std::vector<QVariantMap> righe(const QString& tabella) { return carica_righe(dati_tmp(), tabella); }
};

}  // namespace

TEST_F(ProvaFunzionale, MeasuresAndChoicesGetTheirMarks) {
  EXPECT_EQ(segni(), u"||||"_s);
  const std::tuple<std::size_t, QString, QString, QString> passi[]{
      {0, u"90"_s, {}, u"||||"_s},          {1, u"0"_s, {}, u"||||"_s},
      {1, u"100"_s, u"0,9"_s, u"+||||"_s},  {0, u"97"_s, u"1,0"_s, u"-||||"_s},
      {0, u"abc"_s, u"1,0"_s, u"-||||"_s},  {1, u"-5"_s, u"1,0"_s, u"-||||"_s},
      {3, u"102"_s, u"1,0"_s, u"-|-|||"_s}, {3, u"102,5"_s, u"1,0"_s, u"-|+|||"_s},
      {3, u"?"_s, u"1,0"_s, u"-|+|||"_s},   {0, QString(400, u'9'), u"1,0"_s, u"-|+|||"_s}};
  for (const auto& [quale, testo, rapporto, attesi] : passi) {
    f->TxtRischio[quale]->setText(testo);
    EXPECT_EQ(f->TxtRischio[2]->text(), rapporto) << testo.toStdString();
    EXPECT_EQ(segni(), attesi) << testo.toStdString();
  }
  m.Txtsesso->setText(u"F"_s);
  f->TxtRischio[3]->setText(u"88"_s);
  EXPECT_EQ(segni(), u"-|-|||"_s);
  f->TxtRischio[3]->setText(u"88,1"_s);
  scegli(f->ComboRischio[1], 0);
  scegli(f->ComboRischio[2], 1);
  EXPECT_EQ(segni(), u"-|+||+|-"_s);
  EXPECT_EQ(f->ComboRischio[1]->palette().color(QPalette::Text), QColor(255, 0, 0));
  EXPECT_EQ(f->ComboRischio[2]->palette().color(QPalette::Text), QColor(0, 0, 0));
  m.Txtsesso->clear();
  f->TxtRischio[3]->setText(u"50"_s);
  EXPECT_EQ(segni(), u"-|+||+|-"_s) << "without a sex no limit holds";
}

TEST_F(ProvaFunzionale, TheCountFollowsAndNamesTheLevel) {
  const std::array livelli{u""_s,        u"Presente"_s,      u"Aumentato"_s,
                           u"Elevato"_s, u"Molto elevato"_s, u"Estremamente elevato"_s};
  EXPECT_EQ(f->TxtIndici->text(), u"0"_s);
  for (std::size_t n = 1; n < livelli.size(); ++n) {
    fattori()[n - 1]->setText(u"+"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->TxtIndici->text(), QString::number(n), 2000);
    EXPECT_EQ(f->TxtLivello->text(), livelli[n]);
  }
  QTimer* conta = f->Timer1;
  scarica<Formfunzio>();
  EXPECT_FALSE(conta->isActive());
}

TEST_F(ProvaFunzionale, TheIndexOfTheBannerForcesOverweight) {
  f->ComboRischio[0]->setCurrentIndex(1);
  // index, stored choice afterwards, label, locked
  const std::tuple<QString, int, bool, bool> casi[]{{u""_s, 1, true, false},
                                                    {u"24,0"_s, 1, true, false},
                                                    {u"24,1"_s, 0, true, false},
                                                    {u"30,0"_s, 0, true, false},
                                                    {u"30,1"_s, 0, false, true}};
  for (const auto& [bmi, riga, sovra, bloccata] : casi) {
    m.Txtbmi->setText(bmi);
    apri();
    EXPECT_EQ(f->ComboRischio[0]->currentIndex(), riga) << bmi.toStdString();
    EXPECT_EQ(f->LabSOVRA->isVisible(), sovra) << bmi.toStdString();
    EXPECT_EQ(f->LabBMI->isVisible(), !sovra) << bmi.toStdString();
    EXPECT_EQ(f->ComboRischio[0]->focusPolicy() == Qt::NoFocus, bloccata) << bmi.toStdString();
  }
  EXPECT_EQ(segni(), u"||+||"_s);
  m.Txtbmi->setText(u"27,0"_s);
  salva_riga(dati_tmp(), u"Anamnesi"_s, {{u"sovrappeso"_s, 1}});
  f->all_attivazione();
  scarica<Formfunzio>();
  EXPECT_EQ(righe(u"Anamnesi"_s).front()[u"sovrappeso"_s], 0) << "a stored No does not outlive an activation";
}

TEST_F(ProvaFunzionale, DrugsAndPressureAreKeptByTheirDate) {
  QTest::keyClicks(f->Text19[0], u"3-2.26"_s);
  QTest::keyClicks(f->Text19[10], u"L'eutirox"_s);
  f->Text19[1]->setText(u"da un mese"_s);
  f->Text19[11]->setText(u"Ramipril"_s);
  f->Text19[22]->setText(u"dosi senza data"_s);
  f->Text11[4]->setFocus();
  QTest::keyClicks(f->Text11[4], u"1.3.26"_s);
  QTest::keyClicks(f->Text11[5], u"1a35"_s);
  f->Text11[6]->setText(u"ottanta"_s);
  f->Text11[8 + 1]->setText(u"120"_s);
  f->Text11[5]->setFocus();
  EXPECT_EQ(f->Text11[4]->text(), u"01/03/2026"_s);
  f->Text19[0]->setFocus();
  apri();
  EXPECT_EQ(
      righe(u"farmaci"_s),
      (std::vector<QVariantMap>{{{u"date_f"_s, u"03/02/2026"_s}, {u"farmaci"_s, u"L'eutirox"_s}, {u"dosi_gg"_s, u""_s}},
                                {{u"farmaci"_s, u"Ramipril"_s}, {u"dosi_gg"_s, u""_s}}}));
  EXPECT_EQ(righe(u"pressione"_s), (std::vector<QVariantMap>{{{u"data_p"_s, u"01/03/2026"_s}, {u"max"_s, 135LL}}}));
  EXPECT_EQ(f->Text11[0]->text() + f->Text11[1]->text(), u"01/03/2026135"_s) << "rows close up";
  EXPECT_EQ(f->Text19[1]->text() + f->Text19[11]->text(), u"Ramipril"_s);
  apri();
  EXPECT_EQ(righe(u"farmaci"_s).size(), 1U) << "a drug without a date goes at the second save";
}

TEST_F(ProvaFunzionale, ANumberBeyondItsFieldEndsTheProgramAndLeavesTheRestWhole) {
  nuovo_esame(u"1/2/26"_s, u"Glicemia"_s, u"92"_s);
  f->Text11[0]->setText(u"1/2/26"_s);
  salva_cliente(4);
  f->Text11[1]->setText(u"40000"_s);
  Fallimenti falliti;
  m.cmdsopra[1]->click();
  EXPECT_EQ(falliti.numeri, std::vector{6});
  EXPECT_TRUE(esiste_dati_tmp());
  chiudi_archivi();
  apri_dati_tmp(Scopo::caricare);
  EXPECT_EQ(dati_tmp().righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"], u"ok"_s);
  EXPECT_EQ(righe(u"esami"_s).size(), 1U);
  EXPECT_EQ(righe(u"pressione"_s).size(), 1U) << "the former reading stays";
}

TEST_F(ProvaFunzionale, ExamsAreAddedChangedAndRemoved) {
  const auto abilitati = [this] {
    EXPECT_EQ(f->MSFlex2->isEnabled(), f->Command6[1]->isEnabled());
    EXPECT_EQ(f->MSFlex2->isEnabled(), f->Command6[2]->isEnabled());
    return f->MSFlex2->isEnabled();
  };
  EXPECT_FALSE(abilitati());
  nuovo_esame(u"1-2-26"_s, u"Glicemia"_s, u"92"_s);
  nuovo_esame(u"ieri"_s, u"Colesterolo"_s, u"> 4"_s);
  EXPECT_TRUE(abilitati());
  f->MSFlex2->selectRow(0);
  for (const bool tenuto : {false, true}) {
    EXPECT_EQ(riga(0), u"01/02/2026|Glicemia|92|||"_s);
    clic(f->Command6[1]);
    EXPECT_EQ(esame().windowTitle(), u"Modifica esame esistente"_s);
    EXPECT_EQ(esame().Textdata->text() + esame().Textvalore->text(), u"01/02/202692"_s);
    esame().Textmin->setText(u"70"_s);
    esame().Textmax->setText(u"100"_s);
    esame().Txtreferto->setText(u"nella norma"_s);
    QTest::keyClick(esame().Txtreferto, tenuto ? Qt::Key_Return : Qt::Key_Escape);
    EXPECT_EQ(caricata<Formesami>(), nullptr);
  }
  apri();
  EXPECT_EQ(riga(0), u"01/02/2026|Glicemia|nella norma|92|70|100"_s) << "the report comes back under the value";
  EXPECT_EQ(riga(1), u"|Colesterolo||> 4||"_s) << "what is no date is not stored";
  apri();
  EXPECT_EQ(riga(0), u"01/02/2026|Glicemia|100|nella norma|92|70"_s) << "and moves on at each save and load";
  for (int i = 0; i < 2; ++i) clic(f->Command6[2]);
  EXPECT_FALSE(abilitati());
  scarica<Formfunzio>();
  EXPECT_TRUE(righe(u"esami"_s).empty());
}
