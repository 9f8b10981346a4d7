#include "tests/textlage.h"

#include "tests/testprogramm.h"
#include "toolkit/svg_flaeche.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

/// A house whose figures are as large or as small as the inputs allow.
struct Extremhaus {
    const char* name;
    float seite, hoehe;
    std::int16_t geschosse;
    float k, luftwechsel;
    std::int16_t glas;  ///< per cent of the facades
    float Troom, Tueber, intg;
};

constexpr std::array<Extremhaus, 7> extremhaeuser{{
    {"usual", 10, 5.2F, 2, 0.3F, 0.6F, 20, 20, 26, 22},
    {"high open shaft, very warm", 50, 50, 1, 1.5F, 10, 20, 39.9F, 40, 22},
    {"draughty tower", 4, 50, 20, 1.5F, 10, 20, 26, 27, 22},
    {"glass office", 50, 50, 20, 0.1F, 0.2F, 100, 20, 26, 400},
    {"cooled greenhouse", 10, 6, 1, 0.3F, 0.6F, 100, -10, 10, 22},
    {"no demand", 10, 5.2F, 2, 0.01F, 0.01F, 20, -10, 40, 22},
    {"hut", 2, 2, 1, 1.5F, 10, 20, 20, 26, 22},
}};

void einrichten(Projekt& p, const Extremhaus& h) {
    p.l = p.b = h.seite, p.h = h.hoehe, p.ag = h.geschosse;
    p.kwn = p.kws = p.kwo = p.kww = p.kd = p.kk = h.k;
    p.lw = p.infiltration = h.luftwechsel;
    p.fn = p.fs = p.fo = p.fw = h.glas;
    p.gfn = p.gfs = p.gfo = p.gfw = 1;
    p.ran = p.ras = p.rao = p.raw = p.verschn = p.verschs = p.verscho = p.verschw = 0;
    p.Troom = h.Troom, p.Tueber = h.Tueber, p.intg = h.intg;
}

TEST(Diagramme, IhreTexteBleibenAufDerFlaecheUndBeruehrenSichNicht) {
    SvgFlaeche masse(1, 1);
    for (const char* sprache : {"d", "e"}) {
        for (const Extremhaus& haus : extremhaeuser) {
            test::Testprogramm programm(sprache);
            Projekt& p = programm.p();
            einrichten(p, haus);
            for (std::int16_t system = 1; system <= 9; ++system) {
                p.Heizsystem = system;
                p.Uebergabe = p.Energietraeger = 1;
                p.Klimaeffizienz = 0.9F * system - 0.4F;
                programm.haupt->alles_berechnen();
                EXPECT_THAT(test::textfehler(*programm.haupt, masse), testing::IsEmpty())
                    << sprache << ", " << haus.name << ", system " << system;
            }
        }
    }
}

}  // namespace
}  // namespace velmaris
