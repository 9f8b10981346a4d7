#include "desktop/widgets/binde.h"

#include "desktop/widgets/scrollleiste.h"
#include "tests/desktop/bedienung.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
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
    Scrollfeld feld("h_sb", 0, 100, 1, 10);
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    Knopf knopf("Command1", "Los");
    QPushButton schalter(&fenster);
    feld.geaendert = [&] {
        if (feld.position() == 1) throw Laufzeitfehler({"Überlauf", "overflow"}, "h");
    };
    knopf.gedrueckt = [] { throw std::runtime_error("unforeseen"); };
    binder.binde(leiste, feld);
    binder.binde(schalter, knopf);
    QTest::keyClick(&leiste, Qt::Key_Right);
    EXPECT_EQ(leiste.value(), feld.position());
    QTest::keyClick(&leiste, Qt::Key_Right);
    EXPECT_EQ(feld.position(), 2);
    schalter.click();
    knopf.gedrueckt = [] { throw std::bad_alloc(); };
    schalter.click();
    ASSERT_EQ(fehlertexte.size(), 3U);
    EXPECT_EQ(fehlertexte[0], Laufzeitfehler({"Überlauf", "overflow"}, "h").text("d"));
    EXPECT_EQ(fehlertexte[1], "unforeseen");
    EXPECT_TRUE(fehlertexte[2].find("Speicher") != std::string::npos) << fehlertexte[2];
}

TEST_F(Binde, AuswahllisteMeldetAuchDieWahlDerSelbenZeile) {
    Auswahlliste liste("ugd");
    QComboBox kasten(&fenster);
    std::vector<int> gewaehlt;
    liste.gewaehlt = [&] { gewaehlt.push_back(liste.index()); };
    binder.binde(kasten, liste);
    liste.fuelle({"eins", "zwei", "drei"});
    kasten.show();
    EXPECT_EQ(kasten.count(), 3);
    EXPECT_EQ(kasten.currentIndex(), -1);
    EXPECT_EQ(kasten.accessibleName(), "ugd");
    test::waehle_zeile(kasten, 1);
    test::waehle_zeile(kasten, 1);
    QTest::keyClick(&kasten, Qt::Key_Down);
    EXPECT_EQ(gewaehlt, (std::vector{1, 1, 2}));
    liste.markiere(0);
    EXPECT_EQ(kasten.currentText(), "eins");
    EXPECT_EQ(kasten.placeholderText(), "");
    liste.fuelle({"neu"});
    EXPECT_EQ(kasten.count(), 1);
    EXPECT_EQ(gewaehlt.size(), 3U) << "neither marking nor filling is a choice";
}

TEST_F(Binde, AuswahllisteZeigtFremdenTextUndLangeZeilenGanz) {
    const std::string lang = "U-Werte aller Umfassungsflächen um 0,10 W/(m² K) erhöhen, und noch etwas mehr";
    Auswahlliste liste("Klimaregionwahl");
    QComboBox kasten(&fenster);
    kasten.resize(90, 24);
    binder.binde(kasten, liste);
    liste.fuelle({"kurz", lang});
    liste.schreibe("Reykjavik");
    EXPECT_EQ(kasten.currentIndex(), -1);
    EXPECT_EQ(kasten.placeholderText(), "Reykjavik");
    EXPECT_EQ(kasten.toolTip(), "Reykjavik");
    EXPECT_EQ(kasten.palette().color(QPalette::PlaceholderText),
              kasten.palette().color(QPalette::ButtonText));
    kasten.show();
    kasten.showPopup();
    const int noetig = kasten.fontMetrics().horizontalAdvance(QString::fromStdString(lang));
    EXPECT_GE(kasten.view()->viewport()->width(), noetig);
    EXPECT_LE(kasten.view()->width(), noetig + 60);
    EXPECT_EQ(kasten.width(), 90);
}

TEST_F(Binde, AnzeigeMitTextFarbeUndPlatz) {
    Anzeige anzeige("av_anz", "0.62 ");
    QLabel schild(&fenster);
    binder.binde(schild, anzeige, 1.0 / 15);
    anzeige.schreibe("Monat: Mai\r1.0 <b>\r\n2.0");
    EXPECT_EQ(schild.text(), "Monat: Mai\n1.0 <b>\n2.0");
    EXPECT_EQ(schild.textFormat(), Qt::PlainText);

    const QColor gewoehnlich = fenster.palette().color(QPalette::WindowText);
    const auto schriftfarbe = [&] { return schild.palette().color(schild.foregroundRole()); };
    EXPECT_EQ(schriftfarbe(), gewoehnlich);
    anzeige.faerbe(farben::rot);
    anzeige.verberge(true);
    EXPECT_EQ(schriftfarbe(), fenster.palette().color(QPalette::Window));
    anzeige.verberge(false);
    EXPECT_EQ(schriftfarbe(), QColor(255, 0, 0));
    anzeige.faerbe(std::nullopt);
    EXPECT_EQ(schriftfarbe(), gewoehnlich);

    anzeige.setze({.links = 300, .oben = -150});
    EXPECT_EQ(schild.pos(), QPoint(20, -10));
    const int schmal = schild.width();
    anzeige.schreibe("ein viel längerer Text als zuvor, damit das Schild wächst");
    EXPECT_GT(schild.width(), schmal);
}

TEST_F(Binde, FelderUeberlebenIhreWidgets) {
    Scrollfeld feld("l_sb", 0, 10, 1, 2);
    Auswahlliste liste("ugd");
    Optionsgruppe gruppe("Option1", 0, 2);
    {
        QWidget ebene(&fenster);
        const std::array knoepfe{new QRadioButton(&ebene), new QRadioButton(&ebene)};
        binder.binde(*new Scrollleiste(Qt::Horizontal, &ebene), feld);
        binder.binde(*new QComboBox(&ebene), liste);
        binder.binde(knoepfe, gruppe);
    }
    EXPECT_FALSE(feld.ansicht);
    feld.setze(5);
    liste.fuelle({"a"});
    gruppe.setze(1);
    EXPECT_EQ(feld.position(), 5);
}

}  // namespace
}  // namespace velmaris
