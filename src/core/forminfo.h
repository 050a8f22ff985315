// What the program is and which version of it runs.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

class Forminfo : public QDialog {
 public:
  Forminfo();
  void al_caricamento();
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  QLabel* Text2{};  // version
  QPushButton* Command1{};
};
