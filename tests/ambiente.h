// A folder of stores of its own for each test, as they come with the program, and no screen left behind.
#pragma once

#include "base/archivio.h"
#include "core/dialoghi.h"
#include "core/formsched.h"
#include "core/mdiorza.h"
#include "core/registro.h"
#include "core/schermate.h"
#include "core/sessione.h"
#include "core/sezioni.h"
#include "dialogo.h"

#include <QDir>
#include <QTemporaryDir>

class Ambiente : public ::testing::Test {
 protected:
  Ambiente() {
    const QDir origine(QStringLiteral(CARTELLA_ARCHIVI));
    for (const QString& nome : origine.entryList({QStringLiteral("*.jed"), QStringLiteral("*.chk")})) {
      QFile::copy(origine.filePath(nome), cartella.filePath(nome));
    }
    QDir(cartella.path()).mkdir(QStringLiteral("help"));
    imposta_cartella(cartella.path());
  }
  ~Ambiente() override {
    abbandona_schermate();
    chiudi_archivi();
    esterno() = esterno_;
  }

  [[nodiscard]] static QString cliente(const char* nome) {
    return QStringLiteral(CARTELLA_ARCHIVI "/esempi/") + QString::fromLatin1(nome) + QStringLiteral(".orzaline");
  }
  /// The registry's rows: number, surname, and the file from the program's folder.
  static QStringList registro() {
    QStringList righe;
    for (const Iscritto& i : iscritti()) {
      righe << QStringLiteral("%1 %2 %3").arg(i.cod).arg(i.cognome, QDir(percorso({})).relativeFilePath(i.file));
    }
    return righe;
  }
  static QString banner() {
    const Mdiorza& m = schermata<Mdiorza>();
    const std::array campi{m.Txtcod, m.Txtsoggetto, m.Txtsesso, m.Txtetà, m.Txtstatura, m.Txtpeso, m.Txtbmi};
    return testi(campi, QStringLiteral("|"));
  }

  /// Puts a client's file into the archive as a general save would: folder, copy, row. Returns its number.
  static int registra(const QString& origine) {
    Iscritto i = chi_e(origine);
    const QString nome = QStringLiteral("%1_%2").arg(i.cod).arg(i.cognome.section(u' ', 0, 0));
    i.cognome = i.cognome.section(u' ', 0, 0);
    i.file = QDir(percorso(nome)).filePath(nome + QStringLiteral(".orzaline"));
    scrivi(i.file, contenuto(origine));
    iscrivi(i);
    return i.cod;
  }
  /// Opens the archive on the tab of all and chooses a client's line; false where it is not listed.
  static bool scegli_cliente(int cod) {
    schermata<Mdiorza>().cmdsopra[0]->click();
    auto& s = schermata<Formsched>();
    s.SSTabschedario->setCurrentIndex(scheda_tutti);
    for (int riga = 0; riga < s.Tabella->rowCount(); ++riga) {
      if (s.testo(riga, 0) != QString::number(cod)) continue;
      s.scegli_riga(riga);
      return true;
    }
    return false;
  }
  /// Recalls a client from the archive; true where the master data came.
  static bool richiama(int cod) {
    if (!scegli_cliente(cod)) return false;
    schermata<Formsched>().Command10[2]->click();
    return schermata<Mdiorza>().qualeform.text() == QStringLiteral("0");
  }
  /// The main window in front of all: the focus moves only in an active one.
  static void attiva_finestra() {
    auto& m = schermata<Mdiorza>();
    m.show();
    m.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m));
  }
  /// A field of the first row of a table of the working copy.
  static QVariant campo(const QString& tabella, const QString& nome) {
    return carica_riga(dati_tmp(), tabella).value(nome);
  }
  /// Recalls a client and jumps to the elaboration.
  static bool apri_elaborazione(int cod) {
    if (!richiama(cod)) return false;
    schermata<Mdiorza>().cmdsopra[5]->click();
    return schermata<Mdiorza>().qualeform.text() == QStringLiteral("8");
  }

  QTemporaryDir cartella;

 private:
  static Iscritto chi_e(const QString& file) {
    Archivio cliente(file, accesso, Archivio::Modo::sola_lettura);
    const Riga r = cliente.righe(QStringLiteral("SELECT cod, cognome FROM anagrafe")).front();
    return {r[u"cod"].toInt(), r[u"cognome"].toString(), {}};
  }

  const Esterno esterno_ = esterno();
};

/// A screen beside the main window.
template <class S>
class AmbienteDi : public Ambiente {
 protected:
  /// Opens it, or closes and opens it again.
  void apri() {
    scarica<S>();
    mostra<S>();
    f = caricata<S>();
  }

  Mdiorza& m = schermata<Mdiorza>();
  S* f{};
};
