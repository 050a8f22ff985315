#include "core/aspetto.h"
#include "core/formi_e.h"
#include "core/griglie.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr Colonna colonne[]{{u"Codice", 600, Qt::AlignLeft}, {u"Cognome", 2880, Qt::AlignHCenter}};

constexpr int larghezza_importa = 296;

/// A labelled control in the next two rows of a column.
void sotto(const Cornice& c, int& riga, int colonna, const QString& etichetta, QWidget* controllo, int righe = 1) {
  c.griglia->addWidget(etichetta_di(etichetta, controllo), riga++, colonna);
  c.griglia->addWidget(controllo, riga, colonna, righe, 1);
  riga += righe;
}

}  // namespace

void Formi_e::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formi_e"_s);
  setWindowTitle(u"Importa / Esporta dati del cliente"_s);
  const Cornice c = cornice(windowTitle());
  c.griglia->addWidget(disegna_esporta(), 0, 0);
  c.griglia->addWidget(disegna_importa(), 0, 1);
  c.griglia->setColumnStretch(0, 1);
  Animation = nominato(new QProgressBar, u"Animation"_s);
  Animation->setFixedWidth(200);
  Animation->hide();
  Command3 = pulsante(u"Command3"_s, u"Chiudi"_s, u"Chiudi la finestra"_s);
  c.griglia->addLayout(barra({Animation}, {Command3}), 1, 0, 1, 2);
  auto* fuori = new QVBoxLayout(this);
  fuori->setContentsMargins(6, 4, 6, 6);
  fuori->addWidget(c.box);
}

QWidget* Formi_e::disegna_esporta() {
  const Cornice c = cornice(u"Esporta in ..."_s);
  MSFlexGrid1 = griglia(u"MSFlexGrid1"_s, colonne);
  MSFlexGrid1->setToolTip(u"Clienti in schedario"_s);
  MSFlexGrid1->setFixedWidth(larghezza_di(colonne));
  Drive1 = nominato(new Lista, u"Drive1"_s, u"Unità in cui copiare"_s);
  Dir1 = nominato(new Cartelle, u"Dir1"_s, u"Cartella in cui copiare: doppio clic per aprirla"_s);
  Command2 = pulsante(u"Command2"_s, u"Esporta"_s, u"Esporta i dati del cliente selezionato in altra posizione"_s);
  int a_sinistra = 0, a_destra = 0;
  sotto(c, a_sinistra, 0, u"Scegli il cliente"_s, MSFlexGrid1, 4);
  sotto(c, a_destra, 1, u"Scegli il drive"_s, Drive1);
  sotto(c, a_destra, 1, u"Scegli la directory"_s, Dir1);
  Drive1->setAccessibleName(u"Drive in cui esportare"_s);
  Dir1->setAccessibleName(u"Directory in cui esportare"_s);
  c.griglia->addWidget(Command2, a_destra, 1, Qt::AlignRight);
  c.griglia->setRowStretch(a_destra - 1, 1);
  return c.box;
}

QWidget* Formi_e::disegna_importa() {
  const Cornice c = cornice(u"Importa da ..."_s);
  c.box->setFixedWidth(larghezza_importa);
  Drive2 = nominato(new Lista, u"Drive2"_s, u"Unità da cui copiare"_s);
  Dir2 = nominato(new Cartelle, u"Dir2"_s, u"Cartella da cui copiare: doppio clic per aprirla"_s);
  File1 = nominato(new QListWidget, u"File1"_s, u"File di clienti nella cartella; se ne possono scegliere diversi"_s);
  for (QListWidget* l : {static_cast<QListWidget*>(Dir1), static_cast<QListWidget*>(Dir2), File1}) distanzia_voci(l);
  File1->setSelectionMode(QAbstractItemView::ExtendedSelection);
  Cmdimp = pulsante(u"Cmdimp"_s, u"Importa"_s, u"Importa il file del cliente nel database locale"_s);
  Cmdimp->setEnabled(false);
  int riga = 0;
  sotto(c, riga, 0, u"Scegli il drive"_s, Drive2);
  sotto(c, riga, 0, u"Scegli la directory"_s, Dir2);
  sotto(c, riga, 0, u"Seleziona il file da importare"_s, File1);
  Drive2->setAccessibleName(u"Drive da cui importare"_s);
  Dir2->setAccessibleName(u"Directory da cui importare"_s);
  c.griglia->addWidget(Cmdimp, riga, 0, Qt::AlignRight);
  return c.box;
}
