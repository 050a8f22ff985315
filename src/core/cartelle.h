// A list of folders to walk: the way from the root, and below the open folder what it holds.
#pragma once

#include <QListWidget>
#include <QString>
#include <functional>
#include <vector>

/// A place where folders are: a mounted volume, or the user's home.
struct Unita {
  QString scritta;
  QString radice;
};

/// The home folder first, then the mounted volumes.
[[nodiscard]] std::vector<Unita> unita();

class Cartelle : public QListWidget {
 public:
  Cartelle();

  [[nodiscard]] const QString& cartella() const { return cartella_; }
  /// Opens a folder; false, and nothing changes, where it cannot be read.
  bool vai(const QString& cartella);
  /// Called each time another folder stands open.
  void al_cambio(std::function<void()> regola) { regola_ = std::move(regola); }

 private:
  void elenca();

  QString cartella_;
  std::function<void()> regola_;
};
