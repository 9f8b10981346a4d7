#include "project/klimaordner.h"

#include "tests/hilfen.h"

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
}

TEST(Klimaordner, DerDesBenutzersGiltNurWoDerProgrammordnerNichtBeschriebenWird) {
    const Testordner ordner;
    ordner.schreibe("gut/klima/ulm.met", "");
    const std::filesystem::path eigen = ordner / "eigen";
    EXPECT_EQ(datenordner_bestimmen(ordner / "gut", eigen), "");
    EXPECT_TRUE(std::filesystem::is_directory(ordner / "gut/klima"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner / "gut/klima"), {}), 1)
        << "trying leaves nothing behind";
    EXPECT_EQ(datenordner_bestimmen(ordner.pfad(), eigen), "") << "no folder klima, but it could be made";
    EXPECT_EQ(datenordner_bestimmen(ordner / "fehlt", eigen), eigen);
    EXPECT_EQ(datenordner_bestimmen(ordner / "fehlt", {}), "");
    EXPECT_FALSE(std::filesystem::exists(eigen)) << "made when it is written to";
}

}  // namespace
}  // namespace velmaris
