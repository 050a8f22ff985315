// Stage 3: habits, physiological and psychic history, the women's history, family doctor.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <array>

class QGridLayout;

class Formpers : public QWidget {
 public:
  Formpers();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  std::array<QComboBox*, 5> Combo6{};   // smoking, wine, spirits, coffee, water
  std::array<QComboBox*, 7> Combo17{};  // appetite, meals, digestion, alvus, diuresis, sleep
  std::array<QCheckBox*, 5> Check1{};   // under therapy: digestion to sleep

  std::array<QComboBox*, 6> Combo16{};  // self-esteem, state, expectations, adaptability, sexuality, partner
  std::array<QLineEdit*, 2> Text2{};    // cognitive and affective disorders
  std::array<QCheckBox*, 4> Check2{};   // under therapy: the two disorders, state, sexuality
  QLineEdit *Txtmed{}, *TxtASL{};
  std::array<QPushButton*, 4> Cmdnote{};  // notes on Text2, Txtmed, TxtASL

  QGroupBox* FrameRosa{};
  std::array<QComboBox*, 8> Combo1{};  // menarche, pregnancies, births, osteoporosis, pregnant, since, nursing, since
  std::array<QLineEdit*, 7> Text23{};  // there is no element 4
  std::array<QPushButton*, 7> Command8{};  // notes on Text23, and in place 4 on the osteoporosis

 private:
  // formpers_aspetto.cpp
  void disegna();
  QWidget* disegna_uso();
  QWidget* disegna_fisiologica();
  QWidget* disegna_psichico();
  QWidget* disegna_medico();
  QWidget* disegna_rosa();
  void disegna_riga_rosa(QGridLayout& griglia, int riga);

  void collega_regole();
  void collega_note();
  void cambia_gravidanze();
  void cambia_parti();
  void svuota_rosa();
};
