-- Ideal weight (kg) by height (cm) and frame; null where the tables have no figure for the height.
CREATE TABLE life (
  altezza INTEGER PRIMARY KEY,
  piccolaM REAL,
  mediaM REAL,
  grandeM REAL,
  piccolaF REAL,
  mediaF REAL,
  grandeF REAL
);
