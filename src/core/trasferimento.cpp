#include "core/trasferimento.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "base/numeri.h"
#include "core/attesa.h"
#include "core/file_cliente.h"
#include "core/messaggi.h"
#include "core/registro.h"

#include <QDir>
#include <QFile>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString orzaline_control = u"Orzaline control"_s;

QString nome_di(int cod, const QString& cognome) { return nome_cliente(QString::number(cod), cognome); }

struct Straniero {
  std::int16_t cod;
  QString cognome;
};

std::int16_t cod_da(const QVariant& v) {
  if (v.isNull()) throw Errore(94, "Utilizzo non valido di Null");
  if (v.typeId() == QMetaType::QString) return round16(valore(v.toString()));
  return round16(v.toDouble());
}

QString cognome_da(const QVariant& v) {
  if (v.isNull()) throw Errore(94, "Utilizzo non valido di Null");
  return v.toString();
}

/// Who a file holds; nothing where its master data are empty. The file is proved whole before it is taken in.
std::optional<Straniero> leggi(const QString& file) {
  pretendi_apribile(file);
  Archivio cliente(file, accesso, Archivio::Modo::sola_lettura);
  pretendi_sole_tabelle(cliente);
  const auto righe = cliente.righe(u"SELECT cod, cognome FROM anagrafe LIMIT 1"_s);
  if (righe.empty()) return {};
  verifica_cliente(cliente);
  return Straniero{cod_da(righe.front()[u"cod"]), cognome_da(righe.front()[u"cognome"])};
}

/// The number under which the client comes in; nothing where the user would not have another than its own.
std::optional<std::int16_t> numero_per(std::int16_t cod) {
  if (!iscritto(cod)) return cod;
  const std::int16_t libero = cod_libero();
  if (domanda(u"Attenzione: il codice del cliente che si è deciso di importare esiste già.\n"
              "Il cliente verrà inserito con codice "_s +
                  QString::number(libero) + u"\nContinuare ?"_s,
              orzaline_control, Icona::informazione)) {
    return libero;
  }
  return {};
}

/// The client's folder is made aside, whole and with the number in it, and then named: a folder that an import cut
/// short had left half made would stand in the client's way ever after.
void porta_dentro(const QString& origine, const QString& nome, std::int16_t cod) {
  QDir aparte(percorso(u".importazione"_s));
  aparte.removeRecursively();
  if (!QDir().mkdir(aparte.path())) {
    throw Errore(75, "Impossibile creare la cartella " + percorso(nome).toStdString());
  }
  try {
    const QString file = aparte.filePath(nome + u".orzaline"_s);
    sostituisci_file(origine, file);
    scrivi_cod_importato(file, cod);
    rinomina(aparte.path(), percorso(nome));
    aparte.setPath(percorso(nome));  // what the engine cannot open again there goes, too
    Archivio(aparte.filePath(nome + u".orzaline"_s), accesso, Archivio::Modo::sola_lettura);
  } catch (const Errore&) {
    aparte.removeRecursively();
    throw;
  }
}

enum class Esito { avanti, fine };

Esito importa(const QString& origine, const Copia& in_corso) {
  const auto straniero = leggi(origine);
  if (!straniero) return Esito::fine;
  const auto cod = numero_per(straniero->cod);
  if (!cod) return Esito::fine;
  const QString nome = nome_di(*cod, straniero->cognome);
  const QDir cartella(percorso(nome));
  iscrivi({*cod, straniero->cognome, cartella.filePath(nome + u".orzaline"_s)});
  if (cartella.exists()) return Esito::avanti;
  if (in_corso) in_corso(true);
  porta_dentro(origine, nome, *cod);
  return Esito::avanti;
}

bool copia_fuori(const Iscritto& i, const QString& cartella, const Copia& in_corso) {
  if (!QFile::exists(i.file)) return false;
  const QString meta = QDir(cartella).filePath(nome_di(i.cod, i.cognome) + u".orzaline"_s);
  if (!domanda(
          u"Si è deciso di copiare i dati del cliente "_s + i.cognome + u"\nin ..\n"_s + meta + u"\nContinuare ?"_s,
          orzaline_control, Icona::informazione)) {
    return false;
  }
  if (in_corso) in_corso(true);
  sostituisci_file(i.file, meta);
  if (in_corso) in_corso(false);
  return true;
}

}  // namespace

void esporta_cliente(int cod, const QString& cartella, const Copia& in_corso) {
  const Attesa attesa;
  bool copiato = false;
  abbandona([&] {
    const auto scelto = iscritto(cod);
    copiato = scelto && copia_fuori(*scelto, cartella, in_corso);
  });
  if (copiato) return messaggio(u"File esportato con successo !"_s, {}, Icona::esclamazione);
  messaggio(u"Esportazione fallita !!"_s, {}, Icona::critica);
}

void importa_clienti(const QStringList& file, const Copia& in_corso) {
  const Attesa attesa;
  try {
    for (const QString& f : file) {
      if (importa(f, in_corso) == Esito::fine) return;
    }
  } catch (const Errore&) {
    return messaggio(u"Importazione fallita !"_s);
  }
  messaggio(u"Importazione riuscita !"_s);
}

void scrivi_cod_importato(const QString& file, std::int16_t cod) {
  Archivio(file).esegui(u"UPDATE anagrafe SET cod = ? WHERE rowid = (SELECT min(rowid) FROM anagrafe)"_s, cod);
}
