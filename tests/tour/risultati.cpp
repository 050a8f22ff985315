#include "risultati.h"

#include <QElapsedTimer>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Tappa {
  QString nome;
  int passi = 0, verifiche = 0, fallite = 0, quadri = 0;
  qint64 ms = 0;
};

QDir cartella;
std::vector<Tappa> tappe;
QElapsedTimer orologio;
QStringList falliti;

void ferma_tempo() {
  if (!tappe.empty()) tappe.back().ms = orologio.elapsed();
}

QString riga(const Tappa& t) {
  return u"%1 %2 %3 %4 %5 %6\n"_s.arg(t.nome, -32)
      .arg(t.passi, 7)
      .arg(t.verifiche - t.fallite, 8)
      .arg(t.fallite, 8)
      .arg(t.quadri, 7)
      .arg(static_cast<double>(t.ms) / 1000, 8, 'f', 2);
}

QString foglio() {
  Tappa tutte{.nome = u"Insieme"_s};
  QString testo = u"%1   steps   passed   failed  images  seconds\n"_s.arg(QString(), -31);
  for (const Tappa& t : tappe) {
    testo += riga(t);
    tutte.passi += t.passi;
    tutte.verifiche += t.verifiche;
    tutte.fallite += t.fallite;
    tutte.quadri += t.quadri;
    tutte.ms += t.ms;
  }
  testo += riga(tutte);
  for (const QString& f : falliti) testo += u"FAILED  "_s + f + u'\n';
  return testo;
}

}  // namespace

void apri_foglio(const QString& percorso) {
  cartella.setPath(percorso);
  pretendi(cartella.mkpath(u"guida"_s), u"the folder of results can be made"_s);
  for (const QString& vecchio : cartella.entryList({u"[0-9][0-9]*_*.png"_s, u"*.pdf"_s})) cartella.remove(vecchio);
  QDir guida(cartella.filePath(u"guida"_s));
  for (const QString& vecchio : guida.entryList({u"*.png"_s})) guida.remove(vecchio);
}

const QDir& cartella_risultati() { return cartella; }

void comincia_tappa(const QString& nome) {
  ferma_tempo();
  tappe.push_back({.nome = nome});
  orologio.start();
}

void conta_passo() { ++tappe.back().passi; }
void conta_quadro() { ++tappe.back().quadri; }

void verifica(bool vero, const QString& che) {
  if (!tappe.empty()) ++tappe.back().verifiche;
  if (vero) return;
  falliti << (tappe.empty() ? che : tappe.back().nome + u": "_s + che);
  if (!tappe.empty()) ++tappe.back().fallite;
}

void verifica_uguali(const QString& trovato, const QString& atteso, const QString& che) {
  verifica(trovato == atteso, u"%1: «%2» instead of «%3»"_s.arg(che, trovato, atteso));
}

void pretendi(bool vero, const QString& che) {
  verifica(vero, che);
  if (vero) return;
  const int esito = chiudi_foglio();
  std::fflush(stdout);
  std::_Exit(esito);  // the screens stand as they are
}

int chiudi_foglio() {
  ferma_tempo();
  const QByteArray testo = foglio().toUtf8();
  std::fwrite(testo.constData(), 1, static_cast<std::size_t>(testo.size()), stdout);
  QFile file(cartella.filePath(u"risultati.txt"_s));
  if (!file.open(QIODevice::WriteOnly) || file.write(testo) != testo.size()) return EXIT_FAILURE;
  return falliti.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
