#include "console/ausgabe_json.h"
#include "studies/fortschritt.h"
#include "tests/console/konsole.h"
#include "tests/volle_festplatte.h"
#include "toolkit/zahlen.h"

#include <array>
#include <csignal>

namespace velmaris {
namespace {

class Studie : public test::Konsole {
  protected:
    Studie() { programm.ordner.schreibe("plan.csv", plantext(37)); }

    int rechne(const std::string& worte) { return rufe("haus.vel --ordner . " + worte); }

    /// A plan of some rows, every tenth of which no project can hold.
    static std::string plantext(int zeilen) {
        std::string text = "kws,Klimadatei,Troom,fn\r\n";
        for (int i = 1; i <= zeilen; ++i) {
            text += i % 10 == 0 ? "99," : "0." + std::to_string(i % 7 + 1) + ",";
            text += i % 3 == 0 ? "fern.met," : "trier.met,";
            text += std::to_string(18 + i % 5) + "," + std::to_string(i % 100) + "\r\n";
        }
        return text;
    }

    std::string datei(const std::string& name) const { return test::inhalt(programm.ordner / name); }
};

struct Fall {
    std::string worte;  ///< behind the project
    int status;
    std::string aus;     ///< what the output contains
    std::string fehler;  ///< and the faults
};

TEST_F(Studie, RechnetZeilenUndNenntJedenFehlerMitOrtUndGrund) {
    const auto& ordner = programm.ordner;
    ordner.schreibe("semikolon.csv",
                    "\xEF\xBB\xBF"
                    "kws;Klimadatei\n0,4;trier.met\n\"0,4\";\"trier.met\"\n");
    ordner.schreibe("fremd.csv", "kws,qhs_sum\n1,2\n");
    ordner.schreibe("unbekannt.csv", "kws,Wand\n1,2\n");
    ordner.schreibe("doppelt.csv", "kws,fn,kws\n1,2,3\n");
    ordner.schreibe("leer.csv", "");
    ordner.schreibe("kopf.csv", "kws,fn\n");
    ordner.schreibe("lang.csv", "kws\n0.2\n" + std::string(70000, '1'));
    ordner.schreibe("zellen.csv", "kws,fn\n0.4,\n0.4\nviel,5\n0.4,5\n\"0.4,5\n0.4,\"1,5\"\n");
    ordner.schreibe("stationen.csv", "Klimadatei\nkurz.met\nnirgends.met\n../trier.met\n\xCE\xB1.met\n");
    for (
        const Fall& fall : std::initializer_list<Fall>{
            {"--variiere kws=0.2:0.6:0.2 --variiere fn=1,2 --ergebnis kws,fn", 0,
             "Nr,kws,fn,kws,fn,Fehler\r\n1,0.2,1,0.2,1,\r\n2,0.2,2,0.2,2,\r\n3,0.4,1,0.4,1,\r\n4,0.4,2,0.4,2,"
             "\r\n5,0.6,1,0.6,1,\r\n6,0.6,2,0.6,2,\r\n",
             ""},
            {"--variiere kws=0.3:0.1:-0.1 --ergebnis kws", 0, "3,0.1,0.1,\r\n", ""},
            {"--variiere kws=0.1,9,0.2 --ergebnis kws", 1,
             "2,9,,kws: Wert außerhalb des Bereichs: 9 (0.01 .. 1.50)\r\n3,0.2,0.2,\r\n",
             "--variiere, Zeile 2 (kws): Wert außerhalb"},
            {"--variiere Troom=30 --ergebnis Troom,Tueber,Strahlung_S,Tmittel,e_g,anz_MaxMonatName", 0,
             "1,30,26.9,27,", ""},
            {"--variiere Heizsystem=1,2 --variiere Energietraeger=4", 1, "Energietraeger", "Energietraeger"},
            {"--variiere kws=1:0.5:0.1", 2, "", "Vorzeichen ist falsch"},
            {"--variiere kws=0:1:0", 2, "", "der Schritt ist 0"},
            {"--variiere kws=0:1", 2, "", "VON:BIS:SCHRITT"},
            {"--variiere kws=0.1,", 2, "", "ein Wert ist leer"},
            {"--variiere kws=viel", 2, "", "keine Zahl: \"viel\""},
            {"--variiere kws", 2, "", "NAME=a,b,c"},
            {"--variiere qhs_sum=1", 2, "", "folgt aus den Eingaben"},
            {"--variiere Wand=1", 2, "", "keine Eingabe eines Projekts"},
            {"--variiere fn=1 --variiere fn=2", 2, "", "zweimal"},
            {"--variiere l=2:50:1e-9", 2, "", "mehr als 1000000000"},
            {"--variiere l=2:50:0.001 --variiere b=2:50:0.001", 2, "", "mehr als 1000000000 Kombinationen"},
            {"--variiere fn=1 --ergebnis Wand", 2, "", "\"Wand\" ist kein Ergebnis"},
            {"--variiere fn=1 --ergebnis Nutzgrad", 2, "", "keinen Wert des Jahres"},
            {"--variiere fn=1 --ergebnis qh,qh", 2, "", "zweimal"},
            {"--variiere fn=1 --teil 3/2", 2, "", "K/N"},
            {"--variiere fn=1 --json", 2, "", "einem einzigen Projekt"},
            {"--variiere fn=1 --fortsetzen", 2, "", "--ausgabe"},
            {"--teil 1/2", 2, "", "nur mit"},
            {"--plan plan.csv --variiere fn=1", 2, "", "excludes"},
            {"--plan plan.csv --ausgabe plan.csv", 2, "", "dasselbe Ziel"},
            {"--plan plan.csv --ausgabe haus.vel", 2, "", "dasselbe Ziel"},
            {"--plan plan.csv --ausgabe nirgends/a.csv", 1, "", "nirgends/a.csv: die Datei kann nicht"},
            {"--plan semikolon.csv --ergebnis kws", 0, "1,0.4,trier.met,0.4,\r\n2,0.4,trier.met,0.4,\r\n",
             ""},
            {"--plan fremd.csv", 1, "", "fremd.csv, Zeile 1: \"qhs_sum\" ist keine Eingabe"},
            {"--plan unbekannt.csv", 1, "", "unbekannt.csv, Zeile 1: \"Wand\""},
            {"--plan doppelt.csv", 1, "", "doppelt.csv, Zeile 1 (kws): die Eingabe steht zweimal da"},
            {"--plan leer.csv", 1, "", "leer.csv: die Datei ist leer"},
            {"--plan fehlt.csv", 1, "", "fehlt.csv: keine Datei"},
            {"--plan lang.csv", 1, "", "lang.csv, Zeile 3: die Zeile ist länger"},
            {"--plan kopf.csv --ergebnis qh", 0, "Nr,kws,fn,qh,Fehler\r\n", ""},
            {"--plan zellen.csv --ergebnis fn", 1, "4,0.4,5,5,\r\n",
             "zellen.csv, Zeile 2 (fn): die Zelle ist leer"},
            {"--plan zellen.csv", 1, "", "zellen.csv, Zeile 3: 1 statt 2 Zellen"},
            {"--plan zellen.csv", 1, "", "zellen.csv, Zeile 4 (kws): keine Zahl: \"viel\""},
            {"--plan zellen.csv", 1, "", "zellen.csv, Zeile 6: ein Anführungszeichen wird nicht geschlossen"},
            {"--plan zellen.csv", 1, "", "zellen.csv, Zeile 7 (fn): ein Komma"},
            {"--plan stationen.csv", 1, "", "Zeile 2 (Klimadatei): "},
            {"--plan stationen.csv", 1, "", "nirgends.met: Datei nicht gefunden"},
            {"--plan stationen.csv", 1, "", "kein bloßer Dateiname"},
            {"--plan stationen.csv", 1, "", "ein Zeichen kann in einer Projektdatei nicht"}}) {
        EXPECT_EQ(rechne("" + fall.worte), fall.status) << fall.worte << '\n' << fehler;
        EXPECT_NE(aus.find(fall.aus), std::string::npos) << fall.worte << '\n' << aus;
        EXPECT_NE(fehler.find(fall.fehler), std::string::npos) << fall.worte << '\n' << fehler;
        if (fall.status == 0) {
            EXPECT_EQ(fehler, "") << fall.worte;
        }
    }
    EXPECT_EQ(datei("plan.csv"), plantext(37));
}

TEST_F(Studie, ZeileGleichtDerAusgabeAllerWerte) {
    rechne("--json");
    const Json json = Json::parse(aus);
    rechne("--variiere fs=40 --ergebnis qhs_sum,Stunden_heiss,Heizlast_max,q_d,anz_Heizgrenztemp");
    double heiss = 0;
    for (const Json& monat : json["Monat"])
        heiss += monat["Stunden_heiss"].get<double>();
    EXPECT_EQ(aus.substr(aus.find('\n') + 1), "1,40," + json["qhs_sum"].dump() + "," + kuerzeste(f32(heiss)) +
                                                  "," + json["Heizlast_max"].dump() + "," +
                                                  json["q_d"].dump() + "," +
                                                  json["anz_Heizgrenztemp"].get<std::string>() + ",\r\n");
}

TEST_F(Studie, TeileAneinanderUndFortgesetztesGleichenDemGanzen) {
    EXPECT_EQ(rechne("--plan plan.csv --ausgabe ganz.csv --kerne 1"), 1);
    const std::string ganz = datei("ganz.csv");
    const std::string kopf = ganz.substr(0, ganz.find('\n') + 1);
    EXPECT_EQ(std::ranges::count(ganz, '\n'), 38);
    std::string teile;
    for (const char* teil : {"1/4", "2/4", "3/4", "4/4"}) {
        rechne("--plan plan.csv --ausgabe teil.csv --teil " + std::string(teil));
        EXPECT_TRUE(datei("teil.csv").starts_with(kopf));
        teile += datei("teil.csv").substr(kopf.size());
    }
    EXPECT_EQ(kopf + teile, ganz);

    for (const std::size_t bytes :
         {std::size_t{0}, std::size_t{5}, kopf.size(), ganz.size() / 2, ganz.size() - 1, ganz.size()}) {
        programm.ordner.schreibe("halb.csv", ganz.substr(0, bytes));
        EXPECT_EQ(rechne("--plan plan.csv --ausgabe halb.csv --fortsetzen"), 1);
        EXPECT_EQ(datei("halb.csv"), ganz) << bytes;
        EXPECT_NE(fehler.find("fehlerhafte Zeilen: 3"), std::string::npos) << fehler;
    }
    for (const std::string& fremdes :
         {ganz + "38,1,1,1,1,\r\n", kopf + "2,0.2,\r\n", "Nr,fn\r\n" + ganz, std::string("Brief")}) {
        programm.ordner.schreibe("fremd.csv", fremdes);
        EXPECT_EQ(rechne("--plan plan.csv --ausgabe fremd.csv --fortsetzen"), 1);
        EXPECT_EQ(datei("fremd.csv"), fremdes) << fehler;
        EXPECT_NE(fehler.find("stammt nicht aus dieser Studie"), std::string::npos) << fehler;
    }
}

TEST_F(Studie, AufVollerFestplatteBleibenGanzeZeilen) {
    rechne("--plan plan.csv --ausgabe ganz.csv");
    const std::string ganz = datei("ganz.csv");
    {
        const test::VolleFestplatte voll(ganz.size() / 2);
        EXPECT_EQ(rechne("--plan plan.csv --ausgabe voll.csv"), 1);
    }
    EXPECT_NE(fehler.find("voll.csv: die Ausgabe kann nicht geschrieben werden"), std::string::npos)
        << fehler;
    EXPECT_TRUE(ganz.starts_with(datei("voll.csv")));
    EXPECT_TRUE(datei("voll.csv").ends_with("\r\n"));
    EXPECT_GT(datei("voll.csv").size(), ganz.size() / 2 - 200);
}

/// Breaks off as soon as the first rows are there.
class Abbrecher : public std::stringbuf {
  protected:
    std::streamsize xsputn(const char* text, std::streamsize laenge) override {
        if (++schreibvorgaenge_ == 2) std::raise(SIGINT);
        return std::stringbuf::xsputn(text, laenge);
    }

  private:
    int schreibvorgaenge_ = 0;
};

TEST_F(Studie, NachStrgCSindDieZeilenBisDahinGanz) {
    Abbrecher puffer;
    std::ostream strom(&puffer);
    std::ostringstream fehlertext;
    const auto argv = std::to_array<const char*>({"./velmaris_rechnen", "--ordner", ".", "haus.vel",
                                                  "--variiere", "l=2:50:0.001", "--ergebnis", "qh"});
    EXPECT_EQ(aufrufen(static_cast<int>(argv.size()), argv.data(), strom, fehlertext), 1);
    const std::string text = puffer.str();
    EXPECT_TRUE(text.ends_with(",\r\n"));
    EXPECT_GT(std::ranges::count(text, '\n'), 4000);
    EXPECT_LT(std::ranges::count(text, '\n'), 40000);
    EXPECT_NE(fehlertext.str().find("abgebrochen"), std::string::npos) << fehlertext.str();
}

TEST(Fortschrittszeile, NenntAnteilGeschwindigkeitUndRest) {
    EXPECT_EQ(balkenzeile("d", 1000, 4000, 10),
              "[#######.......................] 25.0 %  1000 / 4000  100 Zeilen/s  noch 0:30");
    EXPECT_EQ(balkenzeile("e", 1, 7200, 1),
              "[..............................] 0.0 %  1 / 7200  1 rows/s  left 1:59:59");
    EXPECT_EQ(balkenzeile("e", 0, 0, 0), "[..............................] 0.0 %  0 / 0");
}

}  // namespace
}  // namespace velmaris
