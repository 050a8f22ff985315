// Stage 10: up to seven visits side by side, thirteen measures each, a note a visit, and a chart of any one measure.
#pragma once

#include <QButtonGroup>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>
#include <cstdint>

inline constexpr std::size_t visite = 7, misure_di_visita = 13;

class Formtratta : public QWidget {
 public:
  /// One box a visit.
  using Serie = std::array<QLineEdit*, visite>;

  Formtratta();
  void al_caricamento();
  void all_attivazione();
  void alla_disattivazione();
  void alla_chiusura();

  /// Shows a measure, 0 to 12, across the visits as a chart, 0 of a line or 1 of bars. Throws Errore 6 for a value
  /// beyond 16 bits.
  void grafico_trattamento(std::int16_t misura, std::int16_t tipo);

  Serie Text24{}, Text22{};                                // dates, notes
  Serie Text37{};                                          // weight, kg
  Serie Text25{}, Text26{}, Text27{}, Text28{}, Text29{};  // waist, hips, abdomen, two named by the user; cm
  Serie Text30{}, Text31{}, Text32{}, Text33{};  // biceps, triceps, below the shoulder blade, above the hip; mm
  Serie Text34{}, Text35{}, Text36{};            // lean, fat, water; per cent
  std::array<QLineEdit*, 2> txtCirco{};          // names of the two free circumferences
  std::array<QRadioButton*, misure_di_visita> Option3{};  // measure of the chart
  std::array<QRadioButton*, 2> Option4{};                 // line, bars
  QPushButton* Command10{};
  std::array<QPushButton*, visite> Command13{};  // notes on Text22

 private:
  // formtratta_aspetto.cpp
  void disegna();
  QWidget* disegna_rilevamenti();
  void disegna_misura(QGridLayout& griglia, std::size_t misura, int fila);
  QLayout* disegna_grafico();

  void collega_regole();
  void chiedi_grafico();
  [[nodiscard]] QString nome_misura(std::size_t misura) const;
};

/// A row of measures in the order of `Option3`.
struct Misura {
  Formtratta::Serie Formtratta::*serie;
  QStringView nome;
  QStringView scritta;  // empty where the user names it
};

inline constexpr std::array<Misura, misure_di_visita> misure{{
    {&Formtratta::Text37, u"Text37", u"Peso Kg"},
    {&Formtratta::Text25, u"Text25", u"vita"},
    {&Formtratta::Text26, u"Text26", u"fianchi"},
    {&Formtratta::Text27, u"Text27", u"addome"},
    {&Formtratta::Text28, u"Text28", u""},
    {&Formtratta::Text29, u"Text29", u""},
    {&Formtratta::Text30, u"Text30", u"bicipitale"},
    {&Formtratta::Text31, u"Text31", u"tricipitale"},
    {&Formtratta::Text32, u"Text32", u"sottoscapolare"},
    {&Formtratta::Text33, u"Text33", u"soprailiaca"},
    {&Formtratta::Text34, u"Text34", u"magro"},
    {&Formtratta::Text35, u"Text35", u"grasso"},
    {&Formtratta::Text36, u"Text36", u"acqua"},
}};
inline constexpr std::size_t prima_misura_libera = 4;
