// A day of the client's diary on one filled-in sheet, printed as a picture of the window. No menu opens it yet.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <array>

class Form_anteprima_diario : public QDialog {
 public:
  static constexpr std::size_t posti = 16;  // foods of a meal
  using Caselle = std::array<QLineEdit*, posti>;

  Form_anteprima_diario();
  void al_caricamento();
  void all_attivazione() {}
  void alla_chiusura() {}
  void reject() override;

  QLineEdit *Txtdata{}, *Txtstudio{}, *Txtcliente{};
  /// 0 to 4 advised weight, kcal, protein, fat, carbohydrate; 5 to 9 the present ones from carbohydrate to weight; 10
  /// to 14 their difference in that order; 15 to 19 work, build, ideal weight, age, weight.
  std::array<QLineEdit*, 20> Text1{};
  Caselle TxtCOLAZIONE{}, TxtDOSEC{}, TxtMERENDA{}, TxtDOSEM{}, TxtPRANZO{}, TxtDOSEP{}, TxtCENA{}, TxtDOSECE{};
  QPushButton* Command1{};

 private:
  void disegna();                  // form_anteprima_diario_aspetto.cpp
  QGridLayout* disegna_testa();    // form_anteprima_diario_aspetto.cpp
  QHBoxLayout* disegna_livelli();  // form_anteprima_diario_aspetto.cpp
  QHBoxLayout* disegna_pasti();    // form_anteprima_diario_aspetto.cpp
  void riempi_livelli();
  void riempi_alimenti();
  void calcola_differenze();
  void stampa();
};
