// A value without a face: a text with change rules, and no widget.
#pragma once

#include <QString>
#include <functional>
#include <vector>

class Valore {
 public:
  Valore() = default;
  explicit Valore(QString testo) : testo_(std::move(testo)) {}
  Valore(const Valore&) = delete;
  Valore& operator=(const Valore&) = delete;

  [[nodiscard]] const QString& text() const { return testo_; }

  /// Writes the text and runs the change rules; the text that is already there fires nothing.
  void setText(const QString& testo) {
    if (testo == testo_) return;
    testo_ = testo;
    for (const auto& regola : regole_) regola();
  }

  void al_cambio(std::function<void()> regola) { regole_.push_back(std::move(regola)); }

 private:
  QString testo_;
  std::vector<std::function<void()>> regole_;
};
