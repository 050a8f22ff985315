// Municipalities and foreign countries, as the master data screen offers them.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

/// The abbreviation that stands for the foreign countries.
inline constexpr QStringView provincia_estera = u"EE";

struct Comune {
  QString provincia;
  QString nome;
  QString codice;  // a letter and three digits
  QString cap;     // five digits; empty where there is none
};

/// The table of municipalities. Its file is read whole the first time, and again only where it has changed.
class Comuni {
 public:
  /// Reads `ccc.jed`. Throws Errore where it cannot be read.
  void apri();
  /// Forgets the table; closing twice does nothing.
  void chiudi();
  [[nodiscard]] bool aperti() const { return tabella_ != nullptr; }

  [[nodiscard]] QStringList province() const { return tabella_ ? tabella_->province : QStringList(); }
  /// The municipalities of a province in stored order.
  [[nodiscard]] QStringList di(const QString& provincia) const;
  /// The first of that name in stored order, whatever its province; null where there is none.
  [[nodiscard]] const Comune* trova(const QString& nome) const;

 private:
  struct Tabella {
    std::vector<Comune> comuni;
    QStringList province;
  };
  [[nodiscard]] static Tabella leggi(const QString& file);

  std::shared_ptr<const Tabella> tabella_;
};
