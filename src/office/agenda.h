// The agenda's store: the template of a day's slots, and the appointments of every day.
#pragma once

#include <QString>
#include <vector>

/// A slot of the day, or an appointment.
struct Impegno {
  QString ora;  // hh:mm
  QString promemoria;
};

/// The slots as they stand, in the template's order. Throws Errore.
[[nodiscard]] std::vector<Impegno> giorno();

/// Empties every slot. Throws Errore.
void svuota_giorno();

/// Writes a slot's text. Throws Errore.
void scrivi_promemoria(const Impegno& slot);

/// The slots that hold a text become the day's appointments, in place of those it had. The date is in its short form.
/// Throws Errore.
void salva_giorno(const QString& data);

/// Lays the day's appointments into their slots and empties the others. The date is in its short form. Throws Errore.
void carica_giorno(const QString& data);

/// The template's slots with the appointments in them, both walked in step: one whose hour and minute are no slot's
/// holds up those after it.
[[nodiscard]] std::vector<Impegno> disponi(std::vector<Impegno> slot, const std::vector<Impegno>& appuntamenti);
