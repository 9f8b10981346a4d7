#include "toolkit/konsolenplattform.h"

#include "toolkit/fehler.h"

#include <array>
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
    const auto zeile = [](const std::function<void()>& stueck) {
        std::ostringstream fehler;
        const bool gelungen = versuchen(fehler, "e", "haus.vel", stueck);
        return gelungen ? "done" + fehler.str() : fehler.str();
    };
    const Zweisprachig schlecht{"schlecht", "bad"}, zeilen{"schlecht", "eins\rzwei\r\ndrei"};
    EXPECT_EQ(zeile([] {}), "done");
    EXPECT_EQ(zeile([&] { throw Dateifehler("h\xE4user/\x1B[m\x07.vel", schlecht, 1, "Ta"); }),
              "h\uFFFDuser/\uFFFD[m\uFFFD.vel, line 1 (Ta): bad\n");
    EXPECT_EQ(zeile([&] { throw Laufzeitfehler(zeilen, "f_gd"); }), "haus.vel: f_gd: eins zwei drei\n");
    EXPECT_EQ(zeile([] { throw std::bad_alloc(); }), "haus.vel: not enough memory\n");
    EXPECT_EQ(zeile([] { throw std::length_error("too\nlong"); }), "haus.vel: too long\n");
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
    for (const auto& [daten, heim, ordner] :
         {std::array{"/d", "/h", "/d/Velmaris"}, {"neben", "/h", "/h/.local/share/Velmaris"}, {"", "", ""}}) {
        ::setenv("XDG_DATA_HOME", daten, 1);
        ::setenv("HOME", heim, 1);
        EXPECT_EQ(Konsolenplattform().datenordner(), ordner);
    }
}
#endif

}  // namespace
}  // namespace velmaris
