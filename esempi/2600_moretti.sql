-- A student who is to gain 6 kg on 2598 kcal a day and plays volleyball. The person is invented.
INSERT INTO anagrafe
  (cod, data_visita, cognome, nome, data_n, sex, prov_n, comune_n, anni, peso, statura, cod_fiscale,
   prov_r, comune_r, cap, indirizzo, EMail, scelte_r, altre_info)
VALUES
  (3, '09/11/2026', 'MORETTI', 'LUCA', '21/09/1997', 0, 78, 35, 29, 58, 172, 'MRT LCU 97P21 H223 J',
   78, 35, '42121', 'Via del Mulino 5', 'luca.moretti@example.org', '1,-1,0,2,2,', '1,2,0,5,6,1,-1,-1,-1,-1,');

-- Ideal weight 65 kg; 2192 kcal spent, 58 g a day for 103 days; protein 1.10 and fat 1.05 g per kg.
INSERT INTO dietologica (cod_cli, pliche, stress, scelta, peso_ragg, gg, kcal, pesoid, prot, lip)
VALUES ('3', '+++++', -1, 0, 64, 103, 2192, 65, 71.5, 68.3);

-- An hour of volleyball on Tuesday and Thursday: 240 kcal.
INSERT INTO sport (attività, attivitàgg, minuti, protidi, lipidi, glucidi, calorie_totali)
VALUES (29, '-1,29,-1,29,-1,-1,-1,', '-1+4+-1+4+-1+-1+-1+',
  '286+312+286+312+286+286+286+',
  '614+670+614+670+614+614+614+',
  '1698+1856+1698+1856+1698+1698+1698+',
  '2598+2838+2598+2838+2598+2598+2598+');

INSERT INTO consumi (colazione, spuntino, pranzo, merenda, cena) VALUES (12, 7, 37, 7, 37);

-- Lunch at home, foods chosen by hand.
INSERT INTO alimenti (pranzoFF) VALUES (21);

-- A cereal bar at lunch on weekdays; figures per 100 g.
INSERT INTO Integratore_dieta (Descrizione, quantità, calorie, protidi, lipidi, glucidi, LV)
VALUES ('Barretta ai cereali', 30, 362, 7, 6, 70, 1);

INSERT INTO trattamento
  (cod_cli, Date, peso, braccia, petto, fianchi, cosce, polp, bic, tric, scap, sopra, magro, grasso, acqua)
VALUES
  ('3', '09/11/2026+++++++', '58+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++',
   '+++++++', '+++++++', '+++++++', '+++++++', '+++++++', '+++++++');
