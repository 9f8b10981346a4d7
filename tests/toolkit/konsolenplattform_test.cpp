#include "toolkit/konsolenplattform.h"

#include "toolkit/fehler.h"

#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <sstream>
#include <stdexcept>

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

}  // namespace
}  // namespace velmaris
