// The note editor: a long text for one field of any stage, shown modally and handed back when it closes.
#pragma once

#include "core/valore.h"

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

class Formnote : public QDialog {
 public:
  Formnote();
  void al_caricamento() {}
  void all_attivazione();
  void alla_chiusura() {}
  /// Leaves by the frame: nothing is handed back.
  void reject() override;

  QLabel *Labcat{}, *labchi{}, *labmotivo{};  // category, field, reason
  Valore labcart, labindice;                  // route back, element of the array there
  QPlainTextEdit* txtnote{};
  QPushButton* cmdclosenote{};

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
};

/// Tells where the notes of a route go: the element of the array and its new text. A screen calls this in its
/// constructor; the last call for a route counts. The function outlives the screen: let it reach the controls through
/// `schermata`.
void instrada_note(const QString& cart, std::function<void(int indice, const QString& testo)> destinazione);

/// Opens the editor on a text, with a blank at its end to write on. Closing it hands the text to the route `cart`; a
/// route that nobody has told of takes nothing.
void apri_note(const QString& categoria, const QString& chi, const QString& cart, const QString& indice,
               const QString& testo, const QString& motivo = {});
