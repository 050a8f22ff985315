#include "reports/bersaglio.h"

#include "base/numeri.h"

void Bersaglio::all_origine() {
  colonne_ = 0;
  riga_ = 0;
}

void Bersaglio::scrivi(const QString& testo) {
  if (!testo.isEmpty()) dipingi(colonne_, riga_, testo);
  colonne_ += larghezza(testo);
}

void Bersaglio::tab(int n) {
  if (colonne_ > n - 1) ++riga_;
  colonne_ = n - 1;
}

void Bersaglio::a_capo() {
  colonne_ = 0;
  ++riga_;
}

QString cifra(double x) { return (x < 0 ? QString() : QString(u' ')) + testo(x) + u' '; }

void metti(Bersaglio& b, const QVariant& campo) {
  if (campo.isNull()) return;
  b.scrivi(campo.typeId() == QMetaType::QString ? campo.toString() : cifra(campo.toDouble()));
}

void righe_vuote(Bersaglio& b, int quante) {
  for (int i = 0; i < quante; ++i) b.a_capo();
}
