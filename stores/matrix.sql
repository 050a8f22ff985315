-- An empty client: the template that every working copy starts from.
-- Lists inside a text field end each value with a comma or a plus sign, the last one too.

CREATE TABLE anagrafe (
  cod INTEGER,
  data_visita TEXT COLLATE NOCASE,
  cognome TEXT COLLATE NOCASE,
  nome TEXT COLLATE NOCASE,
  data_n TEXT COLLATE NOCASE,
  sex INTEGER, -- 0 male, 1 female, 2 not chosen
  prov_n INTEGER,
  comune_n INTEGER,
  anni INTEGER,
  peso REAL,
  statura INTEGER,
  cod_fiscale TEXT COLLATE NOCASE,
  prov_r INTEGER,
  comune_r INTEGER,
  cap TEXT COLLATE NOCASE,
  locali TEXT COLLATE NOCASE,
  indirizzo TEXT COLLATE NOCASE,
  tel1 TEXT COLLATE NOCASE,
  tel2 TEXT COLLATE NOCASE,
  FAX TEXT COLLATE NOCASE,
  cell TEXT COLLATE NOCASE,
  EMail TEXT COLLATE NOCASE,
  scelte_r TEXT COLLATE NOCASE,
  tipoDurata TEXT COLLATE NOCASE,
  aspettativeAttuali TEXT COLLATE NOCASE,
  altre_info TEXT COLLATE NOCASE,
  foto TEXT COLLATE NOCASE
);

CREATE TABLE personale (
  cod_cli TEXT COLLATE NOCASE,
  verde TEXT COLLATE NOCASE,
  giallo TEXT COLLATE NOCASE,
  turbec TEXT COLLATE NOCASE,
  turbea TEXT COLLATE NOCASE,
  medico TEXT COLLATE NOCASE,
  asl TEXT COLLATE NOCASE,
  terapia1 TEXT COLLATE NOCASE,
  terapia2 TEXT COLLATE NOCASE,
  Combo6 TEXT COLLATE NOCASE,
  Combo1 TEXT COLLATE NOCASE,
  ciclo TEXT COLLATE NOCASE,
  problemi TEXT COLLATE NOCASE,
  menopausa TEXT COLLATE NOCASE,
  osteoporosi TEXT COLLATE NOCASE,
  progestinici TEXT COLLATE NOCASE,
  estrogeni TEXT COLLATE NOCASE,
  pillola TEXT COLLATE NOCASE
);

CREATE TABLE Anamnesi (
  Patologie TEXT COLLATE NOCASE,
  Traumatismi TEXT COLLATE NOCASE,
  Cute TEXT COLLATE NOCASE,
  Polso TEXT COLLATE NOCASE,
  Polmoni TEXT COLLATE NOCASE,
  addome TEXT COLLATE NOCASE,
  Apparato TEXT COLLATE NOCASE,
  Intolleranze TEXT COLLATE NOCASE,
  vita REAL,
  fianchi REAL,
  addomecm REAL,
  sovrappeso INTEGER,
  ipertensione INTEGER,
  fumatore INTEGER
);

CREATE TABLE esami (
  Data TEXT COLLATE NOCASE,
  esame TEXT COLLATE NOCASE,
  risultato TEXT COLLATE NOCASE,
  min TEXT COLLATE NOCASE,
  max TEXT COLLATE NOCASE,
  referto TEXT COLLATE NOCASE
);

CREATE TABLE farmaci (
  date_f TEXT COLLATE NOCASE,
  farmaci TEXT COLLATE NOCASE,
  dosi_gg TEXT COLLATE NOCASE
);

CREATE TABLE pressione (
  data_p TEXT COLLATE NOCASE,
  max INTEGER,
  min INTEGER,
  freq INTEGER
);

CREATE TABLE dietologica (
  cod_cli TEXT COLLATE NOCASE,
  peso_bfa TEXT COLLATE NOCASE,
  met_bfa TEXT COLLATE NOCASE,
  pliche TEXT COLLATE NOCASE,
  stress INTEGER,
  scelta INTEGER,
  peso_ragg REAL,
  gg REAL,
  kcal REAL, -- present consumption, not the ration
  pesoid REAL,
  prot REAL,
  lip REAL
);

-- Lists of seven days, Monday first; nutrients and totals in kilocalories.
CREATE TABLE sport (
  attività INTEGER,
  attivitàgg TEXT COLLATE NOCASE,
  minuti TEXT COLLATE NOCASE,
  protidi TEXT COLLATE NOCASE,
  lipidi TEXT COLLATE NOCASE,
  glucidi TEXT COLLATE NOCASE,
  calorie_totali TEXT COLLATE NOCASE
);

-- Percentage of the day's energy given to each meal.
CREATE TABLE consumi (
  colazione INTEGER,
  spuntino INTEGER,
  pranzo INTEGER,
  merenda INTEGER,
  cena INTEGER
);

-- The same as the food diary shows it; what follows the five shares is read by the diary's sheet alone.
CREATE TABLE diario (
  colazione REAL,
  spuntino REAL,
  pranzo REAL,
  merenda REAL,
  cena REAL,
  peso_ideale REAL,
  kcal_consigliato REAL,
  p_consigliato REAL,
  l_consigliato REAL,
  g_consigliato REAL,
  g_attuale REAL,
  l_attuale REAL,
  p_attuale REAL,
  kcal_attuale REAL,
  tipo_lavoro TEXT COLLATE NOCASE,
  costituzione TEXT COLLATE NOCASE
);

CREATE TABLE scelte_diario (
  pasto INTEGER,
  cod1 INTEGER,
  cod2 INTEGER,
  dose REAL
);

CREATE TABLE Integratore_diario (
  Descrizione TEXT COLLATE NOCASE,
  quantità REAL,
  calorie REAL,
  protidi REAL,
  lipidi REAL,
  glucidi REAL
);

CREATE TABLE Integratore_dieta (
  Descrizione TEXT COLLATE NOCASE,
  quantità REAL,
  calorie REAL,
  protidi REAL,
  lipidi REAL,
  glucidi REAL,
  cod1 INTEGER DEFAULT 0,
  cod2 INTEGER DEFAULT 0,
  LV INTEGER NOT NULL DEFAULT 0,
  SD INTEGER NOT NULL DEFAULT 0
);

-- Seven check-ups side by side; the names of the columns are older than what they hold.
CREATE TABLE trattamento (
  cod_cli TEXT COLLATE NOCASE,
  Date TEXT COLLATE NOCASE,
  peso TEXT COLLATE NOCASE,
  braccia TEXT COLLATE NOCASE, -- waist
  petto TEXT COLLATE NOCASE,   -- hips
  fianchi TEXT COLLATE NOCASE, -- abdomen
  cosce TEXT COLLATE NOCASE,   -- first free circumference
  polp TEXT COLLATE NOCASE,    -- second free circumference
  bic TEXT COLLATE NOCASE,
  tric TEXT COLLATE NOCASE,
  scap TEXT COLLATE NOCASE,
  sopra TEXT COLLATE NOCASE,
  magro TEXT COLLATE NOCASE,
  grasso TEXT COLLATE NOCASE,
  acqua TEXT COLLATE NOCASE,
  notepeso TEXT COLLATE NOCASE, -- the seven notes, one a check-up
  notebraccia TEXT COLLATE NOCASE,
  notepetto TEXT COLLATE NOCASE,
  notefianchi TEXT COLLATE NOCASE,
  notecosce TEXT COLLATE NOCASE,
  notepolp TEXT COLLATE NOCASE,
  notebic TEXT COLLATE NOCASE,
  circo1 TEXT COLLATE NOCASE,
  circo2 TEXT COLLATE NOCASE
);

-- Fast-food lunch 12 automatic, 14 by hand; lunch at home 18 automatic, 21 by hand.
CREATE TABLE alimenti (pranzoFF INTEGER);

CREATE TABLE alimenti_spuntati (
  cod1 INTEGER,
  cod2 INTEGER,
  cod3 INTEGER,
  cod4 INTEGER,
  pasto INTEGER, -- 1 colazione, 2 colazione bio, 3 spuntino, 4 pranzo, 5 merenda, 6 cena
  ok INTEGER NOT NULL DEFAULT 0,
  LV INTEGER NOT NULL DEFAULT 0, -- obligatory Monday to Friday
  SD INTEGER NOT NULL DEFAULT 0, -- obligatory Saturday and Sunday
  abb_OK TEXT COLLATE NOCASE,
  abb_LV TEXT COLLATE NOCASE,
  abb_SD TEXT COLLATE NOCASE,
  n_volte_pranzo INTEGER NOT NULL DEFAULT 0,
  n_volte_cena INTEGER NOT NULL DEFAULT 0
);

-- The search counts the uses of each meal's foods.
CREATE INDEX usi ON alimenti_spuntati (pasto, cod1, cod2);

-- Indices of the boxes that are not ticked, each with a semicolon.
CREATE TABLE checkAlimentiSpuntati (
  CheckColazione TEXT COLLATE NOCASE,
  CheckColazioneBio TEXT COLLATE NOCASE,
  CheckSpuntino TEXT COLLATE NOCASE,
  CheckPranzo TEXT COLLATE NOCASE,
  CheckMerenda TEXT COLLATE NOCASE,
  CheckCena TEXT COLLATE NOCASE
);

CREATE TABLE dieta (
  cod_cli TEXT COLLATE NOCASE,
  dieta INTEGER,  -- week 1 to 4
  giorno INTEGER, -- 0 Monday to 6 Sunday
  pasto INTEGER,  -- 0 colazione to 4 cena
  cod1 INTEGER,
  cod2 INTEGER,
  descr TEXT COLLATE NOCASE,
  cal INTEGER,
  prot REAL,
  lip REAL,
  gluc REAL,
  quant INTEGER,
  quant_mod TEXT COLLATE NOCASE
);

CREATE TABLE gruppi_esclusi (
  cod1 INTEGER,
  cod2 INTEGER,
  quant REAL,
  tipo INTEGER
);
