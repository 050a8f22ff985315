#include "core/frmlogin.h"

#include "core/attesa.h"
#include "core/mdiorza.h"
#include "core/messaggi.h"
#include "core/programma.h"
#include "core/regole.h"
#include "core/schermate.h"
#include "core/sessione.h"

using namespace Qt::StringLiterals;

frmLogin::frmLogin() {
  disegna();
  al_clic(cmdOK, [this] { ok(); });
  al_clic(cmdCancel, [this] { annulla(); });
}

void frmLogin::all_attivazione() {
  if (archivio_) return;
  archivio_.emplace(percorso(u"0_1.chk"_s));
  const QVersionNumber v = versione_programma();
  const QString versione = u"%1 %2.%3"_s.arg(titolo_programma()).arg(v.majorVersion()).arg(v.minorVersion());
  for (QLabel* e : LabVersion) e->setText(versione);
  leggi_utente();
}

void frmLogin::leggi_utente() {
  const auto righe = archivio_->righe(u"SELECT nome_utente, password FROM login"_s);
  primo_uso_ = righe.empty();
  if (primo_uso_) {
    messaggio(
        u"Questo è il primo caricamento\n"
        "Fare attenzione al nome utente ed alla password digitati\n"
        "poichè i valori che inserirete saranno richiesti dal prossimo caricamento !"_s,
        u"Personalizzazione di Orzaline"_s, Icona::esclamazione);
    return;
  }
  password_ = righe.front()[u"password"].toString();
  txtUserName->setText(righe.front()[u"nome_utente"].toString().trimmed());
  txtPassword->setFocus();
}

void frmLogin::ok() {
  if (txtUserName->text().isEmpty() || txtPassword->text().isEmpty()) {
    messaggio(u"I campi 'nome utente' e 'password' non possono essere vuoti"_s, u"Attenzione"_s, Icona::informazione);
  } else if (primo_uso_) {
    primo_ingresso();
  } else if (txtPassword->text() != password_) {
    messaggio(u"Password non corretta, riprovare !"_s, u"Attenzione"_s, Icona::critica);
    txtPassword->setFocus();
    txtPassword->selectAll();
  } else {
    const Attesa attesa;
    archivio_.reset();
    scarica<frmLogin>();
    mostra<Mdiorza>();
  }
}

void frmLogin::primo_ingresso() {
  const Attesa attesa;
  archivio_->esegui(u"INSERT INTO login (nome_utente, password) VALUES (?, ?)"_s, txtUserName->text().trimmed(),
                    txtPassword->text().trimmed());
  archivio_.reset();
  mostra<Mdiorza>();
  scarica<frmLogin>();
}

void frmLogin::annulla() {
  archivio_.reset();
  chiudi_archivi();
  QCoreApplication::exit();
}

void frmLogin::reject() {
  esegui_regola([this] { annulla(); });
}
