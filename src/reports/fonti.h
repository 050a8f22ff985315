// What several sheets read: the practice's identity, the client's saved file.
#pragma once

#include "base/archivio.h"

#include <functional>
#include <optional>

/// The practice's name, title and address, as the sheets' heads name them.
struct Studio {
  QString nome, qualifica, indirizzo;
};
[[nodiscard]] Studio identità();

/// The client's file as the general save left it. Empty, and said in a box, where there is none.
[[nodiscard]] std::optional<Archivio> cliente_salvato();
void avvisa_cliente_assente();

/// What a failed print says.
void avvisa_stampante();

/// Writes a sheet: figures that fail, or more foods than it has places for, end it where it stands. A store that cannot
/// be read is told, for a white sheet would pass for one that has nothing to say.
void scrivi_fin_dove_va(const std::function<void()>& scrive);

/// A store beside the program. Empty, and said in a box, where it is missing.
[[nodiscard]] std::optional<Archivio> archivio_alimenti(const QString& nome);

/// The food of the diary's store that a choice names. Throws Errore 3021 where the store no longer holds it.
[[nodiscard]] Riga alimento_scelto(Archivio& diario, const Riga& scelta);

/// The first row of a table; empty where it has none.
[[nodiscard]] std::optional<Riga> prima_riga(Archivio& archivio, const QString& tabella);
/// The client's master data. Throws Errore 3021 where the file has none.
[[nodiscard]] Riga anagrafe_di(Archivio& cliente);

/// The rows that a page shows, first and last included, counted from 0.
struct Finestra {
  std::size_t prima, ultima;
};

/// The rows of a page's window as far as they are there.
[[nodiscard]] std::vector<Riga> nella_finestra(const std::vector<Riga>& righe, Finestra f);
