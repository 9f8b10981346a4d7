#include "desktop/widgets/binde.h"

#include "desktop/widgets/scrollleiste.h"
#include "tests/desktop/bedienung.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

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
    feld.geaendert = [&] { stellungen.push_back(feld.position()); };
    binder.binde(leiste, feld);
    EXPECT_EQ(leiste.objectName(), "l_sb");
    EXPECT_EQ(leiste.accessibleName(), "l_sb");
    EXPECT_EQ(leiste.value(), 20);

    feld.setze(100);
    EXPECT_EQ(leiste.value(), 100);
    QTest::keyClick(&leiste, Qt::Key_Right);
    QTest::keyClick(&leiste, Qt::Key_End);
    QTest::keyClick(&leiste, Qt::Key_Right);
    EXPECT_EQ(stellungen, (std::vector{100, 110, 500}));

    feld.bereich(0, 50);
    EXPECT_EQ(leiste.maximum(), 50);
    EXPECT_EQ(leiste.value(), 50);
    feld.aktiviere(false);
    EXPECT_FALSE(leiste.isEnabled());
    feld.zeige(false);
    EXPECT_TRUE(leiste.isHidden());
    EXPECT_EQ(stellungen.size(), 3U);
}

TEST_F(Binde, HandlerDerSeinFeldZurueckstelltBehaeltRecht) {
    Scrollfeld feld("Troom_sb", -100, 400, 20, 200);
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    feld.geaendert = [&] {
        if (feld.position() >= 270) feld.setze(269);
    };
    binder.binde(leiste, feld);
    feld.setze(260);
    QTest::keyClick(&leiste, Qt::Key_Right);
    EXPECT_EQ(feld.position(), 269);
    EXPECT_EQ(leiste.value(), 269);
    EXPECT_EQ(leiste.sliderPosition(), 269);
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
    ASSERT_EQ(fehlertexte.size(), 1U);
    EXPECT_EQ(fehlertexte[0], Laufzeitfehler({"Überlauf", "overflow"}, "h").text("d"));
    EXPECT_EQ(leiste.value(), feld.position());
    QTest::keyClick(&leiste, Qt::Key_Right);
    EXPECT_EQ(feld.position(), 2);
    QTest::mouseClick(&schalter, Qt::LeftButton);
    ASSERT_EQ(fehlertexte.size(), 2U);
    EXPECT_EQ(fehlertexte[1], "unforeseen");
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

    const auto waehle = [&](int zeile) {
        kasten.showPopup();
        QAbstractItemView* ansicht = kasten.view();
        ansicht->setCurrentIndex(kasten.model()->index(zeile, 0));
        QTest::keyClick(ansicht, Qt::Key_Return);
    };
    waehle(1);
    waehle(1);
    EXPECT_EQ(gewaehlt, (std::vector{1, 1}));
    QTest::keyClick(&kasten, Qt::Key_Down);
    EXPECT_EQ(gewaehlt, (std::vector{1, 1, 2}));

    liste.markiere(0);
    EXPECT_EQ(kasten.currentText(), "eins");
    EXPECT_EQ(gewaehlt.size(), 3U);
    liste.fuelle({"neu"});
    EXPECT_EQ(kasten.count(), 1);
    EXPECT_EQ(gewaehlt.size(), 3U) << "filling is no choice";
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
    kasten.show();
    kasten.showPopup();
    EXPECT_GE(kasten.view()->viewport()->width(),
              kasten.fontMetrics().horizontalAdvance(QString::fromStdString(lang)));
    EXPECT_EQ(kasten.width(), 90);
    kasten.hidePopup();
    liste.markiere(1);
    EXPECT_EQ(kasten.currentText().toStdString(), lang);
}

TEST_F(Binde, PruefeldMitMausUndLeertaste) {
    Pruefeld feld("Check_Dachgeschoss");
    QCheckBox kasten("Dach", &fenster);
    kasten.show();
    int gefeuert = 0;
    feld.geklickt = [&] { ++gefeuert; };
    binder.binde(kasten, feld);
    QTest::mouseClick(&kasten, Qt::LeftButton, {}, QPoint(8, kasten.height() / 2));
    EXPECT_EQ(feld.wert(), 1);
    QTest::keyClick(&kasten, Qt::Key_Space);
    EXPECT_EQ(feld.wert(), 0);
    feld.setze(1);
    EXPECT_TRUE(kasten.isChecked());
    feld.markiere(0);
    EXPECT_FALSE(kasten.isChecked());
    EXPECT_EQ(gefeuert, 3);
}

TEST_F(Binde, OptionenSindEineOderKeine) {
    Optionsgruppe gruppe("Option_Dachfirst", 1, 2);
    QRadioButton erste("NS", &fenster);
    QRadioButton zweite("OW", &fenster);
    erste.show();
    zweite.move(0, 30);
    zweite.show();
    std::vector<int> geklickt;
    gruppe.geklickt = [&](int option) { geklickt.push_back(option); };
    const std::array knoepfe{&erste, &zweite};
    binder.binde(knoepfe, gruppe);
    EXPECT_EQ(erste.objectName(), "Option_Dachfirst1");
    EXPECT_EQ(zweite.objectName(), "Option_Dachfirst2");
    EXPECT_FALSE(erste.isChecked() || zweite.isChecked());

    QTest::mouseClick(&zweite, Qt::LeftButton, {}, QPoint(8, zweite.height() / 2));
    EXPECT_EQ(gruppe.gesetzt(), 2);
    QTest::mouseClick(&zweite, Qt::LeftButton, {}, QPoint(8, zweite.height() / 2));
    QTest::keyClick(&zweite, Qt::Key_Up);
    EXPECT_EQ(geklickt, (std::vector{2, 1}));
    EXPECT_TRUE(erste.isChecked() && !zweite.isChecked());

    gruppe.markiere(std::nullopt);
    EXPECT_FALSE(erste.isChecked() || zweite.isChecked());
    gruppe.setze(1);
    EXPECT_TRUE(erste.isChecked());
    gruppe.aktiviere(false);
    EXPECT_FALSE(erste.isEnabled() || zweite.isEnabled());
    EXPECT_EQ(geklickt, (std::vector{2, 1, 1}));
}

TEST_F(Binde, AnzeigeMitTextFarbeUndPlatz) {
    Anzeige anzeige("av_anz", "0.62 ");
    QLabel schild(&fenster);
    binder.binde(schild, anzeige, 1.0 / 15);
    EXPECT_EQ(schild.text(), "0.62 ");
    anzeige.schreibe("Monat: Mai\r1.0 <b>\r\n2.0");
    EXPECT_EQ(schild.text(), "Monat: Mai\n1.0 <b>\n2.0");
    EXPECT_EQ(schild.textFormat(), Qt::PlainText);

    const QColor gewoehnlich = fenster.palette().color(QPalette::WindowText);
    const auto schriftfarbe = [&] { return schild.palette().color(schild.foregroundRole()); };
    EXPECT_EQ(schriftfarbe(), gewoehnlich);
    anzeige.faerbe(farben::rot);
    EXPECT_EQ(schriftfarbe(), QColor(255, 0, 0));
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
    anzeige.zeige(false);
    EXPECT_TRUE(schild.isHidden());
}

TEST_F(Binde, KnopfRahmenUndFenster) {
    Knopf knopf("Command_HR0");
    QPushButton schalter("Nord", &fenster);
    schalter.show();
    int gedrueckt = 0;
    knopf.gedrueckt = [&] { ++gedrueckt; };
    binder.binde(schalter, knopf);
    EXPECT_EQ(schalter.text(), "Nord");
    knopf.schreibe("north");
    EXPECT_EQ(schalter.text(), "north");
    QTest::mouseClick(&schalter, Qt::LeftButton);
    QTest::keyClick(&schalter, Qt::Key_Space);
    EXPECT_EQ(gedrueckt, 2);
    knopf.aktiviere(false);
    QTest::mouseClick(&schalter, Qt::LeftButton);
    EXPECT_EQ(gedrueckt, 2);

    Anzeige titel("Frame8", "mittlerer g-Wert");
    QGroupBox rahmen(&fenster);
    binder.binde(rahmen, titel);
    EXPECT_EQ(rahmen.title(), "mittlerer g-Wert");
    Feld ebene("E_Fenster");
    QWidget flaeche(&fenster);
    binder.binde(flaeche, ebene);
    EXPECT_FALSE(flaeche.isHidden());
    ebene.zeige(false);
    EXPECT_TRUE(flaeche.isHidden());
    EXPECT_EQ(flaeche.objectName(), "E_Fenster");
}

TEST_F(Binde, MenuepunktMitHaekchen) {
    Menuepunkt punkt("mnuSpracheDeutsch");
    QAction eintrag;
    int gedrueckt = 0;
    punkt.gedrueckt = [&] { ++gedrueckt; };
    punkt.schreibe("&Deutsch");
    binder.binde(eintrag, punkt);
    EXPECT_EQ(eintrag.objectName(), "mnuSpracheDeutsch");
    EXPECT_EQ(eintrag.text(), "&Deutsch");
    EXPECT_FALSE(eintrag.isChecked());
    punkt.kreuze_an(true);
    EXPECT_TRUE(eintrag.isChecked());
    eintrag.trigger();
    EXPECT_EQ(gedrueckt, 1);
    EXPECT_TRUE(eintrag.isChecked()) << "the click itself changes no mark";
    punkt.aktiviere(false);
    EXPECT_FALSE(eintrag.isEnabled());
}

TEST_F(Binde, FelderUeberlebenIhreWidgets) {
    Scrollfeld feld("l_sb", 0, 10, 1, 2);
    Auswahlliste liste("ugd");
    Optionsgruppe gruppe("Option1", 0, 2);
    {
        QWidget ebene(&fenster);
        auto* leiste = new Scrollleiste(Qt::Horizontal, &ebene);
        auto* kasten = new QComboBox(&ebene);
        const std::array knoepfe{new QRadioButton(&ebene), new QRadioButton(&ebene)};
        binder.binde(*leiste, feld);
        binder.binde(*kasten, liste);
        binder.binde(knoepfe, gruppe);
    }
    EXPECT_FALSE(feld.ansicht);
    feld.setze(5);
    liste.fuelle({"a"});
    gruppe.setze(1);
    EXPECT_EQ(feld.position(), 5);
}

TEST_F(Binde, FokusstellungIstDieDesBenutztenFeldes) {
    Scrollfeld feld("gfn_sb", 0, 100, 5, 20);
    Scrollleiste leiste(Qt::Horizontal, &fenster);
    QLineEdit anderes(&fenster);
    leiste.show();
    anderes.show();
    binder.binde(leiste, feld);
    std::optional<int> im_handler;
    feld.geaendert = [&] { im_handler = fokusstellung(fenster); };
    anderes.setFocus();
    EXPECT_EQ(fokusstellung(fenster), std::nullopt);
    feld.setze(30);
    EXPECT_EQ(im_handler, std::nullopt);
    QTest::mouseClick(&leiste, Qt::LeftButton, {}, test::teil(leiste, QStyle::SC_ScrollBarAddLine));
    EXPECT_EQ(im_handler, 35) << "the click brings the focus before the value";
}

}  // namespace
}  // namespace velmaris
