#include "documents/Drucken.h"

#include "planes/reportquelle.h"
#include "tests/documents/reporthilfen.h"
#include "tests/testdrucker.h"

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
        drucken.dokument = [this]() -> std::unique_ptr<Drucker> {
            ++anfragen;
            if (abbruch) return nullptr;
            auto drucker = std::make_unique<Weitergabe>(gedruckt);
            drucker->stoerung = stoerung;
            return drucker;
        };
        drucken.oeffnen();
    }

    std::unique_ptr<test::Testprogramm> programm;
    Drucken drucken{programm->haupt->sitzung, [this] { return reportquelle(*programm->haupt); }};
    bool abbruch = false;
    bool stoerung = false;
    int anfragen = 0;
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
    EXPECT_EQ(d.anfragen, 0);
    ASSERT_EQ(d.programm->plattform.meldungen.size(), 1U);
    EXPECT_EQ(d.programm->plattform.meldungen[0].text, "Please choose at least one output.");
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
}

TEST(Drucken, AbbruchUndStoerungLassenDenDialogOffen) {
    Dialog d;
    d.drucken.Druckausgabe(2).setze(1);
    d.abbruch = true;
    d.drucken.Command1.druecke();
    EXPECT_TRUE(d.programm->plattform.meldungen.empty());
    d.abbruch = false;
    d.stoerung = true;
    d.drucken.Command1.druecke();
    ASSERT_EQ(d.programm->plattform.meldungen.size(), 1U);
    EXPECT_EQ(d.programm->plattform.meldungen[0].text, "Papierstau");
    EXPECT_TRUE(d.drucken.fenster.sichtbar());
    d.drucken.Command2.druecke();
    EXPECT_FALSE(d.drucken.fenster.sichtbar());
}

TEST(Drucken, ZeigtDenDrucker) {
    Dialog d;
    EXPECT_NE(d.drucken.DruckerName.text().find("PDF"), std::string::npos);
    d.programm->plattform.drucker = {"Laser", "Tinte"};
    d.drucken.druckerwahl = [&d] { d.programm->plattform.drucker_waehlen(1); };
    d.drucken.Command3.druecke();
    EXPECT_EQ(d.drucken.DruckerName.text(), "Tinte");
    EXPECT_EQ(d.drucken.DruckerNameUnten.text(), "Tinte");
}

TEST(Drucken, Beschriftungen) {
    EXPECT_EQ(Dialog("e").drucken.Command1.text(), "Print");
    EXPECT_EQ(Dialog("d").drucken.Command3.text(), "Ändern");
}

}  // namespace
}  // namespace velmaris
