// The pointer of a program at work, and of one that waits for its user in the midst of it.
#pragma once

#include <QCursor>
#include <QGuiApplication>

/// A pointer over all windows as long as it lives.
class Puntatore {
 public:
  explicit Puntatore(Qt::CursorShape forma) { QGuiApplication::setOverrideCursor(forma); }
  ~Puntatore() { QGuiApplication::restoreOverrideCursor(); }
  Puntatore(const Puntatore&) = delete;
  Puntatore& operator=(const Puntatore&) = delete;
};

struct Attesa : Puntatore {
  Attesa() : Puntatore(Qt::WaitCursor) {}
};

struct Ascolto : Puntatore {
  Ascolto() : Puntatore(Qt::ArrowCursor) {}
};
