#include "desktop/platform/qt_drucker.h"
#include "desktop/platform/qt_schrift.h"
#include "desktop/platform/qt_text.h"
#include "tests/desktop/programmprobe.h"
#include "toolkit/text.h"

#include <QPlainTextEdit>
#include <QProcess>
#include <QScrollBar>
#include <QTextEdit>

namespace velmaris {
namespace {

using test::waehle_datei;

/// A file that nobody can write, not even root.
constexpr const char* unbeschreibbar = "/dev/null/velmaris";

/// What a tool for PDF files says.
QByteArray ausgabe(const char* werkzeug, QStringList angaben, const std::filesystem::path& datei) {
    QProcess lauf;
    angaben << QString::fromStdString(pfadtext(datei));
    if (QLatin1String(werkzeug) == "pdftotext") angaben << "-";
    lauf.start(QLatin1String(werkzeug), angaben);
    if (!lauf.waitForFinished()) throw std::runtime_error(std::string("no ") + werkzeug);
    return lauf.readAllStandardOutput();
}

/// The windows of the documents in the whole program.
class DokumenteTest : public test::Programmprobe {
  protected:
    /// Opens the window that belongs to a menu entry.
    QWidget& oeffne(const char* sprache, const char* eintrag, const char* name) {
        starte(sprache);
        menue(eintrag).trigger();
        QWidget& neues = such("Haupt", name);
        EXPECT_TRUE(neues.isVisible() && neues.isModal());
        QApplication::processEvents();
        return neues;
    }

    void blaettere(int seite) { klicke("A_Report", ("Seite" + std::to_string(seite)).c_str()); }

    [[nodiscard]] QString reporttext() { return such<QTextEdit>("A_Report", "Report1").toPlainText(); }
};

TEST_F(DokumenteTest, ReportStehtFormatiertAufDemSchirm) {
    QWidget& fenster = oeffne("d", "mnuBerechnungsergebnisseExportieren", "A_Report");
    auto& feld = such<QTextEdit>("A_Report", "Report1");
    const QTextDocument& dokument = *feld.document();
    QTextCursor ort = dokument.find(QStringLiteral("VELM"));
    EXPECT_EQ(ort.charFormat().fontPointSize(), 30);
    EXPECT_EQ(ort.charFormat().fontWeight(), QFont::Bold);
    EXPECT_TRUE(ort.charFormat().fontItalic());
    EXPECT_EQ(ort.blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_FALSE(dokument.find(QStringLiteral("aris")).charFormat().fontItalic());
    EXPECT_TRUE(dokument.find(QString::fromUtf8("Dämmung:")).charFormat().fontUnderline());
    ort = dokument.find(QStringLiteral("Luftvolumen"));
    EXPECT_EQ(ort.charFormat().fontWeight(), QFont::Normal);
    EXPECT_EQ(ort.charFormat().fontFamilies().toStringList(),
              QStringList{ersatzfamilie(QStringLiteral("Times New Roman"))});
    const double punkt = feld.logicalDpiX() / 72.0;
    EXPECT_EQ(ort.blockFormat().tabPositions().value(0).position, 215 * punkt) << "4300 twips";
    EXPECT_NEAR(feld.lineWrapColumnOrWidth(), 451 * punkt + 40, 1) << "A4 between margins of an inch";
    EXPECT_EQ(QApplication::focusWidget(), &feld) << "so that the keys scroll";
    taste(Qt::Key_PageDown);
    EXPECT_GT(feld.verticalScrollBar()->value(), 0);
    QTest::keyClicks(&feld, "x");
    EXPECT_FALSE(reporttext().startsWith(u'x')) << "is to be read only";
    const int unten = feld.verticalScrollBar()->value();
    haupt().a_report.Report1.ansicht();
    EXPECT_EQ(feld.verticalScrollBar()->value(), unten) << "the same text keeps its place";
    const std::array titel{"Datenblatt", "Übersicht", "Klima- und Gebäudedaten", "Wärmebilanz", "Kühlbilanz"};
    for (std::size_t i = 0; i < titel.size(); ++i) {
        blaettere(static_cast<int>(i) + 1);
        EXPECT_TRUE(reporttext().contains(QString::fromUtf8(titel.at(i)) + '\n')) << titel.at(i);
        EXPECT_EQ(feld.verticalScrollBar()->value(), i == 0 ? unten : 0) << "another page, from its top";
        const QRect knopf = such("A_Report", ("Seite" + std::to_string(i + 1)).c_str()).geometry();
        EXPECT_EQ(such("A_Report", "AktSeite").pos(), knopf.topLeft() + QPoint(2, 0)) << i;
    }
    fenster.resize(1000, 500);
    QApplication::processEvents();
    EXPECT_EQ(such("A_Report", "Command_Schliessen").geometry().bottomRight(), QPoint(991, 491));
    EXPECT_EQ(such("A_Report", "Report1").width(), 984);

    waehle_datei(unbeschreibbar);
    klicke("A_Report", "Command_Speichern");
    const auto& hinweis = such<QPlainTextEdit>("A_Report", "Hinweis");
    EXPECT_TRUE(hinweis.isVisible());
    EXPECT_TRUE(hinweis.toPlainText().contains(unbeschreibbar)) << hinweis.toPlainText().toStdString();
    EXPECT_EQ(QApplication::activeModalWidget(), &fenster) << "no message";
    blaettere(1);
    EXPECT_FALSE(hinweis.isVisible());
    klicke("A_Report", "Command_Schliessen");
    EXPECT_FALSE(fenster.isVisible());
}

TEST_F(DokumenteTest, TemperaturverlaufJeMonatUndAlsJahresdatei) {
    QWidget& fenster = oeffne("e", "mnuTemperaturExport", "A_Report");
    const auto& feld = such<QPlainTextEdit>("A_Report", "Temperaturverlauf1");
    ASSERT_TRUE(aktiv(fenster));
    EXPECT_EQ(fokus(), "Temperaturverlauf1") << "so that the keys scroll";
    EXPECT_EQ(feld.fontMetrics().horizontalAdvance("iiii"), feld.fontMetrics().horizontalAdvance("WWWW"));
    for (int m = 1; m <= 12; ++m) {
        blaettere(m);
        const QString letzte = feld.toPlainText().trimmed().section(u'\n', -1).trimmed();
        EXPECT_EQ(letzte.simplified().section(u' ', 1, 2), QStringLiteral("%1 24").arg(m));
    }
    waehle_datei(ordner / "jahr");
    klicke("A_Report", "Command_Speichern");
    EXPECT_GT(test::inhalt(ordner / "jahr.txt").size(), 8760U * 62U);
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_FALSE(fenster.isVisible());
}

TEST_F(DokumenteTest, DruckenSchreibtDieGewaehltenSeitenAlsPdf) {
    QWidget& fenster = oeffne("d", "mnuFileDrucken", "Drucken");
    programm->plattform().drucker_waehlen("");  // there may be printers
    menue("mnuFileDrucken").trigger();
    EXPECT_TRUE(such<QLabel>("Drucken", "DruckerName").text().endsWith("PDF-Datei"));
    klicke("Drucken", "Druckausgabe7");
    klicke("Drucken", "Druckausgabe3");
    waehle_datei(unbeschreibbar);
    test::antworte(QMessageBox::Ok, [](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith(unbeschreibbar + QStringLiteral(".pdf: "))) << utf8(box.text());
    });
    klicke("Drucken", "Command1");
    EXPECT_TRUE(fenster.isVisible());
    waehle_datei(ordner / "blätter.pdf");
    klicke("Drucken", "Command1");
    EXPECT_FALSE(fenster.isVisible());
    const QByteArray text = ausgabe("pdftotext", {"-layout"}, ordner / "blätter.pdf");
    const QList<QByteArray> seiten = text.split('\f');
    ASSERT_EQ(seiten.size(), 3) << "two pages, each with its end";
    EXPECT_TRUE(seiten[0].contains("Ausgabe: Wärmebilanz"));
    EXPECT_TRUE(seiten[1].contains("Effizienzfaktor Klimaanlage:") && seiten[1].contains("- Seite 2 / 2 -"));
}

/// A sheet at ten pixels a millimetre, so that what is drawn can be measured.
TEST(QtDrucker, ZeichnetInMillimeternAufA4) {
    const test::Testordner ordner;
    const auto drucker = qt_drucker({.titel = "t", .pdf = ordner / "a.pdf"});
    EXPECT_EQ(drucker->ScaleWidth(), 200);
    EXPECT_EQ(drucker->DeviceName(), "PDF");
    drucker->schrift({.groesse = 72});
    // 72 points are one inch; an H of Arial is 1479 of 2048 units wide, a line 1854 + 434 high
    EXPECT_NEAR(drucker->textbreite("HHHH"), 4 * 25.4 * 1479 / 2048, 0.05);
    EXPECT_NEAR(drucker->texthoehe("H"), 25.4 * 2288 / 2048, 0.05);
    drucker->text(100, 100, "H");
    drucker->linie(10, 20, 60, 20, {255, 0, 0});
    drucker->kasten(10, 30, 60, 50, {0, 0, 255});
    drucker->flaeche(60, 80, 10, 60, {0, 255, 0});
    drucker->NewPage();
    drucker->text(0, 0, "II");
    EXPECT_FALSE(std::filesystem::exists(ordner / "a.pdf")) << "not before the end";
    drucker->EndDoc();
    const auto bild =
        QImage::fromData(ausgabe("pdftoppm", {"-r", "254", "-f", "1", "-l", "1"}, ordner / "a.pdf"));
    EXPECT_EQ(bild.size(), QSize(2100, 2971));
    /// The place and size of all that has a colour in a part of the sheet, millimetres.
    const auto gefaerbt = [&](QRect teil, const std::function<bool(QColor)>& so) {
        QRect alle;
        for (int y = teil.top(); y <= teil.bottom(); ++y) {
            for (int x = teil.left(); x <= teil.right(); ++x)
                if (so(bild.pixelColor(x, y))) alle |= QRect(x, y, 1, 1);
        }
        return alle;
    };
    const auto gleich = [](QRect ist, QRect soll) {
        const QRect weg(soll.topLeft() - ist.topLeft(), soll.bottomRight() - ist.bottomRight());
        return std::abs(weg.left()) + std::abs(weg.top()) + std::abs(weg.right()) + std::abs(weg.bottom()) <=
               8;
    };
    const QRect ganz(100, 200, 800, 800);
    EXPECT_TRUE(
        gleich(gefaerbt(ganz, [](QColor c) { return c.red() > 200 && c.green() < 90; }), {150, 249, 500, 2}));
    EXPECT_TRUE(gleich(gefaerbt(ganz, [](QColor c) { return c.blue() > 200 && c.green() < 90; }),
                       {150, 350, 500, 200}));
    EXPECT_TRUE(gleich(gefaerbt(ganz, [](QColor c) { return c.green() > 200 && c.red() < 90; }),
                       {150, 650, 500, 200}));
    EXPECT_EQ(bild.pixelColor(400, 450), QColor(Qt::white)) << "a box is empty";
    const QRect h = gefaerbt(QRect(1000, 1000, 400, 400),
                             [](QColor c) { return c.lightness() < 60 && c.saturation() < 60; });
    // the letter is 1409 units high, its foot 1854 below the top of the line, and begins 168 from the left
    EXPECT_TRUE(gleich(h, {1050 + 20, 1050 + 55, 142, 175})) << h.y();
    EXPECT_EQ(ausgabe("pdftotext", {}, ordner / "a.pdf").split('\f').size(), 3);
}

TEST(QtDrucker, HinterlaesstNichtsOhneEndeUndNichtsOhneDrucker) {
    const test::Testordner ordner;
    auto drucker = qt_drucker({.titel = "t", .pdf = ordner / "a.pdf"});
    drucker->text(10, 10, "a");
    drucker.reset();
    EXPECT_FALSE(std::filesystem::exists(ordner / "a.pdf"));
    EXPECT_THROW(static_cast<void>(qt_drucker({.titel = "t", .drucker = "gibt es nicht"})), Laufzeitfehler);
}

}  // namespace
}  // namespace velmaris
