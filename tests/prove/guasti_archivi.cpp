#include "guasti_archivi.h"

#include "banco.h"
#include "base/archivio.h"
#include "base/errori.h"
#include "core/frmlogin.h"
#include "core/messaggi.h"
#include "core/programma.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "diary/famiglie.h"
#include "diet/alimenti.h"
#include "intake/comuni.h"
#include "mutanti.h"
#include "office/agenda.h"
#include "office/rubrica.h"
#include "pratica_mutanti.h"

#include <QDir>
#include <QTemporaryDir>
#include <array>

using namespace Qt::StringLiterals;

namespace mutanti {

namespace {

constexpr int danneggiato = 3343;

QString testo_di(const Alimento& a) {
  return u"%1 %2 %3 %4 %5 %6 %7 %8 %9"_s.arg(a.cod1)
             .arg(a.cod2)
             .arg(a.cod3)
             .arg(a.cod4)
             .arg(a.descrizione)
             .arg(a.quantita)
             .arg(a.calorie)
             .arg(a.protidi)
             .arg(a.lipidi) +
         u" %1 %2\n"_s.arg(a.glucidi).arg(int{a.unico});
}

QString alimenti(const std::vector<Alimento>& tutti) {
  QString t;
  for (const Alimento& a : tutti) t += testo_di(a);
  return t;
}

template <std::int16_t tipo>
QString base() {
  ArchiviDieta archivi;
  archivi.apri_archivio_dieta(tipo);
  return alimenti(archivi.alimenti());
}

QString tabella(Archivio& a, const QString& nome) {
  QString t;
  for (const Riga& r : a.righe(u"SELECT * FROM \"%1\" ORDER BY rowid"_s.arg(nome))) {
    for (const QString& campo : r.campi()) t += r[campo].toString() + u'|';
  }
  return t;
}

QString schedario_letto() {
  QString t;
  for (const Iscritto& i : iscritti()) t += u"%1 %2 %3\n"_s.arg(i.cod).arg(i.cognome, i.file);
  return t;
}

QString rubrica_letta() {
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  QString t;
  for (char16_t lettera = u'A'; lettera <= u'Z'; ++lettera) {
    for (const Nominativo& n : nominativi(rubrica, lettera)) {
      const Persona p = leggi_persona(rubrica, n.id);
      t += n.testo + p.nome + p.cognome;
      for (const QStringList& scheda : p.testi) t += scheda.join(u'|');
    }
  }
  return t;
}

QString agenda_letta() {
  carica_giorno(u"01/03/2003"_s);
  QString t;
  for (const Impegno& i : giorno()) t += i.ora + i.promemoria + u'\n';
  return t;
}

QString comuni_letti() {
  Comuni c;
  c.apri();
  QString t = c.province().join(u'|');
  for (const QString& p : c.province()) t += c.di(p).join(u'|');
  return t;
}

QString modello_letto() {
  chiudi_archivi();
  QFile::remove(percorso(u"dati.tmp"_s));
  apri_dati_tmp(Scopo::salvare);
  QString t;
  for (const Riga& r : dati_tmp().righe(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s))
    t += tabella(dati_tmp(), r[u"name"].toString()) + r[u"name"].toString();
  return t;
}

/// The login greets the user and turns another password away; a damaged store must not open as on the first day.
QString ingresso_letto() {
  QString t;
  const Interlocutore prima = parla_con([&](const Riquadro& r) {
    t += r.testo;
    return false;
  });
  frmLogin login;
  try {
    login.all_attivazione();
    login.txtPassword->setText(u"un'altra"_s);
    login.cmdOK->click();
  } catch (const Errore&) {
    parla_con(prima);
    throw;
  }
  parla_con(prima);
  return t + login.txtUserName->text();
}

template <char16_t const* nome, char16_t const* quale>
QString tabella_di() {
  Archivio a(percorso(QString::fromUtf16(nome)), accesso, Archivio::Modo::sola_lettura);
  return tabella(a, QString::fromUtf16(quale));
}
constexpr char16_t durnin[] = u"Durnin.jed", plico[] = u"tab_plico", elenco[] = u"gruppi_elenco.jed",
                   gruppi[] = u"gruppi";

/// A store, and what the program reads of it.
struct Lettura {
  QStringView file;
  QString (*leggi)();
};

constexpr std::array<Lettura, 13> letture{{
    {u"fc.jed", schedario_letto},
    {u"rubrica.jed", rubrica_letta},
    {u"Agenda.jed", agenda_letta},
    {u"studio.jed", [] { return leggi_studio(1) + leggi_studio(2) + leggi_studio(3); }},
    {u"sa_dieta.jed", base<1>},
    {u"sa_dieta_minus.jed", base<0>},
    {u"sa_dieta_plus.jed", base<2>},
    {u"sa_diario.jed", [] { return alimenti(alimenti_diario()); }},
    {u"ccc.jed", comuni_letti},
    {u"Durnin.jed", tabella_di<durnin, plico>},
    {u"gruppi_elenco.jed", tabella_di<elenco, gruppi>},
    {u"matrix.jed", modello_letto},
    {u"0_1.chk", ingresso_letto},
}};

/// The stores of a practice at work: clients in the registry, people, appointments, a user.
void riempi(const QString& cartella) {
  chiudi_archivi();
  imposta_cartella(cartella);
  schedario().esegui(u"DELETE FROM schedario"_s);
  for (int i = 1; i <= 60; ++i) iscrivi({i, u"ROSSI%1"_s.arg(i), percorso(u"%1_ROSSI/%1_ROSSI.orzaline"_s.arg(i))});
  chiudi_archivi();
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  for (int i = 0; i < 40; ++i) {
    Persona p{u"Nome"_s, QString(QChar(u'A' + i % 26)) + u"cognome"_s, {}};
    salva_persona(rubrica, p, {});
  }
  scrivi_promemoria({u"09:00"_s, u"Visita di controllo"_s});
  salva_giorno(u"01/03/2003"_s);
  Archivio(percorso(u"0_1.chk"_s)).esegui(u"INSERT INTO login VALUES ('studio', 'segreta')"_s);
}

struct Esito {
  int numero = 0;  // of the error
  QString letto;
};

Esito leggi_con(const Lettura& l) {
  Esito e;
  try {
    sotto_sorveglianza("store", [&] { e.letto = l.leggi(); });
  } catch (const Errore& errore) {
    e.numero = errore.numero;
  }
  chiudi_archivi();
  return e;
}

/// One damaged store in a folder of its own: what was read once under a name is kept.
bool scoperto(const Lettura& l, const QByteArray& guasto, const QString& originale, const QString& dove) {
  const QTemporaryDir cartella;
  imposta_cartella(cartella.path());
  const QString file = cartella.filePath(l.file.toString());
  scrivi(file, guasto);
  const Esito e = leggi_con(l);
  const QString quale = l.file.toString() + u' ' + dove;
  if (e.numero != 0 && e.numero != danneggiato) violata(u"%1: error %2"_s.arg(quale).arg(e.numero));
  if (e.numero == 0 && e.letto != originale) violata(quale + u": reads otherwise, and nobody says so"_s);
  if (leggi(file) != guasto && (e.numero != 0 || l.file != u"Agenda.jed")) violata(quale + u": was written"_s);
  return e.numero != 0;
}

}  // namespace

void prova_archivi(int capovolti, int troncati) {
  const QTemporaryDir cartella;
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
  for (const QString& nome : origine.entryList({u"*.jed"_s, u"*.chk"_s}))
    QFile::copy(origine.filePath(nome), cartella.filePath(nome));
  riempi(cartella.path());
  std::array<std::pair<QByteArray, QString>, letture.size()> buoni;
  for (std::size_t i = 0; i < letture.size(); ++i) {
    buoni[i].first = leggi(cartella.filePath(letture[i].file.toString()));
    const Esito e = leggi_con(letture[i]);
    if (e.numero != 0 || e.letto.isEmpty()) violata(letture[i].file.toString() + u" does not read"_s);
    buoni[i].second = e.letto;
  }
  Caso caso(7);
  std::array<int, 2> scoperti{};
  for (int n = 0; n < capovolti + troncati; ++n) {
    const std::size_t i = static_cast<std::size_t>(n) % letture.size();
    QByteArray d = buoni[i].first;
    const qsizetype dove = caso.sotto(d.size());
    const bool tronco = n >= capovolti;
    if (tronco) {
      d.truncate(caso.uno_su(2) ? dove : dove / 1024 * 1024);
    } else {
      d[dove] = static_cast<char>(d[dove] ^ (1 << caso.sotto(8)));
    }
    scoperti[tronco ? 1 : 0] +=
        scoperto(letture[i], d, buoni[i].second, (tronco ? u"cut at %1"_s : u"flipped at %1"_s).arg(dove));
  }
  prove::esito(u"Bits of the program's stores flipped"_s, capovolti,
               u"%1 refused, the others read as before"_s.arg(scoperti[0]));
  prove::esito(u"Stores of the program cut short"_s, troncati,
               u"%1 refused, the others read as before"_s.arg(scoperti[1]));
}

}  // namespace mutanti
