#include "reports/stampante_o_file.h"

#include "base/file.h"

#include <QBuffer>
#include <QPdfWriter>

void stampa_o_scrivi(QPrinter& p, const std::function<void(QPagedPaintDevice&)>& disegna) {
  if (p.outputFormat() != QPrinter::PdfFormat || p.outputFileName().isEmpty()) return disegna(p);
  QBuffer documento;
  documento.open(QIODevice::WriteOnly);
  {
    QPdfWriter carta(&documento);
    carta.setResolution(p.resolution());
    carta.setPageLayout(p.pageLayout());
    carta.setCreator(p.creator());
    carta.setTitle(p.docName());
    disegna(carta);
  }
  scrivi_file(documento.data(), p.outputFileName());
}
