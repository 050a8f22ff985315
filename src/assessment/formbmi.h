// How the body mass index of this client is worked out, with the classes of the index.
#pragma once

#include "assessment/formule.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class Formbmi : public QDialog {
 public:
  Formbmi();
  void al_caricamento() {}
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  void scrivi(const ConteggioBmi& conteggio);

  QLabel* Label1{};
  std::array<QLineEdit*, 2> Txtpeso{}, txtaltquadr{};  // kg, m²
  QLineEdit *Txtalt{}, *Txtbmi{};                      // m, kg/m²
  QPushButton* Command1{};

 private:
  QGridLayout* disegna_classi();
  QGridLayout* disegna_conto();
};
