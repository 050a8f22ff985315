-- The printed sheet of exchangeable foods, line by line; the heading stands on its first food's line, an empty
-- line parts the groups.
CREATE TABLE gruppi (
  cont INTEGER PRIMARY KEY,
  gruppo TEXT COLLATE NOCASE,
  Descrizione TEXT COLLATE NOCASE
);
