// Stores: every `.jed`, `.chk`, `.tmp` and `.orzaline` file is an encrypted database of one engine.
#pragma once

#include <QString>
#include <QVariant>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

/// The connect string of every store of the program.
inline constexpr QStringView accesso = u";PWD=pescara74";

/// The folder that holds the program and its stores, joined with a file's name. The agenda's store is found under
/// either of its spellings.
[[nodiscard]] QString percorso(const QString& nome);

/// Moves the stores to another folder; for tests and for the builder of the stores, before the first use.
void imposta_cartella(const QString& cartella);

/// One row of a result, read by field name.
class Riga {
 public:
  Riga(std::shared_ptr<const QStringList> nomi, std::vector<QVariant> valori);

  /// The field's value; null where the store holds none. Throws Errore 3265 for an unknown field.
  [[nodiscard]] const QVariant& operator[](QStringView campo) const;
  [[nodiscard]] const QStringList& campi() const { return *nomi_; }

 private:
  std::shared_ptr<const QStringList> nomi_;
  std::vector<QVariant> valori_;
};

/// The row at hand of a result that is walked, read by column from 0. A null reads as 0 or as an empty text.
class Cursore {
 public:
  [[nodiscard]] std::int64_t intero(int colonna) const;
  [[nodiscard]] double numero(int colonna) const;
  [[nodiscard]] QString testo(int colonna) const;

 private:
  friend class Archivio;
  explicit Cursore(void* istruzione) : istruzione_(istruzione) {}
  void* istruzione_;
};

/// An open store. Failures throw Errore with the engine's numbers: 3024 no such file, 3343 no store or another
/// password, 3078 no such table, 3218 locked, 3026 disk full, 3027 read-only, 3022 duplicate key, 3075 bad statement.
class Archivio {
 public:
  enum class Modo { lettura_scrittura, sola_lettura, nuovo };

  /// Opens a store and proves that it can be read; a file that is none is left as it is. `Modo::nuovo` makes an
  /// empty store and refuses a file that exists.
  explicit Archivio(const QString& file, QStringView connessione = accesso, Modo modo = Modo::lettura_scrittura);
  ~Archivio();
  Archivio(Archivio&&) noexcept;
  Archivio& operator=(Archivio&&) noexcept;

  /// Runs one statement; the values are bound to its question marks. Returns the rows changed.
  template <class... V>
  int esegui(const QString& sql, const V&... valori) {
    return esegui_con(sql, {QVariant::fromValue(valori)...});
  }
  int esegui_con(const QString& sql, const QVariantList& valori);

  /// Runs one statement once for each row of values. Returns the rows changed.
  int esegui_serie(const QString& sql, const std::vector<QVariantList>& serie);

  /// Runs a script of several statements.
  void esegui_copione(const QString& sql);

  /// Reads a result whole and closes the statement, so that no lock outlives the call.
  template <class... V>
  [[nodiscard]] std::vector<Riga> righe(const QString& sql, const V&... valori) {
    return righe_con(sql, {QVariant::fromValue(valori)...});
  }
  [[nodiscard]] std::vector<Riga> righe_con(const QString& sql, const QVariantList& valori);

  /// Walks a result row by row: for long tables. `riga` must not write to this store.
  void scorri(const QString& sql, const std::function<void(const Cursore&)>& riga);

  /// Writes that belong together: all of them, or none when one fails.
  void transazione(const std::function<void()>& scritture);

  /// Number given to the last row added.
  [[nodiscard]] qint64 ultimo_id() const;

 private:
  struct Dentro;
  std::unique_ptr<Dentro> d_;
};
