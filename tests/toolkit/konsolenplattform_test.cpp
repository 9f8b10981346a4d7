#include "toolkit/konsolenplattform.h"

#include "toolkit/fehler.h"

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>

namespace velmaris {
namespace {

TEST(Konsolenplattform, JederFehlerNenntSeineDateiInEinerZeile) {
    struct Fall {
        std::function<void()> stueck;
        const char* zeile;
    };
    for (const Fall& fall : {Fall{[] {}, ""},
                             Fall{[] {
                                      throw Dateifehler("h\xE4user/\x1B[m\x07.vel", {"schlecht", "bad"});
                                  },
                                  "h\uFFFDuser/\uFFFD[m\uFFFD.vel: bad\n"},
                             Fall{[] {
                                      throw Laufzeitfehler({"schlecht", "eins\rzwei\r\ndrei"}, "f_gd");
                                  },
                                  "haus.vel: f_gd: eins zwei drei\n"},
                             Fall{[] { throw std::bad_alloc(); }, "haus.vel: not enough memory\n"},
                             Fall{[] { throw std::length_error("too\nlong"); }, "haus.vel: too long\n"}}) {
        std::ostringstream fehler;
        EXPECT_EQ(versuchen(fehler, "e", "haus.vel", fall.stueck), *fall.zeile == '\0');
        EXPECT_EQ(fehler.str(), fall.zeile);
    }
}

TEST(Konsolenplattform, VerneintJedeFrageUndBleibtStumm) {
    Konsolenplattform plattform;
    testing::internal::CaptureStderr();
    EXPECT_EQ(plattform.melde({.text = "\neins\rzwei"}), Antwort::ok);
    EXPECT_EQ(plattform.melde({.text = "?", .knoepfe = Knoepfe::ja_nein}), Antwort::nein);
    EXPECT_EQ(plattform.melde({.text = "?", .knoepfe = Knoepfe::ja_nein_abbrechen}), Antwort::abbrechen);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), " eins zwei\n?\n?\n");
    EXPECT_FALSE(plattform.eingabe("?", "", "vorgabe") || plattform.dateidialog({}));
    EXPECT_EQ(plattform.zufall(), 0) << "the first of all stations";
}

#ifdef __linux__
TEST(Konsolenplattform, DatenordnerNachDerUmgebung) {
    struct Fall {
        const char *daten, *heim, *ordner;
    };
    for (const Fall& fall : {Fall{"/d", "/h", "/d/Velmaris"}, Fall{"neben", "/h", "/h/.local/share/Velmaris"},
                             Fall{"", "", ""}}) {
        ::setenv("XDG_DATA_HOME", fall.daten, 1);
        ::setenv("HOME", fall.heim, 1);
        EXPECT_EQ(Konsolenplattform().datenordner(), fall.ordner);
    }
}
#endif

}  // namespace
}  // namespace velmaris
