#pragma once

#include "toolkit/fehler.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// One data row of a station file.
struct Messwerte {
    double Ta = 0;    ///< degC
    double G_Gh = 0;  ///< total radiation on the horizontal, W/m2
    double G_Dh = 0;  ///< diffuse radiation on the horizontal, W/m2
};

/// What a place on earth can have, with room beyond the records; radiation may read a little below 0 at
/// night.
namespace erdgrenzen {
inline constexpr double kaelteste = -95, waermste = 65;                        ///< degC
inline constexpr double kleinste_strahlung = -50, staerkste_strahlung = 1500;  ///< W/m2
inline constexpr double breite = 90, laenge = 180;  ///< degrees on either side of 0
inline constexpr double zeitzone = 14;              ///< hours on either side of 0
}  // namespace erdgrenzen

/// Looks for values in a station file that no place on earth has, and for columns without a number. They are
/// taken as they stand; the user is told. Lines count from 1.
class Klimapruefung {
  public:
    /// Looks at the number in columns 15 to 24 of a line of the head: 2 the latitude, 3 the longitude, 4 the
    /// time zone.
    void kopfzeile(int nummer, std::string_view zeile);

    /// Looks at a data row, whose numbers have been read already. Nearly every row passes at a glance.
    void datenzeile(int nummer, std::string_view zeile, const Messwerte& werte) {
        if (!(moeglich(werte) && endet_in_ziffern(zeile))) genauer(nummer, zeile);
    }

    /// What the user should know about the file of that name; nothing if all is well.
    [[nodiscard]] std::optional<Zweisprachig> warnung(const std::string& datei) const;

  private:
    static bool moeglich(const Messwerte& werte) {
        const double schwaechste = std::min(werte.G_Gh, werte.G_Dh);
        const double staerkste = std::max(werte.G_Gh, werte.G_Dh);
        return werte.Ta >= erdgrenzen::kaelteste && werte.Ta <= erdgrenzen::waermste &&
               schwaechste >= erdgrenzen::kleinste_strahlung && staerkste <= erdgrenzen::staerkste_strahlung;
    }

    /// True if each of the three columns ends in a digit, as a number at the right end does.
    static bool endet_in_ziffern(std::string_view zeile) {
        const auto ziffer = [zeile](std::size_t spalte) {
            return zeile[spalte - 1] >= '0' && zeile[spalte - 1] <= '9';
        };
        return zeile.size() >= 20 && ziffer(10) && ziffer(15) && ziffer(20);
    }

    void genauer(int nummer, std::string_view zeile);
    void merken(int nummer, Zweisprachig befund);

    int zeilen_ = 0;       ///< lines with such a value
    int erste_ = 0;        ///< the first of them
    Zweisprachig befund_;  ///< what it holds
};

}  // namespace velmaris
