#include "core/aspetto.h"
#include "core/griglie.h"
#include "core/schermate.h"
#include "office/formrubrica.h"

#include <QVBoxLayout>
#include <span>

using namespace Qt::StringLiterals;

namespace {

/// A box of a tab, in the order of its table's fields.
struct Casella {
  QLineEdit* Formrubrica::*membro;
  QStringView nome;
  QStringView etichetta;
  QStringView suggerimento;
};

constexpr Casella caselle_abitazione[]{
    {&Formrubrica::Text3, u"Text3", u"Indirizzo:", u"Via e numero civico"},
    {&Formrubrica::Text4, u"Text4", u"Città:", u"Città di residenza"},
    {&Formrubrica::Text5, u"Text5", u"Provincia:", u"Provincia di residenza"},
    {&Formrubrica::Text6, u"Text6", u"CAP:", u"Codice di avviamento postale"},
    {&Formrubrica::Text7, u"Text7", u"Paese:", u"Paese o comune di residenza"},
};

constexpr Casella caselle_ufficio[]{
    {&Formrubrica::Text10, u"Text10", u"Indirizzo:", u"Via e numero civico"},
    {&Formrubrica::Text11, u"Text11", u"Città:", u"Città dell'ufficio"},
    {&Formrubrica::Text12, u"Text12", u"Provincia:", u"Provincia dell'ufficio"},
    {&Formrubrica::Text13, u"Text13", u"CAP:", u"Codice di avviamento postale"},
    {&Formrubrica::Text14, u"Text14", u"Paese:", u"Paese o comune dell'ufficio"},
    {&Formrubrica::Text15, u"Text15", u"Posizione:", u"Posizione di lavoro"},
    {&Formrubrica::Text16, u"Text16", u"Società:", u"Società o ente"},
    {&Formrubrica::Text17, u"Text17", u"Dipartimento:", u"Dipartimento"},
    {&Formrubrica::Text18, u"Text18", u"Ufficio:", u"Ufficio"},
    {&Formrubrica::Text19, u"Text19", u"Assistente:", u"Nome dell'assistente"},
};

constexpr Casella caselle_telefoni[]{
    {&Formrubrica::Text20, u"Text20", u"Abitazione:", u"Telefono di casa"},
    {&Formrubrica::Text21, u"Text21", u"Abitazione 2:", u"Secondo telefono di casa"},
    {&Formrubrica::Text22, u"Text22", u"Cellulare:", u"Telefono cellulare"},
    {&Formrubrica::Text23, u"Text23", u"Cercapersone:", u"Numero del cercapersone"},
    {&Formrubrica::Text26, u"Text26", u"Ufficio:", u"Telefono dell'ufficio"},
    {&Formrubrica::Text27, u"Text27", u"Ufficio 2:", u"Secondo telefono dell'ufficio"},
    {&Formrubrica::Text28, u"Text28", u"Assistente:", u"Telefono dell'assistente"},
    {&Formrubrica::Text29, u"Text29", u"Fax:", u"Numero di fax"},
    {&Formrubrica::Text30, u"Text30", u"Cellulare 2:", u"Secondo telefono cellulare"},
    {&Formrubrica::Text31, u"Text31", u"E-Mail:", u"Indirizzo di posta elettronica"},
};

/// A tab of the detail view and its own button.
struct Linguetta {
  QStringView scritta;
  std::span<const Casella> caselle;
  QPushButton* Formrubrica::*chiudi;
  QStringView nome_chiudi;
};
constexpr Linguetta linguette[schede]{
    {u"Abitazione", caselle_abitazione, &Formrubrica::Command5, u"Command5"},
    {u"Ufficio", caselle_ufficio, &Formrubrica::Command4, u"Command4"},
    {u"Numeri di telefono", caselle_telefoni, &Formrubrica::Command3, u"Command3"},
};

constexpr int caselle_in_colonna = 5;
constexpr int larghezza_etichetta = 78;

}  // namespace

void Formrubrica::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formrubrica"_s);
  setWindowTitle(u"Rubrica Telefonica"_s);
  const Cornice c = cornice(windowTitle());
  viste_ = new QStackedWidget;
  viste_->addWidget(disegna_elenco());
  viste_->addWidget(disegna_dettaglio());
  c.griglia->addWidget(viste_, 0, 0);
  auto* fuori = new QVBoxLayout(this);
  fuori->setContentsMargins(6, 4, 6, 6);
  fuori->addWidget(c.box);
}

QWidget* Formrubrica::disegna_elenco() {
  SSTab2 = lettere(u"SSTab2"_s);
  DBList1 = nominato(new QListView, u"DBList1"_s, u"Persone in rubrica; doppio clic per richiamarne una"_s);
  DBList1->setAccessibleName(u"Persone in rubrica"_s);
  DBList1->setModel(&Data1);
  distanzia_voci(DBList1);
  DBList1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  DBList1->setUniformItemSizes(true);
  DBList1->setAlternatingRowColors(true);
  Command1 = pulsante(u"Command1"_s, u"Nuovo inserimento"_s, u"Inserisci una persona nuova"_s);
  Command2 = pulsante(u"Command2"_s, u"Richiama il cliente selezionato"_s, u"Apri i dati della persona selezionata"_s);
  Command6 = pulsante(u"Command6"_s, u"Elimina il cliente selezionato"_s, u"Togli la persona dalla rubrica (Canc)"_s);
  Command7 = pulsante(u"Command7"_s, u"Chudi la rubrica"_s, u"Chiudi la finestra"_s);
  auto* elenco = new QWidget;
  auto* colonna = new QVBoxLayout(elenco);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(3);
  colonna->addWidget(SSTab2);
  colonna->addWidget(DBList1, 1);
  colonna->addSpacing(5);
  colonna->addLayout(barra({Command1, Command2, Command6}, {Command7}));
  return elenco;
}

QWidget* Formrubrica::disegna_dettaglio() {
  Frame1 = nominato(new QFrame, u"Frame1"_s);
  auto* griglia = new QGridLayout(Frame1);
  griglia->setContentsMargins(0, 4, 0, 0);
  griglia->setVerticalSpacing(10);
  Text1 = nominato(new QLineEdit, u"Text1"_s, u"Nome della persona"_s);
  Text2 = nominato(new QLineEdit, u"Text2"_s, u"Cognome della persona"_s);
  riga(*griglia, 0, u"Nome:"_s, Text1);
  riga(*griglia, 0, u"Cognome:"_s, Text2, 3);
  SSTab1 = nominato(new QTabWidget, u"SSTab1"_s);
  SSTab1->setUsesScrollButtons(false);
  for (std::size_t s = 0; s < schede; ++s) {
    SSTab1->addTab(disegna_scheda(s), linguette[s].scritta.toString());
  }
  griglia->addWidget(SSTab1, 1, 0, 1, 4);
  return Frame1;
}

QWidget* Formrubrica::disegna_scheda(std::size_t scheda) {
  const Linguetta& l = linguette[scheda];
  auto* pagina = new QWidget;
  auto* griglia = new QGridLayout(pagina);
  griglia->setContentsMargins(12, 14, 12, 10);
  griglia->setHorizontalSpacing(8);
  griglia->setVerticalSpacing(8);
  int posto = 0;
  for (const Casella& c : l.caselle) {
    QLineEdit* casella = this->*c.membro = nominato(new QLineEdit, c.nome.toString(), c.suggerimento.toString());
    const int colonna = posto / caselle_in_colonna * 2 + 1;
    riga(*griglia, posto++ % caselle_in_colonna, c.etichetta.toString(), casella, colonna);
    caselle_[scheda] << casella;
  }
  for (const int colonna : {0, 2}) griglia->setColumnMinimumWidth(colonna, larghezza_etichetta);
  for (const int colonna : {1, 3}) griglia->setColumnStretch(colonna, 1);
  griglia->setRowStretch(caselle_in_colonna, 1);
  this->*l.chiudi = pulsante(l.nome_chiudi.toString(), u"Chiudi"_s, u"Salva e torna all'elenco"_s, u"salva"_s);
  griglia->addWidget(this->*l.chiudi, caselle_in_colonna + 1, 3, Qt::AlignRight);
  return pagina;
}
