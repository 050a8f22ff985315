#include "clinic/formfunzio.h"

#include "clinic/formesami.h"
#include "clinic/rischio.h"
#include "core/filtri.h"
#include "core/formnote.h"
#include "core/griglie.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"

#include <QStyle>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 4;
const QString rotta_note = u"8"_s;

/// Writes a factor's mark, which also gives the factor its ink.
void segna(QLabel* dove, const QString& segno, QWidget* fattore) {
  dove->setText(segno);
  fattore->setProperty("rischio", segno);
  fattore->style()->unpolish(fattore);
  fattore->style()->polish(fattore);
}

/// A locked list shows its line as before, and neither mouse nor keyboard changes it.
void blocca(QComboBox* lista) {
  lista->setFocusPolicy(Qt::NoFocus);
  lista->setAttribute(Qt::WA_TransparentForMouseEvents);
}

}  // namespace

Formfunzio::Formfunzio() {
  disegna();
  collega_regole();
  instrada_note(rotta_note, [](int indice, const QString& testo) {
    QLineEdit* nota = schermata<Formfunzio>().Text1.at(static_cast<std::size_t>(indice));
    nota->setText(testo);
    nota->home(false);  // a long note shows its beginning
  });
}

void Formfunzio::al_caricamento() { Timer1->start(); }

void Formfunzio::all_attivazione() {
  schermata<Mdiorza>().qualeform.setText(QString::number(codice_stadio));
  MSFlex2->setRowCount(0);
  carica_cliente(codice_stadio);
  segui_bmi();
}

void Formfunzio::alla_chiusura() {
  if (QWidget* w = focusWidget()) w->clearFocus();  // leaving a field has its rule, whatever leads away
  salva_cliente(codice_stadio);
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

void Formfunzio::collega_regole() {
  for (std::size_t i = 0; i < Command1.size(); ++i) {
    al_clic(Command1[i], [this, i] {
      apri_note(u"Anamnesi"_s, Label1[i]->text(), rotta_note, QString::number(i), Text1[i]->text());
    });
  }
  collega_rischio();
  collega_date();
  al_clic(Command6[0], [this] { apri_esame(inserimento_esame, {}); });
  al_clic(Command6[1], [this] { apri_esame(u"Modifica esame esistente"_s, esame_scelto()); });
  al_clic(Command6[2], [this] { elimina_esame(); });
}

// ---- risk

void Formfunzio::collega_rischio() {
  for (const std::size_t i : {0U, 1U}) {
    al_cambio(TxtRischio[i], [this] {
      if (const auto r = rapporto_vita_fianchi(TxtRischio[0]->text(), TxtRischio[1]->text())) {
        TxtRischio[2]->setText(*r);
      }
    });
  }
  al_cambio(TxtRischio[2], [this] {
    if (const auto s = segno_rapporto(TxtRischio[2]->text())) segna(LabRapporto, *s, TxtRischio[2]);
  });
  al_cambio(TxtRischio[3], [this] {
    const auto s = segno_addome(schermata<Mdiorza>().Txtsesso->text(), TxtRischio[3]->text());
    if (s) segna(LabAddome, *s, TxtRischio[3]);
  });
  for (std::size_t i = 0; i < ComboRischio.size(); ++i) {
    al_clic(ComboRischio[i], [this, i] { cambia_situazione(i); });
  }
  al_cambio(TxtIndici, [this] { TxtLivello->setText(livello_rischio(TxtIndici->text())); });
  allo_scatto(Timer1, [this] { conta_indici(); });
}

void Formfunzio::cambia_situazione(std::size_t quale) {
  const bool presente = ComboRischio[quale]->currentText() == u"Si";
  segna(LabSituazioni[quale], presente ? u"+"_s : u"-"_s, ComboRischio[quale]);
}

/// Overweight is no choice: the banner's index makes it, each time the screen comes in front.
void Formfunzio::segui_bmi() {
  const ClassePeso classe = classe_peso(schermata<Mdiorza>().Txtbmi->text());
  (classe == ClassePeso::obeso ? LabBMI : LabSOVRA)->show();
  if (classe != ClassePeso::normale) ComboRischio[0]->setCurrentText(u"Si"_s);
  if (classe == ClassePeso::obeso) blocca(ComboRischio[0]);
}

void Formfunzio::conta_indici() {
  const std::array segni{LabRapporto, LabAddome, LabSituazioni[0], LabSituazioni[1], LabSituazioni[2]};
  const QString presenti =
      QString::number(std::ranges::count_if(segni, [](const QLabel* s) { return s->text() == u"+"; }));
  if (TxtIndici->text() != presenti) TxtIndici->setText(presenti);
}

// ---- dates

void Formfunzio::collega_date() {
  for (std::size_t i = 0; i < Text11.size(); ++i) {
    i % 4 == 0 ? filtro_data(Text11[i]) : solo_cifre(Text11[i]);
    data_breve_in_uscita(Text11[i]);
  }
  for (std::size_t i = 0; i < Text19.size(); ++i) {
    if (!Text19[i]) continue;
    if (i < 10) filtro_data(Text19[i]);
    data_breve_in_uscita(Text19[i]);
  }
}

// ---- exams

void Formfunzio::abilita_esami() {
  const bool pieno = MSFlex2->rowCount() > 0;
  for (QWidget* w : std::initializer_list<QWidget*>{MSFlex2, Command6[1], Command6[2]}) w->setEnabled(pieno);
  // A grid always has a current line.
  if (pieno) MSFlex2->selectRow(std::max(MSFlex2->currentRow(), 0));
}

void Formfunzio::apri_esame(const QString& titolo, const QStringList& celle) {
  auto& f = schermata<Formesami>();
  f.setWindowTitle(titolo);
  f.riempi(celle);
  mostra<Formesami>();
}

void Formfunzio::aggiungi_esame(const QStringList& celle) {
  aggiungi_riga(MSFlex2, celle);
  MSFlex2->setCurrentCell(MSFlex2->rowCount() - 1, 0);
  abilita_esami();
}

QStringList Formfunzio::esame_scelto() const {
  QStringList celle;
  const int riga = MSFlex2->currentRow();
  for (int c = 0; riga >= 0 && c < MSFlex2->columnCount(); ++c) celle << MSFlex2->item(riga, c)->text();
  return celle;
}

void Formfunzio::cambia_esame(const QStringList& celle) {
  const int riga = MSFlex2->currentRow();
  for (int c = 0; riga >= 0 && c < MSFlex2->columnCount(); ++c) MSFlex2->item(riga, c)->setText(celle.value(c));
}

void Formfunzio::elimina_esame() {
  MSFlex2->removeRow(MSFlex2->currentRow());
  Command6[0]->setFocus();
  abilita_esami();
}
