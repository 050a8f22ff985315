// The printed sheets, page by page, as they come out on a grid of characters.
#include "ambiente.h"
#include "clinic/formtratta.h"
#include "diary/formdiario.h"
#include "intake/formanag.h"
#include "reports/foglio.h"
#include "reports/form_anteprima_diario.h"
#include "reports/rapporti.h"

#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

const Atteso mai_salvato{u"Nessun dato di questo cliente presente negli archivi !"_s, {}};

class ProvaRapporti : public Ambiente {
 protected:
  void SetUp() override {
    esterno().oggi = [] { return QDate(2026, 3, 9); };
    ASSERT_TRUE(richiama(registra(cliente("1900_ferri"))));
  }

  static Foglio pagina(const char16_t* codice, int n) {
    Foglio f;
    rapporto(QStringView(codice))->scrivi(f, n);
    return f;
  }
  static void nel_file(const QString& sql) { Archivio(percorso_cliente()).esegui_copione(sql); }
  /// A Tuesday of the second week: a food changed by hand, one taken off by hand, meals without food.
  static void dieta_di_martedì(const QString& grammi = u"150"_s) {
    nel_file(
        u"DELETE FROM dieta;"
        "INSERT INTO dieta (dieta, giorno, pasto, descr, cal, prot, lip, gluc, quant, quant_mod) VALUES"
        "(2, 1, 2, 'Pasta di semola', 283, 35, 11, 237, 80, ''), (2, 1, 0, 'Latte intero', 96, 20, 49, 27, 150, ''),"
        "(2, 1, 2, 'Petto di pollo', 100, 93, 7, 0, %1, '175'), (2, 1, 4, 'Orata', 150, 100, 50, 3, 150, '0'),"
        "(1, 1, 2, 'Altra settimana', 999, 1, 1, 1, 9, ''), (2, 3, 2, 'Altro giorno', 999, 1, 1, 1, 9, '')"_s.arg(
            grammi));
    nel_file(u"UPDATE dietologica SET peso_ragg = 61.4, gg = 98"_s);
  }
  /// The first foods of the diary's store, spread over the five meals.
  static void diario(int quanti) {
    const auto alimenti =
        Archivio(percorso(u"sa_diario.jed"_s)).righe(u"SELECT cod1, cod2 FROM alimenti LIMIT ?"_s, quanti);
    dati_tmp().esegui(u"DELETE FROM scelte_diario"_s);
    for (int i = 0; i < quanti; ++i) {
      const Riga& a = alimenti[static_cast<std::size_t>(i)];
      dati_tmp().esegui(u"INSERT INTO scelte_diario (pasto, cod1, cod2, dose) VALUES (?, ?, ?, ?)"_s, i * 5 / quanti,
                        a[u"cod1"], a[u"cod2"], 50 + i);
    }
  }
  static QString testo_pagina(const char16_t* codice, int n) { return pagina(codice, n).testo(); }
  /// What stands on a page that this error ends.
  static QString interrotta(const char16_t* codice, int n, int errore) {
    Foglio f;
    EXPECT_EQ(numero_errore([&] { rapporto(QStringView(codice))->scrivi(f, n); }), errore);
    return f.testo();
  }
};

}  // namespace

TEST_F(ProvaRapporti, ADayOfTheSavedDiet) {
  dieta_di_martedì();
  confronta(pagina(u"22", 2), u"dieta_martedì"_s);
  confronta(pagina(u"22", 7), u"dieta_giorno_vuoto"_s);
}

TEST_F(ProvaRapporti, FoodListsPageByPage) {
  confronta(pagina(u"7", 1), u"calorie_1"_s);
  confronta(pagina(u"7", 9), u"calorie_9"_s);
  for (const int n : {1, 2, 3}) confronta(pagina(u"4", n), u"gruppi_%1"_s.arg(n));
}

/// A measure stands under its own name alone. Screens that the sheet reads unseen leave nothing behind.
TEST_F(ProvaRapporti, PersonalDataAndMeasurements) {
  nel_file(u"UPDATE anagrafe SET locali = 'Borgo Panigale', tel1 = '051 123456', tel2 = '333 1234567'"_s);
  dati_tmp().esegui_copione(
      u"UPDATE trattamento SET Date = '09/11/2026+07/12/2026++++++', peso = '74+72,5++++++',"
      "braccia = '88+86,5++++++', cosce = '31++++++', circo1 = 'Braccio destro', polp = '48++++++', circo2 = 'Collo',"
      "bic = '7++++++', grasso = '+21,3+++++', acqua = '++++++58'"_s);
  confronta(pagina(u"1", 1), u"dati_personali"_s);
  const QString sul_davanti = testo_pagina(u"1", 1);
  scarica_schede();
  EXPECT_EQ(testo_pagina(u"1", 1), sul_davanti);
  EXPECT_FALSE(caricata<Formanag>() || caricata<Formtratta>());
  nel_file(u"UPDATE anagrafe SET altre_info = '', sex = 2"_s);
  const QString vuote = testo_pagina(u"1", 1);
  EXPECT_TRUE(vuote.contains(u"Longitipo"_s) && vuote.contains(u"Allettato"_s) && vuote.contains(u"\nSesso:\n"_s));
  nel_file(u"UPDATE anagrafe SET altre_info = '1,1,1,1,1,1,1,1,1,1,1,'"_s);
  interrotta(u"1", 1, 9);
}

TEST_F(ProvaRapporti, TheDiaryListAndItsAnalysis) {
  diario(26);
  confronta(pagina(u"8", 1), u"diario_1"_s);
  confronta(pagina(u"8", 2), u"diario_2"_s);
  EXPECT_FALSE(caricata<Formdiario>());
  EXPECT_EQ(rapporto(u"8")->conta_pagine(), 2);
  diario(24);
  EXPECT_EQ(rapporto(u"8")->conta_pagine(), 1);
  EXPECT_TRUE(testo_pagina(u"8", 1).contains(u"Ritmo"_s));
  diario(25);
  EXPECT_EQ(rapporto(u"8")->conta_pagine(), 2);
  EXPECT_FALSE(testo_pagina(u"8", 1).contains(u"Ritmo"_s));
  EXPECT_FALSE(testo_pagina(u"8", 2).contains(u"Dose g."_s)) << "the analysis and no rows";
  diario(80);
  EXPECT_EQ(testo_pagina(u"8", 4).count(u"Dose g."_s), 1) << "no window of its own: the first row alone";
  diario(0);
  EXPECT_EQ(testo_pagina(u"8", 1), Foglio().testo());
}

TEST_F(ProvaRapporti, AnErrorEndsASheetWhereItStands) {
  diario(3);
  Archivio archivio(percorso(u"sa_diario.jed"_s));
  archivio.esegui(u"UPDATE alimenti SET calorie = 0"_s);
  const QString senza_energia = interrotta(u"8", 1, 11);
  EXPECT_TRUE(senza_energia.contains(u"Kcal "_s) && !senza_energia.contains(u"Lipidi g."_s));
  archivio.esegui(u"DELETE FROM alimenti WHERE cod1 = 1 AND cod2 = 2"_s);
  EXPECT_EQ(interrotta(u"8", 1, 3021).count(u"Dose g."_s), 2);
  dieta_di_martedì(u"0"_s);  // a portion of zero changed by hand
  const QString senza_grammi = interrotta(u"22", 2, 11);
  EXPECT_TRUE(senza_grammi.contains(u"Pasta di semola"_s) && !senza_grammi.contains(u"Totale Calorie"_s));
}

/// Foods stand by their own flags; the doses of dinner go over those of breakfast.
TEST_F(ProvaRapporti, TheFilledInSheetOfTheDiary) {
  Archivio(percorso(u"sa_diario.jed"_s))
      .esegui_copione(
          u"UPDATE alimenti SET col = cod2 = 1, m_s = 0, pranzo = cod2 = 2, cena = cod2 > 1 WHERE cod1 = 1"_s);
  dati_tmp().esegui_copione(
      u"DELETE FROM diario; DELETE FROM scelte_diario;"
      "INSERT INTO diario (peso_ideale, kcal_consigliato, kcal_attuale, tipo_lavoro) VALUES (61.4, 1900, 2100.5, "
      "'Medio');"
      "INSERT INTO scelte_diario (pasto, cod1, cod2, dose) VALUES (0, 1, 1, 200), (0, 1, 2, 150), (4, 1, 3, 0)"_s);
  mostra<Form_anteprima_diario>();
  Form_anteprima_diario& f = *caricata<Form_anteprima_diario>();
  EXPECT_EQ(testi(std::array{f.Txtdata, f.Text1[14], f.Text1[13], f.Text1[12]}), u"09/03/2026 -12,6 -200,5 "_s);
  EXPECT_EQ(f.TxtCENA[0]->text(), f.TxtPRANZO[0]->text());
  EXPECT_EQ(testi(std::array{f.TxtCOLAZIONE[0], f.TxtDOSEP[0], f.TxtDOSEC[0], f.TxtDOSECE[0]}),
            u"Latte intero 150 150 "_s);
  stampante().setOutputFileName(cartella.filePath(u"foglio.pdf"_s));
  clic(f.Command1);
  EXPECT_GT(QFileInfo(cartella.filePath(u"foglio.pdf"_s)).size(), 1000);
  EXPECT_TRUE(f.Command1->isVisible());
  scarica<Form_anteprima_diario>();
}

/// Refused is a row of the same food and kind with a portion of 0.
TEST_F(ProvaRapporti, TheSheetOfPreferencesMarksWhatTheClientRefuses) {
  dati_tmp().esegui_copione(
      u"INSERT INTO gruppi_esclusi (cod1, cod2, quant, tipo) VALUES (1, 2, 0, 0), (1, 3, 0, 2), (1, 4, 50, 0),"
      "(16, 1, 0, 1)"_s);
  confronta(pagina(u"3", 1), u"preferenze_1"_s);
  confronta(pagina(u"3", 3), u"preferenze_3"_s);
}

TEST_F(ProvaRapporti, WhatIsMissingIsSaidAndNothingIsDrawn) {
  const QString vuoto = Foglio().testo();
  nel_file(u"DELETE FROM dieta"_s);
  {
    Dialogo d({{u"Per stampare la dieta è prima necessario salvarla !"_s, {}}});
    EXPECT_EQ(pagina(u"21", 1).testo(), vuoto);
  }
  dieta_di_martedì();
  nel_file(u"DELETE FROM dietologica"_s);
  QFile::remove(percorso(u"gruppi_elenco.jed"_s));
  Dialogo d({mai_salvato, {u"Errore, file mancante"_s, {}}, mai_salvato, mai_salvato, mai_salvato});
  EXPECT_EQ(pagina(u"22", 2).testo(), vuoto);
  EXPECT_EQ(pagina(u"4", 1).testo(), vuoto);
  QFile::remove(percorso_cliente());
  for (const char16_t* codice : {u"21", u"1", u"8"}) EXPECT_EQ(pagina(codice, 1).testo(), vuoto);
}
