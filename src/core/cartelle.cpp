#include "core/cartelle.h"

#include "core/regole.h"

#include <QDir>
#include <QScrollBar>
#include <QStorageInfo>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

enum { percorso_di_riga = Qt::UserRole };
constexpr int rientro = 2;      // blanks a level
constexpr int lato_segno = 14;  // pixels

void aggiungi(QListWidget& lista, const QString& scritta, const QString& percorso, int livello,
              QStyle::StandardPixmap segno) {
  auto* voce =
      new QListWidgetItem(lista.style()->standardIcon(segno), QString(livello * rientro, u' ') + scritta, &lista);
  voce->setData(percorso_di_riga, percorso);
  voce->setToolTip(percorso);
}

/// The folders from the root down to this one.
QStringList discesa(const QString& cartella) {
  QStringList via{cartella};
  for (QDir d(cartella); d.cdUp();) via.prepend(d.path());
  return via;
}

}  // namespace

std::vector<Unita> unita() {
  std::vector<Unita> tutte{{u"Cartella personale"_s, QDir::homePath()}};
  for (const QStorageInfo& v : QStorageInfo::mountedVolumes()) {
    const bool vero = v.isRoot() || (v.device().startsWith("/dev/") && QFileInfo(v.rootPath()).isDir());
    if (!vero || !v.isReady()) continue;
    const QString nome = v.isRoot() ? u"Disco del sistema"_s : v.displayName();
    tutte.push_back({nome == v.rootPath() ? nome : nome + u"  "_s + v.rootPath(), v.rootPath()});
  }
  return tutte;
}

Cartelle::Cartelle() {
  setIconSize({lato_segno, lato_segno});
  connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem* voce) {
    const QString scelta = voce->data(percorso_di_riga).toString();
    esegui_regola([&] { vai(scelta); });
  });
}

bool Cartelle::vai(const QString& cartella) {
  const QFileInfo f(cartella);
  if (!f.isDir() || !f.isReadable() || !f.isExecutable()) return false;
  if (cartella_ == f.absoluteFilePath()) return true;
  cartella_ = QDir::cleanPath(f.absoluteFilePath());
  elenca();
  if (regola_) regola_();
  return true;
}

void Cartelle::elenca() {
  clear();
  int livello = 0;
  for (const QString& sopra : discesa(cartella_)) {
    aggiungi(*this, sopra == u"/"_s ? sopra : QDir(sopra).dirName(), sopra, livello++, QStyle::SP_DirOpenIcon);
  }
  QListWidgetItem* aperta = item(count() - 1);
  const QDir d(cartella_);
  for (const QString& sotto : d.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::LocaleAware)) {
    aggiungi(*this, sotto, d.filePath(sotto), livello, QStyle::SP_DirIcon);
  }
  setCurrentItem(aperta);
  scrollToItem(aperta);
}
