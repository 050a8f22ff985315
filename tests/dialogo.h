// The user's part in a test: message boxes answered in order, errors collected, lists chosen from.
#pragma once

#include "attrezzi.h"
#include "base/errori.h"
#include "core/errore_non_gestito.h"
#include "core/messaggi.h"

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <deque>
#include <optional>
#include <span>
#include <vector>

/// A box that must come: its words, its title, and the answer to it.
struct Atteso {
  QString testo;
  QString titolo;
  bool risposta = true;
  std::optional<Icona> icona = {};  // not looked at where none is given
};

/// The same question, answered Yes.
inline Atteso con_un_si(Atteso a) {
  a.risposta = true;
  return a;
}

/// Expected boxes in order; an unexpected one fails the test at once, one that does not come fails it at the end.
class Dialogo {
 public:
  explicit Dialogo(std::deque<Atteso> attesi = {}) : attesi_(std::move(attesi)) {
    prima_ = parla_con([this](const Riquadro& r) { return rispondi(r); });
  }
  ~Dialogo() {
    parla_con(prima_);
    for (const Atteso& a : attesi_) ADD_FAILURE() << "box that did not come: " << a.testo.toStdString();
  }
  Dialogo(const Dialogo&) = delete;
  Dialogo& operator=(const Dialogo&) = delete;

  void attendi(const Atteso& a) { attesi_.push_back(a); }
  [[nodiscard]] bool finito() const { return attesi_.empty(); }

 private:
  bool rispondi(const Riquadro& r) {
    if (attesi_.empty() || attesi_.front().testo != r.testo || attesi_.front().titolo != r.titolo ||
        attesi_.front().icona.value_or(r.icona) != r.icona) {
      ADD_FAILURE() << "unexpected box: " << r.titolo.toStdString() << " | " << r.testo.toStdString();
      return false;
    }
    const bool risposta = attesi_.front().risposta;
    attesi_.pop_front();
    return risposta;
  }
  std::deque<Atteso> attesi_;
  Interlocutore prima_;
};

/// The errors that no rule caught, which would have ended the program.
class Fallimenti {
 public:
  Fallimenti() {
    prima_ = gestisci_errori_con([this](const std::exception& e) {
      const auto* errore = dynamic_cast<const Errore*>(&e);
      numeri.push_back(errore ? errore->numero : -1);
      testi += QString::fromUtf8(e.what());
    });
  }
  ~Fallimenti() { gestisci_errori_con(prima_); }
  Fallimenti(const Fallimenti&) = delete;
  Fallimenti& operator=(const Fallimenti&) = delete;

  std::vector<int> numeri;
  QStringList testi;

 private:
  Gestore prima_;
};

/// The texts of some boxes, a sign between.
template <class Campi>
QString testi(const Campi& campi, const QString& tra = QStringLiteral(" ")) {
  QStringList t;
  for (const auto* c : campi) t << c->text();
  return t.join(tra);
}

/// Types a text in place of what stands in a box.
inline void riscrivi(QLineEdit* campo, const QString& tasti) {
  campo->clear();
  QTest::keyClicks(campo, tasti);
}

inline void clic(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }

/// Clicks on a cell of a grid or a line of a list.
inline void clic(QAbstractItemView* vista, int riga, int colonna = 0) {
  const QModelIndex dove = vista->model()->index(riga, colonna);
  vista->scrollTo(dove);
  QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, vista->visualRect(dove).center());
}

/// Chooses a line of a list as the user does: opens it, goes to the line, confirms.
inline void scegli(QComboBox* lista, int riga) {
  QTest::keyClick(lista, Qt::Key_F4);
  lista->view()->setCurrentIndex(lista->model()->index(riga, 0));
  QTest::keyClick(lista->view(), Qt::Key_Return);
}
