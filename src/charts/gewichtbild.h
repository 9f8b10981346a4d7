#pragma once

#include "project/c_glob.h"
#include "toolkit/zeichenflaeche.h"

namespace velmaris {

/// A shape of the frame `Traegheit`, in the plane's units of 15 to the pixel; y grows downward.
struct Gewicht {
    double hoehe = 0;
    double oben = 0;
};

/// The stacked weight on its base line at 1500; the second stands on the first with an overlap of 10.
struct Gewichte {
    Gewicht Gewicht1;
    Gewicht Gewicht2;
};

/// The weight for the record's capacity per volume; its heights have no upper limit.
[[nodiscard]] Gewichte gewichte(const Projekt& p);

/// The stacked weight on a base line near the lower edge; what is too high for the surface goes beyond it.
void gewicht_zeichnen(const Projekt& p, Zeichenflaeche& flaeche);

}  // namespace velmaris
