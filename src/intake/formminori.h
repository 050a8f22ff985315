// The notice for clients under ten.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

class Formminori : public QDialog {
 public:
  Formminori();
  void al_caricamento() {}
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  QLabel* Label1{};
  QPushButton* Command1{};
};
