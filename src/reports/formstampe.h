// The print preview: one page of a report at a time, and the way to the printer.
#pragma once

#include "core/valore.h"
#include "reports/rapporti.h"

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSvgRenderer>
#include <QWidget>
#include <array>

class QPagedPaintDevice;
class QPrinter;

class Formstampe : public QWidget {
 public:
  Formstampe();
  void al_caricamento() {}
  void all_attivazione();
  void alla_chiusura() {}

  Valore Labstampa, Laborienta;  // report code; "v" upright, "o" landscape
  QListWidget* List1{};          // zoom
  QFrame* Picturesotto{};        // the viewport
  QLabel* Picture1{};            // the page in it
  QScrollBar *VScroll1{}, *HScroll1{};
  QSlider* Slider1{};  // page
  QLabel *Labpag{}, *Labdi{};
  QSvgRenderer Pic_logo;                  // the practice's logo
  std::array<QPushButton*, 3> Cmdchar{};  // 1 print, 2 close

 protected:
  void wheelEvent(QWheelEvent* evento) override;

 private:
  void disegna();              // formstampe_aspetto.cpp
  QWidget* disegna_foglio();   // formstampe_aspetto.cpp
  QWidget* disegna_comandi();  // formstampe_aspetto.cpp
  void collega_regole();
  void scegli_zoom();
  void misura_foglio();
  void misura_barre();
  void prepara_pagine(const Rapporto& r);
  void scrivi_pagina();
  void stampa();
  void stampa_su(QPrinter& stampante, const Rapporto& r);
  void dipingi(QPagedPaintDevice& carta, const Rapporto& r);

  double corpo_;  // of the page's font, pixels
};

/// Opens a report afresh; a preview that stands open gives way to it.
void apri_stampa(const QString& codice, const QString& orientamento);
