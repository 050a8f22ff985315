#include "diet/dieta.h"

#include "base/errori.h"
#include "base/numeri.h"

#include <cmath>

using namespace Qt::StringLiterals;

int scrivi_dieta(const Motore& motore, Archivio& dati, const QString& cod_cli) {
  std::vector<QVariantList> righe;
  for (int s = 1; s <= settimane; ++s) {
    for (int i = 0; i < giorni * pasti * posti; ++i) {
      const int giorno = i / (pasti * posti), pasto = i / posti % pasti;
      const voce_pasto& v = motore.menu(s, giorno, pasto, i % posti);
      if (v.cod1 == 0) continue;
      righe.push_back(
          {cod_cli, s, giorno, pasto, v.cod1, v.cod2, v.descr, v.cal, v.prot, v.lip, v.gluc, v.quant, v.quant_mod});
    }
  }
  dati.transazione([&] {
    dati.esegui(u"DELETE FROM dieta"_s);
    dati.esegui_serie(
        u"INSERT INTO dieta (cod_cli, dieta, giorno, pasto, cod1, cod2, descr, cal, prot, lip, gluc, quant, "
        "quant_mod) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
        righe);
  });
  return static_cast<int>(righe.size());
}

int leggi_dieta(Motore& motore, Archivio& dati) {
  const auto righe = dati.righe(u"SELECT * FROM dieta ORDER BY rowid"_s);
  int posto = 0, giorno_prima = -1, pasto_prima = -1;
  for (const Riga& r : righe) {
    const int giorno = r[u"giorno"].toInt(), pasto = r[u"pasto"].toInt();
    if (giorno != giorno_prima || pasto != pasto_prima) posto = 0;
    voce_pasto& v = motore.menu(r[u"dieta"].toInt(), giorno, pasto, posto++);
    v = {.cod1 = round16(r[u"cod1"].toDouble()),
         .cod2 = round16(r[u"cod2"].toDouble()),
         .descr = r[u"descr"].toString(),
         .cal = round16(r[u"cal"].toDouble()),
         .prot = r[u"prot"].toFloat(),
         .lip = r[u"lip"].toFloat(),
         .gluc = r[u"gluc"].toFloat(),
         .quant = round16(r[u"quant"].toDouble()),
         .quant_mod = r[u"quant_mod"].toString()};
    giorno_prima = giorno;
    pasto_prima = pasto;
  }
  return static_cast<int>(righe.size());
}

void Totali::aggiungi(const voce_pasto& v, double q) {
  if (v.quant == 0) throw Errore(11, "Divisione per zero");
  calorie = static_cast<std::int32_t>(std::nearbyint(calorie + v.cal * q / v.quant));
  protidi = round16(protidi + double{v.prot} * q / v.quant);
  lipidi = round16(lipidi + double{v.lip} * q / v.quant);
  glucidi = round16(glucidi + double{v.gluc} * q / v.quant);
}

double grammi(const voce_pasto& v) { return v.quant_mod.isEmpty() ? v.quant : valore(v.quant_mod); }

Totali totali_giorno(const Motore& motore, int settimana, int giorno) {
  Totali t;
  for (int pasto = 0; pasto < pasti; ++pasto) {
    for (int i = 0; i < posti; ++i) {
      const voce_pasto& v = motore.menu(settimana, giorno, pasto, i);
      if (v.cal == 0) break;
      t.aggiungi(v, grammi(v));
    }
  }
  return t;
}
