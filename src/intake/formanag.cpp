#include "intake/formanag.h"

#include "base/archivio.h"
#include "base/date.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/dialoghi.h"
#include "core/filtri.h"
#include "core/formcost.h"
#include "core/formnote.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"
#include "intake/codice_fiscale.h"
#include "intake/formminori.h"
#include "intake/formtipolavoro.h"

#include <QImageReader>
#include <QPixmap>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 0, eta_minima = 10, cifre_di_misura = 3;
constexpr int nascita = 1, residenza = 2;  // which of the two places
const QString rotta_note = u"0"_s;
const QDate inizio_del_calendario(1899, 12, 30);

/// The line chosen in a list, whatever stands typed in its box.
QString scelto(const QComboBox* lista) { return lista->itemText(lista->currentIndex()); }

}  // namespace

Formanag::Formanag() {
  disegna();
  collega_regole();
}

void Formanag::al_caricamento() {
  txtdatavisita->setDate(oggi());
  carica_cliente(codice_stadio);
}

void Formanag::all_attivazione() {
  schermata<Mdiorza>().qualeform.setText(u"0"_s);
  apri_comuni();
  carica_cliente(codice_stadio);
  segui_cognome();
}

void Formanag::alla_chiusura() {
  if (QWidget* w = focusWidget()) w->clearFocus();  // leaving a field has its rule, whatever leads away
  salva_cliente(codice_stadio);
  chiudi_comuni();
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

void Formanag::collega_regole() {
  Mdiorza& m = schermata<Mdiorza>();
  al_cambio(Txtcod, [this, &m] { m.Txtcod->setText(Txtcod->text()); });
  al_cambio(Txtcognome, [this] { cambia_cognome(); });
  al_cambio(TxtNOME, [this] { cambia_soggetto(); });
  filtro_nome(Txtcognome);
  filtro_nome(TxtNOME);
  al_clic(Combosesso, [this, &m] {
    m.Txtsesso->setText(Combosesso->currentText());
    calcola_codfis();
  });
  al_cambio(Txtanni, [this] { cambia_anni(); });
  al_cambio(Txtpeso, [this, &m] {
    m.Txtpeso->setText(Txtpeso->text());
    aggiorna_bmi();
  });
  al_cambio(Txtalt, [this, &m] {
    m.Txtstatura->setText(Txtalt->text());
    aggiorna_bmi();
  });
  for (QLineEdit* misura : {Txtpeso, Txtalt}) solo_cifre(misura, cifre_di_misura);
  al_clic(cmdhelp[0], mostra<Formcost>);
  al_clic(cmdhelp[1], mostra<Formtipolavoro>);
  al_clic(Commapri, [this] { scegli_foto(); });
  collega_luoghi();
  collega_note();
}

void Formanag::collega_luoghi() {
  filtro_data(Txtdatanasc);
  all_uscita(Txtdatanasc, [this] {
    mettiAnni();
    calcola_codfis();
  });
  al_clic(comboprov, [this] { cambia_provincia(nascita); });
  al_clic(comboprov2, [this] { cambia_provincia(residenza); });
  al_clic(Combocom, [this] { calcola_codfis(); });
  al_clic(Combocom2, [this] { trova_comune(scelto(Combocom2), 1); });
}

void Formanag::collega_note() {
  for (std::size_t i = 0; i < Cmdnote.size(); ++i) {
    al_clic(Cmdnote[i], [this, i] {
      apri_note(windowTitle(), TxtVerde[i]->accessibleName(), rotta_note, QString::number(i),
                TxtVerde[i]->toPlainText());
    });
  }
  instrada_note(rotta_note, [](int i, const QString& testo) {
    schermata<Formanag>().TxtVerde.at(static_cast<std::size_t>(i))->setPlainText(testo);
  });
}

// ---- subject

void Formanag::segui_cognome() {
  Mdiorza& m = schermata<Mdiorza>();
  const bool pieno = !Txtcognome->text().trimmed().isEmpty();
  m.Command1[1]->setEnabled(pieno);
  m.Command2[1]->setEnabled(pieno);
}

void Formanag::cambia_cognome() {
  segui_cognome();
  if (!Txtcognome->text().trimmed().isEmpty()) cambia_soggetto();
}

void Formanag::cambia_soggetto() {
  schermata<Mdiorza>().Txtsoggetto->setText(Txtcognome->text() + u' ' + TxtNOME->text());
  calcola_codfis();
}

void Formanag::cambia_anni() {
  schermata<Mdiorza>().Txtetà->setText(Txtanni->text());
  if (!isHidden() && numerico(Txtanni->text()) && valore(Txtanni->text()) < eta_minima) mostra<Formminori>();
}

void Formanag::mettiAnni() {
  const QDate nato = data_di(Txtdatanasc->text());
  if (!nato.isValid()) return;
  Txtdatanasc->setText(data_breve(nato));
  abbandona([&] {
    const std::int16_t giorni = round16(static_cast<double>(nato.daysTo(oggi())));
    Txtanni->setText(QString::number(inizio_del_calendario.addDays(giorni).year() % 100));
  });
}

void Formanag::calcola_codfis() {
  if (Combocom->currentIndex() < 0) return;
  Txtcodfis->setText(componi_codice({.cognome = Txtcognome->text(),
                                     .nome = TxtNOME->text(),
                                     .data = Txtdatanasc->text(),
                                     .sesso = Combosesso->currentText(),
                                     .comune = trova_comune(scelto(Combocom), 0)}));
}

void Formanag::aggiorna_bmi() {
  if (!numerico(Txtpeso->text()) || !numerico(Txtalt->text())) return;
  const double metri = std::floor(valore(Txtalt->text())) / 100;
  if (metri == 0) return;
  const auto peso = static_cast<float>(valore(Txtpeso->text()));
  schermata<Mdiorza>().Txtbmi->setText(fmt(static_cast<float>(peso / (metri * metri)), "#.0"));
}

// ---- places

void Formanag::apri_comuni() {
  comuni_.apri();
  for (QComboBox* lista : {comboprov, comboprov2}) riempi_lista(lista, comuni_.province());
}

void Formanag::chiudi_comuni() { comuni_.chiudi(); }

void Formanag::cambia_provincia(int quale) {
  const QString provincia = (quale == nascita ? comboprov : comboprov2)->currentText();
  if (provincia.isEmpty()) return;
  const bool estera = provincia == provincia_estera;
  if (quale == nascita) {
    Labcom->setText(estera ? u"Paese di nascita"_s : u"Comune Nascita"_s);
  } else {
    labcom2->setText(estera ? u"Paese di residenza"_s : u"Comune Residenza"_s);
  }
  riempi_comuni(provincia, quale);
}

void Formanag::riempi_comuni(const QString& provincia, int quale) {
  riempi_lista(quale == nascita ? Combocom : Combocom2, comuni_.di(provincia));
}

QString Formanag::trova_comune(const QString& nome, int modo) {
  const Comune* c = comuni_.trova(nome);
  if (!c) return {};
  if (modo == 1) Txtcap->setText(c->cap);
  return c->codice;
}

// ---- photo

void Formanag::scegli_foto() {
  static const QStringList tipi{u"gif"_s, u"bmp"_s, u"jpg"_s};
  commdialog = esterno().scegli_file(u"Foto del cliente"_s, percorso({}), u"Immagini (*.bmp *.gif *.jpg)"_s);
  if (!tipi.contains(commdialog.right(3).toLower())) commdialog.clear();
  if (!commdialog.isEmpty()) abbandona([this] { mostra_foto(commdialog); });
}

void Formanag::mostra_foto(const QString& file) {
  QImageReader lettore(file);
  lettore.setAutoTransform(true);
  const QImage immagine = lettore.read();
  if (immagine.isNull()) throw Errore(481, "Immagine non valida: " + file.toStdString());
  const qreal punti = picfoto->devicePixelRatioF();
  const QSizeF posto = QSizeF(picfoto->contentsRect().size()) * punti;
  QPixmap foto = QPixmap::fromImage(immagine.scaled(posto.toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
  foto.setDevicePixelRatio(punti);
  picfoto->setPixmap(foto);
}
