#include "core/aspetto.h"
#include "core/formsched.h"
#include "core/griglie.h"
#include "core/registro.h"
#include "core/schermate.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr Colonna colonne[]{
    {u"Codice", 600, Qt::AlignLeft},
    {u"Data visita", 1100, Qt::AlignHCenter},
    {u"Cognome", 2500, Qt::AlignHCenter},
    {u"Nome", 2500, Qt::AlignHCenter},
    {u"Data di nascita", 1200, Qt::AlignHCenter},
    {u"Codice fiscale", 1882, Qt::AlignHCenter},
};

constexpr int larghezza_comando = 81;

struct Comando {
  QStringView scritta;
  QStringView suggerimento;
};
constexpr Comando comandi[]{
    {u"Nuovo cliente", u"Nuovo cliente"},
    {u"Ricerca cliente", u"Ricerca cliente"},
    {u"Richiama", u"Richiama il cliente selezionato"},
    {u"Chiudi", u"Chiudi lo schedario clienti"},
};

QTabBar* strisce() {
  QTabBar* s = lettere(u"SSTabschedario"_s);
  s->addTab(u"TUTTI"_s);
  s->setCurrentIndex(scheda_tutti);
  return s;
}

}  // namespace

void Formsched::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formsched"_s);
  setWindowTitle(u"Schedario Nominativi"_s);
  const Cornice c = cornice(windowTitle());
  c.griglia->setContentsMargins(6, 6, 6, 8);
  SSTabschedario = strisce();
  Tabella = griglia(u"Tabella"_s, colonne);
  Tabella->setToolTip(u"Clienti in schedario"_s);
  Tabella->setFixedWidth(larghezza_di(colonne));
  c.griglia->addWidget(guida(u"cliccare sul cliente per selezionarlo"_s), 0, 0);
  QLabel* nota = guida(u"Ricordarsi di lasciarlo selezionato su TUTTI, altrimenti non va la prima selezione !!!"_s);
  nota->setAlignment(Qt::AlignRight);
  c.griglia->addWidget(nota, 3, 0);
  c.griglia->addWidget(SSTabschedario, 1, 0, 1, 2);
  c.griglia->addWidget(Tabella, 2, 0);
  c.griglia->addLayout(disegna_comandi(), 2, 1);
  c.griglia->setRowStretch(2, 1);
  auto* fuori = new QVBoxLayout(this);
  fuori->setContentsMargins(6, 4, 6, 6);
  fuori->addWidget(c.box);
}

QLayout* Formsched::disegna_comandi() {
  auto* colonna = new QVBoxLayout;
  colonna->setSpacing(6);
  const auto comando = [](const QString& nome, const Comando& c) {
    QPushButton* b = pulsante(nome, c.scritta.toString(), c.suggerimento.toString());
    b->setAccessibleName(c.suggerimento.toString());
    b->setStyleSheet(u"QPushButton { padding: 2px 3px; } QPushButton:focus { padding: 1px 2px; }"_s);
    return b;
  };
  for (std::size_t i = 0; i < Command10.size(); ++i) Command10[i] = comando(nome_indice(u"Command10", i), comandi[i]);
  Cmddelete = comando(u"Cmddelete"_s, {u"Elimina", u"Elimina il cliente selezionato"});
  Txtcont = campo_calcolato(u"Txtcont"_s, larghezza_comando);
  for (QPushButton* b : {Command10[0], Command10[1], Command10[2], Cmddelete}) colonna->addWidget(b);
  colonna->addStretch();
  colonna->addWidget(etichetta_di(u"Totale presenze"_s, Txtcont));
  colonna->addWidget(Txtcont);
  colonna->addSpacing(12);
  colonna->addWidget(Command10[3]);
  return colonna;
}
