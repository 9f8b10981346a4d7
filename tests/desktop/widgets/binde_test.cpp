#include "desktop/widgets/binde.h"

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/aufklappliste.h"
#include "desktop/widgets/scrollleiste.h"
#include "tests/desktop/bedienung.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Testfenster;

/// A window, a binder and what the guard was given.
class Binde : public testing::Test {
  protected:
    Binde() {
        wache.fehler_behandeln = [this](const Laufzeitfehler& fehler) {
            fehlertexte.push_back(fehler.text("d"));
        };
    }

    std::vector<std::string> fehlertexte;
    Fehlerwache wache;
    Binder binder{wache};
    Testfenster fenster;
};

TEST_F(Binde, ScrollfeldInBeideRichtungenOhneSchleife) {
    Scrollfeld feld("l_sb", 20, 500, 10, 20);
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    std::vector<int> stellungen;
    feld.geaendert = [&] {
        stellungen.push_back(feld.position());
        if (feld.position() == 490) feld.setze(470);  // as the set temperature does at its limit
    };
    binder.binde(leiste, feld);
    EXPECT_EQ(leiste.accessibleName(), "l_sb");
    EXPECT_EQ(leiste.value(), 20);
    feld.setze(100);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_Right, Qt::Key_Left})
        QTest::keyClick(&leiste, key);
    EXPECT_EQ(stellungen, (std::vector{100, 110, 500, 490, 470}));
    EXPECT_EQ(leiste.sliderPosition(), 470);
    feld.bereich(0, 50);
    EXPECT_EQ(leiste.maximum(), 50);
    EXPECT_EQ(leiste.value(), 50);
    EXPECT_EQ(stellungen.size(), 5U);
}

TEST_F(Binde, FehlerImHandlerKommtAnUndDieBedienungGehtWeiter) {
    Knopf knopf("Command1", "Los");
    QPushButton schalter(&fenster);
    binder.binde(schalter, knopf);
    const Laufzeitfehler ueberlauf({"Überlauf", "overflow"}, "h");
    for (const std::function<void()>& tu : std::initializer_list<std::function<void()>>{
             [&] { throw Laufzeitfehler(ueberlauf); }, [] { throw std::runtime_error("unforeseen"); },
             [] { throw std::bad_alloc(); }}) {
        knopf.gedrueckt = tu;
        schalter.click();
    }
    ASSERT_EQ(fehlertexte.size(), 3U);
    EXPECT_EQ(fehlertexte[0] + fehlertexte[1], ueberlauf.text("d") + "unforeseen");
    EXPECT_NE(fehlertexte[2].find("Speicher"), std::string::npos) << fehlertexte[2];
}

TEST_F(Binde, AuswahllisteMeldetAuchDieWahlDerSelbenZeileUndZeigtFremdenText) {
    Auswahlliste liste("ugd");
    Aufklappliste kasten(&fenster);
    std::vector<int> gewaehlt;
    liste.gewaehlt = [&] { gewaehlt.push_back(liste.index()); };
    kasten.resize(90, 24);
    binder.binde(kasten, liste);
    const QString lang = "a row that needs much more room than the closed list has";
    liste.fuelle({"eins", "zwei", utf8(lang)});
    kasten.show();
    EXPECT_EQ(kasten.currentIndex(), -1);
    test::waehle_zeile(kasten, 1);
    test::waehle_zeile(kasten, 1);
    QTest::keyClick(&kasten, Qt::Key_Down);
    EXPECT_EQ(gewaehlt, (std::vector{1, 1, 2}));
    kasten.showPopup();
    EXPECT_GE(kasten.view()->viewport()->width(), kasten.fontMetrics().horizontalAdvance(lang));
    EXPECT_EQ(kasten.width(), 90);
    liste.markiere(0);
    EXPECT_EQ(kasten.currentText(), "eins");
    liste.schreibe("Reykjavik");
    EXPECT_EQ(kasten.currentIndex(), -1);
    EXPECT_EQ(kasten.placeholderText(), "Reykjavik");
    EXPECT_EQ(kasten.palette().color(QPalette::PlaceholderText),
              kasten.palette().color(QPalette::ButtonText));
    liste.fuelle({"neu"});
    EXPECT_EQ(kasten.count(), 1);
    EXPECT_EQ(gewaehlt.size(), 3U) << "neither marking nor filling is a choice";
}

TEST_F(Binde, AnzeigeMitTextFarbeUndPlatz) {
    Anzeige anzeige("av_anz", "0.62 ");
    QLabel schild(&fenster);
    binder.binde(schild, anzeige, 1.0 / 15);
    anzeige.schreibe("Monat: Mai\r1.0 <b>\r\n2.0");
    EXPECT_EQ(schild.text(), "Monat: Mai\n1.0 <b>\n2.0");
    EXPECT_EQ(schild.textFormat(), Qt::PlainText);
    const auto schriftfarbe = [&] { return schild.palette().color(schild.foregroundRole()); };
    anzeige.faerbe(farben::rot);
    EXPECT_EQ(schriftfarbe(), QColor(255, 0, 0));
    anzeige.verberge(true);
    EXPECT_EQ(schriftfarbe(), fenster.palette().color(QPalette::Window));
    anzeige.verberge(false);
    anzeige.faerbe(std::nullopt);
    EXPECT_EQ(schriftfarbe(), fenster.palette().color(QPalette::WindowText));
    anzeige.setze({.links = 300, .oben = -150});
    EXPECT_EQ(schild.pos(), QPoint(20, -10));
    const int schmal = schild.width();
    anzeige.schreibe("ein viel längerer Text als zuvor, damit das Schild wächst");
    EXPECT_GT(schild.width(), schmal);
}

}  // namespace
}  // namespace velmaris
