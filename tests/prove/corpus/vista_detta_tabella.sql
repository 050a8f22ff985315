PRAGMA writable_schema = ON;
UPDATE sqlite_master SET sql = 'CREATE VIEW esami AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS Data FROM n' WHERE name = 'esami';
