#pragma once

#include <optional>

namespace velmaris {

/// A rectangle of pixels, all four edges included.
struct Pixelkasten {
    int links = 0;
    int oben = 0;
    int rechts = 0;
    int unten = 0;

    friend bool operator==(const Pixelkasten&, const Pixelkasten&) = default;
};

/// The pixel of a coordinate that is a number: the nearest one, a half to the even one. What lies more than
/// 30000 pixels away stays that far.
[[nodiscard]] int pixel(double koordinate);

/// The pixels of the rectangle with these corners, in any order; nothing if one coordinate is not a number.
[[nodiscard]] std::optional<Pixelkasten> pixelkasten(double x1, double y1, double x2, double y2);

/// A line on pixels. A line along an axis covers a rectangle; a slanted one is to be drawn from centre to
/// centre of its first and its last pixel but one.
struct Pixellinie {
    std::optional<Pixelkasten> gerade;  ///< what a line along an axis covers
    int x1 = 0;                         ///< ends, the last one still included
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
};

/// The pixels of a line without its last one, `dicke` pixels thick; nothing for a line of no length or
/// with a coordinate that is not a number.
[[nodiscard]] std::optional<Pixellinie> pixellinie(double x1, double y1, double x2, double y2, int dicke);

}  // namespace velmaris
