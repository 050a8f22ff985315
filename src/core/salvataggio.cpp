#include "core/salvataggio.h"

#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"

using namespace Qt::StringLiterals;

namespace {

int cod_del_banner() { return round16(valore(schermata<Mdiorza>().Txtcod->text())); }

}  // namespace

void salvataggio_generale() {
  if (domanda(u"Salvataggio generale degli archivi ?"_s, u"Orzaline  control"_s)) {
    aggiorna_schedario(salva_su_file_cliente());
  }
}

bool cod_in_schedario() {
  return !schedario().righe(u"SELECT cod FROM schedario WHERE cod = ?"_s, cod_del_banner()).empty();
}

void aggiorna_schedario(const QString& file) {
  const QString cognome = schermata<Mdiorza>().Txtsoggetto->text().trimmed().section(u' ', 0, 0);
  const QString comando = cod_in_schedario() ? u"UPDATE schedario SET cognome = ?, nome_files = ? WHERE cod = ?"_s
                                             : u"INSERT INTO schedario (cognome, nome_files, cod) VALUES (?, ?, ?)"_s;
  schedario().esegui(comando, cognome, file, cod_del_banner());
}
