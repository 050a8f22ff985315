#include "diet/preferenze_archivio.h"

#include "base/liste.h"

using namespace Qt::StringLiterals;

namespace {

/// Value stored for each pair of choices.
struct Codifica {
  int pranzoFF;
  SceltaPranzo scelta;
};
constexpr Codifica codifiche[]{
    {12, {true, false}},
    {14, {true, true}},
    {18, {false, false}},
    {21, {false, true}},
};

void pretendi_riga(Archivio& dati, const QString& tabella) {
  if (dati.righe(u"SELECT 1 FROM %1 LIMIT 1"_s.arg(tabella)).empty()) {
    dati.esegui(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(tabella));
  }
}

QString non_spuntate(const std::vector<bool>& spuntate) {
  QStringList indici;
  for (std::size_t i = 0; i < spuntate.size(); ++i) {
    if (!spuntate[i]) indici << QString::number(i);
  }
  return lista_di(indici, u';');
}

}  // namespace

std::optional<SceltaPranzo> leggi_scelta_pranzo(Archivio& dati) {
  const auto righe = dati.righe(u"SELECT pranzoFF FROM alimenti"_s);
  if (righe.empty()) return {};
  for (const Codifica& c : codifiche) {
    if (c.pranzoFF == righe.front()[u"pranzoFF"].toInt()) return c.scelta;
  }
  return {};
}

void scrivi_scelta_pranzo(Archivio& dati, const SceltaPranzo& scelta) {
  for (const Codifica& c : codifiche) {
    if (c.scelta.fast_food != scelta.fast_food || c.scelta.a_mano != scelta.a_mano) continue;
    dati.transazione([&] {
      pretendi_riga(dati, u"alimenti"_s);
      dati.esegui(u"UPDATE alimenti SET pranzoFF=?"_s, c.pranzoFF);
    });
  }
}

std::set<int> pasti_senza_quota(Archivio& dati) {
  static const std::pair<QStringView, std::set<int>> quote[]{
      {u"colazione", {scheda_di::colazione, scheda_di::colazione_bio}},
      {u"spuntino", {scheda_di::spuntino}},
      {u"pranzo", {scheda_di::pranzo}},
      {u"merenda", {scheda_di::merenda}},
      {u"cena", {scheda_di::cena}},
  };
  const auto righe = dati.righe(u"SELECT * FROM consumi"_s);
  std::set<int> senza;
  if (righe.empty()) return senza;
  for (const auto& [campo, pasti_del_campo] : quote) {
    if (!(righe.front()[campo].toDouble() > 0)) senza.insert(pasti_del_campo.begin(), pasti_del_campo.end());
  }
  return senza;
}

void salva_spunte(Archivio& dati, int codice, const Scheda& scheda, QStringView campo,
                  const std::vector<bool>& spuntate) {
  std::vector<QVariantList> righe;
  righe.reserve(scheda.size());
  for (const AlimentoScheda& r : scheda) {
    righe.push_back({r.cod1, r.cod2, r.cod3, r.cod4, codice, r.segni[0], r.segni[1], r.segni[2], r.liste[0], r.liste[1],
                     r.liste[2]});
  }
  dati.transazione([&] {
    dati.esegui(u"delete from alimenti_spuntati where pasto=?"_s, codice);
    dati.esegui_serie(
        u"INSERT INTO alimenti_spuntati (cod1, cod2, cod3, cod4, pasto, ok, LV, SD, abb_OK, abb_LV, abb_SD) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
        righe);
    pretendi_riga(dati, u"checkAlimentiSpuntati"_s);
    dati.esegui(u"UPDATE checkAlimentiSpuntati SET %1=?"_s.arg(campo), non_spuntate(spuntate));
  });
}

bool richiama_righe(Archivio& dati, int codice, Scheda& scheda) {
  static const std::array segni{u"ok"_s, u"LV"_s, u"SD"_s}, liste{u"abb_OK"_s, u"abb_LV"_s, u"abb_SD"_s};
  const auto righe = dati.righe(
      u"select ok, LV, SD, abb_OK, abb_LV, abb_SD from alimenti_spuntati where pasto=? order by cod1,cod2,cod3,cod4"_s,
      codice);
  for (std::size_t n = 0; n < std::min(righe.size(), scheda.size()); ++n) {
    for (std::size_t s = 0; s < segni.size(); ++s) {
      scheda[n].segni[s] = righe[n][segni[s]].toBool();
      scheda[n].liste[s] = righe[n][liste[s]].toString();
    }
  }
  return !righe.empty();
}

std::optional<QString> leggi_caselle(Archivio& dati, QStringView campo) {
  const auto righe = dati.righe(u"select * from checkAlimentiSpuntati"_s);
  if (righe.empty()) return {};
  return righe.front()[campo].toString();
}

void dimentica_spunte(Archivio& dati, int codice) {
  dati.esegui(u"delete from alimenti_spuntati where pasto=?"_s, codice);
}

// The names come from the very table: a name is found sign by sign, and two that differ in a capital stay two.
void salva_integratori(Archivio& dati, const Scheda& scheda) {
  std::vector<QVariantList> giorni;
  for (const AlimentoScheda& r : scheda) {
    giorni.push_back({r.segnato(Segno::LV), r.segnato(Segno::SD), r.descrizione});
  }
  dati.transazione([&] {
    dati.esegui_serie(u"UPDATE Integratore_dieta SET LV=?, SD=? WHERE Descrizione=? COLLATE BINARY"_s, giorni);
  });
}

void richiama_integratori(Archivio& dati, Scheda& scheda) {
  for (AlimentoScheda& r : scheda) {
    const auto righe =
        dati.righe(u"SELECT LV,SD FROM Integratore_dieta WHERE Descrizione=? COLLATE BINARY"_s, r.descrizione);
    if (righe.empty()) continue;
    r.segni[1] = righe.front()[u"LV"].toBool();
    r.segni[2] = righe.front()[u"SD"].toBool();
  }
}
