#include "climate/planes/E_Klima.h"

#include "climate/regionen.h"
#include "tests/climate/planes/klimaprobe.h"
#include "toolkit/fehler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Klimaprobe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int deutschland = nummer(Klimabereich::deutschland);
constexpr int europa = nummer(Klimabereich::europa);
constexpr int welt = nummer(Klimabereich::welt);

/// The map pictures by their file names.
std::string bild(const Bildfeld& feld) {
    return feld.bild().filename().string();
}

TEST(EKlima, DieRegionDerStationWirdOhneNeuesLesenGezeigt) {
    Klimaprobe probe;
    probe.p->Klimadatei = "trier.met";
    probe.p->Klimaauswahl = deutschland;
    probe.e->klima_anzeigen();
    EXPECT_EQ(probe.e->Klimaregionwahl.index(), 3);
    EXPECT_EQ(bild(probe.e->Picture1), "klima4.bmp");
    EXPECT_THAT(probe.geladen, IsEmpty());
    probe.oeffne(deutschland, "tokyo.met");
    EXPECT_EQ(probe.e->Klimaregionwahl.index(), -1);
    EXPECT_EQ(probe.e->Klimaregionwahl.text(), "Tokyo (Japan)");
    EXPECT_EQ(bild(probe.e->Picture1), "klima0.bmp");
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
}

TEST(EKlima, EineFehlendeStationWirdErsetzt) {
    struct Fall {
        std::string sprache;
        int bereich;
        double los;
        std::string ersatz;
    };
    const std::string deutsch = "   Klimadatensatz nicht gefunden!\rDefault-Klimadatensatz wird geladen!";
    const std::string englisch = "     Climatic data not found!\rDefault climatic data will be loaded!";
    for (const Fall& fall : {Fall{"d", deutschland, 0.9, "trier.met"},
                             Fall{"e", deutschland, 0.9, "trier.met"}, Fall{"d", europa, 0.74, "passau.met"},
                             Fall{"e", europa, 0.75, "trier.met"}, Fall{"d", welt, 0.17, "honolulu.met"},
                             Fall{"d", welt, 0.34, "paris.met"}, Fall{"d", welt, 0.999, "trier.met"}}) {
        Klimaprobe probe(fall.sprache);
        probe.plattform.lose = {fall.los};
        probe.p->Klimadatei = "atlantis.met";
        probe.p->Klimaauswahl = static_cast<std::int16_t>(fall.bereich);
        probe.e->klima_anzeigen();
        EXPECT_EQ(probe.p->Klimadatei, fall.ersatz);
        EXPECT_THAT(probe.geladen, ElementsAre(fall.ersatz));
        ASSERT_EQ(probe.plattform.meldungen.size(), 1U);
        const Meldung& meldung = probe.plattform.meldungen[0];
        EXPECT_EQ(meldung.text, fall.sprache == "e" ? englisch : deutsch);
        EXPECT_EQ(meldung.titel,
                  fall.sprache == "e" ? "Climatic data not found!" : "Klimadatensatz nicht vorhanden");
        EXPECT_EQ(meldung.symbol, Symbol::information);
        EXPECT_THAT(meldung.hinweis, HasSubstr("atlantis.met: "));
        EXPECT_EQ(probe.p->Geaendert, 1);
        EXPECT_EQ(probe.e->Klimaregionwahl.index(), fall.bereich == deutschland ? 3 : -1);
        EXPECT_EQ(probe.e->HScroll1.position(), fall.bereich == welt && fall.los > 0.5 ? 4800 : 0);
    }
}

TEST(EKlima, DerErsatzIstDieErsteStationDieGelesenWerdenKann) {
    struct Fall {
        int bereich;
        std::vector<std::string> fehlend;
        std::string ersatz, gezeigt;
    };
    for (const Fall& fall :
         {Fall{deutschland, {"trier"}, "bremen", "  1: Nord- / Ostseeküste, nördliches Schleswig-Holstein"},
          Fall{deutschland, {"bremen", "passau", "trier"}, "honolulu", "Honolulu (USA)"},
          Fall{europa, {"passau"}, "trier", "Trier (Deutschland)"},
          Fall{europa, {"passau", "trier"}, "bremen", "Bremen (Deutschland)"},
          Fall{europa, {"bremen", "paris", "passau", "trier"}, "honolulu", "Honolulu (USA)"},
          Fall{welt, {"passau", "trier"}, "tokyo", "Tokyo (Japan)"}}) {
        Klimaprobe probe("e");
        probe.plattform.lose = {0.5};
        for (const std::string& name : fall.fehlend)
            std::filesystem::remove(probe.ordner / ("klima/" + name + ".met"));
        probe.p->Klimadatei = "atlantis.met";
        probe.p->Klimaauswahl = static_cast<std::int16_t>(fall.bereich);
        probe.e->station_ersetzen({"atlantis.met", {"weg", "gone"}});
        EXPECT_EQ(probe.p->Klimadatei, fall.ersatz + ".met");
        EXPECT_FALSE(probe.e->klima_fehlt());
        probe.e->klima_anzeigen();
        EXPECT_EQ((fall.bereich == deutschland ? probe.e->Klimaregionwahl : probe.e->Klimaregionwahl2).text(),
                  fall.gezeigt);
        ASSERT_EQ(probe.plattform.meldungen.size(), 1U);
        EXPECT_THAT(probe.plattform.meldungen[0].hinweis, HasSubstr("atlantis.met: gone\nLoaded: "));
    }
}

TEST(EKlima, WoNichtErsetztWirdBleibtDieStation) {
    Klimaprobe probe;
    probe.e->ersatz_erlaubt = false;
    probe.p->Klimadatei = "atlantis.met";
    EXPECT_THROW(probe.e->station_ersetzen({"atlantis.met", {"weg", "gone"}}), Dateifehler);
    for (const int bereich : {deutschland, europa, welt}) {
        probe.e->Option.setze(bereich);
        EXPECT_EQ(probe.p->Klimadatei, "atlantis.met");
    }
    EXPECT_THAT(probe.geladen, IsEmpty());
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
}

TEST(EKlima, EineWarnungKommtEinmalJeStation) {
    Klimaprobe probe("e");
    const Zweisprachig warnung{"Zeile 7", "line 7"};
    probe.p->Klimadatei = "trier.met";
    for (int i = 0; i < 3; ++i)
        probe.e->klima_zeigen(warnung);
    ASSERT_EQ(probe.plattform.meldungen.size(), 1U);
    EXPECT_EQ(probe.plattform.meldungen[0].text, "line 7");
    EXPECT_EQ(probe.plattform.meldungen[0].symbol, Symbol::information);
    probe.e->klima_zeigen();
    probe.e->klima_zeigen(warnung);
    EXPECT_EQ(probe.plattform.meldungen.size(), 2U) << "chosen again after another one";
}

TEST(EKlima, EuropaUndWeltWaehlenDieStationAusIhrerListe) {
    Klimaprobe probe;
    E_Klima& e = *probe.e;
    probe.oeffne(europa, "passau.met");
    EXPECT_THAT(e.Klimaregionwahl2.eintraege(), ElementsAre("Bremen (Deutschland)", "Paris (Frankreich)",
                                                            "Passau (Deutschland)", "Trier (Deutschland)"));
    EXPECT_EQ(e.Klimaregionwahl2.index(), 2);
    EXPECT_EQ(Klimaprobe::farbe(e.Picture2, 122, 112), farben::rot);
    EXPECT_EQ(Klimaprobe::farbe(e.Picture2, 97, 107), farben::gelb);
    probe.oeffne(welt, "passau.met");
    EXPECT_EQ(e.Klimaregionwahl2.eintraege().size(), 6U);
    EXPECT_EQ(e.Klimaregionwahl2.index(), 3);
    EXPECT_EQ(Klimaprobe::farbe(e.Picture3, 348, 41), farben::rot);
    probe.oeffne(europa, "tokyo.met");
    EXPECT_EQ(e.Klimaregionwahl2.index(), -1);
    EXPECT_EQ(e.Klimaregionwahl2.text(), "Tokyo (Japan)");
    EXPECT_EQ(probe.p->Klimadatei, "tokyo.met");
    EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
}

TEST(EKlima, JederBereichZeigtSeineFelder) {
    Klimaprobe probe;
    E_Klima& e = *probe.e;
    const std::vector<std::pair<const Feld*, int>> felder{
        {&e.Picture1, deutschland}, {&e.Klimaregionwahl, deutschland},
        {&e.plz, deutschland},      {&e.PLZsuchen, deutschland},
        {&e.Picture2, europa},      {&e.picture3f, welt},
        {&e.Picture3, welt},        {&e.HScroll1, welt},
        {&e.Image1, welt}};
    for (const int bereich : {deutschland, europa, welt, deutschland}) {
        probe.p->Klimadatei = "trier.met";
        e.Option.setze(bereich);
        EXPECT_EQ(probe.p->Klimaauswahl, bereich);
        for (const auto& [feld, zuhause] : felder)
            EXPECT_EQ(feld->sichtbar(), zuhause == bereich) << feld->name;
        EXPECT_EQ(e.Klimaregionwahl2.sichtbar(), bereich != deutschland);
        EXPECT_EQ(e.MausRegion.sichtbar(), bereich != deutschland);
        EXPECT_FALSE(e.Label2.sichtbar());
    }
}

TEST(EKlima, AnzeigenRuftAuchDieGesetzteOption) {
    Klimaprobe probe;
    probe.oeffne(deutschland, "trier.met");
    EXPECT_EQ(probe.e->Option.gesetzt(), deutschland);
    probe.oeffne(deutschland, "bremen.met");
    EXPECT_EQ(probe.e->Klimaregionwahl.index(), 0);
    for (const int wert : {0, 4, -1}) {
        probe.oeffne(wert, "atlantis.met");
        EXPECT_EQ(probe.p->Klimaauswahl, wert);
        EXPECT_EQ(probe.e->Option.gesetzt(), deutschland);
        EXPECT_THAT(probe.plattform.meldungen, IsEmpty());
    }
}

TEST(EKlima, WahlInDenListenLaedtDieStation) {
    Klimaprobe probe;
    probe.oeffne(deutschland, "trier.met");
    probe.e->Klimaregionwahl.setze(10);
    EXPECT_THAT(probe.geladen, ElementsAre("passau.met"));
    EXPECT_EQ(probe.p->Geaendert, 1);
    EXPECT_EQ(bild(probe.e->Picture1), "klima11.bmp");

    probe.oeffne(europa, "passau.met");
    probe.e->Klimaregionwahl2.setze(1);
    EXPECT_THAT(probe.geladen, ElementsAre("paris.met"));
    EXPECT_EQ(probe.p->Klimadatei, "paris.met");
    EXPECT_EQ(probe.p->Geaendert, 1);
    EXPECT_EQ(bild(probe.e->Picture1), "klima11.bmp");
    EXPECT_EQ(Klimaprobe::farbe(probe.e->Picture2, 82, 111), farben::rot);
}

TEST(EKlima, EineVerschwundeneDateiLaesstAllesWieEsWar) {
    struct Fall {
        int bereich;
        std::string vorher;
        int zeile;
        std::string datei;
    };
    for (const Fall& fall :
         {Fall{deutschland, "trier.met", 1, "braunschweig.met"},
          Fall{deutschland, "tokyo.met", 0, "bremen.met"}, Fall{europa, "trier.met", 1, "paris.met"},
          Fall{europa, "tokyo.met", 1, "paris.met"}, Fall{welt, "trier.met", 4, "tokyo.met"}}) {
        Klimaprobe probe("e");
        probe.oeffne(fall.bereich, fall.vorher);
        std::filesystem::remove(probe.ordner / ("klima/" + fall.datei));
        Auswahlliste& liste =
            fall.bereich == deutschland ? probe.e->Klimaregionwahl : probe.e->Klimaregionwahl2;
        const int index = liste.index();
        const std::string text = liste.text();
        liste.setze(fall.zeile);
        ASSERT_EQ(probe.plattform.meldungen.size(), 1U) << fall.datei;
        EXPECT_THAT(probe.plattform.meldungen[0].text, HasSubstr(fall.datei + ": file not found"));
        EXPECT_EQ(probe.p->Klimadatei, fall.vorher);
        EXPECT_EQ(probe.p->Geaendert, 0);
        EXPECT_EQ(liste.index(), index);
        EXPECT_EQ(liste.text(), text);
        EXPECT_THAT(probe.geladen, IsEmpty());
    }
}

TEST(EKlima, OhneLesbareStationFehltDasKlima) {
    Klimaprobe probe;
    std::filesystem::remove_all(probe.ordner / "klima");
    probe.p->Klimadatei = "atlantis.met";
    probe.e->station_ersetzen({"atlantis.met", {"weg", "gone"}});
    EXPECT_TRUE(probe.e->klima_fehlt());
    for (const int bereich : {europa, welt, deutschland})
        probe.e->Option.setze(bereich);
    ASSERT_EQ(probe.plattform.meldungen.size(), 1U) << "told once";
    EXPECT_THAT(probe.plattform.meldungen[0].text, HasSubstr("keine Klimadatei"));
    EXPECT_EQ(probe.plattform.meldungen[0].hinweis, "atlantis.met: weg");
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
    for (const auto& [station, von, nach] : std::vector<std::tuple<int, int, int>>{{4, 0, 4800},
                                                                                   {2, 4800, 4800},
                                                                                   {1, 4800, 0},
                                                                                   {2, 0, 0},
                                                                                   {1, 909, 0},
                                                                                   {1, 908, 908},
                                                                                   {4, 3443, 4800},
                                                                                   {4, 3444, 3444}}) {
        e.HScroll1.setze(von);
        e.Klimaregionwahl2.setze(station);
        EXPECT_EQ(e.HScroll1.position(), nach) << station << " from " << von;
        EXPECT_EQ(e.Picture3.lage(), (Rechteck{-nach / 15.0, 0, 650, 246}));
    }
    e.HScroll1.setze(1500);
    probe.oeffne(welt, "tokyo.met");
    EXPECT_EQ(e.HScroll1.position(), 4800);
}

TEST(EKlima, ZeigtDieTemperaturenDesKlimas) {
    Klimaprobe probe("e");
    for (int m = 1; m <= 12; ++m)
        probe.p->Monat(m).Tmittel = static_cast<float>(m <= 7 ? 3 * m - 5.25 : 30.75 - 2.5 * m);
    probe.e->klima_zeigen();
    EXPECT_EQ(probe.e->anz_MinMonatTemp.text(), "-2.3");   // January, -2.25
    EXPECT_EQ(probe.e->anz_MaxMonatTemp.text(), "15.8");   // July, 15.75
    EXPECT_EQ(probe.e->anz_MittelJahrTemp.text(), "6.3");  // (84 - 36.75 + 153.75 - 125) / 12 = 6.3333
    EXPECT_EQ(probe.e->anz_MinMonatText.text(), "min. monthly mean value");
    EXPECT_EQ(probe.e->Frame_Klimadaten.text(), "climatic data");
}

}  // namespace
}  // namespace velmaris
