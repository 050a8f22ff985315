-- A clerk who is to lose 7 kg on 1913 kcal a day and lunches out on weekdays. The person is invented.
INSERT INTO anagrafe
  (cod, data_visita, cognome, nome, data_n, sex, prov_n, comune_n, anni, peso, statura, cod_fiscale,
   prov_r, comune_r, cap, indirizzo, EMail, scelte_r, altre_info)
VALUES
  (2, '09/11/2026', 'FERRI', 'MARCO', '05/06/1988', 0, 14, 7, 38, 74, 168, 'FRR MRC 88H05 A944 V',
   14, 7, '40121', 'Via delle Rose 21', 'marco.ferri@example.org', '1,-1,1,3,2,', '1,1,1,5,5,1,-1,4,7,2,');

-- Ideal weight 62 kg; 2431 kcal spent, 74 g a day for 95 days; protein 1.20 and fat 1.05 g per kg.
INSERT INTO dietologica (cod_cli, pliche, stress, scelta, peso_ragg, gg, kcal, pesoid, prot, lip)
VALUES ('2', '+++++', -1, 0, 67, 95, 2431, 62, 74.4, 65.1);

-- Brisk walking for 45 minutes on Tuesday and Thursday: 135 kcal.
INSERT INTO sport (attività, attivitàgg, minuti, protidi, lipidi, glucidi, calorie_totali)
VALUES (10, '-1,10,-1,10,-1,-1,-1,', '-1+3+-1+3+-1+-1+-1+',
  '297+318+297+318+297+297+297+',
  '585+626+585+626+585+585+585+',
  '1031+1104+1031+1104+1031+1031+1031+',
  '1913+2048+1913+2048+1913+1913+1913+');

INSERT INTO consumi (colazione, spuntino, pranzo, merenda, cena) VALUES (15, 5, 40, 5, 35);

-- Fast food or ready dishes at lunch, foods chosen by the program.
INSERT INTO alimenti (pranzoFF) VALUES (12);

INSERT INTO trattamento
  (cod_cli, Date, peso, braccia, petto, fianchi, cosce, polp, bic, tric, scap, sopra, magro, grasso, acqua)
VALUES
  ('2', '09/11/2026+++++++', '74+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++',
   '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++');
