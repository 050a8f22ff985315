// Export of a client's file to a folder, import of client files from a folder.
#pragma once

#include "core/cartelle.h"

#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>

class Formi_e : public QWidget {
 public:
  Formi_e();
  void al_caricamento();
  void all_attivazione() { riempi_elenco_esporta(); }
  void alla_chiusura() {}

  /// Lists the clients whose file is there.
  void riempi_elenco_esporta();

  QTableWidget* MSFlexGrid1{};  // cod, cognome
  QComboBox *Drive1{}, *Drive2{};
  Cartelle *Dir1{}, *Dir2{};
  QListWidget* File1{};
  QPushButton *Command2{}, *Cmdimp{}, *Command3{};
  QProgressBar* Animation{};

 private:
  void disegna();              // formi_e_aspetto.cpp
  QWidget* disegna_esporta();  // formi_e_aspetto.cpp
  QWidget* disegna_importa();  // formi_e_aspetto.cpp
  void collega_regole();
  void elenca_file();
  void esporta();
  void importa();
  void mostra_copia(bool in_corso);
};
