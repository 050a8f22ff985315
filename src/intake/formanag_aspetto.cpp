#include "base/date.h"
#include "core/aspetto.h"
#include "core/schermate.h"
#include "intake/formanag.h"
#include "intake/lista_cercabile.h"

#include <QAbstractItemView>
#include <QVBoxLayout>
#include <span>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

using Membro = std::variant<QLineEdit * Formanag::*, QComboBox * Formanag::*>;

/// A control of the screen: its place in the grid of its frame, and the lines of a list.
struct Posto {
  Membro membro;
  QStringView nome;
  QStringView etichetta;
  int riga, colonna, campata;
  QStringView suggerimento;
  QStringView voci = {};  // parted by "|"
};

constexpr Posto dati_anagrafici[]{
    {&Formanag::Txtcognome, u"Txtcognome", u"Cognome", 1, 0, 1, u"Cognome del paziente"},
    {&Formanag::TxtNOME, u"TxtNOME", u"Nome", 1, 2, 3, u"Nome del paziente"},
    {&Formanag::Txtdatanasc, u"Txtdatanasc", u"Data di nascita", 2, 0, 1, u"Giorno/mese/anno"},
    {&Formanag::Combosesso, u"Combosesso", u"Sesso", 2, 2, 1, u"Sesso del paziente", u"M|F"},
    {&Formanag::Txtanni, u"Txtanni", u"Età anni", 2, 4, 1, u"Età, calcolata dalla data di nascita"},
    {&Formanag::comboprov, u"comboprov", u"Prov. nascita", 3, 0, 1, u"Provincia di nascita, EE per l'estero"},
    {&Formanag::Combocom, u"Combocom", u"Comune Nascita", 3, 2, 3, u"Scrivere le prime lettere o aprire l'elenco"},
    {&Formanag::Txtcodfis, u"Txtcodfis", u"Codice fiscale", 4, 0, 1, u"Composto dal programma"},
    {&Formanag::Txtpeso, u"Txtpeso", u"Peso Kg.", 4, 2, 1, u"Peso in chilogrammi, senza decimali"},
    {&Formanag::Txtalt, u"Txtalt", u"Statura cm.", 4, 4, 1, u"Statura in centimetri"},
};

constexpr Posto recapiti[]{
    {&Formanag::comboprov2, u"comboprov2", u"Prov. residenza", 0, 0, 1, u"Provincia di residenza"},
    {&Formanag::Txtcap, u"Txtcap", u"CAP", 0, 2, 1, u"Codice di avviamento postale"},
    {&Formanag::Combocom2, u"Combocom2", u"Comune Residenza", 1, 0, 3, u"Scrivere le prime lettere o aprire l'elenco"},
    {&Formanag::Txtloc, u"Txtloc", u"Località", 2, 0, 3, u"Frazione o località"},
    {&Formanag::Txtind, u"Txtind", u"Via e n°", 3, 0, 3, u"Via e numero civico"},
    {&Formanag::txttel1, u"txttel1", u"Tel. Casa", 4, 0, 1, u"Telefono di casa"},
    {&Formanag::Txttel2, u"Txttel2", u"Tel. Uff.", 4, 2, 1, u"Telefono dell'ufficio"},
    {&Formanag::Txtfax, u"Txtfax", u"Fax", 5, 0, 1, u"Numero di fax"},
    {&Formanag::Txtcell, u"Txtcell", u"Cellulare", 5, 2, 1, u"Telefono cellulare"},
    {&Formanag::Txtmail, u"Txtmail", u"E-Mail", 6, 0, 3, u"Indirizzo di posta elettronica"},
};

constexpr Posto lavoro[]{
    {&Formanag::Combosc, u"Combosc", u"Stato civile", 0, 0, 1, u"Stato civile",
     u"coniugato/a|convivente|celibe|nubile|vedovo/a|separato/a"},
    {&Formanag::Combofigli, u"Combofigli", u"Figli", 0, 2, 2, u"Numero dei figli", u"0|1|2|3|4|> 4"},
    {&Formanag::Comboscuola, u"Comboscuola", u"Scolarità", 1, 0, 4, u"Titolo di studio",
     u"Nessuna|Elementare|Medie|Professionali|Liceo|Università"},
    {&Formanag::Comboprof, u"Comboprof", u"Professione", 2, 0, 4, u"Professione",
     u"Agricoltore|Operaio|Artigiano|Imprenditore|Professionista|Impiegato|Studente|Pensionato|Negoziante|"
     "Casalinga|Rappresentante|Disoccupato|Dirigente"},
    {&Formanag::Combolav, u"Combolav", u"Tipo di lavoro", 3, 0, 3, u"Fatica del lavoro",
     u"Allettato|Sedentario|Leggero|Medio|Pesante"},
    {&Formanag::ComboRischi, u"ComboRischi", u"Rischi da lavoro", 4, 0, 4, u"Rischio a cui il lavoro espone",
     u"Rumore|Umidità|Luce|Radiazioni|Gas|Fumo|Tossici|Igiene"},
    {&Formanag::ComboGiorniLav, u"ComboGiorniLav", u"Giorni lavoro/sett", 5, 0, 1, u"Giorni di lavoro alla settimana",
     u"1|2|3|4|5|6|7"},
    {&Formanag::ComboOreLav, u"ComboOreLav", u"Ore lavoro/giorno", 5, 2, 2, u"Ore di lavoro al giorno",
     u"1|2|3|4|5|6|7|8|9|10|11|12|>12"},
    {&Formanag::Combocost, u"Combocost", u"Costituzione", 6, 0, 3, u"Costituzione scheletrica",
     u"Longitipo|Normotipo|Brachitipo"},
};

constexpr Posto diete[]{
    {&Formanag::Combo1, u"Combo1", u"Ha già fatto diete ?", 0, 0, 1, u"Diete già fatte", u"Si|No"},
    {&Formanag::Combo3, u"Combo3", u"Risultati", 1, 0, 1, u"Risultati delle diete precedenti",
     u"Nessuno|Migliorativo|Peggiorativo"},
    {&Formanag::ComboVarPeso, u"ComboVarPeso", u"Variazione peso negli ultimi 5 anni", 2, 0, 1,
     u"Come è cambiato il peso", u"Stabile|Aumentato|Diminuito"},
    {&Formanag::ComboVisitaCons, u"ComboVisitaCons", u"Visita consigliata da", 3, 0, 1, u"Chi ha consigliato la visita",
     u"Amica|Farmacista|Medico personale|Familiare|Estetista"},
    {&Formanag::ComboMotivo, u"ComboMotivo", u"Motivo della visita", 4, 0, 1, u"Motivo della visita",
     u"Informazioni|Preventivo|Trattamento"},
    {&Formanag::ComboSovra, u"ComboSovra", u"Se in sovrappeso, da anni", 0, 2, 1, u"Anni di sovrappeso",
     u"1|2|3|4|5|>5"},
};

/// Makes the controls of a frame in reading order and puts each with its label in its place.
void disponi(Formanag& f, QGridLayout& griglia, std::span<const Posto> posti) {
  for (const Posto& p : posti) {
    QWidget* controllo = nullptr;
    if (const auto* campo = std::get_if<QLineEdit * Formanag::*>(&p.membro)) {
      controllo = f.*(*campo) = new QLineEdit;
    } else {
      controllo = f.*std::get<QComboBox * Formanag::*>(p.membro) = lista_fissa(p.voci);
    }
    nominato(controllo, p.nome.toString(), p.suggerimento.toString());
    griglia.addWidget(etichetta_di(p.etichetta.toString(), controllo), p.riga, p.colonna);
    griglia.addWidget(controllo, p.riga, p.colonna + 1, 1, p.campata);
  }
}

/// The label of a control in a grid, which stands one column left of it.
QLabel* etichetta(const QGridLayout& griglia, QWidget* controllo, const QString& nome) {
  int riga = 0, colonna = 0, righe = 0, colonne = 0;
  griglia.getItemPosition(griglia.indexOf(controllo), &riga, &colonna, &righe, &colonne);
  return nominato(qobject_cast<QLabel*>(griglia.itemAtPosition(riga, colonna - 1)->widget()), nome);
}

void prepara_luoghi(QComboBox* province, QComboBox* comuni) {
  province->setFixedWidth(56);
  rendi_cercabile(comuni);
  comuni->view()->setMinimumWidth(300);  // the longest names in full
  comuni->view()->setTextElideMode(Qt::ElideNone);
}

}  // namespace

void Formanag::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formanag"_s);
  setWindowTitle(u"Scheda Anagrafica"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(6, 4, 6, 6);
  colonna->setSpacing(6);
  const auto fila = [colonna](QWidget* sinistra, QWidget* destra, int parte_sinistra, int parte_destra) {
    auto* r = new QHBoxLayout;
    r->setSpacing(6);
    r->addWidget(sinistra, parte_sinistra);
    r->addWidget(destra, parte_destra);
    colonna->addLayout(r);
  };
  QWidget* dati = disegna_dati();
  fila(dati, disegna_foto(), 1, 0);
  QWidget* residenza = disegna_recapiti();
  fila(residenza, disegna_lavoro(), 1, 1);
  colonna->addWidget(disegna_diete(), 1);
  const std::pair<QWidget*, QWidget*> vicini[]{{Combolav, cmdhelp[1]}, {cmdhelp[1], ComboRischi}};
  for (const auto& [prima, dopo] : vicini) setTabOrder(prima, dopo);
}

QWidget* Formanag::disegna_dati() {
  const Cornice c = cornice(u"Dati anagrafici"_s, this);
  Txtcod = campo_calcolato(u"Txtcod"_s);
  txtdatavisita = nominato(new QDateEdit, u"txtdatavisita"_s, u"Data della visita"_s);
  txtdatavisita->setCalendarPopup(true);
  txtdatavisita->setMinimumWidth(92);
  txtdatavisita->setDisplayFormat(formato_data_breve());
  riga(*c.griglia, 0, u"Codice paziente"_s, Txtcod);
  riga(*c.griglia, 0, u"Data visita"_s, txtdatavisita, 3);
  disponi(*this, *c.griglia, dati_anagrafici);
  Labcom = etichetta(*c.griglia, Combocom, u"Labcom"_s);
  prepara_luoghi(comboprov, Combocom);
  for (QLineEdit* numero : {Txtanni, Txtpeso, Txtalt}) numero->setAlignment(Qt::AlignRight);
  for (QWidget* corto : std::initializer_list<QWidget*>{Txtcod, Combosesso, Txtanni, Txtpeso, Txtalt}) {
    corto->setFixedWidth(larghezza_numero);
    c.griglia->setAlignment(corto, Qt::AlignLeft);
  }
  c.griglia->setAlignment(comboprov, Qt::AlignLeft);
  c.griglia->setColumnStretch(1, 3);
  c.griglia->setColumnStretch(3, 1);
  return c.box;
}

QWidget* Formanag::disegna_foto() {
  const Cornice c = cornice(u"Foto"_s, this);
  picfoto = nominato(new QLabel, u"picfoto"_s);
  picfoto->setProperty("ruolo", u"valore"_s);
  picfoto->setAlignment(Qt::AlignCenter);
  picfoto->setFixedSize(112, 82);  // known before the layout is: photos are loaded unseen
  picfoto->setAccessibleName(u"Foto del cliente"_s);
  Commapri = pulsante(u"Commapri"_s, u"Cerca foto"_s, u"Ricerca la foto del cliente"_s);
  c.griglia->addWidget(picfoto, 0, 0);
  c.griglia->addWidget(Commapri, 1, 0);
  c.griglia->setRowStretch(0, 1);
  return c.box;
}

QWidget* Formanag::disegna_recapiti() {
  const Cornice c = cornice(u"Residenza e recapiti"_s, this);
  disponi(*this, *c.griglia, recapiti);
  labcom2 = etichetta(*c.griglia, Combocom2, u"labcom2"_s);
  prepara_luoghi(comboprov2, Combocom2);
  c.griglia->setAlignment(comboprov2, Qt::AlignLeft);
  for (int campo : {1, 3}) c.griglia->setColumnStretch(campo, 1);
  return c.box;
}

QWidget* Formanag::disegna_lavoro() {
  const Cornice c = cornice(u"Lavoro e abitudini"_s, this);
  disponi(*this, *c.griglia, lavoro);
  cmdhelp[0] = pulsantino(nome_indice(u"cmdhelp", 0), u"?"_s, u"Come si determina la costituzione"_s);
  cmdhelp[1] = pulsantino(nome_indice(u"cmdhelp", 1), u"?"_s, u"Schema dei tipi di lavoro"_s);
  c.griglia->addWidget(cmdhelp[0], 6, 4);
  c.griglia->addWidget(cmdhelp[1], 3, 4);
  c.griglia->setColumnMinimumWidth(1, 86);
  c.griglia->setColumnStretch(3, 1);
  return c.box;
}

QWidget* Formanag::disegna_diete() {
  const Cornice c = cornice(u"Diete precedenti e motivo della visita"_s, this);
  disponi(*this, *c.griglia, diete);
  const std::array scritte{u"Tipo e durata"_s, u"Aspettative attuali"_s};
  const std::array suggerimenti{u"Tipo e durata delle diete precedenti"_s, u"Che cosa il paziente si aspetta"_s};
  for (std::size_t i = 0; i < TxtVerde.size(); ++i) {
    TxtVerde[i] = nominato(new QPlainTextEdit, nome_indice(u"TxtVerde", i), suggerimenti[i]);
    TxtVerde[i]->setTabChangesFocus(true);
    TxtVerde[i]->setMinimumHeight(0);
    Cmdnote[i] = pulsantino(nome_indice(u"Cmdnote", i), u"…"_s, scritte[i] + u" nel blocco note"_s);
    auto* testata = barra({etichetta_di(scritte[i], TxtVerde[i])}, {Cmdnote[i]});
    const int colonna = i == 0 ? 2 : 4, campata = i == 0 ? 2 : 1;
    c.griglia->addLayout(testata, 1, colonna, 1, campata);
    c.griglia->addWidget(TxtVerde[i], 2, colonna, 3, campata);
  }
  c.griglia->setColumnMinimumWidth(1, 120);
  c.griglia->setColumnStretch(3, 1);
  c.griglia->setColumnMinimumWidth(4, 226);
  return c.box;
}
