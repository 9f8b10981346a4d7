#include "tests/textlage.h"

#include "tests/testprogramm.h"
#include "toolkit/svg_flaeche.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

void groesse(Projekt& p, float seite, float hoehe, std::int16_t geschosse) {
    p.l = p.b = seite;
    p.h = hoehe;
    p.ag = geschosse;
}

void huelle(Projekt& p, float k, float luftwechsel) {
    p.kwn = p.kws = p.kwo = p.kww = p.kd = p.kk = k;
    p.lw = p.infiltration = luftwechsel;
}

void glas(Projekt& p, std::int16_t anteil) {
    p.fn = p.fs = p.fo = p.fw = anteil;
    p.gfn = p.gfs = p.gfo = p.gfw = 1;
    p.ran = p.ras = p.rao = p.raw = p.verschn = p.verschs = p.verscho = p.verschw = 0;
}

/// Houses whose figures are as large or as small as the inputs allow.
struct Extremhaus {
    const char* name;
    void (*einrichten)(Projekt& p);
};

const std::vector<Extremhaus>& extremhaeuser() {
    static const std::vector<Extremhaus> haeuser{
        {"new project", [](Projekt&) {}},
        {"high open shaft, very warm",
         [](Projekt& p) {
             groesse(p, 50, 50, 1);
             huelle(p, 1.5F, 10);
             p.Tueber = 40;
             p.Troom = 39.9F;
         }},
        {"draughty tower",
         [](Projekt& p) {
             groesse(p, 4, 50, 20);
             huelle(p, 1.5F, 10);
             p.Troom = 26;
         }},
        {"glass office",
         [](Projekt& p) {
             groesse(p, 50, 50, 20);
             glas(p, 100);
             huelle(p, 0.1F, 0.2F);
             p.intg = 400;
         }},
        {"cooled greenhouse",
         [](Projekt& p) {
             groesse(p, 10, 6, 1);
             glas(p, 100);
             p.Troom = -10;
             p.Tueber = 10;
         }},
        {"no demand",
         [](Projekt& p) {
             huelle(p, 0.01F, 0.01F);
             p.Troom = -10;
             p.Tueber = 40;
         }},
        {"hut",
         [](Projekt& p) {
             groesse(p, 2, 2, 1);
             huelle(p, 1.5F, 10);
         }},
    };
    return haeuser;
}

TEST(Diagramme, IhreTexteBleibenAufDerFlaecheUndBeruehrenSichNicht) {
    SvgFlaeche masse(1, 1);
    for (const char* sprache : {"d", "e"}) {
        for (const Extremhaus& haus : extremhaeuser()) {
            test::Testprogramm programm(sprache);
            Projekt& p = programm.p();
            haus.einrichten(p);
            for (std::int16_t system = 1; system <= 9; ++system) {
                p.Heizsystem = system;
                p.Uebergabe = p.Energietraeger = 1;
                programm.haupt->alles_berechnen();
                for (const test::Diagramm& diagramm : test::diagramme(*programm.haupt))
                    EXPECT_THAT(test::textfehler(diagramm, masse), testing::IsEmpty())
                        << sprache << ", " << haus.name << ", system " << system;
            }
        }
    }
}

}  // namespace
}  // namespace velmaris
