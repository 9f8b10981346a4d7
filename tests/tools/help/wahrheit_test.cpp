#include "project/feldtabelle.h"
#include "tests/hilfen.h"
#include "tests/tools/help/html.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace velmaris::test {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// Rows of a page's tables, cells joined by " | ".
std::vector<std::string> tabellenzeilen(const std::string& sprache, const std::string& seite) {
    return elemente(ersetzt(hilfeseiten(sprache).at(seite), "</td><td>", " | "), "tr");
}

// Worked out by hand from the ends of the scroll fields, their steps and factors.
struct Eingabefall {
    std::string seite;
    std::string deutsch;
    std::string englisch;
};

class Eingabenliste : public testing::TestWithParam<Eingabefall> {};

TEST_P(Eingabenliste, NenntBereichSchritteEinheitUndNeuenWert) {
    const Eingabefall& fall = GetParam();
    EXPECT_THAT(tabellenzeilen("d", fall.seite), Contains(fall.deutsch));
    EXPECT_THAT(tabellenzeilen("e", fall.seite), Contains(fall.englisch));
}

INSTANTIATE_TEST_SUITE_P(
    Felder, Eingabenliste,
    testing::Values(
        Eingabefall{"E_Geometrie", "Länge | 2,0 bis 50,0 | 1,0 | 2,0 | m | 10,0",
                    "length | 2.0 to 50.0 | 1.0 | 2.0 | m | 10.0"},
        Eingabefall{"E_Geometrie", "Dachhöhe | 0,0 bis 5,0 | 0,2 | 1,0 * | m | 2,0",
                    "height of roof | 0.0 to 5.0 | 0.2 | 1.0 * | m | 2.0"},
        Eingabefall{"E_Geometrie", "Anzahl Geschosse | 1 bis 20 | 1 | 2 * | &ndash; | 2",
                    "number of floors | 1 to 20 | 1 | 2 * | &ndash; | 2"},
        Eingabefall{"E_Geometrie", "Auslenkung aus der Südrichtung | &minus;45 bis 45 | 5 | 1 | ° | 0",
                    "deviation from south direction | &minus;45 to 45 | 5 | 1 | ° | 0"},
        Eingabefall{"E_Fenster", "Wandanteil | 0 bis 100 | 5 | 5 | % | 5 / 40 / 5 / 5",
                    "fraction of wall | 0 to 100 | 5 | 5 | % | 5 / 40 / 5 / 5"},
        Eingabefall{"E_Fenster", "Verschattung | 0 bis 100 | 5 | 20 | % | 20",
                    "shading | 0 to 100 | 5 | 20 | % | 20"},
        Eingabefall{"E_Daemmung", "U-Werte der Wände | 0,01 bis 1,50 | 0,10 | 0,20 | W/(m² K) | 0,20",
                    "U-values of the walls | 0.01 to 1.50 | 0.10 | 0.20 | W/(m² K) | 0.20"},
        Eingabefall{"E_Daemmung", "U-Wert der Tür | 0,0 bis 20,0 | 1,0 | 1,5 | W/(m² K) | 1,5",
                    "U-value of the door | 0.0 to 20.0 | 1.0 | 1.5 | W/(m² K) | 1.5"},
        Eingabefall{"E_Gebaeude", "Soll-Raumlufttemperatur | &minus;10,0 bis 40,0 | 2,0 | 20,0 | °C | 20,0",
                    "indoor set temperature | &minus;10.0 to 40.0 | 2.0 | 20.0 | °C | 20.0"},
        Eingabefall{"E_Gebaeude", "Interne Gewinne | 0,0 bis 400,0 | 5,0 | 25,0 | kWh/(m² a) | 25,0",
                    "internal gains | 0.0 to 400.0 | 5.0 | 25.0 | kWh/(m² a) | 25.0"},
        Eingabefall{"Eingaben", "Wärmerückgewinnung | 0 bis 100 | 5 | 1 | % | 0 | WRG",
                    "heat recovery | 0 to 100 | 5 | 1 | % | 0 | WRG"},
        Eingabefall{"Eingaben",
                    "Effizienzfaktor Klimaanlage | 0,5 bis 8,0 | 1,0 | 2,5 | kWh/kWh | 2,5 | Klimaeffizienz",
                    "efficiency factor of air conditioning | 0.5 to 8.0 | 1.0 | 2.5 | kWh/kWh | 2.5 | "
                    "Klimaeffizienz"},
        Eingabefall{"Eingaben", "g-Wert | 0,00 bis 1,00 | 0,05 | 0,20 | &ndash; | 0,58 | gfn, gfs, gfo, gfw",
                    "g-value | 0.00 to 1.00 | 0.05 | 0.20 | &ndash; | 0.58 | gfn, gfs, gfo, gfw"}));

TEST(HilfeTabellen, NennenFenstertypenHeizsystemeUndProjektzeilen) {
    EXPECT_THAT(tabellenzeilen("d", "E_Fenster"), Contains("0 | Einfachverglasung | 5,8 | 0,92 | 3,5"));
    EXPECT_THAT(tabellenzeilen("e", "E_Energie"),
                Contains("8 | electric direct heating | 1 electricity (3.0) | 1.00"));
    // Lines of a project file stand below each other, four columns of 17.
    EXPECT_THAT(tabellenzeilen("d", "Dateien"),
                Contains("2 | l | 19 | fensterw_typ | 36 | verschn | 53 | gfs"));
    EXPECT_THAT(tabellenzeilen("d", "Dateien"),
                Contains("18 | fenstero_typ | 35 | fw | 52 | gfn | 69 | Waermebruecken"));
}

TEST(HilfeErgebnisse, NennenNurGroessenDieEsGibt) {
    for (const std::string sprache : {"d", "e"}) {
        for (const std::string& name : elemente(hilfeseiten(sprache).at("Ergebnisse"), "code")) {
            const auto monat = monatsfelder();
            const bool im_monat =
                std::any_of(monat.begin(), monat.end(), [&](const Monatszeile& z) { return z.name == name; });
            EXPECT_TRUE(im_monat || feld_suchen(name) != nullptr) << name;
        }
    }
}

#ifdef VELMARIS_RECHNEN
/// All words of a text that begin with two hyphens.
std::set<std::string> angaben(const std::string& text) {
    constexpr const char* buchstaben = "abcdefghijklmnopqrstuvwxyz";
    std::set<std::string> worte;
    for (std::size_t i = text.find("--"); i != std::string::npos; i = text.find("--", i + 2)) {
        worte.insert(text.substr(i, text.find_first_not_of(buchstaben, i + 2) - i));
    }
    return worte;
}

TEST(HilfeKonsole, NenntJedeAngabeDesProgramms) {
    const Testordner ordner;
    const auto ausgabe = ordner / "hilfe.txt";
    const std::string aufruf = "\"" VELMARIS_RECHNEN "\" --help > \"" + pfadtext(ausgabe) + "\"";
    ASSERT_EQ(std::system(aufruf.c_str()), 0);
    const std::set<std::string> alle = angaben(inhalt(ausgabe));
    ASSERT_THAT(alle, Contains("--json"));
    for (const std::string sprache : {"d", "e"}) {
        const std::string seite = hilfeseiten(sprache).at("velmaris_rechnen");
        for (const std::string& name : alle)
            EXPECT_THAT(seite, HasSubstr("<code>" + name)) << sprache;
    }
}
#endif

}  // namespace
}  // namespace velmaris::test
