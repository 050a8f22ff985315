// The two grids of the preference screen: foods with their marks, and the list of what is chosen.
#pragma once

#include "diet/preferenze.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QStyledItemDelegate>
#include <QTableView>

/// Columns of the grid of foods; codes and companion lists are not shown.
namespace colonna_di {
enum : int { cod1, cod2, cod3, cod4, nome, calorie, ok, lv, sd, abb_ok, abb_lv, abb_sd, quante };
}

/// The mark of a column, none for the columns that carry none.
[[nodiscard]] std::optional<Segno> segno_di_colonna(int colonna);

/// The mark's picture: the file beside the program, or a drawn tick where it is missing or unreadable.
[[nodiscard]] QIcon icona_spunta();

/// A row a food; a cell is marked when it holds a picture.
class ModelloScheda : public QAbstractTableModel {
 public:
  explicit ModelloScheda(QObject* padre);
  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

  [[nodiscard]] const Scheda& scheda() const { return scheda_; }
  void riempi(Scheda scheda);
  /// Changes the rows' marks and lists and shows them.
  template <class F>
  void cambia(F&& mutamento) {
    mutamento(scheda_);
    if (!scheda_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }

 private:
  Scheda scheda_;
  QIcon spunta_ = icona_spunta();
};

/// A line a chosen food in the colour of its mark.
class ModelloScelti : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;
  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

  [[nodiscard]] const std::vector<Scelto>& scelti() const { return scelti_; }
  void riempi(std::vector<Scelto> scelti);

 private:
  std::vector<Scelto> scelti_;
};

/// Both grids with their models and visible columns.
[[nodiscard]] QTableView* griglia_alimenti(const QString& nome);
[[nodiscard]] QTableView* griglia_scelti(const QString& nome);
