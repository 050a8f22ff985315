// The printed sheets, page by page, as they come out on a grid of characters.
#include "ambiente.h"
#include "reports/foglio.h"
#include "reports/rapporti.h"

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

TEST_F(ProvaRapporti, APortionOfZeroChangedByHandEndsTheSheetWhereItStands) {
  dieta_di_martedì(u"0"_s);
  Foglio f;
  EXPECT_EQ(numero_errore([&] { rapporto(u"22")->scrivi(f, 2); }), 11);
  EXPECT_TRUE(f.testo().contains(u"Pasta di semola"_s));
  EXPECT_FALSE(f.testo().contains(u"Totale Calorie"_s));
}
