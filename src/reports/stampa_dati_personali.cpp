#include "base/errori.h"
#include "base/numeri.h"
#include "clinic/formtratta.h"
#include "core/salva_carica.h"
#include "core/schermate.h"
#include "intake/formanag.h"
#include "reports/fonti.h"
#include "reports/scrittori.h"

#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t visite = 7;
using Visite = std::span<QLineEdit* const, visite>;

/// The whole numbers of a list that ends each with a comma. Throws Errore 9 for an eleventh.
std::array<int, 10> numeri(const QString& elenco) {
  std::array<int, 10> n{};
  const QStringList pezzi = elenco.split(u',').mid(0, elenco.count(u','));
  if (pezzi.size() > 10) throw Errore(9, "Indice fuori dai limiti");
  for (qsizetype i = 0; i < pezzi.size(); ++i) {
    n.at(static_cast<std::size_t>(i)) = numerico(pezzi[i]) ? round16(valore(pezzi[i])) : 0;
  }
  return n;
}

QString scelta(std::span<const QStringView> testi, int indice) {
  return indice >= 0 && indice < std::ssize(testi) ? testi[static_cast<std::size_t>(indice)].toString() : QString();
}

void scrivi_persona(Bersaglio& b, const Studio& studio, const Riga& r) {
  static constexpr QStringView sessi[]{u"maschile", u"femminile"};
  static constexpr QStringView costituzioni[]{u"Longitipo", u"Normotipo", u"Brachitipo"};
  static constexpr QStringView lavori[]{u"Allettato", u"Sedentario", u"Leggero", u"Medio", u"Pesante"};
  const auto altre_info = numeri(r[u"altre_info"].toString());
  b.all_origine();
  riga(b, u"Orzaline"_s);
  riga(b, studio.nome, u" "_s, studio.qualifica, u" "_s, studio.indirizzo);
  b.a_capo();
  riga(b, u"                       DATI PERSONALI DI:"_s, u"     "_s, r[u"cognome"], u" "_s, r[u"nome"]);
  b.a_capo();
  riga(b, u"Codice Cliente:"_s, Tab{20}, r[u"cod"]);
  riga(b, u"Data 1° visita:"_s, Tab{21}, r[u"data_visita"]);
  const QString sesso = r[u"sex"].isNull() ? QString() : scelta(sessi, r[u"sex"].toInt());
  pezzo(b, u"Sesso:"_s);
  if (!sesso.isEmpty()) pezzo(b, Tab{21}, sesso);
  b.a_capo();
  riga(b, u"Anni:"_s, Tab{21}, r[u"anni"]);
  riga(b, u"Statura:"_s, Tab{21}, r[u"statura"]);
  riga(b, u"Costituzione:"_s, Tab{21}, scelta(costituzioni, altre_info[0]));
  riga(b, u"Tipo di lavoro:"_s, Tab{21}, scelta(lavori, altre_info[5]));
  righe_vuote(b, 2);
}

void scrivi_recapiti(Bersaglio& b, const Riga& r) {
  const InLettura<Formanag> f;
  carica_luoghi();
  riga(b, u"Data di nascita:"_s, Tab{25}, r[u"data_n"]);
  riga(b, u"Comune di nascita:"_s, Tab{25}, f->Combocom->currentText(), Tab{50}, u"Prov.:"_s, Tab{60},
       f->comboprov->currentText());
  riga(b, u"Codice Fiscale:"_s, Tab{25}, r[u"cod_fiscale"]);
  b.a_capo();
  riga(b, u"Comune di residenza:"_s, Tab{25}, f->Combocom2->currentText(), Tab{50}, u"Prov.:"_s, Tab{60},
       f->comboprov2->currentText(), Tab{65}, u"CAP:"_s, Tab{71}, r[u"cap"]);
  riga(b, u"Località:"_s, Tab{25}, r[u"locali"]);
  riga(b, u"Indirizzo:"_s, Tab{25}, r[u"indirizzo"]);
  riga(b, u"Telefono:"_s, Tab{25}, r[u"tel1"], Tab{50}, u"Altro recapito tel.:"_s, Tab{71}, r[u"tel2"]);
  righe_vuote(b, 3);
}

/// One line of the table; a measure that the client's visits do not have stands empty at each.
void scrivi_misura(Bersaglio& b, const QString& nome, std::optional<Visite> valori, bool data = false) {
  pezzo(b, nome);
  for (int i = 0; i < static_cast<int>(visite); ++i) {
    const QString t = valori ? (*valori)[static_cast<std::size_t>(i)]->text() : QString();
    if (t.isEmpty()) {
      pezzo(b, Tab{25 + 14 * i}, u"______"_s);
    } else {
      pezzo(b, Tab{data ? 25 + 14 * i : 33 + 14 * i - static_cast<int>(t.size())}, t);
    }
  }
  b.a_capo();
}

/// The free circumference that the practitioner named after a part of the body.
std::optional<Visite> circonferenza(const Formtratta& f, QStringView parte) {
  if (f.txtCirco[0]->text().contains(parte, Qt::CaseInsensitive)) return f.Text28;
  if (f.txtCirco[1]->text().contains(parte, Qt::CaseInsensitive)) return f.Text29;
  return {};
}

void titolo(Bersaglio& b, const QString& testo) {
  b.a_capo();
  riga(b, testo);
  b.a_capo();
}

void scrivi_misure(Bersaglio& b) {
  const InLettura<Formtratta> letta;
  const Formtratta& f = *letta;
  scrivi_misura(b, u"Date"_s, f.Text24, true);
  scrivi_misura(b, u"Peso Kg."_s, f.Text37);
  titolo(b, u"          CIRCONFERENZE cm."_s);
  scrivi_misura(b, u"Mediana braccio:"_s, circonferenza(f, u"braccio"));
  scrivi_misura(b, u"Vita:"_s, f.Text25);
  scrivi_misura(b, u"Fianchi:"_s, f.Text26);
  scrivi_misura(b, u"Mediana coscia:"_s, circonferenza(f, u"coscia"));
  scrivi_misura(b, u"Mediana polpaccio:"_s, circonferenza(f, u"polpaccio"));
  titolo(b, u"          PLICOMETRIA mm."_s);
  scrivi_misura(b, u"Bicipitale:"_s, f.Text30);
  scrivi_misura(b, u"Tricipitale:"_s, f.Text31);
  scrivi_misura(b, u"Sottoscapolare:"_s, f.Text32);
  scrivi_misura(b, u"Sovrailiaca:"_s, f.Text33);
  titolo(b, u"          IMPEDENZIOMETRIA"_s);
  scrivi_misura(b, u"Magro %"_s, f.Text34);
  scrivi_misura(b, u"Grasso %"_s, f.Text35);
  scrivi_misura(b, u"Acqua %"_s, f.Text36);
}

}  // namespace

void stampa_dati_personali(Bersaglio& b) {
  const Studio studio = identità();
  auto cliente = cliente_salvato();
  if (!cliente) return;
  const Riga anagrafe = anagrafe_di(*cliente);
  scrivi_persona(b, studio, anagrafe);
  scrivi_recapiti(b, anagrafe);
  riga(b, u"                       DATI ANTROPOMETRICI "_s);
  b.a_capo();
  scrivi_misure(b);
  b.a_capo();
  titolo(b, u"         NOTE:"_s);
  for (int i = 0; i < 3; ++i) riga(b, QString(93, u'_'));
}
