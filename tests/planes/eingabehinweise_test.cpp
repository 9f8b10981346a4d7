#include "planes/eingabehinweise.h"

#include "planes/eingabewert.h"

#include <gtest/gtest.h>
#include <map>

namespace velmaris {
namespace {

TEST(Eingabehinweise, NennenJedesScrollfeldEinmalMitWertenDieEsAnnimmt) {
    std::map<std::string_view, int> genannt;
    for (const Eingabehinweis& hinweis : eingabehinweise()) {
        const Scrollzeile* erste = scrollzeile(hinweis.felder.front());
        EXPECT_EQ(hinweis.richtwerte.empty(), erste == nullptr) << hinweis.name.en;
        for (const std::string_view feld : hinweis.felder) {
            ++genannt[feld];
            const Scrollzeile* zeile = scrollzeile(feld);
            if (zeile == nullptr) continue;
            EXPECT_EQ(zeile->bereich_mit_einheit("d"), erste->bereich_mit_einheit("d")) << feld;
            EXPECT_EQ((std::pair{zeile->klein, zeile->gross}), (std::pair{erste->klein, erste->gross}))
                << feld;
            for (const Richtwert& wert : hinweis.richtwerte) {
                const std::string text = std::to_string(wert.wert);
                const auto stellung = eingabewert(*zeile, text);
                ASSERT_TRUE(std::holds_alternative<int>(stellung)) << feld << " " << text;
                EXPECT_NEAR(zeile->gezeigt(std::get<int>(stellung)), wert.wert, 1e-9) << feld;
            }
        }
    }
    for (const Scrollzeile& zeile : scrollzeilen())
        EXPECT_EQ(genannt[zeile.name], 1) << zeile.name;
}

}  // namespace
}  // namespace velmaris
