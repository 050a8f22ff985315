#include "diet/formelabora.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/attesa.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/salvataggio.h"
#include "core/sessione.h"
#include "diet/bersagli.h"
#include "diet/dieta.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

const QString scritta_test = u"Elaborazione DIETA"_s;

QString percento(double parte, double tutto) {
  if (tutto == 0) throw Errore(11, "Divisione per zero");
  return fmt(parte * 100 / tutto, "#.00");
}

}  // namespace

Formelabora::Formelabora() {
  disegna();
  collega_regole();
}

void Formelabora::collega_regole() {
  al_clic(Combo1, [this] { scegli_settimana(); });
  al_clic(List1, [this] { scegli_giorno(); });
  for (int i = 0; i < pasti; ++i) {
    al_clic(Option1[static_cast<std::size_t>(i)], [this, i] {
      mostra_pasto(i);
      colora_righe(-1);
      Labindex.setText({});
    });
  }
  al_clic(test, [this] { elabora(); });
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    al_doppio_clic(Text1[i], [this, i] { scegli_alimento(static_cast<int>(i)); });
    Text1[i]->installEventFilter(this);
  }
  al_pressione(Command1, [this] { un_grammo(+1); });
  al_pressione(Command3, [this] { un_grammo(-1); });
  for (QPushButton* b : {Command1, Command3}) {
    al_rilascio(b, [this] {
      if (grammi_scelti()) applica_variazione(Labindex.text().toInt());
    });
  }
  al_clic(Command5[0], [this] {
    salva_dieta();
    salvataggio_generale();
  });
  al_clic(Command5[1], [this] {
    const QString chiede = u"Sei sicuro di voler annullare tutte \nle modifiche apportate alla dieta ?"_s;
    if (!domanda(chiede, u"Orzaline 2003 control"_s)) return;
    annulla_variazioni();
    messaggio(u"Modifiche annullate !"_s);
  });
  allo_scatto(Timer1, [this] {
    Picmemo->hide();
    Timer1->stop();
  });
}

void Formelabora::all_attivazione() {
  schermata<Mdiorza>().qualeform.setText(u"8"_s);
  List1->setCurrentRow(-1);
  test->setEnabled(false);
  test->setText(scritta_test);
  svuota_risultati();
  carica_dieta();
}

void Formelabora::alla_chiusura() { schermata<Mdiorza>().qualeform.setText(u"-1"_s); }

void Formelabora::svuota_risultati() {
  for (QLabel* t : Text1) t->clear();
  for (QLabel* t : Text2) t->clear();
  for (QLineEdit* t : Text4) t->clear();
}

// ---- choice of week, day, meal

/// The end of a search clears the choice of the week: that is a choice too, of a week 0.
void Formelabora::scegli_settimana() {
  List1->setCurrentRow(-1);
  svuota_risultati();
  colora_righe(-1);
  Labindex.setText({});
  const int settimana = Combo1->currentIndex() + 1;
  test->setText(scritta_test + u"\n%1° settimana"_s.arg(settimana));
  test->setEnabled(true);
  motore().settimana_corrente = static_cast<std::int16_t>(settimana);
}

/// The chosen day, -1 for none: the focus alone makes a line current without choosing it.
int Formelabora::giorno_scelto() const {
  const auto scelti = List1->selectedItems();
  return scelti.isEmpty() ? -1 : List1->row(scelti.front());
}

void Formelabora::scegli_giorno() {
  const int settimana = Combo1->currentIndex() + 1, giorno = giorno_scelto();
  if (settimana < 1 || giorno < 0) return;
  svuota_risultati();
  colora_righe(-1);
  Labindex.setText({});
  mostra_totali_giorno(settimana, giorno);
  for (int i = 0; i < pasti; ++i) {
    if (Option1[static_cast<std::size_t>(i)]->isChecked()) mostra_pasto(i);
  }
}

// ---- elaboration

void Formelabora::elabora() {
  test->setText(u"Attendere prego ..."_s);
  for (QLabel* t : Text1) t->clear();
  for (QLabel* t : Text2) t->clear();
  for (std::size_t i = 8; i < Text4.size(); ++i) Text4[i]->clear();
  repaint();
  const Attesa attesa;
  elabora_dieta(motore(), tramite());
}

Tramite Formelabora::tramite() {
  return {.messaggio = [](const Riquadro& r) { messaggio(r.testo, r.titolo, r.icona); },
          .progresso =
              [this](int pasto) {
                ProgressBar1->setValue(pasto);
                ProgressBar1->show();
                ProgressBar1->repaint();
              },
          .termine = [this](bool intera) { termina_elaborazione(intera); },
          .caso = caso_in_uso()};
}

void Formelabora::termina_elaborazione(bool intera) {
  if (intera) {
    Picmemo->show();
    Picmemo->raise();
    Timer1->start();
    QApplication::beep();
  }
  ProgressBar1->setValue(0);
  ProgressBar1->hide();
  test->setText(scritta_test);
  test->setEnabled(false);
  List1->setCurrentRow(-1);
  Combo1->setCurrentIndex(-1);
  test->setEnabled(false);
}

// ---- totals and foods on display

void Formelabora::mostra_totali_giorno(int settimana, int giorno) {
  const Totali t = totali_giorno(motore(), settimana, giorno);
  motore().settimana_corrente = static_cast<std::int16_t>(settimana);
  scrivi_totali_giorno(t);
  scrivi_ideali(giorno);
}

void Formelabora::scrivi_totali_giorno(const Totali& t) {
  const std::array<int, 4> valori{t.calorie, t.protidi, t.lipidi, t.glucidi};
  for (const int v : valori) {
    if (v == 0) return;
  }
  Text4[12]->setText(u"100"_s);
  for (std::size_t i = 0; i < valori.size(); ++i) {
    Text4[8 + i]->setText(QString::number(valori[i]));
    if (i > 0) Text4[12 + i]->setText(percento(valori[i], t.calorie));
  }
}

void Formelabora::scrivi_ideali(int giorno) {
  const auto righe = Archivio(percorso(u"dati.tmp"_s)).righe(u"SELECT * FROM sport"_s);
  if (!righe.empty()) {
    const std::array<QStringView, 4> campi{u"calorie_totali", u"protidi", u"lipidi", u"glucidi"};
    for (std::size_t i = 0; i < campi.size(); ++i) {
      Text4[i]->setText(estrai_valore_giorno(giorno, righe.front()[campi[i]].toString()));
    }
    Text4[4]->setText(u"100"_s);
  }
  for (std::size_t i = 0; i < 3; ++i) {
    if (!numerico(Text4[i]->text())) return;
  }
  const double calorie = valore(Text4[0]->text());
  for (std::size_t i : {1U, 2U}) Text4[4 + i]->setText(percento(valore(Text4[i]->text()), calorie));
  Text4[7]->setText(testo(100 - valore(Text4[5]->text()) - valore(Text4[6]->text())));
}

/// A line that fails is passed over: a meal of more than sixteen foods shows the first sixteen and counts them all.
void Formelabora::mostra_pasto(int pasto) {
  const int settimana = Combo1->currentIndex() + 1, giorno = giorno_scelto();
  if (settimana < 1 || giorno < 0) return;
  for (QLabel* t : Text1) t->clear();
  for (QLabel* t : Text2) t->clear();
  Totali totali;
  std::size_t riga = 0;
  for (int cod1 = 1; cod1 <= 29; ++cod1) {
    for (int posto = 0; posto < posti; ++posto) {
      const voce_pasto& v = motore().menu(settimana, giorno, pasto, posto);
      if (v.cod1 != cod1) continue;
      prosegui([&] { totali.aggiungi(v, grammi(v)); });
      if (riga < Text1.size()) {
        Text2[riga]->setText(v.quant_mod.isEmpty() ? QString::number(v.quant) : v.quant_mod);
        Text1[riga]->setText(v.descr);
      }
      ++riga;
    }
  }
  Labdieta.setText(QString::number(settimana));
  Labgiorno.setText(QString::number(giorno));
  Labpasto.setText(QString::number(pasto));
  scrivi_totali_pasto(totali);
}

void Formelabora::scrivi_totali_pasto(const Totali& t) {
  const std::array<int, 4> valori{t.calorie, t.protidi, t.lipidi, t.glucidi};
  Text4[20]->setText(u"100"_s);
  for (std::size_t i = 0; i < valori.size(); ++i) {
    Text4[16 + i]->setText(QString::number(valori[i]));
    if (i > 0) Text4[20 + i]->setText(t.calorie == 0 ? u"0"_s : percento(valori[i], t.calorie));
  }
}

// ---- grams by hand

void Formelabora::scegli_alimento(int riga) {
  colora_righe(riga);
  Labindex.setText(QString::number(riga));
}

/// The keyboard's way to what the mouse does: the arrows walk the foods, Return or the space bar chooses one.
bool Formelabora::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return QWidget::eventFilter(oggetto, evento);
  const auto qui = std::ranges::find(Text1, oggetto) - Text1.begin();
  const int tasto = static_cast<QKeyEvent*>(evento)->key();
  if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter || tasto == Qt::Key_Space) {
    esegui_regola([&] { scegli_alimento(static_cast<int>(qui)); });
    return true;
  }
  const auto la = qui + (tasto == Qt::Key_Down ? 1 : tasto == Qt::Key_Up ? -1 : 0);
  if (la == qui || la < 0 || la >= std::ssize(Text1)) return QWidget::eventFilter(oggetto, evento);
  Text1[static_cast<std::size_t>(la)]->setFocus(Qt::TabFocusReason);
  return true;
}

/// The grams of the chosen food, where there are a choice and a number.
QLabel* Formelabora::grammi_scelti() const {
  if (!numerico(Labindex.text())) return nullptr;
  QLabel* scritta = Text2[static_cast<std::size_t>(Labindex.text().toInt())];
  return numerico(scritta->text()) ? scritta : nullptr;
}

/// One press is one gram, and nothing keeps a quantity from falling to 0 and below.
void Formelabora::un_grammo(int passo) {
  if (QLabel* scritta = grammi_scelti()) scritta->setText(testo(valore(scritta->text()) + passo));
}

void Formelabora::applica_variazione(int riga) {
  const int settimana = Labdieta.text().toInt(), giorno = Labgiorno.text().toInt(), pasto = Labpasto.text().toInt();
  motore().menu(settimana, giorno, pasto, riga).quant_mod = Text2[static_cast<std::size_t>(riga)]->text();
  // The day totals refreshed are those of the week after: the label already counts from 1.
  mostra_totali_giorno(settimana + 1, giorno);
  mostra_pasto(pasto);
}

void Formelabora::annulla_variazioni() {
  motore().annulla_variazioni();
  for (QLabel* t : Text1) t->clear();
  for (QLabel* t : Text2) t->clear();
}

// ---- saving and reloading

void Formelabora::salva_dieta() {
  if (!esiste_dati_tmp()) {
    return messaggio(u"E' necessario salvare prima i dati anagrafici del cliente"_s, u"Orzaline  control"_s,
                     Icona::critica);
  }
  Archivio dati(percorso(u"dati.tmp"_s));
  if (scrivi_dieta(motore(), dati, schermata<Mdiorza>().Txtcod->text().trimmed()) == 0) return;
  messaggio(u"Dieta salvata"_s, u"Orzaline  control"_s, Icona::esclamazione);
}

void Formelabora::carica_dieta() {
  motore().ripresa_pasto = motore().ripresa_giorno = 0;
  if (dieta_caricata) return;
  {
    Archivio dati(percorso(u"dati.tmp"_s));
    if (leggi_dieta(motore(), dati) == 0) return;
  }
  messaggio(
      u"La dieta precedentemente salvata è stata caricata !\n"
      "Cliccare su elaborazione dieta se si desidera elaborarne un'altra."_s,
      u"Orzaline 2003 control"_s, Icona::informazione);
  dieta_caricata = true;
}
