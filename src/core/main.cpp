#include "core/aspetto.h"
#include "core/frmlogin.h"
#include "core/lingua.h"
#include "core/regole.h"
#include "core/schermate.h"

int main(int argc, char** argv) {
  Applicazione app(argc, argv);
  QGuiApplication::setDesktopFileName(QStringLiteral("orzaline"));
  imposta_lingua();
  imposta_aspetto(app);
  QTimer::singleShot(0, &app, [] { esegui_regola(mostra<frmLogin>); });
  const int esito = Applicazione::exec();
  abbandona_schermate();
  return esito;
}
