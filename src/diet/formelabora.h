// Stage 8: elaborates weeks of diet, reviews their days and meals, changes grams, saves the diet.
#pragma once

#include "core/valore.h"
#include "diet/motore.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QWidget>
#include <array>

struct Totali;

class Formelabora : public QWidget {
 public:
  Formelabora();
  void al_caricamento() {}
  void all_attivazione();
  void alla_chiusura();

  /// Day totals beside the client's targets; week 1 to 4, day 0 to 6. Puts that week under work. Throws Errore 9
  /// beyond.
  void mostra_totali_giorno(int settimana, int giorno);
  /// Foods and totals of a meal of the chosen week and day; nothing where one of them is not chosen.
  void mostra_pasto(int pasto);
  /// Takes the grams on display in a line into the menu.
  void applica_variazione(int riga);
  /// Forgets all grams changed by hand.
  void annulla_variazioni();

  QComboBox* Combo1{};                     // week
  QListWidget* List1{};                    // day
  std::array<QRadioButton*, 5> Option1{};  // meal
  QPushButton* test{};
  std::array<QPushButton*, 2> Command5{};  // Salva, Annulla Modifiche
  std::array<QLabel*, 16> Text1{};         // food names
  std::array<QLabel*, 16> Text2{};         // grams
  QPushButton *Command1{}, *Command3{};    // one gram more, one less
  std::array<QLineEdit*, 24> Text4{};      // kcal and percent: ideal, elaborated, meal
  Valore Labindex, Labdieta, Labgiorno, Labpasto;
  QProgressBar* ProgressBar1{};
  QLabel *Picmemo{}, *Label1{};
  QTimer* Timer1{};

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void disegna();                 // formelabora_aspetto.cpp
  QWidget* disegna_scelte();      // formelabora_aspetto.cpp
  QWidget* disegna_alimenti();    // formelabora_aspetto.cpp
  QWidget* disegna_valori();      // formelabora_aspetto.cpp
  void colora_righe(int scelta);  // formelabora_aspetto.cpp
  void collega_regole();
  void scegli_settimana();
  int giorno_scelto() const;
  void scegli_giorno();
  void scegli_alimento(int riga);
  void elabora();
  void termina_elaborazione(bool intera);
  void un_grammo(int passo);
  QLabel* grammi_scelti() const;
  void svuota_risultati();
  void scrivi_totali_giorno(const Totali& t);
  void scrivi_ideali(int giorno);
  void scrivi_totali_pasto(const Totali& t);
  void salva_dieta();
  void carica_dieta();
  Tramite tramite();
};
