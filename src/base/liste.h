// Values kept as text: comma lists and plus lists, each value followed by its separator, the last one too.
#pragma once

#include <QString>
#include <QStringList>

/// The values of a list; what stands after the last separator is dropped.
[[nodiscard]] QStringList elementi(const QString& lista, QChar separatore);

/// The list of the values, each followed by the separator.
[[nodiscard]] QString lista_di(const QStringList& valori, QChar separatore);
