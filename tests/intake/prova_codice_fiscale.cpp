// The fiscal code without a screen, and the table of municipalities it reads.
#include "intake/codice_fiscale.h"

#include "base/archivio.h"
#include "intake/comuni.h"

#include "attrezzi.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TEST(CodiceFiscale, NamesGiveThreeLetters) {
  const std::tuple<QString, QString, QString> casi[]{
      {u"MARIA"_s, u"MRA"_s, u"MRA"_s}, {u"GIANFRANCO"_s, u"GNF"_s, u"GFR"_s}, {u"DE LUCA"_s, u"DLC"_s, u"DLC"_s},
      {u"FO"_s, u"FOX"_s, u"FOX"_s},    {u"EA"_s, u"EAX"_s, u"EAX"_s},         {u"BOA"_s, u"BOA"_s, u"BOA"_s},
      {u"AIUEO"_s, u"AIX"_s, u"AIX"_s}, {u"OB"_s, u"BOX"_s, u"BOX"_s},         {u"ROSSANA"_s, u"RSS"_s, u"RSN"_s},
  };
  for (const auto& [testo, cognome, nome] : casi) {
    EXPECT_EQ(componi_nome(testo, Parte::cognome), cognome);
    EXPECT_EQ(componi_nome(testo, Parte::nome), nome);
  }
  for (const QString& senza :
       {u""_s, u" "_s, u"D'AMICO"_s, u"NICOLÒ"_s, u"rossi"_s, u"A"_s, u"B"_s, u"BC"_s, u"R2D2"_s}) {
    EXPECT_EQ(componi_nome(senza, Parte::cognome), u""_s) << senza.toStdString();
  }
}

TEST(CodiceFiscale, WholeCodes) {
  const std::pair<DatiCodice, QStringView> casi[]{
      {{u"ROSSI"_s, u"MARIO"_s, u"01/01/1980"_s, u"M"_s, u"H501"_s}, u"RSS MRA 80A01 H501 U"},
      {{u"rossi "_s, u" Mario"_s, u"10-12-85"_s, u"M"_s, u"A562"_s}, u"RSS MRA 85T10 A562 S"},
      {{u"BIANCHI"_s, u"MARIA"_s, u"1/11/1975"_s, u"F"_s, u"F205"_s}, u"BNC MRA 75S41 F205 V"},
      {{u"GIANFRANCO"_s, u"GUIA"_s, u"15/11/1963"_s, u"M"_s, u"L219"_s}, u"GNF GUI 63S15 L219 X"},
      {{u"FO"_s, u"GIANFRANCO"_s, u"28/02/1999"_s, u"M"_s, u"Z404"_s}, u"FOX GFR 99B28 Z404 A"},
      {{u"RE"_s, u"EA"_s, u"30/06/2005"_s, u"F"_s, u"Z112"_s}, u"REX EAX 05H70 Z112 X"},
      {{u"VERDI"_s, u"ANNA"_s, u"12/08/2002"_s, u"F"_s, u"D612"_s}, u"VRD NNA 02M52 D612 S"},
  };
  for (const auto& [dati, codice] : casi) EXPECT_EQ(componi_codice(dati), codice.toString());
}

TEST(CodiceFiscale, AGroupThatCannotBeFormedStaysEmpty) {
  const DatiCodice intero{u"ROSSI"_s, u"MARIO"_s, u"01/05/1980"_s, u"M"_s, u"H501"_s};
  const auto con = [&](QString DatiCodice::*campo, const QString& valore) {
    DatiCodice d = intero;
    d.*campo = valore;
    return componi_codice(d);
  };
  EXPECT_EQ(con(&DatiCodice::cognome, u"D'AMICO"_s), u" MRA 80E01 H501 "_s);
  EXPECT_EQ(con(&DatiCodice::nome, u""_s), u"RSS  80E01 H501 "_s);
  EXPECT_EQ(con(&DatiCodice::data, u"31/02/1980"_s), u"RSS MRA  H501 "_s);
  EXPECT_EQ(con(&DatiCodice::comune, u""_s), u"RSS MRA 80E01  "_s);
  EXPECT_EQ(con(&DatiCodice::comune, u"H5O1"_s), u"RSS MRA 80E01 H5O1 "_s);
  EXPECT_TRUE(con(&DatiCodice::sesso, u""_s).startsWith(u"RSS MRA 800501 H501 "_s)) << "two digits without a sex";
}

TEST(Comuni, TheTableThatComesWithTheProgram) {
  imposta_cartella(QStringLiteral(CARTELLA_ARCHIVI));
  Comuni comuni;
  comuni.apri();
  EXPECT_EQ(comuni.trova(u"Roma"_s)->codice, u"H501"_s);
  EXPECT_EQ(comuni.trova(u"Francia"_s)->codice + comuni.trova(u"Francia"_s)->cap, u"Z110"_s);
  EXPECT_EQ(comuni.trova(u"roma"_s), nullptr);
  EXPECT_TRUE(comuni.province().contains(provincia_estera) && std::ranges::is_sorted(comuni.province()));
  comuni.chiudi();
  EXPECT_EQ(comuni.trova(u"Roma"_s), nullptr);
}

TEST(Comuni, TheFirstOfANameWinsWhateverItsProvince) {
  const QTemporaryDir cartella;
  imposta_cartella(cartella.path());
  {
    Archivio nuovo(percorso(u"ccc.jed"_s), accesso, Archivio::Modo::nuovo);
    nuovo.esegui_copione(
        u"CREATE TABLE Comuni (provincia TEXT, Descrizione TEXT, codice TEXT, cap INTEGER);"
        "INSERT INTO Comuni VALUES ('TN', 'Samone', 'H754', 38059), ('TO', 'Samone', 'H753', 10010), "
        "('TO', 'Airasca', 'A109', 10060);"_s);
  }
  Comuni comuni;
  comuni.apri();
  EXPECT_EQ(comuni.trova(u"Samone"_s)->codice, u"H754"_s);
  EXPECT_EQ(comuni.di(u"TO"_s), (QStringList{u"Samone"_s, u"Airasca"_s})) << "stored order, not by name";
  EXPECT_EQ(comuni.province(), (QStringList{u"TN"_s, u"TO"_s}));
  imposta_cartella(QStringLiteral(CARTELLA_ARCHIVI));
}
