#include "intake/lista_cercabile.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>

namespace {

constexpr int righe_in_vista = 14;

/// The only line that begins with a text, -1 where there are none or several.
int sola_riga(const QComboBox& lista, const QString& inizio) {
  if (const int intera = lista.findText(inizio, Qt::MatchFixedString); !inizio.isEmpty() && intera >= 0) return intera;
  const auto trovate = lista.model()->match(lista.model()->index(0, lista.modelColumn()), Qt::DisplayRole, inizio, 2,
                                            Qt::MatchStartsWith);
  return inizio.isEmpty() || trovate.size() != 1 ? -1 : trovate.first().row();
}

void chiudi_ricerca(QComboBox* lista) {
  const QString scritto = lista->currentText(), scelto = lista->itemText(lista->currentIndex());
  if (scritto == scelto) return;
  const int riga = sola_riga(*lista, scritto);
  if (riga < 0 || riga == lista->currentIndex()) return lista->setEditText(scelto);
  lista->setCurrentIndex(riga);
  emit lista->activated(riga);
}

}  // namespace

void rendi_cercabile(QComboBox* lista) {
  lista->setEditable(true);
  lista->setInsertPolicy(QComboBox::NoInsert);
  lista->setMaxVisibleItems(righe_in_vista);
  lista->completer()->setCompletionMode(QCompleter::PopupCompletion);
  lista->completer()->setMaxVisibleItems(righe_in_vista);
  QObject::connect(lista->lineEdit(), &QLineEdit::editingFinished, lista, [lista] { chiudi_ricerca(lista); });
}
