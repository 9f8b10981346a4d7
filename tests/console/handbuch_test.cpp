#include "console/handbuch.h"

#include "console/aufruf.h"
#include "console/vervollstaendigung.h"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using testing::HasSubstr;

TEST(Handbuch, JedesWortDesAufrufsStehtInBeidenSprachen) {
    for (const Optionszeile& zeile : worte_des_aufrufs()) {
        EXPECT_NE(zeile.text.de, zeile.text.en) << zeile.name;
        EXPECT_FALSE(zeile.text.de.empty() || zeile.text.en.empty()) << zeile.name;
    }
}

TEST(Handbuch, ZeichenDesSatzprogrammsStehenFuerSichSelbst) {
    const Handbuch handbuch{"prog",
                            {"Zweck", "purpose"},
                            {"prog a\nprog b", "prog"},
                            {{{"TEIL", "PART"}, {{"--x", "N", {".a\\b", "'c-d"}}}}}};
    EXPECT_EQ(handbuchseite(handbuch, "1.0", "d"),
              ".TH prog 1 \"\" \"Velmaris 1.0\"\n.SH BEZEICHNUNG\nprog \\- Zweck\n.SH ÜBERSICHT\n.nf\n"
              "\\fBprog\\fR a\n\\fBprog\\fR b\n.fi\n.SH TEIL\n.TP\n\\fB\\-\\-x\\fR \\fIN\\fR\n\\&.a\\eb\n");
    EXPECT_THAT(handbuchseite(handbuch, "1.0", "e"),
                HasSubstr(".SH PART\n.TP\n\\fB\\-\\-x\\fR \\fIN\\fR\n\\&'c\\-d\n"));
}

TEST(Vervollstaendigung, JederPlatzhalterHatSeineArt) {
    for (const auto& [wert, befehl] : {std::pair("d|e", "_velmaris_worte 'd e'"),
                                       {"2..4", "_velmaris_worte '2 3 4'"},
                                       {"0..1024", ":"},
                                       {"ORDNER", "_velmaris_dateien -d"},
                                       {"DATEI", "_velmaris_dateien -f"},
                                       {"DATEI.vel", "_velmaris_dateien -f 'vel'"},
                                       {"NAMEN", ":"}})
        EXPECT_THAT(vervollstaendigung("prog", {{"-x,--xx", wert, {}}, {"OPERAND", "", {}}}),
                    HasSubstr(std::string("        -x|--xx) ") + befehl + "; return ;;\n"));
}

}  // namespace
}  // namespace velmaris
