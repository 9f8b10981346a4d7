#include "console/auftrag.h"

#include "console/ausgabe_json.h"
#include "console/zusammenfassung.h"
#include "tests/console/konsole.h"
#include "tests/volle_festplatte.h"
#include "toolkit/text.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using test::inhalt;
using test::Konsole;
using testing::AllOf;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Konsole, RichtigeUndFalscheAufrufe) {
    struct Fall {
        int status;
        std::string worte, aus, fehler;
    };
    for (const Fall& fall :
         {Fall{0, "haus.vel", "haus.vel\n  Klimastation                      Trier", ""},
          {0, "--json haus.vel", "{\n  \"Datei\": \"haus.vel\"", ""},
          {0, "--json haus.vel haus.vel", "[\n  {\n    \"Datei\": \"haus.vel\"", ""},
          {0, "haus.vel --bericht-seite 7", "VELMaris \n", ""},
          {0, "--neu a.vel --sprache e a.vel", "a.vel\n  climate station", ""},
          {0, "haus.vel --csv -", "Name,Kurz,Tage [d],", ""},
          {0, "haus.vel --csv m.csv --json", "{", ""},
          {0, "--sprache e haus.vel haus.vel --csv-stunden -", "Datei,Monat,Tag,Stunde,Ta [°C],", ""},
          {0, "--help", "velmaris_rechnen - Heiz", ""},
          {1, "alt.vel haus.vel", "haus.vel", "alt.vel: keine gültige Velmaris-Datendatei"},
          {1, "kurz.vel --neu kein/neu.vel", "", "kein/neu.vel: "},
          {1, "--json fehlt.vel", "", "fehlt.vel: Datei nicht gefunden\n"},
          {1, "--json fehlt.vel haus.vel --sprache e", "[\n  {", "fehlt.vel: file not found\n"},
          {1, "haus.vel --bericht kein/b.rtf", "", "kein/b.rtf: "},
          {1, "haus.vel --diagramme haus.vel --sprache e", "", "haus.vel: the folder cannot be made\n"},
          {2, "", "", "PROJEKT: kein Projekt"},
          {2, "--unbekannt", "", "The following argument was not expected"},
          {2, "--sprache f haus.vel", "", "--sprache: f not in"},
          {2, "haus.vel a.vel --temperaturen x", "", "PROJEKT: --temperaturen"},
          {2, "haus.vel a.vel --speichern x", "", "PROJEKT: --temperaturen"},
          {2, "haus.vel a.vel --diagramme x", "", "PROJEKT: --temperaturen"},
          {2, "haus.vel a.vel --bericht x", "", "PROJEKT: --temperaturen"},
          {2, "haus.vel a.vel --bericht-seite 1", "", "PROJEKT: --temperaturen"},
          {2, "--neu x --json", "", "PROJEKT: kein Projekt"},
          {2, "--neu x --bericht y", "", "PROJEKT: kein Projekt"},
          {2, "--neu x --csv y", "", "PROJEKT: kein Projekt"},
          {2, "--neu x --csv-stunden y", "", "PROJEKT: kein Projekt"},
          {2, "haus.vel --csv - --json", "",
           "--csv: hat dasselbe Ziel wie / goes to the same place as --json"},
          {2, "haus.vel --csv - --csv-stunden -", "", "--csv-stunden: hat dasselbe Ziel"},
          {2, "haus.vel --csv - --bericht-seite 1", "", "--csv: hat dasselbe Ziel"},
          {2, "haus.vel --csv x --csv-stunden ./x", "", "--csv-stunden: hat dasselbe Ziel"},
          {2, "haus.vel --csv x --temperaturen x", "", "--temperaturen: hat dasselbe Ziel"},
          {2, "haus.vel --bericht klima/../x --csv x", "", "--bericht: hat dasselbe Ziel"},
          {2, "haus.vel --neu x --csv x", "", "--csv: hat dasselbe Ziel"},
          {2, "haus.vel --speichern x --csv x", "", "--csv: hat dasselbe Ziel"},
          {2, "haus.vel --csv-stunden haus.vel", "", "--csv-stunden: hat dasselbe Ziel"},
          {2, "haus.vel --bericht-seite 0", "", "--bericht-seite: "},
          {2, "haus.vel --bericht-seite 8", "", "--bericht-seite: "},
          {2, "haus.vel --bericht-seite 1 --json", "", "--json excludes --bericht-seite"},
          {2, "--import alt.vel", "", "--import requires --name"},
          {2, "haus.vel --name x", "", "--name requires --import"},
          {2, "haus.vel --land x", "", "--land requires --import"},
          {2, "haus.vel --ort x", "", "--ort requires --import"},
          {2, "haus.vel --ersetzen", "", "--ersetzen requires --import"}}) {
        EXPECT_EQ(rufe(fall.worte + (fall.status == 2 ? "" : " --ordner .")), fall.status)
            << fall.worte << fehler;
        for (const auto& [ist, soll] : {std::pair{aus, fall.aus}, {fehler, fall.fehler}})
            EXPECT_TRUE(soll.empty() ? ist.empty() : ist.starts_with(soll)) << fall.worte << "\n" << ist;
        EXPECT_EQ(aus.find("[]"), std::string::npos) << fall.worte << ": an empty list of results";
    }
    for (const std::string angabe :
         {"--csv", "--csv-stunden", "--temperaturen", "--neu", "--speichern", "--diagramme", "--bericht",
          "--ordner", "--import", "--name", "--land", "--ort"}) {
        EXPECT_EQ(rufe("haus.vel " + angabe + " --json"), 2);
        EXPECT_THAT(fehler, HasSubstr(angabe + ": der Wert fehlt / the value is missing: --json"));
    }
}

TEST_F(Konsole, SchreibtWasVerlangtWird) {
    EXPECT_EQ(rufe("--ordner . --neu neu.vel neu.vel --speichern kopie.vel --temperaturen jahr.txt "
                   "--bericht b.rtf --diagramme svg"),
              alles_gut);
    EXPECT_EQ(inhalt("neu.vel"), inhalt("haus.vel"));
    EXPECT_EQ(inhalt("kopie.vel"), inhalt("haus.vel"));
    const std::string jahr = inhalt("jahr.txt");
    EXPECT_GT(std::count(jahr.begin(), jahr.end(), '\n'), 8760);
    EXPECT_THAT(inhalt("b.rtf"), StartsWith("{\\rtf"));
    EXPECT_EQ(std::distance(fs::directory_iterator("svg"), {}), 30);
    for (const auto& bild : fs::directory_iterator("svg")) {
        const std::string text = inhalt(bild.path());
        EXPECT_GT(std::count(text.begin(), text.end(), '<'), 3) << bild.path();
    }
    EXPECT_TRUE(fs::exists(pfad("svg/A_Sankey_Sankey_Kühlen.svg")));
    EXPECT_THAT(inhalt("svg/E_Geometrie_AV_Picture.svg"), HasSubstr("0 0 140 132\""));
    EXPECT_THAT(inhalt("svg/E_Geometrie_Picture1.svg"), HasSubstr("0 0 80 80\""));
    EXPECT_THAT(inhalt("svg/E_Energie_Picture2.svg"), HasSubstr("0 0 80 60\""));
    EXPECT_THAT(inhalt(pfad("svg/E_Energie_Monatsübersicht_Energieträger.svg")), HasSubstr("0 0 330 118\""));
}

// A cube of 10 m without ground: V = 1000, A/V = 0.6 by hand; the bar shows A/V times the edge from 2.88 on,
// in steps of 0.06, and its words stand at the heights of the bodies.
TEST_F(Konsole, DasAVBildBeschriftetDenBalken) {
    auto zeilen = test::projektzeilen(programm.p());
    zeilen[3] = " 10";
    programm.ordner.schreibe("wuerfel.vel", test::projekttext(zeilen));
    ASSERT_EQ(rufe("wuerfel.vel --ordner . --diagramme svg"), 0);
    const std::string bild = inhalt("svg/E_Geometrie_AV_Picture.svg");
    EXPECT_THAT(bild, HasSubstr("<path fill=\"#f0f0f0\""));
    EXPECT_THAT(bild, HasSubstr("x=\"58\" y=\"54.91\" font-size=\"11\">0.72 Tetraeder<"));
    EXPECT_THAT(bild, HasSubstr("x=\"58\" y=\"75\" font-size=\"11\">0.60 Würfel<"));
    EXPECT_THAT(bild, HasSubstr("x=\"58\" y=\"94.4\" font-size=\"11\">0.48 Kugel<"));
    EXPECT_THAT(bild, ContainsRegex("x=\"17.54\" y=\"[0-9.]+\" font-size=\"11\">0.60 <"))
        << "ends at the bar";
}

TEST_F(Konsole, DieZusammenfassungNenntIhreGroessen) {
    Projekt& p = programm.p();
    p.Datei = "a\tb.vel";
    p.f_gd = 101.04F;
    p.f_nutz = 200;
    p.v_geb = 303.33F;
    p.f_gf = 40.4F;
    p.AV = 0.505F;
    p.tau = 36000 * 6.06F;
    p.qh = 7007.4F;
    p.qhs_sum = 80.8F;
    p.Heizlast_max = 9.09F;
    p.Kuehllast_max = 10.1F;
    p.q_HE_Energietraeger = 11.1F;
    p.q_HE_Strom = 12.2F;
    p.q_PE_Energietraeger = 13.3F;
    p.q_PE_Strom = 14.4F;
    for (int m = 1; m <= 12; ++m) {
        p.Monat(m).Stunden_kalt = 100;
        p.Monat(m).Stunden_komfort = 20;
        p.Monat(m).Stunden_heiss = static_cast<std::int16_t>(m);
        p.Monat(m).Kuehlbedarf = 250.25F;
    }
    const std::string erwartet =
        "a\uFFFDb.vel\n"
        "  Klimastation                      Trier (Deutschland)\n"
        "\nGebäude\n"
        "  Grundfläche                              101.0 m²\n"
        "  Nutzfläche                               200.0 m²\n"
        "  Gebäudevolumen                           303.3 m³\n"
        "  Fensterfläche                             40.4 m²\n"
        "  A/V - Verhältnis                          0.50 1/m\n"
        "  Zeitkonstante                             60.6 h\n"
        "\nHeizen und Kühlen\n"
        "  Heizwärmebedarf                           7007 kWh/a\n"
        "                                            80.8 kWh/(m² a)\n"
        "  Kühlbedarf                                3003 kWh/a\n"
        "                                            15.0 kWh/(m² a)\n"
        "  Heizstunden                               1200 h\n"
        "  Nullenergiestunden                         240 h\n"
        "  Kühlstunden                                 78 h\n"
        "  Maximale Heizlast                          9.1 kW\n"
        "  Maximale Kühllast                         10.1 kW\n"
        "\nEndenergie\n"
        "  Heizöl                                    11.1 kWh/(m² a)\n"
        "  Hilfsenergie (Strom)                      12.2 kWh/(m² a)\n"
        "\nPrimärenergie\n"
        "  Heizöl                                    13.3 kWh/(m² a)\n"
        "  Hilfsenergie (Strom)                      14.4 kWh/(m² a)\n";
    EXPECT_EQ(zusammenfassung(*programm.haupt), erwartet);
}

/// The numbers of an object under these names.
std::vector<float> zahlen(const Json& objekt, const std::string& namen) {
    std::istringstream rest(namen);
    std::vector<float> werte;
    for (std::string name; rest >> name;)
        werte.push_back(objekt.at(name).get<float>());
    return werte;
}

TEST_F(Konsole, JsonNenntJedeGroesseBeiIhremNamen) {
    Projekt& p = programm.p();
    p.Monat(12).Kuehl_lueft = 120.5F;
    const Json json = als_json(*programm.haupt);
    EXPECT_THAT(zahlen(json,
                       "l kww gfs fs orient f_dach_flach f_nf f_sf v_geb tau qh qsol qi qtr qinf "
                       "Fenstergewinn_S q_PE_Strom"),
                ElementsAre(p.l, p.kww, p.gfs, p.fs, p.orient, p.f_dach_flach, p.f_nf, p.f_sf, p.v_geb, p.tau,
                            p.qh, p.qsol, p.qi, p.qtr, p.qinf, p.Fenstergewinn_S, p.q_PE_Strom));
    for (const int m : {1, 12}) {
        const Monatswerte& monat = p.Monat(m);
        EXPECT_THAT(zahlen(json["Monat"][static_cast<std::size_t>(m - 1)],
                           "Tmittel Qt Qv Qs_genutzt Qh Strahlung_S Stunden_kalt Kuehl_lueft"),
                    ElementsAre(monat.Tmittel, monat.Qt, monat.Qv, monat.Qs_genutzt, monat.Qh,
                                monat.Strahlung_S, monat.Stunden_kalt, monat.Kuehl_lueft));
        EXPECT_EQ(json["Monat"][static_cast<std::size_t>(m - 1)]["Name"], monat.Name);
    }
    const Kennwerte& werte = programm.haupt->e_energie.kennwerte();
    EXPECT_THAT(zahlen(json, "q_ce q_d q_s e_g q_d_he q_s_he q_g_he f_p"),
                ElementsAre(werte.q_ce, werte.q_d, werte.q_s, werte.e_g, werte.q_d_he, werte.q_s_he,
                            werte.q_g_he, werte.f_p));
    EXPECT_EQ(json["Klimadatei"], "trier.met");
    EXPECT_EQ(json["Traegername"], "Heizöl");
    EXPECT_EQ(json["Traegername_e"], "fuel oil");
    EXPECT_EQ(json["anz_tau"], programm.haupt->a_klima.anz_tau.text());
}

TEST_F(Konsole, DateinamenOhneUtf8SchadenDerAusgabeNicht) {
    fs::copy_file("haus.vel", "h\xFC\xFFus.vel");
    EXPECT_EQ(rufe("--ordner . --json h\xFC\xFFus.vel fehlt\xFF.vel"), projekt_fehlerhaft);
    EXPECT_EQ(Json::parse(aus)[0]["Datei"], "h\uFFFD\uFFFDus.vel");
    EXPECT_EQ(fehler, "fehlt\uFFFD.vel: Datei nicht gefunden\n");
}

TEST_F(Konsole, BeiFehlernWirdNichtsGeschrieben) {
    EXPECT_EQ(rufe("kurz.vel --ordner . --speichern neu.vel --temperaturen jahr.txt"), projekt_fehlerhaft);
    EXPECT_THAT(fehler, HasSubstr("kurz.met: "));
    EXPECT_EQ(std::count(fehler.begin(), fehler.end(), '\n'), 1);
    EXPECT_FALSE(fs::exists("neu.vel") || fs::exists("jahr.txt"));
    std::ostringstream text, grund;
    text.setstate(std::ios::badbit);
    EXPECT_EQ(ausfuehren({}, text, grund), projekt_fehlerhaft);
    EXPECT_EQ(grund.str(), "die Ausgabe kann nicht geschrieben werden\n");
}

TEST_F(Konsole, TabellenEnthaltenWasBerechnetWerdenKonnteUndAeltereBleibenGanz) {
    const std::string alle = " --ordner . --csv m.csv --csv-stunden h.csv";
    EXPECT_EQ(rufe("fehlt.vel haus.vel" + alle), projekt_fehlerhaft);
    EXPECT_EQ(fehler, "fehlt.vel: Datei nicht gefunden\n");
    const std::string monate = inhalt("m.csv"), stunden = inhalt("h.csv");
    EXPECT_THAT(monate, HasSubstr("\r\nhaus.vel,Jahr,Jahr,365,"));
    EXPECT_EQ(std::ranges::count(stunden, '\n'), 8761);
    EXPECT_EQ(rufe("fehlt.vel kurz.vel" + alle), projekt_fehlerhaft);
    EXPECT_EQ(inhalt("m.csv"), monate) << "nothing was calculated";
    {
        const test::VolleFestplatte voll(1000);
        EXPECT_EQ(rufe("haus.vel --sprache e" + alle), projekt_fehlerhaft);
        EXPECT_THAT(fehler, AllOf(HasSubstr("m.csv: "), HasSubstr("h.csv: ")));
    }
    EXPECT_EQ(inhalt("m.csv"), monate);
    EXPECT_EQ(inhalt("h.csv"), stunden);
    EXPECT_EQ(rufe("haus.vel --ordner . --csv kein/m.csv --csv-stunden -"), projekt_fehlerhaft);
    EXPECT_THAT(fehler, StartsWith("kein/m.csv: "));
    EXPECT_THAT(aus, StartsWith("Monat,Tag,")) << "the other table is whole";
}

}  // namespace
}  // namespace velmaris
