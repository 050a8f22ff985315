#include "clinic/formesami.h"
#include "clinic/formfunzio.h"
#include "core/formnote.h"
#include "core/mdiorza.h"
#include "tappe.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList glicemia{u"12-1-26"_s, u"Glicemia a digiuno"_s, u"98"_s, u"70"_s, u"100"_s, u"nella norma"_s};
const QStringList colesterolo{u"12.1.26"_s, u"Colesterolo totale"_s, u"231"_s, u"120"_s,
                              u"200"_s,     u"oltre il limite"_s};

void note(const Formfunzio& f) {
  const std::array testi{u"gastrite, ipotiroidismo lieve"_s,
                         u"frattura del polso destro, 1998"_s,
                         u"normale"_s,
                         u"ritmico"_s,
                         u"liberi"_s,
                         u"trattabile"_s,
                         u"lombalgia da postura"_s,
                         u"lattosio, lieve"_s};
  for (std::size_t i = 0; i < testi.size() - 1; ++i) scrivi(f.Text1[i], testi[i]);
  clic(f.Command1.back());
  scrivi(schermata<Formnote>().txtnote, testi.back());
  clic(schermata<Formnote>().cmdclosenote);
}

void pressione_e_farmaci(const Formfunzio& f) {
  scrivi(f.Text11, 0, {u"10-1-26"_s, u"135"_s, u"85"_s, u"72"_s, u"24-1-26"_s, u"130"_s, u"82"_s, u"70"_s});
  scrivi(f.Text11, 8, {u"7-2-26"_s, u"128"_s, u"80"_s, u"68"_s, u"21-2-26"_s, u"125"_s, u"80"_s, u"66"_s});
  const std::array farmaci{QStringList{u"1-2-24"_s, u"Levotiroxina 50 mcg"_s, u"1"_s},
                           QStringList{u"15-9-25"_s, u"Omeprazolo 20 mg"_s, u"1"_s}};
  for (std::size_t r = 0; r < farmaci.size(); ++r) {
    for (std::size_t c = 0; c < 3; ++c) scrivi(f.Text19[r + 10 * c], farmaci[r][static_cast<qsizetype>(c)]);
  }
}

void scrivi_esame(const QStringList& celle) {
  const auto& e = schermata<Formesami>();
  const std::array caselle{e.Textdata, e.Textesame, e.Textvalore, e.Textmin, e.Textmax, e.Txtreferto};
  for (std::size_t i = 0; i < caselle.size(); ++i) scrivi(caselle[i], celle[static_cast<qsizetype>(i)]);
}

void esami(const Formfunzio& f) {
  for (const QStringList& esame : {glicemia, colesterolo}) {
    clic(f.Command6[0]);
    scrivi_esame(esame);
    if (esame == colesterolo) quadro(schermata<Formesami>(), u"esame"_s);
    clic(schermata<Formesami>().Command1[0]);
  }
  scegli(f.MSFlex2, 0);
  clic(f.Command6[1]);
  verifica_uguali(schermata<Formesami>().Textesame->text(), glicemia[1], u"the exam to change"_s);
  scrivi(schermata<Formesami>().Textvalore, u"104"_s);
  clic(schermata<Formesami>().Command1[0]);
  pretendi(f.MSFlex2->rowCount() == 2, u"two exams stand in the grid"_s);
  verifica_uguali(f.MSFlex2->item(0, 2)->text(), u"104"_s, u"the changed result"_s);
  verifica_uguali(f.MSFlex2->item(1, 1)->text(), colesterolo[1], u"the other exam"_s);
}

}  // namespace

void patologica(Viaggio&) {
  auto& m = schermata<Mdiorza>();
  clic(m.Command1[1]);
  pretendi(caricata<Formfunzio>() != nullptr, u"Avanti leads to the clinical history"_s);
  const auto& f = schermata<Formfunzio>();
  note(f);
  scrivi(f.TxtRischio, 0, {u"88"_s, u"104"_s});
  scrivi(f.TxtRischio[3], u"92"_s);
  verifica_uguali(f.TxtRischio[2]->text(), u"0,8"_s, u"waist over hips"_s);
  verifica_uguali(f.ComboRischio[0]->currentText(), u"Si"_s, u"overweight by the index"_s);
  scegli(f.ComboRischio[0], u"Si"_s);
  scegli(f.ComboRischio[1], u"No"_s);
  scegli(f.ComboRischio[2], u"Si"_s);
  pressione_e_farmaci(f);
  esami(f);
  verifica(QTest::qWaitFor([&f] { return f.TxtIndici->text() == u"4"; }, 1500), u"four factors of risk are counted"_s);
  verifica(!f.TxtLivello->text().isEmpty(), u"the count has its level"_s);
  verifica_uguali(f.Text11[0]->text(), u"10/01/2026"_s, u"a date in its short form"_s);
  quadro(m, u"patologica"_s, u"patologica"_s);
}
