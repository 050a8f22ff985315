// The legs of the tour, in the order of a first day at the practice, and what one leg leaves for another.
#pragma once

#include "passi.h"

#include <QTemporaryDir>
#include <array>

struct Viaggio {
  QTemporaryDir lavoro, esportati;
  QStringList nutrizione;               // weight, ration and grams of the objective
  std::array<QStringList, 7> bersagli;  // of each day, as the activities show them: kcal, protein, fat, carbohydrate
  std::map<int, Contenuto> letti;       // the typed client's screens, by the button of the stage
};

void ingresso(Viaggio& v);
void anagrafica(Viaggio& v);
void personali(Viaggio& v);
void patologica(Viaggio& v);
void antropometria(Viaggio& v);
void diario(Viaggio& v);
void attività(Viaggio& v);
void scelta_alimenti(Viaggio& v);
void elaborazione(Viaggio& v);
void controlli(Viaggio& v);
void ritorno(Viaggio& v);
void stampe(Viaggio& v);
void rubrica(Viaggio& v);
void agenda(Viaggio& v);
void secondo_cliente(Viaggio& v);
void esempi(Viaggio& v);
void esporta_elimina_importa(Viaggio& v);

// ---- what several legs do

/// Identity, weight and work of a new client.
struct Anagrafe {
  QString cognome, nome, nascita, sesso, provincia, comune, peso, statura;
};
void nuovo_cliente(const Anagrafe& p);
/// Finds a client by the archive's search and recalls it.
void cerca_e_richiama(const QString& cognome);
/// Elaborates week 1, walks its days and meals; the targets must be those of the stored activities.
void elabora_settimana_uno(const QString& nome);
/// The foods of week 1 are all allowed, and the obligatory ones are served on their days.
void verifica_scelte();
void importa_da(const QString& cartella, int quanti);
