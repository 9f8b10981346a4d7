#include "tests/console/konsole.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using Vergleichen = test::Konsole;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Vergleichen, SchreibtSeiteUndZahlenUndSonstNichts) {
    ASSERT_EQ(rufe("--vergleich seite.html --vergleich-csv - --sprache e --monat 2 haus.vel haus.vel"), 0)
        << fehler;
    EXPECT_THAT(aus, StartsWith("kind,quantity,unit,haus.vel,haus.vel,"));
    const std::string seite = test::inhalt("seite.html");
    EXPECT_THAT(seite, HasSubstr("All inputs are the same."));
    EXPECT_THAT(seite, HasSubstr("cooling in February</h2>"));
}

TEST_F(Vergleichen, OhneEinesDerProjekteBleibtAllesWieEsWar) {
    programm.ordner.schreibe("seite.html", "old");
    EXPECT_EQ(rufe("--vergleich seite.html haus.vel alt.vel"), 1);
    EXPECT_THAT(fehler, HasSubstr("alt.vel"));
    EXPECT_EQ(test::inhalt("seite.html"), "old");
    EXPECT_EQ(rufe("--vergleich nix/seite.html haus.vel haus.vel"), 1);
    EXPECT_THAT(fehler, HasSubstr("nix/seite.html"));
}

TEST_F(Vergleichen, FalscheAufrufeWerdenAbgelehnt) {
    std::string dreizehn;
    for (int i = 0; i < 13; ++i)
        dreizehn += " haus.vel";
    for (const std::string& worte :
         {std::string("--vergleich s.html haus.vel"), "--vergleich s.html" + dreizehn,
          std::string("--vergleich s.html --vergleich-csv s.html haus.vel haus.vel"),
          std::string("--vergleich haus.vel haus.vel haus.vel"), std::string("--monat 3 haus.vel"),
          std::string("--vergleich s.html --monat 13 haus.vel haus.vel"),
          std::string("--vergleich s.html --variiere Troom=20 haus.vel")}) {
        EXPECT_EQ(rufe(worte), 2) << worte;
        EXPECT_FALSE(std::filesystem::exists("s.html")) << worte;
    }
}

}  // namespace
}  // namespace velmaris
