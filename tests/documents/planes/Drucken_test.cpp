#include "documents/planes/Drucken.h"

#include "tests/documents/unterlagen.h"
#include "tests/testdrucker.h"
#include "tests/testplattform.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using Namen = std::vector<std::string>;

/// Tells how many pages it printed when it goes.
struct Zaehlwerk : test::Testdrucker {
    explicit Zaehlwerk(int& gedruckt) : gedruckt_(gedruckt) {}
    void EndDoc() override {
        Testdrucker::EndDoc();
        gedruckt_ = seiten;
    }
    int& gedruckt_;
};

struct Dialog {
    explicit Dialog(const std::string& sprache = "d") : u(sprache) {
        plattform.drucker = {"Laser", "Tinte"};
        plattform.druckername = "Laser";
        drucken.dokument = [this](const Druckziel& wohin) {
            ziele.push_back(wohin);
            auto drucker = std::make_unique<Zaehlwerk>(gedruckt);
            drucker->stoerung = stoerung;
            return drucker;
        };
        drucken.oeffnen();
    }

    test::Unterlagen u;
    test::Testplattform plattform;
    Sitzung sitzung{*u.p, plattform, [] {}};
    Drucken drucken{sitzung, [this] { return u.quelle; }};
    std::vector<Druckziel> ziele;  ///< of the documents begun
    bool stoerung = false;
    int gedruckt = 0;
};

TEST(Drucken, DrucktWasGewaehltIstUndSchliesst) {
    Dialog d("e");
    d.drucken.Command1.druecke();
    EXPECT_TRUE(d.ziele.empty());
    d.drucken.Druckausgabe(1).setze(1);
    d.drucken.Druckausgabe(6).setze(1);
    d.stoerung = true;
    d.drucken.Command1.druecke();
    const auto& meldungen = d.plattform.meldungen;
    ASSERT_EQ(meldungen.size(), 2U);
    EXPECT_EQ(meldungen[0].text, "Please choose at least one output.");
    EXPECT_EQ(meldungen[1].text, "paper jam");
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
    d.stoerung = false;
    d.drucken.Command1.druecke();
    EXPECT_EQ(d.gedruckt, 3);
    EXPECT_FALSE(d.drucken.fenster.sichtbar());
    EXPECT_EQ(meldungen.size(), 2U);
}

TEST(Drucken, DruckerWerdenGewaehltUndPdfImmerAngeboten) {
    Dialog d;
    Druckerwahl& wahl = d.drucken.wahl;
    EXPECT_EQ(d.drucken.DruckerName.text(), "Laser");
    d.drucken.Command3.druecke();
    EXPECT_EQ(wahl.Druckerliste.eintraege(), (Namen{"Laser", "Tinte", "PDF-Datei"}));
    EXPECT_EQ(wahl.Druckerliste.index(), 0);
    wahl.Druckerliste.setze(1);
    wahl.Abbrechen.druecke();
    EXPECT_EQ(d.drucken.DruckerName.text(), "Laser");
    for (const int zeile : {1, 2}) {
        d.drucken.Command3.druecke();
        wahl.Druckerliste.setze(zeile);
        EXPECT_TRUE(wahl.fenster.sichtbar());
        wahl.OK_Button.druecke();
        EXPECT_FALSE(wahl.fenster.sichtbar());
        EXPECT_EQ(d.drucken.DruckerName.text(), zeile == 1 ? "Tinte" : "PDF-Datei");
        EXPECT_EQ(d.drucken.DruckerNameUnten.text(), d.drucken.DruckerName.text());
    }
    EXPECT_EQ(d.plattform.druckername, "");
    d.plattform.drucker.clear();
    d.drucken.Command3.druecke();
    EXPECT_EQ(wahl.Druckerliste.eintraege(), Namen{"PDF-Datei"});
    EXPECT_EQ(wahl.Hinweis.text(), "kein Drucker installiert, Ausgabe als PDF-Datei");
}

/// A printer that goes: what is left is offered, and nothing is printed elsewhere without a word.
TEST(Drucken, VerschwundenerDrucker) {
    const std::vector<void (*)(Dialog&)> wege{
        [](Dialog& d) {
            d.plattform.drucker = {"Tinte"};
            d.drucken.Command1.druecke();
        },
        [](Dialog& d) {
            d.drucken.Command3.druecke();
            d.plattform.drucker = {"Tinte"};
            d.drucken.wahl.OK_Button.druecke();
        },
        [](Dialog& d) {
            d.drucken.dokument = [&d](const Druckziel&) -> std::unique_ptr<velmaris::Drucker> {
                d.plattform.drucker = {"Tinte"};
                throw Laufzeitfehler({"Laser antwortet nicht", "Laser does not answer"});
            };
            d.drucken.Command1.druecke();
        }};
    for (const auto verschwinden : wege) {
        Dialog d;
        d.drucken.Druckausgabe(2).setze(1);
        verschwinden(d);
        ASSERT_EQ(d.plattform.meldungen.size(), 1U);
        EXPECT_NE(d.plattform.meldungen[0].text.find("Laser"), std::string::npos);
        EXPECT_TRUE(d.plattform.dialoge.empty()) << "no PDF dialog";
        EXPECT_EQ(d.gedruckt, 0);
        EXPECT_TRUE(d.drucken.wahl.fenster.sichtbar() && d.drucken.fenster.sichtbar());
        EXPECT_EQ(d.drucken.wahl.Druckerliste.eintraege(), (Namen{"Tinte", "PDF-Datei"}));
    }
}

}  // namespace
}  // namespace velmaris
