// The address book: people by letter, and the one that is being written.
#pragma once

#include "office/rubrica.h"

#include <QFrame>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStackedWidget>
#include <QStringListModel>
#include <QTabBar>
#include <QTabWidget>

class Formrubrica : public QWidget {
 public:
  Formrubrica();
  void al_caricamento();
  void all_attivazione() {}
  void alla_chiusura() {}

  /// Lists the people whose surname begins with the letter.
  void filtra_rubrica(QChar lettera);

  QTabBar* SSTab2{};
  QStringListModel Data1;
  QListView* DBList1{};
  QPushButton *Command1{}, *Command2{}, *Command6{}, *Command7{};

  QFrame* Frame1{};
  QLineEdit *Text1{}, *Text2{};  // nome, cognome
  QTabWidget* SSTab1{};
  QLineEdit *Text3{}, *Text4{}, *Text5{}, *Text6{}, *Text7{};
  QLineEdit *Text10{}, *Text11{}, *Text12{}, *Text13{}, *Text14{};
  QLineEdit *Text15{}, *Text16{}, *Text17{}, *Text18{}, *Text19{};
  QLineEdit *Text20{}, *Text21{}, *Text22{}, *Text23{}, *Text26{};
  QLineEdit *Text27{}, *Text28{}, *Text29{}, *Text30{}, *Text31{};
  QPushButton *Command5{}, *Command4{}, *Command3{};  // one a tab

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  // formrubrica_aspetto.cpp
  void disegna();
  QWidget* disegna_elenco();
  QWidget* disegna_dettaglio();
  QWidget* disegna_scheda(std::size_t scheda);

  void collega_regole();
  void nuovo();
  void richiama();
  void elimina();
  void salva();
  /// False where the person lacks a row: nothing is written, what was typed stays on the screen.
  [[nodiscard]] bool registra();
  void mostra_dettaglio(const Persona& persona, std::optional<qint64> id);
  void torna_all_elenco();
  [[nodiscard]] const Nominativo* scelto() const;
  [[nodiscard]] Persona scritta() const;

  std::optional<Archivio> rubrica_;
  std::vector<Nominativo> elenco_;
  QStackedWidget* viste_{};
  std::array<QList<QLineEdit*>, schede> caselle_;  // in the order of the fields
  QChar lettera_ = u'a';                           // the last one listed
  std::optional<qint64> in_modifica_;              // none while the person is new
};
