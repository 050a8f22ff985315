#include "base/archivio.h"
#include "core/aspetto.h"
#include "core/mdiorza.h"
#include "core/regole.h"
#include "core/salva_carica.h"
#include "core/stadi.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// An entry of the popup. One with a document opens it; the others wait for the preview and stand disabled.
struct VoceStampa {
  QStringView nome;
  QStringView scritta;
  QStringView sotto;  // the entry that it is a sub-entry of
  QStringView documento;
};
constexpr VoceStampa voci[]{
    {u"menudp", u"Dati del soggetto", {}, {}},
    {u"uno", u"1° settimana", u"menudietap", {}},
    {u"due", u"2° settimana", u"menudietap", {}},
    {u"tre", u"3° settimana", u"menudietap", {}},
    {u"quattro", u"4° settimana", u"menudietap", {}},
    {u"menudiario", u"Diario Alimentare", {}, {}},
    {u"menuvalnutr", u"Alimenti: valori nutrizionali", {}, {}},
    {u"menunorme", u"Notizie Generali", {}, u"Norme.doc"},
    {u"menudieto", u"Dietologia e Situazioni fisio-patologiche", {}, u"Dietologia.doc"},
};

QMenu* sottomenu(QMenu& padre, const QString& nome) {
  if (auto* gia = padre.findChild<QMenu*>(nome)) return gia;
  QMenu* m = nominato(padre.addMenu(u"Dieta personalizzata"_s), nome);
  m->setEnabled(false);
  return m;
}

}  // namespace

void Mdiorza::disegna_stampe() {
  stampe = nominato(new QMenu(this), u"stampe"_s);
  for (const VoceStampa& v : voci) {
    QMenu* dove = v.sotto.isEmpty() ? stampe : sottomenu(*stampe, v.sotto.toString());
    QAction* a = dove->addAction(v.scritta.toString());
    a->setObjectName(v.nome.toString());
    a->setEnabled(false);
    if (!v.documento.isEmpty()) al_comando(a, [this, &v] { apri_documento(v.documento.toString()); });
  }
}

void Mdiorza::apri_stampe() {
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
