#include "climate/planes/E_Klimaimport.h"
#include "tests/climate/import/importprobe.h"
#include "tests/desktop/programmprobe.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScreen>

namespace velmaris {
namespace {

using test::antworte;
using test::Quellbau;

constexpr const char* ebene = "E_Klimaimport";

/// The import window in the whole program.
class KlimaimportTest : public test::Programmprobe {
  protected:
    void oeffne_fenster(const std::string& sprache) {
        starte(sprache);
        menue("mnuKlimaImportieren").trigger();
        fenster().activateWindow();
        ASSERT_TRUE(aktiv(fenster()));
    }

    [[nodiscard]] QWidget& fenster() { return such("Haupt", ebene); }

    /// Picks a source in the file dialog, by the mouse and the keyboard.
    void waehle_quelle(const std::string& name, const std::string& bytes) {
        test::waehle_datei(ordner.schreibe(name, bytes));
        klicke(such<QAbstractButton>(ebene, "Command1"));
        fenster().activateWindow();
        ASSERT_TRUE(aktiv(fenster()));
    }

    void tippe(const char* feld, const char* text) {
        Programmprobe::tippe(such<QLineEdit>(ebene, feld), text);
    }

    [[nodiscard]] E_Klimaimport& e() { return haupt().e_klimaimport; }
};

/// Columns with tabs between them: temperature, something else, total, diffuse.
std::string tabelle() {
    return "Kopf\n" + Quellbau{}.reihen([](const test::Quellwerte& w) {
        return test::dezimal(w.Ta) + "\tx\t" + std::to_string(w.G_Gh) + "\t" + std::to_string(w.G_Dh) +
               "\t5\t6\t7\t8";
    });
}

/// From above to below, each frame from the left; and nothing is cut off.
TEST_F(KlimaimportTest, DerFokusGehtVonObenNachUnten) {
    starte("d");
    programm->fenster().move(0, 400);
    menue("mnuKlimaImportieren").trigger();
    EXPECT_EQ(fenster().y(), fenster().screen()->availableGeometry().bottom() - 670) << "room for all steps";
    waehle_quelle("quelle.txt", tabelle());
    e().Kopfzeilen.tippe("1");
    such<QLineEdit>(ebene, "DateinameBox").setFocus();
    std::string folge;
    for (int i = 0; i < 23; ++i) {
        folge += fokus() + " ";
        taste(Qt::Key_Tab);
    }
    EXPECT_EQ(folge,
              "DateinameBox Command1 Dateiansicht Datentrennung0 Kopfzeilen Dezimalzeichen Standortname Land "
              "Breitengrad Breitezusatz Laengengrad Laengezusatz GMT Zeitzone Datenreihe1 Datenreihe2 "
              "Datenreihe3 Datenreihe4 Datenreihe5 Datenreihe6 VScroll1 HScroll1 Command3 ");
    EXPECT_EQ(fokus(), "DateinameBox");
    EXPECT_EQ(such(ebene, "Land").accessibleName(), such<QLabel>(ebene, "Label_Land").text());
    EXPECT_LE(fenster().height(), 680);
    test::pruefe_platz(fenster(), "d");
}

TEST_F(KlimaimportTest, JedesBedienelementWirkt) {
    oeffne_fenster("e");
    EXPECT_FALSE(such(ebene, "Frame2").isVisible());
    waehle_quelle("quelle.txt", tabelle());
    EXPECT_TRUE(such<QPlainTextEdit>(ebene, "Dateiansicht").toPlainText().startsWith("Kopf\n-15.0\tx\t0"));
    tippe("Kopfzeilen", "1x");
    EXPECT_EQ(such<QLineEdit>(ebene, "Kopfzeilen").text(), "1");
    for (const char* leiste : {"VScroll1", "HScroll1"}) {
        auto& feld = such<Scrollleiste>(ebene, leiste);
        QTest::mouseClick(&feld, Qt::LeftButton, {}, test::teil(feld, QStyle::SC_ScrollBarAddLine));
    }
    EXPECT_EQ(such<QLabel>(ebene, "Zeilenzaehler1").text(), "3");
    EXPECT_EQ(such<QLabel>(ebene, "Zelle1_2").text(), "42");
    for (const char* liste : {"Datenreihe6", "Dezimalzeichen", "Breitezusatz", "Laengezusatz", "GMT"})
        test::waehle_zeile(such<QComboBox>(ebene, liste), 1);
    EXPECT_EQ(e().vorschau.Spaltenbelegung(7), 1);
    for (const Auswahlliste* liste : {&e().Dezimalzeichen, &e().Breitezusatz, &e().Laengezusatz, &e().GMT})
        EXPECT_EQ(liste->index(), 1) << liste->name;
    klicke(ebene, "Datentrennung1");
    EXPECT_EQ(e().vorschau.Spaltenzahl, 1);
    for (const char* feld : {"Standortname", "Land", "Breitengrad", "Laengengrad", "Zeitzone"}) {
        EXPECT_FALSE(such(ebene, "Command2").isEnabled()) << feld;
        tippe(feld, "7a,3");
    }
    EXPECT_TRUE(such(ebene, "Command2").isEnabled());
    QTest::keyClick(&such(ebene, "Zeitzone"), Qt::Key_Left);
    QTest::keyClicks(&such(ebene, "Zeitzone"), QStringLiteral("x5"));
    EXPECT_EQ(e().Zeitzone.text(), "7,53") << "the cursor stays where it was";
    tippe("DateinameBox", "fehlt.txt");
    antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget()->objectName(), ebene) << "above the window that asks";
    });
    taste(Qt::Key_Return);
    klicke(ebene, "Command3");
    EXPECT_FALSE(fenster().isVisible());
}

TEST_F(KlimaimportTest, EinAbbruchLaesstKeineDatei) {
    oeffne_fenster("d");
    waehle_quelle("bern.epw", Quellbau{}.epw());
    for (const bool schliessen : {false, true}) {
        bool gesehen = false;
        QTimer::singleShot(0, &fenster(), [&] {
            gesehen = true;
            const auto& balken = such<QProgressBar>(ebene, "Fortschritt");
            EXPECT_TRUE(balken.isVisible() && balken.value() >= 0 && balken.value() < balken.maximum());
            for (const char* gesperrt :
                 {"DateinameBox", "Command1", "Datentrennung0", "Land", "GMT", "Datenreihe1", "Command2"})
                EXPECT_FALSE(such(ebene, gesperrt).isEnabled()) << gesperrt;
            schliessen ? static_cast<void>(fenster().close()) : klicke(ebene, "Command3");
        });
        klicke(ebene, "Command2");
        EXPECT_TRUE(gesehen);
        EXPECT_TRUE(fenster().isVisible());
        EXPECT_FALSE(such(ebene, "Fortschritt").isVisible());
        EXPECT_TRUE(such(ebene, "Command2").isEnabled());
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner / "klima"), {}), 2);
    QTest::keyClick(&fenster(), Qt::Key_Escape);
    EXPECT_FALSE(fenster().isVisible());
}

}  // namespace
}  // namespace velmaris
