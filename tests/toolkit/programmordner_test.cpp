#include "toolkit/programmordner.h"

#include "tests/hilfen.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Programmordner, NebenDemProgrammVorDemGemeinsamen) {
    const test::Testordner ordner;
    EXPECT_EQ(programmordner_bestimmen(ordner / "bin"), ordner / "bin") << "no data anywhere";
    ordner.schreibe("share/velmaris/klima/ulm.met", "");
    EXPECT_EQ(programmordner_bestimmen(ordner / "bin"), ordner / "share/velmaris");
    ordner.schreibe("bin/klima/ulm.met", "");
    EXPECT_EQ(programmordner_bestimmen(ordner / "bin"), ordner / "bin");
}

TEST(Programmordner, GemeinsamIstNurDerMitDemNamenDesProgramms) {
    EXPECT_TRUE(gemeinsamer_ordner("/usr/share/velmaris"));
    EXPECT_FALSE(gemeinsamer_ordner("/usr/share/anderes") || gemeinsamer_ordner("/opt/velmaris"));
}

}  // namespace
}  // namespace velmaris
