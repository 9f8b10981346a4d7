#include "language/beschriftungen.h"

#include "toolkit/felder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmaris {
namespace {

struct Textliste {
    std::vector<std::string> fenster;  ///< the windows that share the list
    std::vector<std::string> texte;
};

/// The English texts that the windows must show, each as often as it stands here.
const std::vector<Textliste>& englische_texte() {
    static const std::vector<Textliste> listen{
        {{"Haupt"},
         {"File",
          "New",
          "Open ...",
          "Save",
          "Save as ...",
          "Print",
          "Exit",
          "Report",
          "Show report",
          "Show temperature values",
          "Working planes",
          "Geometry",
          "Windows",
          "Insulation",
          "Building",
          "Climate",
          "Energy",
          "Help",
          "Info",
          "Extras",
          "Import climatic data",
          "Language"}},
        {{"E_Menue"}, {"Geometry", "Windows", "Building", "Insulation", "Climate", "Energy"}},
        {{"E_Geometrie"},
         {"orientation",
          "deviation from south direction",
          "E",
          "WEST",
          "EAST",
          "E",
          "number of floors",
          "height (without roof)",
          "west",
          "facade",
          "south facade",
          "building data",
          "ground area",
          "heated floor",
          "total volume",
          "air volume",
          "S/V-ratio in 1/m",
          "shapes of the same volume",
          "tethrahed.",
          "cube",
          "sphere",
          "height of roof",
          "roof ridge",
          "north-south-direction",
          "east-west-direction",
          "heated roof",
          "gable:",
          "roof area (west):"}},
        {{"E_Fenster"},
         {"window areas",
          "fraction of wall    window area",
          "north",
          "south",
          "east",
          "west",
          "the same windows at all facades",
          "window properties individual for every facade",
          "north",
          "south",
          "east",
          "west",
          "window type",
          "U-value glazing",
          "U-value glazing",
          "U-value glazing",
          "U-value glazing",
          "U-value frame",
          "U-value frame",
          "U-value frame",
          "U-value frame",
          "g-value",
          "g-value",
          "g-value",
          "g-value",
          "fraction of frame",
          "fraction of frame",
          "fraction of frame",
          "fraction of frame",
          "shading",
          "shading",
          "shading",
          "shading",
          "total area of all windows",
          "glazing area of all windows",
          "mean U-value of all windows",
          "mean g-value of all windows"}},
        {{"E_Daemmung"},
         {"U-values of the walls",
          "north",
          "south",
          "east",
          "west",
          "door (north facade)",
          "area",
          "U-value",
          "upper floor",
          "towards ...",
          "U-value",
          "lower floor",
          "towards ...",
          "U-value",
          "Absorption coefficient of the walls",
          "ventilated roof",
          "Heat bridges",
          "ignore heat bridges",
          "increase U-values of surrounding planes by 0.10 W/(m² K)",
          "(normal construction)",
          "increase U-values of surrounding planes by 0.05 W/(m² K)",
          "(construction with nearly no heat bridges)"}},
        {{"E_Gebaeude"},
         {"indoor set temperature", "ventilation", "mechanical ventilation", "natural ventilation",
          "heat recovery", "internal gains", "overheating",
          "overheating starts at an indoor temperature larger than ...",
          "construction types of interior walls", "construction types of exterior walls",
          "wall against heated area", "W", "E", "heat storage", "effective", "heat capacity",
          "efficiency factor of air conditioning", "cool", "electr."}},
        {{"E_Klima", "E_Zoom_Klima"},
         {"Germany", "Europe", "World", "graphics", "climatic region", "zip code", "climatic data",
          "mean temperature of the year", "min. monthly mean value", "max. monthly mean value",
          "Climate stations - World", "Cancel"}},
        {{"E_Energie"},
         {"primary energy factors", "heating system", "heat transfer / system temperature",
          "source of energy",
          "heat energy demand:", "losses of distribution and storage:", "expense number of heat generation:",
          "heating energy demand:", "auxiliary energy demand (electricity):", "primary energy demand:",
          "primary energy demand (electricity):", "electricity", "end energy demand",
          "monthly end and primary energy demand in kWh/(m² month)"}},
        {{"A_Menue"}, {"Preview", "Climate / building", "Energy flows", "Heating", "Cooling"}},
        {{"A_Uebersicht"},
         {"heat energy demand", "cooling demand", "heating hours", "zero energy hours", "cooling hours"}},
        {{"A_Klima"},
         {"Climate",
          "Maximum temperature of the year",
          "Maximum monthly mean value",
          "Month with maximum mean temperature",
          "Mean temperature of the year",
          "Minimum monthly mean value",
          "Month with minimum mean temperature",
          "Minimum temperature of the year",
          "Heating degree days (12/20)",
          "Building",
          "Mean U-value",
          "Spec. transmission losses",
          "Spec. ventilation losses",
          "Spec. losses",
          "Thermal inertia",
          "hours",
          "Maximum heating load",
          "Maximum specific heating load",
          "Maximum cooling load",
          "Maximum specific cooling load",
          "Limit temperature for heating",
          "Effective heating days",
          "days"}},
        {{"A_Heizen"},
         {"yearly balance:",
          " transmission losses:",
          " ventilation losses:",
          " usable internal gains:",
          " usable solar gains:",
          " heat energy demand:",
          "  specific  in kWh/(m² a)",
          "  absolute  in kWh/a",
          "useful solar gains",
          "transmission losses through the windows",
          " N      S     E     W",
          "transm. losses",
          "vent. losses",
          "internal gains",
          "solar gains",
          "heat energy",
          "usable solar gains",
          "non usable solar gains",
          "usable internal gains",
          "non usable internal gains"}},
        {{"A_Kuehlen"},
         {"monthly average of overheated hours per day", "cooling demand", "cooling degree hours"}},
        {{"A_Sankey"},
         {"Energy flow (Sankey) diagram for heating", "Energy flow (Sankey) diagram for cooling"}},
        {{"A_Report"}, {"Save report", "Close"}},
        {{"A_Zoom"}, {"Close"}},
        {{"E_Klimaimport"},
         {"Import climatic data", "Source file", "Select source file", "Data format",
          "Data separated by tabs", "Data in columns (separated by blanks, left-aligned)",
          "Data in columns (separated by blanks, right-aligned)",
          "Number of heading lines:", "Decimal sign:", "Location",
          "Name of Location:", "Country:", "Latitude:", "Longitude:", "Time zone:", "Data assignment",
          "Preview of file", "Abort", "Start climate import"}},
        {{"Drucken"},
         {"Print", "Printer", "Output", "Cancel", "Change", "Input data (2 pages)",
          "Heating and cooling hours (1 page)", "Heat balance (1 page)", "Cooling balance (1 page)",
          "Solar gains / transmission losses of the windows (1 page)",
          "Primary and end energy demand for heating (1 page)",
          "Primary and end energy demand for cooling (1 page)"}},
    };
    return listen;
}

TEST(Beschriftungen, JederEnglischeTextStehtAnSeinemFenster) {
    for (const Textliste& liste : englische_texte()) {
        std::multiset<std::string> vorhanden;
        for (const std::string& fenster : liste.fenster) {
            for (const Beschriftung& zeile : beschriftungen(fenster))
                vorhanden.emplace(zeile.en);
        }
        for (const std::string& text : liste.texte) {
            const auto treffer = vorhanden.find(text);
            EXPECT_NE(treffer, vorhanden.end()) << liste.fenster.front() << " lacks \"" << text << '"';
            if (treffer != vorhanden.end()) vorhanden.erase(treffer);
        }
    }
}

TEST(Beschriftungen, JedesFeldHatEinenDeutschenTextUndStehtEinmal) {
    std::set<std::string_view> fensternamen;
    for (const std::string_view fenster : beschriftete_fenster()) {
        EXPECT_TRUE(fensternamen.insert(fenster).second) << fenster;
        std::set<std::string_view> felder;
        for (const Beschriftung& zeile : beschriftungen(fenster)) {
            EXPECT_TRUE(felder.insert(zeile.feld).second) << fenster << '.' << zeile.feld;
            EXPECT_FALSE(zeile.de.empty()) << fenster << '.' << zeile.feld;
            EXPECT_FALSE(zeile.en.empty()) << fenster << '.' << zeile.feld;
        }
    }
    EXPECT_EQ(fensternamen.size(), 22U);
}

TEST(Beschriftungen, NurDerBuchstabeELegtEnglischDarueber) {
    struct Fall {
        std::string fenster, feld, de, en;
    };
    const std::vector<Fall> faelle{
        {"Haupt", "mnuFileOeffnen", "Ö&ffnen", "Open ..."},
        {"Haupt", "mnuSpracheEnglisch", "&English", "&English"},
        {"E_Geometrie", "Label11", "Tetraeder", "tethrahed."},
        {"E_Fenster", "Label16", "   Wandanteil   Fensterfläche", "fraction of wall    window area"},
        {"E_Fenster", "Frame_Nord", "Nord", "Nord"},
        {"E_Gebaeude", "Frame8", "Wirksame ", "effective"},
        {"A_Heizen", "Label19", " N      S     O     W", " N      S     E     W"},
        {"Drucken", "Druckausgabe3", "Wärmebilanz (1 Seite)", "Heat balance (1 page)"},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(beschriftung(fall.fenster, fall.feld, "e"), fall.en);
        for (const char* sprache : {"d", "", "E"})
            EXPECT_EQ(beschriftung(fall.fenster, fall.feld, sprache), fall.de);
    }
}

TEST(Beschriftungen, UnbekanntesFeldWirdGenannt) {
    for (const auto& [fenster, feld] : std::vector<std::pair<std::string, std::string>>{
             {"E_Klima", "Optoin1"}, {"E_Kilma", "Option1"}, {"E_Klima", ""}}) {
        try {
            static_cast<void>(beschriftung(fenster, feld, "d"));
            ADD_FAILURE() << fenster << '.' << feld;
        } catch (const std::out_of_range& fehler) {
            EXPECT_THAT(fehler.what(), testing::EndsWith(fenster + "." + feld));
        }
    }
}

TEST(Beschriftungen, KommenAufDieFelderIhresNamens) {
    Anzeige text{"anz_MinMonatText"};
    Anzeige rahmen{"Frame_plz"};
    beschriften<Anzeige>("E_Klima", "e", {&text, &rahmen});
    EXPECT_EQ(text.text(), "min. monthly mean value");
    EXPECT_EQ(rahmen.text(), "zip code");
    Knopf abbrechen{"Command2"};
    beschriften<Knopf>("E_Zoom_Klima", "d", {&abbrechen});
    EXPECT_EQ(abbrechen.text(), "Abbrechen");
}

}  // namespace
}  // namespace velmaris
