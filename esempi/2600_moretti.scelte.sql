-- Marks set by hand: wholemeal bread at every weekday lunch, an apple at dinner on Saturday and Sunday.
UPDATE alimenti_spuntati SET LV = 1 WHERE pasto = 4 AND cod1 = 22 AND cod2 = 2;
UPDATE alimenti_spuntati SET SD = 1 WHERE pasto = 6 AND cod1 = 15 AND cod2 = 1;
