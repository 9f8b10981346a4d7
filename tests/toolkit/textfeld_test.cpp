#include "toolkit/textfeld.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Textfeld, NimmtBeimTippenNurErlaubteZeichenBisZurGrenze) {
    struct Fall {
        std::string erlaubt;
        std::size_t hoechstens;
        std::string getippt, text;
    };
    for (const Fall& fall :
         {Fall{"0123456789", 5, "12345", "12345"}, Fall{"0123456789", 5, "1a2-3 4€5", "12345"},
          Fall{"0123456789", 5, "1234567", "12345"}, Fall{"", 3, "ÄÖÜß", "ÄÖÜ"},
          Fall{"", 0, "a b,c", "a b,c"}, Fall{"0123456789,", 0, "", ""}}) {
        Textfeld feld("feld", fall.erlaubt, fall.hoechstens);
        std::string im_handler = "?";
        feld.geaendert = [&] { im_handler = feld.text(); };
        feld.tippe(fall.getippt);
        EXPECT_EQ(feld.text(), fall.text);
        EXPECT_EQ(im_handler, fall.text);
    }
}

TEST(Textfeld, DasProgrammSchreibtOhneHandler) {
    Textfeld feld("feld", "0123456789", 5);
    int handler = 0;
    int ansicht = 0;
    feld.geaendert = [&] { ++handler; };
    feld.bestaetigt = [&] { handler += 10; };
    feld.ansicht = [&] { ++ansicht; };
    feld.schreibe("wie es steht");
    EXPECT_EQ(feld.text(), "wie es steht");
    EXPECT_EQ(handler, 0);
    feld.bestaetige();
    EXPECT_EQ(handler, 10);
    EXPECT_EQ(ansicht, 1);
}

}  // namespace
}  // namespace velmaris
