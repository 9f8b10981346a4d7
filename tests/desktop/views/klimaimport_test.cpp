#include "climate/planes/E_Klimaimport.h"
#include "desktop/platform/qt_text.h"
#include "tests/climate/import/importprobe.h"
#include "tests/desktop/programmprobe.h"
#include "toolkit/text.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::antworte;
using test::Quellbau;
using testing::ElementsAre;

constexpr const char* ebene = "E_Klimaimport";

/// The import window in the whole program.
class KlimaimportTest : public test::Programmprobe {
  protected:
    void oeffne_fenster(const std::string& sprache) {
        starte(sprache);
        menue("mnuKlimaImportieren").trigger();
        aktiviere();
    }

    /// The window gets the keys, as window managers see to.
    void aktiviere() {
        QWidget& fenster = such("Haupt", ebene);
        fenster.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &fenster; }));
    }

    /// Picks a source in the file dialog, by the mouse and the keyboard.
    void waehle_quelle(const std::string& name, const std::string& bytes) {
        test::waehle_datei(ordner.schreibe(name, bytes));
        klicke(such<QAbstractButton>(ebene, "Command1"));
        aktiviere();
    }

    void tippe(const char* feld, const char* text) {
        auto& zeile = such<QLineEdit>(ebene, feld);
        QTest::mouseClick(&zeile, Qt::LeftButton);
        zeile.selectAll();
        QTest::keyClicks(&zeile, QString::fromUtf8(text));
    }

    void waehle(const char* liste, int zeile) { test::waehle_zeile(such<QComboBox>(ebene, liste), zeile); }

    /// Presses the start button; the input box gets that name.
    void starte_import(const QString& name) {
        am_naechsten_dialog<QInputDialog>([=](QInputDialog& box) {
            box.setTextValue(name);
            QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        klicke(such<QAbstractButton>(ebene, "Command2"));
    }

    [[nodiscard]] E_Klimaimport& e() { return programm->haupt().e_klimaimport; }

    [[nodiscard]] std::string station(const std::string& name) const {
        const auto datei = ordner / ("klima/" + name + ".met");
        return std::filesystem::exists(datei) ? test::inhalt(datei) : std::string();
    }
};

/// Columns with tabs between them: temperature, something else, total, diffuse.
std::string tabelle() {
    return "Kopf\n" + Quellbau{}.reihen([](const test::Quellwerte& w) {
        return test::dezimal(w.Ta) + "\tx\t" + std::to_string(w.G_Gh) + "\t" + std::to_string(w.G_Dh) +
               "\t5\t6\t7\t8";
    });
}

/// Columns with blanks between them, right-aligned.
std::string spaltendatei() {
    return "  Ta   Gh   Dh\n" + Quellbau{}.reihen([](const test::Quellwerte& w) {
        std::string zeile;
        for (const std::string& text : {test::dezimal(w.Ta), std::to_string(w.G_Gh), std::to_string(w.G_Dh)})
            zeile += std::string(6 - text.size(), ' ') + text;
        return zeile;
    });
}

/// A source whose longitude and time zone do not fit each other.
std::string ferne_zeitzone() {
    std::string text = Quellbau{}.epw();
    return text.replace(text.find("7.50,1.0"), 8, "-17.5,11");
}

/// The pictures are kept in the folder that VELMARIS_BILDER names, to be looked at.
TEST_F(KlimaimportTest, NichtsIstAbgeschnitten) {
    const QTemporaryDir fluechtig;
    const QString zielordner = qEnvironmentVariable("VELMARIS_BILDER", fluechtig.path());
    struct Fall {
        const char* bild;
        std::string quelle;
        const char* ort;
        int spalte;
    };
    const std::vector<Fall> faelle{{"leer", "", "", 1},
                                   {"tabulator", tabelle(), "Łódź, Zoo", 1},
                                   {"spalten", spaltendatei(), "", 1},
                                   {"meteonorm", Quellbau{}.meteonorm(), "", 1},
                                   {"epw", Quellbau{}.epw(), "", 13},
                                   {"zeitzone", ferne_zeitzone(), "Łódź, Zoo", 7}};
    for (const char* sprache : {"d", "e"}) {
        oeffne_fenster(sprache);
        QWidget& fenster = such("Haupt", ebene);
        for (const Fall& fall : faelle) {
            if (!fall.quelle.empty()) waehle_quelle("quelle.txt", fall.quelle);
            if (fall.bild == std::string("spalten")) e().Datentrennung.setze(2);
            if (e().Kopfzeilen.text().empty()) e().Kopfzeilen.tippe("1");
            if (*fall.ort != '\0') e().Standortname.schreibe(fall.ort);
            e().AlleEingabenTesten();
            e().vorschau.HScroll1.bewege(fall.spalte);
            e().Fortschritt.zeige(fall.spalte > 1);
            QTest::qWait(50);
            EXPECT_LE(fenster.width(), 1024) << fall.bild;
            EXPECT_LE(fenster.height(), 700) << fall.bild;
            test::pruefe_platz(fenster, std::string(sprache) + " " + fall.bild);
            const QString datei =
                QStringLiteral("import_%1_%2.png").arg(QLatin1String(fall.bild), QLatin1String(sprache));
            EXPECT_TRUE(fenster.grab().save(zielordner + QLatin1Char('/') + datei));
        }
    }
}

TEST_F(KlimaimportTest, DerFokusGehtVonObenNachUnten) {
    oeffne_fenster("d");
    waehle_quelle("quelle.txt", tabelle());
    e().Kopfzeilen.tippe("1");
    such<QLineEdit>(ebene, "DateinameBox").setFocus();
    std::vector<std::string> folge;
    for (int i = 0; i < 30; ++i) {
        const std::string name = utf8(QApplication::focusWidget()->objectName());
        if (!folge.empty() && folge.front() == name) break;
        folge.push_back(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(folge, ElementsAre("DateinameBox", "Command1", "Dateiansicht", "Datentrennung0", "Kopfzeilen",
                                   "Dezimalzeichen", "Standortname", "Land", "Breitengrad", "Breitezusatz",
                                   "Laengengrad", "Laengezusatz", "GMT", "Zeitzone", "Datenreihe1",
                                   "Datenreihe2", "Datenreihe3", "Datenreihe4", "Datenreihe5", "Datenreihe6",
                                   "VScroll1", "HScroll1", "Command3"));
}

TEST_F(KlimaimportTest, JedesBedienelementWirkt) {
    oeffne_fenster("e");
    EXPECT_FALSE(such(ebene, "Frame2").isVisible());
    EXPECT_FALSE(such(ebene, "Fortschritt").isVisible());
    waehle_quelle("quelle.txt", tabelle());
    EXPECT_TRUE(such(ebene, "Frame2").isVisible());
    EXPECT_TRUE(such<QPlainTextEdit>(ebene, "Dateiansicht").toPlainText().startsWith("Kopf\n-15.0\tx\t0"));
    EXPECT_EQ(p().Datei, pfadtext(ordner / "quelle.txt"));

    tippe("Kopfzeilen", "1x");
    EXPECT_EQ(such<QLineEdit>(ebene, "Kopfzeilen").text(), "1");
    EXPECT_EQ(such<QLabel>(ebene, "Zelle1_1").text(), "-15.0");
    EXPECT_EQ(such<QLabel>(ebene, "Zeilenzaehler1").text(), "2");
    for (const char* leiste : {"VScroll1", "HScroll1"}) {
        auto& feld = such<Scrollleiste>(ebene, leiste);
        QTest::mouseClick(&feld, Qt::LeftButton, {}, test::teil(feld, QStyle::SC_ScrollBarAddLine));
    }
    EXPECT_EQ(such<QLabel>(ebene, "Zeilenzaehler1").text(), "3");
    EXPECT_EQ(such<QLabel>(ebene, "Spalte1").text(), "2");
    EXPECT_EQ(such<QLabel>(ebene, "Zelle1_2").text(), "42");
    waehle("Datenreihe6", 4);
    EXPECT_EQ(e().vorschau.Spaltenbelegung(7), 4);
    QTest::keyClick(&such(ebene, "HScroll1"), Qt::Key_Left);
    EXPECT_EQ(such<QComboBox>(ebene, "Datenreihe6").currentIndex(), 0);

    for (const int option : {1, 2, 0}) {
        auto& knopf = such<QRadioButton>(ebene, ("Datentrennung" + std::to_string(option)).c_str());
        QTest::mouseClick(&knopf, Qt::LeftButton, {}, QPoint(8, knopf.height() / 2));
        EXPECT_EQ(e().Datentrennung.gesetzt(), option);
        EXPECT_EQ(e().vorschau.Spaltenzahl, option == 0 ? 8 : 1);
    }
    for (const char* liste : {"Dezimalzeichen", "Breitezusatz", "Laengezusatz", "GMT"})
        waehle(liste, 1);
    EXPECT_EQ(
        e().Dezimalzeichen.index() + e().Breitezusatz.index() + e().Laengezusatz.index() + e().GMT.index(),
        4);
    const auto& start = such(ebene, "Command2");
    for (const auto& [feld, text] : {std::pair{"Standortname", "Bern, Zoo"},
                                     {"Land", "Schweiz"},
                                     {"Breitengrad", "4a7-,3"},
                                     {"Laengengrad", "8.5"},
                                     {"Zeitzone", "1"}}) {
        EXPECT_FALSE(start.isEnabled()) << feld;
        tippe(feld, text);
    }
    EXPECT_TRUE(start.isEnabled());
    auto& breite = such<QLineEdit>(ebene, "Breitengrad");
    EXPECT_EQ(breite.text(), "47,3");
    QTest::keyClick(&breite, Qt::Key_Left);
    QTest::keyClicks(&breite, QStringLiteral("x5"));
    EXPECT_EQ(breite.text(), "47,53") << "the cursor stays where it was";
    EXPECT_TRUE(such<QLabel>(ebene, "Ortshinweis").text().startsWith("A comma in the name"));

    tippe("DateinameBox", (ordner / "fehlt.txt").string().c_str());
    antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Error");
        EXPECT_EQ(box.parentWidget()->objectName(), ebene) << "above the window that asks";
    });
    QTest::keyClick(&such(ebene, "DateinameBox"), Qt::Key_Return);
    klicke(such<QAbstractButton>(ebene, "Command3"));
    EXPECT_FALSE(such("Haupt", ebene).isVisible());
}

TEST_F(KlimaimportTest, EineTabellenDateiWirdEineStation) {
    oeffne_fenster("d");
    waehle_quelle("Mein Ort.txt", tabelle());
    tippe("Kopfzeilen", "1");
    for (const auto& [feld, text] : {std::pair{"Standortname", "Ort"},
                                     {"Land", "Land"},
                                     {"Breitengrad", "0.5"},
                                     {"Laengengrad", "7"},
                                     {"Zeitzone", "1"}})
        tippe(feld, text);
    antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "Benötigt werden entweder Daten zur Gestamt- oder zur Direktstrahlung");
    });
    klicke(such<QAbstractButton>(ebene, "Command2"));
    waehle("Datenreihe1", 1);
    waehle("Datenreihe3", 2);
    waehle("Datenreihe4", 4);
    am_naechsten_dialog<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.textValue(), "Mein Ort");
        EXPECT_TRUE(box.labelText().contains("'Ort (Land)'"));
        antworte(QMessageBox::Ok, [](QMessageBox& meldung) {
            EXPECT_EQ(meldung.text(),
                      "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die gerade importierten "
                      "Daten verwenden zu können.");
        });
        QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    klicke(such<QAbstractButton>(ebene, "Command2"));
    EXPECT_FALSE(such("Haupt", ebene).isVisible());
    EXPECT_TRUE(
        station("Mein Ort")
            .starts_with("Ort (Land)\r\nBreitengrad:   0.5\r\nL\xE4ngengrad:   -7\r\nZeitzone:     -1\r\n\r\n"
                         "   dy   Ta G_Gh G_Dh\r\n    1-15.0    0    0\r\n    1-11.3   42   13\r\n"));
    EXPECT_EQ(test::zeilen(station("Mein Ort")).size(), 8766U);
}

TEST_F(KlimaimportTest, ErkannteDateienBrauchenWenigUndDerNeustartBietetSieAn) {
    oeffne_fenster("d");
    waehle_quelle("bern.dat", Quellbau{}.meteonorm());
    tippe("Land", "Schweiz");
    antworte(QMessageBox::Ok);
    starte_import("Bern");
    menue("mnuKlimaImportieren").trigger();
    EXPECT_EQ(such<QLineEdit>(ebene, "Land").text(), "");
    waehle_quelle("bern.epw", Quellbau{}.epw());
    EXPECT_EQ(such<QLabel>(ebene, "Erkannt").text(),
              "Die Datei wurde als EnergyPlus-Wetterdatei (.epw) erkannt.");
    const std::string meteonorm = station("Bern");
    antworte(QMessageBox::No,
             [](QMessageBox& box) { EXPECT_TRUE(box.text().startsWith("Der angegebene Dateiname wird")); });
    starte_import("Bern");
    EXPECT_EQ(station("Bern"), meteonorm);
    EXPECT_TRUE(such("Haupt", ebene).isVisible());
    antworte(QMessageBox::Ok);
    starte_import("bümpliz");
    EXPECT_NE(station("bümpliz"), "");

    starte("e");
    const double alt = p().qh;
    klicke(such<QAbstractButton>("E_Menue", "Klima"));
    programm->haupt().e_klima.Option.setze(nummer(Klimabereich::welt));
    auto& liste = such<QComboBox>("E_Klima", "Klimaregionwahl2");
    ASSERT_GE(liste.findText("Bern (CHE)"), 0);
    test::waehle_zeile(liste, liste.findText("Bern (CHE)"));
    EXPECT_EQ(p().Klimadatei, "bümpliz.met");
    const double neu = p().qh;
    EXPECT_NE(neu, alt);
    test::waehle_datei(ordner / "haus.vel");
    menue("mnuFileunter").trigger();
    menue("mnuFileNeu").trigger();
    EXPECT_EQ(p().Klimadatei, "trier.met");
    test::waehle_datei(ordner / "haus.vel");
    menue("mnuFileOeffnen").trigger();
    EXPECT_EQ(p().Klimadatei, "bümpliz.met");
    EXPECT_EQ(p().qh, neu);
}

TEST_F(KlimaimportTest, EinAbbruchLaesstKeineDatei) {
    oeffne_fenster("d");
    waehle_quelle("bern.epw", Quellbau{}.epw());
    auto& fenster = such("Haupt", ebene);
    for (const bool schliessen : {false, true}) {
        bool gesehen = false;
        QTimer::singleShot(0, &fenster, [&] {
            gesehen = true;
            EXPECT_TRUE(such<QProgressBar>(ebene, "Fortschritt").isVisible());
            for (const char* gesperrt :
                 {"DateinameBox", "Command1", "Datentrennung0", "Kopfzeilen", "Dezimalzeichen", "Land", "GMT",
                  "Datenreihe1", "VScroll1", "HScroll1", "Command2"})
                EXPECT_FALSE(such(ebene, gesperrt).isEnabled()) << gesperrt;
            schliessen ? static_cast<void>(fenster.close())
                       : klicke(such<QAbstractButton>(ebene, "Command3"));
        });
        klicke(such<QAbstractButton>(ebene, "Command2"));
        EXPECT_TRUE(gesehen);
        EXPECT_TRUE(fenster.isVisible());
        EXPECT_FALSE(such(ebene, "Fortschritt").isVisible());
        EXPECT_TRUE(such(ebene, "Command2").isEnabled());
        EXPECT_TRUE(such(ebene, "Datenreihe1").isEnabled());
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner / "klima"), {}), 2);
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_FALSE(fenster.isVisible());
}

TEST_F(KlimaimportTest, F1ZeigtSeineHilfe) {
    oeffne_fenster("d");
    std::string gezeigt;
    programm->plattform().hilfe_zeigen = [&](const std::filesystem::path&, const std::string& seite) {
        gezeigt = seite;
    };
    QTest::keyClick(&such("Haupt", ebene), Qt::Key_F1);
    EXPECT_EQ(gezeigt, ebene);
}

}  // namespace
}  // namespace velmaris
