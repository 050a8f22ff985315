-- Municipalities, past ones too, and foreign countries (province "EE"). Look-ups go by name alone.
CREATE TABLE Comuni (
  provincia TEXT COLLATE NOCASE NOT NULL,
  Descrizione TEXT COLLATE NOCASE NOT NULL,
  codice TEXT COLLATE NOCASE NOT NULL,
  cap INTEGER
);
CREATE INDEX comuni_per_nome ON Comuni (Descrizione);
