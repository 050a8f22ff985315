#include "core/aspetto.h"
#include "core/griglie.h"
#include "core/schermate.h"
#include "diary/famiglie.h"
#include "diary/formdiario.h"
#include "diary/totali.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza_liste = 168;
constexpr int larghezza_livello = 50, larghezza_ritmo = 182;
constexpr int codici = 4;  // columns that are there for the program alone
constexpr std::size_t nutrienti = 4;

constexpr Colonna colonne[]{
    {u"", 0, Qt::AlignLeft},
    {u"", 0, Qt::AlignLeft},
    {u"", 0, Qt::AlignLeft},
    {u"", 0, Qt::AlignLeft},
    {u"Gruppo Alimentare - Valori calcolati su 100g. di alimento tal quale ", 5500, Qt::AlignLeft},
    {u"Dose g.", 700, Qt::AlignRight},
    {u"Kc", 600, Qt::AlignRight},
    {u"P", 600, Qt::AlignRight},
    {u"L", 600, Qt::AlignRight},
    {u"G", 600, Qt::AlignRight},
};

constexpr QStringView etichette[]{u"Glucidi g.", u"Lipidi g.", u"Protidi g.", u"Kcalorie"};

/// A chosen line stays chosen, or the grid would show foods of no family.
class Elenco : public QListWidget {
 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& voce, const QEvent* evento) const override {
    const auto comando = QListWidget::selectionCommand(voce, evento);
    return comando & QItemSelectionModel::Deselect ? QItemSelectionModel::ClearAndSelect : comando;
  }
};

QListWidget* elenco(const QString& nome, const QString& suggerimento, int voci) {
  auto* l = nominato(new Elenco, nome, suggerimento);
  distanzia_voci(l);
  l->setFixedWidth(larghezza_liste);
  l->setMinimumHeight(voci * altezza_voce + 2);
  l->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return l;
}

}  // namespace

void Formdiario::disegna() {
  prendi_posto(*this);
  setObjectName(u"Formdiario"_s);
  setWindowTitle(u"Diario Alimentare"_s);
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(6, 4, 6, 6);
  fila->setSpacing(6);
  fila->addWidget(disegna_scelte());
  disegna_griglia();
  auto* sotto = new QHBoxLayout;
  sotto->setSpacing(6);
  sotto->addWidget(disegna_livelli(), 1);
  sotto->addWidget(disegna_ritmo());
  Command1 = pulsante(u"Command1"_s, u"Mostra scelte effettuate e Stampa"_s,
                      u"Mostra le scelte del diario in anteprima, pronte per la stampa"_s);
  auto* destra = new QVBoxLayout;
  destra->setSpacing(5);
  destra->addWidget(MSFlex1, 1);
  destra->addLayout(sotto);
  destra->addLayout(barra({}, {Command1}));
  fila->addLayout(destra, 1);
}

QWidget* Formdiario::disegna_scelte() {
  const Cornice c = cornice(windowTitle());
  c.griglia->setContentsMargins(4, 6, 4, 6);
  int posto = 0;
  const auto aggiungi = [&](const QString& etichetta, QListWidget* lista) {
    if (posto > 0) c.griglia->setRowMinimumHeight(posto++, 6);
    c.griglia->addWidget(etichetta_di(etichetta, lista), posto++, 0);
    c.griglia->addWidget(lista, posto++, 0);
    return lista;
  };
  ListPASTI = aggiungi(u"Pasto"_s, elenco(u"ListPASTI"_s, u"Pasto da compilare"_s, 5));
  ListPASTI->addItems(pasti_diario());
  ListGRUPPI = aggiungi(u"Gruppo di alimenti"_s, elenco(u"ListGRUPPI"_s, u"Gruppo di alimenti del pasto"_s, 7));
  ListGRUPPI->setEnabled(false);
  ListAlimenti =
      aggiungi(u"Famiglia di alimenti"_s, elenco(u"ListAlimenti"_s, u"Famiglia da mostrare nella griglia"_s, 7));
  ListPASTI->setMaximumHeight(ListPASTI->minimumHeight());
  ListGRUPPI->setMaximumHeight(ListGRUPPI->minimumHeight());
  return c.box;
}

void Formdiario::disegna_griglia() {
  MSFlex1 = griglia(u"MSFlex1"_s, colonne);
  MSFlex1->setToolTip(u"Cliccare su un alimento per darne la dose"_s);
  MSFlex1->setAccessibleName(u"Alimenti"_s);
  MSFlex1->setFixedWidth(larghezza_di(colonne));
  MSFlex1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (int i = 0; i < codici; ++i) MSFlex1->hideColumn(i);
  Combodose = nominato(new Lista(MSFlex1->viewport()), u"Combodose"_s, u"Dose in grammi"_s);
  Combodose->setAccessibleName(u"Dose in grammi"_s);
  for (const int dose : {0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 120, 140, 160, 180, 200, 250, 300, 330}) {
    Combodose->addItem(QString::number(dose));
  }
  Combodose->setCurrentIndex(-1);
  Combodose->setMaxVisibleItems(Combodose->count());
  Combodose->hide();
}

QWidget* Formdiario::disegna_livelli() {
  const Cornice c = cornice(u"Livelli"_s);
  c.griglia->setHorizontalSpacing(4);
  const QStringList blocchi = pasti_diario() + QStringList{u"Tot. giorno"_s};
  for (std::size_t n = 0; n < nutrienti; ++n) {
    c.griglia->addWidget(new QLabel(etichette[n].toString()), static_cast<int>(n) + 1, 0);
  }
  for (std::size_t m = 0; m < TxtLivelli.size() / nutrienti; ++m) {
    const QString& pasto = blocchi[static_cast<qsizetype>(m)];
    const int colonna = static_cast<int>(m) + 1;
    c.griglia->addWidget(testa(pasto), 0, colonna);
    for (std::size_t n = 0; n < nutrienti; ++n) {
      QLineEdit*& t = TxtLivelli[m * nutrienti + n];
      t = campo_calcolato(nome_indice(u"TxtLivelli", m * nutrienti + n), larghezza_livello);
      t->setAccessibleName(etichette[n].toString() + u", "_s + pasto);
      c.griglia->addWidget(t, static_cast<int>(n) + 1, colonna, Qt::AlignHCenter);
    }
  }
  c.griglia->setRowStretch(static_cast<int>(nutrienti) + 1, 1);
  return c.box;
}

QWidget* Formdiario::disegna_ritmo() {
  const Cornice c = cornice(u"Ritmo Alimentare Giornaliero"_s);
  c.box->setFixedWidth(larghezza_ritmo);
  for (std::size_t i = 0; i < TxtRAG.size(); ++i) {
    TxtRAG[i] = campo_calcolato(nome_indice(u"TxtRAG", i), 40);
    riga(*c.griglia, static_cast<int>(i), pasti_diario()[static_cast<qsizetype>(i)] + u" %"_s, TxtRAG[i]);
  }
  return c.box;
}
