#include "core/stadi.h"

#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "base/numeri.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/attesa.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "diary/formdiario.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "intake/formpers.h"

#include <QApplication>
#include <algorithm>

namespace {

constexpr Stadio percorso_stadi[]{
    {0, 1, u"Scheda Anagrafica", true, mostra<Formanag>, scarica<Formanag>},
    {3, 2, u"Dati personali", true, mostra<Formpers>, scarica<Formpers>},
    {4, 8, u"Anamnesi patologica", true, mostra<Formfunzio>, scarica<Formfunzio>},
    {5, 3, u"Dati ponderali & Antropometrici", true, mostra<Formpond>, scarica<Formpond>},
    {9, 7, u"Diario alimentare", true, mostra<Formdiario>, scarica<Formdiario>},
    {1, 15, u"Attività fisica", false, mostra<Formattività>, scarica<Formattività>},
    {7, 4, u"Selezione alimenti", true, mostra<Formalimenti>, scarica<Formalimenti>},
    {8, 5, u"Elaborazione", true, mostra<Formelabora>, scarica<Formelabora>},
    {10, 6, u"Controlli", true, mostra<Formtratta>, scarica<Formtratta>},
};

void abilita(bool si) {
  Mdiorza& m = schermata<Mdiorza>();
  for (const Stadio& s : stadi()) m.cmdsopra[s.pulsante]->setEnabled(si);
  m.abilita_stampe(si);
}

/// One step on the path, +1 onward or -1 back; a beep at its ends.
void muovi(std::ptrdiff_t passo) {
  const Stadio* qui = stadio(schermata<Mdiorza>().qualeform.text());
  if (!qui) return;
  const auto i = qui - percorso_stadi + passo;
  if (i < 0 || i >= std::ssize(percorso_stadi)) return QApplication::beep();
  const Attesa attesa;
  qui->chiudi();
  percorso_stadi[i].apri();
}

}  // namespace

std::span<const Stadio> stadi() { return percorso_stadi; }

const Stadio* stadio(const QString& codice) {
  const auto s =
      std::ranges::find_if(percorso_stadi, [&](const Stadio& x) { return QString::number(x.codice) == codice; });
  return s == std::end(percorso_stadi) ? nullptr : &*s;
}

void cambia_qualeform() {
  Mdiorza& m = schermata<Mdiorza>();
  for (const Stadio& s : stadi()) m.cmdsopra[s.pulsante]->setChecked(false);
  const bool aperto = valore(m.qualeform.text()) >= 0;
  m.Statusbar->setVisible(aperto);
  abilita(aperto);
  m.Command1[0]->setEnabled(aperto);
  const Stadio* qui = stadio(m.qualeform.text());
  if (!qui) return;
  m.cmdsopra[qui->pulsante]->setChecked(true);
  if (qui->prende_fuoco) m.cmdsopra[qui->pulsante]->setFocus();
}

void abilita_stadi() { abilita(true); }
void disabilita_stadi() { abilita(false); }

void avanti() { muovi(1); }
void indietro() { muovi(-1); }

void salta_a(const Stadio& stadio) {
  const Attesa attesa;
  scarica_schede();
  stadio.apri();
}
