#include "documents/planes/Drucken.h"

#include "planes/dokumentquelle.h"
#include "tests/documents/report/reporthilfen.h"
#include "tests/testdrucker.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// A printer whose document outlives the dialog's use of it.
class Weitergabe : public test::Testdrucker {
  public:
    explicit Weitergabe(int& seitenzahl) : seitenzahl_(seitenzahl) {}
    void EndDoc() override {
        Testdrucker::EndDoc();
        seitenzahl_ = seiten;
    }

  private:
    int& seitenzahl_;
};

struct Dialog {
    explicit Dialog(const std::string& sprache = "d") : programm(test::dokumentprogramm(sprache)) {
        programm->plattform.drucker = {"Laser", "Tinte"};
        programm->plattform.druckername = "Laser";
        drucken.dokument = [this](const Druckziel& wohin) {
            ziele.push_back(wohin);
            auto drucker = std::make_unique<Weitergabe>(gedruckt);
            drucker->stoerung = stoerung;
            return drucker;
        };
        drucken.oeffnen();
    }

    std::unique_ptr<test::Testprogramm> programm;
    Drucken drucken{programm->haupt->sitzung, [this] { return dokumentquelle(*programm->haupt); }};
    std::vector<Druckziel> ziele;  ///< of the documents begun
    bool stoerung = false;
    int gedruckt = 0;
};

TEST(Drucken, DrucktWasGewaehltIstUndSchliesst) {
    Dialog d;
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
    d.drucken.Druckausgabe(1).setze(1);
    d.drucken.Druckausgabe(6).setze(1);
    d.drucken.Command1.druecke();
    EXPECT_EQ(d.gedruckt, 3);
    EXPECT_FALSE(d.drucken.fenster.sichtbar());
    EXPECT_TRUE(d.programm->plattform.meldungen.empty());
}

TEST(Drucken, OhneAuswahlKommtEinWort) {
    Dialog d("e");
    d.drucken.Command1.druecke();
    EXPECT_TRUE(d.ziele.empty());
    ASSERT_EQ(d.programm->plattform.meldungen.size(), 1U);
    EXPECT_EQ(d.programm->plattform.meldungen[0].text, "Please choose at least one output.");
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
}

TEST(Drucken, StoerungLaesstDenDialogOffen) {
    Dialog d;
    d.drucken.Druckausgabe(2).setze(1);
    d.stoerung = true;
    d.drucken.Command1.druecke();
    ASSERT_EQ(d.programm->plattform.meldungen.size(), 1U);
    EXPECT_EQ(d.programm->plattform.meldungen[0].text, "Papierstau");
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
    d.drucken.Command2.druecke();
    EXPECT_FALSE(d.drucken.fenster.sichtbar());
}

TEST(Drucken, FragtNachDerPdfDatei) {
    Dialog d;
    d.programm->p().Datei = "C:\\Häuser\\Müller.vel";
    d.programm->plattform.druckername = "";
    d.drucken.oeffnen();
    d.drucken.Druckausgabe(2).setze(1);
    d.drucken.Command1.druecke();
    ASSERT_EQ(d.programm->plattform.dialoge.size(), 1U);
    EXPECT_EQ(d.programm->plattform.dialoge[0].dateiname, "Müller.pdf");
    EXPECT_TRUE(d.ziele.empty()) << "cancelled";
    EXPECT_TRUE(d.programm->plattform.meldungen.empty());
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
    d.programm->plattform.dateien = {"/tmp/blatt"};
    d.drucken.Command1.druecke();
    ASSERT_EQ(d.ziele.size(), 1U);
    EXPECT_EQ(d.ziele[0].pdf, "/tmp/blatt.pdf");
    EXPECT_EQ(d.ziele[0].drucker, "");
    EXPECT_EQ(d.ziele[0].titel, "Müller.vel");
}

TEST(Drucken, DruckerWerdenGewaehltUndPdfImmerAngeboten) {
    Dialog d;
    Druckerwahl& wahl = d.drucken.wahl;
    EXPECT_EQ(d.drucken.DruckerName.text(), "Laser");
    d.drucken.Command3.druecke();
    EXPECT_TRUE(wahl.fenster.sichtbar());
    EXPECT_EQ(wahl.Druckerliste.eintraege(), (std::vector<std::string>{"Laser", "Tinte", "PDF-Datei"}));
    EXPECT_EQ(wahl.Druckerliste.index(), 0);
    EXPECT_EQ(wahl.Hinweis.text(), "");
    wahl.Druckerliste.setze(1);
    wahl.Abbrechen.druecke();
    EXPECT_FALSE(wahl.fenster.sichtbar());
    EXPECT_EQ(d.drucken.DruckerName.text(), "Laser");
    for (const int zeile : {1, 2}) {
        d.drucken.Command3.druecke();
        wahl.Druckerliste.setze(zeile);
        wahl.OK_Button.druecke();
        EXPECT_FALSE(wahl.fenster.sichtbar());
        EXPECT_EQ(d.drucken.DruckerName.text(), zeile == 1 ? "Tinte" : "PDF-Datei");
        EXPECT_EQ(d.drucken.DruckerNameUnten.text(), d.drucken.DruckerName.text());
    }
    EXPECT_EQ(d.programm->plattform.druckername, "");

    d.programm->plattform.drucker.clear();
    d.drucken.oeffnen();
    d.drucken.Command3.druecke();
    EXPECT_EQ(wahl.Druckerliste.eintraege(), (std::vector<std::string>{"PDF-Datei"}));
    EXPECT_EQ(wahl.Hinweis.text(), "kein Drucker installiert, Ausgabe als PDF-Datei");
    EXPECT_EQ(d.drucken.DruckerName.text(), wahl.Hinweis.text());
}

/// A printer that goes: what is left is offered, and nothing is printed elsewhere without a word.
TEST(Drucken, VerschwundenerDrucker) {
    using Namen = std::vector<std::string>;
    struct Fall {
        const char* wann;
        Namen rest;
        void (*verschwinden)(Dialog&, const Namen& rest);
    };
    const auto druckt = [](Dialog& d, const Namen& rest) {
        d.programm->plattform.drucker = rest;
        d.drucken.Command1.druecke();
    };
    const auto waehlt = [](Dialog& d, const Namen& rest) {
        d.drucken.Command3.druecke();
        d.programm->plattform.drucker = rest;
        d.drucken.wahl.OK_Button.druecke();
    };
    const auto vorgabe_wechselt = [](Dialog& d, const Namen& rest) {
        d.programm->plattform.drucker = rest;
        d.programm->plattform.druckername = rest.empty() ? "" : rest.front();
        d.drucken.Command1.druecke();
    };
    const auto beim_beginnen = [](Dialog& d, const Namen& rest) {
        d.drucken.dokument = [&d, &rest](const Druckziel&) -> std::unique_ptr<velmaris::Drucker> {
            d.programm->plattform.drucker = rest;
            throw Laufzeitfehler({"Laser antwortet nicht", "Laser does not answer"});
        };
        d.drucken.Command1.druecke();
    };
    const auto vor_dem_oeffnen = [](Dialog& d, const Namen& rest) {
        d.drucken.Command2.druecke();
        d.programm->plattform.drucker = rest;
        d.drucken.oeffnen();
        EXPECT_EQ(d.drucken.DruckerName.text(), "Laser");
        d.drucken.Command1.druecke();
    };
    for (const Namen& rest : {Namen{"Tinte"}, Namen{}}) {
        for (const Fall& fall : {Fall{"print", rest, druckt},
                                 {"choose", rest, waehlt},
                                 {"default", rest, vorgabe_wechselt},
                                 {"begin", rest, beim_beginnen},
                                 {"open", rest, vor_dem_oeffnen}}) {
            SCOPED_TRACE(fall.wann + std::string(rest.empty() ? ", none left" : ""));
            Dialog d;
            d.drucken.Druckausgabe(2).setze(1);
            fall.verschwinden(d, rest);
            const auto& plattform = d.programm->plattform;
            ASSERT_EQ(plattform.meldungen.size(), 1U);
            EXPECT_NE(plattform.meldungen[0].text.find("Laser"), std::string::npos);
            EXPECT_TRUE(plattform.dialoge.empty()) << "no PDF dialog";
            EXPECT_EQ(d.gedruckt, 0);
            const Druckerwahl& wahl = d.drucken.wahl;
            EXPECT_TRUE(wahl.fenster.sichtbar());
            Namen angebot = rest;
            angebot.emplace_back("PDF-Datei");
            EXPECT_EQ(wahl.Druckerliste.eintraege(), angebot);
            EXPECT_EQ(wahl.Hinweis.text().empty(), !rest.empty());
            EXPECT_TRUE(d.drucken.fenster.sichtbar());
        }
    }
}

TEST(Drucken, Beschriftungen) {
    EXPECT_EQ(Dialog("e").drucken.Command1.text(), "Print");
    EXPECT_EQ(Dialog("d").drucken.Command3.text(), "Ändern");
}

}  // namespace
}  // namespace velmaris
