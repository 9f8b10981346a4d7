#include "tests/climate/import/importprobe.h"
#include "tests/console/konsole.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using test::Quellbau;
using testing::HasSubstr;
using testing::StartsWith;

class Konsolenimport : public test::Konsole {
  protected:
    /// The exit status of an import of that source with these words.
    int importiere(const std::string& bytes, const std::string& worte) {
        programm.ordner.schreibe("quelle.txt", bytes);
        return rufe("--sprache e --ordner . --import quelle.txt --name " + worte);
    }
};

TEST_F(Konsolenimport, SchreibtDieselbeDateiWieDasFensterUndErsetztNurAufVerlangen) {
    test::Importprobe fenster;
    const std::string quelle = Quellbau{}.meteonorm();
    fenster.e->oeffnen();
    fenster.oeffne("quelle.txt", quelle);
    fenster.e->Land.tippe("Schweiz");
    fenster.importiere("bern");
    programm.ordner.schreibe("klima/bern.met", "alt");
    EXPECT_EQ(importiere(quelle, "bern --land Schweiz"), projekt_fehlerhaft);
    EXPECT_THAT(fehler, HasSubstr("bern.met: the file exists already; --ersetzen overwrites it"));
    EXPECT_EQ(test::inhalt("klima/bern.met"), "alt");
    EXPECT_EQ(importiere(quelle, "bern --land Schweiz --ersetzen"), alles_gut) << fehler;
    EXPECT_EQ(test::inhalt("klima/bern.met"), fenster.station("bern"));
    EXPECT_THAT(aus, HasSubstr("bern.met: Bern (Schweiz). The file was recognised as a Meteonorm"));
}

TEST_F(Konsolenimport, EinFehlerIstEineZeileUndKeineDatei) {
    const std::string meteonorm = Quellbau{}.meteonorm();
    for (const auto& [quelle, worte, grund] : std::initializer_list<std::array<std::string, 3>>{
             {"1\t2\t3\n", "neu", "quelle.txt: neither a Meteonorm nor an EnergyPlus file"},
             {meteonorm, "neu", "quelle.txt: the file does not name its country; give it by --land"},
             {meteonorm, "neu --land -", "quelle.txt: the file does not name its country"},
             {meteonorm, "neu --land CH --ort -", "quelle.txt: the file does not name its location"},
             {meteonorm, "neu --land a\tb",
              "quelle.txt: The name or country of the location contains control"},
             {meteonorm, "a\x1B", "quelle.txt: --name a\uFFFD: The filename must not contain control"},
             {meteonorm, "../neu", "quelle.txt: --name ../neu: The filename must not contain"},
             {Quellbau{.zeilen = 8759}.epw(), "neu",
              "quelle.txt: Error! - Not enough data. 8760 hourly data is needed! 8759 rows"}}) {
        EXPECT_EQ(importiere(quelle, worte), projekt_fehlerhaft) << grund;
        EXPECT_THAT(fehler, StartsWith(grund));
        EXPECT_EQ(fehler.find('\n'), fehler.size() - 1) << fehler;
        EXPECT_EQ(aus, "");
        EXPECT_FALSE(std::filesystem::exists("klima/neu.met")) << grund;
    }
}

TEST_F(Konsolenimport, NenntOrtUndLandUndWarntVorDerZeitzone) {
    std::string fern = Quellbau{}.epw();
    fern.replace(fern.find("Bern,BE,CHE"), 11, "-,-,unknown");
    fern.replace(fern.find("7.50,1.0"), 8, "-7.5,9.0");
    EXPECT_EQ(importiere(fern, "neu --land Schweiz --ort Z\xFCrich"), alles_gut) << fehler;
    EXPECT_THAT(test::inhalt("klima/neu.met"), StartsWith("Z\xFCrich (Schweiz)\r\n"));
    EXPECT_THAT(fehler, HasSubstr("quelle.txt: Longitude and time zone are 9.5 hours apart."));
    EXPECT_EQ(fehler.find('\n'), fehler.size() - 1);
    EXPECT_EQ(importiere(fern, "still --land Schweiz --ort Zürich haus.vel --json"), alles_gut);
    EXPECT_EQ(test::inhalt("klima/still.met"), test::inhalt("klima/neu.met"));
    EXPECT_THAT(aus, StartsWith("{")) << "the place of the JSON output";
}

}  // namespace
}  // namespace velmaris
