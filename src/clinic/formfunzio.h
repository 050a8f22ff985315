// Stage 4: clinical notes, factors of cardiovascular risk, pressure, drugs, laboratory exams.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QWidget>
#include <array>

class QGridLayout;

class Formfunzio : public QWidget {
 public:
  Formfunzio();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  /// The grid and its two edit buttons make sense only with an exam in it.
  void abilita_esami();
  /// The six columns of a new exam, which becomes the current line.
  void aggiungi_esame(const QStringList& celle);
  /// The six columns of the current line, taken and given; nothing where there is none.
  [[nodiscard]] QStringList esame_scelto() const;
  void cambia_esame(const QStringList& celle);

  std::array<QLabel*, 8> Label1{};
  std::array<QLineEdit*, 8> Text1{};  // clinical notes
  std::array<QPushButton*, 8> Command1{};

  std::array<QLineEdit*, 4> TxtRischio{};    // waist, hips, their ratio, abdomen; cm
  std::array<QComboBox*, 3> ComboRischio{};  // overweight, high pressure, smoking
  QLabel *LabSOVRA{}, *LabBMI{};             // on one spot
  QLabel *LabRapporto{}, *LabAddome{};       // marks "+" and "-"
  std::array<QLabel*, 3> LabSituazioni{};
  QLineEdit *TxtIndici{}, *TxtLivello{};
  QTimer* Timer1{};

  std::array<QLineEdit*, 16> Text11{};  // four readings: date, highest, lowest (mmHg), rate (beats a minute)
  std::array<QLineEdit*, 29> Text19{};  // dates 0 to 8, drugs 10 to 18, doses a day 20 to 28; 9 and 19 are not there

  QTableWidget* MSFlex2{};
  std::array<QPushButton*, 3> Command6{};  // new, change, delete

 private:
  // formfunzio_aspetto.cpp
  void disegna();
  QWidget* disegna_anamnesi();
  QWidget* disegna_rischio();
  void disegna_situazioni(QGridLayout& griglia);
  QWidget* disegna_pressione();
  QWidget* disegna_farmaci();
  QWidget* disegna_esami();

  void collega_regole();
  void collega_rischio();
  void collega_date();
  void cambia_situazione(std::size_t quale);
  void segui_bmi();
  void conta_indici();
  void apri_esame(const QString& titolo, const QStringList& celle);
  void elimina_esame();
};
