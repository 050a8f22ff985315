// The search of a client over the archive, by number or by surname.
#pragma once

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

class Formricerca : public QDialog {
 public:
  Formricerca();
  void al_caricamento() {}
  void all_attivazione();
  void alla_chiusura() {}
  void reject() override;

  std::array<QRadioButton*, 2> Option1{};  // by number, by surname
  QLabel *Label1{}, *Labelatt{};
  QLineEdit* Textval{};
  QPushButton *cmdricerca{}, *Cmdannulla{}, *Command1{};

 private:
  void disegna();
  void collega_regole();
  void cerca();
  void annulla();
  void segui_valore();

  QButtonGroup* tipo_{};
};
