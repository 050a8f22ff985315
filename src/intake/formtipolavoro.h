// What the kinds of work on the master data mean.
#pragma once

#include <QDialog>
#include <QPushButton>

class Formtipolavoro : public QDialog {
 public:
  Formtipolavoro();
  void al_caricamento() {}
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  QPushButton* Command1{};
};
