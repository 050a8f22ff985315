#include "core/formi_e.h"

#include "base/archivio.h"
#include "core/griglie.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "core/trasferimento.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// The drive that a folder lies on: the one with the longest root of its path.
int unita_di(const QComboBox& drive, const QString& cartella) {
  int migliore = -1;
  qsizetype lunga = -1;
  for (int i = 0; i < drive.count(); ++i) {
    const QString radice = drive.itemData(i).toString();
    const bool sotto = radice == u"/"_s || cartella == radice || cartella.startsWith(radice + u'/');
    if (sotto && radice.size() > lunga) {
      migliore = i;
      lunga = radice.size();
    }
  }
  return migliore;
}

/// The list follows the drive; a drive that does not answer leaves both where they were.
void collega_drive(QComboBox* drive, Cartelle* cartelle, const QString& non_risponde) {
  al_clic(drive, [=] {
    if (drive->currentIndex() < 0 || cartelle->vai(drive->currentData().toString())) {
      drive->setProperty("prima", drive->currentIndex());
      return;
    }
    messaggio(non_risponde);
    const QSignalBlocker muta(drive);
    drive->setCurrentIndex(drive->property("prima").toInt());
  });
}

void apri(QComboBox& drive, Cartelle& cartelle, const QString& cartella) {
  const QSignalBlocker muta(&drive);
  for (const Unita& u : unita()) drive.addItem(u.scritta, u.radice);
  cartelle.vai(cartella);
  drive.setCurrentIndex(unita_di(drive, cartelle.cartella()));
  drive.setProperty("prima", drive.currentIndex());
}

}  // namespace

Formi_e::Formi_e() {
  disegna();
  collega_regole();
}

void Formi_e::collega_regole() {
  collega_drive(Drive1, Dir1, u"Periferica non pronta !"_s);
  collega_drive(Drive2, Dir2, u"Dischetto non inserito !"_s);
  Dir2->al_cambio([this] { elenca_file(); });
  connect(File1, &QListWidget::itemSelectionChanged, this,
          [this] { Cmdimp->setEnabled(!File1->selectedItems().isEmpty()); });
  al_clic(Command2, [this] { esporta(); });
  al_clic(Cmdimp, [this] { importa(); });
  al_clic(Command3, scarica<Formi_e>);
}

void Formi_e::al_caricamento() {
  apri(*Drive1, *Dir1, QDir::homePath());
  apri(*Drive2, *Dir2, percorso({}));
}

void Formi_e::riempi_elenco_esporta() {
  MSFlexGrid1->setRowCount(0);
  for (const Iscritto& i : iscritti()) {
    if (QFile::exists(i.file)) aggiungi_riga(MSFlexGrid1, {QString::number(i.cod), i.cognome});
  }
  const bool presenti = MSFlexGrid1->rowCount() > 0;
  MSFlexGrid1->setEnabled(presenti);
  Command2->setEnabled(presenti);
  if (presenti) MSFlexGrid1->selectRow(0);
}

void Formi_e::elenca_file() {
  File1->clear();
  File1->addItems(QDir(Dir2->cartella()).entryList({u"*.orzaline"_s}, QDir::Files, QDir::Name | QDir::LocaleAware));
}

void Formi_e::mostra_copia(bool in_corso) {
  Animation->setRange(0, 0);
  Animation->setVisible(in_corso);
  Animation->repaint();
}

void Formi_e::esporta() {
  const auto scelte = MSFlexGrid1->selectionModel()->selectedRows();
  if (scelte.isEmpty()) return;
  esporta_cliente(scelte.front().data().toInt(), Dir1->cartella(), [this](bool si) { mostra_copia(si); });
  Animation->hide();
}

void Formi_e::importa() {
  QStringList scelti;
  for (int i = 0; i < File1->count(); ++i) {
    if (File1->item(i)->isSelected()) scelti << QDir(Dir2->cartella()).filePath(File1->item(i)->text());
  }
  Cmdimp->setText(u"Attendere..."_s);
  Cmdimp->repaint();
  importa_clienti(scelti, [this](bool si) { mostra_copia(si); });
  riempi_elenco_esporta();
  Animation->hide();
  Cmdimp->setText(u"Importa"_s);
}
