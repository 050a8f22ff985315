// Stage 5: four estimates of the energy requirement side by side, then the weight objective, the daily ration and the
// nutrient levels of the chosen one. Weight in kg, skinfolds in mm, energy in kcal a day.
#pragma once

#include "core/valore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QTimer>
#include <QToolButton>
#include <QWidget>
#include <array>
#include <cstdint>
#include <optional>

class Formpond : public QWidget {
 public:
  Formpond();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  // ---- first face: the four estimates (formpond.cpp)

  /// Fill the panels of the recommended intakes and of Harris-Benedict from the master data; they stay empty where one
  /// of the data is missing or leads beyond 16 bits.
  void riempi_larn();
  void riempi_hb();
  /// Fills the two columns of the skinfold panel but for their last row. An overflow leaves it where it stands.
  void calcola_plico();
  /// Starts the climb of the body mass index scale from its bottom.
  void avvia_scala();
  void mostra_scelta();
  /// Sets a method's label in bold and takes it from the others.
  void evidenzia_metodo(std::size_t metodo);

  /// Where a method, 0 to 3, has its daily consumption and its ideal weight.
  struct CampiMetodo {
    QLineEdit *consumo, *peso_ideale;
  };
  [[nodiscard]] CampiMetodo campi_metodo(std::size_t metodo) const;

  // ---- second face: objective (formpond_obiettivo.cpp)

  /// Takes the figures of a method and goes over to the second face. True where one of them is no number: then nothing
  /// more is to be done. Where one is 0 the face stays and the answer is false.
  [[nodiscard]] bool mostra_obiettivo(int metodo);
  /// The weight to reach proposed for the first phase. Throws Errore 13, 6.
  [[nodiscard]] double peso_fase1() const;
  /// Days, daily grams, energy and ration from the weight to reach; holds the ration at the safety level. An overflow
  /// ends it where it stands.
  void calcola_kcal();
  /// The objective after a change by hand: "sopra" for target or days, "sotto" for the ration. Ends as above.
  void ricalcola(QStringView direzione);
  /// Last step of the load.
  void riempi_di_là();
  void ferma_timer();
  void avviso_negativo();

  // ---- second face: nutrient levels (formpond_nutrienti.cpp)

  /// Grams per kilogram by age, then the variation by weight class, which adds up: only right after the first.
  void livello_eta();
  void livello_peso();
  /// The weight that grams per kilogram refer to; empty where a weight that it needs is missing.
  [[nodiscard]] std::optional<std::int16_t> peso_riferimento() const;

  // First face
  QGroupBox *Frame_larn{}, *Frame_hb{}, *Framebfa{}, *Frame_plico{}, *Frame_scelta{};
  std::array<QLineEdit*, 4> Text8{}, Text9{};  // L.A.R.N., present and ideal: weight, index, basal rate, requirement
  std::array<QLineEdit*, 4> Text3{}, Text4{};  // Harris-Benedict, the same rows
  std::array<QLineEdit*, 4> Text2{};  // body fat analyser: ideal weight, its index, present rate, ideal requirement
  std::array<QLineEdit*, 7> Text5{};  // four skinfolds, arm cm, muscle area cm², muscle state
  std::array<QLineEdit*, 5> Text7{}, Text6{};  // skinfolds, present and ideal: sum, weight, index, rate, requirement
  QComboBox* Combo1{};                         // stress
  QPushButton* Command2{};                     // explains the index
  std::array<QLineEdit*, 4> Text1{};           // names of the methods
  std::array<QToolButton*, 4> Image1{};        // their pictures
  QLabel* LabSCELTA{};

  // Scale of the body mass index, beside both faces
  QProgressBar* ProgressBar1{};
  std::array<QLabel*, 8> Picture1{};
  QTimer* Timer1{};

  // Second face: objective
  QGroupBox* Frame_obiettivo{};
  QLineEdit* txtpesoragg{};
  /// 0 consumption, 1 ration, 2 kcal a day to take away or add, 3 grams a day, 4 days, 5 whole kg to lose or gain.
  std::array<QLineEdit*, 6> Text10{};
  /// The labels of `Text10` by the same index; 0 is that of `txtpesoragg`, and there is no 1.
  std::array<QLabel*, 6> Label31{};
  QLabel *LabMETAB{}, *LabRAZ{};                      // labels of Text10 0 and 1
  std::array<QPushButton*, 3> CmdSU2{}, CmdGIU2{};    // weight to reach, days, ration
  QTimer *Timer2{}, *Timer3{}, *Timer4{}, *Timer5{};  // days up, days down, ration up, ration down
  QToolButton* Img_undo{};
  QLabel* LabTorna{};

  // Second face: nutrient levels
  QGroupBox *Frame_nutrienti{}, *Frame11{}, *Frame12{};
  QLineEdit *Txtprotg_Kg{}, *Txtlipg_Kg{};
  std::array<QLineEdit*, 3> Text13{}, Text11{}, Text12{};  // protein, fat, carbohydrate: grams, kcal, percent
  QLineEdit *Txtkcal{}, *Txtkcalperc{};
  std::array<QPushButton*, 2> CmdSU{}, CmdGIU{};  // protein, fat
  std::array<QCheckBox*, 6> Check4{};             // ages
  std::array<QRadioButton*, 8> Option2{};         // weight classes

  Valore Lab_scelta, Lab_metab, Lab_pesoid;      // chosen method, its consumption and its ideal weight
  Valore Lab_txtpesoragg, Lab_giornimodificati;  // stored target and days, while the weight is unchanged
  Valore LabPROT, LabLIP;                        // grams stored or set by hand

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  enum class Faccia { scelta, obiettivo };

  // formpond_aspetto.cpp
  void disegna();
  QWidget* disegna_scelta();
  QWidget* disegna_larn(QWidget* in);
  QWidget* disegna_hb(QWidget* in);
  QWidget* disegna_bfa(QWidget* in);
  QWidget* disegna_plico(QWidget* in);
  QWidget* disegna_metodi(QWidget* in);
  QWidget* disegna_scala(QWidget* in);
  QWidget* disegna_faccia_obiettivo();
  void disegna_frecce();
  QWidget* disegna_obiettivo(QWidget* in);
  QWidget* disegna_nutrienti(QWidget* in);
  void disegna_nutriente(QGridLayout& griglia, std::size_t indice);
  QWidget* disegna_livelli_eta(QWidget* in);
  QWidget* disegna_livelli_peso(QWidget* in);
  QWidget* disegna_ritorno(QWidget* in);
  /// Title, panels and guiding sentence of a face.
  void mostra_faccia(Faccia faccia);
  /// Marks a row of `Check4` or `Option2`, or takes its mark away.
  static void marca(QAbstractButton& riga, bool si);

  // formpond.cpp
  void collega_regole();
  void collega_pliche();
  void cambia_bfa(std::size_t riga);
  void lascia_plica(std::size_t riga);
  void cambia_plica(std::size_t riga);
  void somma_pliche();
  void calcola_ama();
  void classifica_muscolo();
  void applica_stress();
  void sali_scala();
  void apri_formbmi();

  // formpond_obiettivo.cpp
  void collega_obiettivo();  // pictures included
  void scegli_con_figura(int metodo);
  void scegli_con_invio(int metodo);  // the Enter key in Text1
  void cambia_metodo();
  void cambia_traguardo();
  void proponi_obiettivo();
  void avvisa_sicurezza();
  void sposta_traguardo(int kg);
  void sposta_giorni(int passo);
  void sposta_razione(int passo);

  // formpond_nutrienti.cpp
  void collega_nutrienti();
  /// Both levels anew, then the grams stored or set by hand.
  void deriva_livelli();
  void cambia_livello(std::size_t nutriente);
  void cambia_grammi();
  void cambia_kcal();
  void scrivi_percentuali(const char* forma);
  void sposta_protidi(int grammi);
  void sposta_lipidi(int grammi);

  QStackedLayout* facce_{};
  bool avvisato_ = false;  // the safety message has been shown
};
