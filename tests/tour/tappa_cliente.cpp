#include "core/formi_e.h"
#include "core/formnote.h"
#include "core/formricerca.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "intake/formanag.h"
#include "intake/formpers.h"
#include "passi.h"
#include "tappe.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

Formsched& archivio() {
  clic(schermata<Mdiorza>().cmdsopra[0]);
  pretendi(caricata<Formsched>() != nullptr, "the archive did not open");
  return schermata<Formsched>();
}

void scrivi_anagrafe() {
  auto& f = schermata<Formanag>();
  scrivi(f.Txtcognome, u"rossi"_s);
  scrivi(f.TxtNOME, u"maria"_s);
  scrivi(f.Txtdatanasc, u"12-5-80"_s);
  scegli(f.Combosesso, u"F"_s);
  scegli(f.comboprov, u"RM"_s);
  scegli(f.Combocom, u"Roma"_s);
  pretendi(f.Txtcodfis->text() == u"RSS MRA 80E52 H501 M", "the fiscal code is not the known one");
  scrivi(f.Txtpeso, u"72"_s);
  scrivi(f.Txtalt, u"170"_s);
  scegli(f.comboprov2, u"PE"_s);
  scegli(f.Combocom2, u"Pescara"_s);
  scrivi(f.Txtind, u"via dei Mille 7"_s);
  scrivi(f.Txtcell, u"3331234567"_s);
  scegli(f.Combocost, 1);
  scegli(f.Combolav, 2);
  scegli(f.Combo1, 0);
  scrivi(f.TxtVerde[0], u"dissociata, due mesi"_s);
}

void scrivi_personali() {
  auto& f = schermata<Formpers>();
  scegli(f.Combo6[0], u"10"_s);
  scegli(f.Combo6[4], u"1,5"_s);
  scegli(f.Combo17[2], u"lenta"_s);
  clic(f.Check1[0]);
  scegli(f.Combo16[2], u"Diminuire di peso"_s);
  scrivi(f.Txtmed, u"Giovanna Neri"_s);
  scegli(f.Combo1[1], u"2"_s);
  scegli(f.Combo1[2], u"2"_s);
  clic(f.Command8[0]);
  scrivi(schermata<Formnote>().txtnote, u"regolare, 28 giorni"_s);
  quadro(schermata<Formnote>(), u"nota"_s);
  clic(schermata<Formnote>().cmdclosenote);
}

void cerca(const QString& cognome) {
  clic(archivio().Command10[1]);
  auto& r = schermata<Formricerca>();
  clic(r.Option1[1]);
  scrivi(r.Textval, cognome);
  quadro(r, u"ricerca"_s);
  clic(r.cmdricerca);
  auto& s = schermata<Formsched>();
  pretendi(s.testo(s.riga_scelta(), 2) == cognome, "the search did not find the client");
}

void richiama(const QString& cognome) {
  cerca(cognome);
  clic(schermata<Formsched>().Command10[2]);
  pretendi(caricata<Formanag>() != nullptr, "the client was not recalled");
}

QMap<QString, QString> comincia_e_salva() {
  auto& m = schermata<Mdiorza>();
  clic(archivio().Command10[0]);
  scrivi_anagrafe();
  quadro(m, u"anagrafe"_s);
  const auto scritto = contenuto(schermata<Formanag>());
  clic(m.Command1[1]);
  pretendi(!caricata<Formanag>(), "Avanti does not leave the master data");
  scrivi_personali();
  quadro(m, u"personali"_s);
  pretendi(!schermata<Formanag>().isVisible(), "Avanti does not leave the master data");
  clic(m.Command1[0]);
  pretendi(contenuto(schermata<Formanag>()) == scritto, "a step along the path and back changed the master data");
  clic(m.Command2[1]);
  pretendi(QFile::exists(percorso(u"1_ROSSI/1_ROSSI.orzaline"_s)), "the client's file is not there");
  clic(m.Command2[0]);
  pretendi(!esiste_dati_tmp(), "closing the client leaves the working copy");
  return scritto;
}

void esporta(const QString& cartella) {
  clic(schermata<Mdiorza>().cmdsopra[9]);
  auto& f = schermata<Formi_e>();
  scegli(f.MSFlexGrid1, 0);
  pretendi(f.Dir1->vai(cartella), "the folder of the export cannot be opened");
  quadro(schermata<Mdiorza>(), u"esporta"_s);
  clic(f.Command2);
  clic(f.Command3);
  pretendi(QFile::exists(QDir(cartella).filePath(u"1_ROSSI.orzaline"_s)), "nothing was exported");
}

void elimina() {
  auto& s = archivio();
  s.SSTabschedario->setCurrentIndex('R' - 'A');
  scegli(s.Tabella, 0);
  clic(s.Cmddelete);
  pretendi(iscritti().empty() && !QDir(percorso(u"1_ROSSI"_s)).exists(), "the client was not deleted");
}

}  // namespace

void vita_di_un_cliente(const QString& cartella_esporta) {
  const auto scritto = comincia_e_salva();
  richiama(u"ROSSI"_s);
  pretendi(contenuto(schermata<Formanag>()) == scritto, "the recalled client is not as typed");
  esporta(cartella_esporta);
  elimina();
  importa_esempi(cartella_esporta);
  richiama(u"ROSSI"_s);
  pretendi(contenuto(schermata<Formanag>()) == scritto, "the imported client is not as typed");
  quadro(schermata<Mdiorza>(), u"ritrovato"_s);
}

void importa_esempi(const QString& cartella) {
  clic(schermata<Mdiorza>().cmdsopra[9]);
  auto& f = schermata<Formi_e>();
  pretendi(f.Dir2->vai(cartella), "the folder of the import cannot be opened");
  const auto prima = iscritti().size();
  f.File1->selectAll();
  const auto scelti = static_cast<std::size_t>(f.File1->count());
  quadro(schermata<Mdiorza>(), u"importa"_s);
  clic(f.Cmdimp);
  clic(f.Command3);
  pretendi(scelti > 0 && iscritti().size() == prima + scelti, "not every file came in");
}
