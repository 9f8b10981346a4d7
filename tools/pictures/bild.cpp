#include "tools/pictures/bild.h"

#include <cmath>
#include <cstdint>

namespace velmaris::bilder {
Farbe mischung(Farbe a, Farbe b, double anteil) {
    const auto kanal = [anteil](std::uint8_t von, std::uint8_t nach) {
        return static_cast<std::uint8_t>(std::lround(von + anteil * (nach - von)));
    };
    return {kanal(a.r, b.r), kanal(a.g, b.g), kanal(a.b, b.b)};
}

Bild::Bild(const Gitter& gitter, Farbe grund)
    : gitter_(gitter),
      breite_(gitter.breite * gitter.feinheit),
      hoehe_(gitter.hoehe * gitter.feinheit),
      pixel_(static_cast<std::size_t>(breite_) * static_cast<std::size_t>(hoehe_), grund) {}

}  // namespace velmaris::bilder
