// A section of the client's record, described once and walked both ways: controls to fields and back.
#pragma once

#include "base/archivio.h"

#include <QStringList>
#include <QVariantMap>
#include <QWidget>
#include <vector>

/// How a control's content becomes a field.
enum class Come {
  testo,               // as it stands
  rifilato,            // without surrounding blanks
  data,                // the short form of a date
  se_data,             // the same, only if it is a date
  se_numero,           // only if numeric, as a number
  se_numero_rifilato,  // only if numeric, its text without surrounding blanks
  se_intero,           // only if numeric, as a 16-bit integer
  se_singolo,          // only if numeric, as a 32-bit float
  posizione,           // the chosen line of a list, -1 for none
  sesso,               // 0 for "M", 1 for "F", 2 for anything else
  lista_testi,         // the texts, each followed by the separator
  lista_posizioni,     // the chosen lines, each followed by the separator
  lista_stati          // the ticks, 0 or 1, each followed by the separator
};

struct Campo {
  QString campo;
  QStringList controlli;  // object names; one, or several for a list
  Come come;
  QChar separatore = u',';
};
using Sezione = std::vector<Campo>;

/// What becomes of a statement that fails: its error goes to the caller, or the next statement goes on.
enum class SeFallisce { lancia, prosegue };

/// The object names of an array of controls: {"Text5_0" … "Text5_4"}.
[[nodiscard]] QStringList vettore(const QString& nome, int da, int a);

/// Some fields of a section, in the order of their names here. Throws Errore 3265 for an unknown field.
[[nodiscard]] Sezione parte(const Sezione& sezione, const QStringList& campi);

/// What the section would store now. A field whose guard fails is absent: its stored value stays as it was.
/// Throws Errore 424 for a control that is not on the screen, 6 for a number beyond 16 bits.
[[nodiscard]] QVariantMap leggi_controlli(const QWidget& schermo, const Sezione& sezione);

/// Fills the controls from a stored row, in the order of the table. A null or absent field leaves its control alone.
/// Throws Errore 380 for a position outside its list, 13 for a position that is no number, 424 as above.
void riempi_controlli(QWidget& schermo, const Sezione& sezione, const QVariantMap& riga,
                      SeFallisce se_fallisce = SeFallisce::lancia);

/// Writes a table of one row: adds it where the table is empty, else changes the given fields of the first row.
void salva_riga(Archivio& archivio, const QString& tabella, const QVariantMap& riga);

/// The first row of a table by field, nulls left out; empty where the table has no row.
[[nodiscard]] QVariantMap carica_riga(Archivio& archivio, const QString& tabella);

/// Replaces all rows of a table; all of them, or none where one fails.
void salva_righe(Archivio& archivio, const QString& tabella, const std::vector<QVariantMap>& righe);

/// All rows of a table in their order, nulls left out.
[[nodiscard]] std::vector<QVariantMap> carica_righe(Archivio& archivio, const QString& tabella);
