#include "desktop/help/hilfefenster.h"

#include "desktop/widgets/nebenfenster.h"
#include "tests/desktop/programmprobe.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>
#include <algorithm>
#include <fstream>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;

/// The program with the compiled help of the build beside it.
class HilfefensterTest : public test::Programmprobe {
  protected:
    HilfefensterTest() {
        for (const char* datei :
             {"Velmaris_d.chm", "Velmaris_d.chm.sha256", "Velmaris_e.chm", "Velmaris_e.chm.sha256"})
            std::filesystem::copy(std::filesystem::path(VELMARIS_PROGRAMMORDNER) / datei, ordner / datei);
    }

    Hilfefenster& fenster() { return programm->hilfefenster(); }
    QTextBrowser& seite() { return *fenster().findChild<QTextBrowser*>(QStringLiteral("Seite")); }
    QAction& taste(const char* name) { return *fenster().findChild<QAction*>(QLatin1String(name)); }

    /// Path of the page on show, empty while the window is closed.
    std::string gezeigt() {
        return fenster().isVisible() ? seite().source().path().toStdString() : std::string();
    }

    /// F1 on the widget that would hold the focus.
    static void f1(QWidget& ort) { QTest::keyClick(&ort, Qt::Key_F1); }

    /// Clicks a link of the page, found by its text.
    void klicke_verweis(const QString& text) {
        QTextCursor ort = seite().document()->find(text);
        while (!ort.isNull() && !ort.charFormat().isAnchor())
            ort = seite().document()->find(text, ort);
        ASSERT_FALSE(ort.isNull()) << text.toStdString();
        ort.setPosition(ort.selectionStart() + 1);
        seite().setTextCursor(ort);
        seite().ensureCursorVisible();
        // By way of the window, where a modal window over it would catch the click.
        const QPoint ziel = seite().viewport()->mapTo(&fenster(), seite().cursorRect().center());
        QTest::mouseClick(fenster().windowHandle(), Qt::LeftButton, {}, ziel);
    }

    /// The text of the message that `tu` brings up.
    static std::string meldung_bei(const std::function<void()>& tu) {
        std::string text;
        am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text().toStdString();
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        tu();
        return text;
    }
};

TEST_F(HilfefensterTest, F1OeffnetDieSeiteJederEbeneInBeidenSprachen) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        fuer_jede_ebene([&](QWidget& ebene) {
            f1(ebene);
            const std::string name = ebene.objectName().toStdString();
            EXPECT_EQ(gezeigt(), "/" + name + ".html") << sprache;
            EXPECT_GT(seite().document()->characterCount(), 300) << name;
        });
        EXPECT_EQ(fenster().windowTitle(), *sprache == 'd'
                                               ? QString::fromUtf8("Energieflüsse - Velmaris-Hilfe")
                                               : QStringLiteral("Energy flows - Velmaris Help"));
        EXPECT_TRUE(programm->fenster().isEnabled());
    }
}

TEST_F(HilfefensterTest, F1FolgtDemFokus) {
    starte("d");
    klicke(such<QAbstractButton>("E_Menue", "Daemmung"));
    struct Fall {
        const char* auf;
        const char* ort;
        const char* seite;
    };
    for (const Fall& fall : {Fall{"E_Daemmung", "kwn_sb", "/E_Daemmung.html"},
                             {"A_Uebersicht", "Monatsbutton3", "/A_Uebersicht.html"},
                             {"E_Menue", "Klima", "/E_Daemmung.html"},
                             {"A_Menue", "Klima", "/E_Daemmung.html"}}) {
        f1(such(fall.auf, fall.ort));
        EXPECT_EQ(gezeigt(), fall.seite) << fall.ort;
    }
    f1(programm->fenster());
    EXPECT_EQ(gezeigt(), "/E_Daemmung.html");

    QTest::mouseClick(&such("A_Uebersicht", "UeberGrafik"), Qt::LeftButton);
    f1(*QApplication::focusWidget());
    EXPECT_EQ(gezeigt(), "/A_Uebersicht.html") << "a click on a chart is a click on its plane";

    const auto nebenfenster = programm->fenster().findChildren<Nebenfenster*>(Qt::FindDirectChildrenOnly);
    EXPECT_GE(nebenfenster.size(), 2) << "both enlarged pictures at least";
    for (Nebenfenster* neben : nebenfenster) {
        f1(*neben);
        EXPECT_EQ(gezeigt(), "/" + neben->objectName().toStdString() + ".html");
    }
}

TEST_F(HilfefensterTest, BlaettertInSeinenSeiten) {
    starte("d");
    menue("mnuQuestHilfe").trigger();
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_FALSE(taste("Zurueck").isEnabled());
    klicke_verweis("Monatsbilanz");
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    EXPECT_EQ(fenster().windowTitle(), QStringLiteral("Die Monatsbilanz - Velmaris-Hilfe"));
    EXPECT_FALSE(taste("Vor").isEnabled());
    QTest::keyClick(&seite(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(gezeigt(), "/index.html");
    taste("Vor").trigger();
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    taste("Startseite").trigger();
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_TRUE(taste("Zurueck").isEnabled());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
    QTest::keyClick(&seite(), Qt::Key_Escape);
    EXPECT_FALSE(fenster().isVisible());
}

TEST_F(HilfefensterTest, SuchtAufDerSeite) {
    struct Fall {
        const char* sprache;
        const char* fehlt;
        const char* vom_anfang;
        const char* vom_ende;
    };
    for (const Fall& fall :
         {Fall{"d", "Nicht gefunden", "Weiter vom Anfang der Seite", "Weiter vom Ende der Seite"},
          {"e", "Not found", "Continued from the top of the page", "Continued from the end of the page"}}) {
        starte(fall.sprache);
        menue("mnuQuestHilfe").trigger();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
        Q_EMIT seite().anchorClicked(QUrl(QStringLiteral("chm:/Dateien.html")));
        auto& feld = *fenster().findChild<QLineEdit*>(QStringLiteral("Suchtext"));
        auto& meldung = *fenster().findChild<QLabel*>(QStringLiteral("Suchmeldung"));
        const auto stelle = [&] { return seite().textCursor().selectionStart(); };
        EXPECT_FALSE(feld.isVisible());

        QTest::keyClick(&seite(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(QApplication::focusWidget(), &feld);
        QTest::keyClicks(&feld, "PLZ.tx");
        const int getippt = stelle();
        QTest::keyClicks(&feld, "t");
        EXPECT_EQ(stelle(), getippt) << "a word that grows stays at its place";
        EXPECT_EQ(seite().textCursor().selectedText(), "plz.txt");
        feld.clear();
        QTest::keyClicks(&feld, "klima");
        const auto zahl = seite().toPlainText().count(QStringLiteral("klima"), Qt::CaseInsensitive);
        ASSERT_GE(zahl, 5);
        std::vector<int> stellen;
        for (int i = 0; i <= 2 * zahl && meldung.text() != QLatin1String(fall.vom_anfang); ++i)
            QTest::keyClick(&feld, i % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
        EXPECT_EQ(meldung.text(), fall.vom_anfang);
        for (int i = 0; i < zahl; ++i) {
            stellen.push_back(stelle());
            EXPECT_TRUE(seite().viewport()->rect().contains(seite().cursorRect())) << i;
            QTest::keyClick(&feld, Qt::Key_F3);
        }
        EXPECT_TRUE(std::is_sorted(stellen.begin(), stellen.end(), std::less_equal<>()));
        EXPECT_EQ(stelle(), stellen.front());
        EXPECT_EQ(meldung.text(), fall.vom_anfang);
        QTest::keyClick(&feld, Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(meldung.text(), fall.vom_ende);
        QTest::keyClick(&feld, Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_EQ(stelle(), stellen.at(stellen.size() - 2));
        EXPECT_EQ(meldung.text(), "");

        QTest::keyClicks(&feld, "xyz");
        EXPECT_EQ(meldung.text(), fall.fehlt);
        klicke(*fenster().findChild<QAbstractButton*>(QStringLiteral("SucheZurueck")));
        EXPECT_EQ(meldung.text(), fall.fehlt);
        QTest::keyClick(&feld, Qt::Key_Escape);
        EXPECT_FALSE(feld.isVisible());
        EXPECT_TRUE(fenster().isVisible());
        EXPECT_TRUE(seite().hasFocus());
        QTest::keyClick(&seite(), Qt::Key_Escape);
        EXPECT_FALSE(fenster().isVisible());
    }
}

TEST_F(HilfefensterTest, BleibtBeimModalenFensterBedienbar) {
    starte("e");
    menue("mnuQuestHilfe").trigger();
    menue("mnuQuestInfo").trigger();
    QWidget* info = QApplication::activeModalWidget();
    ASSERT_NE(info, nullptr);
    QApplication::processEvents();
    klicke_verweis("Geometry");
    EXPECT_EQ(gezeigt(), "/E_Geometrie.html") << "the help was open before";
    fenster().close();
    f1(*info);
    EXPECT_EQ(gezeigt(), "/index.html");
    klicke_verweis("Windows");
    EXPECT_EQ(gezeigt(), "/E_Fenster.html") << "the help came up over the modal window";
    QTest::keyClick(&seite(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(fenster().findChild<QLineEdit*>(QStringLiteral("Suchtext"))->hasFocus());
    info->close();
    EXPECT_TRUE(fenster().isVisible());
}

TEST_F(HilfefensterTest, VerweiseNachAussenFolgenNichtVonSelbst) {
    starte("d");
    menue("mnuQuestHilfe").trigger();
    const auto folge = [&](const char* ziel) { Q_EMIT seite().anchorClicked(QUrl(QLatin1String(ziel))); };
    folge("file:///etc/hostname");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    std::string adresse;
    am_naechsten_dialog<QMessageBox>([&](QMessageBox& box) {
        adresse = box.informativeText().toStdString();
        QTest::keyClick(&box, Qt::Key_Return);  // No is the default
    });
    folge("https://example.org/");
    EXPECT_EQ(adresse, "https://example.org/");
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_NE(meldung_bei([&] { folge("chm:/fehlt.html"); }).find("/fehlt.html"), std::string::npos);
    EXPECT_EQ(gezeigt(), "/index.html");
}

/// What may lie beside the program in place of a help file and its checksum.
class HilfedateiTest : public HilfefensterTest {
  protected:
    const std::filesystem::path datei = ordner / "Velmaris_e.chm";
    const std::filesystem::path summe = ordner / "Velmaris_e.chm.sha256";
    const std::string ganz = test::inhalt(datei);
    const std::string zeile = test::inhalt(summe);
};

TEST_F(HilfedateiTest, FehlendeUndBeschaedigteDateienWerdenGenannt) {
    starte("e");
    const std::string deutsch = test::inhalt(ordner / "Velmaris_d.chm");
    const std::string deutsche_zeile = test::inhalt(ordner / "Velmaris_d.chm.sha256");
    struct Fall {
        const char* name;
        std::optional<std::string> bytes;
        std::optional<std::string> pruefzeile;
        const char* grund;
    };
    for (const Fall& fall :
         {Fall{"empty", "", zeile, "The help file is damaged."},
          {"cut off", ganz.substr(0, ganz.size() - 1), zeile, "The help file is damaged."},
          {"longer", ganz + '\0', zeile, "The help file is damaged."},
          {"the other language", deutsch, zeile, "The help file is damaged."},
          {"the other language as a whole", deutsch, deutsche_zeile, "The help file is damaged."},
          {"empty checksum", ganz, "", "The help file is damaged."},
          {"checksum and more", ganz, zeile + zeile, "The help file is damaged."},
          {"no checksum", ganz, std::nullopt,
           "The help file counts as damaged, since the file with its checksum is missing: "
           "Velmaris_e.chm.sha256"},
          {"no file", std::nullopt, zeile, "The help file was not found."}}) {
        for (const auto& [ort, bytes] : {std::pair(datei, fall.bytes), std::pair(summe, fall.pruefzeile)}) {
            std::filesystem::remove(ort);
            if (bytes) std::ofstream(ort, std::ios::binary) << *bytes;
        }
        EXPECT_EQ(meldung_bei([&] { f1(such("E_Geometrie", "l_sb")); }), datei.string() + ": " + fall.grund)
            << fall.name;
        EXPECT_FALSE(fenster().isVisible()) << fall.name;
    }
    std::ofstream(datei, std::ios::binary) << ganz;
    f1(such("E_Geometrie", "l_sb"));
    EXPECT_EQ(gezeigt(), "/E_Geometrie.html") << "once the file is back, so is the help";
}

TEST_F(HilfedateiTest, KeinVeraendertesByteKommtZumLeser) {
    for (std::size_t ort = 0; ort < ganz.size(); ort += ort < 256 ? 1 : 499) {
        std::string bytes = ganz;
        bytes[ort] = static_cast<char>(bytes[ort] ^ (1 << ort % 8));
        std::ofstream(datei, std::ios::binary) << bytes;
        EXPECT_THROW((void)Hilfedatei(datei), Dateifehler) << ort;
    }
}

TEST_F(HilfedateiTest, EineOffeneHilfeBleibtWieSieGeprueftWurde) {
    starte("e");
    menue("mnuQuestHilfe").trigger();
    std::ofstream(datei, std::ios::binary) << std::string(ganz.size(), '\x7f');
    for (const char* name : {"/Sonne.html", "/Dateien.html", "/E_Klima.html", "/Stundensimulation.html"}) {
        Q_EMIT seite().anchorClicked(QUrl(QLatin1String("chm:") + QLatin1String(name)));
        EXPECT_EQ(gezeigt(), name);
        EXPECT_GT(seite().document()->characterCount(), 300) << name;
    }
    const std::string zuletzt = gezeigt();
    EXPECT_EQ(meldung_bei([&] { f1(such("E_Geometrie", "l_sb")); }),
              datei.string() + ": The help file is damaged.");
    EXPECT_EQ(gezeigt(), zuletzt);
}

TEST_F(HilfedateiTest, OhneOrtFuerDieKopieWirdDieserGenannt) {
    const QByteArray vorher = qgetenv("TMPDIR");
    qputenv("TMPDIR", summe.string().c_str());
    try {
        (void)Hilfedatei(datei);
        ADD_FAILURE() << "this is no folder";
    } catch (const Dateifehler& fehler) {
        EXPECT_EQ(fehler.datei(), summe.string());
    }
    qputenv("TMPDIR", vorher);
}

}  // namespace
}  // namespace velmaris
