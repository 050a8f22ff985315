// The login: first use, password, and a store that cannot be read.
#include "core/frmlogin.h"
#include "core/mdiorza.h"
#include "core/regole.h"

#include "ambiente.h"

using namespace Qt::StringLiterals;

namespace {

const Atteso primo_avviso{
    u"Questo è il primo caricamento\n"
    "Fare attenzione al nome utente ed alla password digitati\n"
    "poichè i valori che inserirete saranno richiesti dal prossimo caricamento !"_s,
    u"Personalizzazione di Orzaline"_s};
const Atteso campi_vuoti{u"I campi 'nome utente' e 'password' non possono essere vuoti"_s, u"Attenzione"_s};
const Atteso password_errata{u"Password non corretta, riprovare !"_s, u"Attenzione"_s};

struct ProvaIngresso : Ambiente {
  /// Types both fields anew and presses Enter.
  static void entra(const QString& utente, const QString& password) {
    auto& login = schermata<frmLogin>();
    riscrivi(login.txtUserName, utente);
    riscrivi(login.txtPassword, password);
    QTest::keyClick(login.txtPassword, Qt::Key_Return);
  }
};

}  // namespace

TEST_F(ProvaIngresso, FirstUseStoresTrimmedAndLaterTypingIsComparedAsItIs) {
  Dialogo d({primo_avviso, campi_vuoti, campi_vuoti});
  mostra<frmLogin>();
  entra({}, u"segreta"_s);
  entra(u"Anna"_s, {});
  entra(u" Anna "_s, u"Segreta "_s);
  EXPECT_EQ(caricata<frmLogin>(), nullptr);
  ASSERT_TRUE(caricata<Mdiorza>() && caricata<Mdiorza>()->isVisible());
  EXPECT_EQ(caricata<Mdiorza>()->windowTitle(), u"ORZALINE  -  Studio dietistico"_s);
  abbandona_schermate();

  mostra<frmLogin>();
  auto& login = schermata<frmLogin>();
  EXPECT_EQ(login.txtUserName->text(), u"Anna"_s);
  EXPECT_EQ(login.focusWidget(), login.txtPassword);
  for (const QString& errata : {u"Segreta "_s, u"segreta"_s}) {
    d.attendi(password_errata);
    entra(u"chiunque"_s, errata);
    EXPECT_EQ(login.txtPassword->selectedText().size(), errata.size());
    EXPECT_FALSE(caricata<Mdiorza>());
  }
  entra(u"chiunque"_s, u"Segreta"_s);
  EXPECT_TRUE(caricata<Mdiorza>());
}

TEST_F(ProvaIngresso, AStoreThatCannotBeReadStopsTheStartAndStaysAsItIs) {
  const QString file = percorso(u"0_1.chk"_s);
  const QByteArray buono = contenuto(file);
  const QString altro = percorso(u"altro.chk"_s);
  Archivio(altro, u";PWD=altra", Archivio::Modo::nuovo).esegui_copione(u"CREATE TABLE login (nome_utente, password)"_s);
  for (const QByteArray& dentro : {buono.chopped(300), QByteArray(), contenuto(altro)}) {
    scrivi(file, dentro);
    Fallimenti f;
    esegui_regola(mostra<frmLogin>);
    EXPECT_EQ(f.numeri, std::vector{3343}) << dentro.size();
    EXPECT_EQ(contenuto(file), dentro) << dentro.size();
    EXPECT_FALSE(caricata<Mdiorza>());
    abbandona_schermate();
  }
  QFile::remove(file);
  Fallimenti f;
  esegui_regola(mostra<frmLogin>);
  EXPECT_EQ(f.numeri, std::vector{3024});
  EXPECT_FALSE(QFile::exists(file));
}

TEST_F(ProvaIngresso, TheMainWindowNeedsThePracticesStore) {
  QFile::remove(percorso(u"studio.jed"_s));
  Dialogo d({primo_avviso});
  Fallimenti f;
  mostra<frmLogin>();
  entra(u"Anna"_s, u"segreta"_s);
  EXPECT_EQ(f.numeri, std::vector{3024});
}
