// Stage 9: what the client eats now, food by food and meal by meal, with what it adds up to.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <array>
#include <cstdint>

class Formdiario : public QWidget {
 public:
  Formdiario();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  /// The code of the chosen family, 0 where none is chosen.
  [[nodiscard]] std::int16_t trova_cod1() const;
  /// Energy and nutrients of a meal, 0 to 4, from what is stored. A meal beyond all measure keeps its former figures.
  void calcola_totali_nutrienti(int pasto);
  /// The client's supplements in the list; where there is none, the window that takes them.
  void mostra_integratori();
  /// Lists the supplements again, where their group is chosen.
  void aggiorna_integratori();

  QListWidget *ListPASTI{}, *ListGRUPPI{}, *ListAlimenti{};
  QTableWidget* MSFlex1{};  // cod1 to cod4, food, grams, kcal, protein, fat, carbohydrate
  QComboBox* Combodose{};   // grams
  QPushButton* Command1{};
  std::array<QLineEdit*, 24> TxtLivelli{};  // carbohydrate, fat, protein in grams and kcal of each meal and of the day
  std::array<QLineEdit*, 5> TxtRAG{};       // percent of the day's energy in each meal

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void disegna();              // formdiario_aspetto.cpp
  QWidget* disegna_scelte();   // formdiario_aspetto.cpp
  void disegna_griglia();      // formdiario_aspetto.cpp
  QWidget* disegna_livelli();  // formdiario_aspetto.cpp
  QWidget* disegna_ritmo();    // formdiario_aspetto.cpp
  void collega_regole();
  void scegli_pasto();
  void scegli_gruppo();
  void scegli_famiglia();
  void riempi_griglia();
  void mostra_dosi();
  void azzera_liste();
  void apri_dose(int riga);
  void posa_dose();
  void chiudi_dose();
  void prendi_dose();
  void salva_scelte();
  void somma_giorno();
  void calcola_ritmo();
  bool tasto_su_dose(int tasto, const QString& testo);
};

/// Stores the shares of the meals, all five or none.
void salva_diario();
