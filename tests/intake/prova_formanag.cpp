// Stage 0 as the practitioner fills it in: keys, banner, age, lists of places, fiscal code, photo.
#include "ambiente.h"
#include "core/formnote.h"
#include "core/sezioni.h"
#include "intake/formanag.h"
#include "intake/formminori.h"

#include <QClipboard>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

struct ProvaAnagrafica : AmbienteDi<Formanag> {
  void SetUp() override {
    esterno().oggi = [] { return QDate(2026, 3, 10); };
    attiva_finestra();
    apri();
  }
  void nato(const QString& data) const {
    f->Txtdatanasc->setFocus();
    riscrivi(f->Txtdatanasc, data);
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
  [[nodiscard]] QColor colore_foto() const { return f->picfoto->pixmap().toImage().pixelColor(9, 9); }
};

}  // namespace

TEST_F(ProvaAnagrafica, TypedKeysAreFilteredAndWritingByProgramIsNot) {
  const std::tuple<QLineEdit*, QString, QString> casi[]{
      {f->Txtcognome, u"de rossi"_s, u"DE ROSSI"_s},  {f->Txtcognome, u"d'amico 1920"_s, u"DAMICO 192"_s},
      {f->TxtNOME, u"Anna-Maria."_s, u"ANNAMARIA"_s}, {f->Txtdatanasc, u"12-5.80"_s, u"12/5/80"_s},
      {f->Txtpeso, u"1a0,0.5"_s, u"100"_s},           {f->Txtalt, u"16x85"_s, u"168"_s},
  };
  for (const auto& [campo, tasti, resta] : casi) {
    riscrivi(campo, tasti);
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
  ASSERT_TRUE(caricata<Formminori>() && caricata<Formminori>()->isModal());
  clic(caricata<Formminori>()->Command1);
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
  const auto trova = [this](const QString& comune) { return f->Combocom->findText(comune) >= 0; };
  scegli_voce(f->comboprov, u"MI"_s);
  EXPECT_TRUE(trova(u"Milano"_s) && f->Combocom->currentIndex() == -1 && f->Combocom2->count() == 0);
  scegli_voce(f->comboprov, u"EE"_s);
  EXPECT_EQ(f->Labcom->text(), u"Paese di nascita"_s);
  EXPECT_TRUE(trova(u"Francia"_s) && !trova(u"Milano"_s));
  scegli_voce(f->comboprov, u"RM"_s);
  EXPECT_EQ(f->Labcom->text(), u"Comune Nascita"_s);
  scegli_voce(f->comboprov2, u"CA"_s);
  for (int volta = 0; volta < 2; ++volta) {
    scegli_voce(f->Combocom2, u"Capoterra"_s);
    EXPECT_EQ(f->Txtcap->text(), u"09012"_s) << "also where the line already stands";
    f->Txtcap->setText(u"09010"_s);
  }
}

TEST_F(ProvaAnagrafica, AMunicipalityIsFoundByTyping) {
  scegli_voce(f->comboprov2, u"CA"_s);
  cerca(f->Combocom2, u"capot"_s);
  EXPECT_EQ(f->Combocom2->currentText() + f->Txtcap->text(), u"Capoterra09012"_s);
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
  apri();
  EXPECT_EQ(f->Combocom2->currentText(), u"Cagliari"_s) << "a screen that closes takes what is being typed";
}

TEST_F(ProvaAnagrafica, TheFiscalCodeGrowsFieldByField) {
  QTest::keyClicks(f->Txtcognome, u"bianchi"_s);
  const std::pair<std::function<void()>, QString> passi[]{
      {[] {}, u""_s},  // no municipality yet
      {[this] { scegli_voce(f->comboprov, u"MI"_s), cerca(f->Combocom, u"milano"_s); }, u"BNC   F205 "_s},
      {[this] { QTest::keyClicks(f->TxtNOME, u"maria"_s); }, u"BNC MRA  F205 "_s},
      {[this] { nato(u"1-11-75"_s); }, u"BNC MRA 751101 F205 "_s},
      {[this] { scegli(f->Combosesso, 1); }, u"BNC MRA 75S41 F205 V"_s},
      {[this] { scegli_voce(f->comboprov, u"EE"_s); }, u"BNC MRA 75S41 F205 V"_s},  // a province changes nothing
      {[this] { scegli_voce(f->Combocom, u"Francia"_s); }, u"BNC MRA 75S41 Z110 "_s}};
  for (const auto& [passo, codice] : passi) {
    passo();
    EXPECT_EQ(f->Txtcodfis->text().left(std::max<qsizetype>(codice.size(), 1)), codice);
  }
}

TEST_F(ProvaAnagrafica, APhotoIsAPictureOfThreeKinds) {
  QString scelta, filtro;
  esterno().scegli_file = [&](const QString&, const QString&, const QString& f_) {
    filtro = f_;
    return scelta;
  };
  scrivi(cartella.filePath(u"rotta.gif"_s), "GIF89a, e poi niente");
  const std::tuple<QString, bool, bool> casi[]{
      // whether its name is kept, whether the blue one stands then
      {immagine(u"volto.JPG"_s, "JPG", Qt::red), true, false},
      {immagine(u"volto.png"_s, "PNG", Qt::blue), false, false},
      {immagine(u"volto.bmp"_s, "BMP", Qt::blue), true, true},
      {cartella.filePath(u"rotta.gif"_s), true, true},  // unreadable: the old one stays
      {{}, false, true}};
  for (const auto& [file, tenuto, azzurra] : casi) {
    scelta = file;
    clic(f->Commapri);
    EXPECT_EQ(f->commdialog, tenuto ? file : QString());
    EXPECT_GT(azzurra ? colore_foto().blue() : colore_foto().red(), 200) << file.toStdString();
  }
  EXPECT_EQ(filtro, u"Immagini (*.bmp *.gif *.jpg)"_s);
}

TEST_F(ProvaAnagrafica, WhatWasFilledInComesBack) {
  ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  f = caricata<Formanag>();
  scegli(f->ComboOreLav, 12);
  clic(m.cmdsopra[1]);
  f = caricata<Formanag>();
  EXPECT_EQ(f->ComboOreLav->currentText(), u">12"_s);
  EXPECT_EQ(f->Txtcodfis->text(), u"FRR MRC 88H05 A944 V"_s);
  EXPECT_EQ(f->Combocom->currentText() + f->Combocom2->currentText(), u"BolognaBologna"_s);
  EXPECT_EQ(banner(), u"2|FERRI MARCO|M|38|168|74|26,2"_s);
}

TEST_F(ProvaAnagrafica, ANoteComesBackAndDisturbsNothing) {
  scegli_voce(f->comboprov, u"MI"_s);
  for (std::size_t i = 0; i < f->Cmdnote.size(); ++i) {
    f->TxtVerde[i]->setPlainText(u"due\nrighe"_s);
    clic(f->Cmdnote[i]);
    QTest::keyClicks(schermata<Formnote>().txtnote, QString::number(i));
    clic(schermata<Formnote>().cmdclosenote);
    EXPECT_EQ(f->TxtVerde[i]->toPlainText(), u"due\nrighe %1"_s.arg(i));
  }
  EXPECT_EQ(f->comboprov->currentText(), u"MI"_s) << "what is not yet saved stays";
}
