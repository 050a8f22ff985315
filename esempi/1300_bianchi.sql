-- A retired woman who is to lose 6 kg on 1303 kcal a day. The person is invented.
INSERT INTO anagrafe
  (cod, data_visita, cognome, nome, data_n, sex, prov_n, comune_n, anni, peso, statura, cod_fiscale,
   prov_r, comune_r, cap, indirizzo, EMail, scelte_r, altre_info)
VALUES
  (1, '09/11/2026', 'BIANCHI', 'ELENA', '12/03/1964', 1, 55, 22, 62, 58, 152, 'BNC LNE 64C52 F257 P',
   55, 22, '41121', 'Via dei Tigli 8', 'elena.bianchi@example.org', '0,1,1,2,2,', '1,0,2,2,7,1,-1,-1,-1,5,');

-- Ideal weight 48 kg; 1709 kcal spent, 58 g a day for 103 days; protein 1.20 and fat 1.00 g per kg.
INSERT INTO dietologica (cod_cli, pliche, stress, scelta, peso_ragg, gg, kcal, pesoid, prot, lip)
VALUES ('1', '+++++', -1, 0, 52, 103, 1709, 48, 57.6, 48);

-- Half an hour of walking on Saturday: 90 kcal.
INSERT INTO sport (attività, attivitàgg, minuti, protidi, lipidi, glucidi, calorie_totali)
VALUES (9, '-1,-1,-1,-1,-1,9,-1,', '-1+-1+-1+-1+-1+2+-1+',
  '230+230+230+230+230+245+230+',
  '432+432+432+432+432+461+432+',
  '641+641+641+641+641+687+641+',
  '1303+1303+1303+1303+1303+1393+1303+');

INSERT INTO consumi (colazione, spuntino, pranzo, merenda, cena) VALUES (12, 7, 37, 7, 37);

-- Lunch at home, foods chosen by the program.
INSERT INTO alimenti (pranzoFF) VALUES (18);

INSERT INTO trattamento
  (cod_cli, Date, peso, braccia, petto, fianchi, cosce, polp, bic, tric, scap, sopra, magro, grasso, acqua)
VALUES
  ('1', '09/11/2026+++++++', '58+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++',
   '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++');
