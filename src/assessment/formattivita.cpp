#include "assessment/formattivita.h"

#include "assessment/attivita_sportive.h"
#include "assessment/formpond.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/aspetto.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/salva_carica.h"

#include <QBarSet>
#include <QFile>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 1;
constexpr std::array ordine_del_giorno{colazione, spuntino, pranzo, merenda, cena};
constexpr QSize misura_figura{250, 120};

}  // namespace

Formattività::Formattività() {
  disegna();
  collega_regole();
}

void Formattività::al_caricamento() {
  disegna_ritmo();
  carica_consumi();
  prendi_razione();
  carica_cliente(codice_stadio);
}

void Formattività::all_attivazione() { schermata<Mdiorza>().qualeform.setText(u"1"_s); }

/// Loaded and closed unseen, as the weight stage does to have the week worked out anew, it leaves the stage in front.
void Formattività::alla_chiusura() {
  salva_cliente(codice_stadio);
  if (!isHidden()) schermata<Mdiorza>().qualeform.setText(u"-1"_s);
  salva_perc_consumi();
}

void Formattività::collega_regole() {
  al_clic(Combo13, [this] { Immaginesport->setPixmap(immagine_attività(Combo13->currentIndex())); });
  for (std::size_t i = 0; i < Combo14.size(); ++i) {
    // Restoring a week passes over the days that fail.
    al_clic(Combo14[i], [this, i] { abbandona([&] { scegli_minuti(i); }); });
    al_cambio(Text14[i], [this, i] { ripartisci_giorno(i); });
  }
  for (std::size_t i = 0; i < CmdUP.size(); ++i) {
    al_cambio(Txt[i], [this, i] { cambia_percentuale(i); });
    al_clic(CmdUP[i], [this, i] { un_punto(i, +1); });
    al_clic(CmdDOWN[i], [this, i] { un_punto(i, -1); });
  }
  al_clic(CmdUtilizza[0], [this] {
    for (std::size_t i = 0; i < percentuali_solite.size(); ++i) Txt[i]->setText(Txt[9 - i]->text());
  });
  al_clic(CmdUtilizza[1], [this] {
    for (std::size_t i = 0; i < percentuali_solite.size(); ++i) Txt[i]->setText(percentuali_solite[i].toString());
  });
}

// ---- the week

void Formattività::prendi_razione() {
  const auto& pond = schermata<Formpond>();
  LabPROT.setText(pond.Text12[0]->text());
  LabLIP.setText(pond.Text12[1]->text());
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    for (QLineEdit* campo : {Text1[i], Text14[i]}) campo->setText(pond.Text10[1]->text());
    Text2[i]->setText(pond.Text11[0]->text());
    Text3[i]->setText(pond.Text11[1]->text());
    Text4[i]->setText(pond.Text11[2]->text());
  }
}

void Formattività::scegli_minuti(std::size_t giorno) {
  const bool con_attività = Combo13->currentIndex() >= 0;
  const int minuti = Combo14[giorno]->currentIndex();
  if (con_attività && minuti > 0) applica_attività(giorno);
  if (minuti <= 0) Text15[giorno]->clear();
  if (minuti >= 0 && numerico(Text1[giorno]->text())) {
    const QString sport = Text15[giorno]->text();
    const int calorie = sport.isEmpty() ? 0 : round16(valore(sport));
    Text14[giorno]->setText(QString::number(round16(round16(valore(Text1[giorno]->text())) + calorie)));
  }
  if (con_attività || minuti < 0) return;
  messaggio(u"Scegliere prima il tipo di attività fisica"_s);
  Combo14[giorno]->setCurrentIndex(-1);
  Combo13->setFocus();
}

void Formattività::applica_attività(std::size_t giorno) {
  const int attività = Combo13->currentIndex();
  const std::int16_t minuti = round16(valore(Combo14[giorno]->currentText()));
  Text15[giorno]->setText(QString::number(calorie_attività(static_cast<std::int16_t>(attività), minuti)));
  TxtAttività[giorno]->setText(QString::number(attività));
  Combo14[giorno]->setToolTip(Combo13->currentText());
}

void Formattività::ripartisci_giorno(std::size_t giorno) {
  for (const QString& t : {LabPROT.text(), LabLIP.text(), Text14[giorno]->text()}) {
    if (!numerico(t)) return;
  }
  const auto r = ripartisci(valore(Text14[giorno]->text()), valore(LabPROT.text()), valore(LabLIP.text()));
  Text2[giorno]->setText(testo(r.protidi));
  Text3[giorno]->setText(testo(r.lipidi));
  Text4[giorno]->setText(testo(r.glucidi));
}

QPixmap immagine_attività(int indice) {
  const auto elenco = attività_sportive();
  if (indice < 0 || indice >= std::ssize(elenco)) return {};
  const QString figura = elenco[static_cast<std::size_t>(indice)].figura.toString();
  const QString file = u":/attivita/%1.svg"_s.arg(figura.section(u'.', 0, 0));
  return QFile::exists(file) ? icona_del_file(file).pixmap(misura_figura) : QPixmap();
}

// ---- the rhythm of the meals

void Formattività::cambia_percentuale(std::size_t pasto) {
  if (numerico(Txt[pasto]->text())) return disegna_ritmo();
  Txt[pasto]->setText(u"0"_s);
  Txt[pasto]->setFocus();
  Txt[pasto]->selectAll();
}

void Formattività::un_punto(std::size_t pasto, int passo) {
  if (!numerico(Txt[pasto]->text())) return;
  const double percento = valore(Txt[pasto]->text());
  if (passo > 0 ? std::floor(percento) >= 100 : std::floor(percento) <= 0) return;
  Txt[pasto]->setText(testo(percento + passo));
  ribilancia(passo > 0 ? u'+' : u'-', pasto == pranzo);
}

void Formattività::ribilancia(QChar segno, bool di_pranzo) {
  std::array<double, 5> percentuali{};
  for (std::size_t i = 0; i < percentuali.size(); ++i) percentuali[i] = valore(Txt[i]->text());
  const PastiPrincipali nuovi = ribilanciati(segno, di_pranzo, percentuali);
  colora_cena(nuovi.cena > 0);
  Txt[cena]->setText(QString::number(nuovi.cena));
  Txt[pranzo]->setText(QString::number(nuovi.pranzo));
}

void Formattività::disegna_ritmo() {
  double minimo = 0, massimo = 10;
  for (std::size_t i = 0; i < ordine_del_giorno.size(); ++i) {
    const double percento = valore(Txt[ordine_del_giorno[i]]->text());
    minimo = std::min(minimo, percento);
    massimo = std::max(massimo, percento);
    ritmo_->replace(static_cast<int>(i), percento);
  }
  // Room for the values at the ends of the bars.
  const double aria = (massimo - minimo) * 0.15;
  scala_->setRange(minimo < 0 ? minimo - aria : 0, massimo + aria);
}
