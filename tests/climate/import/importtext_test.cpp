#include "climate/import/importkopf.h"
#include "climate/import/importquelle.h"
#include "climate/import/importschreiber.h"
#include "climate/import/importspalten.h"
#include "climate/import/importzahlen.h"
#include "climate/import/importziel.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

namespace velmaris {
namespace {

using testing::ElementsAre;

using Felder = std::vector<std::string>;

/// The fields of a line from the first to the last one that is there.
Felder felder(const std::function<std::optional<std::string_view>(int)>& stelle) {
    Felder alle;
    while (const auto feld = stelle(static_cast<int>(alle.size()) + 1))
        alle.emplace_back(*feld);
    return alle;
}

TEST(Importzahlen, LesenNurGanzeZahlen) {
    using Fall = std::tuple<std::string, bool, std::optional<double>>;
    for (const auto& [text, komma, wert] :
         {Fall{"12.5", false, 12.5}, Fall{" \t\x01 -3", false, -3}, Fall{"7  ", false, 7},
          Fall{"+.5", false, 0.5}, Fall{"1.5E1", false, 15}, Fall{"12,5", true, 12.5},
          Fall{"12.5", true, 12.5}, Fall{"-0,4", true, -0.4}, Fall{"12,5", false, {}},
          Fall{"1,2,3", true, {}}, Fall{"   ", false, {}}, Fall{"-", false, {}}, Fall{"5x", false, {}},
          Fall{"x5", false, {}}, Fall{"1 2", false, {}}, Fall{"nan", false, {}}, Fall{"1e999", false, {}},
          Fall{std::string("5\0", 2), false, {}}})
        EXPECT_EQ(StringToReal(text, komma), wert) << '"' << text << '"';
}

TEST(Importspalten, TrennzeichenTrennenAuchLeereFelder) {
    using Fall = std::tuple<Trennung, std::string, Felder>;
    const auto tab = Trennung::tabulator, komma = Trennung::komma;
    const std::string lang = "\"" + std::string(2000, 'x');
    for (const auto& [trennung, zeile, erwartet] :
         {Fall{tab, "a\t\tc", {"a", "", "c"}}, Fall{tab, "a\t", {"a", ""}}, Fall{tab, "", {""}},
          Fall{komma, R"(a,"b, c",d)", {"a", "b, c", "d"}}, Fall{komma, R"("a","",c)", {"a", "", "c"}},
          Fall{komma, R"(a , "b,c" ,"d")", {"a ", "b,c", "d"}},
          Fall{komma, R"("""b""",d)", {R"(""b"")", "d"}},
          Fall{komma, R"("a ""b"", c",d)", {R"(a ""b"", c)", "d"}},
          // A quote that no other closes, or within a field, is a character like others.
          Fall{komma, R"("a,b,c)", {"\"a", "b", "c"}}, Fall{komma, R"(a,")", {"a", "\""}},
          Fall{komma, R"(a "b,c" d,e)", {"a \"b", "c\" d", "e"}}, Fall{komma, R"("a" b,c)", {"\"a\" b", "c"}},
          Fall{komma, lang, {lang}}}) {
        const Spaltenteiler teiler(trennung, zeile);
        EXPECT_EQ(felder([&, &z = zeile](int n) { return teiler.stelle(z, n); }), erwartet) << zeile;
        EXPECT_EQ(teiler.spaltenzahl(), static_cast<int>(erwartet.size())) << zeile;
    }
}

TEST(Importspalten, LeerzeichenTrennenNachDerMusterzeile) {
    // Places, counted from 1:    1234567890123456
    const std::string muster = "  12   345  6";
    const auto links = Trennung::linksbuendig, rechts = Trennung::rechtsbuendig;
    using Fall = std::tuple<Trennung, std::string, Felder>;
    for (const auto& [trennung, zeile, erwartet] :
         {Fall{links, "  1    34   56", {"1    ", "34   ", "56"}},
          // A line must reach beyond the first character of its field.
          Fall{links, "  1    34   5", {"1    ", "34   "}}, Fall{links, "  1", {}},
          Fall{rechts, "1234  -345  6", {"1234", "  -345", "  6"}},
          Fall{rechts, "  12   3", {"  12", "   3", ""}}}) {
        const Spaltenlage lage = Spalten_Festlegen(muster + (trennung == rechts ? "  " : ""), trennung);
        EXPECT_EQ(lage.Spaltenzahl, 3);
        const auto stelle = [&, &z = zeile, t = trennung](int n) { return StelleLeer(z, n, lage, t); };
        EXPECT_EQ(felder(stelle), erwartet) << zeile;
    }
}

TEST(Importspalten, SindHoechstensHundert) {
    std::string zeile;
    for (int i = 0; i < 150; ++i)
        zeile += "1,\t ";
    for (const auto trennung :
         {Trennung::linksbuendig, Trennung::rechtsbuendig, Trennung::tabulator, Trennung::komma}) {
        EXPECT_EQ(Spaltenteiler(trennung, zeile).spaltenzahl(), 100);
        EXPECT_TRUE(Spaltenteiler(trennung, zeile).stelle(zeile, 100).has_value());
    }
}

TEST(Importquelle, KenntIhreZeilenUndIhreForm) {
    const Importquelle gemischt(
        "\xEF\xBB\xBF"
        "eins\r\n\nzwei\rhalb\ndrei");
    Felder zeilen;
    for (int n = 1; n <= gemischt.zeilenzahl() + 1; ++n)
        zeilen.emplace_back(gemischt.zeile(n));
    EXPECT_THAT(zeilen, ElementsAre("eins", "", "zwei\rhalb", "drei", ""));
    const auto frei = Quellform::frei, meteonorm = Quellform::meteonorm, epw = Quellform::epw;
    using Fall = std::pair<const char*, Quellform>;
    for (const auto& [text, form] :
         {Fall{"", frei}, Fall{"a\nb\nc\ndy\tTa\tG_Gh\n", meteonorm}, Fall{"a\nb\nc\nTa G_Dh", meteonorm},
          Fall{"a\nb\nc\ndy\tTa\tG_Bh\n", frei}, Fall{"a\nb\nc\nG_Gh\tG_Dh\n", frei},
          Fall{"a\nb\nTa\tG_Gh\n", frei}, Fall{"\xEF\xBB\xBFLOCATION,Bern", epw},
          Fall{"\"LOCATION\",\"Bern\"", epw}, Fall{"LOCATION;Bern", frei}, Fall{"LOCATION", frei},
          Fall{"Location,Bern", frei}})
        EXPECT_EQ(quellform(Importquelle(text)), form) << text;
}

TEST(Importquelle, ZeigtJedesByte) {
    EXPECT_EQ(quelltext("Z\xFCrich") + quelltext("Zürich"), "ZürichZürich");
    EXPECT_EQ(quelltext(std::string("a\0b\x1F"
                                    "c\td\x7F",
                                    8)),
              "a b c\td ");
    EXPECT_EQ(quelltext("1234567", 5) + quelltext("ÀÀÀ", 5), "12345...À...");
}

TEST(Importkopf, MeteonormNenntDenOrtOhneDasLand) {
    using Fall = std::tuple<std::string, Ortsangaben, std::vector<int>>;
    for (const auto& [text, ort, belegung] :
         {Fall{"\"Bern\"\n46.95,7.43,565,-1\n\ndy\th\tTa\tG_Gh\tG_Dh\n",
               {"Bern", "", "46.95", false, "7.43", false, "1", false},
               {0, 0, 1, 2, 4, 0, 0}},
          Fall{"Lima\n-12.05,-77.05,150,5\n\nG_Bh\tTa\tG_Dh\tG_Gh\tTa2\tG_Gh\n",
               {"Lima", "", "12.05", true, "77.05", true, "5", true},
               {3, 0, 4, 0, 1, 2, 0}},
          // The later of two columns of a name counts, and the seventh column is out of reach.
          Fall{"Ort\n50, 10, 0, -1 , 7\n\nTa\tG_Gh\tx\tx\tx\tG_Dh\tTa\n",
               {"Ort", "", "50", false, "10", false, "1", false},
               {0, 2, 0, 0, 0, 4, 0}},
          Fall{"unknown\n50,10,0,-1\n\nTa G_Gh\n", {"", "", "50", false, "10", false, "1", false}, {2}},
          Fall{"\"\n50\n\nTa G_Gh\n", {"", "", "50", false, "", false, "", true}, {2, 0, 0, 0, 0, 0, 0}}}) {
        const Quellkopf kopf = Meteonorm_Lesen(Importquelle(text));
        EXPECT_EQ(kopf.ort, ort) << text;
        for (std::size_t i = 0; i < belegung.size(); ++i)
            EXPECT_EQ(kopf.spalten(static_cast<int>(i) + 1), belegung[i]) << text << i;
    }
}

TEST(Importkopf, EnergyPlusNenntAllesInDerErstenZeile) {
    using Fall = std::pair<std::string, Ortsangaben>;
    for (const auto& [text, ort] :
         {Fall{"LOCATION, S\xE3o Paulo ,SP,BRA,X,1,-23.62,-46.65,-3.0,803.0\r\n",
               {"São Paulo", "BRA", "23.62", true, "46.65", true, "3.0", true}},
          Fall{R"(LOCATION,"""Bern"" Zoo, Ost","BE, x","CHE","IWEC, 2",066310,"46.92","-7.50",1.0,565.0)",
               {"\"Bern\" Zoo, Ost", "CHE", "46.92", false, "7.50", true, "1.0", false}},
          Fall{"LOCATION, - ,-,UNKNOWN,ECMWF,unknown,45,8,5.5,250",
               {"", "", "45", false, "8", false, "5.5", false}},
          Fall{"LOCATION,Kurz", {"Kurz", "", "", false, "", false, "", false}}}) {
        EXPECT_EQ(Epw_Lesen(Importquelle(text)).ort, ort) << text;
    }
}

TEST(Stationsdatei, ZeilenSindWieVorgeschrieben) {
    using Fall = std::tuple<int, Stundenwerte, const char*>;
    for (const auto& [i, stunde, zeile] :
         {Fall{23, {5, 12, 3}, "    1  5.0   12    3"}, Fall{24, {0.5, 1000, 99.9}, "    2  0.5 1000 99.9"},
          Fall{8759, {-12.3, 123.4, 123.4}, "  365-12.3  123 123.4"},
          // Halves go to the even neighbour: 0.25 to 0.2, 0.35 to 0.4, 2.5 to 2, 3.5 to 4.
          Fall{12, {0.25, 2.5, 0.25}, "    1  0.2    2   .2"},
          Fall{12, {-0.35, 3.5, 0.35}, "    1 -0.4    4   .4"},
          Fall{12, {-0.04, -0.4, -0.04}, "    1  0.0    0    0"},
          Fall{12, {10.04, 9.6, 10}, "    1 10.0   10   10"}})
        EXPECT_EQ(stationszeile(i, stunde), zeile);
}

TEST(Stationsdatei, KopfTraegtDieVorzeichenDerStationsdateien) {
    using Fall = std::pair<Ortsangaben, std::string>;
    for (const auto& [ort, kopf] :
         {Fall{{"Sued", "West", "33,9", true, "70.75", true, "4", true},
               "Sued (West)\r\nBreitengrad:  -33.9\r\nL\xE4ngengrad:    70.75\r\nZeitzone:      4\r\n"},
          Fall{{"\xC3\x96", "N", "0", true, "0", false, "0", false},
               "\xD6 (N)\r\nBreitengrad:   0\r\nL\xE4ngengrad:    0\r\nZeitzone:      0\r\n"}})
        EXPECT_EQ(stationstext(stationsort(ort), Messjahr{}, {}), kopf + "\r\n   dy   Ta G_Gh G_Dh\r\n");
}

TEST(Stationsdatei, DerOrtLiegtAufDerErde) {
    const Ortsangaben gut{"O", "L", "90", true, "180", false, "14", false};
    EXPECT_EQ(stationsort(gut).breite, -90);
    using Fall = std::pair<std::string Ortsangaben::*, std::vector<std::string>>;
    const std::vector<std::string> steuerzeichen{"a\tb", "a\nb", "\x1B[1m", "a\x7F", "\xC2\x85"};
    for (const auto& [feld, schlechte] :
         {Fall{&Ortsangaben::Breitengrad, {"90.1", "-91", "", "x", "1e9"}},
          Fall{&Ortsangaben::Zeitzone, {"15"}}, Fall{&Ortsangaben::Laengengrad, {"180.5"}},
          Fall{&Ortsangaben::Standortname, steuerzeichen}, Fall{&Ortsangaben::Land, steuerzeichen}}) {
        for (const std::string& schlecht : schlechte) {
            Ortsangaben ort = gut;
            ort.*feld = schlecht;
            EXPECT_THROW(static_cast<void>(stationsort(ort)), Importfehler) << schlecht;
        }
    }
    Ortsangaben lang = gut;
    lang.Laengengrad = std::string(41, '1');
    const auto text = [](const Importfehler& fehler) { return fehler.text("e"); };
    EXPECT_THAT([&] { static_cast<void>(stationsort(lang)); },
                testing::Throws<Importfehler>(testing::ResultOf(
                    text, "Longitude: \"" + std::string(40, '1') + "...\" is not between 0 and 180.")));
    EXPECT_EQ(namenshinweis("Zürich (Schweiz)").de, "");
    EXPECT_THAT(namenshinweis("Bern, Zoo (Łódź)").en, testing::ContainsRegex("comma .* character set"));
}

TEST(Stationsdatei, EinFremderZeitzonenwertWirdBemerkt) {
    // Longitude, west of Greenwich or not, time zone, behind Greenwich or not, and the hint. Kashgar, Samoa
    // and Kiribati keep the times without a hint.
    using Fall = std::tuple<const char*, bool, const char*, bool, std::string>;
    for (const auto& [laenge, west, zone, minus, stunden] :
         {Fall{"7.5", false, "1", false, ""}, Fall{"7.5", true, "9", false, " 9.5 hours apart"},
          Fall{"7,5", true, "9,0", false, " 9.5 "}, Fall{"120", false, "8", true, " 8.0 "},
          Fall{"45", false, "0", false, ""}, Fall{"45.3", false, "0", false, " 3.0 "},
          Fall{"76", false, "8", false, ""}, Fall{"171.8", true, "13", false, ""},
          Fall{"157.4", true, "14", false, ""}, Fall{"", true, "9", false, ""},
          Fall{"100", true, "", false, ""}}) {
        const std::string hinweis = zonenhinweis({"O", "L", "50", false, laenge, west, zone, minus}).en;
        EXPECT_EQ(hinweis.empty(), stunden.empty()) << laenge;
        EXPECT_THAT(hinweis, testing::HasSubstr(stunden));
    }
}

TEST(Importziel, NamenGeltenAufJedemSystem) {
    for (const char* gut : {"bern", "Zürich 2020", "a.b", "konstanz", "comet", "klima2", "nulpunkt", "€uro"})
        EXPECT_FALSE(namensfehler(gut).has_value()) << gut;
    for (const char* schlecht :
         {"",    "a/b",      "a\\b", "..",    ".",     "../x", ".versteckt", " x",   "c:x",
          "a*",  "a?",       "a\"b", "<a",    "a>",    "a|b",  "a,b",        "a\nb", "nul",
          "CON", "Com1.alt", "lpt9", "klima", "KLIMA", "Łódź", "日本"})
        EXPECT_TRUE(namensfehler(schlecht).has_value()) << schlecht;
    EXPECT_FALSE(namensfehler(std::string(251, 'a')).has_value());
    EXPECT_TRUE(namensfehler(std::string(252, 'a')).has_value());
    EXPECT_EQ(vorgabename("C:\\Daten\\Wetter\\bern.2020.epw"), "bern.2020");
    EXPECT_EQ(vorgabename("/home/x.y/bern") + vorgabename("C:bern.epw"), "bernbern");
}

}  // namespace
}  // namespace velmaris
