#include "console/importieren.h"

#include "tests/climate/import/importprobe.h"
#include "toolkit/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace velmaris {
namespace {

using test::Quellbau;
using testing::HasSubstr;

class Konsolenimport : public testing::Test {
  protected:
    Konsolenimport() {
        std::filesystem::create_directories(ordner / "klima");
        auftrag.programmordner = ordner.pfad();
        auftrag.sprache = "e";
    }

    /// The exit status of an import of that source; `aus` and `fehler` hold its output.
    int importiere(const std::string& bytes, const std::string& name, std::optional<std::string> land = {},
                   bool ersetzen = false, std::optional<std::string> ort = {}) {
        aus.str({});
        fehler.str({});
        const auto quelle = pfadtext(ordner.schreibe("quelle.txt", bytes));
        auftrag.klimaimport = Importauftrag{.quelle = quelle,
                                            .name = name,
                                            .land = std::move(land),
                                            .ort = std::move(ort),
                                            .ersetzen = ersetzen};
        return ausfuehren(auftrag, aus, fehler);
    }

    [[nodiscard]] std::string station(const std::string& name) const {
        const auto datei = ordner / ("klima/" + name + ".met");
        return std::filesystem::exists(datei) ? test::inhalt(datei) : std::string();
    }

    test::Testordner ordner;
    Auftrag auftrag;
    std::ostringstream aus;
    std::ostringstream fehler;
};

TEST_F(Konsolenimport, SchreibtDieselbeDateiWieDasFenster) {
    test::Importprobe fenster;
    struct Fall {
        std::string quelle;
        std::optional<std::string> land;
    };
    for (const Fall& fall : {Fall{Quellbau{.zeilen = 8784}.epw(true), std::nullopt},
                             Fall{Quellbau{}.meteonorm(), "Schweiz"}, Fall{Quellbau{}.epw(), "Suisse"}}) {
        ASSERT_EQ(importiere(fall.quelle, "bern", fall.land, true), alles_gut) << fehler.str();
        fenster.e->oeffnen();
        fenster.oeffne("quelle.txt", fall.quelle);
        if (fall.land) fenster.e->Land.tippe(*fall.land);
        fenster.plattform.antworten = {Antwort::ja};
        fenster.importiere("bern");
        EXPECT_EQ(test::zeilen(station("bern")).size(), 8766U);
        EXPECT_EQ(station("bern"), fenster.station("bern"));
        EXPECT_THAT(aus.str(), HasSubstr("bern.met: Bern ("));
        EXPECT_THAT(aus.str(), HasSubstr(" file was recognised as a"));
        EXPECT_EQ(aus.str().find('\n'), aus.str().size() - 1);
    }
}

TEST_F(Konsolenimport, EinFehlerIstEineZeileUndKeineDatei) {
    Quellbau kurz;
    kurz.zeilen = 8759;
    Quellbau falsch;
    falsch.ersetzt[3] = "x";
    std::string ohne_ort = Quellbau{}.epw();
    ohne_ort.replace(ohne_ort.find("Bern"), 4, "Unknown");
    std::string ohne_land = Quellbau{}.epw();
    ohne_land.replace(ohne_land.find("CHE"), 3, "-");
    const std::string meteonorm = Quellbau{}.meteonorm();
    std::string ohne_diffus = meteonorm;
    ohne_diffus.replace(ohne_diffus.find("G_Dh"), 4, "x");
    std::string polar = Quellbau{}.epw();
    polar.replace(polar.find("46.92"), 5, "96.92");
    struct Fall {
        std::string quelle, name, grund;
        std::optional<std::string> land = {}, ort = {};
    };
    for (const Fall& fall :
         {Fall{"1\t2\t3\n", "neu", "quelle.txt: neither a Meteonorm nor an EnergyPlus file"},
          Fall{Quellbau{}.meteonorm(), "neu",
               "quelle.txt: the file does not name its country; give it by --land"},
          Fall{ohne_ort, "neu", "quelle.txt: the file does not name its location; give it by --ort"},
          Fall{ohne_land, "neu", "quelle.txt: the file does not name its country; give it by --land"},
          Fall{meteonorm, "neu", "quelle.txt: the file does not name its country", "-"},
          Fall{meteonorm, "neu", "quelle.txt: the file does not name its location", "CH", " "},
          Fall{meteonorm, "neu", "quelle.txt: The name or country of the location contains control", "a\tb"},
          Fall{meteonorm, "neu", "quelle.txt: The name or country of the location contains control", "a",
               "\x1B[m"},
          Fall{ohne_diffus, "neu", "quelle.txt: No data for diffuse rediation!\n", "CH"},
          Fall{meteonorm, "a\x1B", "quelle.txt: --name a\uFFFD: The filename must not contain control"},
          Fall{kurz.epw(), "neu",
               "quelle.txt: Error! - Not enough data. 8760 hourly data is needed! 8759 rows"},
          Fall{falsch.epw(), "neu", "quelle.txt: Error in line 11 Import has been aborted! Column 7: "},
          Fall{polar, "neu", "quelle.txt: Latitude: \"96.92\" is not between 0 and 90.\n"},
          Fall{Quellbau{}.epw(), "../neu", "../neu: The filename must not contain"},
          Fall{Quellbau{}.epw(), "nul", "nul: The filename is reserved"},
          Fall{Quellbau{}.epw(), "", ": The filename is empty."}}) {
        EXPECT_EQ(importiere(fall.quelle, fall.name, fall.land, false, fall.ort), projekt_fehlerhaft)
            << fall.grund;
        EXPECT_THAT(fehler.str(), HasSubstr(fall.grund));
        EXPECT_EQ(fehler.str().find('\n'), fehler.str().size() - 1) << fehler.str();
        EXPECT_EQ(aus.str(), "");
        EXPECT_TRUE(std::filesystem::is_empty(ordner / "klima")) << fall.grund;
        EXPECT_FALSE(std::filesystem::exists(ordner / "neu.met"));
    }
}

TEST_F(Konsolenimport, NenntOrtUndLandUndWarntVorDerZeitzone) {
    std::string fern = Quellbau{}.epw();
    fern.replace(fern.find("Bern,BE,CHE"), 11, "-,-,unknown");
    fern.replace(fern.find("7.50,1.0"), 8, "-7.5,9.0");
    EXPECT_EQ(importiere(fern, "neu", "Schweiz", false, "Z\xFCrich"), alles_gut) << fehler.str();
    EXPECT_THAT(station("neu"), testing::StartsWith("Z\xFCrich (Schweiz)\r\n"));
    EXPECT_THAT(fehler.str(), HasSubstr("quelle.txt: Longitude and time zone are 9.5 hours apart."));
    EXPECT_EQ(fehler.str().find('\n'), fehler.str().size() - 1);
}

TEST_F(Konsolenimport, ErsetztNurAufVerlangen) {
    ordner.schreibe("klima/bern.met", "alt");
    EXPECT_EQ(importiere(Quellbau{}.epw(), "bern"), projekt_fehlerhaft);
    EXPECT_THAT(fehler.str(), HasSubstr("bern.met: the file exists already; --ersetzen overwrites it"));
    EXPECT_EQ(station("bern"), "alt");
    EXPECT_EQ(importiere(Quellbau{}.epw(), "bern", {}, true), alles_gut);
    EXPECT_NE(station("bern"), "alt");
    std::filesystem::remove_all(ordner / "klima");
    EXPECT_EQ(importiere(Quellbau{}.epw(), "bern"), projekt_fehlerhaft);
    EXPECT_THAT(fehler.str(), HasSubstr("bern.met: file cannot be written"));
}

#ifdef __linux__
// A folder that nobody can write to, whoever runs the test: the user's own takes the station, under the name
// that the program's may have.
TEST_F(Konsolenimport, WeichtInDenOrdnerDesBenutzersAus) {
    const std::filesystem::path unbeschreibbar = "/proc/self";
    const Klimaordner ziel(unbeschreibbar, datenordner_bestimmen(unbeschreibbar, ordner / "eigen"));
    const Importauftrag bern{.quelle = pfadtext(ordner.schreibe("quelle.txt", Quellbau{}.epw())),
                             .name = "bern"};
    EXPECT_THAT(importieren(bern, ziel, "e").geschrieben,
                HasSubstr(pfadtext(ordner / "eigen/klima/bern.met")));
    EXPECT_THROW(static_cast<void>(importieren(bern, ziel, "e")), Dateifehler);
}
#endif

}  // namespace
}  // namespace velmaris
