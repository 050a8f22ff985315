// The agenda: a month, and the slots of the day that is picked.
#pragma once

#include <QCalendarWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>

class Formagenda : public QWidget {
 public:
  Formagenda();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  QCalendarWidget* Calendar1{};
  QLineEdit* Text1{};       // the day on display, as a short date
  QTableWidget* DBGrid1{};  // Ora, Promemoria
  QToolButton *Image1{}, *Image2{};
  QTimer* Timer1{};  // ticks while an arrow is held
  QPushButton* Command1{};

 private:
  // formagenda_aspetto.cpp
  void disegna();
  QWidget* disegna_mese();
  QLayout* disegna_giorno();

  void collega_regole();
  void collega_freccia(QToolButton* freccia, bool verso);
  void salva_giorno();
  void carica_giorno();
  void aggiorna();
  void scorri_al_mattino();
  void scorri();

  bool nessun_giorno_ = true;  // until the first day is loaded
  bool primo_disegno_ = true;
  bool verso_ = false;  // true downwards
};
