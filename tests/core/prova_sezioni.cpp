// Sections: what reaches the store from the controls, and what comes back to them.
#include "core/sezioni.h"

#include "core/mdiorza.h"
#include "core/salva_carica.h"
#include "core/sezioni_cliente.h"
#include "intake/formanag.h"

#include "ambiente.h"

#include <QCheckBox>
#include <set>

using namespace Qt::StringLiterals;

namespace {

template <class C>
C* con_nome(QWidget& schermo, const QString& nome) {
  auto* c = new C(&schermo);
  c->setObjectName(nome);
  return c;
}

/// A screen of a few controls.
struct Schermo : QWidget {
  QLineEdit* testo = con_nome<QLineEdit>(*this, u"Text1"_s);
  QPlainTextEdit* nota = con_nome<QPlainTextEdit>(*this, u"Nota"_s);
  QComboBox* sesso = con_nome<QComboBox>(*this, u"Combosesso"_s);
  std::array<QComboBox*, 3> liste{con_nome<QComboBox>(*this, u"Combo_0"_s), con_nome<QComboBox>(*this, u"Combo_1"_s),
                                  con_nome<QComboBox>(*this, u"Combo_2"_s)};
  std::array<QCheckBox*, 2> spunte{con_nome<QCheckBox>(*this, u"Check_0"_s), con_nome<QCheckBox>(*this, u"Check_1"_s)};

  Schermo() {
    sesso->addItems({u"M"_s, u"F"_s});
    for (QComboBox* lista : liste) lista->addItems({u"a"_s, u"b"_s, u"c"_s});
  }
  [[nodiscard]] QList<int> posizioni() const {
    return {liste[0]->currentIndex(), liste[1]->currentIndex(), liste[2]->currentIndex()};
  }
};

const Sezione tre_liste{{u"liste"_s, vettore(u"Combo"_s, 0, 2), Come::lista_posizioni}};

struct ProvaSezioni : Ambiente {
  Schermo s;

  static std::set<QString> colonne(const QString& tabella) {
    std::set<QString> nomi;
    for (const Riga& r : dati_tmp().righe(u"PRAGMA table_info(%1)"_s.arg(tabella))) nomi.insert(r[u"name"].toString());
    return nomi;
  }
  static QVariant campo(const QString& nome) { return Ambiente::campo(u"anagrafe"_s, nome); }
};

}  // namespace

TEST_F(ProvaSezioni, AControlBecomesAFieldAsItsKindSays) {
  const std::tuple<Come, QString, QVariant> casi[]{
      {Come::testo, u" a "_s, u" a "_s},        {Come::rifilato, u" a "_s, u"a"_s},
      {Come::se_numero, u"72,25"_s, 72.25},     {Come::se_numero, u""_s, {}},
      {Come::se_singolo, u"72,1"_s, 72.1F},     {Come::se_intero, u"2,5"_s, 2},
      {Come::se_intero, u"2x"_s, {}},           {Come::se_numero_rifilato, u" 7,5 "_s, u"7,5"_s},
      {Come::se_numero_rifilato, u" - "_s, {}}, {Come::data, u"1-2-85"_s, u"01/02/1985"_s},
      {Come::se_data, u"29/02/2025"_s, {}},
  };
  for (const auto& [come, scritto, atteso] : casi) {
    s.testo->setText(scritto);
    EXPECT_EQ(leggi_controlli(s, {{u"x"_s, {u"Text1"_s}, come}}).value(u"x"_s), atteso) << scritto.toStdString();
  }
  s.testo->setText(u"40000"_s);
  EXPECT_EQ(numero_errore([&] { (void)leggi_controlli(s, {{u"x"_s, {u"Text1"_s}, Come::se_intero}}); }), 6);
  EXPECT_EQ(numero_errore([&] { (void)leggi_controlli(s, {{u"x"_s, {u"Text2"_s}, Come::testo}}); }), 424);
}

TEST_F(ProvaSezioni, ListsAndSexGoThereAndBack) {
  const Sezione sezione{{u"liste"_s, vettore(u"Combo"_s, 0, 2), Come::lista_posizioni},
                        {u"spunte"_s, vettore(u"Check"_s, 0, 1), Come::lista_stati},
                        {u"testi"_s, {u"Text1"_s, u"Nota"_s}, Come::lista_testi, u'+'},
                        {u"sesso"_s, {u"Combosesso"_s}, Come::sesso}};
  s.liste[1]->setCurrentIndex(-1);
  s.liste[2]->setCurrentIndex(2);
  s.spunte[1]->setChecked(true);
  s.testo->setText(u"71,5"_s);
  s.sesso->setCurrentIndex(1);
  const QVariantMap riga = leggi_controlli(s, sezione);
  EXPECT_EQ(
      riga,
      (QVariantMap{{u"liste"_s, u"0,-1,2,"_s}, {u"spunte"_s, u"0,1,"_s}, {u"testi"_s, u"71,5++"_s}, {u"sesso"_s, 1}}));
  Schermo altro;
  altro.nota->setPlainText(u"vecchia"_s);
  riempi_controlli(altro, sezione, riga);
  EXPECT_EQ(leggi_controlli(altro, sezione), riga);
  s.sesso->setCurrentIndex(-1);
  EXPECT_EQ(leggi_controlli(s, sezione).value(u"sesso"_s), 2);
  riempi_controlli(altro, sezione, {{u"sesso"_s, 2}});
  EXPECT_EQ(altro.sesso->currentIndex(), -1);
}

TEST_F(ProvaSezioni, AStoredListFillsNoMoreThanItHas) {
  const std::tuple<QString, QList<int>, SeFallisce> casi[]{
      {u"2,"_s, {2, 1, 1}, SeFallisce::lancia},           {u"2,0"_s, {2, 1, 1}, SeFallisce::lancia},
      {u"0,-1,2,1,9,"_s, {0, -1, 2}, SeFallisce::lancia}, {u""_s, {1, 1, 1}, SeFallisce::lancia},
      {u"3,,0,"_s, {1, 1, 0}, SeFallisce::prosegue},  // a position outside its list is passed over
  };
  for (const auto& [lista, attese, se_fallisce] : casi) {
    for (QComboBox* una : s.liste) una->setCurrentIndex(1);
    riempi_controlli(s, tre_liste, {{u"liste"_s, lista}}, se_fallisce);
    EXPECT_EQ(s.posizioni(), attese) << lista.toStdString();
  }
  EXPECT_EQ(numero_errore([&] { riempi_controlli(s, tre_liste, {{u"liste"_s, u"3,0,0,"_s}}); }), 380);
}

TEST_F(ProvaSezioni, ANullOrUnreadableNumberLeavesItsControl) {
  const Sezione sezione{{u"peso"_s, {u"Text1"_s}, Come::se_singolo}};
  s.testo->setText(u"70"_s);
  riempi_controlli(s, sezione, {});
  riempi_controlli(s, sezione, {{u"peso"_s, u"settanta"_s}});
  EXPECT_EQ(s.testo->text(), u"70"_s);
  riempi_controlli(s, sezione, {{u"peso"_s, static_cast<double>(72.1F)}});
  EXPECT_EQ(s.testo->text(), u"72,1"_s) << "a single has seven digits";
}

TEST_F(ProvaSezioni, RowsAreAddedOnceAndThenChangedFieldByField) {
  apri_dati_tmp(Scopo::salvare);
  Archivio& a = dati_tmp();
  EXPECT_TRUE(carica_riga(a, u"pressione"_s).isEmpty());
  salva_riga(a, u"pressione"_s, {{u"data_p"_s, u"01/02/2026"_s}, {u"max"_s, 130}});
  a.esegui(u"INSERT INTO pressione (data_p) VALUES ('seconda')"_s);
  salva_riga(a, u"pressione"_s, {{u"min"_s, 85}});
  salva_riga(a, u"pressione"_s, {});
  const auto righe = carica_righe(a, u"pressione"_s);
  ASSERT_EQ(righe.size(), 2U);
  EXPECT_EQ(righe[0], (QVariantMap{{u"data_p"_s, u"01/02/2026"_s}, {u"max"_s, 130LL}, {u"min"_s, 85LL}}));
  EXPECT_EQ(righe[1], (QVariantMap{{u"data_p"_s, u"seconda"_s}}));
  EXPECT_EQ(numero_errore([&] { salva_righe(a, u"pressione"_s, {{{u"max"_s, 1}}, {{u"polso"_s, 2}}}); }), 3075);
  EXPECT_EQ(carica_righe(a, u"pressione"_s), righe) << "a replacement that fails leaves the old rows";
  salva_righe(a, u"pressione"_s, {{}, {{u"max"_s, 120}}});
  EXPECT_EQ(carica_righe(a, u"pressione"_s), (std::vector<QVariantMap>{{}, {{u"max"_s, 120LL}}}));
}

TEST_F(ProvaSezioni, EachSectionCoversItsTable) {
  const std::set<QString> numero{u"cod_cli"_s};
  // Each with the columns that no control feeds.
  const std::tuple<QString, Sezione, std::set<QString>> casi[]{
      {u"anagrafe"_s, sezione_anagrafe(), {u"foto"_s}},
      {u"sport"_s, sezione_sport(), {}},
      {u"personale"_s, sezione_personale(), numero},
      {u"Anamnesi"_s, sezione_anamnesi(), {}},
      {u"farmaci"_s, sezioni_farmaci().back(), {}},
      {u"pressione"_s, sezioni_pressione().back(), {}},
      {u"dietologica"_s, sezione_dietologica(), {u"cod_cli"_s, u"scelta"_s, u"kcal"_s, u"pesoid"_s}},
      {u"trattamento"_s, sezione_trattamento(), numero},
  };
  apri_dati_tmp(Scopo::salvare);
  for (const auto& [tabella, sezione, altri] : casi) {
    std::set<QString> campi = altri;
    for (const Campo& f : sezione) campi.insert(f.campo);
    EXPECT_EQ(campi, colonne(tabella)) << tabella.toStdString();
  }
  const auto esami = [](const QStringList& l) { return std::set<QString>(l.begin(), l.end()); };
  EXPECT_EQ(esami(esami_scritti()), colonne(u"esami"_s));
  EXPECT_EQ(esami(esami_letti()), colonne(u"esami"_s));
  EXPECT_EQ(sezioni_farmaci()[8][2].controlli, QStringList{u"Text19_28"_s});
  EXPECT_EQ(sezioni_pressione()[3][3].controlli, QStringList{u"Text11_15"_s});
}

TEST_F(ProvaSezioni, MasterDataComeBackAsTheyWereTyped) {
  mostra<Formanag>();
  auto* f = caricata<Formanag>();
  f->Txtcognome->setText(u"DE ROSSI"_s);
  f->Txtpeso->setText(u"72"_s);
  f->Txtind->setText(u" Via Roma, 1 "_s);
  scegli(f->comboprov, f->comboprov->findText(u"RM"_s));
  for (const auto& [lista, riga] : {std::pair{f->Combosesso, 1}, {f->Combocom, 3}, {f->Combocost, 2}})
    scegli(lista, riga);
  f->TxtVerde[1]->setPlainText(u"due\nrighe"_s);
  f->commdialog = u"/una/foto/che manca.jpg"_s;
  const QVariantMap scritti = leggi_controlli(*f, sezione_anagrafe());
  EXPECT_EQ(scritti.value(u"indirizzo"_s), u"Via Roma, 1"_s);
  EXPECT_EQ(scritti.value(u"altre_info"_s), u"2,-1,-1,-1,-1,-1,-1,-1,-1,-1,"_s);
  scarica<Formanag>();
  EXPECT_EQ(campo(u"comune_n"_s).toInt() * 10 + campo(u"sex"_s).toInt(), 31);
  schermata<Mdiorza>().LabPesoOld.setText({});
  mostra<Formanag>();
  f = caricata<Formanag>();
  EXPECT_EQ(leggi_controlli(*f, sezione_anagrafe()), scritti);
  EXPECT_EQ(f->commdialog, u"/una/foto/che manca.jpg"_s) << "a picture out of reach keeps its place";
  EXPECT_EQ(schermata<Mdiorza>().LabPesoOld.text(), u"72"_s);
  f->Txtpeso->clear();
  f->Txtind->clear();
  scarica<Formanag>();
  EXPECT_EQ(campo(u"peso"_s), 72.0) << "a cleared number keeps what is stored";
  EXPECT_EQ(campo(u"indirizzo"_s), u""_s);
}

TEST_F(ProvaSezioni, TheStoredAgeWinsAndTheFirstWeightStays) {
  apri_dati_tmp(Scopo::salvare);
  salva_riga(dati_tmp(), u"anagrafe"_s,
             {{u"data_n"_s, u"12/05/1980"_s}, {u"anni"_s, 33}, {u"peso"_s, 71.5}, {u"scelte_r"_s, u"8,1,0,"_s}});
  schermata<Mdiorza>().LabPesoOld.setText(u"80"_s);
  const Formanag& f = schermata<Formanag>();
  EXPECT_EQ(f.Txtanni->text(), u"33"_s);
  EXPECT_EQ(f.Combo1->currentIndex(), -1) << "a position outside its list is passed over";
  EXPECT_EQ(f.Combo3->currentIndex(), 1);
  EXPECT_EQ(schermata<Mdiorza>().LabPesoOld.text(), u"80"_s);
}

TEST_F(ProvaSezioni, AScreenNeverShownKeepsTheStoredPlaces) {
  apri_dati_tmp(Scopo::salvare);
  const QVariantMap luoghi{{u"prov_n"_s, 5},
                           {u"comune_n"_s, 2},
                           {u"cod_fiscale"_s, u"RSS MRA 80E52 H501 Z"_s},
                           {u"prov_r"_s, 60},
                           {u"comune_r"_s, 1}};
  salva_riga(dati_tmp(), u"anagrafe"_s, luoghi);
  schermata<Formanag>().Txtcognome->setText(u"ROSSI"_s);
  for (const bool con_le_liste : {false, true}) {
    if (con_le_liste) carica_luoghi();
    salva_cliente(0);
    for (const auto& [nome, valore] : luoghi.asKeyValueRange()) EXPECT_EQ(campo(nome), valore) << nome.toStdString();
  }
  EXPECT_EQ(campo(u"cognome"_s), u"ROSSI"_s);
  EXPECT_EQ(schermata<Formanag>().comboprov2->currentIndex(), 60);
}
