#include "desktop/platform/qt_drucker.h"
#include "desktop/platform/qt_schrift.h"
#include "tests/desktop/programmprobe.h"
#include "toolkit/text.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

namespace velmaris {
namespace {

using test::am_naechsten_dialog;
using test::waehle_datei;

/// A file that nobody can write, not even root.
constexpr const char* unbeschreibbar = "/dev/null/velmaris";

/// The windows of the documents in the whole program.
class DokumenteTest : public test::Programmprobe {
  protected:
    /// Opens the window that belongs to a menu entry.
    QWidget& oeffne(const char* sprache, const char* eintrag, const char* name) {
        starte(sprache);
        menue(eintrag).trigger();
        QWidget& neues = such("Haupt", name);
        EXPECT_TRUE(neues.isVisible());
        EXPECT_TRUE(neues.isModal());
        QApplication::processEvents();
        return neues;
    }

    QWidget& oeffne_report(const char* sprache) {
        return oeffne(sprache, "mnuBerechnungsergebnisseExportieren", "A_Report");
    }

    QWidget& oeffne_drucken(const char* sprache) { return oeffne(sprache, "mnuFileDrucken", "Drucken"); }

    void blaettere(int seite) {
        klicke(such<QAbstractButton>("A_Report", ("Seite" + std::to_string(seite)).c_str()));
    }

    [[nodiscard]] QString reporttext() { return such<QTextEdit>("A_Report", "Report1").toPlainText(); }

    void druckausgabe(int nummer) {
        auto& feld = such<QCheckBox>("Drucken", ("Druckausgabe" + std::to_string(nummer)).c_str());
        QTest::mouseClick(&feld, Qt::LeftButton, {}, QPoint(8, feld.height() / 2));
        EXPECT_TRUE(feld.isChecked());
    }

    static void brich_dateiwahl_ab() {
        am_naechsten_dialog<QFileDialog>([](QFileDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    }

    /// Reads the next message and confirms it.
    void lies_meldung() {
        test::antworte(QMessageBox::Ok, [this](QMessageBox& box) { meldung = box.text().toStdString(); });
    }

    /// The text of a page of a PDF file, and its number of pages.
    static std::string pdftext(const std::filesystem::path& datei, int seite) {
        return ausgabe("pdftotext", {"-layout", "-f", QString::number(seite), "-l", QString::number(seite),
                                     QString::fromStdString(pfadtext(datei)), "-"});
    }
    static int pdfseiten(const std::filesystem::path& datei) {
        const std::string text = ausgabe("pdfinfo", {QString::fromStdString(pfadtext(datei))});
        return std::stoi(text.substr(text.find("Pages:") + 6));
    }

    std::string meldung;

  private:
    static std::string ausgabe(const char* programm, const QStringList& angaben) {
        QProcess lauf;
        lauf.start(QLatin1String(programm), angaben);
        if (!lauf.waitForFinished()) throw std::runtime_error(std::string("no ") + programm);
        return lauf.readAllStandardOutput().toStdString();
    }
};

TEST_F(DokumenteTest, ReportStehtFormatiertAufDemSchirm) {
    oeffne_report("d");
    auto& feld = such<QTextEdit>("A_Report", "Report1");
    const QTextDocument& dokument = *feld.document();
    QTextCursor ort = dokument.find(QStringLiteral("VELM"));
    EXPECT_EQ(ort.charFormat().fontPointSize(), 30);
    EXPECT_EQ(ort.charFormat().fontWeight(), QFont::Bold);
    EXPECT_TRUE(ort.charFormat().fontItalic());
    EXPECT_EQ(ort.blockFormat().alignment(), Qt::AlignHCenter);
    ort = dokument.find(QStringLiteral("aris"));
    EXPECT_FALSE(ort.charFormat().fontItalic());
    ort = dokument.find(QString::fromUtf8("Dämmung:"));
    EXPECT_TRUE(ort.charFormat().fontUnderline());
    EXPECT_EQ(ort.charFormat().fontPointSize(), 15);
    ort = dokument.find(QStringLiteral("Luftvolumen"));
    EXPECT_EQ(ort.charFormat().fontPointSize(), 10);
    EXPECT_EQ(ort.charFormat().fontFamilies().toStringList(),
              QStringList{ersatzfamilie(QStringLiteral("Times New Roman"))});
    ASSERT_EQ(ort.blockFormat().tabPositions().size(), 1);
    const double punkt = feld.logicalDpiX() / 72.0;
    EXPECT_EQ(ort.blockFormat().tabPositions()[0].position, 215 * punkt) << "4300 twips";

    EXPECT_EQ(QApplication::focusWidget(), &feld) << "so that the keys scroll";
    QTest::keyClick(&feld, Qt::Key_PageDown);
    EXPECT_GT(feld.verticalScrollBar()->value(), 0);
    QTest::keyClicks(&feld, "x");
    EXPECT_FALSE(reporttext().startsWith(u'x')) << "is to be read only";
    QTest::keyClick(&feld, Qt::Key_A, Qt::ControlModifier);
    EXPECT_GT(feld.textCursor().selectedText().size(), 1000);
    feld.verticalScrollBar()->setValue(feld.verticalScrollBar()->maximum());
    EXPECT_GT(feld.verticalScrollBar()->value(), 0);
    blaettere(4);
    EXPECT_EQ(feld.verticalScrollBar()->value(), 0);
    EXPECT_EQ(dokument.find(QStringLiteral("Tramsmis-")).blockFormat().tabPositions().size(), 6);
}

TEST_F(DokumenteTest, JederKnopfZeigtSeineSeite) {
    struct Fall {
        const char* sprache;
        std::vector<const char*> titel;
        const char* speichern;
    };
    for (const Fall& fall :
         {Fall{
              "d",
              {"Datenblatt", "Ausgabe: Übersicht", "Ausgabe: Klima- und Gebäudedaten", "Ausgabe: Wärmebilanz",
               "Ausgabe: Kühlbilanz", "Ausgabe: Primär- und Endenergiebedarf Heizung",
               "Ausgabe: Primär- und Endenergiebedarf Kühlung"},
              "Report speichern"},
          Fall{"e",
               {"Data sheet", "Output: Overview", "Output: Climate and building data", "Output: Heat balance",
                "Output: Cooling balance", "Output: Primary and end energy demand for heating",
                "Output: Primary and end energy demand for cooling"},
               "Save report"}}) {
        QWidget& fenster = oeffne_report(fall.sprache);
        EXPECT_EQ(fenster.windowTitle(), "Velmaris - Report");
        EXPECT_EQ(such<QAbstractButton>("A_Report", "Command_Speichern").text(), fall.speichern);
        EXPECT_FALSE(such("A_Report", "Seite8").isVisible());
        for (int i = 1; i <= 7; ++i) {
            blaettere(i);
            const QString titel = QString::fromUtf8(fall.titel[static_cast<std::size_t>(i - 1)]);
            EXPECT_TRUE(reporttext().split(u'\n').contains(titel)) << titel.toStdString();
            const auto& marke = such<QLabel>("A_Report", "AktSeite");
            EXPECT_EQ(marke.text(), QString::number(i));
            const QRect knopf = such("A_Report", ("Seite" + std::to_string(i)).c_str()).geometry();
            EXPECT_EQ(marke.pos(), knopf.topLeft() + QPoint(2, 0));
            EXPECT_TRUE(knopf.contains(marke.geometry()));
        }
        fenster.resize(1000, 500);
        QApplication::processEvents();
        const auto& schliessen = such<QAbstractButton>("A_Report", "Command_Schliessen");
        EXPECT_EQ(schliessen.geometry().bottomRight(), QPoint(991, 491));
        EXPECT_EQ(such("A_Report", "Report1").width(), 984);
        klicke(such<QAbstractButton>("A_Report", "Command_Schliessen"));
        EXPECT_FALSE(fenster.isVisible());
    }
}

TEST_F(DokumenteTest, TemperaturverlaufJeMonatUndAlsJahresdatei) {
    for (const bool englisch : {false, true}) {
        QWidget& fenster = oeffne(englisch ? "e" : "d", "mnuTemperaturExport", "A_Report");
        const auto& feld = such<QPlainTextEdit>("A_Report", "Temperaturverlauf1");
        EXPECT_FALSE(such("A_Report", "Report1").isVisible());
        EXPECT_TRUE(feld.isReadOnly());
        const QFontMetrics mass(feld.font());
        EXPECT_EQ(mass.horizontalAdvance(QStringLiteral("iiii")),
                  mass.horizontalAdvance(QStringLiteral("WWWW")));
        EXPECT_TRUE(feld.toPlainText().contains(englisch ? "T out" : QString::fromUtf8("T außen")));
        for (int m = 1; m <= 12; ++m) {
            blaettere(m);
            const QString letzte = feld.toPlainText().trimmed().section(u'\n', -1).trimmed();
            EXPECT_EQ(letzte.simplified().section(u' ', 1, 2), QStringLiteral("%1 24").arg(m));
        }
        waehle_datei(ordner / "jahr");
        klicke(such<QAbstractButton>("A_Report", "Command_Speichern"));
        EXPECT_GT(test::inhalt(ordner / "jahr.txt").size(), 8760U * 62U);
        std::filesystem::remove(ordner / "jahr.txt");
        QTest::keyClick(&fenster, Qt::Key_Escape);
        EXPECT_FALSE(fenster.isVisible());
        for (const auto& [eintrag, text] : {std::pair{"mnuBerechnungsergebnisseExportieren", "Report1"},
                                            {"mnuTemperaturExport", "Temperaturverlauf1"}}) {
            menue(eintrag).trigger();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
            EXPECT_EQ(fenster.focusWidget(), &such("A_Report", text)) << "so that the keys scroll";
            klicke(such<QAbstractButton>("A_Report", "Command_Schliessen"));
        }
    }
}

TEST_F(DokumenteTest, SpeichernFragtUndGehtOhneSchadenFehl) {
    oeffne_report("d");
    blaettere(3);
    const auto druecke = [this] { klicke(such<QAbstractButton>("A_Report", "Command_Speichern")); };
    waehle_datei(ordner / "bericht", [](QFileDialog& box) {
        EXPECT_TRUE(box.nameFilters().constFirst().startsWith("Rich Text Format (*.rtf)"));
    });
    druecke();
    const std::string bytes = test::inhalt(ordner / "bericht.rtf");
    EXPECT_NE(bytes.find("K\xFChlbedarf"), std::string::npos);
    EXPECT_TRUE(reporttext().contains("Datenblatt")) << "the form of all pages";

    ordner.schreibe("bericht.rtf", "alt");
    blaettere(2);
    const QString vorher = reporttext();
    waehle_datei(ordner / "bericht");
    test::antworte(QMessageBox::No, [this](QMessageBox& box) {
        meldung = box.text().toStdString();
        brich_dateiwahl_ab();
    });
    druecke();
    EXPECT_NE(meldung.find("bericht.rtf\nDiese Datei ist bereits vorhanden."), std::string::npos) << meldung;
    EXPECT_EQ(test::inhalt(ordner / "bericht.rtf"), "alt");
    waehle_datei(unbeschreibbar);
    druecke();
    EXPECT_EQ(reporttext(), vorher);
    const auto& hinweis = such<QPlainTextEdit>("A_Report", "Hinweis");
    EXPECT_TRUE(hinweis.isVisible());
    EXPECT_TRUE(hinweis.toPlainText().contains(unbeschreibbar)) << hinweis.toPlainText().toStdString();
    EXPECT_EQ(QApplication::activeModalWidget(), &such("Haupt", "A_Report")) << "no message";
    blaettere(1);
    EXPECT_FALSE(hinweis.isVisible());
}

TEST_F(DokumenteTest, DruckenSchreibtDieGewaehltenSeitenAlsPdf) {
    struct Fall {
        const char* sprache;
        const char* drucker;
        const char* erste;
        const char* zweite;
        const char* fuss;
    };
    for (const Fall& fall :
         {Fall{"d", "PDF-Datei", "Ausgabe: Wärmebilanz", "Effizienzfaktor Klimaanlage:", "- Seite 2 / 2 -"},
          Fall{"e", "PDF file", "Output: Heat balance", "Efficiency factor", "- Page 2 / 2 -"}}) {
        QWidget& fenster = oeffne_drucken(fall.sprache);
        programm->plattform().drucker_waehlen("");  // there may be printers
        menue("mnuFileDrucken").trigger();
        EXPECT_TRUE(such<QLabel>("Drucken", "DruckerName").text().endsWith(fall.drucker));
        EXPECT_EQ(such<QLabel>("Drucken", "DruckerNameUnten").text(),
                  such<QLabel>("Drucken", "DruckerName").text());
        lies_meldung();
        klicke(such<QAbstractButton>("Drucken", "Command1"));
        EXPECT_FALSE(meldung.empty()) << "nothing ticked";
        druckausgabe(7);
        druckausgabe(3);
        brich_dateiwahl_ab();
        klicke(such<QAbstractButton>("Drucken", "Command1"));
        EXPECT_TRUE(fenster.isVisible());
        waehle_datei(unbeschreibbar);
        lies_meldung();
        klicke(such<QAbstractButton>("Drucken", "Command1"));
        EXPECT_TRUE(meldung.starts_with(std::string(unbeschreibbar) + ".pdf: ")) << meldung;
        EXPECT_TRUE(fenster.isVisible());
        const auto datei = ordner / (std::string("blätter_") + fall.sprache + ".pdf");
        waehle_datei(datei);
        klicke(such<QAbstractButton>("Drucken", "Command1"));
        EXPECT_FALSE(fenster.isVisible());
        ASSERT_EQ(pdfseiten(datei), 2);
        EXPECT_NE(pdftext(datei, 1).find(fall.erste), std::string::npos);
        EXPECT_NE(pdftext(datei, 2).find(fall.zweite), std::string::npos);
        EXPECT_NE(pdftext(datei, 2).find(fall.fuss), std::string::npos);
    }
}

TEST_F(DokumenteTest, DruckerwahlBietetImmerPdfAn) {
    QWidget& fenster = oeffne_drucken("e");
    const auto druecke = [this](const char* auf, const char* knopf) {
        klicke(such<QAbstractButton>(auf, knopf));
    };
    druecke("Drucken", "Command3");
    QWidget& wahl = such("Haupt", "Druckerwahl");
    ASSERT_TRUE(wahl.isVisible());
    EXPECT_EQ(wahl.windowTitle(), "Choose printer");
    auto& liste = such<QComboBox>("Druckerwahl", "Druckerliste");
    EXPECT_EQ(liste.itemText(liste.count() - 1), "PDF file");
    EXPECT_EQ(such<QLabel>("Druckerwahl", "Hinweis").text().isEmpty(), liste.count() > 1);
    QTest::keyClick(&wahl, Qt::Key_Escape);
    EXPECT_FALSE(wahl.isVisible());
    EXPECT_TRUE(fenster.isVisible());
    druecke("Drucken", "Command3");
    liste.setFocus();
    QTest::keyClick(&liste, Qt::Key_End);
    druecke("Druckerwahl", "OK_Button");
    EXPECT_FALSE(wahl.isVisible());
    EXPECT_EQ(programm->plattform().aktueller_drucker(), "");
    EXPECT_TRUE(such<QLabel>("Drucken", "DruckerName").text().endsWith("PDF file"));
    druecke("Drucken", "Command2");
    EXPECT_FALSE(fenster.isVisible());
}

TEST(QtDrucker, MisstInMillimetern) {
    const test::Testordner ordner;
    const auto drucker = qt_drucker({.titel = "t", .pdf = ordner / "a.pdf"});
    EXPECT_EQ(drucker->ScaleWidth(), 200);
    drucker->schrift({.groesse = 72});
    // 72 points are one inch; an H of Arial is 1479 of 2048 units wide, a line 1854 + 434 high
    EXPECT_NEAR(drucker->textbreite("HHHH"), 4 * 25.4 * 1479 / 2048, 0.05);
    EXPECT_NEAR(drucker->texthoehe("H"), 25.4 * 2288 / 2048, 0.05);
    EXPECT_FALSE(std::filesystem::exists(ordner / "a.pdf")) << "not before the end";
    drucker->EndDoc();
    EXPECT_TRUE(test::inhalt(ordner / "a.pdf").starts_with("%PDF"));
}

TEST(QtDrucker, EinAufgegebenesDokumentHinterlaesstNichts) {
    const test::Testordner ordner;
    auto drucker = qt_drucker({.titel = "t", .pdf = ordner / "a.pdf"});
    drucker->text(10, 10, "a");
    drucker.reset();
    EXPECT_FALSE(std::filesystem::exists(ordner / "a.pdf"));
}

TEST(QtDrucker, FehlenderDruckerIstEinLaufzeitfehler) {
    EXPECT_THROW(static_cast<void>(qt_drucker({.titel = "t", .drucker = "gibt es nicht"})), Laufzeitfehler);
}

}  // namespace
}  // namespace velmaris
