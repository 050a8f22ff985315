#include "clinic/formtratta.h"

#include "base/numeri.h"
#include "clinic/formgraficotratta.h"
#include "core/filtri.h"
#include "core/formnote.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/regole.h"
#include "core/salva_carica.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int codice_stadio = 10;
const QString rotta_note = u"4"_s;

/// The number a text begins with, 0 where it begins with none.
double numero_iniziale(QStringView testo) {
  for (qsizetype n = testo.size(); n > 0; --n) {
    if (numerico(testo.first(n))) return valore(testo.first(n));
  }
  return 0;
}

/// The place of the chosen one; nothing is chosen where it is the end.
std::size_t scelto(const auto& opzioni) {
  return static_cast<std::size_t>(std::ranges::find_if(opzioni, &QRadioButton::isChecked) - opzioni.begin());
}

}  // namespace

Formtratta::Formtratta() {
  disegna();
  collega_regole();
  instrada_note(rotta_note, [](int indice, const QString& testo) {
    QLineEdit* nota = schermata<Formtratta>().Text22.at(static_cast<std::size_t>(indice));
    nota->setText(testo);
    nota->home(false);  // a long note shows its beginning
  });
}

void Formtratta::al_caricamento() { carica_cliente(codice_stadio); }

void Formtratta::all_attivazione() { schermata<Mdiorza>().qualeform.setText(QString::number(codice_stadio)); }

void Formtratta::alla_disattivazione() { schermata<Mdiorza>().qualeform.setText(u"-1"_s); }

void Formtratta::alla_chiusura() {
  salva_cliente(codice_stadio);
  schermata<Mdiorza>().qualeform.setText(u"-1"_s);
}

void Formtratta::collega_regole() {
  for (const Misura& m : misure) {
    for (QLineEdit* c : this->*m.serie) solo_cifre(c);
  }
  al_clic(Command10, [this] { chiedi_grafico(); });
  for (std::size_t i = 0; i < Command13.size(); ++i) {
    al_clic(Command13[i], [this, i] {
      apri_note(u"Trattamento cliente"_s, u"Visita del "_s + Text24[i]->text(), rotta_note, QString::number(i),
                Text22[i]->text());
    });
  }
}

void Formtratta::chiedi_grafico() {
  const std::size_t misura = scelto(Option3), tipo = scelto(Option4);
  if (misura == Option3.size()) {
    return messaggio(u"Scegliere il tipo di rilevamento !"_s, u"Orzaline control"_s, Icona::esclamazione);
  }
  if (tipo == Option4.size()) {
    return messaggio(u"Scegliere il tipo di grafico !"_s, u"Orzaline control"_s, Icona::esclamazione);
  }
  grafico_trattamento(static_cast<std::int16_t>(misura), static_cast<std::int16_t>(tipo));
}

QString Formtratta::nome_misura(std::size_t misura) const {
  return misure.at(misura).scritta.isEmpty() ? txtCirco.at(misura - prima_misura_libera)->text()
                                             : Option3.at(misura)->text();
}

void Formtratta::grafico_trattamento(std::int16_t misura, std::int16_t tipo) {
  const auto quale = static_cast<std::size_t>(misura);
  std::array<PuntoGrafico, visite> punti;
  for (std::size_t i = 0; i < visite; ++i) {
    const QLineEdit* casella = (this->*misure.at(quale).serie)[i];
    punti[i] = {Text24[i]->text(), round16(numero_iniziale(casella->text()))};
  }
  schermata<Formgraficotratta>().riempi(u"Grafico Trattamento - "_s + nome_misura(quale), punti,
                                        tipo == 0 ? TipoGrafico::linea : TipoGrafico::barre);
  mostra<Formgraficotratta>();
}
