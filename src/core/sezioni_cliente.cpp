#include "core/sezioni_cliente.h"

using namespace Qt::StringLiterals;

const Sezione& sezione_anagrafe() {
  static const Sezione s{
      {u"cod"_s, {u"Txtcod"_s}, Come::rifilato},
      {u"data_visita"_s, {u"txtdatavisita"_s}, Come::data},
      {u"cognome"_s, {u"Txtcognome"_s}, Come::rifilato},
      {u"nome"_s, {u"TxtNOME"_s}, Come::rifilato},
      {u"data_n"_s, {u"Txtdatanasc"_s}, Come::testo},
      {u"sex"_s, {u"Combosesso"_s}, Come::sesso},
      {u"prov_n"_s, {u"comboprov"_s}, Come::posizione},
      {u"comune_n"_s, {u"Combocom"_s}, Come::posizione},
      {u"anni"_s, {u"Txtanni"_s}, Come::se_intero},
      {u"peso"_s, {u"Txtpeso"_s}, Come::se_singolo},
      {u"statura"_s, {u"Txtalt"_s}, Come::se_intero},
      {u"cod_fiscale"_s, {u"Txtcodfis"_s}, Come::rifilato},
      {u"prov_r"_s, {u"comboprov2"_s}, Come::posizione},
      {u"comune_r"_s, {u"Combocom2"_s}, Come::posizione},
      {u"cap"_s, {u"Txtcap"_s}, Come::rifilato},
      {u"locali"_s, {u"Txtloc"_s}, Come::rifilato},
      {u"indirizzo"_s, {u"Txtind"_s}, Come::rifilato},
      {u"tel1"_s, {u"txttel1"_s}, Come::rifilato},
      {u"tel2"_s, {u"Txttel2"_s}, Come::rifilato},
      {u"FAX"_s, {u"Txtfax"_s}, Come::rifilato},
      {u"cell"_s, {u"Txtcell"_s}, Come::rifilato},
      {u"EMail"_s, {u"Txtmail"_s}, Come::rifilato},
      {u"scelte_r"_s,
       {u"Combo1"_s, u"Combo3"_s, u"ComboVarPeso"_s, u"ComboVisitaCons"_s, u"ComboMotivo"_s},
       Come::lista_posizioni},
      {u"tipoDurata"_s, {u"TxtVerde_0"_s}, Come::testo},
      {u"aspettativeAttuali"_s, {u"TxtVerde_1"_s}, Come::testo},
      {u"altre_info"_s,
       {u"Combocost"_s, u"Combosc"_s, u"Combofigli"_s, u"Comboscuola"_s, u"Comboprof"_s, u"Combolav"_s,
        u"ComboRischi"_s, u"ComboGiorniLav"_s, u"ComboOreLav"_s, u"ComboSovra"_s},
       Come::lista_posizioni},
  };
  return s;
}

const Sezione& sezione_sport() {
  static const Sezione s{
      {u"attività"_s, {u"Combo13"_s}, Come::posizione},
      {u"attivitàgg"_s, vettore(u"TxtAttività"_s, 0, 6), Come::lista_testi},
      {u"minuti"_s, vettore(u"Combo14"_s, 0, 6), Come::lista_posizioni, u'+'},
      {u"protidi"_s, vettore(u"Text2"_s, 0, 6), Come::lista_testi, u'+'},
      {u"lipidi"_s, vettore(u"Text3"_s, 0, 6), Come::lista_testi, u'+'},
      {u"glucidi"_s, vettore(u"Text4"_s, 0, 6), Come::lista_testi, u'+'},
      {u"calorie_totali"_s, vettore(u"Text14"_s, 0, 6), Come::lista_testi, u'+'},
  };
  return s;
}

const Sezione& sezione_personale() {
  static const Sezione s{
      {u"verde"_s, vettore(u"Combo16"_s, 0, 5), Come::lista_posizioni},
      {u"giallo"_s, vettore(u"Combo17"_s, 0, 6), Come::lista_posizioni},
      {u"turbec"_s, {u"Text2_0"_s}, Come::rifilato},
      {u"turbea"_s, {u"Text2_1"_s}, Come::rifilato},
      {u"medico"_s, {u"Txtmed"_s}, Come::rifilato},
      {u"asl"_s, {u"TxtASL"_s}, Come::rifilato},
      {u"terapia1"_s, vettore(u"Check1"_s, 0, 4), Come::lista_stati},
      {u"terapia2"_s, vettore(u"Check2"_s, 0, 3), Come::lista_stati},
      {u"Combo6"_s, vettore(u"Combo6"_s, 0, 4), Come::lista_posizioni},
      {u"Combo1"_s, vettore(u"Combo1"_s, 0, 2) + vettore(u"Combo1"_s, 4, 7), Come::lista_posizioni},
      {u"ciclo"_s, {u"Text23_0"_s}, Come::rifilato},
      {u"problemi"_s, {u"Text23_1"_s}, Come::rifilato},
      {u"menopausa"_s, {u"Text23_3"_s}, Come::rifilato},
      {u"osteoporosi"_s, {u"Combo1_3"_s}, Come::rifilato},
      {u"progestinici"_s, {u"Text23_5"_s}, Come::rifilato},
      {u"estrogeni"_s, {u"Text23_6"_s}, Come::rifilato},
      {u"pillola"_s, {u"Text23_2"_s}, Come::rifilato},
  };
  return s;
}

const Sezione& sezione_anamnesi() {
  static const Sezione s{
      {u"Patologie"_s, {u"Text1_0"_s}, Come::testo},
      {u"Traumatismi"_s, {u"Text1_1"_s}, Come::testo},
      {u"Cute"_s, {u"Text1_2"_s}, Come::testo},
      {u"Polso"_s, {u"Text1_3"_s}, Come::testo},
      {u"Polmoni"_s, {u"Text1_4"_s}, Come::testo},
      {u"addome"_s, {u"Text1_5"_s}, Come::testo},
      {u"Apparato"_s, {u"Text1_6"_s}, Come::testo},
      {u"Intolleranze"_s, {u"Text1_7"_s}, Come::testo},
      {u"vita"_s, {u"TxtRischio_0"_s}, Come::se_numero},
      {u"fianchi"_s, {u"TxtRischio_1"_s}, Come::se_numero},
      {u"addomecm"_s, {u"TxtRischio_3"_s}, Come::se_numero},
      {u"sovrappeso"_s, {u"ComboRischio_0"_s}, Come::posizione},
      {u"ipertensione"_s, {u"ComboRischio_1"_s}, Come::posizione},
      {u"fumatore"_s, {u"ComboRischio_2"_s}, Come::posizione},
  };
  return s;
}

const std::vector<Sezione>& sezioni_farmaci() {
  static const std::vector<Sezione> righe = [] {
    std::vector<Sezione> r;
    for (int i = 0; i <= 8; ++i) {
      r.push_back({{u"date_f"_s, vettore(u"Text19"_s, i, i), Come::se_data},
                   {u"farmaci"_s, vettore(u"Text19"_s, i + 10, i + 10), Come::testo},
                   {u"dosi_gg"_s, vettore(u"Text19"_s, i + 20, i + 20), Come::testo}});
    }
    return r;
  }();
  return righe;
}

const std::vector<Sezione>& sezioni_pressione() {
  static const std::vector<Sezione> righe = [] {
    std::vector<Sezione> r;
    for (int i = 0; i <= 12; i += 4) {
      r.push_back({{u"data_p"_s, vettore(u"Text11"_s, i, i), Come::testo},
                   {u"max"_s, vettore(u"Text11"_s, i + 1, i + 1), Come::se_intero},
                   {u"min"_s, vettore(u"Text11"_s, i + 2, i + 2), Come::se_intero},
                   {u"freq"_s, vettore(u"Text11"_s, i + 3, i + 3), Come::se_intero}});
    }
    return r;
  }();
  return righe;
}

const QStringList& esami_scritti() {
  static const QStringList colonne{u"Data"_s, u"esame"_s, u"risultato"_s, u"min"_s, u"max"_s, u"referto"_s};
  return colonne;
}

const QStringList& esami_letti() {
  static const QStringList colonne{u"Data"_s, u"esame"_s, u"referto"_s, u"risultato"_s, u"min"_s, u"max"_s};
  return colonne;
}

const Sezione& sezione_dietologica() {
  static const Sezione s{
      {u"peso_bfa"_s, {u"Text2_0"_s}, Come::se_numero_rifilato},
      {u"met_bfa"_s, {u"Text2_2"_s}, Come::se_numero_rifilato},
      {u"pliche"_s, vettore(u"Text5"_s, 0, 4), Come::lista_testi, u'+'},
      {u"stress"_s, {u"Combo1"_s}, Come::posizione},
      {u"peso_ragg"_s, {u"txtpesoragg"_s}, Come::se_numero},
      {u"gg"_s, {u"Text10_4"_s}, Come::se_numero},
      {u"prot"_s, {u"Text13_0"_s}, Come::se_numero},
      {u"lip"_s, {u"Text13_1"_s}, Come::se_numero},
  };
  return s;
}

const Sezione& sezione_diario() {
  static const Sezione s{
      {u"colazione"_s, {u"TxtRAG_0"_s}, Come::se_numero}, {u"spuntino"_s, {u"TxtRAG_1"_s}, Come::se_numero},
      {u"pranzo"_s, {u"TxtRAG_2"_s}, Come::se_numero},    {u"merenda"_s, {u"TxtRAG_3"_s}, Come::se_numero},
      {u"cena"_s, {u"TxtRAG_4"_s}, Come::se_numero},
  };
  return s;
}

const Sezione& sezione_trattamento() {
  static const auto serie = [](const QString& campo, const QString& controlli) {
    return Campo{campo, vettore(controlli, 0, 6), Come::lista_testi, u'+'};
  };
  static const Sezione s{
      serie(u"Date"_s, u"Text24"_s),
      serie(u"peso"_s, u"Text37"_s),
      serie(u"braccia"_s, u"Text25"_s),
      serie(u"petto"_s, u"Text26"_s),
      serie(u"fianchi"_s, u"Text27"_s),
      serie(u"cosce"_s, u"Text28"_s),
      serie(u"polp"_s, u"Text29"_s),
      serie(u"bic"_s, u"Text30"_s),
      serie(u"tric"_s, u"Text31"_s),
      serie(u"scap"_s, u"Text32"_s),
      serie(u"sopra"_s, u"Text33"_s),
      serie(u"magro"_s, u"Text34"_s),
      serie(u"grasso"_s, u"Text35"_s),
      serie(u"acqua"_s, u"Text36"_s),
      {u"notepeso"_s, {u"Text22_0"_s}, Come::rifilato},
      {u"notebraccia"_s, {u"Text22_1"_s}, Come::rifilato},
      {u"notepetto"_s, {u"Text22_2"_s}, Come::rifilato},
      {u"notefianchi"_s, {u"Text22_3"_s}, Come::rifilato},
      {u"notecosce"_s, {u"Text22_4"_s}, Come::rifilato},
      {u"notepolp"_s, {u"Text22_5"_s}, Come::rifilato},
      {u"notebic"_s, {u"Text22_6"_s}, Come::rifilato},
      {u"circo1"_s, {u"txtCirco_0"_s}, Come::testo},
      {u"circo2"_s, {u"txtCirco_1"_s}, Come::testo},
  };
  return s;
}
