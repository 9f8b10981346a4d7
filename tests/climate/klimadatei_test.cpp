#include "climate/klimadatei.h"

#include "climate/regionen.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <memory>
#include <tuple>
#include <vector>

namespace velmaris {
namespace {

using test::Datenzeile;
using test::Stationsdatei;
using test::Testordner;

std::unique_ptr<Projekt> gelesen(const std::string& bytes) {
    auto p = std::make_unique<Projekt>();
    klimadaten_uebernehmen(*p, bytes, "feld.met");
    return p;
}

TEST(Klimadatei, LegtDieErsteZeileAnDasEndeDesJahres) {
    const auto zahlen = [](int i) { return Datenzeile{std::to_string(i), "0", std::to_string(i % 100)}; };
    std::string text = Stationsdatei{.zeile = zahlen}.text() + "  365 99.9  999  999\r\nmore\r\n\r\n";
    // Four rows of 22 characters give way to short and wide ones: a decimal lies behind column 20.
    text.replace(text.find("    1    0"), std::size_t{4} * 22,
                 "    1 -1.5  100 123.4\r\n    1 -2.5\r\n\r\n    1 x4.5   1a 1 2 \r\n");
    using Stunde = std::tuple<int, int, int, float, int>;
    for (int zeilenende = 0; zeilenende < 2; ++zeilenende, std::erase(text, '\r')) {
        const auto p = gelesen(text);
        for (const auto& [m, d, h, Ta, diffus] :
             {Stunde{12, 31, 24, -1.5F, 123}, Stunde{1, 1, 1, -2.5F, 0}, Stunde{1, 1, 2, 0, 0},
              Stunde{1, 1, 3, 0, 12}, Stunde{1, 1, 4, 4, 4}, Stunde{2, 28, 24, 1416, 16},
              Stunde{3, 1, 1, 1417, 17}, Stunde{12, 31, 23, 8759, 59}}) {
            EXPECT_EQ(p->Wetter(m, d, h).Ta, Ta) << m << '/' << d << ' ' << h;
            EXPECT_EQ(p->Wetter(m, d, h).Diffus, diffus) << m << '/' << d << ' ' << h;
        }
        EXPECT_EQ(p->Monat(2).Tage, 28);
    }
}

TEST(Klimadatei, NimmtDieZahlenDesKopfesAusDenSpalten15Bis24) {
    for (const auto& [breite, laenge, zone, grad, korrektur] :
         {std::tuple{"Breitengrad:  50", "Laengengrad:  -8", "Zeitzone:     -1", 50.0, 7.0F},
          {"              -33.9", "              70.5", "              5", -33.9, -4.5F},
          {"                    12.599", "", "              -2 hours", 12.5, 30},
          {"12", "Laengengrad:", "Zeitzone:     ?", 0, 0}}) {
        // The comma ends the name only: the head goes by lines.
        const auto p =
            gelesen(Stationsdatei{.ort = "K\xF6ln, Zoo (D)", .breite = breite, .laenge = laenge, .zone = zone}
                        .text());
        EXPECT_EQ(p->Stationsname, "Köln");
        EXPECT_EQ(p->Breite, static_cast<float>(grad * 0.01745)) << breite;
        EXPECT_EQ(p->Laengenkorrektur, korrektur) << laenge;
    }
}

TEST(Klimadatei, LeitetDasDirekteLichtAusDemWaagerechtenAb) {
    // On the equator in March the sun stands in the zenith at noon and at 7:30, 7.6 minutes behind, 20.6
    // degrees high: 470 / sin 20.6 = 1336, and 490 are beyond 1370. At 80 degrees north it stays down in
    // December and stands 12.5 degrees high at midnight in June.
    using Fall = std::tuple<const char*, const char*, const char*, int, int, int, int>;
    for (const auto& [breite, gesamt, diffus, monat, stunde, von, bis] :
         {Fall{"0", "800", "100", 3, 12, 699, 715}, Fall{"0", "1000", "0", 3, 8, 0, 0},
          Fall{"0", "520", "50", 3, 8, 1300, 1370}, Fall{"0", "540", "50", 3, 8, 0, 0},
          Fall{"0", "100", "300", 3, 12, 0, 0}, Fall{"0", "800", "100", 3, 24, 0, 0},
          Fall{"0", "101", "100", 3, 12, 1, 2}, Fall{"80", "500", "100", 12, 12, 0, 0},
          Fall{"80", "150", "100", 6, 24, 190, 270}, Fall{"80", "500", "100", 6, 24, 0, 0}}) {
        Stationsdatei datei{.laenge = "", .zone = ""};
        datei.breite = std::string("Breitengrad:  ") + breite;
        datei.zeile = [werte = Datenzeile{"20", gesamt, diffus}](int) { return werte; };
        const Wetterstunde w = gelesen(datei.text())->Wetter(monat, 21, stunde);
        EXPECT_GE(w.Direkt, von) << breite << ' ' << monat << ' ' << stunde;
        EXPECT_LE(w.Direkt, bis) << breite << ' ' << monat << ' ' << stunde;
        EXPECT_EQ(w.Diffus, std::stof(diffus));
    }
}

TEST(Klimadatei, FuelltDieTafelDerDachraeume) {
    const auto p = gelesen(Stationsdatei{}.text());
    int zeile = 0;
    using Zeile = std::pair<const char*, float>;
    for (const auto& [text, faktor] :
         {Zeile{"Außen oder nicht gedämmte", 1}, Zeile{"Teilgedämmtes Dach       ", 0.8F},
          Zeile{"Voll gedämmtes Dach      ", 0.5F}, Zeile{"", 0}}) {
        EXPECT_EQ(p->Dachraum(zeile).Bezeichnung, text);
        EXPECT_EQ(p->Dachraum(zeile++).Faktor, faktor);
    }
}

TEST(Klimadatei, EinFehlerLaesstDasBisherigeKlima) {
    const Testordner ordner;
    const std::string ganz = Stationsdatei{}.text();
    const std::string rest(hoechste_stationsgroesse - ganz.size(), 'x');
    const auto p = std::make_unique<Projekt>();
    p->AppPfad = ordner.pfad();
    for (const auto& [name, bytes, grund] : std::vector<std::tuple<std::string, std::string, std::string>>{
             {"ohne_ende.met", ganz.substr(0, ganz.size() - 2), ""},
             {"randvoll.met", ganz + rest, ""},
             {"kurz.met", Stationsdatei{.zeilen = stunden_im_jahr - 1}.text(), "8765 of 8766 lines"},
             {"", "", "is a folder"},
             {"uebervoll.met", ganz + rest + "x", "larger than 2 MB"},
             {"kopf.met", std::string(hoechste_kopfgroesse, 'x') + ganz, "larger than 64 KB"}}) {
        if (grund != "is a folder") ordner.schreibe("klima/" + name, bytes);
        p->Klimadatei = name;
        const std::uint32_t vorher = p->Strahlung.station;
        try {
            klimadatei_lesen(*p);
            EXPECT_EQ(grund, "");
            EXPECT_NE(p->Strahlung.station, vorher);
        } catch (const Dateifehler& fehler) {
            EXPECT_NE(fehler.datei().find(name), std::string::npos);
            EXPECT_NE(fehler.text("e").find(grund.empty() ? "no fault" : grund), std::string::npos) << name;
            EXPECT_EQ(p->Strahlung.station, vorher);
        }
        EXPECT_EQ(p->Stationsname, "Testfeld (Deutschland)");
        EXPECT_EQ(p->Wetter(1, 1, 1).Ta, 10);
    }
}

TEST(Klimadatei, WarntVorWertenDieEsNirgendsGibt) {
    const std::string nord = "49.75", ost = "-6.66", mez = "-1",
                      viele = " lines hold values that no place on";
    // The values stand in the data rows from `von` to before `bis`, in the order of the file.
    using Fall = std::tuple<std::string, std::string, std::string, int, int, Datenzeile, std::string>;
    for (const auto& [breite, laenge, zone, von, bis, werte, warnung] : std::vector<Fall>{
             {nord, ost, mez, 0, 1, {}, ""},
             {"-90", "180", "-14", 0, 9, {"-95.0", "1500", "-50"}, ""},
             {"0", "0", ".5", 0, 9, {".0", "00", ".00"}, ""},
             {"90", "-180", "14", 0, 9, {"65", "-50", "1500"}, ""},
             {"90.1", ost, mez, 0, 0, {}, "2: latitude 90.1 °. One line holds"},
             {"nord", ost, mez, 0, 0, {}, "2: latitude \"nord\" is not a number. One line"},
             {nord, "", mez, 0, 0, {}, "3: longitude is missing. One line holds"},
             {nord, "-181", "15", 0, 0, {}, "3: longitude -181 °. 2" + viele},
             {nord, ost, "-14.5", 0, 0, {}, "4: time zone -14.5 h. One line holds"},
             {nord, ost, mez, 5, 8, {"9999"}, "12: outdoor air temperature 9999 °C. 3" + viele},
             {nord, ost, mez, 0, 8760, {"-95.1"}, "7: outdoor air temperature -95.1 °C. 8760" + viele},
             {nord, ost, mez, 0, 1, {"65.1"}, "7: outdoor air temperature 65.1 °C. One line"},
             {nord, ost, mez, 8759, 8760, {"1", "1501"}, "8766: total radiation 1501 W/m²"},
             {nord, ost, mez, 1, 2, {"1", "0", "-51"}, "8: diffuse radiation -51 W/m²"},
             {nord,
              ost,
              mez,
              3,
              4,
              {"x  ", "hell"},
              "10: outdoor air temperature \"x\" is not a number. One"},
             {nord, ost, mez, 3, 4, {"-", "*****", ""}, "10: outdoor air temperature \"-\" is not a number"},
             {nord, ost, mez, 3, 4, {"0", "1", ""}, "10: diffuse radiation is missing"}}) {
        Stationsdatei datei{.breite = std::string(14, ' ') + breite,
                            .laenge = std::string(14, ' ') + laenge,
                            .zone = std::string(14, ' ') + zone};
        datei.zeile = [&, a = von, b = bis, anders = werte](int i) {
            return i >= a && i < b ? anders : Datenzeile{};
        };
        const auto gewarnt = klimadaten_uebernehmen(*std::make_unique<Projekt>(), datei.text(), "feld.met");
        const std::string text = gewarnt ? gewarnt->en : "";
        EXPECT_TRUE(warnung.empty() ? text.empty() : text.starts_with("feld.met, line " + warnung)) << text;
    }
}

TEST(Stationskopf, LiestWieDieStationsliste) {
    const Testordner ordner;
    const auto kopf = [&](const std::string& bytes) {
        const Stationskopf k = stationskopf_lesen(ordner.schreibe("feld.met", bytes));
        return std::tuple(k.name, k.breite, k.laenge, k.zeitzone);
    };
    Stationsdatei datei{.ort = "Testfeld, der Ort 12.25 (Deutschland)"};
    // Columns 15 to 24 of the rest of line 1 are the latitude then, the latitude's line is the longitude's.
    EXPECT_EQ(kopf(datei.text()), std::tuple("Testfeld", 0, 49.75, -6.66));
    datei.ort.clear();
    datei.ort = std::string(hoechste_kopfgroesse - (datei.text().find("   dy") - 2), 'x');
    EXPECT_EQ(kopf(datei.text()), std::tuple(datei.ort, 49.75, -6.66, -1));
    datei.ort += 'x';
    for (const std::string& schlecht : {datei.text(), std::string("Ort\r\nBreite:  1\r\nLaenge\r\n")})
        EXPECT_THROW(kopf(schlecht), Dateifehler) << schlecht.substr(0, 20);
}

TEST(Regionen, HabenJeIhreDatei) {
    const auto p = std::make_unique<Projekt>();
    EXPECT_EQ(region_der_station(*p), 12) << "no names yet: all are equal";
    regionsdateien_setzen(*p);
    for (int i = 1; i <= klimaregionen; ++i) {
        p->Klimadatei = p->Regionsdatei(i);
        EXPECT_EQ(region_der_station(*p), i);
    }
    p->Klimadatei = "paris.met";
    EXPECT_EQ(region_der_station(*p), 0);
}

}  // namespace
}  // namespace velmaris
