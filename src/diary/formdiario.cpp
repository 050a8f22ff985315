#include "diary/formdiario.h"

#include "base/errori.h"
#include "base/numeri.h"
#include "core/griglie.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"
#include "diary/famiglie.h"
#include "diary/formintegrat.h"
#include "diary/totali.h"
#include "reports/formstampe.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum { colonna_cod1, colonna_cod2, colonna_dose = 5 };
enum { glucidi, lipidi, protidi, kcal, nutrienti };  // of the boxes of a meal

constexpr int giorno = pasti_del_giorno;  // the sixth block of boxes

constexpr std::size_t casella(int pasto, int nutriente) {
  return static_cast<std::size_t>(pasto * nutrienti + nutriente);
}

Archivio& dati() {
  apri_dati_tmp(Scopo::salvare);
  return dati_tmp();
}

/// The chosen line, -1 for none: the focus alone makes a line current without choosing it.
int scelta(const QListWidget* lista) {
  const auto scelti = lista->selectedItems();
  return scelti.isEmpty() ? -1 : lista->row(scelti.front());
}

/// Fills a list anew, with no line chosen and without a sound.
void riempi(QListWidget* lista, const QStringList& righe) {
  const QSignalBlocker muta(lista);
  lista->clear();
  lista->addItems(righe);
}

QStringList nomi_integratori() {
  QStringList nomi;
  for (const Riga& r : dati().righe(u"SELECT Descrizione FROM Integratore_diario"_s)) {
    nomi << r[u"Descrizione"].toString();
  }
  return nomi;
}

QStringList riga_di(const Alimento& a) {
  QStringList testi;
  for (const std::int16_t codice : {a.cod1, a.cod2, a.cod3, a.cod4}) testi << QString::number(codice);
  testi << a.descrizione << QString();
  for (const double valore : {a.calorie, a.protidi, a.lipidi, a.glucidi}) testi << testo(valore);
  return testi;
}

bool numerici(const auto& caselle) {
  return std::ranges::all_of(caselle, [](const QLineEdit* t) { return numerico(t->text()); });
}

}  // namespace

Formdiario::Formdiario() {
  disegna();
  collega_regole();
}

void Formdiario::collega_regole() {
  al_clic(ListPASTI, [this] { scegli_pasto(); });
  al_clic(ListGRUPPI, [this] { scegli_gruppo(); });
  al_clic(ListAlimenti, [this] { scegli_famiglia(); });
  connect(MSFlex1, &QTableWidget::cellClicked, this, [this](int riga) { apri_dose(riga); });
  connect(MSFlex1, &QTableWidget::cellActivated, this, [this](int riga) {
    apri_dose(riga);
    Combodose->showPopup();
  });
  connect(MSFlex1, &QTableWidget::currentCellChanged, this, [this] { chiudi_dose(); });
  connect(MSFlex1->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { posa_dose(); });
  MSFlex1->installEventFilter(this);
  al_clic(Combodose, [this] { prendi_dose(); });
  Combodose->installEventFilter(this);
  for (QLineEdit* t : TxtLivelli) al_cambio(t, [this] { somma_giorno(); });
  al_clic(Command1, [] { apri_stampa(u"8"_s, u"v"_s); });
}

void Formdiario::al_caricamento() {
  apri_dati_tmp(Scopo::caricare);
  riempi_controlli(*this, sezione_diario(), carica_riga(dati_tmp(), u"diario"_s));
  for (int pasto = 0; pasto < pasti_del_giorno; ++pasto) calcola_totali_nutrienti(pasto);
}

void Formdiario::all_attivazione() { schermata<Mdiorza>().qualeform.setText(u"9"_s); }

void Formdiario::alla_chiusura() {
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
  salva_cliente(9);
}

void salva_diario() {
  const QVariantMap riga = leggi_controlli(schermata<Formdiario>(), sezione_diario());
  const bool intera = riga.size() == std::ssize(sezione_diario());
  salva_righe(dati_tmp(), u"diario"_s, intera ? std::vector{riga} : std::vector<QVariantMap>());
}

// ---- meal, group, family

std::int16_t Formdiario::trova_cod1() const {
  return ::trova_cod1(scelta(ListPASTI), scelta(ListGRUPPI), scelta(ListAlimenti));
}

void Formdiario::scegli_pasto() {
  const int pasto = scelta(ListPASTI);
  azzera_liste();
  riempi(ListGRUPPI, gruppi_diario(pasto));
  ListGRUPPI->setEnabled(ListGRUPPI->count() > 0);
  if (!ListGRUPPI->isEnabled()) riempi(ListAlimenti, famiglie_diario(pasto, -1));
}

void Formdiario::scegli_gruppo() {
  azzera_liste();
  const int gruppo = scelta(ListGRUPPI);
  gruppo == gruppo_integratori ? mostra_integratori()
                               : riempi(ListAlimenti, famiglie_diario(scelta(ListPASTI), gruppo));
}

void Formdiario::mostra_integratori() {
  riempi(ListAlimenti, nomi_integratori());
  if (ListAlimenti->count() == 0) apri_integratore(u"1"_s, {});
}

void Formdiario::aggiorna_integratori() {
  if (scelta(ListGRUPPI) == gruppo_integratori) riempi(ListAlimenti, nomi_integratori());
}

void Formdiario::scegli_famiglia() {
  chiudi_dose();
  riempi_griglia();
  mostra_dosi();
}

void Formdiario::azzera_liste() {
  chiudi_dose();
  riempi(ListAlimenti, {});
  MSFlex1->setRowCount(0);
}

// ---- the grid and its doses

void Formdiario::riempi_griglia() {
  MSFlex1->setRowCount(0);
  MSFlex1->scrollToTop();
  if (scelta(ListGRUPPI) == gruppo_integratori) {
    const auto scelti = ListAlimenti->selectedItems();
    if (!scelti.isEmpty()) apri_integratore(u"1"_s, {scelti.front()->text()});
    return;
  }
  for (const Alimento& a : alimenti_diario(trova_cod1())) {
    if (a.quantita != 0) aggiungi_riga(MSFlex1, riga_di(a));
  }
}

/// By position, not by the number of the food: the rows were stored as they stood on the grid.
void Formdiario::mostra_dosi() {
  const auto dosi = dati().righe(u"SELECT dose FROM scelte_diario WHERE cod1 = ? AND pasto = ? ORDER BY cod2"_s,
                                 trova_cod1(), scelta(ListPASTI));
  const int righe = std::min(MSFlex1->rowCount(), static_cast<int>(dosi.size()));
  for (int riga = 0; riga < righe; ++riga) {
    const QVariant dose = dosi[static_cast<std::size_t>(riga)][u"dose"];
    if (!dose.isNull()) MSFlex1->item(riga, colonna_dose)->setText(testo(dose.toDouble()));
  }
}

void Formdiario::apri_dose(int riga) {
  {
    const QSignalBlocker muta(Combodose);
    Combodose->setCurrentIndex(-1);
  }
  MSFlex1->setCurrentCell(riga, colonna_dose);
  posa_dose();
  Combodose->show();
  Combodose->setFocus();
}

void Formdiario::posa_dose() {
  const QTableWidgetItem* cella = MSFlex1->item(MSFlex1->currentRow(), colonna_dose);
  // Over the grid line as well: a list is a pixel higher than a line.
  if (cella) Combodose->setGeometry(MSFlex1->visualItemRect(cella).adjusted(0, 0, 0, 1));
}

void Formdiario::chiudi_dose() {
  const bool fuoco = Combodose->hasFocus();
  Combodose->hide();
  if (fuoco) MSFlex1->setFocus();
}

void Formdiario::prendi_dose() {
  const int riga = MSFlex1->currentRow(), scelto = Combodose->currentIndex();
  if (riga >= 0) MSFlex1->item(riga, colonna_dose)->setText(scelto > 0 ? Combodose->currentText() : QString());
  chiudi_dose();
  MSFlex1->setFocus();
  if (scelto >= 0) salva_scelte();
  if (riga >= 0) MSFlex1->selectRow(riga);
}

void Formdiario::salva_scelte() {
  const int pasto = scelta(ListPASTI);
  std::vector<QVariantList> righe;
  for (int riga = 0; riga < MSFlex1->rowCount(); ++riga) {
    const auto numero = [&](int colonna) {
      const QString t = MSFlex1->item(riga, colonna)->text();
      return numerico(t) ? QVariant(valore(t)) : QVariant();
    };
    righe.push_back({numero(colonna_cod1), numero(colonna_cod2), numero(colonna_dose), pasto});
  }
  dati().transazione([&] {
    dati().esegui(u"DELETE FROM scelte_diario WHERE cod1 = ? AND pasto = ?"_s, trova_cod1(), pasto);
    dati().esegui_serie(u"INSERT INTO scelte_diario (cod1, cod2, dose, pasto) VALUES (?,?,?,?)"_s, righe);
  });
  calcola_totali_nutrienti(pasto);
}

/// The picker is a list that drops down: no key and no wheel changes a dose while it is closed.
bool Formdiario::tasto_su_dose(int tasto, const QString& testo) {
  if (tasto == Qt::Key_Escape) {
    chiudi_dose();
    return true;
  }
  const bool apre = tasto == Qt::Key_Up || tasto == Qt::Key_Down || tasto == Qt::Key_Return || tasto == Qt::Key_Enter ||
                    tasto == Qt::Key_PageUp || tasto == Qt::Key_PageDown || tasto == Qt::Key_Home ||
                    tasto == Qt::Key_End || (!testo.isEmpty() && testo[0].isPrint());
  if (!apre) return false;
  Combodose->showPopup();
  if (!testo.isEmpty() && testo[0].isDigit()) Combodose->view()->keyboardSearch(testo);
  return true;
}

bool Formdiario::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == Combodose && evento->type() == QEvent::Wheel) {
    evento->ignore();
    return true;
  }
  if (oggetto == Combodose && evento->type() == QEvent::KeyPress) {
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    return tasto_su_dose(tasto->key(), tasto->text());
  }
  // Who comes with the Tab key finds a line to move from.
  const bool con_tab = oggetto == MSFlex1 && evento->type() == QEvent::FocusIn &&
                       static_cast<QFocusEvent*>(evento)->reason() == Qt::TabFocusReason;
  if (con_tab && MSFlex1->selectedItems().isEmpty()) MSFlex1->selectRow(0);
  return QWidget::eventFilter(oggetto, evento);
}

// ---- totals and rhythm

void Formdiario::calcola_totali_nutrienti(int pasto) {
  const auto porzioni = porzioni_del_pasto(dati(), pasto);
  abbandona([&] {
    const TotaliPasto t = totali(porzioni);
    TxtLivelli[casella(pasto, glucidi)]->setText(fmt(t.glucidi, "0.00"));
    TxtLivelli[casella(pasto, lipidi)]->setText(fmt(t.lipidi, "0.00"));
    TxtLivelli[casella(pasto, protidi)]->setText(fmt(t.protidi, "0.00"));
    TxtLivelli[casella(pasto, kcal)]->setText(QString::number(t.kcal));
  });
}

void Formdiario::somma_giorno() {
  std::array<const QLineEdit*, pasti_del_giorno> energie{};
  for (int pasto = 0; pasto < pasti_del_giorno; ++pasto) {
    energie[static_cast<std::size_t>(pasto)] = TxtLivelli[casella(pasto, kcal)];
  }
  if (!numerici(energie)) return;
  for (int nutriente = kcal; nutriente >= glucidi; --nutriente) {
    float somma = 0;
    for (int pasto = 0; pasto < pasti_del_giorno; ++pasto) {
      somma += static_cast<float>(valore(TxtLivelli[casella(pasto, nutriente)]->text()));
    }
    TxtLivelli[casella(giorno, nutriente)]->setText(nutriente == kcal ? testo(somma) : fmt(somma, "0.00"));
  }
  calcola_ritmo();
}

void Formdiario::calcola_ritmo() {
  std::array<double, 4> energie{};
  for (int pasto = 0; pasto < 4; ++pasto) {
    energie[static_cast<std::size_t>(pasto)] = valore(TxtLivelli[casella(pasto, kcal)]->text());
  }
  const auto quote = ritmo(energie, valore(TxtLivelli[casella(giorno, kcal)]->text()));
  if (!quote) return;
  for (std::size_t i = 0; i < TxtRAG.size(); ++i) TxtRAG[i]->setText(testo((*quote)[i]));
}
