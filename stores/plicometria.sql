-- Body fat in percent of weight by the sum of four skinfolds (mm); age bands 15-29, 30-39, 40-49, 50 and above.
CREATE TABLE tab_plico (
  pliche INTEGER PRIMARY KEY,
  primoM REAL NOT NULL,
  secondoM REAL NOT NULL,
  terzoM REAL NOT NULL,
  quartoM REAL NOT NULL,
  primoF REAL NOT NULL,
  secondoF REAL NOT NULL,
  terzoF REAL NOT NULL,
  quartoF REAL NOT NULL
);
