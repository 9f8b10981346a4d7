#include "tests/console/konsole.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using Empfindlichkeitsaufruf = test::Konsole;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Empfindlichkeitsaufruf, SchreibtSeiteUndZahlenUndSonstNichts) {
    ASSERT_EQ(rufe("--ordner . --empfindlichkeit seite.html --empfindlichkeit-csv - haus.vel"), 0) << fehler;
    EXPECT_THAT(aus, StartsWith("Eingabe,Einheit,Schritt,von,nach,Heizwärmebedarf kWh/(m² a),"));
    EXPECT_THAT(test::inhalt("seite.html"), HasSubstr("nach unten: 20.0 → 18.0 °C"));
    ASSERT_EQ(rufe("--ordner . --empfindlichkeit - --sprache e haus.vel"), 0) << fehler;
    EXPECT_THAT(aus, testing::AllOf(StartsWith("<!DOCTYPE html>"), HasSubstr("down: 20.0 → 18.0 °C"),
                                    HasSubstr("one step down"), HasSubstr("one step up")));
}

TEST_F(Empfindlichkeitsaufruf, FehlerUndFalscheAufrufeLassenAllesWieEsWar) {
    programm.ordner.schreibe("seite.html", "old");
    EXPECT_EQ(rufe("--ordner . --empfindlichkeit seite.html kurz.vel"), 1);
    EXPECT_THAT(fehler, HasSubstr("kurz.met"));
    EXPECT_EQ(rufe("--ordner . --empfindlichkeit nix/seite.html haus.vel"), 1);
    EXPECT_THAT(fehler, HasSubstr("nix/seite.html"));
    for (const char* worte :
         {"--empfindlichkeit seite.html haus.vel haus.vel", "--empfindlichkeit seite.html",
          "--empfindlichkeit haus.vel haus.vel", "--empfindlichkeit-csv seite.html --csv seite.html haus.vel",
          "--empfindlichkeit seite.html --variiere Troom=20 haus.vel"})
        EXPECT_EQ(rufe(worte), 2) << worte;
    EXPECT_EQ(test::inhalt("seite.html"), "old");
}

}  // namespace
}  // namespace velmaris
