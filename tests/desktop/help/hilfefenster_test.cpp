#include "desktop/help/hilfefenster.h"

#include "desktop/widgets/nebenfenster.h"
#include "tests/desktop/programmprobe.h"

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
        for (const std::string datei : {"Velmaris_d.chm", "Velmaris_e.chm"})
            for (const std::string& name : {datei, datei + ".sha256"})
                std::filesystem::copy(std::filesystem::path(VELMARIS_PROGRAMMORDNER) / name, ordner / name);
    }

    Hilfefenster& fenster() { return programm->hilfefenster(); }
    template <typename Art>
    Art& teil(const char* name) {
        return *fenster().findChild<Art*>(QLatin1String(name));
    }
    QTextBrowser& seite() { return teil<QTextBrowser>("Seite"); }
    QAction& eintrag(const char* name) { return teil<QAction>(name); }

    /// Path of the page on show, empty while the window is closed.
    std::string gezeigt() {
        return fenster().isVisible() ? seite().source().path().toStdString() : std::string();
    }

    void folge(const char* ziel) { Q_EMIT seite().anchorClicked(QUrl(QLatin1String(ziel))); }

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
            text = (box.informativeText().isEmpty() ? box.text() : box.informativeText()).toStdString();
            QTest::keyClick(&box, Qt::Key_Return);  // leaves what it can leave: No is the default
        });
        tu();
        return text;
    }
};

TEST_F(HilfefensterTest, F1OeffnetDieSeiteDesFensters) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        fuer_jede_ebene([&](QWidget& ebene) {
            f1(ebene);
            EXPECT_EQ(gezeigt(), "/" + ebene.objectName().toStdString() + ".html") << sprache;
            EXPECT_GT(seite().document()->characterCount(), 300) << gezeigt();
        });
    }
    EXPECT_EQ(fenster().windowTitle(), "Energy flows - Velmaris Help");
    QKeyEvent vorab(QEvent::ShortcutOverride, Qt::Key_F1, Qt::NoModifier);
    vorab.ignore();
    QApplication::sendEvent(&such("E_Geometrie", "l_sb"), &vorab);
    EXPECT_TRUE(vorab.isAccepted()) << "no shortcut of another window takes the key";
    for (Nebenfenster* neben : programm->fenster().findChildren<Nebenfenster*>(Qt::FindDirectChildrenOnly)) {
        f1(*neben);
        EXPECT_EQ(gezeigt(), "/" + neben->objectName().toStdString() + ".html");
    }
}

TEST_F(HilfefensterTest, BlaettertInSeinenSeiten) {
    starte("d");
    const auto hat = [&](const char* was) {
        return seite().loadResource(QTextDocument::HtmlResource, QUrl(QLatin1String(was))).isValid();
    };
    EXPECT_FALSE(hat("chm:/index.html")) << "no file yet";
    menue("mnuQuestHilfe").trigger();
    EXPECT_TRUE(hat("chm:/index.html") && !hat("file:/index.html"));
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_FALSE(eintrag("Zurueck").isEnabled());
    klicke_verweis("Monatsbilanz");
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    EXPECT_FALSE(eintrag("Vor").isEnabled());
    QTest::keyClick(&seite(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(gezeigt(), "/index.html");
    eintrag("Vor").trigger();
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    eintrag("Startseite").trigger();
    EXPECT_EQ(gezeigt(), "/index.html");

    folge("file:///etc/hostname");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(meldung_bei([&] { folge("https://example.org/"); }), "https://example.org/");
    EXPECT_NE(meldung_bei([&] { folge("chm:/fehlt.html"); }).find("/fehlt.html"), std::string::npos);
    EXPECT_EQ(gezeigt(), "/index.html") << "no link leads out by itself";
    fenster().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
    QTest::keyClick(&seite(), Qt::Key_Escape);
    EXPECT_FALSE(fenster().isVisible());
}

TEST_F(HilfefensterTest, SuchtAufDerSeite) {
    starte("d");
    menue("mnuQuestHilfe").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
    folge("chm:/Dateien.html");
    auto& feld = teil<QLineEdit>("Suchtext");
    const auto& meldung = teil<QLabel>("Suchmeldung");
    const auto stelle = [&] { return seite().textCursor().selectionStart(); };
    EXPECT_FALSE(feld.isVisible());
    taste(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&feld, "PLZ.tx");
    const int getippt = stelle();
    QTest::keyClicks(&feld, "t");
    EXPECT_EQ(stelle(), getippt) << "a word that grows stays at its place";
    taste(Qt::Key_Escape);
    taste(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(feld.selectedText(), "plz.txt") << "what is selected on the page";
    QTest::keyClicks(&feld, "klima");
    const auto zahl = seite().toPlainText().count(QStringLiteral("klima"), Qt::CaseInsensitive);
    const QString vom_anfang = "Weiter vom Anfang der Seite";
    for (int i = 0; i <= 2 * zahl && meldung.text() != vom_anfang; ++i)
        taste(i % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
    const int erste = stelle();
    for (int i = 1, davor = erste; i < zahl; ++i, davor = stelle()) {
        klicke(teil<QAbstractButton>("SucheVor"));
        EXPECT_GT(stelle(), davor);
        EXPECT_TRUE(seite().viewport()->rect().contains(seite().cursorRect())) << i;
    }
    taste(Qt::Key_Enter, Qt::ShiftModifier);
    EXPECT_GT(stelle(), erste);
    QTest::keyClicks(&feld, "xyz");
    EXPECT_EQ(meldung.text(), "Nicht gefunden");
    taste(Qt::Key_Escape);
    EXPECT_FALSE(feld.isVisible());
    EXPECT_TRUE(seite().hasFocus());
}

TEST_F(HilfefensterTest, BleibtBeimModalenFensterBedienbar) {
    starte("e");
    menue("mnuQuestHilfe").trigger();
    menue("mnuQuestInfo").trigger();
    QWidget* info = QApplication::activeModalWidget();
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

/// Whatever lies beside the program in place of a help file and its checksum.
TEST_F(HilfefensterTest, FehlendeUndBeschaedigteDateienWerdenGenannt) {
    const std::filesystem::path datei = ordner / "Velmaris_e.chm";
    const std::filesystem::path summe = ordner / "Velmaris_e.chm.sha256";
    const std::string ganz = test::inhalt(datei);
    const std::string zeile = test::inhalt(summe);
    const std::string beschaedigt = "The help file is damaged.";
    const std::string ohne_summe =
        "The help file counts as damaged, since the file with its checksum is missing: "
        "Velmaris_e.chm.sha256";
    starte("e");
    using Bytes = std::optional<std::string>;
    for (const auto& [bytes, pruefzeile, grund] :
         {std::tuple<Bytes, Bytes, std::string>{ganz.substr(0, ganz.size() - 1), zeile, beschaedigt},
          {test::inhalt(ordner / "Velmaris_d.chm"), test::inhalt(ordner / "Velmaris_d.chm.sha256"),
           beschaedigt},
          {ganz, zeile + zeile, beschaedigt},
          {ganz, std::nullopt, ohne_summe},
          {std::nullopt, zeile, "The help file was not found."}}) {
        for (const auto& [ort, inhalt] : {std::pair(datei, bytes), std::pair(summe, pruefzeile)})
            inhalt ? void(ordner.schreibe(ort.filename().string(), *inhalt))
                   : void(std::filesystem::remove(ort));
        EXPECT_EQ(meldung_bei([&] { f1(such("E_Geometrie", "l_sb")); }), datei.string() + ": " + grund);
        EXPECT_FALSE(fenster().isVisible());
    }
    std::ofstream(datei, std::ios::binary) << ganz;
    f1(such("E_Geometrie", "l_sb"));
    EXPECT_EQ(gezeigt(), "/E_Geometrie.html") << "once the file is back, so is the help";
    std::ofstream(datei, std::ios::binary) << std::string(ganz.size(), '\x7f');
    folge("chm:/Sonne.html");
    EXPECT_GT(seite().document()->characterCount(), 300) << "an open help stays as it was checked";
}

}  // namespace
}  // namespace velmaris
