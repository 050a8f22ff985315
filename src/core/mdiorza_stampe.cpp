#include "base/archivio.h"
#include "core/aspetto.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"
#include "core/stadi.h"
#include "reports/formstampe.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// An entry of the popup: a report or a document. What tells of a client goes with the client.
struct VoceStampa {
  QStringView nome;
  QStringView scritta;
  QStringView sotto;  // the entry that it is a sub-entry of
  QStringView rapporto;
  QStringView orientamento;
  QStringView documento;
};
constexpr VoceStampa voci[]{
    {u"menudp", u"Dati del soggetto", {}, u"1", u"v", {}},
    {u"uno", u"1° settimana", u"menudietap", u"21", u"v", {}},
    {u"due", u"2° settimana", u"menudietap", u"22", u"v", {}},
    {u"tre", u"3° settimana", u"menudietap", u"23", u"v", {}},
    {u"quattro", u"4° settimana", u"menudietap", u"24", u"v", {}},
    {u"menudiario", u"Diario Alimentare", {}, u"8", u"v", {}},
    {u"menuvalnutr", u"Alimenti: valori nutrizionali", {}, u"7", u"o", {}},
    {u"menunorme", u"Notizie Generali", {}, {}, {}, u"Norme.doc"},
    {u"menudieto", u"Dietologia e Situazioni fisio-patologiche", {}, {}, {}, u"Dietologia.doc"},
};

QMenu* sottomenu(QMenu& padre, const QString& nome) {
  if (auto* gia = padre.findChild<QMenu*>(nome)) return gia;
  QMenu* m = nominato(padre.addMenu(u"Dieta personalizzata"_s), nome);
  return m;
}

}  // namespace

void Mdiorza::disegna_stampe() {
  stampe = nominato(new QMenu(this), u"stampe"_s);
  for (const VoceStampa& v : voci) {
    QMenu* dove = v.sotto.isEmpty() ? stampe : sottomenu(*stampe, v.sotto.toString());
    QAction* a = dove->addAction(v.scritta.toString());
    a->setObjectName(v.nome.toString());
    al_comando(a, [this, &v] {
      if (v.documento.isEmpty()) return apri_stampa(v.rapporto.toString(), v.orientamento.toString());
      apri_documento(v.documento.toString());
    });
  }
}

void Mdiorza::abilita_stampe(bool si) {
  stampe->findChild<QAction*>(u"menudp"_s)->setEnabled(si);
  stampe->findChild<QMenu*>(u"menudietap"_s)->setEnabled(si);
  stampe->findChild<QAction*>(u"menudiario"_s)->setEnabled(si);
}

void Mdiorza::apri_stampe() {
  cmdsopra[10]->setFocus();  // leaving a field has its rule, and what the rule writes is saved too
  const Stadio* davanti = stadio(qualeform.text());
  salva_cliente(davanti ? davanti->codice : -1);
  for (const VoceStampa& v : voci) {
    const QString documento = v.documento.toString();
    if (!documento.isEmpty()) {
      stampe->findChild<QAction*>(v.nome.toString())->setEnabled(QFile::exists(percorso(documento)));
    }
  }
  stampe->popup(cmdsopra[10]->mapToGlobal(cmdsopra[10]->rect().bottomLeft()));
}
