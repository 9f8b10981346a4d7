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

TEST(Beschriftungen, JedesFeldHatEinenDeutschenTextUndStehtEinmal) {
    std::set<std::string_view> fensternamen;
    for (const std::string_view fenster : beschriftete_fenster()) {
        EXPECT_TRUE(fensternamen.insert(fenster).second) << fenster;
        std::set<std::string_view> felder;
        for (const Beschriftung& zeile : beschriftungen(fenster)) {
            EXPECT_TRUE(felder.insert(zeile.feld).second) << fenster << '.' << zeile.feld;
            EXPECT_FALSE(zeile.text.de.empty()) << fenster << '.' << zeile.feld;
            EXPECT_FALSE(zeile.text.en.empty()) << fenster << '.' << zeile.feld;
        }
    }
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
