#include "core/clienti.h"

#include "base/date.h"
#include "base/errori.h"
#include "base/file.h"
#include "clinic/formtratta.h"
#include "core/attesa.h"
#include "core/dialoghi.h"
#include "core/file_cliente.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "intake/formanag.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// The selected line's number. Throws Errore 13 where no line is selected.
int cod_scelto() {
  const Formsched& f = schermata<Formsched>();
  const int riga = f.riga_scelta();
  if (riga < 0) throw Errore(13, "Tipo non corrispondente");
  return f.testo(riga, 0).toInt();
}

void prendi(int cod) {
  const auto scelto = iscritto(cod);
  if (!scelto) throw Errore(3021, "Nessun record corrente.");
  chiudi_archivi();  // no handle may stay on the working copy that goes
  {
    Archivio cliente(scelto->file, accesso, Archivio::Modo::sola_lettura);
    verifica_cliente(cliente);
  }
  sostituisci_file(scelto->file, percorso(u"dati.tmp"_s));
}

/// Deletes a client's folder and the files in it.
void elimina_cartella(const QString& nome) {
  QDir cartella(percorso(nome));
  if (!cartella.exists()) throw Errore(76, "Impossibile trovare il percorso " + cartella.path().toStdString());
  for (const QString& file : cartella.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
    if (!cartella.remove(file)) throw Errore(70, "Impossibile eliminare " + cartella.filePath(file).toStdString());
  }
  if (!QDir().rmdir(cartella.path())) throw Errore(75, "Impossibile eliminare " + cartella.path().toStdString());
}

}  // namespace

int richiama_cliente() {
  const Attesa attesa;
  if (prosegui([] { prendi(cod_scelto()); })) return 0;
  avvisa_caricamento();
  return -1;
}

void apri_cliente_scheda() {
  const Attesa attesa;
  scarica<Formsched>();
  scarica_schede();
  mostra<Formanag>();
}

void nuovo_cliente() {
  const Attesa attesa;
  elimina_dati_tmp();
  scarica<Formsched>();
  scarica_schede();
  schermata<Mdiorza>().segui_cliente(false);
  schermata<Formanag>();
  prepara_nuovo_cliente();
  mostra<Formanag>();
}

/// The follow-up screen, loaded unseen and closed again, leaves the sheet of a client with one date and no visit.
void prepara_nuovo_cliente() {
  Formanag& f = schermata<Formanag>();
  prosegui([&] { f.txtdatavisita->setDate(oggi()); });
  prosegui([] { schermata<Formtratta>().Text24[0]->setText(data_breve(oggi())); });
  prosegui([&] { f.Txtcod->setText(QString::number(prossimo_cod())); });
  prosegui(scarica<Formtratta>);
}

void elimina_cliente() {
  Formsched& f = schermata<Formsched>();
  const int riga = f.riga_scelta();
  if (riga < 0) return;
  const QString cod = f.testo(riga, 0), cognome = f.testo(riga, 2), nome = f.testo(riga, 3);
  if (!domanda(u"Sei sicuro di voler eliminare il cliente \n    "_s + cognome + u' ' + nome, u"Orzaline control"_s,
               Icona::nessuna)) {
    return;
  }
  cancella_iscritto(cod.toInt());
  elimina_cartella(nome_cliente(cod, cognome));
  f.togli_riga(riga);
}
