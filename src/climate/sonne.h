#pragma once

namespace velmaris {

/// Place and sun of a station, as all routines here need them.
struct Standort {
    float Breite = 0;            ///< latitude, radians, north positive
    float Laengenkorrektur = 0;  ///< longitude (west positive) minus 15 times the zone, degrees
};

/// Arc cosine for -1 < x < 1 as atan(-x / sqrt(1 - x^2)) + 1.5708, radians.
[[nodiscard]] double arccos(double x);

/// Declination of the sun on day n (1..365), radians, by Cooper's formula, with the digits of the plane and
/// the zenith routines. Source: P. I. Cooper, "The absorption of radiation in solar stills", Solar Energy 12
/// (1969), 333-346.
[[nodiscard]] double deklination(int n);

/// Equation of time on day n, minutes. Source: J. A. Duffie, W. A. Beckman, "Solar Engineering of Thermal
/// Processes" (1980), with B = 360 (n - 81) / 364.
[[nodiscard]] double zeitgleichung(int n);

/// The way from the clock to the sun on day n at a place.
class Sonnenuhr {
  public:
    Sonnenuhr(int n, float Laengenkorrektur);

    /// Hour angle at the clock time t (hours), radians, noon 0, afternoon positive.
    [[nodiscard]] double stundenwinkel(double t) const;

  private:
    double vorsprung_;  ///< solar time minus clock time, hours
};

/// The sun of one day, in clock hours.
struct Sonnentag {
    double SA = 0;  ///< sunrise
    float SU = 0;   ///< sunset
};

/// Sunrise and sunset of day n. On polar days they are 12 hours from noon, in the polar night both are noon.
/// The longitude correction enters with the sign opposite to that of the solar time; this belongs to the
/// model.
[[nodiscard]] Sonnentag sonnentag(const Standort& ort, int n);

/// The clock time at which the sun of hour h (1..24) is looked at: the middle of the hour, in the hours of
/// sunrise and sunset the middle of the sunlit part (sunset overrides sunrise).
[[nodiscard]] double probezeit(const Sonnentag& tag, int h);

/// The sun's height over one day: what does not change from hour to hour is worked out once.
class Zenitbahn {
  public:
    Zenitbahn(const Standort& ort, int n);

    /// 1 / cos of the zenith angle at the clock time t, or 0 while the sun is down (cos z not above 0.00001).
    [[nodiscard]] float direktfaktor(double t) const;

  private:
    Sonnenuhr uhr_;
    double cos_delta_;
    double cos_phi_;
    double mittel_;  ///< cos z at six o'clock solar time
};

/// 1 / cos of the sun's zenith angle at the clock time t of day n, or 0 while the sun is down
/// (cos z not above 0.00001).
[[nodiscard]] float direktfaktor_horizontal(const Standort& ort, int n, double t);

/// Share of the direct normal radiation that counts on a plane at the end of hour h of day n: the cosine of
/// the incidence angle (0 if negative) times 1 - (1 - cos)^2.5, which lowers light at flat angles. Azimuth in
/// degrees: 0 south, -90 east, 90 west, 180 north, turned by `orient`; tilt in degrees: 0 horizontal, 90
/// vertical. Source of the incidence angle: Duffie and Beckman, equation for cos theta of a plane turned and
/// tilted at will.
[[nodiscard]] float einfallsfaktor_ebene(const Standort& ort, int n, int h, int orient, double azimut,
                                         double neigung);

}  // namespace velmaris
