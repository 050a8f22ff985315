#include "core/clienti.h"

#include "base/date.h"
#include "base/errori.h"
#include "base/file.h"
#include "core/dialoghi.h"
#include "core/file_cliente.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "core/sezioni.h"
#include "core/sezioni_cliente.h"
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

/// The sheet of a client without visits but the first, as its own screen would leave it.
void scrivi_primo_controllo(const QString& data) {
  QVariantMap riga;
  for (const Campo& c : sezione_trattamento()) {
    const bool serie = c.come == Come::lista_testi;
    riga[c.campo] = serie ? QString(c.controlli.size(), c.separatore) : QString();
  }
  riga[u"Date"_s] = data + riga[u"Date"_s].toString();
  riga[u"cod_cli"_s] = schermata<Mdiorza>().Txtcod->text().trimmed();
  apri_dati_tmp(Scopo::salvare);
  salva_riga(dati_tmp(), u"trattamento"_s, riga);
}

/// Deletes a client's folder and the files in it; only a folder right beside the program is one.
void elimina_cartella(const QString& nome) {
  QDir cartella(percorso(nome));
  if (nome.contains(u'/') || !cartella.exists()) {
    throw Errore(76, "Impossibile trovare il percorso " + percorso(nome).toStdString());
  }
  for (const QString& file : cartella.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
    if (!cartella.remove(file)) throw Errore(70, "Impossibile eliminare " + cartella.filePath(file).toStdString());
  }
  if (!QDir().rmdir(cartella.path())) throw Errore(75, "Impossibile eliminare " + cartella.path().toStdString());
}

}  // namespace

int richiama_cliente() {
  if (prosegui([] { prendi(cod_scelto()); })) return 0;
  messaggio(u"Si è verificato un errore nel caricamento !"_s);
  return -1;
}

void apri_cliente_scheda() {
  scarica<Formsched>();
  scarica_schede();
  mostra<Formanag>();
}

void nuovo_cliente() {
  elimina_dati_tmp();
  scarica<Formsched>();
  scarica_schede();
  schermata<Mdiorza>().segui_cliente(false);
  schermata<Formanag>();
  prepara_nuovo_cliente();
  mostra<Formanag>();
}

void prepara_nuovo_cliente() {
  Formanag& f = schermata<Formanag>();
  prosegui([&] { f.txtdatavisita->setDate(oggi()); });
  prosegui([&] { f.Txtcod->setText(QString::number(prossimo_cod())); });
  prosegui([] { scrivi_primo_controllo(data_breve(oggi())); });
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
  elimina_cartella(cod + u'_' + cognome);
  f.togli_riga(riga);
}
