// The archive: every client in a grid, one tab a letter, and the way into each.
#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>
#include <array>
#include <set>

class Formsched : public QWidget {
 public:
  Formsched();
  void al_caricamento() {}
  void all_attivazione();
  void alla_disattivazione();
  void alla_chiusura();

  /// Empties the grid and puts it out of use.
  void imposta_tabella();
  /// Adds a client's line, a text a column, and puts the grid in use.
  void aggiungi(const QStringList& testi);
  /// Recall and deletion are there where the list is not empty.
  void aggiorna_comandi_schedario();
  /// Orders the lines by surname, then by first name.
  void ordina();
  /// Notes a client whose file cannot be read; the box names each once while the archive stays in front.
  void segnala(const QString& cliente);
  void mostra_segnalati();

  /// The selected line, -1 where none is.
  [[nodiscard]] int riga_scelta() const;
  [[nodiscard]] QString testo(int riga, int colonna) const;
  /// Selects a whole line and brings it to the top.
  void scegli_riga(int riga);
  void togli_riga(int riga);

  QTabBar* SSTabschedario{};
  QTableWidget* Tabella{};  // cod, data_visita, cognome, nome, data_n, cod_fiscale
  QLineEdit* Txtcont{};
  std::array<QPushButton*, 4> Command10{};  // new, search, recall, close
  QPushButton* Cmddelete{};

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void disegna();              // formsched_aspetto.cpp
  QLayout* disegna_comandi();  // formsched_aspetto.cpp
  void collega_regole();
  void cambia_scheda();
  void conta();

  QStringList da_segnalare_;
  std::set<QString> segnalati_;
};
