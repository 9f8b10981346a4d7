#include "desktop/widgets/bildflaeche.h"

#include "desktop/platform/qt_text.h"
#include "tests/desktop/bedienung.h"
#include "tests/hilfen.h"
#include "toolkit/text.h"

#include <QTest>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testfenster;
using test::Testordner;

/// A picture field on a shown window.
class BildflaecheTest : public testing::Test {
  protected:
    BildflaecheTest() {
        wache.fehler_behandeln = [this](const Laufzeitfehler& fehler) {
            fehlertexte.push_back(fehler.text("e"));
        };
        feld.zeichnen = [this](Zeichenflaeche& flaeche) {
            ++gezeichnet;
            flaeche.flaeche(10, 10, 19, 19, farbe);
        };
        bild.resize(60, 40);
    }

    /// Lets paint and posted events run.
    static void abwarten() { QTest::qWait(1), QApplication::processEvents(); }

    std::vector<std::string> fehlertexte;
    Fehlerwache wache;
    Farbe farbe = farben::rot;
    int gezeichnet = 0;
    Testfenster fenster;
    Bildfeld feld{"AV_Picture"};
    Bildflaeche bild{feld, wache, &fenster};
};

TEST_F(BildflaecheTest, ZeichnetNurWasGesehenWird) {
    abwarten();
    EXPECT_EQ(gezeichnet, 1);
    bild.repaint();
    EXPECT_EQ(gezeichnet, 1) << "what was drawn is kept";
    feld.neu_zeichnen();
    feld.neu_zeichnen();
    abwarten();
    EXPECT_EQ(gezeichnet, 2) << "several wishes are one drawing";

    farbe = farben::blau;
    feld.zeige(false);
    feld.neu_zeichnen();
    abwarten();
    EXPECT_EQ(gezeichnet, 2) << "hidden";
    feld.zeige(true);
    abwarten();
    EXPECT_EQ(gezeichnet, 3);
    EXPECT_EQ(feld.lies_punkt(15, 15), farben::blau);
    EXPECT_EQ(feld.lies_punkt(2, 2), farben::weiss);
}

TEST_F(BildflaecheTest, KommtUnveraendertAufDenSchirm) {
    abwarten();
    const double verhaeltnis = bild.devicePixelRatioF();
    EXPECT_EQ(bild.flaeche().bild().size(), QSize(60, 40) * verhaeltnis);
    const QImage schirm = bild.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(schirm, bild.flaeche().bild());
    EXPECT_EQ(schirm.pixel(QPoint(10, 10) * verhaeltnis), qRgb(255, 0, 0));
    EXPECT_EQ(schirm.pixel(QPoint(10, 10) * verhaeltnis - QPoint(1, 0)), qRgb(255, 255, 255));
    EXPECT_EQ(schirm.pixel(QPoint(20, 20) * verhaeltnis - QPoint(1, 1)), qRgb(255, 0, 0));
}

TEST_F(BildflaecheTest, ReichtZeigerInBildpixelnWeiter) {
    std::string ereignisse;
    const auto notiere = [&](const char* was) {
        return [&ereignisse, was](double x, double y) {
            ereignisse += was + std::to_string(std::lround(x)) + " " + std::to_string(std::lround(y));
        };
    };
    feld.maus_bewegt = notiere(" move ");
    feld.maus_geklickt = notiere(" click ");
    abwarten();
    test::bewege_ueber(bild, {7.75, 9.5});  // a screen of higher resolution knows places between the pixels
    QTest::mouseClick(&bild, Qt::LeftButton, {}, QPoint(8, 9));
    QTest::mouseClick(&bild, Qt::RightButton, {}, QPoint(8, 9));
    QTest::mousePress(&bild, Qt::LeftButton, {}, QPoint(8, 9));
    QTest::mouseRelease(&bild, Qt::LeftButton, {}, QPoint(200, 9));
    EXPECT_EQ(ereignisse, " move 7 9 click 8 9");

    ereignisse.clear();
    QEvent verlassen(QEvent::Leave);
    QCursor::setPos(bild.mapToGlobal(QPoint(-30, -30)));
    QApplication::sendEvent(&bild, &verlassen);
    EXPECT_EQ(ereignisse, " move -1 -1");
}

TEST_F(BildflaecheTest, ZeigtVergroessertDieFeineAusgabeEinesBilds) {
    const Testordner ordner;
    const auto ablegen = [&ordner](const char* name, int breite, int hoehe, QRgb ton) {
        QImage einfarbig(breite, hoehe, QImage::Format_RGB32);
        einfarbig.fill(ton);
        return einfarbig.save(qtext(pfadtext(ordner / name)), "BMP");
    };
    ASSERT_TRUE(ablegen("karte.bmp", 60, 40, qRgb(3, 60, 200)));
    ASSERT_TRUE(ablegen("karte@4.bmp", 240, 160, qRgb(90, 60, 20)));
    feld.lade(ordner / "karte.bmp");
    const QRgb gezeigt = bild.flaeche().bild().pixel(2, 2);
    EXPECT_EQ(gezeigt, bild.devicePixelRatioF() > 1 ? qRgb(90, 60, 20) : qRgb(3, 60, 200));
    EXPECT_EQ(feld.lies_punkt(2, 2), (Farbe{3, 60, 200}));
}

TEST_F(BildflaecheTest, FehlendesBildUndFehlerBeimZeichnenWerdenEinmalGemeldet) {
    const Testordner ordner;
    feld.lade(ordner / "haus9.bmp");
    for (int i = 0; i < 3; ++i) {
        bild.repaint();
        abwarten();
    }
    EXPECT_EQ(bild.flaeche().lies_punkt(15, 15), farben::rot) << "the drawing goes on without the picture";

    QImage karte(60, 40, QImage::Format_RGB32);
    karte.fill(qRgb(3, 60, 200));
    const std::filesystem::path datei = ordner / "häuser.bmp";
    ASSERT_TRUE(karte.save(qtext(pfadtext(datei)), "BMP"));
    feld.lade(datei);
    EXPECT_EQ(bild.flaeche().lies_punkt(0, 0), (Farbe{3, 60, 200}));
    feld.lade({});
    EXPECT_EQ(bild.flaeche().lies_punkt(0, 0), farben::weiss);

    feld.zeichnen = [](Zeichenflaeche&) { throw Laufzeitfehler({"Teilung durch null", "division by zero"}); };
    feld.neu_zeichnen();
    for (int i = 0; i < 3; ++i)
        bild.repaint();
    ASSERT_EQ(fehlertexte.size(), 2U);
    EXPECT_NE(fehlertexte[0].find("haus9.bmp"), std::string::npos);
    EXPECT_EQ(fehlertexte[1], "division by zero");
}

}  // namespace
}  // namespace velmaris
