// The supplements of a client, typed by hand: those of the diary in one table, those of the diet in another.
#pragma once

#include "core/valore.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <functional>

class Formintegrat : public QDialog {
 public:
  Formintegrat();
  void al_caricamento() {}
  void all_attivazione();
  /// The diary's list follows the supplements as they stand now.
  void alla_chiusura();
  /// The title bar's close: what was typed is lost.
  void reject() override;

  /// Empties all boxes.
  void nuovo();

  std::array<QLineEdit*, 6> Text1{};  // name; kcal, protein, fat, carbohydrate per 100 g; grams a day
  std::array<QPushButton*, 3> Command1{};
  Valore Form_loader;  // "0" the diet's table, "1" the diary's

  /// Runs once after "Salva" or "Elimina" on the diet's table, before the window closes.
  std::function<void()> dopo_dieta;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void disegna();  // formintegrat_aspetto.cpp
  void collega_regole();
  [[nodiscard]] bool dieta() const;
  void calcola_energia();
  void salva();
  void elimina();
  void avverti_dieta();
};

/// Opens the window over the screen at work. `modo` is "0" for the diet, "1" for the diary; `valori` are name, grams,
/// kcal, protein, fat and carbohydrate, or only the first of them. `dopo` becomes the window's `dopo_dieta`.
void apri_integratore(const QString& modo, const QStringList& valori, std::function<void()> dopo = {});
