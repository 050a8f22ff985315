#include "base/archivio.h"
#include "core/mdiorza.h"
#include "core/sessione.h"
#include "diet/formelabora.h"
#include "tappe.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int integratori = 23;                         // group of the supplements
constexpr int feriali = 31, festivi = 96, tutti = 127;  // a bit a day, Monday first

/// By meal code and food (cod1 * 1000 + cod2): the days, a bit each.
using Giorni = std::map<std::pair<int, int>, int>;

struct Scelte {
  Giorni ammessi, obbligati;
};

Scelte scelte() {
  Scelte s;
  for (const Riga& r : dati_tmp().righe(u"SELECT * FROM alimenti_spuntati"_s)) {
    const std::pair chiave(r[u"pasto"].toInt(), r[u"cod1"].toInt() * 1000 + r[u"cod2"].toInt());
    const int obbligo = (r[u"LV"].toBool() ? feriali : 0) | (r[u"SD"].toBool() ? festivi : 0);
    s.ammessi[chiave] = r[u"ok"].toBool() ? tutti : obbligo;
    if (obbligo) s.obbligati[chiave] = obbligo;
  }
  return s;
}

/// The lists that a meal draws on. The weekend lunch of a fast-food client draws on the dinner's.
std::vector<int> codici(int giorno, int pasto) {
  if (pasto == 0) return {1, 2};
  if (pasto == 2 && motore().pranzo_ff && giorno >= 5) return {6};
  return {pasto + 2};
}

bool intera() {
  for (int i = 0; i < giorni * pasti; ++i) {
    if (motore().menu(1, i / pasti, i % pasti, 0).cod1 == 0) return false;
  }
  return true;
}

void guarda_giorno(const Formelabora& f, int giorno) {
  scegli(f.List1, giorno);
  verifica(!f.Text4[8]->text().isEmpty(), u"day %1 has its totals"_s.arg(giorno));
  for (QRadioButton* pasto : f.Option1) {
    clic(pasto);
    verifica(!f.Text1[0]->text().isEmpty(), u"day %1 has foods at %2"_s.arg(giorno).arg(pasto->text()));
  }
}

/// Three grams more of the first food of Sunday's dinner.
QString tre_grammi(const Formelabora& f) {
  conta_passo();
  QTest::mouseDClick(f.Text1[0], Qt::LeftButton);
  const int prima = f.Text2[0]->text().toInt();
  for (int i = 0; i < 4; ++i) clic(f.Command1);
  clic(f.Command3);
  const QString dopo = QString::number(prima + 3);
  verifica_uguali(f.Text2[0]->text(), dopo, u"four grams up and one down"_s);
  return dopo;
}

void verifica_salvata(const QString& grammi) {
  Archivio cliente(percorso_cliente(), accesso, Archivio::Modo::sola_lettura);
  const auto salvati = cliente.righe(u"SELECT DISTINCT giorno, pasto FROM dieta WHERE dieta = 1"_s).size();
  const auto variati = cliente.righe(u"SELECT quant_mod FROM dieta WHERE quant_mod <> ''"_s);
  verifica(salvati == giorni * pasti, u"the client's file holds the whole week"_s);
  verifica(variati.size() == 1 && variati.front()[u"quant_mod"].toString() == grammi, u"and the changed grams"_s);
}

}  // namespace

void elabora_settimana_uno(const QString& nome) {
  const auto& f = schermata<Formelabora>();
  for (int volte = 0; volte < 4 && (volte == 0 || !intera()); ++volte) {
    scegli(f.Combo1, 0);
    clic(f.test);
  }
  verifica(intera(), u"the week comes out whole"_s);
  scegli(f.Combo1, 0);
  clic(f.Option1[2]);
  for (int giorno = 0; giorno < giorni; ++giorno) {
    guarda_giorno(f, giorno);
    if (giorno > 0) continue;
    clic(f.Option1[2]);
    quadro(schermata<Mdiorza>(), u"dieta_"_s + nome, nome == u"rossi" ? u"elaborazione"_s : QString());
  }
}

void verifica_scelte() {
  const Scelte s = scelte();
  Giorni serviti;
  for (int i = 0; i < giorni * pasti * posti; ++i) {
    const int giorno = i / (pasti * posti), pasto = i / posti % pasti;
    const voce_pasto& v = motore().menu(1, giorno, pasto, i % posti);
    if (v.cod1 == 0 || v.cod1 == integratori) continue;
    bool ammesso = false;
    for (const int codice : codici(giorno, pasto)) {
      const std::pair chiave(codice, v.cod1 * 1000 + v.cod2);
      serviti[chiave] |= 1 << giorno;
      const auto permesso = s.ammessi.find(chiave);
      ammesso = ammesso || (permesso != s.ammessi.end() && permesso->second & (1 << giorno));
    }
    verifica(ammesso, u"is allowed on day %1 at meal %2: %3"_s.arg(giorno).arg(pasto).arg(v.descr));
  }
  for (const auto& [chiave, voluti] : s.obbligati) {
    verifica((serviti[chiave] & voluti) == voluti, u"is served on its days: %1"_s.arg(chiave.second));
  }
}

void elaborazione(Viaggio& v) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formelabora>() != nullptr, u"Avanti leads to the elaboration"_s);
  const auto& f = schermata<Formelabora>();
  elabora_settimana_uno(u"rossi"_s);
  for (int giorno = 0; giorno < giorni; ++giorno) {
    scegli(f.List1, giorno);
    const QStringList ideali{f.Text4[0]->text(), f.Text4[1]->text(), f.Text4[2]->text(), f.Text4[3]->text()};
    verifica_uguali(ideali.join(u' '), v.bersagli.at(static_cast<std::size_t>(giorno)).join(u' '),
                    u"targets of day %1 as the activities showed them"_s.arg(giorno));
  }
  verifica_scelte();
  for (int giorno = 0; giorno < 5; ++giorno) {
    bool servito = false;
    for (int p = 0; p < posti; ++p) servito = servito || motore().menu(1, giorno, 2, p).cod1 == integratori;
    verifica(servito, u"the supplement is in the lunch of day %1"_s.arg(giorno));
  }
  clic(f.Option1[4]);
  const QString grammi = tre_grammi(f);
  quadro(m, u"grammi"_s);
  clic(f.Command5[0]);
  verifica_salvata(grammi);
}
