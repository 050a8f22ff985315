#include "core/sezioni.h"

#include "base/date.h"
#include "base/errori.h"
#include "base/liste.h"
#include "base/numeri.h"
#include "core/aspetto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void manca(const QString& nome) { throw Errore(424, "Necessario oggetto: " + nome.toStdString()); }

template <class C>
C& controllo(const QWidget& schermo, const QString& nome) {
  auto* c = schermo.findChild<C*>(nome);
  if (!c) manca(nome);
  return *c;
}

QString testo_di(const QWidget& schermo, const QString& nome) {
  const QWidget* w = &controllo<QWidget>(schermo, nome);
  if (auto* riga = qobject_cast<const QLineEdit*>(w)) return riga->text();
  if (auto* lista = qobject_cast<const QComboBox*>(w)) return lista->currentText();
  if (auto* data = qobject_cast<const QDateEdit*>(w)) return data_breve(data->date());
  if (auto* nota = qobject_cast<const QPlainTextEdit*>(w)) return nota->toPlainText();
  if (auto* nota = qobject_cast<const QTextEdit*>(w)) return nota->toPlainText();
  if (auto* scritta = qobject_cast<const QLabel*>(w)) return scritta->text();
  manca(nome);
}

void scegli_testo(QComboBox& lista, const QString& testo) {
  if (lista.isEditable()) return scrivi_da_capo(*lista.lineEdit(), testo);
  lista.setCurrentIndex(lista.findText(testo, Qt::MatchExactly));
}

void scrivi_testo(const QWidget& schermo, const QString& nome, const QString& testo) {
  QWidget* w = &controllo<QWidget>(schermo, nome);
  if (auto* riga = qobject_cast<QLineEdit*>(w)) return scrivi_da_capo(*riga, testo);
  if (auto* lista = qobject_cast<QComboBox*>(w)) return scegli_testo(*lista, testo);
  if (auto* data = qobject_cast<QDateEdit*>(w)) return data->setDate(data_di(testo));
  if (auto* nota = qobject_cast<QPlainTextEdit*>(w)) return nota->setPlainText(testo);
  if (auto* nota = qobject_cast<QTextEdit*>(w)) return nota->setPlainText(testo);
  if (auto* scritta = qobject_cast<QLabel*>(w)) return scritta->setText(testo);
  manca(nome);
}

void scegli_posizione(const QWidget& schermo, const QString& nome, double posizione) {
  auto& lista = controllo<QComboBox>(schermo, nome);
  const int riga = round16(posizione);
  if (riga < -1 || riga >= lista.count()) throw Errore(380, "Valore di proprietà non valido: " + nome.toStdString());
  lista.setCurrentIndex(riga);
}

bool e_lista(Come come) {
  return come == Come::lista_testi || come == Come::lista_posizioni || come == Come::lista_stati;
}

QString elemento_di(const QWidget& schermo, const QString& nome, Come come) {
  if (come == Come::lista_posizioni) return QString::number(controllo<QComboBox>(schermo, nome).currentIndex());
  if (come == Come::lista_stati) return controllo<QCheckBox>(schermo, nome).isChecked() ? u"1"_s : u"0"_s;
  return testo_di(schermo, nome);
}

void scrivi_elemento(const QWidget& schermo, const QString& nome, Come come, const QString& elemento) {
  if (come == Come::lista_posizioni) return scegli_posizione(schermo, nome, valore(elemento));
  if (come == Come::lista_stati) return controllo<QCheckBox>(schermo, nome).setChecked(valore(elemento) != 0);
  scrivi_testo(schermo, nome, elemento);
}

QString unisci(const QWidget& schermo, const Campo& c) {
  QStringList valori;
  for (const QString& nome : c.controlli) valori << elemento_di(schermo, nome, c.come);
  return lista_di(valori, c.separatore);
}

int codice_sesso(const QString& testo) { return testo == u"M" ? 0 : testo == u"F" ? 1 : 2; }

QVariant numero(const QString& t, Come come) {
  if (!numerico(t)) return {};
  switch (come) {
    case Come::se_intero: return int{round16(valore(t))};
    case Come::se_singolo: return static_cast<float>(valore(t));
    case Come::se_numero_rifilato: return t.trimmed();
    default: return valore(t);
  }
}

QVariant data_o_nulla(const QString& t) {
  const QDate d = data_di(t);
  return d.isValid() ? QVariant(data_breve(d)) : QVariant();
}

/// The field's value, or an invalid one where its guard fails.
QVariant valore_campo(const QWidget& schermo, const Campo& c) {
  if (e_lista(c.come)) return unisci(schermo, c);
  const QString& nome = c.controlli.first();
  switch (c.come) {
    case Come::posizione: return controllo<QComboBox>(schermo, nome).currentIndex();
    case Come::sesso: return codice_sesso(testo_di(schermo, nome));
    case Come::testo: return testo_di(schermo, nome);
    case Come::rifilato: return testo_di(schermo, nome).trimmed();
    case Come::data:
    case Come::se_data: return data_o_nulla(testo_di(schermo, nome));
    default: return numero(testo_di(schermo, nome), c.come);
  }
}

/// The text of a stored value. A single keeps its seven digits in the store's wider numbers.
QString testo_campo(const QVariant& v, Come come) {
  if (v.typeId() != QMetaType::Double) return v.toString();
  return come == Come::se_singolo ? testo(v.toFloat()) : testo(v.toDouble());
}

bool e_numero(Come come) {
  return come == Come::se_numero || come == Come::se_numero_rifilato || come == Come::se_intero ||
         come == Come::se_singolo;
}

void scrivi_campo(const QWidget& schermo, const Campo& c, const QVariant& v) {
  const QString& nome = c.controlli.first();
  if (c.come == Come::posizione) return scegli_posizione(schermo, nome, v.toDouble());
  if (c.come == Come::sesso) {
    const int codice = v.toInt();
    return scegli_posizione(schermo, nome, codice == 0 || codice == 1 ? codice : -1);
  }
  const QString t = testo_campo(v, c.come);
  if (!e_numero(c.come) || numerico(t)) scrivi_testo(schermo, nome, t);
}

template <class F>
void esegui(SeFallisce se_fallisce, F&& istruzione) {
  if (se_fallisce == SeFallisce::lancia) return istruzione();
  prosegui(istruzione);
}

void dividi(const QWidget& schermo, const Campo& c, const QString& lista, SeFallisce se_fallisce) {
  const QStringList valori = elementi(lista, c.separatore);
  for (qsizetype i = 0; i < std::min(valori.size(), c.controlli.size()); ++i) {
    esegui(se_fallisce, [&] { scrivi_elemento(schermo, c.controlli[i], c.come, valori[i]); });
  }
}

QString tra_apici(const QString& nome) { return u'"' + nome + u'"'; }

QStringList tra_apici(const QStringList& nomi) {
  QStringList nomi_apici;
  for (const QString& n : nomi) nomi_apici << tra_apici(n);
  return nomi_apici;
}

void aggiungi_riga(Archivio& archivio, const QString& tabella, const QVariantMap& riga) {
  if (riga.isEmpty()) {
    archivio.esegui(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(tra_apici(tabella)));
    return;
  }
  const QStringList segni(riga.size(), u"?"_s);
  archivio.esegui_con(
      u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(tra_apici(tabella), tra_apici(riga.keys()).join(u','), segni.join(u',')),
      riga.values());
}

void cambia_prima_riga(Archivio& archivio, const QString& tabella, const QVariantMap& riga) {
  if (riga.isEmpty()) return;
  archivio.esegui_con(u"UPDATE %1 SET %2 = ? WHERE rowid = (SELECT min(rowid) FROM %1)"_s.arg(
                          tra_apici(tabella), tra_apici(riga.keys()).join(u" = ?, ")),
                      riga.values());
}

std::vector<QVariantMap> leggi_righe(Archivio& archivio, const QString& tabella, QStringView limite) {
  std::vector<QVariantMap> mappe;
  for (const Riga& r : archivio.righe(u"SELECT * FROM %1 ORDER BY rowid %2"_s.arg(tra_apici(tabella), limite))) {
    QVariantMap mappa;
    for (const QString& campo : r.campi()) {
      if (!r[campo].isNull()) mappa.insert(campo, r[campo]);
    }
    mappe.push_back(mappa);
  }
  return mappe;
}

}  // namespace

QStringList vettore(const QString& nome, int da, int a) {
  QStringList nomi;
  for (int i = da; i <= a; ++i) nomi << u"%1_%2"_s.arg(nome).arg(i);
  return nomi;
}

Sezione parte(const Sezione& sezione, const QStringList& campi) {
  Sezione scelti;
  for (const QString& campo : campi) {
    const auto c = std::ranges::find(sezione, campo, &Campo::campo);
    if (c == sezione.end()) throw Errore(3265, "Elemento non trovato in questo insieme: " + campo.toStdString());
    scelti.push_back(*c);
  }
  return scelti;
}

QVariantMap leggi_controlli(const QWidget& schermo, const Sezione& sezione) {
  QVariantMap riga;
  for (const Campo& c : sezione) {
    if (const QVariant v = valore_campo(schermo, c); v.isValid()) riga.insert(c.campo, v);
  }
  return riga;
}

void riempi_controlli(QWidget& schermo, const Sezione& sezione, const QVariantMap& riga, SeFallisce se_fallisce) {
  for (const Campo& c : sezione) {
    const QVariant v = riga.value(c.campo);
    if (!v.isValid()) continue;
    if (e_lista(c.come)) {
      dividi(schermo, c, v.toString(), se_fallisce);
    } else {
      esegui(se_fallisce, [&] { scrivi_campo(schermo, c, v); });
    }
  }
}

void salva_riga(Archivio& archivio, const QString& tabella, const QVariantMap& riga) {
  const bool vuota = archivio.righe(u"SELECT 1 FROM %1 LIMIT 1"_s.arg(tra_apici(tabella))).empty();
  vuota ? aggiungi_riga(archivio, tabella, riga) : cambia_prima_riga(archivio, tabella, riga);
}

QVariantMap carica_riga(Archivio& archivio, const QString& tabella) {
  const auto righe = leggi_righe(archivio, tabella, u"LIMIT 1");
  return righe.empty() ? QVariantMap() : righe.front();
}

void salva_righe(Archivio& archivio, const QString& tabella, const std::vector<QVariantMap>& righe) {
  archivio.transazione([&] {
    archivio.esegui(u"DELETE FROM %1"_s.arg(tra_apici(tabella)));
    for (const QVariantMap& r : righe) aggiungi_riga(archivio, tabella, r);
  });
}

std::vector<QVariantMap> carica_righe(Archivio& archivio, const QString& tabella) {
  return leggi_righe(archivio, tabella, {});
}
