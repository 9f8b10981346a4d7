#include "climate/klimadatei.h"

#include "climate/regionen.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "tests/verderber.h"
#include "toolkit/fehler.h"

#include <cmath>
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
    Stationsdatei datei;
    datei.zeile = [](int i) { return Datenzeile{std::to_string(i), "0", std::to_string(i % 100)}; };
    for (const char* zeilenende : {"\r\n", "\n"}) {
        datei.zeilenende = zeilenende;
        const auto p = gelesen(datei.text() + "  365 99.9  999  999\r\nmore\r\n\r\n");
        EXPECT_EQ(p->Wetter(12, 31, 24).Ta, 0);
        EXPECT_EQ(p->Wetter(1, 1, 1).Ta, 1);
        EXPECT_EQ(p->Wetter(1, 2, 1).Ta, 25);
        EXPECT_EQ(p->Wetter(3, 1, 1).Ta, 59 * 24 + 1) << "February has 28 days";
        EXPECT_EQ(p->Wetter(12, 31, 23).Ta, 8759);
        EXPECT_EQ(p->Wetter(12, 31, 23).Diffus, 59);
        EXPECT_EQ(p->Monat(2).Tage, 28);
        EXPECT_EQ(p->Strahlung.werte.Ta_max, 8759);
    }
}

TEST(Klimadatei, NimmtDieZahlenDesKopfesAusDenSpalten15Bis24) {
    struct Fall {
        const char *breite, *laenge, *zone;
        double breite_grad;
        float Laengenkorrektur;
    };
    for (const Fall& fall :
         {Fall{"Breitengrad:  50", "Laengengrad:  -8", "Zeitzone:     -1", 50, 7},
          Fall{"anything here 0", "and here      -15", "and there     -1", 0, 0},
          Fall{"              -33.9", "              70.5", "              5", -33.9, -4.5},
          Fall{"                    12.599", "", "              -2 hours", 12.5, 30},
          Fall{"12", "Laengengrad:", "Zeitzone:     ?", 0, 0}}) {
        const auto p =
            gelesen(Stationsdatei{.breite = fall.breite, .laenge = fall.laenge, .zone = fall.zone}.text());
        EXPECT_EQ(p->Breite, static_cast<float>(fall.breite_grad * 0.01745)) << fall.breite;
        EXPECT_EQ(p->Laengenkorrektur, fall.Laengenkorrektur) << fall.laenge;
    }
}

TEST(Klimadatei, NenntDenOrtBisZumKomma) {
    for (const auto& [ort, name] : {std::pair{"M\xFCnchen (Deutschland)", "München (Deutschland)"},
                                    {"Paris, Orly (France)", "Paris"},
                                    {"", ""}}) {
        const auto p = gelesen(Stationsdatei{.ort = ort}.text());
        EXPECT_EQ(p->Stationsname, name);
        EXPECT_EQ(p->Breite, static_cast<float>(49.75 * 0.01745)) << "the hourly reader goes by lines";
    }
}

TEST(Klimadatei, LeitetDasDirekteLichtAusDemWaagerechtenAb) {
    struct Fall {
        std::string breite;
        Datenzeile werte;
        int monat, stunde;
        float von, bis;
    };
    // On the equator in March the sun stands in the zenith at noon and 22.5 degrees high at 7:30, at 80
    // degrees north it stays down in December and 12.5 degrees high at midnight in June.
    const std::vector<Fall> faelle{
        {"0", {"20", "800", "100"}, 3, 12, 699, 715},   {"0", {"20", "1000", "0"}, 3, 8, 0, 0},
        {"0", {"20", "450", "50"}, 3, 8, 950, 1200},    {"0", {"20", "100", "300"}, 3, 12, 0, 0},
        {"0", {"20", "800", "100"}, 3, 24, 0, 0},       {"80", {"-20", "500", "100"}, 12, 12, 0, 0},
        {"80", {"-20", "150", "100"}, 6, 24, 190, 270}, {"80", {"-20", "500", "100"}, 6, 24, 0, 0},
    };
    for (const Fall& fall : faelle) {
        const auto p = gelesen(Stationsdatei{
            .breite = "Breitengrad:  " + fall.breite,
            .laenge = "Laengengrad:  0",
            .zone = "Zeitzone:     0",
            .zeile = [&](int) {
                return fall.werte;
            }}.text());
        const Wetterstunde& w = p->Wetter(fall.monat, 21, fall.stunde);
        EXPECT_GE(w.Direkt, fall.von) << fall.breite << ' ' << fall.monat << ' ' << fall.stunde;
        EXPECT_LE(w.Direkt, fall.bis) << fall.breite << ' ' << fall.monat << ' ' << fall.stunde;
        EXPECT_EQ(w.Diffus, std::stof(fall.werte.G_Dh));
    }
}

TEST(Klimadatei, LiestKurzeUndBreiteZeilen) {
    std::string text = Stationsdatei{.zeilen = 0}.text();
    text += "    1 -1.5  100 123.4\r\n";  // the decimal lies behind column 20
    text += "    1 -2.5\r\n";
    text += "\r\n";
    text += "    1 x4.5   1a 1 2 \r\n";
    text +=
        Stationsdatei{.zeilen = stunden_im_jahr - 4}.text().substr(Stationsdatei{.zeilen = 0}.text().size());
    const auto p = gelesen(text);
    EXPECT_EQ(p->Wetter(12, 31, 24).Ta, -1.5F);
    EXPECT_EQ(p->Wetter(12, 31, 24).Diffus, 123);
    EXPECT_EQ(p->Wetter(1, 1, 1).Ta, -2.5F);
    EXPECT_EQ(p->Wetter(1, 1, 1).Diffus, 0);
    EXPECT_EQ(p->Wetter(1, 1, 2).Ta, 0);
    EXPECT_EQ(p->Wetter(1, 1, 3).Ta, 0);
    EXPECT_EQ(p->Wetter(1, 1, 3).Diffus, 12);
    EXPECT_EQ(p->Wetter(1, 1, 4).Ta, 10);
}

TEST(Klimadatei, FuelltDieTafelDerDachraeume) {
    const auto p = gelesen(Stationsdatei{}.text());
    int zeile = 0;
    for (const auto& [text, faktor] : {std::pair{"Außen oder nicht gedämmte", 1.0F},
                                       {"Teilgedämmtes Dach       ", 0.8F},
                                       {"Voll gedämmtes Dach      ", 0.5F},
                                       {"", 0.0F}}) {
        EXPECT_EQ(p->Dachraum(zeile).Bezeichnung, text);
        EXPECT_EQ(p->Dachraum(zeile++).Faktor, faktor);
    }
}

TEST(Klimadatei, EinFehlerLaesstDasBisherigeKlima) {
    const Testordner ordner;
    const std::string ganz = Stationsdatei{}.text();
    ordner.schreibe("klima/feld.met", ganz);
    ordner.schreibe("klima/ohne_ende.met", ganz.substr(0, ganz.size() - 2));
    ordner.schreibe("klima/kurz.met", Stationsdatei{.zeilen = stunden_im_jahr - 1}.text());
    ordner.schreibe("klima/leer.met", "");
    ordner.schreibe("klima/ordner.met/x", "");
    ordner.schreibe("klima/randvoll.met", ganz + std::string(hoechste_stationsgroesse - ganz.size(), 'x'));
    ordner.schreibe("klima/uebervoll.met",
                    ganz + std::string(hoechste_stationsgroesse - ganz.size() + 1, 'x'));
    ordner.schreibe("klima/kopf.met", std::string(hoechste_kopfgroesse, 'x') + ganz);
    const auto p = std::make_unique<Projekt>();
    p->AppPfad = ordner.pfad();
    for (const char* gut : {"ohne_ende.met", "randvoll.met", "feld.met"}) {
        p->Klimadatei = gut;
        klimadatei_lesen(*p);
    }
    const auto vorher = std::make_unique<Projekt>(*p);
    const std::vector<std::pair<std::string, std::string>> faelle{
        {"kurz.met", "8765 of 8766 lines"}, {"leer.met", "0 of 8766 lines"},
        {"ordner.met", "is a folder"},      {"", "is a folder"},
        {"fehlt.met", "not found"},         {"uebervoll.met", "larger than 2 MB"},
        {"kopf.met", "larger than 64 KB"},
    };
    for (const auto& [name, grund] : faelle) {
        p->Klimadatei = name;
        try {
            klimadatei_lesen(*p);
            FAIL() << name;
        } catch (const Dateifehler& fehler) {
            EXPECT_NE(fehler.datei().find(name), std::string::npos);
            EXPECT_NE(fehler.text("e").find(grund), std::string::npos) << fehler.text("e");
        }
        EXPECT_EQ(p->Stationsname, vorher->Stationsname);
        EXPECT_EQ(p->Breite, vorher->Breite);
        EXPECT_EQ(p->Laengenkorrektur, vorher->Laengenkorrektur);
        EXPECT_EQ(p->Strahlung.station, vorher->Strahlung.station);
        EXPECT_EQ(p->Wetter(1, 1, 1).Ta, 10);
        EXPECT_EQ(p->Monat(1).Tmittel, vorher->Monat(1).Tmittel);
    }
}

TEST(Klimadatei, WarntVorWertenDieEsNirgendsGibt) {
    struct Fall {
        std::string breite, laenge, zone;
        int von, bis;  // data rows in the order of the file
        Datenzeile werte;
        std::string warnung;  // empty for a good file
    };
    const std::string nord = "49.75", ost = "-6.66", mez = "-1",
                      viele = " lines hold values that no place on";
    const std::vector<Fall> faelle{
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
        {nord, ost, mez, 0, 1, {"65.1"}, "7: outdoor air temperature 65.1 °C. One line"},
        {nord, ost, mez, 0, 8760, {"-95.1"}, "7: outdoor air temperature -95.1 °C. 8760" + viele},
        {nord, ost, mez, 8759, 8760, {"1", "1501"}, "8766: total radiation 1501 W/m²"},
        {nord, ost, mez, 1, 2, {"1", "0", "-51"}, "8: diffuse radiation -51 W/m²"},
        {nord, ost, mez, 3, 4, {"x  ", "hell"}, "10: outdoor air temperature \"x\" is not a number. One"},
        {nord, ost, mez, 3, 4, {"0", "*****"}, "10: total radiation \"*****\" is not a number"},
        {nord, ost, mez, 3, 4, {"1.0", "2", ""}, "10: diffuse radiation is missing"},
        {nord, ost, mez, 3, 4, {"-", "2", "1"}, "10: outdoor air temperature \"-\" is not a number"}};
    for (const Fall& fall : faelle) {
        Stationsdatei datei{.breite = "Breitengrad:  " + fall.breite,
                            .laenge = "Laengengrad:  " + fall.laenge,
                            .zone = "Zeitzone:     " + fall.zone};
        datei.zeile = [&fall](int i) { return i >= fall.von && i < fall.bis ? fall.werte : Datenzeile{}; };
        const auto p = std::make_unique<Projekt>();
        const auto warnung = klimadaten_uebernehmen(*p, datei.text(), "feld.met");
        EXPECT_EQ(warnung.has_value(), !fall.warnung.empty()) << fall.warnung << (warnung ? warnung->en : "");
        if (!warnung || fall.warnung.empty()) continue;
        EXPECT_EQ(warnung->en.find("feld.met, line " + fall.warnung), 0U) << warnung->en;
        EXPECT_EQ(warnung->de.find("feld.met, Zeile "), 0U) << warnung->de;
    }
}

// Either a fault of the file, or a climate in its bounds.
TEST(Klimadatei, UeberstehtVerdorbeneBytes) {
    Stationsdatei datei;
    datei.zeile = [](int i) {
        return Datenzeile{"-3.5", std::to_string(i % 24 * 30), std::to_string(i % 24 * 11)};
    };
    const std::string ganz = datei.text();
    test::Verderber verderber(20240229);
    const auto p = std::make_unique<Projekt>();
    int gut = 0, fehlerhaft = 0;
    for (int i = 0; i < 300; ++i) {
        try {
            klimadaten_uebernehmen(*p, verderber.verderbe(ganz), "feld.met");
            ++gut;
        } catch (const Dateifehler&) {
            ++fehlerhaft;
            continue;
        }
        fuer_jede_stunde([&](int m, int d, int h, int) {
            const Wetterstunde& w = p->Wetter(m, d, h);
            ASSERT_TRUE(std::isfinite(w.Ta) && std::isfinite(w.Diffus));
            ASSERT_TRUE(w.Direkt >= 0 && w.Direkt <= 1370);
        });
        ASSERT_TRUE(std::isfinite(p->Monat(1 + i % 12).Tmittel));
    }
    EXPECT_GT(gut, 30);
    EXPECT_GT(fehlerhaft, 30);
}

TEST(Stationskopf, LiestWieDieStationsliste) {
    const Testordner ordner;
    const auto kopf = [&](const std::string& bytes) {
        const Stationskopf k = stationskopf_lesen(ordner.schreibe("feld.met", bytes));
        return std::tuple(k.name, k.breite, k.laenge, k.zeitzone);
    };
    Stationsdatei datei;
    EXPECT_EQ(kopf(datei.text()), std::tuple("Testfeld (Deutschland)", 49.75, -6.66, -1));
    datei.ort = "Testfeld, der Ort 12.25 (Deutschland)";
    // Columns 15 to 24 of the rest of line 1 are the latitude then, the latitude's line is the longitude's.
    EXPECT_EQ(kopf(datei.text()), std::tuple("Testfeld", 0, 49.75, -6.66));

    datei.ort.clear();
    datei.ort = std::string(hoechste_kopfgroesse - (datei.text().find("   dy") - 2), 'x');
    EXPECT_EQ(kopf(datei.text()), std::tuple(datei.ort, 49.75, -6.66, -1));
    datei.ort += 'x';
    for (const std::string& schlecht :
         {datei.text(), std::string(), std::string("Ort"), std::string("Ort\r\nBreite:  1\r\nLaenge\r\n")})
        EXPECT_THROW(kopf(schlecht), Dateifehler) << schlecht.substr(0, 20);
    for (const auto& pfad : {ordner / "fehlt.met", ordner.pfad()})
        EXPECT_THROW(static_cast<void>(stationskopf_lesen(pfad)), Dateifehler);
}

TEST(Regionen, HabenJeIhreDatei) {
    const auto p = std::make_unique<Projekt>();
    EXPECT_EQ(region_der_station(*p), 12) << "no names yet: all are equal";
    regionsdateien_setzen(*p);
    EXPECT_EQ(p->Regionsdatei(5), "würzburg.met");
    for (int i = 1; i <= klimaregionen; ++i) {
        p->Klimadatei = p->Regionsdatei(i);
        EXPECT_EQ(region_der_station(*p), i);
        const Klimaregion& region = klimaregion(i);
        EXPECT_EQ(std::stoi(std::string(region.text)), i);
        EXPECT_EQ(region.hinweis_1.substr(0, 14), " Klimaregion " + std::to_string(i).substr(0, 1));
    }
    p->Klimadatei = "paris.met";
    EXPECT_EQ(region_der_station(*p), 0);
}

}  // namespace
}  // namespace velmaris
