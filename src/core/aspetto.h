// The layout helper all screens share, so that rows, frames and bars come out alike.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

class QApplication;
class QComboBox;
class QTabBar;

inline constexpr int larghezza_schermo = 785;  // pixels of a stage screen
inline constexpr int altezza_schermo = 480;
inline constexpr int larghezza_numero = 58;  // pixels of a number field

/// The program's face: style, font, colours, style sheet.
void imposta_aspetto(QApplication& app);

/// An icon of the program's own, by its file name without the ending.
QIcon icona(const QString& nome);

/// The icon of a file, one for all: each new one would leave its drawings in the picture cache beside its twins'.
QIcon icona_del_file(const QString& file);

/// Gives a control its name, which is how sections and tests find it, and its hint.
template <class C>
C* nominato(C* controllo, const QString& nome, const QString& suggerimento = {}) {
  controllo->setObjectName(nome);
  controllo->setToolTip(suggerimento);
  return controllo;
}

/// The name of a control of an array: "Text8_0".
inline QString nome_indice(QStringView nome, std::size_t indice) {
  return nome.toString() + u'_' + QString::number(indice);
}

/// A frame with a title and a grid inside: 8 pixels of margin, 3 between rows, 6 between columns.
struct Cornice {
  QGroupBox* box;
  QGridLayout* griglia;
};
Cornice cornice(const QString& titolo, QWidget* in = nullptr);

/// A label left of its control in a row of the grid, with the control as its buddy.
QLabel* riga(QGridLayout& griglia, int riga, const QString& etichetta, QWidget* controllo, int colonna = 1);

/// A label that stands for its control in any layout.
QLabel* etichetta_di(const QString& testo, QWidget* controllo);

/// A head, bold and centred over its column.
QLabel* testa(const QString& testo);

/// A sentence that guides the user.
QLabel* guida(const QString& testo);

/// A field for a typed number, right-aligned.
QLineEdit* campo_numero(const QString& nome, const QString& suggerimento = {}, int larghezza = larghezza_numero);

/// A computed or locked field: grey, read-only, passed over by the Tab key. Numbers stand right.
QLineEdit* campo_calcolato(const QString& nome, int larghezza = larghezza_numero, Qt::Alignment verso = Qt::AlignRight);

QPushButton* pulsante(const QString& nome, const QString& scritta, const QString& suggerimento = {},
                      const QString& nome_icona = {});

/// A square button of one sign beside a field or list; what it does stands in its hint.
QPushButton* pulsantino(const QString& nome, const QString& segno, const QString& suggerimento);

/// A list to choose from. Qt's own makes its drop-down whenever its place changes, and the style sheet never gives back
/// what it notes of a drop-down that is not shown: this one waits until it is opened.
class Lista : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void changeEvent(QEvent* evento) override;
};

/// A list of fixed lines, parted by "|", with none chosen; its width is its place's, not its longest line's.
QComboBox* lista_fissa(QStringView voci);

/// Writes a text that may be longer than its field, and shows it from its beginning.
void scrivi_da_capo(QLineEdit& campo, const QString& testo);

/// The letters A to Z as tabs, as narrow as they go.
QTabBar* lettere(const QString& nome);

/// A bar with some controls at its left end and others at its right end.
QHBoxLayout* barra(const QList<QWidget*>& a_sinistra, const QList<QWidget*>& a_destra);
