#include "base/liste.h"

QStringList elementi(const QString& lista, QChar separatore) {
  QStringList valori = lista.split(separatore);
  valori.removeLast();
  return valori;
}

QString lista_di(const QStringList& valori, QChar separatore) {
  QString lista;
  for (const QString& v : valori) lista += v + separatore;
  return lista;
}
