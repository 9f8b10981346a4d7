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

TEST_F(Konsolenimport, SchreibtDieselbeDateiWieDasFensterUndErsetztNurAufVerlangen) {
    test::Importprobe fenster;
    const std::string quelle = Quellbau{}.meteonorm();
    fenster.e->oeffnen();
    fenster.oeffne("quelle.txt", quelle);
    fenster.e->Land.tippe("Schweiz");
    fenster.importiere("bern");
    ordner.schreibe("klima/bern.met", "alt");
    EXPECT_EQ(importiere(quelle, "bern", "Schweiz"), projekt_fehlerhaft);
    EXPECT_THAT(fehler.str(), HasSubstr("bern.met: the file exists already; --ersetzen overwrites it"));
    EXPECT_EQ(station("bern"), "alt");
    EXPECT_EQ(importiere(quelle, "bern", "Schweiz", true), alles_gut) << fehler.str();
    EXPECT_EQ(station("bern"), fenster.station("bern"));
    EXPECT_THAT(aus.str(), HasSubstr("bern.met: Bern (Schweiz). The file was recognised as a Meteonorm"));
    EXPECT_EQ(aus.str().find('\n'), aus.str().size() - 1);
    std::filesystem::remove_all(ordner / "klima");
    EXPECT_EQ(importiere(quelle, "bern", "Schweiz"), projekt_fehlerhaft);
    EXPECT_THAT(fehler.str(), HasSubstr("bern.met: file cannot be written"));
}

TEST_F(Konsolenimport, EinFehlerIstEineZeileUndKeineDatei) {
    const Quellbau kurz{.zeilen = 8759};
    std::string ohne_ort = Quellbau{}.epw();
    ohne_ort.replace(ohne_ort.find("Bern"), 4, "Unknown");
    const std::string meteonorm = Quellbau{}.meteonorm();
    struct Fall {
        std::string quelle, name, grund;
        std::optional<std::string> land = {}, ort = {};
    };
    for (const Fall& fall :
         {Fall{"1\t2\t3\n", "neu", "quelle.txt: neither a Meteonorm nor an EnergyPlus file"},
          Fall{meteonorm, "neu", "quelle.txt: the file does not name its country; give it by --land"},
          Fall{ohne_ort, "neu", "quelle.txt: the file does not name its location; give it by --ort"},
          Fall{meteonorm, "neu", "quelle.txt: the file does not name its country", "-"},
          Fall{meteonorm, "neu", "quelle.txt: the file does not name its location", "CH", " "},
          Fall{meteonorm, "neu", "quelle.txt: The name or country of the location contains control", "a\tb"},
          Fall{meteonorm, "a\x1B", "quelle.txt: --name a\uFFFD: The filename must not contain control"},
          Fall{kurz.epw(), "neu",
               "quelle.txt: Error! - Not enough data. 8760 hourly data is needed! 8759 rows"},
          Fall{meteonorm, "../neu", "../neu: The filename must not contain"}}) {
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
    auftrag.json = true;
    EXPECT_EQ(importiere(fern, "still", "Schweiz", false, "Zürich"), alles_gut);
    EXPECT_EQ(station("still"), station("neu"));
    EXPECT_EQ(aus.str(), "") << "the place of the JSON output";
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
