#include "core/aspetto.h"
#include "core/frmlogin.h"

#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// The version twice, the lower one a shadow of the upper.
QWidget* versione_con_ombra(std::array<QLabel*, 2>& etichette) {
  auto* posto = new QWidget;
  auto* griglia = new QGridLayout(posto);
  griglia->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = 0; i < etichette.size(); ++i) {
    etichette[i] = nominato(new QLabel, nome_indice(u"LabVersion", i));
    etichette[i]->setStyleSheet(
        u"font-size: 18px; font-weight: bold; color: %1;"_s.arg(i == 0 ? u"#3c4446"_s : u"#ffffff"_s));
    etichette[i]->setContentsMargins(i == 0 ? 1 : 0, i == 0 ? 1 : 0, i == 0 ? 0 : 1, i == 0 ? 0 : 1);
    griglia->addWidget(etichette[i], 0, 0);
  }
  return posto;
}

QLineEdit* campo(QGridLayout& griglia, int n, const QString& nome, const QString& etichetta,
                 const QString& suggerimento) {
  auto* c = nominato(new QLineEdit, nome, suggerimento);
  riga(griglia, n, etichetta, c);
  return c;
}

}  // namespace

void frmLogin::disegna() {
  setObjectName(u"frmLogin"_s);
  setWindowTitle(u"Orzaline"_s);
  setWindowIcon(icona(u"orzaline"_s));
  setStyleSheet(u"#frmLogin { background: rgb(139,139,139); }"_s);
  auto* foglio = nominato(new QFrame, u"foglio"_s);
  foglio->setStyleSheet(u"#foglio { background: #f7f9f8; border: 1px solid #5f6668; border-radius: 4px; }"_s);
  auto* griglia = new QGridLayout(foglio);
  griglia->setContentsMargins(14, 12, 14, 12);
  griglia->setVerticalSpacing(6);
  auto* disegno = new QLabel;
  disegno->setPixmap(icona(u"accesso"_s).pixmap(96, 96));
  txtUserName = campo(*griglia, 0, u"txtUserName"_s, u"Utente"_s, u"Nome utente"_s);
  txtPassword = campo(*griglia, 1, u"txtPassword"_s, u"Password"_s, u"Password"_s);
  txtPassword->setEchoMode(QLineEdit::Password);
  cmdOK = pulsante(u"cmdOK"_s, u"OK"_s, u"Invia 'nome utente' e 'password' al sistema"_s);
  cmdCancel = pulsante(u"cmdCancel"_s, u"Annulla"_s, u"Rinuncia al caricamento di Orzaline"_s);
  cmdOK->setDefault(true);
  griglia->addLayout(barra({}, {cmdOK, cmdCancel}), 2, 0, 1, 2);
  auto* testata = new QHBoxLayout;
  testata->setSpacing(14);
  testata->addWidget(disegno);
  auto* destra = new QVBoxLayout;
  destra->addWidget(versione_con_ombra(LabVersion));
  destra->addWidget(foglio);
  testata->addLayout(destra, 1);
  Label5 = nominato(new QLabel(u"ATTENZIONE: La visione di Orzaline non sarà ottimale perchè il vostro schermo è "
                               "impostato su  una risoluzione diversa da 800x600. Consigliamo di annullare ed "
                               "impostare il vostro schermo a questa risoluzione."_s),
                    u"Label5"_s);
  Label5->setWordWrap(true);
  Label5->setTextFormat(Qt::PlainText);
  Label5->setStyleSheet(u"color: #ffffff;"_s);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(16, 14, 16, 14);
  colonna->setSpacing(12);
  colonna->addLayout(testata);
  colonna->addWidget(Label5);
  setFixedWidth(400);
}
