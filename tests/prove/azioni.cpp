#include "azioni.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "core/dialoghi.h"
#include "core/errore_non_gestito.h"
#include "core/formi_e.h"
#include "core/formsched.h"
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/registro.h"
#include "core/regole.h"
#include "core/salvataggio.h"
#include "core/sessione.h"
#include "intake/formanag.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "reports/formstampe.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QRegularExpression>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace prove {

namespace {

enum Uscita { senza_esito, riuscita = 10, non_riuscita, finita };

QString segno(const Luogo& l) { return QString::number(l.stato); }
QString copia_esportata(const Luogo& l) { return QDir(l.fuori).filePath(u"1_BIANCHI.orzaline"_s); }
QString foglio(const Luogo& l) { return QDir(l.fuori).filePath(u"foglio.pdf"_s); }

QByteArray contenuto(const QString& file) {
  QFile f(file);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool ha(const QString& archivio, const QString& condizione, const QString& valore) {
  Archivio a(percorso(archivio), accesso, Archivio::Modo::sola_lettura);
  return !a.righe(u"SELECT 1 AS uno FROM "_s + condizione, valore).empty();
}

void niente(const Luogo&) {}
void finestra(const Luogo&) { mostra<Mdiorza>(); }

// ---- start

void entra(const Luogo&) {
  esegui_regola(mostra<frmLogin>);
  auto& f = schermata<frmLogin>();
  f.txtUserName->setText(u"prova"_s);
  f.txtPassword->setText(u"prova"_s);
  f.cmdOK->click();
}
bool entrata(const Luogo&) { return caricata<Mdiorza>() && caricata<Mdiorza>()->isVisible(); }

// ---- archive

void elenca(const Luogo&) {
  schermata<Mdiorza>().cmdsopra[0]->click();
  if (auto* f = caricata<Formsched>()) f->SSTabschedario->setCurrentIndex(scheda_tutti);
}
bool elencati(const Luogo&) { return caricata<Formsched>() && caricata<Formsched>()->Tabella->rowCount() > 0; }

void richiama(const Luogo& l) {
  elenca(l);
  if (!elencati(l)) return;
  schermata<Formsched>().scegli_riga(0);
  schermata<Formsched>().Command10[2]->click();
}
bool richiamato(const Luogo&) {
  const auto* f = caricata<Formanag>();
  return f && f->Txtcognome->text() == u"BIANCHI" && f->Txtind->text() == u"1" && f->comboprov->count() > 0;
}

void apri_scambi(const Luogo& l) {
  finestra(l);
  mostra<Formi_e>();
  auto& f = schermata<Formi_e>();
  f.Dir1->vai(l.fuori);
  f.Dir2->vai(l.fuori + u"/altri"_s);
  f.File1->selectAll();
}
// ---- general save

void lavora(const Luogo& l) {
  apri_cliente(l.studio);
  scrivi_stato(l.stato);
}
void salva(const Luogo&) { esegui_regola(salvataggio_generale); }
bool salvato(const Luogo& l) {
  return stato_di(file_cliente(l.studio)) == l.stato && ha(u"fc.jed"_s, u"schedario WHERE cod = ?"_s, u"1"_s) &&
         ha(u"rubrica.jed"_s, u"Nomi JOIN Abitazione USING (id) WHERE indirizzo = ?"_s, segno(l));
}

void scrivi_e_salva(const Luogo& l) {
  elenca(l);
  schermata<Formsched>().Command10[0]->click();
  schermata<Formanag>().Txtcognome->setText(l.cognome);
  schermata<Formanag>().TxtNOME->setText(u"ANNA"_s);
  schermata<Mdiorza>().Command2[1]->click();
}
void scegli_nuovo(const QTableWidget& elenco, const std::function<void(int)>& scegli) {
  for (int riga = 0; riga < elenco.rowCount(); ++riga) {
    if (elenco.item(riga, 0)->text() == u"2") scegli(riga);
  }
}
/// Recalled by the archive, and exported.
bool ritrovato(const Luogo& l) {
  elenca(l);
  auto& s = schermata<Formsched>();
  scegli_nuovo(*s.Tabella, [&](int riga) { s.scegli_riga(riga); });
  s.Command10[2]->click();
  if (!caricata<Formanag>() || schermata<Formanag>().Txtcognome->text() != l.cognome.trimmed()) return false;
  const QString file = percorso_cliente();
  apri_scambi(l);
  auto& f = schermata<Formi_e>();
  scegli_nuovo(*f.MSFlexGrid1, [&](int riga) { f.MSFlexGrid1->selectRow(riga); });
  f.Command2->click();
  const QStringList fuori = QDir(l.fuori).entryList({u"2_*"_s}, QDir::Files | QDir::Hidden);
  return fuori.size() == 1 && contenuto(QDir(l.fuori).filePath(fuori.front())) == contenuto(file);
}

// ---- section

void modifica(const Luogo& l) {
  finestra(l);
  richiama(l);
  schermata<Formanag>().Txtind->setText(segno(l));
}
void avanti(const Luogo&) { schermata<Mdiorza>().Command1[1]->click(); }
bool sezione_salvata(const Luogo& l) { return ha(u"dati.tmp"_s, u"anagrafe WHERE indirizzo = ?"_s, segno(l)); }

// ---- export and import

void esporta(const Luogo&) { schermata<Formi_e>().Command2->click(); }
bool esportato(const Luogo& l) { return contenuto(copia_esportata(l)) == contenuto(file_cliente(l.studio)); }

void importa(const Luogo&) { schermata<Formi_e>().Cmdimp->click(); }
bool importato(const Luogo&) {
  for (const Iscritto& i : iscritti()) {
    if (i.cognome != u"ROSSI" || !QFile::exists(i.file)) continue;
    Archivio a(i.file, accesso, Archivio::Modo::sola_lettura);
    return a.righe(u"SELECT cod FROM anagrafe"_s).front()[u"cod"].toInt() == i.cod;
  }
  return false;
}

// ---- office

void apri_rubrica(const Luogo&) {
  mostra<Formrubrica>();
  auto& f = schermata<Formrubrica>();
  f.Command1->click();
  f.Text1->setText(u"ANNA"_s);
  f.Text2->setText(u"VERDI"_s);
}
void scrivi_persona(const Luogo&) { schermata<Formrubrica>().Command5->click(); }
bool persona_scritta(const Luogo&) {
  return ha(u"rubrica.jed"_s,
            u"Nomi JOIN Abitazione USING (id) JOIN Ufficio USING (id) JOIN NumTel USING (id) WHERE Nomi.cognome = ?"_s,
            u"VERDI"_s);
}

void apri_agenda(const Luogo&) { mostra<Formagenda>(); }
void scrivi_impegno(const Luogo& l) {
  auto& f = schermata<Formagenda>();
  f.DBGrid1->item(3, 1)->setText(u"visita "_s + segno(l));
  f.Command1->click();
}
bool impegno_scritto(const Luogo& l) {
  return ha(u"Agenda.jed"_s, u"Diario WHERE Promemoria = ?"_s, u"visita "_s + segno(l));
}

// ---- print

void apri_foglio(const Luogo& l) {
  finestra(l);
  richiama(l);
  esterno().imposta_stampante = [l](QPrinter& p) {
    p.setOutputFileName(foglio(l));
    return true;
  };
  apri_stampa(u"1"_s, u"v"_s);
}
void stampa(const Luogo&) { schermata<Formstampe>().Cmdchar[1]->click(); }
bool stampato(const Luogo& l) { return contenuto(foglio(l)).endsWith("%%EOF\n"); }

constexpr Azione tutte[]{
    {"start of the program", niente, entra, entrata},
    {"archive", finestra, elenca, elencati},
    {"recall", finestra, richiama, richiamato},
    {"general save", lavora, salva, salvato},
    {"section", modifica, avanti, sezione_salvata},
    {"export", apri_scambi, esporta, esportato},
    {"import", apri_scambi, importa, importato},
    {"address book", apri_rubrica, scrivi_persona, persona_scritta},
    {"agenda", apri_agenda, scrivi_impegno, impegno_scritto},
    {"print", apri_foglio, stampa, stampato},
};

/// Words of the system and of the engine that no sentence for the user has.
bool in_italiano(const QString& testo) {
  static const QRegularExpression inglese(
      u"\\b(the|denied|unable|error|failed|such|space left|output|disk|readonly|malformed|permitted|too long|"
      "constraint|locked|interrupted|call|too many|open files|directory)\\b"_s);
  return testo.contains(u' ') && !testo.contains(inglese);
}

[[noreturn]] void figlio(const Luogo& l, const Azione& a, const std::function<void()>& metti,
                         const std::function<void()>& togli) {
  ::alarm(60);
  ascolta_utente(l);
  a.prima(l);
  ascolta_utente(l);  // a client that is opened there answers by itself
  if (contenuto(l.detti).size() > 0) ::_exit(senza_esito);
  if (metti) metti();
  a.fa(l);
  if (togli) togli();
  chiudi_archivi();
  ::_exit(a.riuscita(l) ? riuscita : non_riuscita);
}

}  // namespace

Luogo luogo(const QString& cartella) {
  const QString base = cartella + u"/prova"_s;
  return {base, base + u"/studio"_s, base + u"/fuori"_s, cartella + u"/detti"_s, 2, {}};
}

Origine::Origine(const QString& base) : base_(base) {
  std::filesystem::copy(base.toStdString(), base.toStdString() + ".origine", std::filesystem::copy_options::recursive);
}
void Origine::rimetti() const {
  const std::filesystem::path vera = base_.toStdString();
  std::filesystem::remove_all(vera);
  std::filesystem::copy(vera.string() + ".origine", vera, std::filesystem::copy_options::recursive);
}

const Azione cliente_nuovo{"new client", finestra, scrivi_e_salva, ritrovato};

std::span<const Azione> azioni() { return tutte; }

void ascolta_utente(const Luogo& l) {
  const auto annota = [file = l.detti](const QString& testo) {
    QFile f(file);
    if (!f.open(QIODevice::Append) || f.write(testo.toUtf8() + '\0') < 0) ::_exit(senza_esito);
  };
  parla_con([annota](const Riquadro& r) {
    if (!r.scelta && !r.testo.endsWith(u"con successo !") && !r.testo.endsWith(u"riuscita !")) annota(r.testo);
    return r.titolo != u"Attenzione";  // yes to every question; overwrite the client that the archive knows
  });
  gestisci_errori_con([annota](const std::exception& e) {
    annota(u"Errore di run-time: "_s + QString::fromUtf8(e.what()));
    ::_exit(finita);
  });
}

Resoconto svolgi(const Luogo& l, const Azione& a, const QString& che, const std::function<void()>& metti,
                 const std::function<void()>& togli) {
  QFile::remove(l.detti);
  const Fine fine = raccogli(avvia(l.studio, [&](const auto&) { figlio(l, a, metti, togli); }), 0);
  if (!WIFEXITED(fine.esito)) fallito(che + u": killed by signal %1"_s.arg(WTERMSIG(fine.esito)));
  const int uscita = WEXITSTATUS(fine.esito);
  if (uscita < riuscita || uscita > finita) fallito(che + u": ended with %1"_s.arg(uscita));
  Resoconto r{uscita == riuscita, {}};
  for (const QByteArray& testo : contenuto(l.detti).split('\0')) {
    if (!testo.isEmpty()) r.detti << QString::fromUtf8(testo);
  }
  for (const QString& d : r.detti) {
    if (!in_italiano(d)) fallito(che + u": told in no Italian: "_s + d);
  }
  if (!r.riuscita && r.detti.isEmpty()) fallito(che + u": it did not come off and nobody was told"_s);
  return r;
}

namespace {

/// Each record is there as a whole or not at all.
void pretendi_nulla_a_meta(const Luogo& l, const QString& che) {
  verifica(l.studio);  // takes back what a write left half done, as the program does
  const int stato = stato_di(file_cliente(l.studio));
  if (stato != 1 && stato != l.stato) fallito(che + u": the client's file holds neither state"_s);
  if (QByteArray copia = contenuto(copia_esportata(l));
      copia != "vecchia" && copia != contenuto(file_cliente(l.studio)))
    fallito(che + u": a half export"_s);
  if (QFile::exists(foglio(l)) && !stampato(l)) fallito(che + u": a half print"_s);
  if (ha(u"rubrica.jed"_s, u"Nomi WHERE cognome = ?"_s, u"VERDI"_s) && !persona_scritta(l))
    fallito(che + u": half a person in the address book"_s);
  if (ha(u"fc.jed"_s, u"schedario WHERE cognome = ?"_s, u"ROSSI"_s) && !importato(l))
    fallito(che + u": a half import"_s);
}

/// What an obstacle left behind, before anyone sets it right. In a child: the stores stay closed here.
void guarda_che_resta(const Luogo& l, const QString& che) {
  const auto guarda = [&](const auto&) {
    try {
      pretendi_nulla_a_meta(l, che);
    } catch (const std::exception& e) {
      fallito(che + u": what is left cannot be read: "_s + QString::fromUtf8(e.what()));
    }
  };
  if (raccogli(avvia(l.studio, guarda), 0).esito != 0) fallito(che + u": what is left is not whole"_s);
}

}  // namespace

void giudica(const Luogo& l, const Azione& a, const Resoconto& r, const QString& che) {
  if (a.fa == importa && !r.riuscita)
    static_cast<void>(svolgi(l, tutte[1], che + u", archive"_s));  // drops the row without a file
  guarda_che_resta(l, che);
  if (r.riuscita && r.detti.isEmpty()) return;
  if (const Resoconto due = svolgi(l, a, che + u", again"_s); !due.riuscita || !due.detti.isEmpty())
    fallito(che + u": it does not come off afterwards: "_s + due.detti.join(u" / "_s));
  guarda_che_resta(l, che + u", again"_s);
}

void prepara_tutto(const Luogo& l) {
  QDir().mkpath(l.studio);
  QDir().mkpath(l.fuori + u"/altri"_s);
  prepara(l.studio);
  ::qputenv("QT_LOGGING_RULES", "*.warning=false");  // the offscreen platform speaks up for every window
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI)), studio(l.studio);
  QFile::copy(origine.filePath(u"Agenda.jed"_s), studio.filePath(u"Agenda.jed"_s));
  Archivio(studio.filePath(u"0_1.chk"_s))
      .esegui(u"INSERT INTO login (nome_utente, password) VALUES ('prova', 'prova')"_s);
  const QString altro = l.fuori + u"/altri/7_ROSSI.orzaline"_s;
  QFile::copy(file_cliente(l.studio), altro);
  Archivio(altro).esegui(u"UPDATE anagrafe SET cod = 7, cognome = 'ROSSI'"_s);
  QFile vecchia(copia_esportata(l));
  if (!vecchia.open(QIODevice::WriteOnly) || vecchia.write("vecchia") < 0) fallito(u"no former export"_s);
}

}  // namespace prove
