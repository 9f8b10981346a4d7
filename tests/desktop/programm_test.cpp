#include "desktop/programm.h"

#include "desktop/drucklauf.h"
#include "desktop/platform/qt_text.h"
#include "desktop/startfenster.h"
#include "tests/desktop/programmprobe.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <QMimeData>
#include <QUrl>
#include <sstream>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::antworte;
using test::laufe_bis_zum_ende;
using test::waehle_datei;

class ProgrammTest : public test::Programmprobe {
  protected:
    void starte_langsam(const std::string& sprache) {
        programm = std::make_unique<Programm>(ordner.pfad(), sprache, Befehlszeile(""));
        programm->starten();
    }
    /// Drops a file of the folder on the main window; returns whether the window takes it.
    bool lasse_fallen(const char* datei) {
        constexpr Qt::DropActions beides = Qt::CopyAction | Qt::MoveAction;
        QMimeData ding;
        ding.setUrls({QUrl::fromLocalFile(QString::fromStdString((ordner / datei).string()))});
        QDragEnterEvent kommt(QPoint(9, 9), beides, &ding, Qt::LeftButton, Qt::ShiftModifier);
        kommt.ignore();
        QApplication::sendEvent(&programm->fenster(), &kommt);
        QDropEvent faellt(QPointF(9, 9), beides, &ding, Qt::LeftButton, Qt::ShiftModifier);
        if (kommt.isAccepted()) QApplication::sendEvent(&programm->fenster(), &faellt);
        EXPECT_EQ(faellt.dropAction() == Qt::CopyAction, kommt.isAccepted())
            << "a copy, though Shift asks for a move";
        return kommt.isAccepted();
    }
    void laenge_aendern() { QTest::keyClick(&such("E_Geometrie", "l_sb"), Qt::Key_Right); }

    QString titel() { return programm->fenster().windowTitle(); }
};

/// The menus speak the language, bars and planes fill the window.
TEST_F(ProgrammTest, FensterHatMenuesLeistenUndEbenen) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        EXPECT_EQ(menue("mnuFileExit").text(), *sprache == 'd' ? "&Beenden" : "Exit");
        EXPECT_EQ(menue("mnuSpracheDeutsch").isChecked(), *sprache == 'd');
        EXPECT_EQ(menue("mnuSpracheEnglisch").isChecked(), *sprache == 'e');
    }
    EXPECT_EQ(titel(), "Velmaris - [no name]");
    fuer_jede_ebene([&](QWidget& ebene) {
        const bool eingabe = ebene.objectName().startsWith("E_");
        const QRect leiste = such("Haupt", eingabe ? "E_Menue" : "A_Menue").geometry();
        EXPECT_EQ(ebene.geometry() | leiste, QRect(eingabe ? 0 : 352, 0, eingabe ? 352 : 448, 546));
        EXPECT_FALSE(ebene.geometry().intersects(leiste));
    });
}

TEST_F(ProgrammTest, SpeichertOeffnetUndNimmtEineFallengelasseneDatei) {
    starte("d");
    const auto& laenge = such<Scrollleiste>("E_Geometrie", "l_sb");
    laenge_aendern();
    waehle_datei(ordner / "mein haus");
    menue("mnuFileunter").trigger();
    EXPECT_EQ(titel(), "Velmaris - MEIN HAUS.VEL");
    menue("mnuFileNeu").trigger();
    EXPECT_EQ(laenge.value(), 100);
    klicke("E_Menue", "Klima");
    waehle_datei(ordner / "mein haus.vel");
    menue("mnuFileOeffnen").trigger();
    EXPECT_EQ(laenge.value(), 110);
    EXPECT_TRUE(laenge.isVisible()) << "back on the first plane";

    menue("mnuFileNeu").trigger();
    EXPECT_FALSE(lasse_fallen("bild.png"));
    EXPECT_TRUE(lasse_fallen("mein haus.vel"));
    EXPECT_EQ(titel(), "Velmaris - [unbenannt]") << "the source of the drag need not wait";
    EXPECT_TRUE(QTest::qWaitFor([&] { return titel() == "Velmaris - MEIN HAUS.VEL"; }));

    p().Geaendert = 1;
    bool gefragt = false;
    antworte(QMessageBox::Cancel, [&](QMessageBox&) {
        EXPECT_FALSE(lasse_fallen("mein haus.vel")) << "while there is a question";
        antworte(QMessageBox::Ok, [&](QMessageBox&) { gefragt = true; });
    });
    EXPECT_TRUE(lasse_fallen("mein haus.vel"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return gefragt; }));
    EXPECT_EQ(p().Geaendert, 1);
    antworte(QMessageBox::Cancel);
    EXPECT_FALSE(programm->fenster().close());
    antworte(QMessageBox::No);
    QTimer::singleShot(0, &programm->fenster(), &QWidget::close);
    EXPECT_EQ(laufe_bis_zum_ende(), 0) << "ends without saving";
}

TEST_F(ProgrammTest, FehlerInDateienBeendenNichtAndereSchon) {
    starte("e");
    haupt().e_geometrie.l_sb.geaendert = [] { throw Dateifehler("x.bmp", {"fehlt", "missing"}); };
    antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("x.bmp"));
        EXPECT_EQ(box.informativeText(), "");
    });
    laenge_aendern();

    haupt().e_geometrie.l_sb.geaendert = [] { throw Laufzeitfehler({"Überlauf", "overflow"}, "qh"); };
    p().l = 0;  // never to be seen again
    QString rettung;
    antworte(QMessageBox::Ok, [&](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("overflow"));
        rettung = box.informativeText();
        EXPECT_TRUE(rettung.startsWith("The program ends. The last state")) << utf8(rettung);
    });
    QTimer::singleShot(0, &programm->fenster(), [&] { laenge_aendern(); });
    EXPECT_EQ(laufe_bis_zum_ende(), 1);
    EXPECT_EQ(test::aus_rettung(rettung.section(u'\n', 1).toStdString())->p().l, 10.0F) << utf8(rettung);
}

TEST_F(ProgrammTest, StartfensterBautAufKnopfdruckAufUndWirdZurAuskunft) {
    starte_langsam("e");
    QWidget* start = QApplication::activeModalWidget();
    ASSERT_NE(start, nullptr);
    EXPECT_FALSE(programm->fenster().isVisible());
    test::pruefe_platz(*start, "start");
    EXPECT_NEAR(start->findChild<QLabel*>(QString())->pixmap().deviceIndependentSize().height(), 160, 0.5);
    klicke(*start->findChild<QAbstractButton*>("OK_Button"));
    EXPECT_FALSE(start->isVisible());
    EXPECT_TRUE(programm->fenster().isVisible());
    menue("mnuQuestInfo").trigger();
    EXPECT_TRUE(start->isVisible()) << "now the about box";
    start->close();
    EXPECT_TRUE(programm->fenster().isVisible());

    starte_langsam("d");
    QTimer::singleShot(0, QApplication::activeModalWidget(), &QWidget::close);
    EXPECT_EQ(laufe_bis_zum_ende(), 0) << "closed before the program was up";
}

TEST_F(ProgrammTest, SprachfensterGibtDieGewaehlteSprache) {
    using Sprache = std::optional<std::string>;
    for (const auto& [knopf, sprache] : {std::pair<const char*, Sprache>{"Image1", "d"},
                                         {"Label4", "d"},
                                         {"Image2", "e"},
                                         {"Label5", "e"},
                                         {"", std::nullopt}}) {
        am_naechsten_dialog<QDialog>([&, name = knopf](QDialog& fenster) {
            if (*name == 0) return QTest::keyClick(&fenster, Qt::Key_Escape);
            klicke(*fenster.findChild<QAbstractButton*>(name));
        });
        EXPECT_EQ(sprachfenster(ordner.pfad()), sprache);
    }
}

/// Printing without a window: what the call gives back and says.
TEST_F(ProgrammTest, DruckenVonDerBefehlszeile) {
    const std::string haus = pfadtext(
        ordner.schreibe("haus.vel", test::projekttext(test::projektzeilen(test::Testprogramm().p()))));
    const std::string pdf = pfadtext(ordner / "haus.pdf");
    using Fall = std::tuple<std::vector<std::string>, int, std::string>;
    for (const auto& [aufruf, ergebnis, meldung] :
         {Fall{{"--drucken", pdf, haus}, 0, ""},
          {{haus, "--sprache", "e", "--drucken=" + pdf}, 0, ""},
          {{"--drucken", pdf, "--sprache", "e", "fehlt.vel"}, 1, "fehlt.vel: file not found\n"},
          {{"--drucken", pdf, "--sprache", "f", haus}, 2, "Aufruf"},
          {{"--drucken", pdf}, 2, "Aufruf"},
          {{"--drucken", "--sprache", haus}, 2, "Aufruf"},
          {{"--drucken=", haus}, 2, "Aufruf"}}) {
        QStringList angaben{"velmaris"};
        std::vector<const char*> argv{"velmaris"};
        for (const std::string& angabe : aufruf)
            angaben << QString::fromStdString(angabe), argv.push_back(angabe.c_str());
        EXPECT_TRUE(ist_drucklauf(static_cast<int>(argv.size()), argv.data()));
        std::filesystem::remove(pdf);
        std::ostringstream fehler;
        EXPECT_EQ(drucklauf(angaben, ordner.pfad(), fehler), ergebnis) << utf8(angaben.join(' '));
        EXPECT_EQ(fehler.str().substr(0, meldung.size()), meldung);
        EXPECT_EQ(fehler.str().empty(), ergebnis == 0);
        EXPECT_EQ(std::filesystem::exists(pdf), ergebnis == 0);
    }
    const std::array anderes{"velmaris", "drucken", "--druckenx"};
    EXPECT_FALSE(ist_drucklauf(3, anderes.data()));
}

}  // namespace
}  // namespace velmaris
