#include "tests/console/konsole.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using testing::HasSubstr;
using testing::Not;

class Bild : public test::Konsole {
  protected:
    int zeichne(const std::string& worte) {
        std::filesystem::remove("seite.html");
        return rufe("haus.vel --ordner . --bild seite.html " + worte);
    }

    static std::string seite() {
        return std::filesystem::exists("seite.html") ? test::inhalt("seite.html") : std::string();
    }
};

struct Fall {
    std::string worte;
    int status;
    std::vector<std::string> seite;  ///< what the page contains
    std::string fehler = {};
};

TEST_F(Bild, NenntWasGezeichnetIstUndWasNicht) {
    programm.ordner.schreibe("fest.csv", "kws,Troom,fs\n0.2,20,10\n0.4,20,10\n0.2,20,30\n");
    programm.ordner.schreibe("eine.csv", "kws\n0.2\n");
    for (const Fall& fall : std::initializer_list<Fall>{
             {"--variiere kws=0.201,0.2,0.4 --ergebnis qhs_sum",
              0,
              {"U-Werte der Wände Süd</b> von 0.20 bis 0.40 W/(m² K) (2 Werte); Werte zwischen den "
               "Stellungen",
               "<h2>Heizwärmebedarf, kWh/(m² a)</h2>", "id=\"zahlen-qhs_sum\""}},
             {"--variiere orient=-45,45 --ergebnis qh", 0, {"von -45 bis 45° (2 Werte); Ausgangsfall: 0°"}},
             {"--variiere WRG=0:0.9:0.1 --ergebnis qh --sprache e",
              0,
              {"heat recovery</b> from 0 to 90 % (10 values); base: 0 %</li>"}},
             {"--variiere fs=10,100,110,20 --ergebnis qh",
              1,
              {"<td>20</td>", "<li>Zeile 3 (fs = 110): "},
              "fehlerhafte Zeilen: 1\n"},
             {"--variiere fs=101,102", 1, {"Keine Zeile konnte gerechnet werden."}, "fehlerhafte Zeilen: 2"},
             {"--variiere Troom=20,28 --variiere Tueber=25,30 --ergebnis Troom",
              0,
              {"1-mal hat eine Eingabe einer anderen nachgegeben (zuerst: gefragt 28.0 °C, gerechnet 24.9 "
               "°C)"}},
             {"--variiere Klimadatei=trier.met,kurz.met,fern.met --ergebnis qh",
              1,
              {"Klimastation</b> (3 Möglichkeiten); Ausgangsfall: ", "<li>Zeile 2 (Klimadatei = kurz.met): "},
              "kurz.met"},
             {"--variiere fs=10,20 --variiere fn=0,10 --ergebnis q_d,Breite",
              0,
              {"<h2>Breite</h2>\n<p>Überall gleich: <b>"}},
             {"--variiere fs=10,20 --variiere fn=0,10 --ergebnis f_gf",
              0,
              {"(Wandanteil Süd 10 %, Wandanteil Nord 0 %), größter <b>",
               "(Wandanteil Süd 20 %, Wandanteil Nord 10 %).</p>"}},
             {"--variiere ugd_typ=0,1,2 --variiere Waermebruecken=0,1 --ergebnis qh --sprache e",
              0,
              {"<p>Columns: 1 "}},
             {"--variiere kws=1,1.4 --ergebnis qh", 0, {"Er liegt neben dem Bereich des Bildes."}},
             {"--variiere Heizsystem=1,5 --variiere Energietraeger=1,2 --ergebnis q_PE_Strom",
              1,
              {"<li>Zeile 4 (Heizsystem = 5, Energietraeger = 2)", "<td>-</td>", " / "},
              "Energietraeger"},
             {"--plan fest.csv --ergebnis qh", 0, {"id=\"zahlen-qh\"", "<td>-</td>"}},
             {"--plan eine.csv --ergebnis qh", 0, {"U-Werte der Wände Süd</b>, 0.20 W/(m² K) (1 Wert)"}}}) {
        EXPECT_EQ(zeichne(fall.worte), fall.status) << fall.worte << '\n' << fehler;
        EXPECT_EQ(aus, "") << "no table is asked for";
        for (const std::string& text : fall.seite)
            EXPECT_THAT(seite(), HasSubstr(text)) << fall.worte;
        EXPECT_THAT(seite(), Not(testing::ContainsRegex("nan|NaN|INF|(href|src|url)[=(]"))) << fall.worte;
        EXPECT_THAT(fehler, HasSubstr(fall.fehler)) << fall.worte;
    }
}

TEST_F(Bild, LehntAbWasSichNichtZeichnenLaesst) {
    programm.ordner.schreibe("leer.csv", "kws\n");
    programm.ordner.schreibe("krumm.csv", "kws\n\"0.2\n");
    std::string schraeg = "kws,fs\n";
    for (int i = 1; i < 9; ++i)
        schraeg += "0." + std::to_string(i) + "," + std::to_string(i) + "\n";
    programm.ordner.schreibe("schraeg.csv", schraeg);
    for (const Fall& fall : std::initializer_list<Fall>{
             {"--variiere fs=1,2 --variiere fn=1,2 --variiere fo=1,2", 2, {}, "hier sind es 3: fs, fn, fo"},
             {"--variiere fs=1,2 --ergebnis anz_MaxMonatName", 2, {}, "anz_MaxMonatName: ein Text"},
             {"--variiere fs=1,2 --teil 1/2", 2, {}, "--teil"},
             {"--variiere fs=1,2 --ausgabe a.csv --fortsetzen", 2, {}, "--fortsetzen"},
             {"--variiere l=2:50:0.00001", 2, {}, "mehr als 2000000 Zeilen"},
             {"--variiere fs=1,2 --ausgabe seite.html", 2, {}, "dasselbe Ziel"},
             {"--json", 2, {}, "nur mit"},
             {"--plan leer.csv", 1, {}, "leer.csv: der Plan hat keine Zeilen"},
             {"--plan krumm.csv", 1, {}, "krumm.csv: keine Zeile lässt sich lesen"},
             {"--plan schraeg.csv", 1, {}, "schraeg.csv: die Zeilen bilden kein Gitter"}}) {
        EXPECT_EQ(zeichne(fall.worte), fall.status) << fall.worte << '\n' << fehler;
        EXPECT_THAT(fehler, HasSubstr(fall.fehler)) << fall.worte;
        EXPECT_EQ(seite(), "") << fall.worte;
    }
    EXPECT_EQ(rufe("haus.vel --ordner . --variiere fs=1,2 --bild nirgends/s.html"), 1);
    EXPECT_THAT(fehler, HasSubstr("nirgends/s.html"));
}

TEST_F(Bild, TabelleDanebenGleichtDerOhneBild) {
    const std::string worte = "--variiere kws=0.2,9,0.4 --variiere fn=1,2";
    ASSERT_EQ(rufe("haus.vel --ordner . " + worte), 1);
    const std::string allein = aus;
    ASSERT_EQ(zeichne(worte + " --ausgabe -"), 1);
    EXPECT_EQ(aus, allein);
}

/// The station of the base is missing, those of the rows are there.
TEST_F(Bild, OhneAusgangsfallBleibenDieZeilen) {
    EXPECT_EQ(rufe("kurz.vel --ordner . --bild seite.html --variiere Klimadatei=trier.met,fern.met"), 0);
    EXPECT_THAT(fehler, HasSubstr("der Ausgangsfall fehlt im Bild: "));
    EXPECT_THAT(seite(), Not(HasSubstr("Ausgangsfall")));
}

}  // namespace
}  // namespace velmaris
