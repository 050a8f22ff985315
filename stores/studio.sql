-- The practice as the title bar and the printed sheets name it: one row.
CREATE TABLE studio (
  nome TEXT COLLATE NOCASE NOT NULL,
  qualifica TEXT COLLATE NOCASE NOT NULL,
  indirizzo TEXT COLLATE NOCASE NOT NULL
);
