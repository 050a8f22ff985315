// How to find the constitution of a client.
#pragma once

#include <QDialog>
#include <QPushButton>

class Formcost : public QDialog {
 public:
  Formcost();
  void al_caricamento() {}
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  QPushButton* Command3{};
};
