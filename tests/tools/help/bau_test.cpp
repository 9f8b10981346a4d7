#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "tools/help/chmprojekt.h"
#include "tools/help/seitenbau.h"
#include "tools/help/tabelle.h"
#include "tools/help/zeitstempel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris::hilfe {
namespace {

using testing::HasSubstr;

std::string quelle(const std::string& titel, const std::string& stichworte, const std::string& rumpf) {
    return R"(<html><head><meta name="keywords" content=")" + stichworte + "\"><title>" + titel +
           "</title></head><body>" + rumpf + "</body></html>";
}

/// A help of three pages in two chapters.
class Hilfebau : public testing::Test {
  protected:
    Hilfebau() {
        ordner.schreibe("inhalt.txt", "index\n#Ebenen | Planes\nTuer\r\n Dach\n");
        ordner.schreibe("d/index.html", quelle("Start", "Anfang", "<!-- inhalt --><!-- blaettern -->"));
        ordner.schreibe("d/Tuer.html", quelle("Tür", "Überstand;Zarge; Öffnung ;Maß", "<!-- blaettern -->"));
        ordner.schreibe("d/Dach.html", quelle("Dach", "Traufe; Änderung; Mast; Oase", "<!-- blaettern -->"));
    }

    [[nodiscard]] Inhalt gelesen() const { return inhalt_lesen(ordner.pfad(), "d"); }

    [[nodiscard]] std::string gebaut(std::size_t seite) const {
        const Inhalt inhalt = gelesen();
        return seite_bauen(inhalt, *alle_seiten(inhalt).at(seite), "d");
    }

    test::Testordner ordner;
};

TEST_F(Hilfebau, OrdnetDieSeitenNachDemInhalt) {
    EXPECT_THAT(gelesen().at(1).seiten.at(0).stichworte,
                testing::ElementsAre("Überstand", "Zarge", "Öffnung", "Maß"));
    const std::string objekt = R"(<li><object type="text/sitemap"><param name="Name" value=")";
    EXPECT_THAT(chm_inhalt(gelesen()), HasSubstr(R"(<param name="Local" value="index.html"></object>)"
                                                 "\n" +
                                                 objekt + "Ebenen\"></object>\n<ul>\n" + objekt +
                                                 R"(Tür"><param name="Local" value="Tuer.html"></object>)"));
    EXPECT_THAT(chm_projekt(gelesen(), "d"),
                HasSubstr("Language=0x407 Deutsch (Deutschland)\nTitle=Velmaris Hilfe\n\n[FILES]\n"
                          "index.html\nTuer.html\nDach.html\nstil.css\n"));
    EXPECT_THAT(gebaut(0), HasSubstr("<p><b>Ebenen</b></p>\n<ul>\n<li><a href=\"Tuer.html\">Tür</a></li>\n"
                                     "<li><a href=\"Dach.html\">Dach</a></li>\n</ul>"));
    EXPECT_THAT(gebaut(1), HasSubstr(">Start</a> &nbsp;|&nbsp; <a href=\"index.html\">Inhalt</a>"));
    EXPECT_THAT(gebaut(1), HasSubstr("<a href=\"Dach.html\">Dach</a> &raquo;"));
    EXPECT_THAT(gebaut(2), testing::Not(HasSubstr("&raquo;")));
}

TEST(Zeitstempel, NurDieZweiBekanntenVerschwinden) {
    const std::string vor = "ITSF............", mitte = "...\3";
    const std::string system("\3\0\0\0\n\0\4\0", 8), leer(4, '\0');
    EXPECT_EQ(ohne_zeitstempel(vor + "zeit" + mitte + system + "ZEIT" + "ende"),
              vor + leer + mitte + system + leer + "ende");
    for (const std::string& fremd : {vor + "zeit" + mitte, vor + "zeit" + system + "ZEI",
                                     "PK" + vor + system + "ZEIT", vor + "zeit" + system + "ZEIT" + system})
        EXPECT_THROW(ohne_zeitstempel(fremd), Laufzeitfehler) << fremd;
}

TEST_F(Hilfebau, ReihtStichworteNachDemAlphabetDerLeser) {
    std::string index = chm_stichworte(gelesen());
    for (const char* wort :
         {"Änderung", "Anfang", "Maß", "Mast", "Oase", "Öffnung", "Traufe", "Überstand", "Zarge"}) {
        const std::size_t stelle = index.find(wort);
        ASSERT_NE(stelle, std::string::npos) << wort;
        index.erase(0, stelle);
    }
}

TEST_F(Hilfebau, MeldetWasNichtStimmt) {
    const auto meldung = [&](const std::string& seite, const std::string& text) {
        ordner.schreibe("d/" + seite + ".html", text);
        try {
            (void)gebaut(2);
            return std::string("accepted");
        } catch (const Laufzeitfehler& fehler) {
            return fehler.text("e");
        }
    };
    for (const char* rumpf : {"<!-- blättern -->", "<!---->", "<!-->", "<!-- inhalt offen"})
        EXPECT_THAT(meldung("Dach", quelle("Dach", "Dach", rumpf)), HasSubstr("unknown mark")) << rumpf;
    EXPECT_THAT(meldung("Dach", quelle("Dach", "Dach", "<!-- eingaben A_Heizen -->")),
                HasSubstr("no scroll fields"));
    EXPECT_THAT(meldung("Dach", quelle("Dach", "Dach", "<!-- erklaerung l_sb -->")), HasSubstr("no input"))
        << "of this page";
    EXPECT_THAT(meldung("Fremd", quelle("Fremd", "fremd", "")),
                HasSubstr("Fremd.html: is not in the table of contents"));
    EXPECT_THAT(meldung("Dach", "<title>Dach</title>"), HasSubstr("content=\" is missing"));
}

}  // namespace
}  // namespace velmaris::hilfe
