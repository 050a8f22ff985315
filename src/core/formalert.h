// What to do with a client that the archive knows already.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <array>

class FormAlert : public QDialog {
 public:
  explicit FormAlert(QWidget* sopra);
  /// Only its buttons answer it.
  void reject() override {}

  std::array<QPushButton*, 2> Command1{};  // NUOVO, SOVRASCRIVERE
};

/// Shows the window and waits: true for NUOVO, false for SOVRASCRIVERE.
[[nodiscard]] bool chiedi_nuovo();
