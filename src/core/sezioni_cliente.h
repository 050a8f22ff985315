// The sections of a client's file, field by field in the order of writing. The client's number `cod_cli`, which some
// tables repeat, has no control of its own: it is written from the banner and never read back.
#pragma once

#include "core/sezioni.h"

const Sezione& sezione_anagrafe();   // Formanag; the picture's path has no control
const Sezione& sezione_sport();      // Formattività
const Sezione& sezione_personale();  // Formpers
const Sezione& sezione_anamnesi();   // Formfunzio

/// One section a row that may come to be stored: nine lines of drugs, four readings of the pressure.
const std::vector<Sezione>& sezioni_farmaci();
const std::vector<Sezione>& sezioni_pressione();

/// The columns of the grid of exams as they are written, and as they are read back: the two orders differ.
const QStringList& esami_scritti();
const QStringList& esami_letti();

const Sezione& sezione_dietologica();  // Formpond; method, consumption and ideal weight have no control

/// The shares of the day's meals. They are stored only all five together.
const Sezione& sezione_diario();

const Sezione& sezione_trattamento();  // Formtratta
