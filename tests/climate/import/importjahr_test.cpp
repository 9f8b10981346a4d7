#include "climate/klimadatei.h"
#include "tests/climate/import/importprobe.h"
#include "toolkit/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <tuple>

namespace velmaris {
namespace {

using test::dezimal;
using test::Importprobe;
using test::Quellbau;
using test::quellwerte;
using test::Quellwerte;
using testing::ElementsAre;

Quellwerte verschoben(int i, int um) {
    return quellwerte((i + um + stunden_im_jahr) % stunden_im_jahr);
}

/// Row i (from 0) of the written file must hold the source's hour i + `um`.
void vergleiche_zeilen(const std::string& station, int um) {
    std::string zeilen = "   dy   Ta G_Gh G_Dh\r\n";
    for (int i = 0; i < stunden_im_jahr; ++i) {
        const Quellwerte w = verschoben(i, um);
        for (const std::string& feld :
             {std::to_string(i / 24 + 1), dezimal(w.Ta), std::to_string(w.G_Gh), std::to_string(w.G_Dh)})
            zeilen += rechtsbuendig(feld, 5);
        zeilen += "\r\n";
    }
    EXPECT_TRUE(station.ends_with(zeilen));
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
    EXPECT_THAT(probe.station("bern"),
                testing::StartsWith("Bern (Schweiz)\r\nBreitengrad:   46.95\r\nL\xE4ngengrad:   -7.43\r\n"
                                    "Zeitzone:     -1\r\n\r\n   dy   Ta G_Gh G_Dh\r\n"));
    vergleiche_zeilen(probe.station("bern"), 0);
    probe.p->Klimadatei = "bern.met";
    klimadatei_lesen(*probe.p);
    EXPECT_EQ(probe.p->Wetter(1, 1, 1).Ta, static_cast<float>(quellwerte(1).Ta));
}

TEST(Importjahr, EnergyPlusStundenKommenAnIhrenPlatz) {
    for (const bool schaltjahr : {false, true}) {
        Importprobe probe("e");
        probe.oeffne("CHE_Bern.066310_IWEC.epw", Quellbau{.zeilen = 8784}.epw(schaltjahr));
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(meldung.text, "Import finished. Please re-start Velmaris to use the new imported data.");
        EXPECT_EQ(meldung.hinweis, schaltjahr ? "The source's 29 February was left out." : "");
        EXPECT_THAT(probe.plattform.vorgaben, ElementsAre("CHE_Bern.066310_IWEC"));
        vergleiche_zeilen(probe.station("bern"), -1);
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
    const std::string ohne_stempel = std::regex_replace(epw, std::regex("\n1995,."), "\n1995,x");
    const std::string mit_stunde_0 =
        std::regex_replace(epw, std::regex("(\n1995,[0-9]+,[0-9]+),24,"), "$1,0,");
    using Fall = std::pair<const char*, std::string>;
    for (const auto& [kopfzeilen, quelle] :
         {Fall{"8", Quellbau{.zeilenende = "\n"}.epw()},
          Fall{"8", epw.substr(0, kopf) + epw.substr(mitte) + epw.substr(kopf, mitte - kopf)},
          Fall{"8", ohne_stempel}, Fall{"8", mit_stunde_0},
          Fall{"8", mit(epw, "Bern,BE", "\"St. Gallen, \"\"Flug\"\"\",\"BE\"")},
          Fall{"9", mit(epw, "COMMENTS 2,", "broken\r\nCOMMENTS 2,")},
          Fall{"7", ohne(epw, "DATA PERIODS", "1995")}, Fall{"1", ohne(epw, "DESIGN", "1995")},
          Fall{"2", mit(ohne(epw, "DESIGN", "1995"), "\n1995", "\n1995,1,0,1\n1995")},
          Fall{"8", mit(epw, "DATA PERIODS,1,1,", "DATA PERIODS,1,,")}}) {
        SCOPED_TRACE(quelle.substr(0, 200));
        Importprobe probe;
        probe.oeffne("quelle.epw", quelle);
        EXPECT_EQ(probe.e->Kopfzeilen.text(), kopfzeilen);
        probe.importiere("neu");
        vergleiche_zeilen(probe.station("neu"), -1);
    }
}

TEST(Importjahr, EnergyPlusMitMehrerenWertenJeStundeWirdAbgelehnt) {
    const std::string epw = Quellbau{}.epw(), kurz = ohne(epw, "DATA PERIODS", "1995");
    const std::size_t erste = kurz.find("1995,"), zweite = kurz.find('\n', erste) + 1;
    Importprobe probe("e");
    using Fall = std::pair<std::string, const char*>;
    // The rows tell where a file does not: the first two are one hour.
    for (const auto& [quelle, zahl] :
         {Fall{mit(epw, "DATA PERIODS,1,1,", "DATA PERIODS,1,4,"), "4"},
          Fall{std::string(kurz).insert(erste, kurz, erste, zweite - erste), "2"}}) {
        probe.oeffne("viertel.epw", quelle);
        EXPECT_EQ(probe.importiere("viertel").text,
                  std::string("The file holds ") + zahl + " values per hour. One per hour is needed.");
    }
    EXPECT_THAT(probe.dateien(), testing::IsEmpty());
}

TEST(Importjahr, JedeTrennungGibtDieselbeStation) {
    // T, G, D and B of the pattern stand for temperature, total, diffuse and direct radiation; numbers
    // narrower than the width are aligned, to the left where it is below 0. Total goes before direct
    // radiation, the later of two columns before the earlier one.
    using Fall = std::tuple<int, int, std::vector<int>, std::string, int>;
    for (const auto& [trennung, komma, groessen, muster, breite] :
         {Fall{0, 0, {1, 2, 4}, "T\tG\tD", 0}, Fall{0, 1, {0, 4, 2, 1}, "x\tD,0\tG\t T", 0},
          Fall{1, 0, {2, 4, 1}, "GDT", -7}, Fall{2, 1, {1, 2, 4}, "TGD", 7}, Fall{2, 0, {3, 4, 1}, "BDT", 7},
          Fall{0, 0, {2, 3, 2, 4, 1, 1}, "7\t8\tG\tD\t99\tT", 0}}) {
        SCOPED_TRACE(muster);
        const auto zeile = [&felder = muster, n = breite, k = komma](const Quellwerte& w) {
            std::string text;
            for (const char zeichen : felder) {
                std::string feld(1, zeichen);
                if (zeichen == 'T') feld = dezimal(w.Ta, k == 1 ? ',' : '.');
                if (zeichen == 'G') feld = std::to_string(w.G_Gh);
                if (zeichen == 'D') feld = std::to_string(w.G_Dh);
                if (zeichen == 'B') feld = std::to_string(w.G_Gh - w.G_Dh);
                if (n < 0) feld.resize(7, ' ');
                text += rechtsbuendig(feld, n > 0 ? 7 : 0);
            }
            return text;
        };
        Importprobe probe;
        probe.oeffne("quelle.txt", "Kopf\n\nnoch einer\n" + Quellbau{}.reihen(zeile));
        probe.ort_eintippen();
        probe.e->Datentrennung.setze(trennung);
        probe.e->Dezimalzeichen.setze(komma);
        probe.e->Kopfzeilen.tippe("3");
        for (std::size_t j = 0; j < groessen.size(); ++j)
            probe.e->vorschau.Datenreihe.at(j).setze(groessen[j]);
        probe.importiere("neu");
        vergleiche_zeilen(probe.station("neu"), 0);
    }
}

TEST(Importjahr, ZuWenigUndZuVieleZeilen) {
    const std::string gelesen = "bern.txt: Gelesen wurden ",
                      zu_viel = " Zeilen wurden die ersten 8760 gelesen.";
    using Fall = std::tuple<int, bool, std::string>;
    for (const auto& [zeilen, epw, hinweis] :
         {Fall{0, false, gelesen + "0 Zeilen."}, Fall{8759, false, gelesen + "8759 Zeilen."},
          Fall{8760, false, ""}, Fall{8761, false, "Von 8761" + zu_viel},
          Fall{8784, false, "Von 8784" + zu_viel + " Ein 29. Februar wurde nicht ausgelassen."},
          Fall{8783, true, gelesen + "8759 Zeilen, ohne die des 29. Februar."}}) {
        Importprobe probe;
        const Quellbau bau{.zeilen = zeilen};
        probe.oeffne("bern.txt", epw ? bau.epw(true) : bau.meteonorm());
        probe.e->Land.tippe("Schweiz");
        const Meldung meldung = probe.importiere("bern");
        const bool schlecht = hinweis.starts_with(gelesen);
        EXPECT_EQ(meldung.hinweis, hinweis);
        EXPECT_EQ(meldung.text.starts_with("Fehler! - Zu wenig Daten. Benötigt werden 8760"), schlecht);
        EXPECT_EQ(probe.dateien().empty(), schlecht) << zeilen;
        EXPECT_EQ(probe.e->ebene.sichtbar(), schlecht);
    }
}

TEST(Importjahr, DieErsteSchlechteZeileWirdGenannt) {
    const std::string epw = "1995,1,1,1,0,?,", rest = ",1,1,1,1,1,1,",
                      fehlt = " steht für einen fehlenden Wert";
    const std::string x(40, 'x'), gross = ": der Wert ist zu groß";
    // A row with what stands in it from the third column on, and the hint behind "Spalte ": none for a good
    // row.
    using Fall = std::tuple<int, std::string, std::string>;
    for (const auto& [reihe, text, hinweis] :
         {Fall{1, "kalt\t0\t0", "3: \"kalt\" ist keine Zahl"},
          Fall{9, x + "x", "3: \"" + x + "...\" ist keine Zahl"},
          Fall{8760, "5\t\t0", "4: \"\" ist keine Zahl"},
          Fall{8761, "x", ""},
          Fall{200, "5\t0", "5: der Wert fehlt"},
          Fall{77, "5,5\t0\t0", "3: \"5,5\" ist keine Zahl"},
          Fall{77, "-999\t0\t0", "3: -999" + fehlt},
          Fall{77, "-99\t0\t0", "3: -99" + fehlt},
          Fall{77, "5\t-99.9\t0", "4: -99.9" + fehlt},
          Fall{77, "5\t0\t-9999.00", "5: -9999" + fehlt},
          Fall{77, "99.95\t0\t0", "3" + gross},
          Fall{77, "-99.95\t0\t0", "3: der Wert ist zu klein"},
          Fall{77, "-98.9\t-50\t-49.9", ""},
          Fall{77, "5\t-50.1\t0", "4: -50.1 liegt unter -50 W/m²"},
          Fall{77, "99.9\t9999\t9999.9", ""},
          Fall{77, "5\t9999.6\t0", "4" + gross},
          Fall{77, std::string("5\t0\t0\0", 6), "5: \"0 \" ist keine Zahl"},
          Fall{9, epw + "99.9" + rest + "0,0,0", "7: 99.9" + fehlt},
          Fall{9, epw + "5" + rest + "9999,0,0", "14: 9999" + fehlt},
          Fall{9, epw + "5" + rest + "0,9999,9999.", "16: 9999" + fehlt},
          Fall{9, epw + "5" + rest + "0,-9999,0", ""},
          Fall{9, epw + "5", "14: der Wert fehlt"}}) {
        Importprobe probe;
        const bool ist_epw = text.starts_with("1995");
        Quellbau bau{.zeilen = 8761, .ersetzt = {{reihe, (ist_epw ? "" : "1\t1\t") + text}}};
        if (!hinweis.empty()) bau.ersetzt.emplace(8760, "ein zweiter Fehler");
        probe.oeffne("bern.txt", ist_epw ? bau.epw() : bau.meteonorm());
        probe.e->Land.tippe("Schweiz");
        const Meldung meldung = probe.importiere("bern");
        EXPECT_EQ(probe.station("bern").empty(), !hinweis.empty()) << text;
        if (hinweis.empty()) continue;
        EXPECT_EQ(meldung.text, "Fehler in Zeile " + std::to_string(reihe + (ist_epw ? 8 : 4)) +
                                    "\r\nKlimadatenimport wurde abgebrochen!");
        EXPECT_EQ(meldung.hinweis, "bern.txt: Spalte " + hinweis);
    }
}

}  // namespace
}  // namespace velmaris
