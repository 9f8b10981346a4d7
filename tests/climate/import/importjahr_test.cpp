#include "climate/klimadatei.h"
#include "climate/stationslisten.h"
#include "tests/climate/import/importprobe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::dezimal;
using test::Importprobe;
using test::Quellbau;
using test::quellwerte;
using test::Quellwerte;
using testing::ElementsAre;

/// Assigns the columns of the preview through its lists: the quantity of column j + 1.
void belege(E_Klimaimport& e, const std::vector<int>& groessen) {
    for (std::size_t j = 0; j < groessen.size(); ++j)
        e.vorschau.Datenreihe.at(j).setze(groessen[j]);
}

/// Row i (from 0) of the written file must hold the source's hour `quelle(i)`; the sums of the year too.
void vergleiche_zeilen(const std::string& station, const std::function<int(int)>& quelle) {
    const auto zeilen = test::zeilen(station);
    ASSERT_EQ(zeilen.size(), 8766U);
    double summe_Ta = 0, soll_Ta = 0;
    long summe = 0, soll = 0;
    for (int i = 0; i < stunden_im_jahr; ++i) {
        const std::string& zeile = zeilen[static_cast<std::size_t>(i) + 6];
        const Quellwerte w = quellwerte(quelle(i));
        ASSERT_EQ(std::stoi(zeile.substr(0, 5)), i / 24 + 1) << i;
        ASSERT_EQ(std::stod(zeile.substr(5, 5)), w.Ta) << i;
        ASSERT_EQ(std::stoi(zeile.substr(10, 5)), w.G_Gh) << i;
        ASSERT_EQ(std::stoi(zeile.substr(15, 5)), w.G_Dh) << i;
        summe_Ta += std::stod(zeile.substr(5, 5));
        summe += std::stoi(zeile.substr(10, 5)) * 1000L + std::stoi(zeile.substr(15, 5));
        soll_Ta += quellwerte(i).Ta;
        soll += quellwerte(i).G_Gh * 1000L + quellwerte(i).G_Dh;
    }
    EXPECT_NEAR(summe_Ta, soll_Ta, 1e-6);
    EXPECT_EQ(summe, soll);
}

/// The program's own reader must find the source's hour `quelle(n)` at the n-th hour of the year, from 0 on.
void vergleiche_wetter(Importprobe& probe, const std::string& name, const std::function<int(int)>& quelle) {
    probe.p->Klimadatei = name + ".met";
    klimadatei_lesen(*probe.p);
    int n = 0;
    fuer_jede_stunde([&](int m, int d, int h, int) {
        const Quellwerte w = quellwerte(quelle(n++));
        ASSERT_EQ(probe.p->Wetter(m, d, h).Ta, static_cast<float>(w.Ta)) << m << '/' << d << ' ' << h;
        ASSERT_EQ(probe.p->Wetter(m, d, h).Diffus, static_cast<float>(w.G_Dh)) << m << '/' << d << ' ' << h;
    });
}

int gleiche(int i) {
    return i;
}
int naechste(int n) {
    return (n + 1) % stunden_im_jahr;
}
int vorige(int i) {
    return (i + stunden_im_jahr - 1) % stunden_im_jahr;
}

TEST(Importjahr, MeteonormBehaeltDieFolgeDerZeilen) {
    for (const char* sprache : {"d", "e"}) {
        Importprobe probe(sprache);
        probe.oeffne("Bern.dat", Quellbau{}.meteonorm());
        EXPECT_FALSE(probe.e->Command2.aktiv());
        probe.e->Land.tippe("Schweiz");
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(
            meldung.text,
            sprache == std::string("d")
                ? "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die gerade importierten "
                  "Daten verwenden zu können."
                : "Import finished. Please re-start Velmaris to use the new imported data.");
        EXPECT_FALSE(probe.e->ebene.sichtbar());
        EXPECT_EQ(probe.plattform.vorgaben, std::vector<std::string>{"Bern"});
        const std::string station = probe.station("bern");
        EXPECT_TRUE(
            station.starts_with("Bern (Schweiz)\r\nBreitengrad:   46.95\r\nL\xE4ngengrad:   -7.43\r\n"
                                "Zeitzone:     -1\r\n\r\n   dy   Ta G_Gh G_Dh\r\n    1-15.0    0    0\r\n"));
        vergleiche_zeilen(station, gleiche);
        vergleiche_wetter(probe, "bern", naechste);
        EXPECT_THAT(probe.dateien(), ElementsAre("bern.met"));
    }
}

TEST(Importjahr, EnergyPlusStundenKommenAnIhrenPlatz) {
    for (const bool schaltjahr : {false, true}) {
        Importprobe probe("e");
        Quellbau bau;
        bau.zeilen = 8784;
        probe.oeffne("CHE_Bern.066310_IWEC.epw", bau.epw(schaltjahr));
        EXPECT_EQ(probe.e->Erkannt.text(), "The file was recognised as an EnergyPlus weather file (.epw).");
        ASSERT_TRUE(probe.e->Command2.aktiv());
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(meldung.hinweis, schaltjahr ? "The source's 29 February was left out." : "");
        EXPECT_EQ(probe.plattform.vorgaben, std::vector<std::string>{"CHE_Bern.066310_IWEC"});
        EXPECT_TRUE(
            probe.station("bern").starts_with("Bern (CHE)\r\nBreitengrad:   46.92\r\n"
                                              "L\xE4ngengrad:   -7.5\r\nZeitzone:     -1\r\n"));
        vergleiche_zeilen(probe.station("bern"), vorige);
        vergleiche_wetter(probe, "bern", gleiche);
    }
}

TEST(Importjahr, EnergyPlusZeitstempelOrdnenEinGedrehtesJahr) {
    const std::string text = Quellbau{}.epw();
    std::size_t mitte = 0;
    for (int i = 0; i < 8 + 4344; ++i)
        mitte = text.find('\n', mitte) + 1;
    const std::size_t kopf = text.find("1995,");
    Importprobe probe;
    probe.oeffne("gedreht.epw", text.substr(0, kopf) + text.substr(mitte) + text.substr(kopf, mitte - kopf));
    probe.importiere("gedreht");
    vergleiche_wetter(probe, "gedreht", gleiche);

    // Stamps that name no year leave the order of the rows.
    std::string ohne_stempel = text;
    for (std::size_t i = ohne_stempel.find("\n1995,"); i != std::string::npos;
         i = ohne_stempel.find("\n1995,", i + 1))
        ohne_stempel.replace(i, 7, "\n1995,x");
    probe.e->oeffnen();
    probe.oeffne("ohne.epw", ohne_stempel);
    probe.importiere("ohne");
    vergleiche_wetter(probe, "ohne", gleiche);
}

TEST(Importjahr, EnergyPlusNenntWoDerKopfEndetUndWieVieleWerteDieStundeHat) {
    const std::string text = Quellbau{}.epw();
    const std::string perioden = "DATA PERIODS,1,1,";
    std::string laenger = text;
    laenger.insert(text.find("COMMENTS 2,"), "broken\r\n");
    Importprobe probe("e");
    probe.oeffne("laenger.epw", laenger);
    EXPECT_EQ(probe.e->Kopfzeilen.text(), "9");
    probe.importiere("laenger");
    vergleiche_wetter(probe, "laenger", gleiche);

    std::string viertel = text;
    viertel.replace(text.find(perioden), perioden.size(), "DATA PERIODS,1,4,");
    // Its rows tell where a file does not: the first two are one hour.
    const std::size_t erste = text.find("1995,");
    const std::string doppelt =
        text.substr(0, text.find(perioden)) + text.substr(erste, text.find('\n', erste) + 1 - erste);
    for (const auto& [quelle, zahl] : {std::pair{viertel, "4"}, {doppelt + text.substr(erste), "2"}}) {
        probe.oeffne("viertel.epw", quelle);
        EXPECT_EQ(probe.importiere("viertel").text,
                  std::string("The file holds ") + zahl + " values per hour. One per hour is needed.");
        EXPECT_THAT(probe.dateien(), ElementsAre("laenger.met"));
    }
}

TEST(Importjahr, QuellenWieSieVorkommen) {
    const auto mit = [](std::string text, const std::string& alt, const std::string& neu) {
        return text.replace(text.find(alt), alt.size(), neu);
    };
    const auto ohne_zeile = [](std::string text, const char* anfang) {
        const std::size_t von = text.find(anfang);
        return text.erase(von, text.find('\n', von) + 1 - von);
    };
    const std::string epw = Quellbau{}.epw();
    const std::string lage = "46.92,7.50,1.0";
    std::string nur_ort = epw;
    nur_ort.erase(epw.find('\n') + 1, epw.find("1995,") - epw.find('\n') - 1);
    struct Fall {
        const char* name;
        std::string quelle;
        const char* kopf;  ///< lines 2 to 4 of the station file
    };
    const std::vector<Fall> faelle{
        {"lf", Quellbau{.zeilenende = "\n"}.epw(), "46.92|-7.5|-1"},
        {"8784 rows", Quellbau{.zeilen = 8784}.epw(true), "46.92|-7.5|-1"},
        {"south, half an hour", mit(epw, lage, "-12.4,130.9,9.5"), "-12.4|-130.9|-9.5"},
        {"west, half an hour", mit(epw, lage, "47.6,-52.7,-3.5"), "47.6|52.7|3.5"},
        {"three quarters", mit(epw, lage, " 27.7 , 85.3 , 5.75 "), "27.7|-85.3|-5.75"},
        {"quoted place", mit(epw, "Bern,BE", "\"St. Gallen, \"\"Flug\"\"\",\"BE\""), "46.92|-7.5|-1"},
        {"quoted source", mit(epw, "IWEC Data", "\"IWEC, Data\""), "46.92|-7.5|-1"},
        {"commas of a table", mit(epw, "565.0", "565.0,,,,,,,,"), "46.92|-7.5|-1"},
        {"no data periods", ohne_zeile(epw, "DATA PERIODS"), "46.92|-7.5|-1"},
        {"place alone", nur_ort, "46.92|-7.5|-1"},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Importprobe probe;
        probe.oeffne("quelle.epw", fall.quelle);
        probe.importiere("neu");
        vergleiche_zeilen(probe.station("neu"), vorige);
        const auto zeilen = test::zeilen(probe.station("neu"));
        std::string kopf;
        for (const std::size_t i : {1U, 2U, 3U})
            kopf += (i > 1 ? "|" : "") + zeilen[i].substr(zeilen[i].find_first_of("-0123456789"));
        EXPECT_EQ(kopf, fall.kopf);
    }
}

TEST(Importjahr, JedeTrennungGibtDieselbeStation) {
    struct Fall {
        const char* name;
        int trennung;
        int dezimalzeichen;
        std::vector<int> groessen;
        std::function<std::string(const Quellwerte&)> zeile;
    };
    const auto rechts = [](const std::string& text) { return std::string(7 - text.size(), ' ') + text; };
    const auto links = [](const std::string& text) { return text + std::string(7 - text.size(), ' '); };
    const std::vector<Fall> faelle{
        {"tabulator",
         0,
         0,
         {1, 2, 4},
         [](const Quellwerte& w) {
             return dezimal(w.Ta) + "\t" + std::to_string(w.G_Gh) + "\t" + std::to_string(w.G_Dh);
         }},
        {"tabulator_komma",
         0,
         1,
         {0, 4, 2, 1},
         [](const Quellwerte& w) {
             return "x\t" + std::to_string(w.G_Dh) + ",0\t" + std::to_string(w.G_Gh) + "\t " +
                    dezimal(w.Ta, ',');
         }},
        {"linksbuendig",
         1,
         0,
         {2, 4, 1},
         [&](const Quellwerte& w) {
             return links(std::to_string(w.G_Gh)) + links(std::to_string(w.G_Dh)) + dezimal(w.Ta);
         }},
        {"rechtsbuendig",
         2,
         1,
         {1, 2, 4},
         [&](const Quellwerte& w) {
             return rechts(dezimal(w.Ta, ',')) + rechts(std::to_string(w.G_Gh)) +
                    rechts(std::to_string(w.G_Dh));
         }},
        {"direkt",
         2,
         0,
         {3, 4, 1},
         [&](const Quellwerte& w) {
             return rechts(std::to_string(w.G_Gh - w.G_Dh)) + rechts(std::to_string(w.G_Dh)) +
                    rechts(dezimal(w.Ta));
         }},
        // The total radiation goes before the direct one, the later of two columns before the earlier one.
        {"vorrang",
         0,
         0,
         {2, 3, 2, 4, 1, 1},
         [](const Quellwerte& w) {
             return "7\t8\t" + std::to_string(w.G_Gh) + "\t" + std::to_string(w.G_Dh) + "\t99\t" +
                    dezimal(w.Ta);
         }},
    };
    for (const Fall& fall : faelle) {
        for (const char* ende : {"\r\n", "\n"}) {
            SCOPED_TRACE(fall.name);
            Importprobe probe;
            Quellbau bau;
            bau.zeilenende = ende;
            probe.oeffne("quelle.txt", "Kopf\n\nnoch einer\n" + bau.reihen(fall.zeile));
            EXPECT_EQ(probe.e->Erkannt.text(), "");
            probe.ort_eintippen();
            probe.e->Datentrennung.setze(fall.trennung);
            probe.e->Dezimalzeichen.setze(fall.dezimalzeichen);
            probe.e->Kopfzeilen.tippe("3");
            belege(*probe.e, fall.groessen);
            probe.importiere(fall.name);
            vergleiche_zeilen(probe.station(fall.name), gleiche);
            vergleiche_wetter(probe, fall.name, naechste);
        }
    }
}

TEST(Importjahr, DieStationWirdBeimNaechstenStartAngeboten) {
    Importprobe probe;
    probe.oeffne("bern.epw", Quellbau{}.epw());
    probe.e->Standortname.tippe("Bümpliz");
    probe.e->Land.tippe("Schweiz");
    probe.importiere("bümpliz");
    const Stationslisten listen = stationslisten_lesen({probe.p->AppPfad / "klima"});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Bümpliz (Schweiz)"));
    EXPECT_EQ(listen.Welt.at(0).datei, "bümpliz.met");
    EXPECT_NEAR(listen.Welt.at(0).ort.x, 325 + 1.677777778 * 7.5, 1e-9);
}

TEST(Importjahr, ZuWenigUndZuVieleZeilen) {
    struct Fall {
        int zeilen;
        bool gut;
    };
    for (const Fall& fall : {Fall{0, false}, Fall{1, false}, Fall{8759, false}, Fall{8760, true},
                             Fall{8761, true}, Fall{8784, true}}) {
        for (const char* sprache : {"d", "e"}) {
            Importprobe probe(sprache);
            Quellbau bau;
            bau.zeilen = fall.zeilen;
            bau.ersetzt[8761] = "kein Wert";
            probe.oeffne("bern.txt", bau.meteonorm());
            probe.e->Land.tippe("Schweiz");
            const Meldung meldung = probe.importiere("bern");
            EXPECT_EQ(probe.dateien().size(), fall.gut ? 1U : 0U) << fall.zeilen;
            if (fall.gut) {
                vergleiche_zeilen(probe.station("bern"), gleiche);
                EXPECT_EQ(meldung.hinweis.find(std::to_string(fall.zeilen)) != std::string::npos,
                          fall.zeilen > 8760);
                EXPECT_EQ(meldung.hinweis.find("29") != std::string::npos, fall.zeilen == 8784);
                continue;
            }
            EXPECT_EQ(meldung.text, sprache == std::string("d")
                                        ? "Fehler! - Zu wenig Daten. Benötigt werden 8760 Stundenwerte!"
                                        : "Error! - Not enough data. 8760 hourly data is needed!");
            EXPECT_EQ(meldung.titel, sprache == std::string("d") ? "Fehler" : "Error");
            EXPECT_TRUE(probe.plattform.fragen.empty());
            EXPECT_TRUE(probe.e->ebene.sichtbar());
        }
    }
    Quellbau kurz;
    kurz.zeilen = 8783;
    Importprobe probe;
    probe.oeffne("schaltjahr.epw", kurz.epw(true));
    EXPECT_THAT(probe.importiere("bern").text, testing::StartsWith("Fehler! - Zu wenig Daten."));
    EXPECT_EQ(probe.plattform.meldungen.at(0).hinweis,
              "schaltjahr.epw: Gelesen wurden 8759 Zeilen, ohne die des 29. Februar.");
}

TEST(Importjahr, DieErsteSchlechteZeileWirdGenannt) {
    struct Fall {
        bool epw;
        std::map<int, std::string> ersetzt;
        int zeile;  ///< of the file, 0 for a good source
        std::string hinweis;
    };
    const std::string epw = "1995,1,1,1,0,?,";
    const std::string rest = ",1,1,1,1,1,1,";
    const std::vector<Fall> faelle{
        {false, {{1, "1\t1\tkalt\t0\t0"}}, 5, "Spalte 3: \"kalt\" ist keine Zahl"},
        {false, {{8760, "1\t1\t5\t\t0"}, {8761, "x"}}, 8764, "Spalte 4: \"\" ist keine Zahl"},
        {false, {{8761, "x"}}, 0, ""},
        {false, {{300, "1 1 5 0 0"}, {200, "1\t1\t5\t0"}}, 204, "Spalte 5: der Wert fehlt"},
        {false, {{77, ""}}, 81, "Spalte 3: der Wert fehlt"},
        {false, {{77, "1\t1\t5,5\t0\t0"}}, 81, "Spalte 3: \"5,5\" ist keine Zahl"},
        {false, {{77, "1\t1\t1e999\t0\t0"}}, 81, "Spalte 3: \"1e999\" ist keine Zahl"},
        {false, {{77, "1\t1\t-999\t0\t0"}}, 81, "Spalte 3: -999 steht für einen fehlenden Wert"},
        {false, {{77, "1\t1\t-99\t0\t0"}}, 81, "Spalte 3: -99 steht für einen fehlenden Wert"},
        {false, {{77, "1\t1\t5\t-99.9\t0"}}, 81, "Spalte 4: -99.9 steht für einen fehlenden Wert"},
        {false, {{77, "1\t1\t5\t0\t-9999.00"}}, 81, "Spalte 5: -9999 steht für einen fehlenden Wert"},
        {false, {{77, "1\t1\t100\t0\t0"}}, 81, "Spalte 3: der Wert ist zu groß"},
        {false, {{77, "1\t1\t-120\t0\t0"}}, 81, "Spalte 3: der Wert ist zu klein"},
        {false, {{77, "1\t1\t-89.2\t-50\t-49.9"}}, 0, ""},
        {false, {{77, "1\t1\t5\t-50.1\t0"}}, 81, "Spalte 4: -50.1 liegt unter -50 W/m²"},
        {false, {{77, "1\t1\t99.9\t9999\t9999.9"}}, 0, ""},
        {false, {{77, "1\t1\t5\t9999.6\t0"}}, 81, "Spalte 4: der Wert ist zu groß"},
        {false, {{77, std::string("1\t1\t5\t0\t0\0", 10)}}, 81, "Spalte 5: \"0 \" ist keine Zahl"},
        {true, {{9, epw + "99.9" + rest + "0,0,0"}}, 17, "Spalte 7: 99.9 steht für einen fehlenden Wert"},
        {true, {{9, epw + "5" + rest + "9999,0,0"}}, 17, "Spalte 14: 9999 steht für einen fehlenden Wert"},
        {true,
         {{9, epw + "5" + rest + "0,9999,9999."}},
         17,
         "Spalte 16: 9999 steht für einen fehlenden Wert"},
        {true, {{9, epw + "-99.9" + rest + "0,0,0"}}, 17, "Spalte 7: -99.9 steht für einen fehlenden Wert"},
        {true, {{9, epw + "5" + rest + "0,0,-60"}}, 17, "Spalte 16: -60 liegt unter -50 W/m²"},
        {true, {{9, epw + "5" + rest + "0,-9999,0"}}, 0, ""},
        {true, {{9, epw + "5" + rest + "0,9999,0"}}, 0, ""},
        {true, {{9, epw + "5"}}, 17, "Spalte 14: der Wert fehlt"},
    };
    for (const Fall& fall : faelle) {
        for (const char* sprache : {"d", "e"}) {
            Importprobe probe(sprache);
            Quellbau bau;
            bau.zeilen = 8761;
            bau.ersetzt = fall.ersetzt;
            probe.oeffne("bern.txt", fall.epw ? bau.epw() : bau.meteonorm());
            probe.e->Land.tippe("Schweiz");
            const Meldung meldung = probe.importiere("bern");
            EXPECT_EQ(probe.station("bern").empty(), fall.zeile != 0) << fall.hinweis;
            if (fall.zeile == 0) continue;
            const std::string nummer = std::to_string(fall.zeile);
            if (sprache == std::string("d")) {
                EXPECT_EQ(meldung.text,
                          "Fehler in Zeile " + nummer + "\r\nKlimadatenimport wurde abgebrochen!");
                EXPECT_EQ(meldung.hinweis, "bern.txt: " + fall.hinweis);
            } else {
                EXPECT_EQ(meldung.text, "Error in line " + nummer + "\r\nImport has been aborted!");
            }
        }
    }
}

}  // namespace
}  // namespace velmaris
