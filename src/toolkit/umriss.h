#pragma once

#include <vector>

namespace velmaris {

/// A closed outline of straight and round pieces. Coordinates are pixels with the first pixel from 0 to 1, so
/// that the centre of pixel x lies at x + 0.5.
struct Umriss {
    /// A corner and the piece that leads to it from the corner before.
    struct Ecke {
        double x = 0;
        double y = 0;
        double radius =
            0;  ///< of an arc below half a circle, counter-clockwise or, if negative, clockwise; 0 for a line
    };

    std::vector<Ecke> ecken;  ///< a straight piece leads from the last one back to the first
};

}  // namespace velmaris
