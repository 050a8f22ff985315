#include "core/formcost.h"
#include "core/formnote.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "intake/formanag.h"
#include "intake/formpers.h"
#include "intake/formtipolavoro.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

void annota(QPushButton* pulsante, const QString& testo, const QString& nome = {}) {
  clic(pulsante);
  auto& nota = schermata<Formnote>();
  scrivi(nota.txtnote, testo);
  if (!nome.isEmpty()) quadro(nota, nome);
  clic(nota.cmdclosenote);
}

void recapiti(const Formanag& f) {
  scegli(f.comboprov2, u"PE"_s);
  scegli(f.Combocom2, u"Pescara"_s);
  verifica(!f.Txtcap->text().isEmpty(), u"the municipality brings its postal code"_s);
  scrivi(f.Txtloc, u"Porta Nuova"_s);
  scrivi(f.Txtind, u"via dei Mille 7"_s);
  scrivi(f.txttel1, u"0854210000"_s);
  scrivi(f.Txttel2, u"0854211111"_s);
  scrivi(f.Txtfax, u"0854212222"_s);
  scrivi(f.Txtcell, u"3331234567"_s);
  scrivi(f.Txtmail, u"maria.rossi@posta.example"_s);
}

void abitudini(const Formanag& f) {
  const std::pair<QComboBox*, int> scelte[]{
      {f.Combosc, 0},        {f.Combofigli, 2},      {f.Comboscuola, 5}, {f.Comboprof, 5}, {f.ComboRischi, 2},
      {f.ComboGiorniLav, 4}, {f.ComboOreLav, 7},     {f.Combo1, 0},      {f.Combo3, 1},    {f.ComboVarPeso, 1},
      {f.ComboSovra, 3},     {f.ComboVisitaCons, 2}, {f.ComboMotivo, 2},
  };
  for (const auto& [lista, riga] : scelte) scegli(lista, riga);
  scrivi(f.TxtVerde[0], u"dissociata, due mesi"_s);
  annota(f.Cmdnote[1], u"perdere cinque chili prima dell'estate"_s);
}

template <class S>
void aiuto(QPushButton* domanda, const QString& nome) {
  clic(domanda);
  pretendi(caricata<S>() != nullptr, u"the help window opens: "_s + nome);
  quadro(schermata<S>(), nome);
  schermata<S>().close();
}

}  // namespace

void nuovo_cliente(const Anagrafe& p) {
  clic(schermata<Formsched>().Command10[0]);
  pretendi(caricata<Formanag>() != nullptr, u"a new client begins with the master data"_s);
  const auto& f = schermata<Formanag>();
  scrivi(f.Txtcognome, p.cognome);
  scrivi(f.TxtNOME, p.nome);
  scrivi(f.Txtdatanasc, p.nascita);
  scegli(f.Combosesso, p.sesso);
  scegli(f.comboprov, p.provincia);
  scegli(f.Combocom, p.comune);
  scrivi(f.Txtpeso, p.peso);
  scrivi(f.Txtalt, p.statura);
  scegli(f.Combolav, 2);
  scegli(f.Combocost, 1);
}

void anagrafica(Viaggio&) {
  nuovo_cliente({u"rossi"_s, u"maria"_s, u"12-5-80"_s, u"F"_s, u"RM"_s, u"Roma"_s, u"72"_s, u"170"_s});
  const auto& f = schermata<Formanag>();
  verifica_uguali(f.Txtcodfis->text(), u"RSS MRA 80E52 H501 M"_s, u"fiscal code"_s);
  verifica_uguali(f.Txtanni->text(), u"45"_s, u"age"_s);
  recapiti(f);
  abitudini(f);
  auto& m = schermata<Mdiorza>();
  verifica_uguali(m.Txtsoggetto->text(), u"ROSSI MARIA"_s, u"banner"_s);
  verifica_uguali(m.Txtbmi->text(), u"24,9"_s, u"index of the banner"_s);
  quadro(m, u"anagrafica"_s, u"anagrafica"_s);
  aiuto<Formcost>(f.cmdhelp[0], u"costituzione"_s);
  aiuto<Formtipolavoro>(f.cmdhelp[1], u"tipi_di_lavoro"_s);
}

/// Every field of the personal history.
void personali(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formpers>() != nullptr, u"Avanti leads to the personal history"_s);
  const auto& f = schermata<Formpers>();
  scegli(f.Combo6, {5, 2, 1, 3, 3});
  scegli(f.Combo17, {1, 1, 0, 1, 0, 1, 0});
  for (QCheckBox* c : {f.Check1[0], f.Check1[2], f.Check1[4], f.Check2[0], f.Check2[3]}) clic(c);
  scegli(f.Combo16, {2, 5, 0, 2, 1, 0});
  scrivi(f.Text2[0], u"nessuna"_s);
  annota(f.Cmdnote[1], u"umore altalenante dopo il secondo parto"_s);
  scrivi(f.Txtmed, u"Giovanna Neri"_s);
  scrivi(f.TxtASL, u"codice 048"_s);
  scegli(f.Combo1, {2, 3, 2, 1, 0, 1, 0, 2});
  annota(f.Command8[0], u"regolare, 28 giorni"_s, u"nota"_s);
  for (const std::size_t i : {1U, 2U, 3U, 5U, 6U}) scrivi(f.Text23[i], u"nessuno"_s);
  verifica(f.Combo1[5]->isEnabled() && f.Combo1[7]->isEnabled(), u"a Si opens the months"_s);
  for (const auto* c : f.findChildren<QComboBox*>()) {
    verifica(!c->currentText().isEmpty(), u"a list without a choice: "_s + c->objectName());
  }
  for (const auto* c : f.findChildren<QLineEdit*>()) {
    verifica(!c->text().isEmpty(), u"a field without a text: "_s + c->objectName());
  }
  quadro(m, u"personali"_s, u"personali"_s);
}
