#include "toolkit/schriftmasse.h"

#include "toolkit/text.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace velmaris {
namespace {

constexpr unsigned erstes_zeichen = 32;

/// Advance widths of the windows-1252 characters 32 to 255, in thousandths of the em.
using Breitentabelle = std::array<std::uint16_t, 224>;

constexpr Breitentabelle mager{
    278, 278, 355, 556, 556, 889,  667,  191,  333, 333, 389,  584, 278, 333,  278,  278, 556, 556, 556,
    556, 556, 556, 556, 556, 556,  556,  278,  278, 584, 584,  584, 556, 1015, 667,  667, 722, 722, 667,
    611, 778, 722, 278, 500, 667,  556,  833,  722, 778, 667,  778, 722, 667,  611,  722, 667, 944, 667,
    667, 611, 278, 278, 278, 469,  556,  333,  556, 556, 500,  556, 556, 278,  556,  556, 222, 222, 500,
    222, 833, 556, 556, 556, 556,  333,  500,  278, 556, 500,  722, 500, 500,  500,  334, 260, 334, 584,
    0,   556, 0,   222, 556, 333,  1000, 556,  556, 333, 1000, 667, 333, 1000, 0,    611, 0,   0,   222,
    222, 333, 333, 350, 556, 1000, 333,  1000, 500, 333, 944,  0,   500, 667,  278,  333, 556, 556, 556,
    556, 260, 556, 333, 737, 370,  556,  584,  333, 737, 552,  400, 549, 333,  333,  333, 576, 537, 278,
    333, 333, 365, 556, 834, 834,  834,  611,  667, 667, 667,  667, 667, 667,  1000, 722, 667, 667, 667,
    667, 278, 278, 278, 278, 722,  722,  778,  778, 778, 778,  778, 584, 778,  722,  722, 722, 722, 667,
    667, 611, 556, 556, 556, 556,  556,  556,  889, 500, 556,  556, 556, 556,  278,  278, 278, 278, 556,
    556, 556, 556, 556, 556, 556,  549,  611,  556, 556, 556,  556, 500, 556,  500,
};

constexpr Breitentabelle fett{
    278, 333, 474, 556, 556, 889,  722,  238,  333, 333, 389,  584, 278, 333,  278,  278, 556, 556, 556,
    556, 556, 556, 556, 556, 556,  556,  333,  333, 584, 584,  584, 611, 975,  722,  722, 722, 722, 667,
    611, 778, 722, 278, 556, 722,  611,  833,  722, 778, 667,  778, 722, 667,  611,  722, 667, 944, 667,
    667, 611, 333, 278, 333, 584,  556,  333,  556, 611, 556,  611, 556, 333,  611,  611, 278, 278, 556,
    278, 889, 611, 611, 611, 611,  389,  556,  333, 611, 556,  778, 556, 556,  500,  389, 280, 389, 584,
    0,   556, 0,   278, 556, 500,  1000, 556,  556, 333, 1000, 667, 333, 1000, 0,    611, 0,   0,   278,
    278, 500, 500, 350, 556, 1000, 333,  1000, 556, 333, 944,  0,   500, 667,  278,  333, 556, 556, 556,
    556, 280, 556, 333, 737, 370,  556,  584,  333, 737, 552,  400, 549, 333,  333,  333, 576, 556, 278,
    333, 333, 365, 556, 834, 834,  834,  611,  722, 722, 722,  722, 722, 722,  1000, 722, 667, 667, 667,
    667, 278, 278, 278, 278, 722,  722,  778,  778, 778, 778,  778, 584, 778,  722,  722, 722, 722, 667,
    667, 611, 556, 556, 556, 556,  556,  556,  889, 556, 556,  556, 556, 556,  278,  278, 278, 278, 611,
    611, 611, 611, 611, 611, 611,  549,  611,  611, 611, 611,  611, 556, 611,  556,
};

/// Share of the em above the baseline, and height of a line in ems.
constexpr double anteil_oberlaenge = 0.905;
constexpr double anteil_zeile = 1.149;

}  // namespace

double schriftpixel(const Schrift& schrift) {
    return schrift.groesse * 96 / 72;
}

double schriftbreite(std::string_view utf8, const Schrift& schrift) {
    const Breitentabelle& tabelle = schrift.fett ? fett : mager;
    double tausendstel = 0;
    for (const char zeichen : nach_windows1252(utf8)) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (byte >= erstes_zeichen) tausendstel += tabelle[byte - erstes_zeichen];
    }
    return tausendstel / 1000 * schriftpixel(schrift);
}

double schrifthoehe(const Schrift& schrift) {
    return std::round(anteil_zeile * schriftpixel(schrift));
}

double oberlaenge(const Schrift& schrift) {
    return std::round(anteil_oberlaenge * schriftpixel(schrift));
}

}  // namespace velmaris
