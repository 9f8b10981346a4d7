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
    const std::string text = ersetzt(hilfeseiten(sprache).at(seite), "</td><td>", " | ");
    return elemente(ersetzt(text, "</th><th>", " | "), "tr");
}

TEST(HilfeTabellen, NennenWasDieTabellenDesProgrammsSagen) {
    const struct {
        const char *sprache, *seite, *zeile;
    } faelle[] = {
        // Worked out by hand from the ends of the scroll fields, their steps and factors.
        {"d", "E_Geometrie", "Länge | 2,0 bis 50,0 | 1,0 | 2,0 | m | 10,0"},
        {"e", "E_Geometrie", "number of floors | 1 to 20 | 1 | 2 * | &ndash; | 2"},
        {"e", "E_Geometrie", "deviation from south direction | &minus;45 to 45 | 5 | 1 | ° | 0"},
        {"d", "E_Fenster", "Wandanteil | 0 bis 100 | 5 | 5 | % | 5 / 40 / 5 / 5"},
        {"e", "E_Fenster", "shading | 0 to 100 | 5 | 20 | % | 20"},
        {"e", "E_Gebaeude", "indoor set temperature | &minus;10.0 to 40.0 | 2.0 | 20.0 | °C | 20.0"},
        {"d", "Eingaben", "g-Wert | 0,00 bis 1,00 | 0,05 | 0,20 | &ndash; | 0,58 | gfn, gfs, gfo, gfw"},
        {"e", "Eingaben", "U-value of the door | 0.0 to 20.0 | 1.0 | 1.5 | W/(m² K) | 1.5 | kt"},
        {"d", "E_Gebaeude", "Eingabe | Bereich | kleiner Schritt | großer Schritt | Einheit | neues Projekt"},
        {"e", "Eingaben", "Input | Range | Small step | Large step | Unit | New project | Name"},
        {"e", "E_Fenster",
         "No. | Window type | U-value glazingin W/(m² K) | g-value | U-value framein W/(m² K)"},
        {"d", "E_Energie", "Nr. | Heizungssystem | Energieträger (Primärenergiefaktor) | Aufwandszahl"},
        {"e", "Dateien", "Line | Quantity | Line | Quantity | Line | Quantity | Line | Quantity"},
        // From the catalogues; lines of a project file stand below each other, four columns of 17.
        {"d", "E_Fenster", "0 | Einfachverglasung | 5,8 | 0,92 | 3,5"},
        {"e", "E_Energie", "8 | electric direct heating | 1 electricity (3.0) | 1.00"},
        {"e", "E_Energie",
         "6 | district heat, boiler and distribution inside the thermal zone | 1 heat from combined heat and "
         "power "
         "system, fossil fuels (0.7)2 heat from combined heat and power system, renew. energy (0.0)3 heat "
         "from "
         "thermal power station, fossil fuels (1.3)4 heat from thermal power station, renewable energy (0.1) "
         "| 1.01"},
        {"d", "Dateien", "2 | l | 19 | fensterw_typ | 36 | verschn | 53 | gfs"},
        {"d", "Dateien", "18 | fenstero_typ | 35 | fw | 52 | gfn | 69 | Waermebruecken"},
    };
    for (const auto& [sprache, seite, zeile] : faelle)
        EXPECT_THAT(tabellenzeilen(sprache, seite), Contains(zeile));
    for (const std::string& zeile : tabellenzeilen("e", "Eingaben")) {
        for (const char* deutsch : {"ä", "ö", "ü", "Ü", "ß"})
            EXPECT_THAT(zeile, testing::Not(HasSubstr(deutsch)));
    }
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
