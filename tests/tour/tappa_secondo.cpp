#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

/// A man with a fast-food lunch: foods chosen by the program, no activity, and the session closed without saving.
void secondo_cliente(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.cmdsopra[0]);
  nuovo_cliente({u"verdi"_s, u"luca"_s, u"3-9-91"_s, u"M"_s, u"MI"_s, u"Milano"_s, u"88"_s, u"181"_s});
  clic(m.cmdsopra[3]);
  clic(schermata<Formpond>().Image1[1]);
  verifica(schermata<Formpond>().Frame_obiettivo->isVisible(), u"the objective by the second method"_s);
  clic(m.cmdsopra[15]);
  clic(schermata<Formattività>().CmdUtilizza[1]);
  clic(m.cmdsopra[4]);
  const auto& f = schermata<Formalimenti>();
  clic(f.OptFF[1]);
  clic(f.CmdContinuaFF);
  clic(f.OptAlim[0]);
  clic(f.CmdContinuaAlimenti);
  clic(f.CmdPasto[3]);
  quadro(m, u"scelta_automatica"_s);
  clic(m.cmdsopra[5]);
  elabora_settimana_uno(u"verdi"_s);
  verifica_scelte();
  clic(m.Command2[0]);
  verifica(!esiste_dati_tmp(), u"closing the client takes the working copy away"_s);
  clic(m.cmdsopra[0]);
  clic_scheda(schermata<Formsched>().SSTabschedario, u"V"_s);
  verifica_uguali(schermata<Formsched>().Txtcont->text(), u"0"_s, u"what was not saved is not in the archive"_s);
}
