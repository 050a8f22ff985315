#include "core/aspetto.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFont>
#include <QHash>
#include <QIcon>
#include <QStyle>
#include <QStyleFactory>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {
constexpr QColor inchiostro{0x1f, 0x2a, 0x30};
}

void imposta_aspetto(QApplication& app) {
  Q_INIT_RESOURCE(pictures);
  app.setStyle(QStyleFactory::create(u"Fusion"_s));
  QPalette colori = app.style()->standardPalette();
  for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    for (const auto gruppo : {QPalette::Active, QPalette::Inactive}) colori.setColor(gruppo, ruolo, inchiostro);
  }
  app.setPalette(colori);
  QFont carattere(u"Liberation Sans"_s);
  carattere.setPixelSize(11);
  app.setFont(carattere);
  QFile foglio(u":/pictures/orzaline.qss"_s);
  if (foglio.open(QIODevice::ReadOnly)) app.setStyleSheet(QString::fromUtf8(foglio.readAll()));
}

QIcon icona(const QString& nome) { return icona_del_file(u":/pictures/"_s + nome + u".svg"_s); }

QIcon icona_del_file(const QString& file) {
  static QHash<QString, QIcon> icone;
  QIcon& i = icone[file];
  if (i.isNull()) i = QIcon(file);
  return i;
}

Cornice cornice(const QString& titolo, QWidget* in) {
  auto* box = new QGroupBox(titolo, in);
  auto* griglia = new QGridLayout(box);
  griglia->setContentsMargins(8, 6, 8, 8);
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(3);
  return {box, griglia};
}

QLabel* etichetta_di(const QString& testo, QWidget* controllo) {
  auto* e = new QLabel(testo);
  e->setBuddy(controllo);
  controllo->setAccessibleName(testo);
  return e;
}

QLabel* riga(QGridLayout& griglia, int riga, const QString& etichetta, QWidget* controllo, int colonna) {
  QLabel* e = etichetta_di(etichetta, controllo);
  griglia.addWidget(e, riga, colonna - 1);
  griglia.addWidget(controllo, riga, colonna);
  return e;
}

namespace {

QLabel* con_ruolo(const QString& testo, const QString& ruolo) {
  auto* e = new QLabel(testo);
  e->setProperty("ruolo", ruolo);
  return e;
}

}  // namespace

QLabel* testa(const QString& testo) {
  QLabel* e = con_ruolo(testo, u"testa"_s);
  e->setAlignment(Qt::AlignCenter);
  return e;
}

QLabel* guida(const QString& testo) {
  QLabel* e = con_ruolo(testo, u"guida"_s);
  e->setWordWrap(true);
  return e;
}

QLineEdit* campo_numero(const QString& nome, const QString& suggerimento, int larghezza) {
  auto* c = nominato(new QLineEdit, nome, suggerimento);
  c->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  c->setFixedWidth(larghezza);
  return c;
}

QLineEdit* campo_calcolato(const QString& nome, int larghezza, Qt::Alignment verso) {
  QLineEdit* c = campo_numero(nome, {}, larghezza);
  c->setAlignment(verso | Qt::AlignVCenter);
  c->setReadOnly(true);
  c->setFocusPolicy(Qt::ClickFocus);
  return c;
}

QPushButton* pulsante(const QString& nome, const QString& scritta, const QString& suggerimento,
                      const QString& nome_icona) {
  auto* b = nominato(new QPushButton(scritta), nome, suggerimento);
  if (!nome_icona.isEmpty()) b->setIcon(icona(nome_icona));
  return b;
}

QPushButton* pulsantino(const QString& nome, const QString& segno, const QString& suggerimento) {
  QPushButton* b = pulsante(nome, segno, suggerimento);
  b->setProperty("ruolo", u"piccolo"_s);
  b->setFixedSize(21, 21);
  b->setAccessibleName(suggerimento);
  return b;
}

namespace {

/// As narrow as its place, whatever its lines say. Qt's own policy for that makes each drop-down list at once, which
/// takes nearly half of the time in which a screen of twenty lists opens.
class ListaStretta : public Lista {
 public:
  [[nodiscard]] QSize sizeHint() const override { return {larghezza, QComboBox::sizeHint().height()}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  static constexpr int larghezza = 68;
};

}  // namespace

void Lista::changeEvent(QEvent* evento) {
  if (evento->type() == QEvent::StyleChange && !isVisible()) return QWidget::changeEvent(evento);
  QComboBox::changeEvent(evento);
}

QComboBox* lista_fissa(QStringView voci) {
  auto* l = new ListaStretta;
  if (!voci.isEmpty()) l->addItems(voci.toString().split(u'|'));
  l->setCurrentIndex(-1);
  l->setMaxVisibleItems(14);
  return l;
}

void scrivi_da_capo(QLineEdit& campo, const QString& testo) {
  campo.setText(testo);
  campo.home(false);
}

QTabBar* lettere(const QString& nome) {
  auto* s = nominato(new QTabBar, nome, u"Iniziale del cognome"_s);
  s->setAccessibleName(s->toolTip());
  for (char16_t c = u'A'; c <= u'Z'; ++c) s->addTab(QString(c));
  s->setDrawBase(false);
  s->setExpanding(false);
  s->setUsesScrollButtons(false);
  s->setElideMode(Qt::ElideNone);
  s->setStyleSheet(u"QTabBar::tab { padding: 3px 7px; margin-right: 1px; min-width: 10px; }"_s);
  return s;
}

QHBoxLayout* barra(const QList<QWidget*>& a_sinistra, const QList<QWidget*>& a_destra) {
  auto* fila = new QHBoxLayout;
  fila->setSpacing(6);
  for (QWidget* w : a_sinistra) fila->addWidget(w);
  fila->addStretch();
  for (QWidget* w : a_destra) fila->addWidget(w);
  return fila;
}
