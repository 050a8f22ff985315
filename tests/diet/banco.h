// A bench for the diet engine: a folder with a working copy and a food store of a few foods, and draws told in advance.
#pragma once

#include "attrezzi.h"
#include "base/archivio.h"
#include "diet/contesto.h"

#include <QTemporaryDir>
#include <deque>

/// A food of the test store; per 100 g: kcal and grams. The portion is 100 g, so figures are those of the portion.
struct Cibo {
  int cod1, cod2, cod3, cod4;
  double calorie, protidi, lipidi, glucidi;
  bool unico = false;
  int grammi = 100;
};

/// A row of the client's list.
struct Offerta {
  int cod1, cod2, cod3, cod4, pasto;
  const char* segni = "ok";  // any of "ok", "LV", "SD"
  const char* abbinamenti = "";
};

class Banco : public ::testing::Test {
 protected:
  Banco() { imposta_cartella(cartella.path()); }
  ~Banco() override { imposta_cartella({}); }

  static QString schema(const char* nome) {
    return QString::fromUtf8(contenuto(QStringLiteral(CARTELLA_SORGENTI "/stores/") + QString::fromUtf8(nome)));
  }

  static Archivio nuovo(const char* nome, const char* da_schema) {
    const QString file = percorso(QString::fromUtf8(nome));
    QFile::remove(file);
    Archivio a(file, accesso, Archivio::Modo::nuovo);
    a.esegui_copione(schema(da_schema));
    return a;
  }

  /// Writes the three food stores, alike.
  static void base(const std::vector<Cibo>& cibi) {
    for (const char* nome : {"sa_dieta_minus.jed", "sa_dieta.jed", "sa_dieta_plus.jed"}) {
      Archivio a = nuovo(nome, "alimenti.sql");
      for (const Cibo& c : cibi) {
        a.esegui(
            QStringLiteral("INSERT INTO alimenti (cod1, cod2, cod3, cod4, Descrizione, quantità, calorie, protidi, "
                           "lipidi, glucidi, unico) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
            c.cod1, c.cod2, c.cod3, c.cod4, QStringLiteral("cibo %1.%2").arg(c.cod1).arg(c.cod2), c.grammi, c.calorie,
            c.protidi, c.lipidi, c.glucidi, c.unico);
      }
    }
  }

  /// Writes a working copy that offers these foods.
  static void cliente(const std::vector<Offerta>& offerte, int pranzoFF = 18) {
    Archivio a = nuovo("dati.tmp", "matrix.sql");
    a.esegui(QStringLiteral("INSERT INTO alimenti VALUES (?)"), pranzoFF);
    for (const Offerta& o : offerte) {
      const QByteArray segni = o.segni;
      const QString abb = QString::fromUtf8(o.abbinamenti);
      a.esegui(
          QStringLiteral("INSERT INTO alimenti_spuntati (cod1, cod2, cod3, cod4, pasto, ok, LV, SD, abb_OK, abb_LV, "
                         "abb_SD) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
          o.cod1, o.cod2, o.cod3, o.cod4, o.pasto, segni.contains("ok"), segni.contains("LV"), segni.contains("SD"),
          abb, abb, abb);
    }
  }

  /// Draws told in advance, as "which of how many"; asking for more fails the test.
  struct Estrazioni {
    explicit Estrazioni(const std::vector<std::pair<int, int>>& tirate = {}) {
      for (const auto& [quale, n] : tirate) prossima(quale, n);
    }

    std::deque<double> attese;
    Caso caso{[this] {
                if (attese.empty()) {
                  ADD_FAILURE() << "a draw too many";
                  return 0.0;
                }
                const double x = attese.front();
                attese.pop_front();
                return x;
              },
              [] {}};

    /// The draw that gives `quale` of `n`.
    void prossima(int quale, int n) { attese.push_back((quale - 0.5) / n); }
  };

  QTemporaryDir cartella;
  Motore m;
};
