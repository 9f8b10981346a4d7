#include "documents/print/Ausdrucken.h"
#include "tests/documents/unterlagen.h"
#include "tests/testdrucker.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

namespace velmaris {
namespace {

using test::Druckzeichen;
using test::Testdrucker;
using test::Unterlagen;
using test::Zeilen;
using testing::Contains;
using testing::ElementsAreArray;
using testing::Not;

/// The title and what stands above the diagrams and beside the drawings of a page.
bool im_textteil(const Druckzeichen& z) {
    constexpr std::array<double, 8> unten{260, 260, 137, 138, 162, 134, 208, 208};
    if (z.y1 < 38 || z.y2 > unten.at(static_cast<std::size_t>(z.seite - 1))) return false;
    const bool skizze = z.seite == 1 && z.x1 > 120;
    const bool plan = z.seite == 6 && z.x1 > 95 && z.y1 < 95;
    return !skizze && !plan;
}

/// The rows of a page from the top down, an underscore for a rule over the whole frame. Texts whose tops
/// differ by less than half a millimetre share a row; where size or weight change they stand in front.
Zeilen gedruckt(const Dokumentquelle& quelle, int seite) {
    Testdrucker drucker;
    Ausdrucken(drucker, quelle, alles_drucken, "");
    std::vector<Druckzeichen> alles = drucker.zeichen;
    const auto regel = [](const Druckzeichen& z) { return z.x1 == 25 && z.x2 == 175 && z.y1 == z.y2; };
    std::erase_if(alles, [&](const Druckzeichen& z) {
        const bool text = z.art == Druckzeichen::Art::text;
        return z.seite != seite || !im_textteil(z) || z.y1 == 260 || !(text || regel(z));
    });
    std::stable_sort(alles.begin(), alles.end(), [](const auto& a, const auto& b) { return a.y1 < b.y1; });
    Zeilen zeilen;
    std::string vorher;
    for (auto von = alles.begin(); von != alles.end();) {
        const auto bis = std::find_if(von + 1, alles.end(), [&](const auto& z) {
            return regel(*von) || regel(z) || z.y1 > von->y1 + 0.5;
        });
        std::stable_sort(von, bis, [](const auto& a, const auto& b) { return a.x2 < b.x2; });
        Zeilen zellen;
        std::transform(von, bis, std::back_inserter(zellen),
                       [&](const auto& z) { return regel(z) ? "_" : z.text; });
        std::ostringstream form;
        form << '[' << von->schrift.groesse << (von->schrift.fett ? "b]" : "]");
        const bool neu = !regel(*von) && std::exchange(vorher, form.str()) != form.str();
        zeilen.push_back((neu ? vorher : "") + test::zeile(zellen));
        von = bis;
    }
    return zeilen;
}

TEST(Druckseiten, JedeZeileZeigtIhrenWertDesDatensatzes) {
    for (const char* sprache : {"d", "e"}) {
        Unterlagen u(sprache);
        for (int seite = 1; seite <= 8; ++seite)
            EXPECT_THAT(gedruckt(u.quelle, seite), ElementsAreArray(test::seite(u, "print/seiten", seite)))
                << sprache << seite;
        constexpr int strom_statt_seite_7 = 9;
        u.quelle.energie.name = strom_name;
        EXPECT_THAT(gedruckt(u.quelle, 7),
                    ElementsAreArray(test::seite(u, "print/seiten", strom_statt_seite_7)));
    }
}

TEST(Druckseiten, DachUndNachbarnNachDerWahl) {
    Unterlagen u("e");
    u.p->Option_Dachfirst = 2;
    EXPECT_THAT(gedruckt(u.quelle, 1), Contains("Direction of roof ridge|east-west"));
    u.p->hd = 0;
    u.p->awn = u.p->aww = 1;
    EXPECT_THAT(gedruckt(u.quelle, 1), Not(Contains(testing::HasSubstr("roof ridge"))));
    u.p->Check_Dachgeschoss = 0;
    u.p->kd = 0.37F;
    EXPECT_THAT(gedruckt(u.quelle, 1), testing::IsSupersetOf({"Upper floor towards|<Dachraum>",
                                                              "U value of the upper floor|0.37 W/(m² K)"}));
}

}  // namespace
}  // namespace velmaris
