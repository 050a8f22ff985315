#include "core/apertura.h"

#include "base/archivio.h"
#include "base/errori.h"
#include "base/file.h"
#include "base/numeri.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/sessione.h"
#include "core/stadi.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The client's master data. Throws where the file is no store, is damaged or holds no client.
Riga anagrafe_di(const QString& file) {
  Archivio cliente(file, accesso, Archivio::Modo::sola_lettura);
  if (cliente.righe(u"PRAGMA integrity_check"_s).front()[u"integrity_check"] != u"ok"_s) {
    throw Errore(3343, "Il file '" + file.toStdString() + "' è danneggiato.");
  }
  const auto righe = cliente.righe(u"SELECT cod, cognome, nome, sex, anni, peso, statura FROM anagrafe"_s);
  if (righe.empty()) throw Errore(3021, "Nessun record corrente.");
  return righe.front();
}

QString sesso(const QVariant& sex) {
  static const QStringList sigle{u"M"_s, u"F"_s};
  return sex.isNull() ? QString() : sigle.value(sex.toInt());
}

QString bmi(const Riga& r) {
  const double metri = std::floor(r[u"statura"].toDouble()) / 100;
  if (metri == 0 || r[u"peso"].isNull()) return {};
  return fmt(static_cast<float>(r[u"peso"].toFloat() / (metri * metri)), "#.0");
}

void riempi_banner(const Riga& r) {
  Mdiorza& m = schermata<Mdiorza>();
  const QString peso = r[u"peso"].isNull() ? QString() : testo(r[u"peso"].toFloat());
  m.Txtcod->setText(r[u"cod"].toString());
  m.Txtsoggetto->setText(r[u"cognome"].toString() + u' ' + r[u"nome"].toString());
  m.Txtsesso->setText(sesso(r[u"sex"]));
  m.Txtetà->setText(r[u"anni"].toString());
  m.Txtstatura->setText(r[u"statura"].toString());
  m.Txtpeso->setText(peso);
  m.LabPesoOld.setText(peso);
  m.Txtbmi->setText(bmi(r));
}

void prendi(const QString& file) {
  const Riga cliente = anagrafe_di(file);
  scarica_schede();
  elimina_dati_tmp();
  azzera_banner();
  schermata<Mdiorza>().segui_cliente(false);
  sostituisci_file(file, percorso(u"dati.tmp"_s));
  riempi_banner(cliente);
  schermata<Mdiorza>().segui_cliente(true);
}

}  // namespace

bool apri_file_cliente(const QString& file) {
  if (!prosegui([&] { prendi(file); })) {
    messaggio(u"Si è verificato un errore nel caricamento !"_s);
    return false;
  }
  salta_a(*stadio(u"8"_s));
  return true;
}
