// How long the preference screen takes: to open, to show a meal, to re-apply the boxes of its frame, to store it.
//
//   banco_preferenze [times]      (30 by default)
#include "base/archivio.h"
#include "base/file.h"
#include "core/aspetto.h"
#include "core/errore_non_gestito.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "diet/formalimenti.h"
#include "misure.h"

#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

template <class F>
void tempo(const char* che, int volte, F&& opera) {
  banco::tempo(
      che, volte, [] {},
      [&] {
        opera();
        QApplication::processEvents();
      });
}

void misura(int volte) {
  auto& f = schermata<Formalimenti>();
  f.OptFF[0]->click();
  f.CmdContinuaFF->click();
  constexpr std::size_t pranzo = 3, cena = 5;
  std::size_t quale = pranzo;
  tempo("lunch or dinner stored, next one shown", volte, [&] {
    f.CmdPasto[quale]->click();
    quale = quale == pranzo ? cena : pranzo;
  });
  std::printf("%-40s %9d\n", "foods in the grid", f.MSFlex1->model()->rowCount());
  f.CmdPasto[pranzo]->click();
  for (const char* nome : {"CheckPranzo_0", "CheckPranzo_18"}) {
    auto* casella = f.findChild<QCheckBox*>(QString::fromLatin1(nome));
    tempo("a box clicked, all boxes re-applied", volte, [&] { casella->click(); });
  }
  tempo("meal stored", volte, [&] { f.salva_spunte_alimenti(); });
  auto* conferma = f.findChild<QPushButton*>(u"CmdConfermaPranzo"_s);
  tempo("list of the chosen", volte, [&] { conferma->click(); });
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Applicazione app(argc, argv);
  imposta_aspetto(app);
  const int volte = argc > 1 ? std::max(1, std::atoi(argv[1])) : 30;
  const QTemporaryDir cartella;
  const QString archivi = QStringLiteral(CARTELLA_ARCHIVI);
  banco::posa_archivi(archivi, cartella.path());
  sostituisci_file(archivi + u"/esempi/1300_bianchi.orzaline"_s, percorso(u"dati.tmp"_s));
  parla_con([](const Riquadro&) { return true; });
  mostra<Mdiorza>();
  std::printf("%-40s %9s %9s\n", "", "median ms", "worst ms");
  tempo("stage opens", volte, [] {
    scarica<Formalimenti>();
    mostra<Formalimenti>();
  });
  misura(volte);
  abbandona_schermate();
  chiudi_archivi();
}
