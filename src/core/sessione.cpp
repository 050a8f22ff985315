#include "core/sessione.h"

#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "base/errori.h"
#include "base/file.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/file_cliente.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "diary/formdiario.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "intake/formpers.h"

#include <QDir>
#include <QFile>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Archivi {
  std::optional<Archivio> dati;
  std::optional<Archivio> schede;
};

Archivi& archivi() {
  static Archivi a;
  return a;
}

QString file_dati() { return percorso(u"dati.tmp"_s); }

void apri_o_crea() {
  if (!esiste_dati_tmp()) sostituisci_file(percorso(u"matrix.jed"_s), file_dati());
  archivi().dati.emplace(file_dati());
}

/// A screen of a client's, in the order in which they are closed and so write their sections.
struct Chiusura {
  void (*scarica)();
  bool da_menu;
};

// clang-format off
constexpr Chiusura chiusure[]{
    {scarica<Formanag>, true},
    {scarica<Formpers>, true},
    {scarica<Formfunzio>, false},
    {scarica<Formpond>, false},
    {scarica<Formdiario>, false},
    {scarica<Formalimenti>, true},
    {scarica<Formelabora>, true},
    {scarica<Formtratta>, true},
    {scarica<Formsched>, true},
    {scarica<Formattività>, false},
};
// clang-format on

/// A working copy that a crash left damaged must never go over a client's good file.
void pretendi_sana() {
  Archivio dati(file_dati(), accesso, Archivio::Modo::sola_lettura);
  verifica_cliente(dati);
}

/// The engine takes shorter paths than the system does: what it cannot open again is not saved.
void copia_in(const QString& file) {
  chiudi_archivi();
  pretendi_sana();
  sostituisci_file(file_dati(), file);
  Archivio(file, accesso, Archivio::Modo::sola_lettura);
}

}  // namespace

void apri_dati_tmp(Scopo scopo) {
  if (archivi().dati) return;
  if (scopo == Scopo::salvare) return apri_o_crea();
  if (!prosegui(apri_o_crea)) {
    messaggio(u"Problemi nella creazione dei files temporanei, chiudere i files usati da Orzaline !"_s);
  }
}

Archivio& dati_tmp() {
  if (!archivi().dati) throw Errore(91, "Variabile oggetto non impostata");
  return *archivi().dati;
}

void apri_schedario() {
  if (!archivi().schede) archivi().schede.emplace(percorso(u"fc.jed"_s));
}

Archivio& schedario() {
  apri_schedario();
  return *archivi().schede;
}

void chiudi_archivi() {
  archivi().schede.reset();
  archivi().dati.reset();
}

bool esiste_dati_tmp() { return QFile::exists(file_dati()); }

void elimina_dati_tmp() {
  chiudi_archivi();
  elimina_archivio(file_dati());
}

QString percorso_cliente() {
  const Mdiorza& m = schermata<Mdiorza>();
  const QString nome = nome_cliente(m.Txtcod->text(), m.Txtsoggetto->text().trimmed().section(u' ', 0, 0));
  return QDir(percorso(nome)).filePath(nome + u".orzaline"_s);
}

QString salva_su_file_cliente() {
  const QString file = percorso_cliente();
  QDir cartella = QFileInfo(file).absoluteDir();
  const bool nuova = !cartella.exists();
  if (!QDir().mkpath(cartella.path())) {
    throw Errore(75, "Impossibile creare la cartella " + cartella.path().toStdString());
  }
  try {
    copia_in(file);
    if (nuova) fissa_cartella(percorso({}));
  } catch (const Errore&) {
    if (nuova) cartella.removeRecursively();
    throw;
  }
  return file;
}

void chiudi_cliente() {
  scarica_schede();
  elimina_dati_tmp();
  azzera_banner();
  schermata<Mdiorza>().segui_cliente(false);
}

void azzera_banner() {
  Mdiorza& m = schermata<Mdiorza>();
  for (QLineEdit* campo : {m.Txtcod, m.Txtetà, m.Txtpeso}) campo->clear();
  m.LabPesoOld.setText({});
  for (QLineEdit* campo : {m.Txtsesso, m.Txtsoggetto, m.Txtstatura, m.Txtbmi}) campo->clear();
  dieta_caricata = false;
}

void scarica_schede() {
  for (const Chiusura& c : chiusure) c.scarica();
}

void scarica_schede_da_menu() {
  for (const Chiusura& c : chiusure) {
    if (c.da_menu) c.scarica();
  }
}
