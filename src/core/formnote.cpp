#include "core/formnote.h"

#include "base/numeri.h"
#include "core/aspetto.h"
#include "core/regole.h"
#include "core/schermate.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Destinazione = std::function<void(int, const QString&)>;

std::map<QString, Destinazione>& rotte() {
  static std::map<QString, Destinazione> r;
  return r;
}

void riconsegna() {
  const Formnote& f = schermata<Formnote>();
  if (const auto rotta = rotte().find(f.labcart.text()); rotta != rotte().end()) {
    rotta->second(round16(valore(f.labindice.text())), f.txtnote->toPlainText());
  }
  scarica<Formnote>();
}

void scrivi(QLabel* riga, const QString& testo) {
  riga->setText(testo);
  riga->setVisible(!testo.isEmpty());
}

}  // namespace

Formnote::Formnote() {
  setObjectName(u"Formnote"_s);
  setWindowTitle(u"Blocco note"_s);
  setModal(true);
  Labcat = nominato(testa({}), u"Labcat"_s);
  labchi = nominato(guida({}), u"labchi"_s);
  labmotivo = nominato(new QLabel, u"labmotivo"_s);
  txtnote = nominato(new QPlainTextEdit, u"txtnote"_s, u"Testo della nota"_s);
  txtnote->setTabChangesFocus(true);
  txtnote->setAccessibleName(u"Nota"_s);
  cmdclosenote = pulsante(u"cmdclosenote"_s, u"Chiudi"_s, u"Riporta la nota nella scheda e chiudi la finestra"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(14, 12, 14, 10);
  colonna->setSpacing(6);
  for (QLabel* titolo : {Labcat, labchi, labmotivo}) {
    titolo->setTextFormat(Qt::PlainText);
    titolo->setAlignment(Qt::AlignLeft);
    colonna->addWidget(titolo);
  }
  colonna->addWidget(txtnote, 1);
  colonna->addLayout(barra({}, {cmdclosenote}));
  resize(440, 300);
  al_clic(cmdclosenote, riconsegna);
}

void Formnote::all_attivazione() {
  txtnote->setFocus();
  txtnote->moveCursor(QTextCursor::End);
  txtnote->insertPlainText(u" "_s);
}

/// Escape closes like the button: a slip of a key must not give up a text.
void Formnote::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape) return cmdclosenote->click();
  QDialog::keyPressEvent(evento);
}

void Formnote::reject() { esegui_regola(scarica<Formnote>); }

void instrada_note(const QString& cart, std::function<void(int indice, const QString& testo)> destinazione) {
  rotte().insert_or_assign(cart, std::move(destinazione));
}

void apri_note(const QString& categoria, const QString& chi, const QString& cart, const QString& indice,
               const QString& testo, const QString& motivo) {
  auto& f = schermata<Formnote>();
  scrivi(f.Labcat, categoria);
  scrivi(f.labmotivo, motivo);
  f.labcart.setText(cart);
  f.labindice.setText(indice);
  scrivi(f.labchi, chi);
  f.txtnote->setPlainText(testo);
  mostra<Formnote>();
}
