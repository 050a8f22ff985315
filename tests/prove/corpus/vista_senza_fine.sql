DROP TABLE anagrafe;
CREATE VIEW anagrafe AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS cod, 'ROSSI' AS cognome, '' AS data_visita, '' AS nome, '' AS data_n, '' AS cod_fiscale FROM n WHERE i < 0;
