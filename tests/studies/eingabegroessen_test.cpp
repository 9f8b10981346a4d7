#include "studies/eingabegroessen.h"

#include "project/feldtabelle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// The scope of stations is no input of its own: the station settles it.
TEST(Eingabegroessen, JedeGespeicherteEingabeHatEinenNamen) {
    std::vector<std::string_view> namenlos;
    for (const Feldzeile& feld : felder()) {
        if (feld.zeile > 0 && eingabegroesse(feld.name) == nullptr) namenlos.push_back(feld.name);
    }
    EXPECT_THAT(namenlos, testing::ElementsAre("Klimaauswahl"));
    EXPECT_EQ(eingabegroesse("kww")->bezeichnung("e"), "U-values of the walls west");
    EXPECT_EQ(eingabegroesse("WRG")->einheit(), "%");
    EXPECT_EQ(eingabegroesse("Innenwandart")->bezeichnung("d"), "Art der Innenwände");
}

}  // namespace
}  // namespace velmaris
