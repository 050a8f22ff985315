#include "intake/formpers.h"

#include "base/numeri.h"
#include "core/aspetto.h"
#include "core/formnote.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 3, posizione_si = 0;
// The routes of the notes back into the fields.
const QString rotta_generale = u"2"_s, rotta_rosa = u"3"_s, rotta_osteoporosi = u"6"_s, rotta_gravidanze = u"7"_s;

/// The months are asked for only after a "Si".
void apri_mesi(const QComboBox* domanda, QComboBox* mesi) {
  const bool si = domanda->currentIndex() == posizione_si;
  if (!si) mesi->setCurrentIndex(-1);
  mesi->setEnabled(si);
}

/// A note on a field bears the field's label, which is its accessible name.
void annota(const QString& categoria, const QWidget* campo, const QString& rotta, std::size_t indice,
            const QString& testo) {
  apri_note(categoria, campo->accessibleName(), rotta, QString::number(indice), testo);
}

}  // namespace

Formpers::Formpers() {
  disegna();
  collega_regole();
  collega_note();
}

void Formpers::al_caricamento() {
  carica_cliente(codice_stadio);
  if (schermata<Mdiorza>().Txtsesso->text() == u"M") svuota_rosa();
}

void Formpers::all_attivazione() { schermata<Mdiorza>().qualeform.setText(QString::number(codice_stadio)); }

void Formpers::alla_chiusura() {
  salva_cliente(codice_stadio);
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

void Formpers::svuota_rosa() {
  FrameRosa->setEnabled(false);
  for (QComboBox* lista : Combo1) lista->setCurrentIndex(-1);
  Combo1[3]->clearEditText();
  for (QLineEdit* campo : Text23) {
    if (campo) campo->clear();
  }
}

void Formpers::collega_regole() {
  al_clic(Combo1[4], [this] { apri_mesi(Combo1[4], Combo1[5]); });
  al_clic(Combo1[6], [this] { apri_mesi(Combo1[6], Combo1[7]); });
  al_clic(Combo1[1], [this] { cambia_gravidanze(); });
  al_clic(Combo1[2], [this] { cambia_parti(); });
}

/// The last line, ">4", is no number: choosing it fails.
void Formpers::cambia_gravidanze() {
  const QString gravidanze = Combo1[1]->currentText();
  if (gravidanze.isEmpty()) return;
  const bool alcuna = valore(gravidanze) != 0;
  Combo1[2]->setEnabled(alcuna);
  if (!alcuna) Combo1[2]->setCurrentIndex(-1);
}

void Formpers::cambia_parti() {
  const QString gravidanze = Combo1[1]->currentText();
  if (Combo1[2]->currentText() > gravidanze) Combo1[2]->setCurrentIndex(Combo1[2]->findText(gravidanze));
}

// ---- notes

void Formpers::collega_note() {
  const std::array campi{Text2[0], Text2[1], Txtmed, TxtASL};
  for (std::size_t i = 0; i < campi.size(); ++i) {
    const QString categoria = i < Text2.size() ? u"Vissuto psichico"_s : QString();
    al_clic(Cmdnote[i],
            [campo = campi[i], categoria, i] { annota(categoria, campo, rotta_generale, i, campo->text()); });
  }
  const QString fisiologica = u"Anamnesi Personale Fisiologica"_s;
  for (std::size_t i = 0; i < Text23.size(); ++i) {
    if (QLineEdit* campo = Text23[i]) {
      al_clic(Command8[i], [campo, fisiologica, i] { annota(fisiologica, campo, rotta_rosa, i, campo->text()); });
    }
  }
  al_clic(Command8[4],
          [this, fisiologica] { annota(fisiologica, Combo1[3], rotta_osteoporosi, 4, Combo1[3]->currentText()); });

  instrada_note(rotta_generale, [](int i, const QString& testo) {
    const Formpers& f = schermata<Formpers>();
    QLineEdit* campo = i < 2 ? f.Text2.at(static_cast<std::size_t>(i)) : i == 2 ? f.Txtmed : f.TxtASL;
    scrivi_da_capo(*campo, testo);
  });
  instrada_note(rotta_rosa, [](int i, const QString& testo) {
    scrivi_da_capo(*schermata<Formpers>().Text23.at(static_cast<std::size_t>(i)), testo);
  });
  instrada_note(rotta_osteoporosi,
                [](int, const QString& testo) { scrivi_da_capo(*schermata<Formpers>().Combo1[3]->lineEdit(), testo); });
  instrada_note(rotta_gravidanze,
                [](int, const QString& testo) { schermata<Formpers>().Combo1[1]->setCurrentText(testo); });
}
