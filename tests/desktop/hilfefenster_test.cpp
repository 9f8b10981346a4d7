#include "desktop/hilfefenster.h"

#include "desktop/nebenfenster.h"
#include "programmprobe.h"

#include <QMessageBox>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>
#include <fstream>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;

/// The program with the compiled help of the build beside it.
class HilfefensterTest : public test::Programmprobe {
  protected:
    HilfefensterTest() {
        for (const char* datei : {"Velmaris_d.chm", "Velmaris_e.chm"})
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

TEST_F(HilfefensterTest, FehlendeUndBeschaedigteDateienWerdenGenannt) {
    starte("e");
    const std::filesystem::path datei = ordner / "Velmaris_e.chm";
    const std::string ganz = test::inhalt(datei);
    struct Fall {
        const char* name;
        std::string bytes;
        const char* grund;
    };
    for (const Fall& fall : {Fall{"empty", "", "damaged"},
                             {"no help", "<html>" + std::string(5000, ' '), "damaged"},
                             {"cut off in the directory", ganz.substr(0, 300), "damaged"},
                             {"cut off in the pages", ganz.substr(0, ganz.size() / 2), "damaged"}}) {
        std::ofstream(datei, std::ios::binary) << fall.bytes;
        const std::string text = meldung_bei([&] { f1(such("E_Geometrie", "l_sb")); });
        EXPECT_NE(text.find("Velmaris_e.chm"), std::string::npos) << fall.name << ": " << text;
        EXPECT_NE(text.find(fall.grund), std::string::npos) << fall.name << ": " << text;
        EXPECT_FALSE(fenster().isVisible()) << fall.name;
    }
    std::filesystem::remove(datei);
    const std::string text = meldung_bei([&] { menue("mnuQuestHilfe").trigger(); });
    EXPECT_EQ(text, datei.string() + ": The help file was not found.");
    std::ofstream(datei, std::ios::binary) << ganz;
    f1(such("E_Geometrie", "l_sb"));
    EXPECT_EQ(gezeigt(), "/E_Geometrie.html") << "once the file is back, so is the help";
}

}  // namespace
}  // namespace velmaris
