#include "core/aspetto.h"
#include "diary/formintegrat.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct Casella {
  QStringView etichetta;
  QStringView suggerimento;
};
constexpr Casella caselle[]{
    {u"Nome e Descrizione integratore", u"Nome e descrizione dell'integratore"},
    {u"Energia: Kcal per 100 grammi", u"Si calcola da protidi, lipidi e glucidi"},
    {u"Protidi: grammi per 100 grammi", u"Grammi di protidi in 100 grammi di integratore"},
    {u"Lipidi: grammi per 100 grammi", u"Grammi di lipidi in 100 grammi di integratore"},
    {u"Glucidi: grammi per 100 grammi", u"Grammi di glucidi in 100 grammi di integratore"},
    {u"Quantità giornaliera: grammi", u"Grammi di integratore al giorno"},
};

constexpr Casella comandi[]{
    {u"Salva", u"Salva l'integratore ed esci"},
    {u"Nuovo", u"Inserisci un nuovo integratore"},
    {u"Elimina", u"Elimina l'integratore visualizzato"},
};

constexpr int larghezza_nome = 240;

QLineEdit* casella(std::size_t indice) {
  const QString nome = nome_indice(u"Text1", indice), suggerimento = caselle[indice].suggerimento.toString();
  if (indice > 0) return campo_numero(nome, suggerimento);
  auto* c = nominato(new QLineEdit, nome, suggerimento);
  c->setFixedWidth(larghezza_nome);
  return c;
}

}  // namespace

void Formintegrat::disegna() {
  setObjectName(u"Formintegrat"_s);
  setWindowTitle(u"Inserimento valori integratore"_s);
  setModal(true);
  const Cornice c = cornice(u"Integratore"_s);
  for (std::size_t i = 0; i < Text1.size(); ++i) {
    Text1[i] = casella(i);
    riga(*c.griglia, static_cast<int>(i), caselle[i].etichetta.toString(), Text1[i]);
    c.griglia->setAlignment(Text1[i], Qt::AlignLeft);
  }
  for (std::size_t i = 0; i < Command1.size(); ++i) {
    Command1[i] =
        pulsante(nome_indice(u"Command1", i), comandi[i].etichetta.toString(), comandi[i].suggerimento.toString());
  }
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 8, 10, 10);
  colonna->setSpacing(8);
  colonna->addWidget(c.box);
  colonna->addLayout(barra({Command1[0], Command1[1]}, {Command1[2]}));
  colonna->setSizeConstraint(QLayout::SetFixedSize);
}
