#include "desktop/help/hilfefenster.h"

#include "desktop/widgets/nebenfenster.h"
#include "tests/desktop/programmprobe.h"

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
    QAction& eintrag(const char* name) { return *fenster().findChild<QAction*>(QLatin1String(name)); }

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
            EXPECT_EQ(gezeigt(), "/" + ebene.objectName().toStdString() + ".html") << sprache;
            EXPECT_GT(seite().document()->characterCount(), 300) << gezeigt();
        });
        EXPECT_EQ(fenster().windowTitle(), *sprache == 'd'
                                               ? QString::fromUtf8("Energieflüsse - Velmaris-Hilfe")
                                               : QStringLiteral("Energy flows - Velmaris Help"));
        EXPECT_TRUE(programm->fenster().isEnabled());
    }
}

TEST_F(HilfefensterTest, F1KenntDieNebenfenster) {
    starte("d");
    klicke("E_Menue", "Daemmung");
    f1(such("A_Menue", "Klima"));
    EXPECT_EQ(gezeigt(), "/E_Daemmung.html");
    for (Nebenfenster* neben : programm->fenster().findChildren<Nebenfenster*>(Qt::FindDirectChildrenOnly)) {
        f1(*neben);
        EXPECT_EQ(gezeigt(), "/" + neben->objectName().toStdString() + ".html");
    }
    fenster().close();
    QTest::keyClick(&such("E_Daemmung", "kwn_sb"), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(gezeigt(), "");
}

TEST_F(HilfefensterTest, BlaettertInSeinenSeiten) {
    starte("d");
    menue("mnuQuestHilfe").trigger();
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_FALSE(eintrag("Zurueck").isEnabled());
    klicke_verweis("Monatsbilanz");
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    EXPECT_EQ(fenster().windowTitle(), QStringLiteral("Die Monatsbilanz - Velmaris-Hilfe"));
    EXPECT_FALSE(eintrag("Vor").isEnabled());
    QTest::keyClick(&seite(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(gezeigt(), "/index.html");
    eintrag("Vor").trigger();
    EXPECT_EQ(gezeigt(), "/Monatsbilanz.html");
    eintrag("Startseite").trigger();
    EXPECT_EQ(gezeigt(), "/index.html");
    EXPECT_TRUE(eintrag("Zurueck").isEnabled());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
    QTest::keyClick(&seite(), Qt::Key_Escape);
    EXPECT_FALSE(fenster().isVisible());
}

TEST_F(HilfefensterTest, SuchtAufDerSeite) {
    starte("d");
    menue("mnuQuestHilfe").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
    Q_EMIT seite().anchorClicked(QUrl(QStringLiteral("chm:/Dateien.html")));
    auto& feld = *fenster().findChild<QLineEdit*>(QStringLiteral("Suchtext"));
    const auto& meldung = *fenster().findChild<QLabel*>(QStringLiteral("Suchmeldung"));
    const auto druecke = [this](const char* name) {
        klicke(*fenster().findChild<QAbstractButton*>(QLatin1String(name)));
    };
    const auto stelle = [&] { return seite().textCursor().selectionStart(); };
    EXPECT_FALSE(feld.isVisible());
    taste(Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(QApplication::focusWidget(), &feld);
    QTest::keyClicks(&feld, "PLZ.tx");
    const int getippt = stelle();
    QTest::keyClicks(&feld, "t");
    EXPECT_EQ(stelle(), getippt) << "a word that grows stays at its place";
    EXPECT_EQ(seite().textCursor().selectedText(), "plz.txt");
    const QPalette farben = seite().palette();
    EXPECT_EQ(farben.color(QPalette::Inactive, QPalette::Highlight),
              farben.color(QPalette::Active, QPalette::Highlight));
    taste(Qt::Key_Escape);
    taste(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(feld.selectedText(), "plz.txt") << "what is selected on the page";
    QTest::keyClicks(&feld, "klima");
    const auto zahl = seite().toPlainText().count(QStringLiteral("klima"), Qt::CaseInsensitive);
    ASSERT_GE(zahl, 5);
    const QString vom_anfang = "Weiter vom Anfang der Seite";
    for (int i = 0; i <= 2 * zahl && meldung.text() != vom_anfang; ++i)
        taste(i % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
    EXPECT_EQ(meldung.text(), vom_anfang);
    std::vector<int> stellen;
    for (int i = 0; i < zahl; ++i) {
        stellen.push_back(stelle());
        EXPECT_TRUE(seite().viewport()->rect().contains(seite().cursorRect())) << i;
        druecke("SucheVor");
    }
    EXPECT_TRUE(std::is_sorted(stellen.begin(), stellen.end(), std::less_equal<>()));
    EXPECT_EQ(stelle(), stellen.front());
    EXPECT_EQ(meldung.text(), vom_anfang);
    QTest::keyClick(&feld, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(meldung.text(), "Weiter vom Ende der Seite");
    QTest::keyClick(&feld, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(stelle(), stellen.at(stellen.size() - 2));
    EXPECT_EQ(meldung.text(), "");
    QTest::keyClicks(&feld, "xyz");
    EXPECT_EQ(meldung.text(), "Nicht gefunden");
    druecke("SucheZurueck");
    EXPECT_EQ(meldung.text(), "Nicht gefunden");
    feld.clear();
    taste(Qt::Key_F3);
    EXPECT_EQ(meldung.text(), "") << "nothing is sought";
    druecke("SucheSchliessen");
    EXPECT_FALSE(feld.isVisible());
    EXPECT_TRUE(seite().hasFocus());
    taste(Qt::Key_F3);
    EXPECT_TRUE(feld.isVisible());
    taste(Qt::Key_Escape);
    taste(Qt::Key_Escape);
    EXPECT_FALSE(fenster().isVisible());
}

/// What stands on the window, with its keys.
TEST_F(HilfefensterTest, SprichtDieSprache) {
    for (const auto& [sprache, erwartet] :
         {std::pair{"d",
                    "← Zurück (Alt+Left)|→ Vor (Alt+Right)|Startseite (Alt+Home)|Suchen (Ctrl+F)|"
                    "Nächste Stelle (F3, Eingabe)|Vorige Stelle (Umschalt+F3, Umschalt+Eingabe)|"
                    "Schließen (Esc)|Auf dieser Seite suchen:"},
          {"e",
           "← Back (Alt+Left)|→ Forward (Alt+Right)|Start page (Alt+Home)|Find (Ctrl+F)|"
           "Next (F3, Enter)|Previous (Shift+F3, Shift+Enter)|Close (Esc)|Find on this page:"}}) {
        starte(sprache);
        std::string texte;
        for (const char* name :
             {"Zurueck", "Vor", "Startseite", "Suchen", "SucheVor", "SucheZurueck", "SucheSchliessen"}) {
            const auto* teil = fenster().findChild<QObject*>(QLatin1String(name));
            const QString text = teil->property("text").toString();
            const QString hilfe = teil->property("toolTip").toString();
            const QString kurz = teil->property("shortcut").value<QKeySequence>().toString();
            texte +=
                (text + (kurz.isEmpty() ? hilfe.mid(hilfe.indexOf(" (")) : " (" + kurz + ")")).toStdString();
            texte += "|";
            EXPECT_TRUE(text.endsWith(hilfe.section(" (", 0, 0))) << hilfe.toStdString();
        }
        texte += fenster().findChild<QLineEdit*>("Suchtext")->accessibleName().toStdString();
        EXPECT_EQ(texte, erwartet);
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
    const std::string deutsch = test::inhalt(ordner / "Velmaris_d.chm");
    const std::string deutsche_zeile = test::inhalt(ordner / "Velmaris_d.chm.sha256");
    const std::string beschaedigt = "The help file is damaged.";
    const std::string ohne_summe =
        "The help file counts as damaged, since the file with its checksum is missing: "
        "Velmaris_e.chm.sha256";
    using Bytes = std::optional<std::string>;
    for (const auto& [bytes, pruefzeile, grund] :
         {std::tuple<Bytes, Bytes, std::string>{"", zeile, beschaedigt},
          {ganz.substr(0, ganz.size() - 1), zeile, beschaedigt},
          {deutsch, deutsche_zeile, beschaedigt},
          {ganz, zeile + zeile, beschaedigt},
          {ganz, std::nullopt, ohne_summe},
          {std::nullopt, zeile, "The help file was not found."}}) {
        for (const auto& [ort, inhalt] : {std::pair(datei, bytes), std::pair(summe, pruefzeile)}) {
            std::filesystem::remove(ort);
            if (inhalt) std::ofstream(ort, std::ios::binary) << *inhalt;
        }
        try {
            (void)Hilfedatei(datei);
            ADD_FAILURE() << grund;
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.text("e"), datei.string() + ": " + grund);
            EXPECT_NE(fehler.text("d"), fehler.text("e"));
        }
    }
    starte("e");
    EXPECT_EQ(meldung_bei([&] { f1(such("E_Geometrie", "l_sb")); }),
              datei.string() + ": The help file was not found.");
    EXPECT_FALSE(fenster().isVisible());
    std::ofstream(datei, std::ios::binary) << ganz;
    f1(such("E_Geometrie", "l_sb"));
    EXPECT_EQ(gezeigt(), "/E_Geometrie.html") << "once the file is back, so is the help";
    std::ofstream(datei, std::ios::binary) << std::string(ganz.size(), '\x7f');
    Q_EMIT seite().anchorClicked(QUrl(QStringLiteral("chm:/Sonne.html")));
    EXPECT_GT(seite().document()->characterCount(), 300) << "an open help stays as it was checked";
}

}  // namespace
}  // namespace velmaris
