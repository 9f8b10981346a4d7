#include "climate/planes/E_Klima.h"

#include "climate/regionen.h"
#include "tests/climate/planes/klimaprobe.h"
#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

namespace velmaris {
namespace {

using test::Klimaprobe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int deutschland = nummer(Klimabereich::deutschland);
constexpr int europa = nummer(Klimabereich::europa);
constexpr int welt = nummer(Klimabereich::welt);

const Dateifehler weg{"atlantis.met", {"weg", "gone"}};

/// The list of the scope's stations.
Auswahlliste& liste(E_Klima& e, int bereich) {
    return bereich == deutschland ? e.Klimaregionwahl : e.Klimaregionwahl2;
}

/// The map picture of the regions by its file name.
std::string bild(const E_Klima& e) {
    return e.Picture1.bild().filename().string();
}

TEST(EKlima, DerBereichZeigtDieStationDesProjekts) {
    Klimaprobe probe;
    E_Klima& e = *probe.e;
    // The region's climate is in force already, a station of the other lists is loaded.
    using Fall = std::tuple<int, std::string, int, std::string, std::string>;
    for (const auto& [bereich, datei, index, text, karte] :
         {Fall{deutschland, "trier.met", 3, "  4: Nördl. und westl. Mittelgebirge ohne Hochlagen",
               "klima4.bmp"},
          Fall{deutschland, "tokyo.met", -1, "Tokyo (Japan)", "klima0.bmp"},
          Fall{europa, "passau.met", 2, "Passau (Deutschland)", "klima11.bmp"},
          Fall{europa, "tokyo.met", -1, "Tokyo (Japan)", "klima11.bmp"},
          Fall{welt, "trier.met", 5, "Trier (Deutschland)", "klima4.bmp"}}) {
        probe.p->Klimadatei = datei;
        probe.p->Klimaauswahl = static_cast<std::int16_t>(bereich);
        probe.geladen.clear();
        e.klima_anzeigen();
        EXPECT_EQ(e.Option.gesetzt(), bereich);
        EXPECT_EQ(liste(e, bereich).index(), index);
        EXPECT_EQ(liste(e, bereich).text(), text);
        EXPECT_EQ(bild(e), karte);
        EXPECT_EQ(probe.geladen.empty(), bereich == deutschland || index < 0);
        for (const auto& [feld, zuhause] : {std::pair<const Feld*, int>{&e.Picture1, deutschland},
                                            {&e.plz, deutschland},
                                            {&e.Picture2, europa},
                                            {&e.Picture3, welt},
                                            {&e.HScroll1, welt}})
            EXPECT_EQ(feld->sichtbar(), zuhause == bereich) << feld->name;
        EXPECT_EQ(e.Klimaregionwahl2.sichtbar(), bereich != deutschland);
    }
    for (const int wert : {0, 4, -1}) {
        probe.oeffne(wert, "atlantis.met");
        EXPECT_EQ(e.Option.gesetzt(), welt);
    }
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
}

TEST(EKlima, EineFehlendeStationWirdErsetzt) {
    // Other files that are gone, the lot of the station, what is shown, and where the map of the world stands
    // before and after.
    using Fall = std::tuple<int, std::vector<std::string>, double, std::string, std::string, int, int>;
    const std::vector<std::string> deutsche{"bremen", "passau", "trier"};
    for (const auto& [bereich, fehlend, los, ersatz, gezeigt, von, nach] :
         {Fall{deutschland, {}, 0.9, "trier", "  4: Nördl. und westl. Mittelgebirge ohne Hochlagen", 0, 0},
          Fall{deutschland,
               {"trier"},
               0.9,
               "bremen",
               "  1: Nord- / Ostseeküste, nördliches Schleswig-Holstein",
               0,
               0},
          Fall{deutschland, deutsche, 0.9, "honolulu", "Honolulu (USA)", 0, 0},
          Fall{europa, {}, 0.74, "passau", "Passau (Deutschland)", 0, 0},
          Fall{europa, {}, 0.75, "trier", "Trier (Deutschland)", 0, 0},
          Fall{europa, {"passau", "trier"}, 0.5, "bremen", "Bremen (Deutschland)", 0, 0},
          Fall{europa, {"bremen", "paris", "passau", "trier"}, 0.5, "honolulu", "Honolulu (USA)", 0, 0},
          Fall{welt, {}, 0.17, "honolulu", "Honolulu (USA)", 4800, 0},
          Fall{welt, {}, 0.34, "paris", "Paris (Frankreich)", 0, 0},
          Fall{welt, {"passau", "trier"}, 0.5, "tokyo", "Tokyo (Japan)", 0, 4800}}) {
        Klimaprobe probe("e");
        probe.plattform.lose = {los};
        for (const std::string& name : fehlend)
            std::filesystem::remove(probe.ordner / ("klima/" + name + ".met"));
        probe.e->HScroll1.setze(von);
        probe.p->Klimadatei = "atlantis.met";
        probe.p->Klimaauswahl = static_cast<std::int16_t>(bereich);
        probe.e->klima_anzeigen();
        EXPECT_EQ(probe.p->Klimadatei, ersatz + ".met");
        EXPECT_THAT(probe.geladen, ElementsAre(ersatz + ".met"));
        EXPECT_EQ(liste(*probe.e, bereich).text(), gezeigt);
        EXPECT_EQ(probe.e->HScroll1.position(), nach);
        EXPECT_EQ(probe.p->Geaendert, 1);
        ASSERT_EQ(probe.plattform.meldungen.size(), 1U);
        const Meldung& meldung = probe.plattform.meldungen[0];
        EXPECT_EQ(meldung.titel, "Climatic data not found!");
        EXPECT_THAT(meldung.hinweis,
                    testing::ContainsRegex("atlantis.met: .*\nLoaded: ." + ersatz.substr(1) + " \\("));
    }
}

TEST(EKlima, OhneErsatzBleibtDieStation) {
    Klimaprobe probe;
    probe.e->station_ersetzen(weg);
    EXPECT_FALSE(probe.e->klima_fehlt());
    EXPECT_THAT(probe.geladen, ElementsAre("bremen.met"));
    std::filesystem::remove_all(probe.ordner / "klima");
    probe.plattform.meldungen.clear();
    probe.p->Klimadatei = "atlantis.met";
    probe.e->ersatz_erlaubt = false;
    EXPECT_THROW(probe.e->station_ersetzen(weg), Dateifehler);
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
    probe.e->ersatz_erlaubt = true;
    probe.e->station_ersetzen(weg);
    EXPECT_TRUE(probe.e->klima_fehlt());
    for (const int bereich : {europa, welt, deutschland})
        probe.e->Option.setze(bereich);
    EXPECT_EQ(probe.p->Klimadatei, "atlantis.met");
    ASSERT_EQ(probe.plattform.meldungen.size(), 1U) << "told once";
    EXPECT_THAT(probe.plattform.meldungen[0].text, HasSubstr("keine Klimadatei"));
    EXPECT_EQ(probe.plattform.meldungen[0].hinweis, "atlantis.met: weg");
}

TEST(EKlima, EineWarnungKommtEinmalJeStation) {
    Klimaprobe probe("e");
    const Zweisprachig warnung{"Zeile 7", "line 7"};
    probe.p->Klimadatei = "trier.met";
    for (int i = 0; i < 3; ++i)
        probe.e->klima_zeigen(warnung);
    ASSERT_EQ(probe.plattform.meldungen.size(), 1U);
    EXPECT_EQ(probe.plattform.meldungen[0].text, "line 7");
    probe.e->klima_zeigen();
    probe.e->klima_zeigen(warnung);
    EXPECT_EQ(probe.plattform.meldungen.size(), 2U) << "chosen again after another one";
}

TEST(EKlima, WahlInDenListenLaedtDieStation) {
    Klimaprobe probe;
    probe.oeffne(deutschland, "trier.met");
    probe.e->Klimaregionwahl.setze(10);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
    EXPECT_EQ(probe.p->Geaendert, 1);
    EXPECT_EQ(bild(*probe.e), "klima11.bmp");
    for (int i = 1; i <= klimaregionen; ++i)
        EXPECT_TRUE(klimaregion(i).datei.ends_with(".met")) << i;

    probe.oeffne(europa, "passau.met");
    EXPECT_EQ(Klimaprobe::farbe(probe.e->Picture2, 122, 112), farben::rot);
    probe.e->Klimaregionwahl2.setze(1);
    EXPECT_THAT(probe.geladen, ElementsAre("paris.met"));
    EXPECT_EQ(Klimaprobe::farbe(probe.e->Picture2, 122, 112), farben::gelb);
    EXPECT_EQ(Klimaprobe::farbe(probe.e->Picture2, 82, 111), farben::rot);
    probe.oeffne(welt, "passau.met");
    EXPECT_EQ(Klimaprobe::farbe(probe.e->Picture3, 348, 41), farben::rot);
    probe.oeffne(welt, "bremen.met");
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty()) << "the first of the list is one of it";
}

TEST(EKlima, EineVerschwundeneDateiLaesstAllesWieEsWar) {
    using Fall = std::tuple<int, std::string, int, std::string>;
    for (const auto& [bereich, vorher, zeile, datei] :
         {Fall{deutschland, "trier.met", 1, "braunschweig.met"},
          Fall{deutschland, "tokyo.met", 0, "bremen.met"}, Fall{europa, "tokyo.met", 1, "paris.met"},
          Fall{welt, "trier.met", 4, "tokyo.met"}}) {
        Klimaprobe probe("e");
        probe.oeffne(bereich, vorher);
        std::filesystem::remove(probe.ordner / ("klima/" + datei));
        Auswahlliste& wahl = liste(*probe.e, bereich);
        const std::string text = wahl.text();
        wahl.setze(zeile);
        ASSERT_EQ(probe.plattform.meldungen.size(), 1U) << datei;
        EXPECT_THAT(probe.plattform.meldungen[0].text, HasSubstr(datei + ": file not found"));
        EXPECT_EQ(probe.p->Klimadatei, vorher);
        EXPECT_EQ(probe.p->Geaendert, 0);
        EXPECT_EQ(wahl.text(), text);
    }
}

TEST(EKlima, DieWeltkarteRolltZurStation) {
    Klimaprobe probe;
    probe.oeffne(welt, "paris.met");
    E_Klima& e = *probe.e;
    EXPECT_EQ(e.HScroll1.minimum(), 0);
    EXPECT_EQ(e.HScroll1.maximum(), 4800);
    EXPECT_EQ(e.HScroll1.kleiner_schritt(), 150);  // 10 pixels
    EXPECT_EQ(e.HScroll1.grosser_schritt(), 1500);
    // The frame shows 330 pixels: Honolulu (60.6) only at the left end, Tokyo (559.6) only at the right one,
    // Paris (328.9) at both.
    using Fall = std::tuple<int, int, int>;
    for (const auto& [station, von, nach] :
         {Fall{4, 0, 4800}, Fall{2, 4800, 4800}, Fall{1, 4800, 0}, Fall{2, 0, 0}, Fall{1, 909, 0},
          Fall{1, 908, 908}, Fall{4, 3443, 4800}, Fall{4, 3444, 3444}}) {
        e.HScroll1.setze(von);
        e.Klimaregionwahl2.setze(station);
        EXPECT_EQ(e.HScroll1.position(), nach) << station << " from " << von;
        EXPECT_EQ(e.Picture3.lage(), (Rechteck{-nach / 15.0, 0, 650, 246}));
    }
}

}  // namespace
}  // namespace velmaris
