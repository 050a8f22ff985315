// The main window: menus, stage toolbar, banner of the open client, the screens, session and moving buttons.
#pragma once

#include "core/schermate.h"
#include "core/valore.h"

#include <QAction>
#include <QFrame>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <array>
#include <map>

class Mdiorza : public QMainWindow {
 public:
  Mdiorza();
  ~Mdiorza() override;
  void al_caricamento();
  void all_attivazione() {}
  void alla_chiusura() {}

  /// Opens the help document of the stage in front with the application associated with its type.
  void apriGuida();

  /// Asks, and on Yes deletes the working copy and ends the program; false on No.
  bool chiedi_uscita();

  /// Saving and moving on make sense only with a client who has a surname.
  void segui_cliente(bool aperto);

  /// Saves the stage in front and opens the popup of the reports.
  void apri_stampe();
  /// The entries of the popup that tell of the open client.
  void abilita_stampe(bool si);

  Valore qualeform;   // code of the stage in front, -1 between stages, empty before the first
  Valore LabPesoOld;  // kg, the weight as it stood in the client's file

  QAction *nc{}, *afc{}, *menuchiudi{}, *uscita{};
  QAction *menuag{}, *menurubr{}, *i_e{}, *impstamp{};
  QAction *menuaiuto{}, *menuinfo{}, *info{};
  std::array<QToolButton*, 16> cmdsopra{};
  QMenu* stampe{};

  QFrame* Statusbar{};
  QLineEdit *Txtcod{}, *Txtsoggetto{}, *Txtsesso{};
  QLineEdit *Txtetà{}, *Txtstatura{}, *Txtpeso{}, *Txtbmi{};  // years, cm, kg, kg/m²

  std::array<QPushButton*, 2> Command1{};  // Indietro, Avanti
  std::array<QPushButton*, 2> Command2{};  // Chiudi, Salva

 protected:
  void closeEvent(QCloseEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  // mdiorza_aspetto.cpp
  void disegna();
  void disegna_menu();
  void disegna_barra();
  void disegna_stampe();  // mdiorza_stampe.cpp
  QFrame* disegna_banner();
  QWidget* disegna_fondo();
  QMdiSubWindow* incornicia(QWidget& schermo);

  void collega_regole();
  void collega_menu();
  void collega_barra();
  void apri_documento(const QString& nome);

  void ospita(QWidget& schermo, const RegoleFiglia& regole);
  void congeda(QWidget& schermo);
  void porta_davanti(QWidget* schermo);
  void tieni_davanti();

  QMdiArea* area_{};
  std::map<QWidget*, RegoleFiglia> figlie_;
  QWidget* davanti_{};      // the child in front
  bool ospitando_ = false;  // a child comes or goes by our own hand
  QString guida_;           // the help document last shown
};
