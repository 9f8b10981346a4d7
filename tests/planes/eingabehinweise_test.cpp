#include "planes/eingabehinweise.h"

#include "planes/eingabewert.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace velmaris {
namespace {

using Zeilen = std::vector<std::string>;

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

TEST(Eingabehinweise, SagenWasEsIstBereichUndUeblicheWerte) {
    const struct {
        const char *ebene, *feld, *sprache;
        Zeilen zeilen;
    } faelle[] = {
        {"E_Daemmung",
         "kww_sb",
         "e",
         {"U-values of the walls", "Heat flow through the wall per m² and kelvin, for each facade.",
          "Range: 0.01 to 1.50 W/(m² K)",
          "Common: old building 1.40; new building 0.24; passive house 0.15"}},
        {"E_Geometrie",
         "orient_sb",
         "d",
         {"Auslenkung aus der Südrichtung",
          "Um so viel Grad ist die Südfassade aus der Südrichtung gedreht, nach Westen positiv.",
          "Bereich: -45 bis 45°", "Üblich: nach Süden 0; nach Südwesten 45; nach Südosten -45"}},
        {"E_Daemmung",
         "ugd",
         "d",
         {"Untere Geschoßdecke gegen", "Was unter der unteren Geschoßdecke liegt."}},
    };
    for (const auto& [ebene, feld, sprache, zeilen] : faelle)
        EXPECT_EQ(hinweiszeilen(*eingabehinweis(ebene, feld), sprache), zeilen);
    EXPECT_EQ(eingabehinweis("E_Energie", "Command3x"), nullptr);
    EXPECT_EQ(eingabehinweis("E_Energie", "l_sb"), nullptr) << "of another plane";
}

}  // namespace
}  // namespace velmaris
