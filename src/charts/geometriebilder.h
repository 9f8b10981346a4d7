#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/zeichenflaeche.h"

#include <string>

namespace velmaris {

/// The numbers of the A/V chart.
struct AVTexte {
    std::string av_anz;        ///< the building's A/V in 1/m, with a blank behind
    double av_oben = 0;        ///< top of that label in pixels of the chart
    std::string AV_Kugel;      ///< A/V of a sphere of the same volume; empty without volume, as the next two
    std::string AV_Wuerfel;    ///< of a cube
    std::string AV_Tetraeder;  ///< of a tetrahedron
};

[[nodiscard]] AVTexte av_texte(const Projekt& p);

/// A/V of the bodies times the edge of a cube of the same volume.
inline constexpr double av_kugel = 4.836;
inline constexpr double av_wuerfel = 6;
inline constexpr double av_tetraeder = 7.2056;

/// Where an A/V times that edge lies on the bar, pixels from the top of the chart.
[[nodiscard]] constexpr double av_hoehe(double av_mal_kante) {
    return 123 - (av_mal_kante - 2.88) / 0.06;
}

/// The A/V chart: a bar from y = 123 upward, 0.06 to the pixel, that compares the building with bodies of the
/// same volume whatever its size.
void av_diagramm_zeichnen(const Projekt& p, Zeichenflaeche& flaeche);

/// The figures around the bar, on a surface of that size: the building's at the height of its value, those of
/// the bodies of the same volume at theirs.
inline constexpr double av_bild_breite = 140;
inline constexpr double av_bild_hoehe = 132;
void av_diagramm_beschriften(const Projekt& p, Zeichenflaeche& flaeche);

/// A/V of the building and of the bodies of the same volume.
[[nodiscard]] Wertetafel av_diagramm_werte(const Projekt& p);

/// The orientation sketch: plan of the house and south arrow, turned by `orient`, around the surface's
/// centre.
void lageplan_zeichnen(const Projekt& p, Zeichenflaeche& flaeche);

}  // namespace velmaris
