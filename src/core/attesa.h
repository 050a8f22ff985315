// The pointer of a program at work.
#pragma once

#include <QCursor>
#include <QGuiApplication>

/// The busy pointer as long as it lives.
class Attesa {
 public:
  Attesa() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Attesa() { QGuiApplication::restoreOverrideCursor(); }
  Attesa(const Attesa&) = delete;
  Attesa& operator=(const Attesa&) = delete;
};
