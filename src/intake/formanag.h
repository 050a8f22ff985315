// Stage 0: identity, birth, residence, contacts, work and habits, photo, weight and stature.
#pragma once

#include "intake/comuni.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <array>

class Formanag : public QWidget {
 public:
  Formanag();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  /// The age, read off the calendar from the date of birth; nothing where that is no date or lies too far back.
  void mettiAnni();
  /// Writes the fiscal code; nothing as long as no municipality of birth is chosen.
  void calcola_codfis();
  /// The banner's index, from weight and stature; nothing where one is no number or the stature is 0.
  void aggiorna_bmi();

  void apri_comuni();
  void chiudi_comuni();
  /// Fills the municipalities of a province: 1 of birth, 2 of residence. Fires no rule and chooses none.
  void riempi_comuni(const QString& provincia, int quale);
  /// The code of a municipality, empty for an unknown name; mode 1 also writes the postal code.
  QString trova_comune(const QString& nome, int modo);

  /// Loads a picture file into `picfoto`. Throws Errore 481 where it cannot be read; the old picture stays.
  void mostra_foto(const QString& file);

  QLineEdit* Txtcod{};
  QDateEdit* txtdatavisita{};
  QLabel* picfoto{};
  QPushButton* Commapri{};
  QString commdialog;  // file of the photo, full path
  QLineEdit *Txtcognome{}, *TxtNOME{}, *Txtdatanasc{};
  QComboBox *Combosesso{}, *comboprov{}, *Combocom{};
  QLabel *Labcom{}, *labcom2{};
  QLineEdit *Txtanni{}, *Txtpeso{}, *Txtalt{}, *Txtcodfis{};  // years, kg, cm

  QComboBox *comboprov2{}, *Combocom2{};
  QLineEdit *Txtcap{}, *Txtloc{}, *Txtind{};
  QLineEdit *txttel1{}, *Txttel2{}, *Txtfax{}, *Txtcell{}, *Txtmail{};

  QComboBox *Combocost{}, *Combosc{}, *Combofigli{}, *Comboscuola{}, *Comboprof{};
  QComboBox *Combolav{}, *ComboRischi{}, *ComboGiorniLav{}, *ComboOreLav{}, *ComboSovra{};
  QComboBox *Combo1{}, *Combo3{}, *ComboVarPeso{}, *ComboVisitaCons{}, *ComboMotivo{};
  std::array<QPlainTextEdit*, 2> TxtVerde{};  // kind and length of former diets, expectations

  std::array<QPushButton*, 2> cmdhelp{};  // constitution, kinds of work
  std::array<QPushButton*, 2> Cmdnote{};  // notes on TxtVerde

 private:
  // formanag_aspetto.cpp
  void disegna();
  QWidget* disegna_dati();
  QWidget* disegna_foto();
  QWidget* disegna_recapiti();
  QWidget* disegna_lavoro();
  QWidget* disegna_diete();

  void collega_regole();
  void collega_luoghi();
  void collega_note();
  void segui_cognome();
  void cambia_cognome();
  void cambia_soggetto();
  void cambia_anni();
  void cambia_provincia(int quale);
  void scegli_foto();

  Comuni comuni_;
};
