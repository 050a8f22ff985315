-- The day on display, one row a half-hour slot from midnight, and every stored appointment.
CREATE TABLE Giorno (
  Ora TEXT COLLATE NOCASE NOT NULL UNIQUE, -- hh:mm
  Promemoria TEXT COLLATE NOCASE NOT NULL DEFAULT ''
);

CREATE TABLE Diario (
  Data TEXT COLLATE NOCASE, -- short date of the locale
  Ora TEXT COLLATE NOCASE,
  Promemoria TEXT COLLATE NOCASE
);

WITH RECURSIVE mezze(n) AS (SELECT 0 UNION ALL SELECT n + 1 FROM mezze WHERE n < 47)
INSERT INTO Giorno (Ora) SELECT printf('%02d:%02d', n / 2, n % 2 * 30) FROM mezze;
