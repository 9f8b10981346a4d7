#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "tools/help/chmprojekt.h"
#include "tools/help/eingabentabelle.h"
#include "tools/help/seitenbau.h"
#include "tools/help/tabelle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris::hilfe {
namespace {

using test::Testordner;
using testing::HasSubstr;

std::string quelle(const std::string& titel, const std::string& stichworte, const std::string& rumpf = "") {
    return R"(<html><head><meta name="keywords" content=")" + stichworte + "\"><title>" + titel +
           "</title></head><body>" + rumpf + "</body></html>";
}

/// A help of three pages in two chapters.
class Hilfebau : public testing::Test {
  protected:
    Hilfebau() {
        ordner.schreibe("inhalt.txt", "index\n# Ebenen | Planes\nTuer\r\nDach\n");
        ordner.schreibe("d/index.html", quelle("Start", "Anfang", "<!-- inhalt --><!-- blaettern -->"));
        ordner.schreibe("d/Tuer.html", quelle("Tür", "Überstand; Zarge; Öffnung", "<!-- blaettern -->"));
        ordner.schreibe("d/Dach.html", quelle("Dach", "Traufe; Änderung", "<!-- blaettern -->"));
    }

    [[nodiscard]] std::string gebaut(const std::string& name) const {
        const Inhalt inhalt = inhalt_lesen(ordner.pfad(), "d");
        for (const Seite* seite : alle_seiten(inhalt)) {
            if (seite->name == name) return seite_bauen(inhalt, *seite, "d");
        }
        return {};
    }

    Testordner ordner;
};

TEST_F(Hilfebau, OrdnetDieSeitenNachDemInhalt) {
    const Inhalt inhalt = inhalt_lesen(ordner.pfad(), "d");
    ASSERT_EQ(inhalt.size(), 2U);
    EXPECT_EQ(inhalt[1].titel, "Ebenen");
    ASSERT_EQ(inhalt[1].seiten.size(), 2U);
    EXPECT_EQ(inhalt[1].seiten[0].titel, "Tür");
    EXPECT_THAT(inhalt[1].seiten[0].stichworte, testing::ElementsAre("Überstand", "Zarge", "Öffnung"));
    const std::string baum = chm_inhalt(inhalt);
    const std::size_t kapitel = baum.find("value=\"Ebenen\"></object>\n<ul>\n");
    EXPECT_NE(kapitel, std::string::npos);
    EXPECT_GT(baum.find("value=\"Tuer.html\""), kapitel);
}

TEST_F(Hilfebau, VerbindetNachbarnUndInhalt) {
    EXPECT_THAT(gebaut("index"),
                HasSubstr("<p><b>Ebenen</b></p>\n<ul>\n<li><a href=\"Tuer.html\">Tür</a></li>\n"
                          "<li><a href=\"Dach.html\">Dach</a></li>\n</ul>"));
    const std::string mitte = gebaut("Tuer");
    EXPECT_THAT(mitte, HasSubstr("&laquo; <a href=\"index.html\">Start</a>"));
    EXPECT_THAT(mitte, HasSubstr("<a href=\"Dach.html\">Dach</a> &raquo;"));
    EXPECT_THAT(gebaut("Dach"), testing::Not(HasSubstr("&raquo;")));
}

TEST_F(Hilfebau, ReihtStichworteNachDemAlphabetDerLeser) {
    std::string index = chm_stichworte(inhalt_lesen(ordner.pfad(), "d"));
    for (const char* wort : {"Änderung", "Anfang", "Öffnung", "Traufe", "Überstand", "Zarge"}) {
        const std::size_t stelle = index.find(wort);
        ASSERT_NE(stelle, std::string::npos) << wort;
        index.erase(0, stelle);
    }
}

TEST_F(Hilfebau, MeldetSeitenDieNichtStimmen) {
    const auto meldung = [&](const char* sprache) {
        try {
            (void)inhalt_lesen(ordner.pfad(), sprache);
            return std::string("accepted");
        } catch (const Dateifehler& fehler) {
            return fehler.text("e");
        }
    };
    ordner.schreibe("d/Fremd.html", quelle("Fremd", "fremd"));
    EXPECT_THAT(meldung("d"), HasSubstr("Fremd.html: is not in the table of contents"));
    EXPECT_THAT(meldung("e"), HasSubstr("index.html: file not found")) << "language without pages";
    ordner.schreibe("d/Dach.html", "<html><head><title>Dach</title></head></html>");
    EXPECT_THAT(meldung("d"), HasSubstr("content=\" is missing"));
}

TEST_F(Hilfebau, MeldetMarkenDieEsNichtGibt) {
    for (const char* rumpf :
         {"<!-- blättern -->", "<!---->", "<!-->", "<!-- offen", "<!-- eingaben A_Heizen -->"}) {
        ordner.schreibe("d/Dach.html", quelle("Dach", "Dach", rumpf));
        EXPECT_THROW((void)gebaut("Dach"), Laufzeitfehler) << rumpf;
    }
}

TEST(HilfeHtml, SchuetztSeineZeichen) {
    EXPECT_EQ(html("Klima & \"Wetter\" < 5 > ä"), "Klima &amp; &quot;Wetter&quot; &lt; 5 &gt; ä");
}

}  // namespace
}  // namespace velmaris::hilfe
