// The reports by code: title, pages, writer.
#pragma once

#include "reports/bersaglio.h"

#include <QStringView>

struct Rapporto {
  QStringView codice;
  QStringView titolo;
  int pagine;                              // of the preview; 0 for a sheet without page selector
  int (*conta_pagine)();                   // where the writer counts them
  int stampate;                            // pages of a print job; 0 for all that the selector offers
  bool stacca;                             // a new sheet after each page of a print job, the last included
  bool orizzontale;                        // on paper
  void (*scrivi)(Bersaglio&, int pagina);  // pages from 1
};

/// Null for an unknown code.
[[nodiscard]] const Rapporto* rapporto(QStringView codice);
