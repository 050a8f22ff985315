#include "clinic/rischio.h"

#include "base/numeri.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double limite_uomo = 102, limite_donna = 88;  // cm
constexpr double limite_sovrappeso = 24, limite_obeso = 30;

QString segno(bool presente) { return presente ? u"+"_s : u"-"_s; }

}  // namespace

std::optional<QString> rapporto_vita_fianchi(QStringView vita, QStringView fianchi) {
  if (!numerico(vita) || !numerico(fianchi)) return {};
  const auto v = static_cast<float>(valore(vita)), f = static_cast<float>(valore(fianchi));
  if (f <= 0 || !std::isfinite(v / f)) return {};
  return fmt(v / f, "0.0");
}

std::optional<QString> segno_rapporto(QStringView rapporto) {
  if (!numerico(rapporto)) return {};
  return segno(valore(rapporto) < 1);
}

std::optional<QString> segno_addome(QStringView sesso, QStringView cm) {
  if (!numerico(cm) || (sesso != u"M" && sesso != u"F")) return {};
  return segno(valore(cm) > (sesso == u"M" ? limite_uomo : limite_donna));
}

ClassePeso classe_peso(QStringView bmi) {
  if (!numerico(bmi) || valore(bmi) <= limite_sovrappeso) return ClassePeso::normale;
  return valore(bmi) <= limite_obeso ? ClassePeso::sovrappeso : ClassePeso::obeso;
}

QString livello_rischio(QStringView presenti) {
  static constexpr std::array<QStringView, fattori_di_rischio> livelli{u"Presente", u"Aumentato", u"Elevato",
                                                                       u"Molto elevato", u"Estremamente elevato"};
  for (std::size_t i = 0; i < livelli.size(); ++i) {
    if (presenti == QString::number(i + 1)) return livelli[i].toString();
  }
  return {};
}
