#include "project/klimaordner.h"

#include "tests/hilfen.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::inhalt;
using test::Testordner;

TEST(Klimaordner, DerDesBenutzersWirdZuerstGelesenUndBeschrieben) {
    const Testordner ordner;
    ordner.schreibe("klima/ulm.met", "geliefert");
    const Klimaordner nur_programm(ordner.pfad(), {});
    const Klimaordner beide(ordner.pfad(), ordner / "eigen");
    EXPECT_EQ(nur_programm.schreiben("neu.met", "x"), ordner / "klima/neu.met");
    EXPECT_EQ(beide.datei("ulm.met"), ordner / "klima/ulm.met");
    EXPECT_EQ(beide.datei("fehlt.met"), ordner / "klima/fehlt.met");
    EXPECT_EQ(beide.schreiben("ulm.met", "eigen"), ordner / "eigen/klima/ulm.met");
    EXPECT_EQ(inhalt(beide.datei("ulm.met")), "eigen");
    EXPECT_EQ(inhalt(nur_programm.datei("ulm.met")), "geliefert");
    EXPECT_THROW(Klimaordner(ordner / "fehlt", {}).schreiben("ulm.met", ""), Dateifehler) << "not made";
}

TEST(Klimaordner, DerDesBenutzersGiltNurWoDerProgrammordnerNichtBeschriebenWird) {
    const Testordner ordner;
    const std::filesystem::path klima = ordner.schreibe("gut/klima/ulm.met", "").parent_path();
    EXPECT_EQ(datenordner_bestimmen(ordner / "gut", "eigen"), "");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(klima), {}), 1) << "nothing is left behind";
    EXPECT_EQ(datenordner_bestimmen(ordner.pfad(), "eigen"), "") << "no folder klima, but it could be made";
    EXPECT_EQ(datenordner_bestimmen(ordner / "fehlt", "eigen"), "eigen");
    EXPECT_EQ(datenordner_bestimmen(ordner / "fehlt", {}), "");
    ordner.schreibe("share/velmaris/klima/ulm.met", "");
    EXPECT_EQ(datenordner_bestimmen(ordner / "share/velmaris", "eigen"), "eigen")
        << "shared, though writable";
}

}  // namespace
}  // namespace velmaris
