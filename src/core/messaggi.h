// Message boxes behind one seam, so that a test can answer them and assert their exact words.
#pragma once

#include "base/riquadro.h"

#include <functional>

void messaggio(const QString& testo, const QString& titolo = {}, Icona icona = Icona::nessuna);

/// What a client or a store that cannot be read says.
void avvisa_caricamento();

/// True for Yes alone; closing the box counts as No.
[[nodiscard]] bool domanda(const QString& testo, const QString& titolo = {}, Icona icona = Icona::domanda);

/// A question for which the program has a window of its own, which shows it and waits.
[[nodiscard]] bool domanda_con(const Riquadro& domanda, const std::function<bool()>& finestra);

/// Who answers instead of the windows: nobody unless a test steps in. Returns the former one.
using Interlocutore = std::function<bool(const Riquadro&)>;
Interlocutore parla_con(Interlocutore nuovo);
