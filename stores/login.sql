-- The one user of the program; empty until the first start.
CREATE TABLE login (
  nome_utente TEXT COLLATE NOCASE,
  password TEXT
);
