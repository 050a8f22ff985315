#include "assessment/formattivita.h"
#include "assessment/formpond.h"
#include "clinic/formfunzio.h"
#include "clinic/formtratta.h"
#include "core/formricerca.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "core/stadi.h"
#include "diary/formdiario.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "intake/formanag.h"
#include "intake/formpers.h"
#include "tappe.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// A meal's grid says the same for every list that hides behind a button.
Contenuto leggi_alimenti() {
  const auto& f = schermata<Formalimenti>();
  Contenuto tutto;
  clic(f.CmdContinuaFF);
  for (std::size_t pasto = 0; pasto < f.CmdPasto.size(); ++pasto) {
    clic(f.CmdPasto[pasto]);
    const Contenuto c = contenuto(f);
    for (auto i = c.begin(); i != c.end(); ++i) tutto[u"%1 "_s.arg(pasto) + i.key()] = i.value();
  }
  return tutto;
}

Contenuto leggi_dieta() {
  const auto& f = schermata<Formelabora>();
  Contenuto tutto;
  scegli(f.Combo1, 0);
  for (int i = 0; i < giorni * pasti; ++i) {
    if (i % pasti == 0) scegli(f.List1, i / pasti);
    clic(f.Option1[static_cast<std::size_t>(i % pasti)]);
    const Contenuto c = contenuto(f);
    for (auto k = c.begin(); k != c.end(); ++k) tutto[u"%1 "_s.arg(i) + k.key()] = k.value();
  }
  return tutto;
}

template <class S>
Contenuto leggi() {
  return contenuto(schermata<S>());
}

/// How a stage is read, once it has been opened afresh.
struct Lettura {
  int pulsante;
  Contenuto (*leggi)();
};
constexpr Lettura letture[]{
    {1, leggi<Formanag>}, {2, leggi<Formpers>},   {8, leggi<Formfunzio>},
    {3, leggi<Formpond>}, {7, leggi<Formdiario>}, {15, leggi<Formattività>},
    {4, leggi_alimenti},  {5, leggi_dieta},       {6, leggi<Formtratta>},
};

std::map<int, Contenuto> leggi_tutto() {
  std::map<int, Contenuto> letti;
  for (const Lettura& l : letture) {
    clic(schermata<Mdiorza>().cmdsopra[static_cast<std::size_t>(l.pulsante)]);
    letti[l.pulsante] = l.leggi();
  }
  return letti;
}

/// Each reload of the exams moves four of their columns on by one.
void gira_esami(Contenuto& patologica) {
  QStringList righe = patologica[u"MSFlex2"_s].split(u'\n');
  for (QString& riga : righe) {
    const QStringList c = riga.split(u'|');
    riga = QStringList{c[0], c[1], c[5], c[2], c[3], c[4]}.join(u'|');
  }
  patologica[u"MSFlex2"_s] = righe.join(u'\n');
}

}  // namespace

void cerca_e_richiama(const QString& cognome) {
  clic(schermata<Mdiorza>().cmdsopra[0]);
  auto& s = schermata<Formsched>();
  clic(s.Command10[1]);
  auto& r = schermata<Formricerca>();
  clic(r.Option1[1]);
  scrivi(r.Textval, cognome.toLower());
  quadro(r, u"ricerca"_s);
  clic(r.cmdricerca);
  pretendi(s.riga_scelta() >= 0 && s.testo(s.riga_scelta(), 2) == cognome, u"the search finds "_s + cognome);
  clic(s.Command10[2]);
  pretendi(caricata<Formanag>() != nullptr, u"is recalled: "_s + cognome);
}

/// The general save, the end of the session, and every screen as it was.
void ritorno(Viaggio& v) {
  auto& m = schermata<Mdiorza>();
  v.letti = leggi_tutto();
  clic(m.Command2[1]);
  pretendi(QFile::exists(percorso(u"1_ROSSI/1_ROSSI.orzaline"_s)), u"the client's file is there"_s);
  clic(m.Command2[0]);
  verifica(!esiste_dati_tmp(), u"closing the client takes the working copy away"_s);
  verifica(m.Txtsoggetto->text().isEmpty(), u"and empties the banner"_s);
  cerca_e_richiama(u"ROSSI"_s);
  quadro(m, u"richiamata"_s, u"finestra"_s);
  auto trovati = leggi_tutto();
  gira_esami(v.letti[8]);
  for (const Lettura& l : letture) {
    verifica_uguali(trovati[l.pulsante], v.letti[l.pulsante],
                    m.cmdsopra[static_cast<std::size_t>(l.pulsante)]->toolTip());
  }
}
