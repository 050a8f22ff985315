#include "core/filtri.h"

#include "base/date.h"
#include "core/regole.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <functional>
#include <limits>

namespace {

/// What a typed character becomes in a field; a null character where it is cancelled.
using Regola = std::function<QChar(const QLineEdit&, QChar)>;

/// The characters a key would type, a control key by its code; empty for keys that move, erase or give commands.
QString battuti(const QKeyEvent& e) {
  const bool comando = e.key() >= Qt::Key_Escape && e.key() != Qt::Key_unknown;
  const bool ctrl = e.modifiers() & Qt::ControlModifier, alt = e.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
  if (comando || (alt && !ctrl)) return {};
  if (ctrl && !alt && e.key() >= Qt::Key_A && e.key() <= Qt::Key_Z) return QChar(e.key() - Qt::Key_A + 1);
  return e.text();
}

class Filtro : public QObject {
 public:
  Filtro(QLineEdit* campo, Regola regola) : QObject(campo), campo_(campo), regola_(std::move(regola)) {
    campo->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::KeyPress) {
      return prendi(battuti(*static_cast<QKeyEvent*>(evento)));
    }
    // Accents typed in two strokes come this way.
    return evento->type() == QEvent::InputMethod && prendi(static_cast<QInputMethodEvent*>(evento)->commitString());
  }

 private:
  /// Types what is left of the characters; false where they pass as they are.
  bool prendi(const QString& caratteri) {
    QString restano;
    for (const QChar c : caratteri) {
      if (const QChar r = regola_(*campo_, c); !r.isNull()) restano += r;
    }
    if (restano == caratteri) return false;
    if (!restano.isEmpty() && !campo_->isReadOnly()) campo_->insert(restano);
    return true;
  }

  QLineEdit* campo_;
  Regola regola_;
};

constexpr QChar copia(3);  // code of the copy key

bool cifra(QChar c) { return c >= u'0' && c <= u'9'; }

}  // namespace

void solo_cifre(QLineEdit* campo) { solo_cifre(campo, std::numeric_limits<int>::max()); }

void solo_cifre(QLineEdit* campo, int cifre) {
  new Filtro(campo, [cifre](const QLineEdit& c, QChar battuto) {
    return cifra(battuto) && c.text().size() < cifre ? battuto : QChar();
  });
}

void filtro_data(QLineEdit* campo) {
  new Filtro(campo, [](const QLineEdit&, QChar battuto) {
    return battuto == u'-' || battuto == u'.' ? QChar(u'/') : battuto;
  });
}

void filtro_nome(QLineEdit* campo) {
  new Filtro(campo, [](const QLineEdit&, QChar battuto) {
    const QChar c = battuto.toUpper();
    const bool resta = c == copia || (c >= u'A' && c <= u'Z') || (c >= u'1' && c <= u'9') || c == u' ';
    return resta ? c : QChar();
  });
}

void data_breve_in_uscita(QLineEdit* campo) {
  all_uscita(campo, [campo] {
    if (const QDate giorno = data_di(campo->text()); giorno.isValid()) campo->setText(data_breve(giorno));
  });
}
