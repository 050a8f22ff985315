#include "reports/form_anteprima_diario.h"

#include "base/date.h"
#include "base/errori.h"
#include "base/numeri.h"
#include "core/aspetto.h"
#include "core/attesa.h"
#include "core/dialoghi.h"
#include "core/mdiorza.h"
#include "core/programma.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "core/sezioni.h"
#include "reports/fonti.h"
#include "reports/stampante_o_file.h"

#include <QPainter>
#include <QPrinter>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint posto(7, 0);  // from the main window's corner, pixels

const Sezione& livelli() {
  static const Sezione s{
      {u"peso_ideale"_s, {u"Text1_0"_s}, Come::testo},   {u"kcal_consigliato"_s, {u"Text1_1"_s}, Come::testo},
      {u"p_consigliato"_s, {u"Text1_2"_s}, Come::testo}, {u"l_consigliato"_s, {u"Text1_3"_s}, Come::testo},
      {u"g_consigliato"_s, {u"Text1_4"_s}, Come::testo}, {u"g_attuale"_s, {u"Text1_5"_s}, Come::testo},
      {u"l_attuale"_s, {u"Text1_6"_s}, Come::testo},     {u"p_attuale"_s, {u"Text1_7"_s}, Come::testo},
      {u"kcal_attuale"_s, {u"Text1_8"_s}, Come::testo},  {u"tipo_lavoro"_s, {u"Text1_15"_s}, Come::testo},
      {u"costituzione"_s, {u"Text1_16"_s}, Come::testo}, {u"peso_ideale"_s, {u"Text1_17"_s}, Come::testo},
  };
  return s;
}

/// A meal's flag on the foods, and its boxes. The doses of dinner go beside the breakfast: the sheet has them there.
struct Pasto {
  QStringView segno;
  Form_anteprima_diario::Caselle Form_anteprima_diario::*nomi;
  Form_anteprima_diario::Caselle Form_anteprima_diario::*dosi;
};
constexpr std::array<Pasto, 4> pasti{{
    {u"col", &Form_anteprima_diario::TxtCOLAZIONE, &Form_anteprima_diario::TxtDOSEC},
    {u"m_s", &Form_anteprima_diario::TxtMERENDA, &Form_anteprima_diario::TxtDOSEM},
    {u"pranzo", &Form_anteprima_diario::TxtPRANZO, &Form_anteprima_diario::TxtDOSEP},
    {u"cena", &Form_anteprima_diario::TxtCENA, &Form_anteprima_diario::TxtDOSEC},
}};

constexpr double nitidezza = 3;  // dots of the picture to a pixel

void stampa_immagine(QWidget& finestra, QPrinter& p) {
  p.setFullPage(false);
  p.setPageOrientation(QPageLayout::Landscape);
  QImage immagine(finestra.size() * nitidezza, QImage::Format_RGB32);
  immagine.setDevicePixelRatio(nitidezza);
  finestra.render(&immagine);
  stampa_o_scrivi(p, [&](QPagedPaintDevice& carta) {
    QPainter pittore;
    if (!pittore.begin(&carta)) throw Errore(482, "Errore della stampante");
    const double scala = std::min(double(carta.width()) / finestra.width(), double(carta.height()) / finestra.height());
    pittore.drawImage(QRectF(QPointF(), QSizeF(finestra.size()) * scala), immagine);
  });
}

}  // namespace

Form_anteprima_diario::Form_anteprima_diario() {
  disegna();
  for (std::size_t i = 0; i < 10; ++i) al_cambio(Text1[i], [this] { calcola_differenze(); });
  al_clic(Command1, [this] { stampa(); });
}

void Form_anteprima_diario::al_caricamento() {
  const Mdiorza& m = schermata<Mdiorza>();
  move(m.mapToGlobal(posto));
  Txtdata->setText(data_breve(oggi()));
  Txtstudio->setText(leggi_studio(1));
  Txtcliente->setText(m.Txtsoggetto->text());
  apri_dati_tmp(Scopo::caricare);
  riempi_livelli();
  scrivi_fin_dove_va([this] { riempi_alimenti(); });
}

void Form_anteprima_diario::reject() { esegui_regola(scarica<Form_anteprima_diario>); }

void Form_anteprima_diario::riempi_livelli() {
  const auto righe = carica_righe(dati_tmp(), u"diario"_s);
  if (righe.empty()) return;
  riempi_controlli(*this, livelli(), righe.front());
  const Mdiorza& m = schermata<Mdiorza>();
  for (const std::size_t peso : {9, 19}) Text1[peso]->setText(m.Txtpeso->text());
  Text1[18]->setText(m.Txtetà->text());
}

/// Each advised level less the present one; the two stand in opposite order.
void Form_anteprima_diario::calcola_differenze() {
  for (std::size_t i = 0; i < 5; ++i) {
    const QString consigliato = Text1[i]->text(), attuale = Text1[9 - i]->text();
    if (!numerico(consigliato) || !numerico(attuale)) continue;
    Text1[14 - i]->setText(testo(valore(consigliato) - valore(attuale)));
  }
}

/// By the flags of the food, at whatever meal it was chosen; under each that it has.
void Form_anteprima_diario::riempi_alimenti() {
  Archivio diario(percorso(u"sa_diario.jed"_s), accesso, Archivio::Modo::sola_lettura);
  std::array<std::size_t, pasti.size()> scritti{};
  for (const Riga& r :
       dati_tmp().righe(u"SELECT cod1, cod2, dose FROM scelte_diario WHERE dose > 0 ORDER BY cod1, cod2"_s)) {
    const Riga a = alimento_scelto(diario, r);
    for (std::size_t p = 0; p < pasti.size(); ++p) {
      if (!a[pasti[p].segno].toBool()) continue;
      const std::size_t posto = scritti[p]++;
      if (posto >= posti) throw Errore(340, "L'elemento di matrice di controlli non esiste");
      scrivi_da_capo(*(this->*pasti[p].nomi)[posto], a[u"Descrizione"].toString());
      (this->*pasti[p].dosi)[posto]->setText(testo(r[u"dose"].toDouble()));
    }
  }
}

void Form_anteprima_diario::stampa() {
  const Attesa attesa;
  Command1->hide();
  if (!prosegui([&] { stampa_immagine(*this, stampante()); })) avvisa_stampante();
  Command1->show();
}
