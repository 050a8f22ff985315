// How a failed expectation shows the program's texts.
#pragma once

#include <QString>
#include <ostream>

inline void PrintTo(const QString& testo, std::ostream* os) { *os << '"' << testo.toStdString() << '"'; }
