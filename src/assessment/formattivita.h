// Stage 1: the sport of each day of the week on top of the ration, and the rhythm of the meals.
#pragma once

#include "core/valore.h"

#include <QChartView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QWidget>
#include <array>

class QBarSet;
class QGridLayout;
class QValueAxis;

class Formattività : public QWidget {
 public:
  Formattività();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  /// Draws the percentages in use in the order of the day.
  void disegna_ritmo();
  /// Fills the percentages in use and those of the food diary; a table without a row leaves them.
  void carica_consumi();
  /// Replaces the stored percentages by those in use. Throws Errore 6 for one beyond 16 bits.
  void salva_perc_consumi() const;
  /// Moves the difference to 100 to lunch or dinner after a meal went up ("+") or down ("-"); `di_pranzo` tells that
  /// lunch is the meal. Throws Errore 6 beyond 16 bits.
  void ribilancia(QChar segno, bool di_pranzo);

  QComboBox* Combo13{};     // activity
  QLabel* Immaginesport{};  // its picture

  // The week, Monday to Sunday, kcal
  std::array<QLineEdit*, 7> TxtAttività{};                // position of the day's activity, -1 for none; never shown
  std::array<QComboBox*, 7> Combo14{};                    // minutes
  std::array<QLineEdit*, 7> Text15{}, Text1{}, Text14{};  // activity, ration, their sum
  std::array<QLineEdit*, 7> Text2{}, Text3{}, Text4{};    // protein, fat, carbohydrate

  /// Percent of the day's energy. In use: 0 breakfast, 1 lunch, 2 afternoon snack, 3 dinner, 4 morning snack; from the
  /// food diary the same meals from 9 down to 5.
  std::array<QLineEdit*, 10> Txt{};
  std::array<QPushButton*, 5> CmdUP{}, CmdDOWN{};
  std::array<QPushButton*, 2> CmdUtilizza{};  // those of the diary, the defaults
  QChartView* MSChart1{};

  Valore LabPROT, LabLIP;  // percent of protein and fat in the ration

 private:
  // formattivita_aspetto.cpp
  void disegna();
  QWidget* disegna_settimana();
  void disegna_giorni(QGridLayout& griglia);
  void disegna_minuti(QGridLayout& griglia, std::size_t giorno);
  QWidget* disegna_in_uso();
  QWidget* disegna_dal_diario();
  QWidget* disegna_grafico();
  void colora_cena(bool positiva);

  void collega_regole();
  void prendi_razione();
  void scegli_minuti(std::size_t giorno);
  void applica_attività(std::size_t giorno);
  void ripartisci_giorno(std::size_t giorno);
  void cambia_percentuale(std::size_t pasto);
  void un_punto(std::size_t pasto, int passo);

  QBarSet* ritmo_{};
  QValueAxis* scala_{};
};

/// The picture of the activity at a position of the list; null where there is none. The pictures come with the program
/// as `:/attivita/NAME.svg`, NAME being that of the activity's file without its ending ("Judo", "danza1").
[[nodiscard]] QPixmap immagine_attività(int indice);
