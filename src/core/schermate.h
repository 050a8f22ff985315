// The screens of the program: one instance each, loaded on first touch, closed with its own closing rule.
#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QWidget>
#include <concepts>
#include <functional>
#include <memory>

/// A screen is a widget with three rules of its own; no base class is needed. `alla_disattivazione` is a fourth, for
/// screens that have something to do when another child takes their place in front.
template <class S>
concept Schermata = std::derived_from<S, QWidget> && std::default_initializable<S> && requires(S& s) {
  s.al_caricamento();
  s.all_attivazione();
  s.alla_chiusura();
};

/// A dialog or the main window stands by itself; every other screen is a child of the main window.
template <class S>
concept Indipendente = std::derived_from<S, QDialog> || std::derived_from<S, QMainWindow>;

/// What the main window raises on a child: each time it comes in front, each time it leaves it.
struct RegoleFiglia {
  std::function<void()> attivazione;
  std::function<void()> disattivazione;
};

/// Who takes the children in. `accogli` gives one its place, unseen; `ospita` shows it and brings it in front,
/// `congeda` lets it go.
struct Ospite {
  std::function<void(QWidget&)> accogli;
  std::function<void(QWidget&, const RegoleFiglia&)> ospita;
  std::function<void(QWidget&)> congeda;
};

/// The host of the children; without one a child is a window of its own. Returns the former host.
Ospite ospita_con(Ospite nuovo);

/// Gives a screen its place in the main window before it has any control, so that each is styled once and where it will
/// stand: a screen of fifty fields opens in half the time. The first thing that a child's constructor does.
void prendi_posto(QWidget& schermata);

/// Drops every screen without its closing rule, as the end of the program does.
void abbandona_schermate();

namespace dettaglio {

void ospita(QWidget& schermata, const RegoleFiglia& regole);
void congeda(QWidget& schermata);
void al_termine(std::function<void()> abbandono);

template <Schermata S>
std::unique_ptr<S>& posto() {
  static std::unique_ptr<S> p;
  static const bool noto = (al_termine([] {
                              if (p) congeda(*p);
                              p.reset();
                            }),
                            true);
  static_cast<void>(noto);
  return p;
}

template <Schermata S>
RegoleFiglia regole_di(S& s) {
  RegoleFiglia r{[&s] { s.all_attivazione(); }, {}};
  if constexpr (requires { s.alla_disattivazione(); }) r.disattivazione = [&s] { s.alla_disattivazione(); };
  return r;
}

}  // namespace dettaglio

/// The screen where it is loaded, null where it is closed.
template <Schermata S>
S* caricata() {
  return dettaglio::posto<S>().get();
}

/// The screen, loaded unseen where it is closed: touching a control of a closed screen loads it.
template <Schermata S>
S& schermata() {
  auto& p = dettaglio::posto<S>();
  if (!p) {
    p = std::make_unique<S>();  // in place before its loading rule runs: that rule may touch the screen itself
    p->al_caricamento();
  }
  return *p;
}

/// Loads the screen where it is closed, shows it and brings it in front.
template <Schermata S>
void mostra() {
  S& s = schermata<S>();
  if constexpr (Indipendente<S>) {
    s.show();
    s.all_attivazione();
  } else {
    dettaglio::ospita(s, dettaglio::regole_di(s));
  }
}

namespace dettaglio {
/// Lets the one instance go; the widget itself goes when the event at hand is over.
template <Schermata S>
void lascia(S& s) {
  congeda(s);
  posto<S>().release()->deleteLater();
}
}  // namespace dettaglio

/// Closes the screen where it is loaded: its closing rule runs while its controls still hold their values. The widget
/// itself goes when the event at hand is over, so that a screen may be closed by one of its own buttons.
template <Schermata S>
void scarica() {
  if (auto* s = caricata<S>()) {
    s->alla_chiusura();
    dettaglio::lascia(*s);
  }
}

/// A screen that is read for a moment: where it was closed it goes again without its closing rule, so that the reading
/// neither stores anything nor leaves a screen behind that grows old unseen.
template <Schermata S>
class InLettura {
 public:
  InLettura() : era_chiusa_(!caricata<S>()), letta_(schermata<S>()) {}
  ~InLettura() {
    if (era_chiusa_) dettaglio::lascia(letta_);
  }
  InLettura(const InLettura&) = delete;
  InLettura& operator=(const InLettura&) = delete;

  S* operator->() const { return &letta_; }
  S& operator*() const { return letta_; }

 private:
  bool era_chiusa_;
  S& letta_;
};
