// Stage 0 as the practitioner fills it in: keys, banner, age, lists of places, fiscal code, photo.
#include "ambiente.h"
#include "core/formcost.h"
#include "core/formnote.h"
#include "core/sezioni.h"
#include "intake/formanag.h"
#include "intake/formminori.h"
#include "intake/formtipolavoro.h"

#include <QClipboard>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

struct ProvaAnagrafica : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();
  Formanag* f{};

  void SetUp() override {
    esterno().oggi = [] { return QDate(2026, 3, 10); };
    m.show();
    m.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m));
    apri();
  }
  void apri() {
    mostra<Formanag>();
    f = caricata<Formanag>();
  }
  void nato(const QString& data) const {
    f->Txtdatanasc->setFocus();
    f->Txtdatanasc->clear();
    QTest::keyClicks(f->Txtdatanasc, data);
    QTest::keyClick(f->Txtdatanasc, Qt::Key_Tab);
  }
  [[nodiscard]] QString eta_di(const QString& data) const {
    f->Txtanni->setText(u"50"_s);
    nato(data);
    if (caricata<Formminori>()) scarica<Formminori>();
    return f->Txtanni->text();
  }
  /// Types in a list's box; once the offered lines stand open, they take the keys.
  static void scrivi_in(QComboBox* lista, const QString& inizio) {
    lista->setFocus();
    lista->lineEdit()->selectAll();
    for (const QChar c : inizio) QTest::keyClick(chi_ascolta(lista), c.toLatin1());
    if (inizio.isEmpty()) QTest::keyClick(lista->lineEdit(), Qt::Key_Delete);
  }
  static QWidget* chi_ascolta(QComboBox* lista) {
    QWidget* offerte = QApplication::activePopupWidget();
    return offerte ? offerte : lista->lineEdit();
  }
  static void cerca(QComboBox* lista, const QString& inizio) {
    scrivi_in(lista, inizio);
    QTest::keyClick(chi_ascolta(lista), Qt::Key_Tab);
  }
  static void scegli_voce(QComboBox* lista, const QString& voce) { scegli(lista, lista->findText(voce)); }
  [[nodiscard]] QString immagine(const QString& nome, const char* formato, QColor colore) const {
    QImage i(40, 30, QImage::Format_RGB32);
    i.fill(colore);
    const QString file = cartella.filePath(nome);
    return i.save(file, formato) ? file : QString();
  }
  [[nodiscard]] QColor colore_foto() const {
    const QImage i = f->picfoto->pixmap().toImage();
    return i.isNull() ? QColor() : i.pixelColor(i.width() / 2, i.height() / 2);
  }
};

}  // namespace

TEST_F(ProvaAnagrafica, TypedKeysAreFilteredAndWritingByProgramIsNot) {
  const std::tuple<QLineEdit*, QString, QString> casi[]{
      {f->Txtcognome, u"de rossi"_s, u"DE ROSSI"_s},  {f->Txtcognome, u"d'amico 1920"_s, u"DAMICO 192"_s},
      {f->TxtNOME, u"Anna-Maria."_s, u"ANNAMARIA"_s}, {f->Txtdatanasc, u"12-5.80"_s, u"12/5/80"_s},
      {f->Txtpeso, u"1a0,0.5"_s, u"100"_s},           {f->Txtalt, u"16x85"_s, u"168"_s},
  };
  for (const auto& [campo, tasti, resta] : casi) {
    campo->clear();
    QTest::keyClicks(campo, tasti);
    EXPECT_EQ(campo->text(), resta);
  }
  QTest::keyClick(f->Txtpeso, Qt::Key_Backspace);
  QTest::keyClicks(f->Txtpeso, u"7"_s);
  EXPECT_EQ(f->Txtpeso->text(), u"107"_s) << "the backspace makes room again";
  f->Txtpeso->setText(u"72,5"_s);
  f->Txtcognome->setText(u"D'Amicò"_s);
  EXPECT_EQ(m.Txtpeso->text(), u"72,5"_s);
  EXPECT_EQ(m.Txtsoggetto->text(), u"D'Amicò ANNAMARIA"_s);
}

TEST_F(ProvaAnagrafica, AccentsAndPastingAreNoKeysOfAName) {
  QKeyEvent tasto(QEvent::KeyPress, Qt::Key_Ograve, Qt::NoModifier, u"ò"_s);
  QApplication::sendEvent(f->Txtcognome, &tasto);
  EXPECT_EQ(f->Txtcognome->text(), u""_s);
  QInputMethodEvent accento;  // typed in two strokes
  accento.setCommitString(u"nò"_s);
  QApplication::sendEvent(f->Txtcognome, &accento);
  EXPECT_EQ(f->Txtcognome->text(), u"N"_s);
  QGuiApplication::clipboard()->setText(u"x'y"_s);
  QTest::keyClick(f->Txtcognome, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(f->Txtcognome->text(), u"N"_s);
  QTest::keyClick(f->Txtdatanasc, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(f->Txtdatanasc->text(), u"x'y"_s);
}

TEST_F(ProvaAnagrafica, TheBannerFollowsAtOnce) {
  f->Txtcod->setText(u"17"_s);
  QTest::keyClicks(f->Txtcognome, u"rossi"_s);
  QTest::keyClicks(f->TxtNOME, u"mara"_s);
  scegli(f->Combosesso, 1);
  f->Txtanni->setText(u"34"_s);
  QTest::keyClicks(f->Txtalt, u"170"_s);
  QTest::keyClicks(f->Txtpeso, u"72"_s);
  EXPECT_EQ(banner(), (QStringList{u"17"_s, u"ROSSI MARA"_s, u"F"_s, u"34"_s, u"170"_s, u"72"_s, u"24,9"_s}));
  EXPECT_EQ(m.qualeform.text(), u"0"_s);
}

TEST_F(ProvaAnagrafica, TheIndexNeedsBothMeasures) {
  const std::tuple<QLineEdit*, QString, QString> passi[]{
      {f->Txtpeso, u"72"_s, {}},          {f->Txtalt, u"170"_s, u"24,9"_s}, {f->Txtalt, u"0"_s, u"24,9"_s},
      {f->Txtalt, u"199,9"_s, u"18,2"_s}, {f->Txtpeso, {}, u"18,2"_s},      {f->Txtpeso, u"72,5"_s, u"18,3"_s},
      {f->Txtpeso, u"1"_s, u",3"_s},
  };
  for (const auto& [campo, testo, indice] : passi) {
    campo->setText(testo);
    EXPECT_EQ(m.Txtbmi->text(), indice) << campo->objectName().toStdString() << ' ' << testo.toStdString();
  }
}

TEST_F(ProvaAnagrafica, TheAgeIsReadOffTheCalendar) {
  const std::pair<QStringView, QStringView> casi[]{
      {u"12-3-80", u"45"},  {u"11/3/1980", u"45"}, {u"10/3/1980", u"45"}, {u"8/3/1980", u"46"},  {u"10/3/2026", u"99"},
      {u"9/3/2026", u"99"}, {u"8/3/2026", u"0"},   {u"10/9/2025", u"0"},  {u"23/6/1936", u"89"}, {u"22/6/1936", u"50"},
      {u"1/1/1920", u"50"}, {u"31/2/1980", u"50"}, {u"", u"50"},
  };
  for (const auto& [data, anni] : casi) {
    EXPECT_EQ(eta_di(data.toString()), anni.toString()) << data.toUtf8().constData();
  }
  nato(u"1-1-1920"_s);
  EXPECT_EQ(f->Txtdatanasc->text(), u"01/01/1920"_s) << "the overflow comes after the date was written out";
}

TEST_F(ProvaAnagrafica, UnderTenANoticeComes) {
  nato(u"1/1/2016"_s);
  EXPECT_EQ(f->Txtanni->text(), u"10"_s);
  EXPECT_EQ(caricata<Formminori>(), nullptr);
  nato(u"1/1/2017"_s);
  auto* avviso = caricata<Formminori>();
  ASSERT_NE(avviso, nullptr);
  EXPECT_TRUE(avviso->isVisible() && avviso->isModal());
  QTest::mouseClick(avviso->Command1, Qt::LeftButton);
  EXPECT_EQ(caricata<Formminori>(), nullptr);
  scarica<Formanag>();
  apri();
  EXPECT_EQ(f->Txtanni->text(), u"9"_s);
  EXPECT_EQ(caricata<Formminori>(), nullptr) << "a screen that loads says nothing";
}

TEST_F(ProvaAnagrafica, WithoutASurnameNothingGoesOn) {
  EXPECT_FALSE(m.Command1[1]->isEnabled() || m.Command2[1]->isEnabled()) << "a new client";
  QTest::keyClicks(f->Txtcognome, u"re"_s);
  EXPECT_TRUE(m.Command1[1]->isEnabled() && m.Command2[1]->isEnabled());
  for (int i = 0; i < 2; ++i) QTest::keyClick(f->Txtcognome, Qt::Key_Backspace);
  QTest::keyClicks(f->Txtcognome, u"  "_s);
  EXPECT_FALSE(m.Command1[1]->isEnabled() || m.Command2[1]->isEnabled());
  EXPECT_EQ(m.Txtsoggetto->text(), u"R "_s) << "the banner keeps the last name";
}

TEST_F(ProvaAnagrafica, PlacesFollowTheirProvince) {
  EXPECT_EQ(f->comboprov->currentIndex(), -1);
  EXPECT_EQ(f->comboprov->count(), f->comboprov2->count());
  scegli_voce(f->comboprov, u"MI"_s);
  EXPECT_GT(f->Combocom->findText(u"Milano"_s), -1);
  EXPECT_EQ(f->Combocom->currentIndex(), -1);
  EXPECT_EQ(f->Combocom2->count(), 0);
  scegli_voce(f->comboprov, u"EE"_s);
  EXPECT_EQ(f->Labcom->text(), u"Paese di nascita"_s);
  EXPECT_GT(f->Combocom->findText(u"Francia"_s), -1);
  EXPECT_EQ(f->Combocom->findText(u"Milano"_s), -1);
  scegli_voce(f->comboprov, u"RM"_s);
  EXPECT_EQ(f->Labcom->text(), u"Comune Nascita"_s);
  scegli_voce(f->comboprov2, u"CA"_s);
  scegli_voce(f->Combocom2, u"Capoterra"_s);
  EXPECT_EQ(f->Txtcap->text(), u"09012"_s);
  f->Txtcap->setText(u"09010"_s);
  scegli_voce(f->Combocom2, u"Capoterra"_s);
  EXPECT_EQ(f->Txtcap->text(), u"09012"_s) << "the line that already stands is chosen again";
}

TEST_F(ProvaAnagrafica, AMunicipalityIsFoundByTyping) {
  scegli_voce(f->comboprov2, u"CA"_s);
  cerca(f->Combocom2, u"capot"_s);
  EXPECT_EQ(f->Combocom2->currentText(), u"Capoterra"_s);
  EXPECT_EQ(f->Txtcap->text(), u"09012"_s);
  const int scelta = f->Combocom2->currentIndex(), righe = f->Combocom2->count();
  for (const QString& altro : {u"s"_s, u"atlantide"_s, u""_s}) {
    cerca(f->Combocom2, altro);
    EXPECT_EQ(f->Combocom2->currentText(), u"Capoterra"_s) << altro.toStdString();
    EXPECT_EQ(f->Combocom2->currentIndex(), scelta);
  }
  EXPECT_EQ(f->Combocom2->count(), righe) << "no line is added";
  f->Txtcap->clear();
  cerca(f->Combocom2, u"capoterra"_s);
  EXPECT_EQ(f->Txtcap->text(), u"09012"_s);
  scrivi_in(f->Combocom2, u"cagl"_s);
  QApplication::activePopupWidget()->hide();
  scarica<Formanag>();
  apri();
  EXPECT_EQ(f->Combocom2->currentText(), u"Cagliari"_s) << "a screen that closes takes what is being typed";
}

TEST_F(ProvaAnagrafica, TheFiscalCodeGrowsFieldByField) {
  QTest::keyClicks(f->Txtcognome, u"bianchi"_s);
  EXPECT_EQ(f->Txtcodfis->text(), u""_s) << "no municipality yet";
  scegli_voce(f->comboprov, u"MI"_s);
  cerca(f->Combocom, u"milano"_s);
  EXPECT_EQ(f->Txtcodfis->text(), u"BNC   F205 "_s);
  QTest::keyClicks(f->TxtNOME, u"maria"_s);
  EXPECT_EQ(f->Txtcodfis->text(), u"BNC MRA  F205 "_s);
  nato(u"1-11-75"_s);
  EXPECT_TRUE(f->Txtcodfis->text().startsWith(u"BNC MRA 751101 F205 "_s));
  scegli(f->Combosesso, 1);
  EXPECT_EQ(f->Txtcodfis->text(), u"BNC MRA 75S41 F205 V"_s);
  scegli_voce(f->comboprov, u"EE"_s);
  EXPECT_EQ(f->Txtcodfis->text(), u"BNC MRA 75S41 F205 V"_s) << "a province alone changes nothing";
  scegli_voce(f->Combocom, u"Francia"_s);
  EXPECT_TRUE(f->Txtcodfis->text().startsWith(u"BNC MRA 75S41 Z110 "_s));
}

TEST_F(ProvaAnagrafica, APhotoIsAPictureOfThreeKinds) {
  QString scelta, filtro;
  esterno().scegli_file = [&](const QString&, const QString&, const QString& f_) {
    filtro = f_;
    return scelta;
  };
  const auto cerca_foto = [&](const QString& file) {
    scelta = file;
    QTest::mouseClick(f->Commapri, Qt::LeftButton);
  };
  cerca_foto(immagine(u"volto.JPG"_s, "JPG", Qt::red));
  EXPECT_EQ(filtro, u"Immagini (*.bmp *.gif *.jpg)"_s);
  EXPECT_EQ(f->commdialog, scelta);
  EXPECT_GT(colore_foto().red(), 200);
  cerca_foto(immagine(u"volto.png"_s, "PNG", Qt::blue));
  EXPECT_EQ(f->commdialog, u""_s);
  EXPECT_GT(colore_foto().red(), 200) << "another kind is not loaded";
  cerca_foto(immagine(u"volto.bmp"_s, "BMP", Qt::blue));
  EXPECT_GT(colore_foto().blue(), 200);
  scrivi(cartella.filePath(u"rotta.gif"_s), "GIF89a, e poi niente");
  cerca_foto(cartella.filePath(u"rotta.gif"_s));
  EXPECT_GT(colore_foto().blue(), 200) << "an unreadable picture leaves the old one";
  cerca_foto({});
  EXPECT_EQ(f->commdialog, u""_s);
}

TEST_F(ProvaAnagrafica, WhatWasFilledInComesBack) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  f = caricata<Formanag>();
  const QString codice = f->Txtcodfis->text();
  EXPECT_EQ(codice, u"FRR MRC 88H05 A944 V"_s);
  EXPECT_EQ(f->Combocom->currentText(), u"Bologna"_s);
  scegli(f->ComboOreLav, 12);
  QTest::mouseClick(m.cmdsopra[1], Qt::LeftButton);
  f = caricata<Formanag>();
  EXPECT_EQ(f->ComboOreLav->currentText(), u">12"_s);
  EXPECT_EQ(f->Txtcodfis->text(), codice);
  EXPECT_EQ(f->Combocom2->currentText(), u"Bologna"_s);
}

TEST_F(ProvaAnagrafica, HelpOpensTheTables) {
  const auto apre = [&]<class S>(QPushButton* aiuto) {
    QTest::mouseClick(aiuto, Qt::LeftButton);
    auto* tabella = caricata<S>();
    ASSERT_TRUE(tabella && tabella->isModal());
    QTest::keyClick(tabella, Qt::Key_Escape);
    EXPECT_EQ(caricata<S>(), nullptr);
  };
  apre.operator()<Formcost>(f->cmdhelp[0]);
  apre.operator()<Formtipolavoro>(f->cmdhelp[1]);
}

TEST_F(ProvaAnagrafica, ANoteComesBackAndDisturbsNothing) {
  scegli_voce(f->comboprov, u"MI"_s);
  for (std::size_t i = 0; i < f->Cmdnote.size(); ++i) {
    f->TxtVerde[i]->setPlainText(u"due\nrighe"_s);
    QTest::mouseClick(f->Cmdnote[i], Qt::LeftButton);
    auto& n = schermata<Formnote>();
    EXPECT_EQ(n.labchi->text(), i == 0 ? u"Tipo e durata"_s : u"Aspettative attuali"_s);
    QTest::keyClicks(n.txtnote, u"e mezza"_s);
    QTest::mouseClick(n.cmdclosenote, Qt::LeftButton);
    EXPECT_EQ(f->TxtVerde[i]->toPlainText(), u"due\nrighe e mezza"_s);
  }
  EXPECT_EQ(f->comboprov->currentText(), u"MI"_s) << "what is not yet saved stays";
}
