// One laboratory exam, new or changed, for the grid of the clinical history.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <array>

/// The caption under which an exam is added; under any other the current line is overwritten.
inline const QString inserimento_esame = QStringLiteral("Inserimento dati esame");

class Formesami : public QDialog {
 public:
  Formesami();
  void al_caricamento() {}
  void all_attivazione() { Textdata->setFocus(); }
  void alla_chiusura() {}
  void reject() override;

  /// The boxes in the order of the grid's columns; those without a text are emptied.
  void riempi(const QStringList& celle);

  QLineEdit *Textdata{}, *Textesame{}, *Textvalore{}, *Textmin{}, *Textmax{}, *Txtreferto{};
  std::array<QPushButton*, 2> Command1{};  // Inserisci, Annulla

 private:
  [[nodiscard]] std::array<QLineEdit*, 6> caselle() const {
    return {Textdata, Textesame, Textvalore, Textmin, Textmax, Txtreferto};
  }
  void disegna();
  void inserisci();
};
