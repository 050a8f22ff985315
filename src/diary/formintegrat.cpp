#include "diary/formintegrat.h"

#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/sessione.h"
#include "diary/famiglie.h"
#include "diary/formdiario.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum { nome, energia, protidi, lipidi, glucidi, quantita };

constexpr QPoint posto{133, 233};  // from the main window's corner

/// The boxes in the order of the table's fields.
constexpr std::size_t campi[]{nome, quantita, energia, protidi, lipidi, glucidi};

/// A name is the same only sign by sign; the engine alone would pass over capitals.
constexpr QStringView prima_con_nome = u"rowid = (SELECT min(rowid) FROM %1 WHERE Descrizione = ? COLLATE BINARY)";

void registra(Archivio& dati, const QString& tabella, QVariantList valori) {
  const QVariant chiave = valori.front();
  const int cambiate = dati.esegui_con(
      u"UPDATE %1 SET Descrizione = ?, quantità = ?, calorie = ?, protidi = ?, lipidi = ?, glucidi = ? WHERE "_s.arg(
          tabella) +
          prima_con_nome.toString().arg(tabella),
      valori + QVariantList{chiave});
  if (cambiate > 0) return;
  dati.esegui_con(
      u"INSERT INTO %1 (Descrizione, quantità, calorie, protidi, lipidi, glucidi) VALUES (?,?,?,?,?,?)"_s.arg(tabella),
      valori);
}

}  // namespace

Formintegrat::Formintegrat() {
  disegna();
  collega_regole();
}

void Formintegrat::collega_regole() {
  for (QLineEdit* casella : Text1) al_cambio(casella, [this] { calcola_energia(); });
  al_clic(Command1[0], [this] { salva(); });
  al_clic(Command1[1], [this] { nuovo(); });
  al_clic(Command1[2], [this] { elimina(); });
}

void Formintegrat::all_attivazione() {
  move(schermata<Mdiorza>().mapToGlobal(posto));
  Text1[nome]->setFocus();
}

void Formintegrat::alla_chiusura() {
  Formdiario* diario = caricata<Formdiario>();
  if (diario && !dieta()) diario->aggiorna_integratori();
}

void Formintegrat::reject() { esegui_regola(scarica<Formintegrat>); }

/// Enter in a box goes on to the next: a record typed half would be refused and lost.
void Formintegrat::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && qobject_cast<QLineEdit*>(focusWidget())) {
    focusNextChild();
  } else {
    QDialog::keyPressEvent(evento);
  }
}

void Formintegrat::calcola_energia() {
  const std::array nutrienti{Text1[protidi], Text1[lipidi], Text1[glucidi]};
  if (!std::ranges::all_of(nutrienti, [](const QLineEdit* t) { return numerico(t->text()); })) return;
  const auto grammi = [this](std::size_t quale) { return valore(Text1[quale]->text()); };
  Text1[energia]->setText(testo(grammi(lipidi) * 9 + grammi(glucidi) * 4 + grammi(protidi) * 4));
}

/// From the last box: while all nutrients stand, the energy writes itself again.
void Formintegrat::nuovo() {
  for (auto casella = Text1.rbegin(); casella != Text1.rend(); ++casella) (*casella)->clear();
  Text1[nome]->setFocus();
}

void Formintegrat::salva() {
  if (!std::all_of(Text1.begin() + 1, Text1.end(), [](const QLineEdit* t) { return numerico(t->text()); })) {
    messaggio(u"Attenzione: Valori inseriti imcompatibili !"_s);
    return scarica<Formintegrat>();
  }
  QVariantList valori;
  for (const std::size_t c : campi) {
    valori << (c == nome ? QVariant(Text1[c]->text()) : QVariant(valore(Text1[c]->text())));
  }
  apri_dati_tmp(Scopo::salvare);
  registra(dati_tmp(), dieta() ? u"Integratore_dieta"_s : u"Integratore_diario"_s, valori);
  if (dieta()) {
    avverti_dieta();
  } else if (Formdiario* diario = caricata<Formdiario>()) {
    diario->calcola_totali_nutrienti(pasto_pranzo);
  }
  scarica<Formintegrat>();
}

bool Formintegrat::dieta() const { return Form_loader.text() == u"0"; }

/// The diet's table alone, whichever the window serves. Of two names that differ in a capital the one that is shown
/// goes.
void Formintegrat::elimina() {
  apri_dati_tmp(Scopo::salvare);
  dati_tmp().esegui(
      u"DELETE FROM Integratore_dieta WHERE rowid = (SELECT rowid FROM Integratore_dieta WHERE Descrizione = ?1 "
      "ORDER BY Descrizione = ?1 COLLATE BINARY DESC, rowid LIMIT 1)"_s,
      Text1[nome]->text());
  avverti_dieta();
  scarica<Formintegrat>();
}

/// The rule may open this very window again: it is taken out before it runs.
void Formintegrat::avverti_dieta() {
  if (const auto dopo = std::exchange(dopo_dieta, {})) dopo();
}

void apri_integratore(const QString& modo, const QStringList& valori, std::function<void()> dopo) {
  auto& f = schermata<Formintegrat>();
  f.Form_loader.setText(modo);
  f.dopo_dieta = std::move(dopo);
  f.nuovo();
  for (std::size_t i = 0; i < std::min(std::size(campi), static_cast<std::size_t>(valori.size())); ++i) {
    f.Text1[campi[i]]->setText(valori[static_cast<qsizetype>(i)]);
  }
  mostra<Formintegrat>();
}
