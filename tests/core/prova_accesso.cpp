// Every screen by the keyboard alone: the Tab key is pressed until it comes round, and each control must have been
// reached, in reading order, seen to have the focus, and have a name and, a button, a hint.
#include "ambiente.h"
#include "assessment/formbmi.h"
#include "assessment/formpond.h"
#include "clinic/formesami.h"
#include "clinic/formfunzio.h"
#include "clinic/formgraficotratta.h"
#include "clinic/formtratta.h"
#include "core/formalert.h"
#include "core/formcost.h"
#include "core/formi_e.h"
#include "core/forminfo.h"
#include "core/formnote.h"
#include "core/formricerca.h"
#include "core/frmlogin.h"
#include "diary/formdiario.h"
#include "diary/formintegrat.h"
#include "diet/formalimenti.h"
#include "diet/formelabora.h"
#include "intake/formminori.h"
#include "intake/formtipolavoro.h"
#include "office/formagenda.h"
#include "office/formrubrica.h"
#include "reports/form_anteprima_diario.h"
#include "reports/formstampe.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QMdiSubWindow>

using namespace Qt::StringLiterals;

namespace {

template <class... C>
bool uno_di(const QWidget* w) {
  return (qobject_cast<const C*>(w) || ...);
}

/// A screen that stands behind the one in front is not to be worked with.
bool coperto(const QWidget* w) {
  while (w && !qobject_cast<const QMdiSubWindow*>(w)) w = w->parentWidget();
  return w && w != schermata<Mdiorza>().findChild<QMdiArea*>()->activeSubWindow();
}

/// What a user works with, as against the parts it is made of.
bool da_usare(const QWidget* w) {
  const QString nome = w->objectName();
  const bool parte = nome.isEmpty() || (nome.startsWith(u"qt_"_s) && nome != u"qt_calendar_calendarview"_s);
  if (parte || !w->isVisible() || !w->isEnabled() || w->testAttribute(Qt::WA_TransparentForMouseEvents)) return false;
  if (const auto* campo = qobject_cast<const QLineEdit*>(w)) return !campo->isReadOnly() && !coperto(w);
  return uno_di<QAbstractButton, QComboBox, QAbstractItemView, QAbstractSpinBox, QPlainTextEdit, QAbstractSlider,
                QTabBar>(w) &&
         !coperto(w);
}

QString etichetta(const QWidget* w) {
  for (const auto* e : w->window()->findChildren<QLabel*>()) {
    if (e->buddy() == w && e->isVisible()) return e->text();
  }
  return {};
}

QString nome_di(const QWidget* w) {
  if (!w->accessibleName().isEmpty()) return w->accessibleName();
  const auto* b = qobject_cast<const QAbstractButton*>(w);
  return b && b->text().size() > 1 ? b->text() : etichetta(w);
}

/// A caption that its place does not hold.
bool tagliato(const QWidget* w) {
  if (const auto* e = qobject_cast<const QLabel*>(w); e && !e->text().isEmpty()) {
    return e->wordWrap() ? e->heightForWidth(e->width()) > e->height() : e->sizeHint().width() > e->width();
  }
  const auto* b = qobject_cast<const QAbstractButton*>(w);
  return b && da_usare(b) && b->fontMetrics().size(0, b->text()).width() + 4 > b->width();
}

/// Of a choice among several the Tab key reaches the one that stands, the arrows the others.
bool raggiunto(const QWidget* w, const QList<QWidget*>& toccati) {
  const auto conta = [&](const QWidget* c) { return toccati.contains(c) || toccati.contains(c->focusProxy()); };
  const auto* scelta = qobject_cast<const QRadioButton*>(w);
  if (!scelta || conta(w)) return conta(w);
  const QList<QAbstractButton*> gruppo =
      scelta->group() ? scelta->group()->buttons() : scelta->parentWidget()->findChildren<QAbstractButton*>();
  return std::ranges::any_of(gruppo, [&](const auto* b) { return uno_di<QRadioButton>(b) && conta(b); });
}

/// The two at the height where their ways part: the controls themselves, or the frames that hold them.
std::pair<QRect, QRect> posti(QWidget* prima, QWidget* dopo) {
  QWidget *a = prima, *b = dopo;
  while (!a->parentWidget()->isAncestorOf(dopo)) a = a->parentWidget();
  while (!b->parentWidget()->isAncestorOf(prima)) b = b->parentWidget();
  return {{a->mapTo(a->window(), QPoint()), a->size()}, {b->mapTo(b->window(), QPoint()), b->size()}};
}

/// Backwards is to the left in the same row, or up within the same column.
bool all_indietro(QWidget* prima, QWidget* dopo) {
  const auto [a, b] = posti(prima, dopo);
  const bool a_sinistra = b.right() < a.left(), sopra = b.bottom() < a.top();
  const bool stessa_riga = std::abs(a.center().y() - b.center().y()) < std::min(a.height(), b.height()) / 2;
  return (a_sinistra && stessa_riga) || (sopra && b.left() <= a.right());
}

struct ProvaAccesso : Ambiente {
  Mdiorza& m = schermata<Mdiorza>();

  ProvaAccesso() {
    m.show();
    parla_con([](const Riquadro&) { return true; });
  }
  ~ProvaAccesso() override { parla_con({}); }

  static QString dove(const QWidget* w) {
    return u"%1 %2"_s.arg(QLatin1String(w->metaObject()->className()), w->objectName());
  }

  void rileva(const QString& schermo, const QString& che, const QWidget* w) {
    ADD_FAILURE() << schermo.toStdString() << ": " << che.toStdString() << ": " << dove(w).toStdString();
  }

  /// The Tab key walks the parts of a date before it leaves it.
  static QWidget* tab(QWidget* qui) {
    for (int parte = 0; parte < 3 && QApplication::focusWidget() == qui; ++parte) QTest::keyClick(qui, Qt::Key_Tab);
    return QApplication::focusWidget();
  }

  /// Presses the Tab key from where the focus stands until it has come round.
  QList<QWidget*> percorri(QWidget& finestra, const QString& schermo) {
    QList<QWidget*> toccati;
    for (QWidget *qui = QApplication::focusWidget(), *dopo = nullptr; finestra.isAncestorOf(qui); qui = dopo) {
      toccati << qui;
      const QRect suo(qui->mapTo(&finestra, QPoint()), qui->size());
      const QImage col_fuoco = finestra.grab(suo).toImage();
      dopo = tab(qui);
      if (dopo != qui && qui->isVisible() && col_fuoco == finestra.grab(suo).toImage()) {
        rileva(schermo, u"its focus is not seen"_s, qui);
      }
      if (!toccati.contains(dopo)) continue;
      if (dopo != toccati.first()) rileva(schermo, u"the Tab key never leaves"_s, dopo);
      break;
    }
    return toccati;
  }

  void esamina(QWidget& finestra, const QString& schermo) {
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra)) << schermo.toStdString();
    if (&finestra == &m) m.cmdsopra[0]->setFocus();
    if (!finestra.isAncestorOf(QApplication::focusWidget())) QTest::keyClick(&finestra, Qt::Key_Tab);
    const QList<QWidget*> toccati = percorri(finestra, schermo);
    for (qsizetype i = 1; i < toccati.size(); ++i) {
      if (all_indietro(toccati[i - 1], toccati[i])) {
        rileva(schermo, u"the Tab key goes back, from %1 to"_s.arg(dove(toccati[i - 1])), toccati[i]);
      }
    }
    std::map<QString, const QWidget*> nomi;
    for (const auto* w : finestra.findChildren<QWidget*>()) {
      if (w->isVisible() && !coperto(w) && tagliato(w)) rileva(schermo, u"its caption is cut"_s, w);
      if (!da_usare(w)) continue;
      if (!raggiunto(w, toccati)) rileva(schermo, u"the keyboard does not reach"_s, w);
      const QString nome = nome_di(w);
      if (nome.isEmpty()) rileva(schermo, u"no name"_s, w);
      if (uno_di<QPushButton, QToolButton>(w)) {
        if (w->toolTip().isEmpty()) rileva(schermo, u"no hint"_s, w);
      } else if (!nomi.emplace(nome, w).second) {
        rileva(schermo, u"named like another, "_s + nome, w);
      }
    }
  }
  template <class S>
  void esamina_finestra() {
    mostra<S>();
    esamina(*caricata<S>(), caricata<S>()->objectName());
    scarica<S>();
  }
};

}  // namespace

TEST_F(ProvaAccesso, TheStages) {
  ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
  for (const std::size_t stadio : {1U, 2U, 8U, 3U, 7U, 15U, 4U, 5U, 6U}) {
    m.cmdsopra[stadio]->click();
    esamina(m, m.cmdsopra[stadio]->toolTip());
  }
}

TEST_F(ProvaAccesso, TheOtherFacesOfTheStages) {
  ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
  m.cmdsopra[3]->click();
  QTest::keyClick(schermata<Formpond>().Text1[0], Qt::Key_Return);
  esamina(m, u"objective"_s);
  m.cmdsopra[4]->click();
  auto& f = schermata<Formalimenti>();
  f.OptFF[0]->click();
  f.CmdContinuaFF->click();
  if (f.FrameSceltaAlimenti->isVisible()) {
    esamina(m, u"choice of the foods, step 2"_s);
    f.OptAlim[1]->click();
    f.CmdContinuaAlimenti->click();
  }
  f.CmdPasto[3]->click();
  esamina(m, u"foods of the lunch"_s);
  f.riquadri[2].CmdConferma->click();
  esamina(m, u"foods chosen for the lunch"_s);
}

TEST_F(ProvaAccesso, TheOffice) {
  registra(cliente("1300_bianchi"));
  m.cmdsopra[0]->click();
  esamina(m, u"Formsched"_s);
  m.cmdsopra[9]->click();
  esamina(m, u"Formi_e"_s);
  m.cmdsopra[11]->click();
  esamina(m, u"Formagenda"_s);
  schermata<Formagenda>().Command1->click();
  m.cmdsopra[12]->click();  // over the archive and the transfer, which stay open
  auto& r = schermata<Formrubrica>();
  esamina(m, u"Formrubrica"_s);
  r.Command1->click();
  for (int scheda = 0; scheda < r.SSTab1->count(); ++scheda) {
    r.SSTab1->setCurrentIndex(scheda);
    esamina(m, r.SSTab1->tabText(scheda));
  }
}

TEST_F(ProvaAccesso, TheWindows) {
  {
    FormAlert avviso(&m);
    avviso.show();
    esamina(avviso, u"FormAlert"_s);
  }
  esamina_finestra<frmLogin>();
  esamina_finestra<Forminfo>();
  esamina_finestra<Formcost>();
  esamina_finestra<Formbmi>();
  esamina_finestra<Formminori>();
  esamina_finestra<Formtipolavoro>();
  ASSERT_TRUE(richiama(registra(cliente("1300_bianchi"))));
  esamina_finestra<Formesami>();
  esamina_finestra<Formricerca>();
  esamina_finestra<Form_anteprima_diario>();
  schermata<Formgraficotratta>().riempi(u"Peso"_s, std::vector<PuntoGrafico>{{u"1"_s, 70}, {u"2"_s, 68}},
                                        TipoGrafico::linea);
  esamina_finestra<Formgraficotratta>();
  apri_note(u"Categoria"_s, u"Chi"_s, u"1"_s, u"0"_s, u"testo"_s, u"motivo"_s);
  esamina(*caricata<Formnote>(), u"Formnote"_s);
  scarica<Formnote>();
  apri_integratore(u"1"_s, {});
  esamina(*caricata<Formintegrat>(), u"Formintegrat"_s);
  scarica<Formintegrat>();
  apri_stampa(u"21"_s, u"v"_s);
  esamina(m, u"Formstampe"_s);
}

TEST_F(ProvaAccesso, KeysDoWhatTheMouseDoes) {
  ASSERT_TRUE(scegli_cliente(registra(cliente("1300_bianchi"))));
  QTest::keyClick(schermata<Formsched>().Tabella, Qt::Key_Return);
  ASSERT_EQ(m.qualeform.text(), u"0"_s) << "the line of the archive is recalled";
  m.cmdsopra[3]->click();
  QTest::keyClick(schermata<Formpond>().Image1[0], Qt::Key_Space);
  EXPECT_TRUE(schermata<Formpond>().Frame_obiettivo->isVisible()) << "the picture chooses its method";
  m.cmdsopra[12]->click();
  auto& r = schermata<Formrubrica>();
  r.Command1->click();
  r.Text1->setText(u"Elena"_s);
  r.Text2->setText(u"Abate"_s);
  r.Command5->click();
  r.DBList1->setCurrentIndex(r.Data1.index(0));
  QTest::keyClick(r.DBList1, Qt::Key_Return);
  EXPECT_EQ(r.Text2->text(), u"Abate"_s);
  EXPECT_TRUE(r.Frame1->isVisible()) << "the person of the list is opened";
}
