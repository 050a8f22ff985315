#include "diet/formalimenti.h"

#include "base/errori.h"
#include "base/liste.h"
#include "base/numeri.h"
#include "core/attesa.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/sessione.h"
#include "diary/formintegrat.h"
#include "diet/preferenze_archivio.h"
#include "diet/selezione_automatica.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

Archivio base_alimenti() { return Archivio(percorso(u"sa_dieta.jed"_s), accesso, Archivio::Modo::sola_lettura); }

QString si_no(bool si) { return si ? u"1"_s : u"0"_s; }

std::vector<bool> spuntate(const RiquadroPasto& r) {
  std::vector<bool> stati;
  for (const QCheckBox* casella : r.Check) stati.push_back(casella->isChecked());
  return stati;
}

}  // namespace

Formalimenti::Formalimenti() {
  disegna();
  collega_regole();
}

void Formalimenti::collega_regole() {
  for (std::size_t i = 0; i < OptFF.size(); ++i) {
    al_clic(OptFF[i], [this, i] { LabSceltaFF.setText(si_no(i == 1)); });
    al_clic(OptAlim[i], [this, i] { LabSceltaAlim.setText(si_no(i == 1)); });
  }
  al_clic(CmdContinuaFF, [this] { continua_dal_pranzo(); });
  al_clic(CmdContinuaAlimenti, [this] { continua_dalla_scelta(); });
  for (std::size_t i = 0; i < CmdPasto.size(); ++i) al_clic(CmdPasto[i], [this, i] { scegli_pasto(i); });
  for (std::size_t i = 0; i < riquadri.size(); ++i) {
    for (QCheckBox* casella : riquadri[i].Check) al_clic(casella, [this, i] { applica_caselle(i); });
    al_clic(riquadri[i].CmdConferma, [this] { conferma(); });
  }
  connect(MSFlex1, &QTableView::clicked, this,
          [this](const QModelIndex& cella) { esegui_regola([&] { tocca(cella.row(), cella.column()); }); });
  MSFlex1->installEventFilter(this);
}

void Formalimenti::al_caricamento() {
  apri_dati_tmp(Scopo::caricare);
  for (const int pasto : pasti_senza_quota(dati_tmp())) CmdPasto[static_cast<std::size_t>(pasto)]->setEnabled(false);
  leggi_tipo_pranzo();
}

void Formalimenti::all_attivazione() { schermata<Mdiorza>().qualeform.setText(u"7"_s); }

void Formalimenti::alla_chiusura() {
  apri_dati_tmp(Scopo::salvare);
  if (numerico(LabATTUALE.text())) salva_spunte_alimenti();
  salva_tipo_pranzo();
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

// ---- the two opening steps

void Formalimenti::leggi_tipo_pranzo() {
  const auto scelta = leggi_scelta_pranzo(dati_tmp());
  if (!scelta) return;
  LabSceltaFF.setText(si_no(scelta->fast_food));
  LabSceltaFFold.setText(LabSceltaFF.text());
  LabSceltaAlim.setText(si_no(scelta->a_mano));
  OptFF[scelta->fast_food ? 1 : 0]->setChecked(true);
  OptAlim[scelta->a_mano ? 1 : 0]->setChecked(true);
}

void Formalimenti::salva_tipo_pranzo() {
  if (!numerico(LabSceltaFF.text())) return;
  scrivi_scelta_pranzo(dati_tmp(), {fast_food(), LabSceltaAlim.text() == u"1"});
}

void Formalimenti::continua_dal_pranzo() {
  if (!numerico(LabSceltaFF.text())) return;
  FrameSceltaFF->hide();
  if (numerico(LabSceltaAlim.text())) return mostra_pasti();
  FrameSceltaAlimenti->show();
  OptAlim[0]->setFocus();
}

void Formalimenti::continua_dalla_scelta() {
  if (!numerico(LabSceltaAlim.text())) return;
  FrameSceltaAlimenti->hide();
  mostra_pasti();
  if (LabSceltaAlim.text() != u"0") return;
  const Attesa attesa;
  LabSceltaFFold.setText(LabSceltaFF.text());
  apri_dati_tmp(Scopo::salvare);
  Archivio sa_dieta = base_alimenti();
  seleziona_automatico(dati_tmp(), sa_dieta, fast_food());
}

// ---- choice of a meal

int Formalimenti::sel() const { return LabATTUALE.text().toInt() - 1; }

void Formalimenti::scegli_pasto(std::size_t quale) {
  if (griglia_piena()) salva_spunte_alimenti();
  LabATTUALE.setText(QString::number(quale + 1));
  scelti_->riempi({});
  riempi_scheda(sel());
  richiama_spunte_alimenti();
  azzera_frame();
  const auto insieme = insieme_del_pasto(sel(), fast_food());
  if (insieme) riquadri[*insieme].Frame->show();
  guida_integratori_->setVisible(!insieme);
  colora_pulsanti(quale);
}

void Formalimenti::riempi_scheda(int sel) {
  if (sel == scheda_di::integratori) return mostra_integratori_dieta();
  Archivio sa_dieta = base_alimenti();
  modello_->riempi(leggi_alimenti(sa_dieta, sel, fast_food()));
}

void Formalimenti::mostra_integratori_dieta() {
  apri_dati_tmp(Scopo::salvare);
  modello_->riempi(leggi_integratori(dati_tmp()));
  if (!griglia_piena()) apri_integratori({});
}

void Formalimenti::azzera_frame() {
  for (const RiquadroPasto& r : riquadri) r.Frame->hide();
  MSFlex2->hide();
}

// ---- marks

void Formalimenti::tutti_accettati() {
  modello_->cambia([](Scheda& s) {
    for (AlimentoScheda& riga : s) riga.segni[0] = true;
  });
}

void Formalimenti::applica_caselle(std::size_t insieme) {
  const RiquadroPasto& r = riquadri[insieme];
  if (r.Frame->isHidden()) return;
  modello_->cambia([&](Scheda& s) { ::applica_caselle(s, insiemi_caselle()[insieme], spuntate(r)); });
}

void Formalimenti::conferma() {
  azzera_frame();
  MSFlex2->show();
  MSFlex2->setFocus();
  riempi_scelti();
}

/// A click or the space bar on a cell. A supplement opens in its window besides.
void Formalimenti::tocca(int quale, int colonna) {
  const auto riga = static_cast<std::size_t>(quale);
  if (const auto segno = segno_di_colonna(colonna)) {
    if (scheda()[riga].segnato(*segno)) {
      togli_segno(riga, *segno);
    } else {
      imposta_segno(riga, *segno);
    }
    riempi_scelti();
  }
  if (sel() != scheda_di::integratori) return;
  salva_spunte_alimenti();
  apri_integratori(scheda()[riga].valori);
}

bool Formalimenti::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == MSFlex1 && evento->type() == QEvent::KeyPress) {
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    const bool tocco = tasto->key() == Qt::Key_Space || tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter;
    const QModelIndex qui = MSFlex1->currentIndex();
    if (tocco && qui.isValid() && !tasto->isAutoRepeat()) {
      esegui_regola([&] { tocca(qui.row(), qui.column()); });
      return true;
    }
  }
  return QWidget::eventFilter(oggetto, evento);
}

/// Counter of the one obligatory choice of the meal on display; null where there may be many.
Valore* Formalimenti::contatore(Segno segno) {
  if (segno == Segno::ok) return nullptr;
  const bool lv = segno == Segno::LV;
  switch (sel()) {
    case scheda_di::pranzo: return lv ? &contaFissiPranzoLV : &contaFissiPranzoSD;
    case scheda_di::cena: return lv ? &contaFissiCenaLV : &contaFissiCenaSD;
    case scheda_di::integratori: return lv ? &contaFissiIntegratoreLV : &contaFissiIntegratoreSD;
    default: return nullptr;
  }
}

void Formalimenti::imposta_segno(std::size_t riga, Segno segno) {
  if (Valore* conta = contatore(segno)) {
    if (conta->text() != u"0") {
      const QString giorni = segno == Segno::LV ? u"dal Lunedì al Venerdì"_s : u"dal Sabato alla Domenica"_s;
      return messaggio(
          u"ATTENZIONE: Un solo alimento è ammesso come obbligatorio\n"
          "nei giorni %1 e questa scelta è già stata fatta.\n"
          "Per variarla occorre prima eliminare la precedente"_s.arg(giorni));
    }
    conta->setText(u"1"_s);
  }
  modello_->cambia([&](Scheda& s) { ::imposta_segno(s[riga], segno); });
}

void Formalimenti::togli_segno(std::size_t riga, Segno segno) {
  modello_->cambia([&](Scheda& s) { ::togli_segno(s, riga, segno); });
  if (Valore* conta = contatore(segno)) conta->setText(u"0"_s);
}

void Formalimenti::riempi_scelti() { scelti_->riempi(alimenti_scelti(scheda())); }

// ---- storing and restoring

/// From here on the lunch's list is of the type in force.
void Formalimenti::salva_spunte_alimenti() {
  apri_dati_tmp(Scopo::salvare);
  if (sel() == scheda_di::integratori) return salva_integratori(dati_tmp(), scheda());
  const auto insieme = insieme_del_pasto(sel(), fast_food());
  if (!insieme) return;
  salva_spunte(dati_tmp(), sel() + 1, scheda(), insiemi_caselle()[*insieme].campo, spuntate(riquadri[*insieme]));
  if (sel() == scheda_di::pranzo) LabSceltaFFold.setText(LabSceltaFF.text());
}

void Formalimenti::richiama_spunte_alimenti() {
  apri_dati_tmp(Scopo::caricare);
  if (sel() == scheda_di::integratori) {
    prosegui([&] { richiama_integratori(); });
    return;
  }
  prosegui([&] { richiama_check(); });
  prosegui([&] { richiama_righe(); });
}

void Formalimenti::richiama_check() {
  const auto insieme = insieme_del_pasto(sel(), fast_food());
  if (!insieme) return;
  if (sel() == scheda_di::pranzo && LabSceltaFF.text() != LabSceltaFFold.text()) return;
  const auto lista = leggi_caselle(dati_tmp(), insiemi_caselle()[*insieme].campo);
  if (!lista) return;
  const auto& caselle = riquadri[*insieme].Check;
  for (QCheckBox* casella : caselle) casella->setChecked(true);
  for (const QString& indice : elementi(*lista, u';')) {
    bool numero = false;
    const auto i = indice.toUInt(&numero);
    if (numero && i < caselle.size()) caselle[i]->setChecked(false);
  }
}

/// Lunch rows of the other type are dropped.
void Formalimenti::richiama_righe() {
  const int codice = sel() + 1;
  if (sel() == scheda_di::pranzo && LabSceltaFF.text() != LabSceltaFFold.text()) {
    dimentica_spunte(dati_tmp(), codice);
    return tutti_accettati();
  }
  bool trovate = false;
  modello_->cambia([&](Scheda& s) { trovate = ::richiama_righe(dati_tmp(), codice, s); });
  if (!trovate) return tutti_accettati();
  for (const Segno s : {Segno::LV, Segno::SD}) {
    Valore* conta = contatore(s);
    if (conta && std::ranges::any_of(scheda(), [s](const auto& r) { return r.segnato(s); })) conta->setText(u"1"_s);
  }
}

/// The counters stay as they are: after a reload one more supplement can be made obligatory.
void Formalimenti::richiama_integratori() {
  modello_->cambia([](Scheda& s) { ::richiama_integratori(dati_tmp(), s); });
  riempi_scelti();
}

void Formalimenti::apri_integratori(const QStringList& valori) {
  apri_integratore(u"0"_s, valori, [] {
    if (auto* f = caricata<Formalimenti>()) f->rinfresca_integratori();
  });
}

/// The supplements as their window left them. A mark that went with its supplement frees its place.
void Formalimenti::rinfresca_integratori() {
  if (sel() != scheda_di::integratori) return;
  const auto segnato = [this](Segno s) {
    return std::ranges::any_of(scheda(), [s](const auto& r) { return r.segnato(s); });
  };
  const bool lv = segnato(Segno::LV), sd = segnato(Segno::SD);
  modello_->riempi(leggi_integratori(dati_tmp()));
  richiama_spunte_alimenti();
  if (lv && !segnato(Segno::LV)) contaFissiIntegratoreLV.setText(u"0"_s);
  if (sd && !segnato(Segno::SD)) contaFissiIntegratoreSD.setText(u"0"_s);
}
