#include "desktop/platform/qt_drucker.h"
#include "desktop/platform/qt_schrift.h"
#include "desktop/platform/qt_text.h"
#include "tests/desktop/programmprobe.h"
#include "toolkit/text.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QProcess>
#include <QScreen>
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
};

TEST_F(DokumenteTest, TextLaesstSichKopierenWoImmerDerFokusIst) {
    for (const auto& [eintrag, seite, wort, ansicht] :
         {std::tuple{"mnuBerechnungsergebnisseExportieren", 4, "Wärmebilanz", "Report1"},
          {"mnuTemperaturExport", 3, "Monat:      März", "Temperaturverlauf1"}}) {
        QWidget& fenster = oeffne("d", eintrag, "A_Report");
        QGuiApplication::clipboard()->setText("vorher");
        blaettere(seite);
        ASSERT_TRUE(aktiv(fenster));
        for (QWidget* ort : {&such("A_Report", "Command_Speichern"), &such("A_Report", ansicht)}) {
            ort->setFocus();
            taste(Qt::Key_A, Qt::ControlModifier);
            taste(Qt::Key_C, Qt::ControlModifier);
            EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QString::fromUtf8(wort))) << wort;
            QGuiApplication::clipboard()->clear();
        }
    }
}

TEST_F(DokumenteTest, ReportStehtFormatiertAufDemSchirm) {
    QWidget& fenster = oeffne("d", "mnuBerechnungsergebnisseExportieren", "A_Report");
    EXPECT_EQ(fenster.height(), std::min(760, fenster.screen()->availableSize().height() - 80));
    auto& feld = such<QTextEdit>("A_Report", "Report1");
    const auto finde = [&](const char* wort) { return feld.document()->find(QString::fromUtf8(wort)); };
    const QTextCharFormat kopf = finde("VELM").charFormat(), zeile = finde("Luftvolumen").charFormat();
    EXPECT_TRUE(kopf.fontPointSize() == 30 && kopf.fontWeight() == QFont::Bold && kopf.fontItalic());
    EXPECT_EQ(finde("VELM").blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_FALSE(finde("aris").charFormat().fontItalic());
    EXPECT_TRUE(finde("Dämmung:").charFormat().fontUnderline());
    EXPECT_EQ(zeile.fontWeight(), QFont::Normal);
    EXPECT_EQ(zeile.fontFamilies().toStringList(),
              QStringList{ersatzfamilie(QStringLiteral("Times New Roman"))});
    const double punkt = feld.logicalDpiX() / 72.0;
    EXPECT_EQ(finde("Luftvolumen").blockFormat().tabPositions().value(0).position, 215 * punkt)
        << "4300 twips";
    EXPECT_NEAR(feld.lineWrapColumnOrWidth(), 451 * punkt + 40, 1) << "A4 between margins of an inch";
    EXPECT_EQ(QApplication::focusWidget(), &feld) << "so that the keys scroll";
    taste(Qt::Key_PageDown);
    const int unten = feld.verticalScrollBar()->value();
    EXPECT_GT(unten, 0);
    QTest::keyClicks(&feld, "x");
    EXPECT_FALSE(feld.toPlainText().startsWith(u'x')) << "is to be read only";
    haupt().a_report.Report1.ansicht();
    EXPECT_EQ(feld.verticalScrollBar()->value(), unten) << "the same text keeps its place";
    for (int seite = 1; seite <= 7; ++seite) {
        blaettere(seite);
        EXPECT_EQ(feld.verticalScrollBar()->value(), seite == 1 ? unten : 0) << "another page, from its top";
        const QRect knopf = such("A_Report", ("Seite" + std::to_string(seite)).c_str()).geometry();
        EXPECT_EQ(such("A_Report", "AktSeite").pos(), knopf.topLeft() + QPoint(2, 0)) << seite;
    }
    fenster.resize(1000, 500);
    QApplication::processEvents();
    EXPECT_EQ(such("A_Report", "Command_Schliessen").geometry().bottomRight(), QPoint(991, 491));
    EXPECT_EQ(such("A_Report", "Report1").width(), 984);

    waehle_datei(unbeschreibbar);
    klicke("A_Report", "Command_Speichern");
    const auto& hinweis = such<QPlainTextEdit>("A_Report", "Hinweis");
    EXPECT_TRUE(hinweis.isVisible() && hinweis.toPlainText().contains(unbeschreibbar));
    EXPECT_EQ(QApplication::activeModalWidget(), &fenster) << "no message";
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
    const std::filesystem::path pdf = ordner / "a.pdf";
    const auto drucker = qt_drucker({.titel = "t", .pdf = pdf});
    EXPECT_EQ(drucker->ScaleWidth(), 200);
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
    EXPECT_FALSE(std::filesystem::exists(pdf)) << "not before the end";
    drucker->EndDoc();
    const auto bild = QImage::fromData(ausgabe("pdftoppm", {"-r", "254", "-f", "1", "-l", "1"}, pdf));
    EXPECT_EQ(bild.size(), QSize(2100, 2971));
    /// What has a colour, pixels of a tenth of a millimetre, is nowhere farther off than one.
    const auto pruefe = [&](QRgb farbe, const QRect& soll) {
        QRect ist;
        for (int y = 0; y < bild.height(); ++y) {
            for (int x = 0; x < bild.width(); ++x)
                if (bild.pixel(x, y) == farbe) ist |= QRect(x, y, 1, 1);
        }
        EXPECT_TRUE(soll.adjusted(-2, -2, 2, 2).contains(ist) && ist.contains(soll.adjusted(2, 2, -2, -2)))
            << ist.x() << ' ' << ist.y() << ' ' << ist.width() << ' ' << ist.height();
    };
    pruefe(qRgb(255, 0, 0), {150, 249, 500, 2});
    pruefe(qRgb(0, 0, 255), {150, 350, 500, 200});
    pruefe(qRgb(0, 255, 0), {150, 650, 500, 200});
    EXPECT_EQ(bild.pixelColor(400, 450), QColor(Qt::white)) << "a box is empty";
    // the letter is 1409 units high, its foot 1854 below the top of the line, and begins 168 from the left
    pruefe(qRgb(0, 0, 0), {1050 + 20, 1050 + 55, 142, 175});
    EXPECT_EQ(ausgabe("pdftotext", {}, pdf).split('\f').size(), 3);
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
