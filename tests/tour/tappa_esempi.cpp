#include "core/formi_e.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/sessione.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "tappe.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString scheda_di_tutti = u"Tutti"_s;

void scegli_cliente(const QString& scheda, const QString& cognome) {
  clic(schermata<Mdiorza>().cmdsopra[0]);
  auto& s = schermata<Formsched>();
  clic_scheda(s.SSTabschedario, scheda);
  int riga = s.Tabella->rowCount() - 1;
  while (riga >= 0 && s.testo(riga, 2) != cognome) --riga;
  pretendi(riga >= 0, u"is in the archive: "_s + cognome);
  scegli(s.Tabella, riga);
}

void settimana_di(const QString& cognome) {
  scegli_cliente(cognome.left(1), cognome);
  auto& m = schermata<Mdiorza>();
  clic(schermata<Formsched>().Command10[2]);
  clic(m.cmdsopra[5]);
  pretendi(caricata<Formelabora>() != nullptr, u"the elaboration opens for "_s + cognome);
  elabora_settimana_uno(cognome.toLower());
  verifica_scelte();
  clic(schermata<Formelabora>().Command5[0]);
  Archivio cliente(percorso_cliente(), accesso, Archivio::Modo::sola_lettura);
  verifica(cliente.righe(u"SELECT DISTINCT giorno, pasto FROM dieta WHERE dieta = 1"_s).size() == giorni * pasti,
           u"the file of %1 holds the whole week"_s.arg(cognome));
}

}  // namespace

void importa_da(const QString& cartella, int quanti) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[9]);
  const auto& f = schermata<Formi_e>();
  pretendi(f.Dir2->vai(cartella), u"the folder of the import opens"_s);
  const auto prima = iscritti().size();
  pretendi(f.File1->count() == quanti, u"the client files are listed"_s);
  conta_passo();
  f.File1->setFocus();
  QTest::keySequence(f.File1, QKeySequence::SelectAll);
  quadro(m, u"importa"_s, quanti > 1 ? u"importa_esporta"_s : QString());
  clic(f.Cmdimp);
  clic(f.Command3);
  verifica(iscritti().size() == prima + static_cast<std::size_t>(quanti), u"every file comes in"_s);
}

/// The sample clients, a week of diet each.
void esempi(Viaggio& v) {
  importa_da(v.lavoro.filePath(u"esempi"_s), 3);
  for (const QString& cognome : {u"BIANCHI"_s, u"FERRI"_s, u"MORETTI"_s}) settimana_di(cognome);
  auto& m = schermata<Mdiorza>();
  clic(m.Command2[0]);
  auto& s = (clic(m.cmdsopra[0]), schermata<Formsched>());
  clic_scheda(s.SSTabschedario, s.SSTabschedario->tabText(scheda_tutti));
  verifica_uguali(s.Txtcont->text(), u"4"_s, u"clients of the archive"_s);
  quadro(m, u"archivio"_s, u"archivio"_s);
  clic(s.Command10[3]);
}

/// The typed client leaves by a file and comes back by it.
void esporta_elimina_importa(Viaggio& v) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[9]);
  const auto& f = schermata<Formi_e>();
  int riga = f.MSFlexGrid1->rowCount() - 1;
  while (riga >= 0 && f.MSFlexGrid1->item(riga, 1)->text() != u"ROSSI") --riga;
  scegli(f.MSFlexGrid1, riga);
  pretendi(f.Dir1->vai(v.esportati.path()), u"the folder of the export opens"_s);
  clic(f.Command2);
  quadro(m, u"esporta"_s);
  clic(f.Command3);
  pretendi(QFile::exists(v.esportati.filePath(u"1_ROSSI.orzaline"_s)), u"the client is exported"_s);
  scegli_cliente(u"R"_s, u"ROSSI"_s);
  clic(schermata<Formsched>().Cmddelete);
  verifica(iscritti().size() == 3 && !QDir(percorso(u"1_ROSSI"_s)).exists(), u"the client is deleted"_s);
  importa_da(v.esportati.path(), 1);
  cerca_e_richiama(u"ROSSI"_s);
  verifica_uguali(contenuto(schermata<Formanag>()), v.letti.at(1), u"the imported client"_s);
  clic(m.Command2[0]);
}
