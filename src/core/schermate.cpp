#include "core/schermate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <utility>
#include <vector>

namespace {

Ospite& ospite() {
  static Ospite o;
  return o;
}

std::vector<std::function<void()>>& abbandoni() {
  static std::vector<std::function<void()>> a;
  return a;
}

}  // namespace

Ospite ospita_con(Ospite nuovo) { return std::exchange(ospite(), std::move(nuovo)); }

void prendi_posto(QWidget& schermata) {
  if (ospite().accogli) ospite().accogli(schermata);
  schermata.hide();  // a window takes its content for shown
}

void abbandona_schermate() {
  for (const auto& abbandono : abbandoni()) abbandono();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void dettaglio::ospita(QWidget& schermata, const RegoleFiglia& regole) {
  if (ospite().ospita) return ospite().ospita(schermata, regole);
  schermata.show();
  regole.attivazione();
}

void dettaglio::congeda(QWidget& schermata) {
  // The widget outlives its closing by an event: nothing of it may tick meanwhile.
  for (QTimer* t : schermata.findChildren<QTimer*>()) t->stop();
  schermata.hide();
  if (ospite().congeda) ospite().congeda(schermata);
}

void dettaglio::al_termine(std::function<void()> abbandono) { abbandoni().push_back(std::move(abbandono)); }
