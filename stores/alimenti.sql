-- Foods of the elaboration; portion in grams as bought, figures per 100 g.
CREATE TABLE alimenti (
  cod1 INTEGER NOT NULL,
  cod2 INTEGER NOT NULL,
  cod3 INTEGER NOT NULL,
  cod4 INTEGER NOT NULL,
  Descrizione TEXT COLLATE NOCASE NOT NULL,
  quantità INTEGER NOT NULL,
  calorie REAL NOT NULL,
  protidi REAL NOT NULL,
  lipidi REAL NOT NULL,
  glucidi REAL NOT NULL,
  abb2 TEXT COLLATE NOCASE,
  unico INTEGER NOT NULL DEFAULT 0 CHECK (unico IN (0, 1)),
  col INTEGER NOT NULL DEFAULT 0 CHECK (col IN (0, 1)),
  m_s INTEGER NOT NULL DEFAULT 0 CHECK (m_s IN (0, 1)),
  pranzo INTEGER NOT NULL DEFAULT 0 CHECK (pranzo IN (0, 1)),
  cena INTEGER NOT NULL DEFAULT 0 CHECK (cena IN (0, 1)),
  PRIMARY KEY (cod1, cod2)
) WITHOUT ROWID; -- the foods lie in the order in which they are read
