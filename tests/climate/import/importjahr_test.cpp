#include "climate/klimadatei.h"
#include "climate/stationslisten.h"
#include "tests/climate/import/importprobe.h"
#include "toolkit/text.h"

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

int verschoben(int i, int um) {
    return (i + um + stunden_im_jahr) % stunden_im_jahr;
}

/// Row i (from 0) of the written file must hold the source's hour i + `um`.
void vergleiche_zeilen(const std::string& station, int um) {
    const auto zeilen = test::zeilen(station);
    ASSERT_EQ(zeilen.size(), 8766U);
    for (int i = 0; i < stunden_im_jahr; ++i) {
        const Quellwerte w = quellwerte(verschoben(i, um));
        std::string zeile;
        for (const std::string& feld :
             {std::to_string(i / 24 + 1), dezimal(w.Ta), std::to_string(w.G_Gh), std::to_string(w.G_Dh)})
            zeile += rechtsbuendig(feld, 5);
        ASSERT_EQ(zeilen[static_cast<std::size_t>(i) + 6], zeile) << i;
    }
}

/// The program's own reader must find the source's hour n + `um` at the n-th hour of the year, from 0 on.
void vergleiche_wetter(Importprobe& probe, const std::string& name, int um) {
    probe.p->Klimadatei = name + ".met";
    klimadatei_lesen(*probe.p);
    int n = 0;
    fuer_jede_stunde([&](int m, int d, int h, int) {
        const Quellwerte w = quellwerte(verschoben(n++, um));
        ASSERT_EQ(probe.p->Wetter(m, d, h).Ta, static_cast<float>(w.Ta)) << m << '/' << d << ' ' << h;
        ASSERT_EQ(probe.p->Wetter(m, d, h).Diffus, static_cast<float>(w.G_Dh)) << m << '/' << d << ' ' << h;
    });
}

TEST(Importjahr, MeteonormBehaeltDieFolgeDerZeilen) {
    Importprobe probe;
    probe.oeffne("Bern.dat", Quellbau{}.meteonorm());
    EXPECT_FALSE(probe.e->Command2.aktiv());
    probe.e->Land.tippe("Schweiz");
    EXPECT_EQ(probe.importiere("bern").text,
              "Klimadatenimport beendet! Biite starten Sie Velmaris neu, um die gerade importierten Daten "
              "verwenden zu können.");
    EXPECT_FALSE(probe.e->ebene.sichtbar());
    EXPECT_THAT(probe.plattform.vorgaben, ElementsAre("Bern"));
    EXPECT_THAT(probe.station("bern"),
                testing::StartsWith("Bern (Schweiz)\r\nBreitengrad:   46.95\r\nL\xE4ngengrad:   -7.43\r\n"
                                    "Zeitzone:     -1\r\n\r\n   dy   Ta G_Gh G_Dh\r\n"));
    vergleiche_zeilen(probe.station("bern"), 0);
    vergleiche_wetter(probe, "bern", 1);
    EXPECT_THAT(probe.dateien(), ElementsAre("bern.met"));
    const Stationslisten listen = stationslisten_lesen({probe.p->AppPfad / "klima"});
    EXPECT_THAT(stationsnamen(listen.Welt), ElementsAre("Bern (Schweiz)"))
        << "offered from the next start on";
}

TEST(Importjahr, EnergyPlusStundenKommenAnIhrenPlatz) {
    for (const bool schaltjahr : {false, true}) {
        Importprobe probe("e");
        probe.oeffne("CHE_Bern.066310_IWEC.epw", Quellbau{.zeilen = 8784}.epw(schaltjahr));
        EXPECT_EQ(probe.e->Erkannt.text(), "The file was recognised as an EnergyPlus weather file (.epw).");
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(meldung.text, "Import finished. Please re-start Velmaris to use the new imported data.");
        EXPECT_EQ(meldung.hinweis, schaltjahr ? "The source's 29 February was left out." : "");
        EXPECT_THAT(probe.plattform.vorgaben, ElementsAre("CHE_Bern.066310_IWEC"));
        vergleiche_zeilen(probe.station("bern"), -1);
        vergleiche_wetter(probe, "bern", 0);
    }
}

std::string mit(std::string text, const std::string& alt, const std::string& neu) {
    return text.replace(text.find(alt), alt.size(), neu);
}

/// The lines of a text from the one that begins with `von` to before the one that begins with `bis` left out.
std::string ohne(std::string text, const std::string& von, const std::string& bis) {
    const std::size_t anfang = text.find("\n" + von) + 1;
    return text.erase(anfang, text.find("\n" + bis) + 1 - anfang);
}

TEST(Importjahr, EnergyPlusQuellenWieSieVorkommen) {
    const std::string epw = Quellbau{}.epw();
    const std::size_t kopf = epw.find("1995,"), mitte = epw.find("1995,7,1,1,");
    std::string ohne_stempel = epw;
    for (std::size_t i = 0; (i = ohne_stempel.find("\n1995,", i)) != std::string::npos; ++i)
        ohne_stempel.replace(i, 7, "\n1995,x");
    for (const auto& [kopfzeilen, quelle] : std::vector<std::pair<int, std::string>>{
             {8, Quellbau{.zeilenende = "\n"}.epw()},
             {8, epw.substr(0, kopf) + epw.substr(mitte) + epw.substr(kopf, mitte - kopf)},
             {8, ohne_stempel},
             {8, mit(epw, "Bern,BE", "\"St. Gallen, \"\"Flug\"\"\",\"BE\"")},
             {9, mit(epw, "COMMENTS 2,", "broken\r\nCOMMENTS 2,")},
             {7, ohne(epw, "DATA PERIODS", "1995")},
             {1, ohne(epw, "DESIGN", "1995")}}) {
        SCOPED_TRACE(quelle.substr(0, 200));
        Importprobe probe;
        probe.oeffne("quelle.epw", quelle);
        EXPECT_EQ(probe.e->Kopfzeilen.text(), std::to_string(kopfzeilen));
        probe.importiere("neu");
        vergleiche_zeilen(probe.station("neu"), -1);
    }
}

TEST(Importjahr, EnergyPlusMitMehrerenWertenJeStundeWirdAbgelehnt) {
    const std::string epw = Quellbau{}.epw();
    const std::size_t erste = epw.find("1995,");
    // Its rows tell where a file does not: the first two are one hour.
    const std::string doppelt = epw.substr(erste, epw.find('\n', erste) + 1 - erste);
    Importprobe probe("e");
    for (const auto& [quelle, zahl] :
         {std::pair{mit(epw, "DATA PERIODS,1,1,", "DATA PERIODS,1,4,"), "4"},
          {ohne(epw, "DATA PERIODS", "1995").insert(ohne(epw, "DATA PERIODS", "1995").find("1995,"), doppelt),
           "2"}}) {
        probe.oeffne("viertel.epw", quelle);
        EXPECT_EQ(probe.importiere("viertel").text,
                  std::string("The file holds ") + zahl + " values per hour. One per hour is needed.");
    }
    EXPECT_THAT(probe.dateien(), testing::IsEmpty());
}

TEST(Importjahr, JedeTrennungGibtDieselbeStation) {
    struct Fall {
        int trennung;
        int dezimalzeichen;
        std::vector<int> groessen;
        const char* muster;  ///< T, G, D and B stand for temperature, total, diffuse and direct radiation
        int breite = 0;      ///< of a number; below 0 it is aligned to the left
    };
    const std::vector<Fall> faelle{
        {0, 0, {1, 2, 4}, "T\tG\tD"},
        {0, 1, {0, 4, 2, 1}, "x\tD,0\tG\t T"},
        {1, 0, {2, 4, 1}, "GDT", -7},
        {2, 1, {1, 2, 4}, "TGD", 7},
        {2, 0, {3, 4, 1}, "BDT", 7},
        // The total radiation goes before the direct one, the later of two columns before the earlier one.
        {0, 0, {2, 3, 2, 4, 1, 1}, "7\t8\tG\tD\t99\tT"},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.muster);
        const auto zeile = [&fall](const Quellwerte& w) {
            std::string text;
            for (const char zeichen : std::string(fall.muster)) {
                std::string feld(1, zeichen);
                if (zeichen == 'T') feld = dezimal(w.Ta, fall.dezimalzeichen == 1 ? ',' : '.');
                if (zeichen == 'G') feld = std::to_string(w.G_Gh);
                if (zeichen == 'D') feld = std::to_string(w.G_Dh);
                if (zeichen == 'B') feld = std::to_string(w.G_Gh - w.G_Dh);
                text += fall.breite < 0 ? feld + std::string(7 - feld.size(), ' ')
                                        : rechtsbuendig(feld, static_cast<std::size_t>(fall.breite));
            }
            return text;
        };
        Importprobe probe;
        probe.oeffne("quelle.txt", "Kopf\n\nnoch einer\n" + Quellbau{}.reihen(zeile));
        EXPECT_EQ(probe.e->Erkannt.text(), "");
        probe.ort_eintippen();
        probe.e->Datentrennung.setze(fall.trennung);
        probe.e->Dezimalzeichen.setze(fall.dezimalzeichen);
        probe.e->Kopfzeilen.tippe("3");
        for (std::size_t j = 0; j < fall.groessen.size(); ++j)
            probe.e->vorschau.Datenreihe.at(j).setze(fall.groessen[j]);
        probe.importiere("neu");
        vergleiche_zeilen(probe.station("neu"), 0);
    }
}

TEST(Importjahr, ZuWenigUndZuVieleZeilen) {
    const std::string zu_wenig = "Fehler! - Zu wenig Daten. Benötigt werden 8760 Stundenwerte!";
    const std::string zu_viel = " Zeilen wurden die ersten 8760 gelesen.";
    struct Fall {
        int zeilen;
        bool epw;
        std::string hinweis;
    };
    for (const Fall& fall :
         {Fall{0, false, "bern.txt: Gelesen wurden 0 Zeilen."},
          Fall{8759, false, "bern.txt: Gelesen wurden 8759 Zeilen."}, Fall{8760, false, ""},
          Fall{8761, false, "Von 8761" + zu_viel},
          Fall{8784, false, "Von 8784" + zu_viel + " Ein 29. Februar wurde nicht ausgelassen."},
          Fall{8783, true, "bern.txt: Gelesen wurden 8759 Zeilen, ohne die des 29. Februar."}}) {
        Importprobe probe;
        const Quellbau bau{.zeilen = fall.zeilen};
        probe.oeffne("bern.txt", fall.epw ? bau.epw(true) : bau.meteonorm());
        probe.e->Land.tippe("Schweiz");
        const Meldung meldung = probe.importiere("bern");
        const bool gut = fall.zeilen >= stunden_im_jahr && !fall.epw;
        EXPECT_EQ(meldung.hinweis, fall.hinweis);
        EXPECT_EQ(probe.dateien().size(), gut ? 1U : 0U) << fall.zeilen;
        if (gut) continue;
        EXPECT_EQ(meldung.text, zu_wenig);
        EXPECT_EQ(meldung.titel, "Fehler");
        EXPECT_TRUE(probe.plattform.fragen.empty());
        EXPECT_TRUE(probe.e->ebene.sichtbar());
    }
}

TEST(Importjahr, DieErsteSchlechteZeileWirdGenannt) {
    const std::string epw = "1995,1,1,1,0,?,";
    const std::string rest = ",1,1,1,1,1,1,";
    const std::string fehlt = " steht für einen fehlenden Wert";
    struct Fall {
        bool epw;
        int reihe;
        std::string text;
        std::string hinweis;  ///< empty for a good row
    };
    const std::vector<Fall> faelle{
        {false, 1, "1\t1\tkalt\t0\t0", "Spalte 3: \"kalt\" ist keine Zahl"},
        {false, 9, "1\t1\t" + std::string(41, 'x'),
         "Spalte 3: \"" + std::string(40, 'x') + "...\" ist keine Zahl"},
        {false, 8760, "1\t1\t5\t\t0", "Spalte 4: \"\" ist keine Zahl"},
        {false, 8761, "x", ""},
        {false, 200, "1\t1\t5\t0", "Spalte 5: der Wert fehlt"},
        {false, 77, "", "Spalte 3: der Wert fehlt"},
        {false, 77, "1\t1\t5,5\t0\t0", "Spalte 3: \"5,5\" ist keine Zahl"},
        {false, 77, "1\t1\t-999\t0\t0", "Spalte 3: -999" + fehlt},
        {false, 77, "1\t1\t-99\t0\t0", "Spalte 3: -99" + fehlt},
        {false, 77, "1\t1\t5\t-99.9\t0", "Spalte 4: -99.9" + fehlt},
        {false, 77, "1\t1\t5\t0\t-9999.00", "Spalte 5: -9999" + fehlt},
        {false, 77, "1\t1\t99.95\t0\t0", "Spalte 3: der Wert ist zu groß"},
        {false, 77, "1\t1\t-99.95\t0\t0", "Spalte 3: der Wert ist zu klein"},
        {false, 77, "1\t1\t-98.9\t-50\t-49.9", ""},
        {false, 77, "1\t1\t5\t-50.1\t0", "Spalte 4: -50.1 liegt unter -50 W/m²"},
        {false, 77, "1\t1\t99.9\t9999\t9999.9", ""},
        {false, 77, "1\t1\t5\t9999.6\t0", "Spalte 4: der Wert ist zu groß"},
        {false, 77, std::string("1\t1\t5\t0\t0\0", 10), "Spalte 5: \"0 \" ist keine Zahl"},
        {true, 9, epw + "99.9" + rest + "0,0,0", "Spalte 7: 99.9" + fehlt},
        {true, 9, epw + "5" + rest + "9999,0,0", "Spalte 14: 9999" + fehlt},
        {true, 9, epw + "5" + rest + "0,9999,9999.", "Spalte 16: 9999" + fehlt},
        {true, 9, epw + "5" + rest + "0,-9999,0", ""},
        {true, 9, epw + "5", "Spalte 14: der Wert fehlt"},
    };
    for (const Fall& fall : faelle) {
        Importprobe probe;
        Quellbau bau{.zeilen = 8761, .ersetzt = {{fall.reihe, fall.text}}};
        if (!fall.hinweis.empty()) bau.ersetzt.emplace(8760, "ein zweiter Fehler");
        probe.oeffne("bern.txt", fall.epw ? bau.epw() : bau.meteonorm());
        probe.e->Land.tippe("Schweiz");
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(probe.station("bern").empty(), !fall.hinweis.empty()) << fall.text;
        if (fall.hinweis.empty()) continue;
        EXPECT_EQ(meldung.text, "Fehler in Zeile " + std::to_string(fall.reihe + (fall.epw ? 8 : 4)) +
                                    "\r\nKlimadatenimport wurde abgebrochen!");
        EXPECT_EQ(meldung.hinweis, "bern.txt: " + fall.hinweis);
    }
}

}  // namespace
}  // namespace velmaris
