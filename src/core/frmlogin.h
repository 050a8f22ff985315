// The login: the program's first screen, which alone makes the main window.
#pragma once

#include "base/archivio.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <optional>

class frmLogin : public QDialog {
 public:
  frmLogin();
  void al_caricamento() {}
  void all_attivazione();
  void alla_chiusura() {}

  /// Esc and the window's own closing: gives up the start.
  void reject() override;

  std::array<QLabel*, 2> LabVersion{};
  QLabel* Label5{};
  QLineEdit *txtUserName{}, *txtPassword{};
  QPushButton *cmdOK{}, *cmdCancel{};

 private:
  void disegna();  // frmlogin_aspetto.cpp
  void leggi_utente();
  void ok();
  void annulla();
  void primo_ingresso();

  std::optional<Archivio> archivio_;
  QString password_;  // as stored
  bool primo_uso_ = false;
};
