// The five meals of a day, in the order in which diary and diet count them.
#pragma once

#include <QStringView>
#include <array>

inline constexpr std::array<QStringView, 5> nomi_pasti{u"Colazione", u"Spuntino", u"Pranzo", u"Merenda", u"Cena"};
