#include "core/messaggi.h"

#include "core/attesa.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon icona_qt(Icona icona) {
  switch (icona) {
    case Icona::informazione: return QMessageBox::Information;
    case Icona::esclamazione: return QMessageBox::Warning;
    case Icona::critica: return QMessageBox::Critical;
    case Icona::domanda: return QMessageBox::Question;
    case Icona::nessuna: break;
  }
  return QMessageBox::NoIcon;
}

constexpr std::pair<QMessageBox::StandardButton, QStringView> scritte[]{
    {QMessageBox::Ok, u"OK"}, {QMessageBox::Yes, u"&Sì"}, {QMessageBox::No, u"&No"}};

bool finestra(const Riquadro& r) {
  QMessageBox box(icona_qt(r.icona), r.titolo, r.testo, r.scelta ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                  QApplication::activeWindow());
  for (const auto& [quale, scritta] : scritte) {
    if (QAbstractButton* b = box.button(quale)) b->setText(scritta.toString());
  }
  return box.exec() == QMessageBox::Yes;
}

Interlocutore interlocutore;

bool parla(const Riquadro& r) {
  const Ascolto ascolto;
  return interlocutore ? interlocutore(r) : finestra(r);
}

}  // namespace

void messaggio(const QString& testo, const QString& titolo, Icona icona) { parla({testo, titolo, icona, false}); }

void avvisa_caricamento() { messaggio(u"Si è verificato un errore nel caricamento !"_s); }

bool domanda(const QString& testo, const QString& titolo, Icona icona) { return parla({testo, titolo, icona, true}); }

bool domanda_con(const Riquadro& domanda, const std::function<bool()>& finestra) {
  const Ascolto ascolto;
  return interlocutore ? interlocutore(domanda) : finestra();
}

Interlocutore parla_con(Interlocutore nuovo) { return std::exchange(interlocutore, std::move(nuovo)); }
