// The tour's sheet of results: what was done and checked in each leg, and how long it took.
#pragma once

#include <QDir>
#include <QString>

/// The folder of results; pictures of an earlier tour are taken away. Ends the tour where it cannot be made.
void apri_foglio(const QString& cartella);
[[nodiscard]] const QDir& cartella_risultati();

void comincia_tappa(const QString& nome);

/// One more thing done with keyboard or mouse.
void conta_passo();
void conta_quadro();

/// A check: where it fails the tour goes on, and ends with 1.
void verifica(bool vero, const QString& che);
void verifica_uguali(const QString& trovato, const QString& atteso, const QString& che);

/// A check without which the tour cannot go on.
void pretendi(bool vero, const QString& che);

/// Writes the sheet to the output and to risultati.txt. Returns the exit status of the tour.
[[nodiscard]] int chiudi_foglio();
