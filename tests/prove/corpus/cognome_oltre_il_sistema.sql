UPDATE anagrafe SET cognome = hex(zeroblob(500));
