// Stage 7: which foods the search may use at each meal, and which it must.
#pragma once

#include "core/valore.h"
#include "diet/formalimenti_griglia.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>

/// The boxes of a meal: `FrameCena`, `CheckCena_0` …, `CmdConfermaCena`.
struct RiquadroPasto {
  QGroupBox* Frame{};
  std::vector<QCheckBox*> Check;
  QPushButton* CmdConferma{};
};

class Formalimenti : public QWidget {
 public:
  Formalimenti();
  void al_caricamento();
  void all_attivazione();
  void alla_chiusura();

  /// Hides the boxes of all meals and the list of chosen foods.
  void azzera_frame();
  /// Accepts every food of the grid.
  void tutti_accettati();
  /// Puts what is stored of the meal on display into the grid and the boxes; what cannot be read is passed over.
  void richiama_spunte_alimenti();
  /// Stores the meal on display. Throws Errore.
  void salva_spunte_alimenti();
  /// Stores the two choices of the opening steps; nothing as long as no lunch is chosen. Throws Errore.
  void salva_tipo_pranzo();
  /// Fills the grid for a meal (0 to 6, by button). Throws Errore.
  void riempi_scheda(int sel);
  /// Fills the grid with the supplements; where there are none, opens their window.
  void mostra_integratori_dieta();

  QGroupBox *FrameSceltaFF{}, *FrameSceltaAlimenti{};  // steps 1 and 2
  std::array<QRadioButton*, 2> OptFF{}, OptAlim{};
  QPushButton *CmdContinuaFF{}, *CmdContinuaAlimenti{};
  QGroupBox* FramePulsantiPasti{};
  std::array<QPushButton*, 7> CmdPasto{};
  QTableView *MSFlex1{}, *MSFlex2{};        // foods with their marks, chosen foods
  std::array<RiquadroPasto, 7> riquadri{};  // in the order of insiemi_caselle()
  Valore LabSceltaFF, LabSceltaFFold;       // 1 fast-food lunch, 0 normal; as chosen, as the lists were stored
  Valore LabSceltaAlim;                     // 1 by hand, 0 automatic
  Valore LabATTUALE;                        // code of the meal on display, 1 to 7
  Valore contaFissiPranzoLV{QStringLiteral("0")},
      contaFissiPranzoSD{QStringLiteral("0")};  // 1: the one obligatory choice is taken
  Valore contaFissiCenaLV{QStringLiteral("0")}, contaFissiCenaSD{QStringLiteral("0")};
  Valore contaFissiIntegratoreLV{QStringLiteral("0")}, contaFissiIntegratoreSD{QStringLiteral("0")};

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  // formalimenti_aspetto.cpp
  void disegna();
  QGroupBox* disegna_passo_pranzo();
  QGroupBox* disegna_passo_scelta();
  QGroupBox* disegna_pasti();
  QWidget* disegna_caselle();
  void mostra_pasti();
  void colora_pulsanti(std::size_t scelto);

  void collega_regole();
  void continua_dal_pranzo();
  void continua_dalla_scelta();
  void scegli_pasto(std::size_t quale);
  void applica_caselle(std::size_t insieme);
  void conferma();
  void tocca(int riga, int colonna);
  void imposta_segno(std::size_t riga, Segno segno);
  void togli_segno(std::size_t riga, Segno segno);
  Valore* contatore(Segno segno);
  void riempi_scelti();
  void richiama_check();
  void richiama_righe();
  void richiama_integratori();
  void apri_integratori(const QStringList& valori);
  void rinfresca_integratori();
  void leggi_tipo_pranzo();

  [[nodiscard]] bool fast_food() const { return LabSceltaFF.text() == u"1"; }
  [[nodiscard]] int sel() const;
  [[nodiscard]] const Scheda& scheda() const { return modello_->scheda(); }
  [[nodiscard]] bool griglia_piena() const { return !scheda().empty(); }

  QWidget* destra_{};            // where boxes and list of chosen foods stand
  QLabel* guida_integratori_{};  // stands there with the supplements
  ModelloScheda* modello_{};
  ModelloScelti* scelti_{};
};
