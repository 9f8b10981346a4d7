#pragma once

#include "toolkit/zeichenflaeche.h"

/// Colours of the bars by what they stand for, of the charts as of the legends beside them.
namespace velmaris::balkenfarben {

inline constexpr Farbe transmission{0, 0, 136};
inline constexpr Farbe lueftung{102, 102, 255};
inline constexpr Farbe heizen{255, 0, 0};
inline constexpr Farbe intern{255, 128, 0};
inline constexpr Farbe solar{255, 255, 0};
inline constexpr Farbe komfort{255, 255, 0};
inline constexpr Farbe kuehlen{0, 0, 255};
inline constexpr Farbe solar_ungenutzt{192, 192, 0};
inline constexpr Farbe intern_ungenutzt{200, 99, 0};
inline constexpr Farbe ueberwaermung{128, 0, 0};
inline constexpr Farbe gradstunden{64, 64, 0};
inline constexpr Farbe endenergie{255, 0, 0};
inline constexpr Farbe endenergie_strom{255, 128, 0};
inline constexpr Farbe primaerenergie{128, 0, 0};
inline constexpr Farbe primaerenergie_strom{192, 64, 0};

}  // namespace velmaris::balkenfarben
