-- Registry of clients: number, first word of the surname, full path of the client's file.
CREATE TABLE schedario (
  cod INTEGER NOT NULL UNIQUE,
  cognome TEXT COLLATE NOCASE,
  nome_files TEXT COLLATE NOCASE
);
