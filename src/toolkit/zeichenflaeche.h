#pragma once

#include "toolkit/umriss.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// A colour as red, green and blue, 0 to 255 each.
struct Farbe {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;

    friend constexpr bool operator==(const Farbe&, const Farbe&) = default;
};

/// Width of the edge around letters that have one, pixels.
inline constexpr double hofbreite = 1.5;

namespace farben {
inline constexpr Farbe schwarz{0, 0, 0};
inline constexpr Farbe weiss{255, 255, 255};
inline constexpr Farbe rot{255, 0, 0};
inline constexpr Farbe blau{0, 0, 255};
inline constexpr Farbe gelb{255, 255, 0};
inline constexpr Farbe grau{192, 192, 192};
}  // namespace farben

/// A font by the names that the charts use ("MS Sans Serif", "Arial"); size in points of 96 to the inch.
struct Schrift {
    std::string name = "MS Sans Serif";
    double groesse = 8.25;
    bool fett = false;
    std::optional<Farbe> hof = {};  ///< edge around the letters that sets them off from what lies under them

    friend bool operator==(const Schrift&, const Schrift&) = default;
};

/// The chart surface: coordinates in pixels from the top left, y downward, fractions allowed. A coordinate is
/// rounded to the nearest pixel (a half to the even one) by surfaces that are made of pixels. What has
/// a coordinate that is not a number is not drawn.
/// Implementations: the screen, an SVG file, a recorder for tests.
class Zeichenflaeche {
  public:
    Zeichenflaeche() = default;
    Zeichenflaeche(const Zeichenflaeche&) = delete;
    Zeichenflaeche& operator=(const Zeichenflaeche&) = delete;
    virtual ~Zeichenflaeche() = default;

    /// Width and height in pixels.
    [[nodiscard]] virtual double breite() const = 0;
    [[nodiscard]] virtual double hoehe() const = 0;

    /// The colour that `Cls` clears to.
    [[nodiscard]] virtual Farbe hintergrund() const = 0;

    /// Clears the surface to its background colour.
    virtual void Cls() = 0;

    /// A line of one pixel width without its last pixel; `dicke` in pixels.
    virtual void linie(double x1, double y1, double x2, double y2, Farbe farbe, int dicke = 1) = 0;

    /// The outline of the rectangle with these corners, all four edges included.
    virtual void kasten(double x1, double y1, double x2, double y2, Farbe farbe) = 0;

    /// The filled rectangle with these corners, all four edges included.
    virtual void flaeche(double x1, double y1, double x2, double y2, Farbe farbe) = 0;

    /// A circle, filled if a fill colour is given; a radius of 0 or less draws nothing.
    virtual void kreis(double cx, double cy, double radius, Farbe rand, std::optional<Farbe> fuellung) = 0;

    /// A filled pie with its two radii; angles in radians, counter-clockwise from the right. A radius of 0 or
    /// less draws nothing.
    virtual void sektor(double cx, double cy, double radius, double von, double bis, Farbe farbe) = 0;

    /// Fills the outline with smooth edges and returns true. A surface whose shapes are built pixel by pixel
    /// draws nothing and returns false.
    [[nodiscard]] virtual bool umriss(const Umriss& /*umriss*/, Farbe /*farbe*/) { return false; }

    /// One pixel.
    virtual void punkt(double x, double y, Farbe farbe) = 0;

    /// A text with its top left at (x, y), in the current font.
    virtual void text(double x, double y, std::string_view text, Farbe farbe = farben::schwarz) = 0;

    /// Width and height of a text in pixels, in the current font.
    [[nodiscard]] virtual double textbreite(std::string_view text) const = 0;
    [[nodiscard]] virtual double texthoehe(std::string_view text) const = 0;

    /// Sets the current font.
    virtual void schrift(const Schrift& schrift) = 0;

    /// The colour of a pixel; the background colour outside the surface and on surfaces without pixels.
    [[nodiscard]] virtual Farbe lies_punkt(double x, double y) const = 0;
};

}  // namespace velmaris
