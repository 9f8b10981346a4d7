#include "planes/Start.h"

#include "documents/print/Ausdrucken.h"
#include "planes/dokumentquelle.h"
#include "tests/testdrucker.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Befehlszeile, KenntSpracheOrdnerUndProjekt) {
    struct Fall {
        std::string text, sprache, ordner, projekt;  ///< "-" for none
    };
    for (const Fall& fall : {Fall{"", "-", "-", "-"},
                             {"e", "e", "-", "-"},
                             {"D", "-", "-", "-"},
                             {"de", "-", "de", "-"},
                             {"C:\\Haus Süd.VEL", "-", "C:/Haus Süd.VEL", "c:\\haus süd.vel"},
                             {"\"C:\\Haus.vel\"", "-", "\"C:/Haus.vel\"", "c:\\haus.vel"},
                             {".vel", "-", ".vel", "-"},
                             {"a|b|D:\\Ordner", "-", "D:/Ordner", "-"}}) {
        const Befehlszeile zeile(fall.text);
        EXPECT_EQ(zeile.sprache().value_or("-"), fall.sprache) << fall.text;
        EXPECT_EQ(pfadtext(zeile.ordner().value_or("-")), fall.ordner) << fall.text;
        EXPECT_EQ(zeile.projekt().value_or("-"), fall.projekt) << fall.text;
    }
}

/// A program that has not built up its project yet. A house of 14 m at the station fern.met lies beside it,
/// with capitals in its name.
struct Programmstart {
    explicit Programmstart(const std::string& trier = test::stationsbytes("Trier"), bool fern = true) {
        ordner.schreibe("klima/trier.met", trier);
        if (fern) ordner.schreibe("klima/fern.met", test::stationsbytes("Fern (Ausland)"));
        haupt = std::make_unique<Haupt>(plattform, ordner.pfad(), "d");
        haupt->datei.projekt_vorbereiten();
        auto zeilen = test::projektzeilen(haupt->p);
        zeilen[1] = " 14";
        zeilen[55] = "fern.met";
        haus = pfadtext(ordner.schreibe("Mein Haus.VEL", test::projekttext(zeilen)));
    }

    std::unique_ptr<Start> start(const std::string& befehlszeile) {
        auto neu = std::make_unique<Start>(*haupt, Befehlszeile(befehlszeile), [this] { ++gezeigt; });
        neu->laden();
        return neu;
    }

    test::Testordner ordner;
    test::Testplattform plattform;
    std::unique_ptr<Haupt> haupt;
    std::string haus;
    int gezeigt = 0;
};

TEST(Start, OhneSprachbuchstabenWartetDasStartfensterZehnSekundenOderAufDenKnopf) {
    Programmstart sofort;
    EXPECT_FALSE(sofort.start("d")->fenster.sichtbar());
    EXPECT_EQ(sofort.gezeigt, 1);
    EXPECT_TRUE(sofort.plattform.zeitgeber.empty());
    Programmstart s;
    const auto fenster = s.start("");
    EXPECT_EQ(s.plattform.zeitgeber.at("Start.Timer1").millisekunden, 10000);
    EXPECT_EQ(s.haupt->p.Gestartet, 0);
    fenster->OK_Button.druecke();
    EXPECT_EQ(s.haupt->p.Gestartet, 1);
    EXPECT_FALSE(s.plattform.sanduhren.back());
    for (const bool knopf : {true, false}) {
        fenster->laden();
        EXPECT_TRUE(fenster->fenster.sichtbar());
        EXPECT_TRUE(s.plattform.zeitgeber.empty());
        knopf ? fenster->OK_Button.druecke() : fenster->schliessen();
        EXPECT_FALSE(fenster->fenster.sichtbar());
    }
    EXPECT_FALSE(s.plattform.beendet);
    EXPECT_EQ(s.gezeigt, 1);
    Programmstart abgebrochen;
    abgebrochen.start("")->schliessen();
    EXPECT_TRUE(abgebrochen.plattform.beendet);
}

TEST(Start, OeffnetDasProjektDerBefehlszeile) {
    Programmstart s;
    const auto fenster = s.start("\"" + s.haus + "\"");
    s.plattform.lasse_ablaufen("Start.Timer1");
    EXPECT_EQ(s.haupt->p.l, 14);
    EXPECT_EQ(s.plattform.titel, "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(s.gezeigt, 1);
}

/// With another station the program calculates on that one; without any it shows and prints what it has, and
/// goes on as soon as a station can be read.
TEST(Start, OhneVorgabestationKommtDasProgrammMitEinerAnderenHoch) {
    for (const auto& [projekt, andere] :
         {std::pair(false, true), {true, true}, {false, false}, {true, false}}) {
        Programmstart s(test::stationsbytes("Trier").substr(0, 9000), andere);
        const auto start = s.start(projekt ? s.haus : "");
        start->OK_Button.druecke();
        Haupt& haupt = *s.haupt;
        const Projekt& p = haupt.p;
        EXPECT_EQ(s.gezeigt, 1);
        EXPECT_FALSE(start->fenster.sichtbar());
        ASSERT_EQ(s.plattform.meldungen.size(), projekt && !andere ? 2U : 1U);
        EXPECT_NE(s.plattform.meldungen[0].hinweis.find("trier.met: die Klimadatei endet"),
                  std::string::npos);
        EXPECT_EQ(p.FormLoadGuard, 0);
        EXPECT_EQ(p.l, projekt ? 14 : 10);
        haupt.laden();
        for (const auto& eintrag : haupt.a_menue.eintraege())
            haupt.a_menue.klicke(eintrag.knopf->name);
        test::Testdrucker drucker;
        Ausdrucken(drucker, dokumentquelle(haupt), alles_drucken, {});
        EXPECT_EQ(drucker.seiten, 8);
        for (const test::Druckzeichen& z : drucker.zeichen)
            EXPECT_EQ(z.text.find("NaN"), std::string::npos) << z.text;
        haupt.e_geometrie.l_sb.setze(120);
        EXPECT_EQ(p.qh > 0, andere);
        s.ordner.schreibe("klima/trier.met", test::stationsbytes("Trier"));
        haupt.e_klima.Option.setze(nummer(Klimabereich::deutschland));
        haupt.e_klima.Klimaregionwahl.setze(3);
        EXPECT_EQ(p.Klimadatei, "trier.met");
        EXPECT_GT(p.qh, 0);
    }
}

TEST(SpracheBestimmen, BefehlszeileVorDateiVorFenster) {
    const test::Testordner ordner;
    std::filesystem::create_directories(ordner / "klima");
    const auto fenster = [] { return std::optional<std::string>("e"); };
    EXPECT_EQ(sprache_bestimmen(Befehlszeile("d"), ordner.pfad(), {}, fenster), "d");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), {}, fenster), "e");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), {}, {}), "e") << "as noted";
}

}  // namespace
}  // namespace velmaris
