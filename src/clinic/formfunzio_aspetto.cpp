#include "clinic/formfunzio.h"
#include "core/aspetto.h"
#include "core/griglie.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr Colonna colonne_esami[]{{u"Data ", 1000, Qt::AlignLeft},  {u"Esame sostenuto ", 2000, Qt::AlignLeft},
                                  {u"Valore", 600, Qt::AlignRight}, {u"Min", 600, Qt::AlignRight},
                                  {u"Max", 600, Qt::AlignRight},    {u"Referto", 10000, Qt::AlignLeft}};
constexpr int larghezza_data = 72, larghezza_misura = 44, larghezza_lettura = 34, larghezza_scelta = 52,
              larghezza_dosi = 60;
constexpr int intervallo_conta = 500;  // ms

QLabel* segno(const QString& nome) {
  auto* e = nominato(new QLabel, nome);
  e->setAlignment(Qt::AlignCenter);
  e->setFixedWidth(12);
  QFont grassetto = e->font();
  grassetto.setBold(true);
  e->setFont(grassetto);
  return e;
}

QLineEdit* campo(const QString& nome, std::size_t indice, const QString& suggerimento, const QString& detto) {
  auto* c = nominato(new QLineEdit, nome_indice(nome, indice), suggerimento);
  c->setAccessibleName(detto);
  return c;
}

}  // namespace

void Formfunzio::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formfunzio"_s);
  setWindowTitle(u"Anamnesi Patologica"_s);
  auto* griglia = new QGridLayout(this);
  griglia->setContentsMargins(6, 4, 6, 6);
  griglia->setSpacing(6);
  griglia->addWidget(disegna_anamnesi(), 0, 0);
  auto* destra = new QVBoxLayout;
  destra->setSpacing(6);
  destra->addWidget(disegna_rischio(), 1);
  destra->addWidget(disegna_pressione());
  griglia->addLayout(destra, 0, 1);
  griglia->addWidget(disegna_farmaci(), 1, 0);
  griglia->addWidget(disegna_esami(), 1, 1);
  griglia->setColumnStretch(0, 1);
  griglia->setRowStretch(0, 1);
  Timer1 = new QTimer(this);
  Timer1->setInterval(intervallo_conta);
}

QWidget* Formfunzio::disegna_anamnesi() {
  static constexpr std::array<QStringView, 8> scritte{
      u"Patologie in corso", u"Traumatismi/Chirurgia", u"Cute e annessi", u"Polso/Cuore/Circolo", u"Polmoni", u"Addome",
      u"App. locomotore",    u"Intolleranze/Allergie"};
  const Cornice c = cornice(u"Anamnesi"_s);
  nominato(c.box, u"Frame1"_s);
  for (std::size_t i = 0; i < scritte.size(); ++i) {
    const QString scritta = scritte[i].toString();
    const int fila = static_cast<int>(i);
    Text1[i] = nominato(new QLineEdit, nome_indice(u"Text1", i), scritta);
    Label1[i] = nominato(riga(*c.griglia, fila, scritta, Text1[i]), nome_indice(u"Label1", i));
    Command1[i] =
        pulsantino(nome_indice(u"Command1", i), u"…"_s, u"Apri blocco note per indicare maggiori informazioni"_s);
    c.griglia->addWidget(Command1[i], fila, 2);
  }
  return c.box;
}

QWidget* Formfunzio::disegna_rischio() {
  const Cornice c = cornice(u"Rischio cardiovascolare"_s);
  nominato(c.box, u"Frame2"_s);
  const std::array misure{u"Circonferenza vita cm."_s, u"Circonferenza fianchi cm."_s, u"Rapporto vita/fianchi"_s,
                          u"Circonferenza addome"_s};
  for (std::size_t i = 0; i < misure.size(); ++i) {
    const QString nome = nome_indice(u"TxtRischio", i);
    TxtRischio[i] = i == 2 ? campo_calcolato(nome, larghezza_misura)
                           : campo_numero(nome, u"Misura in centimetri"_s, larghezza_misura);
    riga(*c.griglia, static_cast<int>(i), misure[i], TxtRischio[i]);
  }
  LabRapporto = segno(u"LabRapporto"_s);
  LabAddome = segno(u"LabAddome"_s);
  c.griglia->addWidget(LabRapporto, 2, 2);
  c.griglia->addWidget(LabAddome, 3, 2);
  disegna_situazioni(*c.griglia);
  TxtIndici = campo_calcolato(u"TxtIndici"_s, larghezza_misura);
  TxtIndici->setText(u"0"_s);
  riga(*c.griglia, 4, u"Indici di rischio presenti n°"_s, TxtIndici);
  TxtLivello = campo_calcolato(u"TxtLivello"_s, 130, Qt::AlignLeft);
  auto* livello = barra({etichetta_di(u"Livello di Rischio"_s, TxtLivello)}, {TxtLivello});
  c.griglia->addLayout(livello, 4, 4, 1, 3);
  c.griglia->setColumnStretch(3, 1);
  return c.box;
}

void Formfunzio::disegna_situazioni(QGridLayout& griglia) {
  const std::array situazioni{u"Presenza di Sovrappeso"_s, u"Presenza di Ipertensione"_s, u"Fumatore"_s};
  for (std::size_t i = 0; i < situazioni.size(); ++i) {
    ComboRischio[i] = nominato(new Lista, nome_indice(u"ComboRischio", i), situazioni[i]);
    ComboRischio[i]->addItems({u"Si"_s, u"No"_s});
    ComboRischio[i]->setCurrentIndex(-1);
    ComboRischio[i]->setFixedWidth(larghezza_scelta);
    QLabel* scritta = riga(griglia, static_cast<int>(i), situazioni[i], ComboRischio[i], 5);
    if (i == 0) LabSOVRA = nominato(scritta, u"LabSOVRA"_s);
    LabSituazioni[i] = segno(nome_indice(u"LabSituazioni", i));
    griglia.addWidget(LabSituazioni[i], static_cast<int>(i), 6);
  }
  LabBMI = nominato(new QLabel(u"Obesità (BMI > 30)"_s), u"LabBMI"_s);
  LabBMI->setBuddy(ComboRischio[0]);
  griglia.addWidget(LabBMI, 0, 4);
  for (QLabel* e : {LabSOVRA, LabBMI}) e->hide();
}

QWidget* Formfunzio::disegna_pressione() {
  const Cornice c = cornice(u"Pressione arteriosa"_s);
  const std::array teste{u"Data"_s, u"MAX"_s, u"MIN"_s, u"FR."_s};
  const std::array suggerimenti{u"Giorno/mese/anno della misura"_s, u"Pressione massima, mmHg"_s,
                                u"Pressione minima, mmHg"_s, u"Frequenza cardiaca, battiti al minuto"_s};
  for (std::size_t i = 0; i < Text11.size(); ++i) {
    const std::size_t lettura = i / 4, casella = i % 4;
    const int colonna = static_cast<int>(lettura % 2 * 5 + casella);
    Text11[i] = campo(u"Text11"_s, i, suggerimenti[casella], u"Misura %1, "_s.arg(lettura + 1) + teste[casella]);
    Text11[i]->setFixedWidth(casella == 0 ? larghezza_data : larghezza_lettura);
    if (casella > 0) Text11[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (lettura < 2) c.griglia->addWidget(testa(teste[casella]), 0, colonna);
    c.griglia->addWidget(Text11[i], 1 + static_cast<int>(lettura / 2), colonna);
  }
  c.griglia->setColumnMinimumWidth(4, 10);
  c.griglia->setColumnStretch(4, 1);
  return c.box;
}

QWidget* Formfunzio::disegna_farmaci() {
  const Cornice c = cornice(u"Farmaci"_s);
  c.griglia->setVerticalSpacing(2);
  const std::array teste{u"Data"_s, u"Farmaci in uso"_s, u"Dosi gg."_s};
  const std::array suggerimenti{u"Da quando; senza data la riga non viene salvata"_s, u"Nome del farmaco"_s,
                                u"Dosi al giorno"_s};
  for (int colonna = 0; colonna < 3; ++colonna) {
    c.griglia->addWidget(testa(teste[static_cast<std::size_t>(colonna)]), 0, colonna);
  }
  for (std::size_t i = 0; i <= 8; ++i) {
    for (std::size_t colonna = 0; colonna < 3; ++colonna) {
      const std::size_t indice = i + 10 * colonna;
      Text19[indice] = campo(u"Text19"_s, indice, suggerimenti[colonna], u"Farmaco %1, "_s.arg(i + 1) + teste[colonna]);
      c.griglia->addWidget(Text19[indice], static_cast<int>(i) + 1, static_cast<int>(colonna));
    }
    Text19[i]->setFixedWidth(larghezza_data);
    Text19[i + 20]->setFixedWidth(larghezza_dosi);
  }
  c.griglia->setRowStretch(c.griglia->rowCount(), 1);
  return c.box;
}

QWidget* Formfunzio::disegna_esami() {
  const Cornice c = cornice(u"Esami di laboratorio"_s);
  MSFlex2 = griglia(u"MSFlex2"_s, colonne_esami);
  MSFlex2->setAccessibleName(u"Esami di laboratorio"_s);
  MSFlex2->setEnabled(false);
  c.griglia->addWidget(MSFlex2, 0, 0);
  const std::array scritte{u"Nuovo esame"_s, u"Modifica esame selezionato"_s, u"Elimina esame selezionato"_s};
  const std::array suggerimenti{u"Inserisci un esame di laboratorio"_s, u"Modifica la riga selezionata"_s,
                                u"Elimina la riga selezionata"_s};
  QList<QWidget*> pulsanti;
  for (std::size_t i = 0; i < Command6.size(); ++i) {
    Command6[i] = pulsante(nome_indice(u"Command6", i), scritte[i], suggerimenti[i]);
    Command6[i]->setEnabled(i == 0);
    pulsanti << Command6[i];
  }
  c.griglia->addLayout(barra(pulsanti, {}), 1, 0);
  return c.box;
}
