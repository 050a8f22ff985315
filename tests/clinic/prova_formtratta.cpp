// Stage 10: the sheet of visits, where its first column comes from, and the chart of a measure.
#include "clinic/formtratta.h"

#include "clinic/formgraficotratta.h"
#include "core/mdiorza.h"
#include "core/sezioni.h"

#include "ambiente.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QLineSeries>

using namespace Qt::StringLiterals;

namespace {

struct ProvaTrattamento : AmbienteDi<Formtratta> {
  ProvaTrattamento() {
    mostra<Mdiorza>();
    m.Txtcod->setText(u" 12 "_s);
    apri();
  }
  static void scrivi_serie(const Formtratta::Serie& serie, const QStringList& testi) {
    for (std::size_t i = 0; i < serie.size(); ++i) serie[i]->setText(testi.value(static_cast<int>(i)));
  }
  [[nodiscard]] static QAbstractSeries* serie_del_grafico() {
    return schermata<Formgraficotratta>().MSChart1->chart()->series().front();
  }
  static QList<qreal> valori_del_grafico() {
    const auto* linea = qobject_cast<QLineSeries*>(serie_del_grafico());
    const auto* barre = qobject_cast<QBarSeries*>(serie_del_grafico());
    QList<qreal> valori;
    for (int i = 0; i < 7; ++i) valori << (linea ? linea->at(i).y() : barre->barSets().front()->at(i));
    return valori;
  }
  static QString etichette_del_grafico() {
    auto* asse = qobject_cast<QBarCategoryAxis*>(serie_del_grafico()->attachedAxes().front());
    return asse->categories().join(u'|').remove(QChar(0x200b));
  }
};

}  // namespace

TEST_F(ProvaTrattamento, TheSheetComesBackAsItWasTyped) {
  scrivi_serie(f->Text24, {u"01/02/2026"_s, u"1-3-26"_s, {}, {}, {}, {}, u"l'ultima"_s});
  for (std::size_t k = 0; k < misure.size(); ++k) {
    scrivi_serie(f->*misure[k].serie, {QString::number(40 + k), {}, u"71,5"_s});
  }
  QTest::keyClicks(f->Text25[5], u"8a3,5"_s);
  f->Text22[6]->setText(u" stanca "_s);
  f->txtCirco[0]->setText(u"Mediana braccio"_s);
  apri();
  for (const auto& [nome, atteso] : {std::pair{u"cod_cli"_s, u"12"_s},
                                     {u"Date"_s, u"01/02/2026+1-3-26+++++l'ultima+"_s},
                                     {u"braccia"_s, u"41++71,5+++835++"_s},  // only digits were typed
                                     {u"peso"_s, u"40++71,5+++++"_s},
                                     {u"acqua"_s, u"52++71,5+++++"_s},
                                     {u"notebic"_s, u"stanca"_s}}) {
    EXPECT_EQ(campo(u"trattamento"_s, nome), atteso);
  }
  EXPECT_EQ(testi(f->Text29), u"45  71,5    "_s);
  EXPECT_EQ(f->Text24[6]->text(), u"l'ultima"_s);
  EXPECT_EQ(f->txtCirco[0]->text(), u"Mediana braccio"_s);
}

TEST_F(ProvaTrattamento, TheFirstVisitComesFromTheOtherSections) {
  salva_riga(dati_tmp(), u"anagrafe"_s, {{u"data_visita"_s, u"09/11/2026"_s}, {u"peso"_s, 72.1F}});
  salva_riga(dati_tmp(), u"Anamnesi"_s, {{u"vita"_s, 80.0}, {u"addomecm"_s, 91.5}});
  salva_riga(dati_tmp(), u"dietologica"_s, {{u"pliche"_s, u"12+8++15+20+"_s}});
  dati_tmp().esegui(u"DELETE FROM trattamento"_s);
  mostra<Formtratta>();
  scarica<Formtratta>();
  dati_tmp().esegui(u"DELETE FROM trattamento"_s);
  f = &schermata<Formtratta>();
  EXPECT_EQ(f->Text24[0]->text() + f->Text37[0]->text() + f->Text25[0]->text(), u""_s) << "no sheet, no seeds";
  f->Text26[0]->setText(u"99"_s);
  apri();
  const auto prime = [&] {
    return testi(std::array{f->Text24[0], f->Text37[0], f->Text25[0], f->Text26[0], f->Text27[0], f->Text30[0],
                            f->Text31[0], f->Text32[0], f->Text33[0]},
                 u"|"_s);
  };
  EXPECT_EQ(prime(), u"09/11/2026|72,1|80|99|91,5|12|8||15"_s) << "a measure that is nowhere stored stays";
  f->Text25[0]->setText(u"79"_s);
  f->Text27[0]->setText(u"90"_s);
  f->Text37[0]->setText(u"50"_s);
  apri();
  EXPECT_EQ(prime(), u"09/11/2026|72,1|79|99|90|12|8||15"_s) << "a waist typed in holds the measures, not the weight";
}

TEST_F(ProvaTrattamento, AChartAsksForMeasureAndKindInTurn) {
  const Dialogo d({{u"Scegliere il tipo di rilevamento !"_s, u"Orzaline control"_s, true, Icona::esclamazione},
                   {u"Scegliere il tipo di grafico !"_s, u"Orzaline control"_s}});
  for (const int che : {0, 1}) {
    apri();
    che == 0 ? f->Option4[0]->click() : f->Option3[4]->click();
    f->Command10->click();
    EXPECT_EQ(caricata<Formgraficotratta>(), nullptr);
  }
}

TEST_F(ProvaTrattamento, AChartShowsTheSevenVisitsRounded) {
  scrivi_serie(f->Text24, {u"01/02/2026"_s, u"01/02/2026"_s});
  scrivi_serie(f->Text37, {u"72,5"_s, u"73,5 kg"_s, u"ca. 70"_s, u"-3"_s, {}, u" 68"_s, u"1.066"_s});
  f->txtCirco[1]->setText(u"<b>Mediana</b>"_s);
  f->Option3[0]->click();
  f->Option4[0]->click();
  f->Command10->click();
  auto* g = caricata<Formgraficotratta>();
  ASSERT_NE(g, nullptr);
  EXPECT_TRUE(g->isModal() && qobject_cast<QLineSeries*>(serie_del_grafico()));
  EXPECT_EQ(g->windowTitle(), u"Grafico Trattamento - Peso Kg"_s);
  EXPECT_EQ(valori_del_grafico(), (QList<qreal>{72, 74, 0, -3, 0, 68, 1066}));
  EXPECT_EQ(etichette_del_grafico(), u"01/02/2026|01/02/2026|||||"_s);
  EXPECT_EQ(f->Text37[1]->text(), u"73,5 kg"_s);
  g->commchiudi->click();
  f->Option3[5]->click();
  f->Option4[1]->click();
  f->Command10->click();
  EXPECT_EQ(schermata<Formgraficotratta>().windowTitle(), u"Grafico Trattamento - <b>Mediana</b>"_s);
  EXPECT_EQ(valori_del_grafico(), QList<qreal>(7, 0)) << "seven empty visits";
  scarica<Formgraficotratta>();
  f->Text29[0]->setText(u"40000"_s);
  Fallimenti falliti;
  f->Command10->click();
  EXPECT_EQ(falliti.numeri, std::vector{6});
  EXPECT_EQ(caricata<Formgraficotratta>(), nullptr);
}

TEST_F(ProvaTrattamento, TheStageEndsWhenAnotherScreenComesInFront) {
  EXPECT_EQ(m.qualeform.text(), u"10"_s);
  mostra<Formsched>();
  EXPECT_EQ(m.qualeform.text(), u"-1"_s);
  m.Command1[0]->click();
  EXPECT_EQ(caricata<Formtratta>(), f) << "nothing leads on from between the stages";
  scarica<Formsched>();
  EXPECT_EQ(m.qualeform.text(), u"10"_s);
  m.Command1[0]->click();
  EXPECT_EQ(caricata<Formtratta>(), nullptr);
  EXPECT_EQ(m.qualeform.text(), u"8"_s);
}
