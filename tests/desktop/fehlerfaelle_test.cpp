#include "project/projektdatei.h"
#include "tests/desktop/programmprobe.h"
#include "tests/testprogramm.h"
#include "tests/volle_festplatte.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QTest>

namespace velmaris {
namespace {

using test::antworte;
using test::waehle_datei;

/// What goes wrong around project files, on the real windows.
class FehlerfaelleTest : public test::Programmprobe {
  protected:
    /// A project file as the program writes it, with one line changed.
    [[nodiscard]] std::string projekt_mit(std::size_t zeile, const std::string& text) {
        std::vector<std::string> zeilen = test::projektzeilen(p());
        zeilen.at(zeile - 1) = text;
        return test::projekttext(zeilen);
    }

    /// Opens a file by the menu; returns the message that follows, main text and what stands below it.
    std::string meldung_beim_oeffnen(const std::filesystem::path& datei) {
        std::string text;
        p().Geaendert = 0;
        test::am_naechsten_dialog<QFileDialog>([&](QFileDialog&) {
            waehle_datei(datei);
            antworte(QMessageBox::Ok, [&](QMessageBox& box) {
                text = (box.text() + QLatin1Char('|') + box.informativeText()).toStdString();
            });
        });
        menue("mnuFileOeffnen").trigger();
        return text;
    }

    void laenge_aendern() {
        auto& laenge = such<Scrollleiste>("E_Geometrie", "l_sb");
        QTest::keyClick(&laenge, Qt::Key_Right);
    }
};

TEST_F(FehlerfaelleTest, SchlechteDateienWerdenGenanntUndDasProgrammBleibtBedienbar) {
    starte("e");
    const std::string gut = projekt_mit(2, " 14");
    struct Fall {
        const char* name;
        std::string bytes;
        std::vector<std::string> worte;  ///< of the message
    };
    const std::vector<Fall> faelle{
        {"version.vel", projekt_mit(1, "Haus"), {"This is not a valid Velmaris data file.", "version.vel"}},
        {"cut.vel", gut.substr(0, gut.size() / 2), {"Dateifehler!", "cut.vel, line "}},
        {"empty.vel", "", {"This is not a valid Velmaris data file.", "empty.vel"}},
        {"path.vel", projekt_mit(56, "../away.met"), {"Dateifehler!", "path.vel, line 56", "../away.met"}},
        {"station.vel",
         projekt_mit(56, "away.met"),
         {"Climatic data not found!", "away.met: file not found"}},
    };
    for (const Fall& fall : faelle) {
        const std::string text = meldung_beim_oeffnen(ordner.schreibe(fall.name, fall.bytes));
        for (const std::string& wort : fall.worte)
            EXPECT_NE(text.find(wort), std::string::npos) << fall.name << ": " << text;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << fall.name;
        p().Geaendert = 0;
    }
    EXPECT_NE(meldung_beim_oeffnen(ordner / "nowhere.vel").find("nowhere.vel"), std::string::npos);

    p().Geaendert = 0;
    waehle_datei(ordner.schreibe("gut.vel", gut));
    menue("mnuFileOeffnen").trigger();
    EXPECT_EQ(p().l, 14.0F);
    EXPECT_EQ(p().FormLoadGuard, 0);
    EXPECT_EQ(programm->fenster().windowTitle(), "Velmaris - GUT.VEL");
}

TEST_F(FehlerfaelleTest, VolleFestplatteUndGesperrterOrdnerLassenDasAlteProjekt) {
    starte("d");
    const std::filesystem::path haus = ordner / "haus.vel";
    waehle_datei(haus);
    menue("mnuFileunter").trigger();
    const std::string vorher = test::inhalt(haus);
    laenge_aendern();
    std::string text;
    const auto merke = [&text](QMessageBox& box) { text = box.text().toStdString(); };
    {
        const test::VolleFestplatte voll(200);
        antworte(QMessageBox::Ok, merke);
        menue("mnuFileSpeichern").trigger();
    }
    EXPECT_NE(text.find("haus.vel"), std::string::npos) << text;
    EXPECT_EQ(test::inhalt(haus), vorher);
    EXPECT_EQ(p().Geaendert, 1);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner.pfad()), {}), 3)
        << "klima, Grafiken and the project: nothing half written stays";

    text.clear();
    test::am_naechsten_dialog<QFileDialog>([&](QFileDialog&) {
        waehle_datei(haus / "zimmer.vel");
        antworte(QMessageBox::Ok, merke);
    });
    menue("mnuFileunter").trigger();
    EXPECT_NE(text.find("zimmer.vel"), std::string::npos) << text;
    EXPECT_EQ(p().Geaendert, 1);

    waehle_datei(ordner / "zweites.vel");
    menue("mnuFileunter").trigger();
    EXPECT_EQ(p().Geaendert, 0);
    EXPECT_NE(test::inhalt(ordner / "zweites.vel"), vorher);
}

TEST_F(FehlerfaelleTest, FremderSprachbuchstabeLaeuftOhneTexteBeiderSprachen) {
    ordner.schreibe("klima/typ.dat", "x\r\n");
    const Befehlszeile befehl("");
    const std::string sprache =
        sprache_bestimmen(befehl, ordner.pfad(), {}, [] { return std::optional<std::string>(); });
    ASSERT_EQ(sprache, "x");
    programm = std::make_unique<Programm>(ordner.pfad(), sprache, befehl);
    programm->starten();
    klicke(*QApplication::activeModalWidget()->findChild<QAbstractButton*>(QStringLiteral("OK_Button")));
    ASSERT_TRUE(programm->fenster().isVisible());
    EXPECT_EQ(menue("mnuFile").text(), "&Datei") << "the design stays where no English is laid over it";
    for (Ebenenleiste* leiste : {&programm->haupt().e_menue, &programm->haupt().a_menue}) {
        for (const Ebenenleiste::Eintrag& eintrag : leiste->eintraege()) {
            leiste->klicke(eintrag.knopf->name);
            EXPECT_FALSE(such("Haupt", eintrag.ebene->name.c_str()).grab().isNull());
        }
    }
    laenge_aendern();
    EXPECT_EQ(p().l, 11.0F);
}

}  // namespace
}  // namespace velmaris
