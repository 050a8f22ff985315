#include "scritture.h"

#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "banco.h"
#include "base/archivio.h"
#include "base/file.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/griglie.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/salva_carica.h"
#include "core/salvataggio.h"
#include "core/sessione.h"
#include "core/sezioni_cliente.h"
#include "diary/formdiario.h"
#include "diet/dieta.h"
#include "diet/preferenze_archivio.h"
#include "intake/formanag.h"
#include "intake/formpers.h"
#include "office/agenda.h"
#include "office/rubrica.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace prove {

namespace {

constexpr int esami = 20, cibi_al_pasto = 5, impegni = 3, cibi_in_scheda = 200, cibi_del_diario = 40;
const QString giorno_di_prova = u"02/03/2026"_s;

QString ripetuto(int stato, int volte) {
  const QString n = QString::number(stato);
  return volte == 1 ? n : (n + u',').repeated(volte);
}

bool e_lista(Come come) { return come == Come::lista_testi; }

/// The controls of some fields take the state, lists in each of their elements.
void riempi(QWidget& schermo, const Sezione& campi, int stato) {
  QVariantMap riga;
  for (const Campo& c : campi) {
    const QString n = QString::number(stato);
    riga[c.campo] = e_lista(c.come) ? (n + c.separatore).repeated(c.controlli.size()) : n;
  }
  riempi_controlli(schermo, campi, riga);
}

const QStringList campi_anagrafe{u"indirizzo"_s, u"locali"_s, u"EMail"_s, u"tipoDurata"_s, u"aspettativeAttuali"_s};
const QStringList campi_sport{u"attivitàgg"_s, u"calorie_totali"_s};
const QStringList campi_personale{u"medico"_s, u"asl"_s, u"problemi"_s, u"turbec"_s};
const QStringList campi_anamnesi{u"Patologie"_s, u"Cute"_s, u"Intolleranze"_s};
const QStringList campi_dietologica{u"peso_bfa"_s, u"met_bfa"_s};
const QStringList campi_diario{u"colazione"_s, u"spuntino"_s, u"pranzo"_s, u"merenda"_s, u"cena"_s};
const QStringList campi_trattamento{u"braccia"_s, u"petto"_s, u"notepeso"_s, u"notebic"_s, u"circo1"_s};

template <class S, int codice, const Sezione& (*sezione)(), const QStringList& campi>
void scrivi_sezione(int stato, int) {
  riempi(schermata<S>(), parte(sezione(), campi), stato);
  salva_cliente(codice);
}

/// Four tables in one section.
void scrivi_funzionale(int stato, int volte) {
  Formfunzio& f = schermata<Formfunzio>();
  riempi(f, parte(sezione_anamnesi(), campi_anamnesi), stato);
  for (const Sezione& s : sezioni_farmaci()) {
    riempi_controlli(f, s, {{u"date_f"_s, giorno_di_prova}, {u"farmaci"_s, ripetuto(stato, 1)}});
  }
  for (const Sezione& s : sezioni_pressione()) riempi_controlli(f, s, {{u"data_p"_s, ripetuto(stato, 1)}});
  f.MSFlex2->setRowCount(0);
  const QString n = ripetuto(stato, volte);
  for (int i = 0; i < esami; ++i) aggiungi_riga(f.MSFlex2, {giorno_di_prova, n, n, n, n, n});
  salva_cliente(4);
}

void scrivi_menu(int stato, int volte) {
  for (int i = 0; i < settimane * giorni * pasti * cibi_al_pasto; ++i) {
    const int pasto = i / cibi_al_pasto;
    motore().menu(pasto / (giorni * pasti) + 1, pasto / pasti % giorni, pasto % pasti, i % cibi_al_pasto) = {
        .cod1 = 1, .descr = ripetuto(stato, volte), .quant_mod = QString::number(stato)};
  }
  apri_dati_tmp(Scopo::salvare);
  scrivi_dieta(motore(), dati_tmp(), u"1"_s);
}

/// The foods of a meal, and its boxes in another table: the only one not ticked bears the state's number.
void scrivi_preferenze(int stato, int volte) {
  AlimentoScheda cibo;
  cibo.cod1 = stato;
  cibo.liste.fill(ripetuto(stato, volte));
  std::vector<bool> caselle(static_cast<std::size_t>(stato) + 1, true);
  caselle.back() = false;
  apri_dati_tmp(Scopo::salvare);
  salva_spunte(dati_tmp(), scheda_di::cena + 1, Scheda(cibi_in_scheda, cibo), u"CheckCena", caselle);
}

/// A dose that is chosen stores all of the family's.
void scrivi_scelte_diario(int stato, int) {
  Formdiario& f = schermata<Formdiario>();
  f.ListPASTI->setCurrentRow(0);
  f.MSFlex1->setRowCount(0);
  for (int i = 0; i < cibi_del_diario; ++i) {
    aggiungi_riga(f.MSFlex1, {QString::number(f.trova_cod1()), QString::number(i), {}, {}, {}, QString::number(stato)});
  }
  f.Combodose->setCurrentIndex(stato % 2);
}

void scrivi_rubrica(int stato, int volte) {
  const QString n = ripetuto(stato, volte);
  Archivio rubrica(percorso(u"rubrica.jed"_s));
  const bool nuova = rubrica.righe(u"SELECT 1 FROM Nomi"_s).empty();
  salva_persona(rubrica, {n, n, {QStringList(5, n), QStringList(10, n), QStringList(10, n)}},
                nuova ? std::nullopt : std::optional<qint64>(1));
}

/// The slots are the user's typing, a write each; the day's save is the one that must hold as a whole.
void scrivi_agenda(int stato, int volte) {
  const auto slot = giorno();
  for (std::size_t i = 0; i < impegni; ++i) scrivi_promemoria({slot[i].ora, ripetuto(stato, volte)});
  salva_giorno(giorno_di_prova);
}

void scrivi_registro(int stato, int volte) {
  schermata<Mdiorza>().Txtsoggetto->setText(QString::number(stato));
  aggiorna_schedario(ripetuto(stato, volte));
}

std::vector<Luogo> luoghi(const QString& tabella, const QStringList& campi, int righe = 1) {
  std::vector<Luogo> l;
  for (const QString& c : campi) l.push_back({tabella, c, righe});
  return l;
}

std::vector<Luogo> luoghi_preferenze() {
  auto l = luoghi(u"alimenti_spuntati"_s, {u"cod1"_s, u"abb_OK"_s, u"abb_LV"_s, u"abb_SD"_s}, cibi_in_scheda);
  l.push_back({u"checkAlimentiSpuntati"_s, u"CheckCena"_s, 1});
  return l;
}

std::vector<Luogo> luoghi_funzionale() {
  auto l = luoghi(u"Anamnesi"_s, campi_anamnesi);
  l.push_back({u"farmaci"_s, u"farmaci"_s, 9});
  l.push_back({u"pressione"_s, u"data_p"_s, 4});
  l.push_back({u"esami"_s, u"esame"_s, esami});
  l.push_back({u"esami"_s, u"referto"_s, esami});
  return l;
}

/// The states that a text names; none in an empty one.
QStringList stati_in(const QVariant& v) {
  static const QRegularExpression separatori(u"[+,;]"_s);
  return v.toString().split(separatori, Qt::SkipEmptyParts);
}

}  // namespace

const std::vector<Scrittura>& scritture() {
  constexpr int cibi = settimane * giorni * pasti * cibi_al_pasto;
  const QString dati = u"dati.tmp"_s;
  static const std::vector<Scrittura> s{
      {u"master data"_s, dati, scrivi_sezione<Formanag, 0, sezione_anagrafe, campi_anagrafe>,
       luoghi(u"anagrafe"_s, campi_anagrafe)},
      {u"activities"_s, dati, scrivi_sezione<Formattività, 1, sezione_sport, campi_sport>,
       luoghi(u"sport"_s, campi_sport)},
      {u"personal history"_s, dati, scrivi_sezione<Formpers, 3, sezione_personale, campi_personale>,
       luoghi(u"personale"_s, campi_personale)},
      {u"clinical history"_s, dati, scrivi_funzionale, luoghi_funzionale()},
      {u"weight"_s, dati, scrivi_sezione<Formpond, 5, sezione_dietologica, campi_dietologica>,
       luoghi(u"dietologica"_s, campi_dietologica)},
      {u"diary"_s, dati, scrivi_sezione<Formdiario, 9, sezione_diario, campi_diario>,
       luoghi(u"diario"_s, campi_diario)},
      {u"follow-up"_s, dati, scrivi_sezione<Formtratta, 10, sezione_trattamento, campi_trattamento>,
       luoghi(u"trattamento"_s, campi_trattamento)},
      {u"diet"_s, dati, scrivi_menu, luoghi(u"dieta"_s, {u"descr"_s, u"quant_mod"_s}, cibi)},
      {u"food preferences"_s, dati, scrivi_preferenze, luoghi_preferenze()},
      {u"diary's choices"_s, dati, scrivi_scelte_diario, luoghi(u"scelte_diario"_s, {u"dose"_s}, cibi_del_diario)},
      {u"address book"_s,
       u"rubrica.jed"_s,
       scrivi_rubrica,
       {{u"Nomi"_s, u"nome"_s, 1},
        {u"Abitazione"_s, u"paese"_s, 1},
        {u"Ufficio"_s, u"Assistente"_s, 1},
        {u"NumTel"_s, u"EMail"_s, 1}}},
      {u"agenda"_s, u"Agenda.jed"_s, scrivi_agenda, {{u"Diario"_s, u"Promemoria"_s, impegni}}},
      {u"registry"_s, u"fc.jed"_s, scrivi_registro, luoghi(u"schedario"_s, {u"cognome"_s, u"nome_files"_s})},
  };
  return s;
}

void prepara_scritture(const QString& cartella) {
  const QDir origine(QStringLiteral(CARTELLA_ARCHIVI)), qui(cartella);
  for (const QString& nome : origine.entryList({u"*.jed"_s})) {
    sostituisci_file(origine.filePath(nome), qui.filePath(nome));
  }
  sostituisci_file(origine.filePath(u"matrix.jed"_s), qui.filePath(u"dati.tmp"_s));
}

int stato_scritto(const Scrittura& s, const QString& cartella) {
  const QString file = QDir(cartella).filePath(s.file);
  Archivio a(file);  // for writing: what a kill left half done is taken back, as at the next start
  sano(a, file);
  QSet<QString> stati;
  bool intere = true;
  for (const Luogo& l : s.luoghi) {
    const auto righe = a.righe(u"SELECT \"%1\" AS stato FROM \"%2\""_s.arg(l.colonna, l.tabella));
    intere = intere && std::ssize(righe) == l.righe;
    for (const Riga& r : righe) {
      for (const QString& t : stati_in(r[u"stato"])) stati << t;
    }
  }
  if (stati.isEmpty()) return 0;
  if (stati.size() != 1 || !intere) fallito(u"a mixed state in the %1: %2"_s.arg(s.nome, stati.values().join(u' ')));
  return stati.values().front().toInt();
}

}  // namespace prove
