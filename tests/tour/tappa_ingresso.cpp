#include "core/formsched.h"
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/stadi.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

/// The first login gives name and password their values; the window then waits for a client.
void ingresso(Viaggio&) {
  mostra<frmLogin>();
  auto& login = schermata<frmLogin>();
  scrivi(login.txtUserName, u"dietista"_s);
  scrivi(login.txtPassword, u"orzo e farro"_s);
  quadro(login, u"accesso"_s, u"accesso"_s);
  clic(login.cmdOK);
  pretendi(caricata<Mdiorza>() && !caricata<frmLogin>(), u"the login leads to the main window"_s);
  auto& m = schermata<Mdiorza>();
  m.activateWindow();
  pretendi(QTest::qWaitForWindowActive(&m), u"the main window is active"_s);
  for (const Stadio& s : stadi()) {
    verifica(!m.cmdsopra[s.pulsante]->isEnabled(), u"no stage without a client: "_s + s.suggerimento.toString());
  }
  verifica(!m.Command2[1]->isEnabled(), u"nothing to save yet"_s);
  quadro(m, u"finestra"_s);
  clic(m.cmdsopra[0]);
  pretendi(caricata<Formsched>() != nullptr, u"the archive opens"_s);
  verifica(!schermata<Formsched>().Tabella->isEnabled(), u"the archive is empty"_s);
  quadro(m, u"archivio_vuoto"_s);
}
