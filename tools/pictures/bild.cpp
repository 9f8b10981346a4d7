#include "tools/pictures/bild.h"

#include <cmath>
#include <cstdint>

namespace velmaris::bilder {
namespace {

constexpr int kopfbytes = 54;
constexpr int pixel_je_meter = 3780;  // 96 to the inch

void anhaengen(std::string& bytes, int wert, int anzahl) {
    for (int i = 0; i < anzahl; ++i) {
        bytes.push_back(static_cast<char>(wert >> (8 * i) & 0xFF));
    }
}

void kopf_anhaengen(std::string& bytes, int breite, int hoehe, int bildbytes) {
    bytes += "BM";
    anhaengen(bytes, kopfbytes + bildbytes, 4);
    anhaengen(bytes, 0, 4);
    anhaengen(bytes, kopfbytes, 4);
    anhaengen(bytes, 40, 4);
    anhaengen(bytes, breite, 4);
    anhaengen(bytes, hoehe, 4);
    anhaengen(bytes, 1, 2);
    anhaengen(bytes, 24, 2);
    anhaengen(bytes, 0, 4);
    anhaengen(bytes, bildbytes, 4);
    anhaengen(bytes, pixel_je_meter, 4);
    anhaengen(bytes, pixel_je_meter, 4);
    anhaengen(bytes, 0, 4);
    anhaengen(bytes, 0, 4);
}

}  // namespace

Farbe mischung(Farbe a, Farbe b, double anteil) {
    const auto kanal = [anteil](std::uint8_t von, std::uint8_t nach) {
        return static_cast<std::uint8_t>(std::lround(von + anteil * (nach - von)));
    };
    return {kanal(a.r, b.r), kanal(a.g, b.g), kanal(a.b, b.b)};
}

Bild::Bild(int breite, int hoehe, Farbe grund)
    : breite_(breite),
      hoehe_(hoehe),
      pixel_(static_cast<std::size_t>(breite) * static_cast<std::size_t>(hoehe), grund) {}

std::string Bild::bmp() const {
    const int zeilenbytes = (breite_ * 3 + 3) / 4 * 4;
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(kopfbytes) +
                  static_cast<std::size_t>(zeilenbytes) * static_cast<std::size_t>(hoehe_));
    kopf_anhaengen(bytes, breite_, hoehe_, zeilenbytes * hoehe_);
    for (int y = hoehe_ - 1; y >= 0; --y) {
        for (int x = 0; x < breite_; ++x) {
            const Farbe farbe = pixel(x, y);
            anhaengen(bytes, farbe.b | farbe.g << 8 | farbe.r << 16, 3);
        }
        anhaengen(bytes, 0, zeilenbytes - breite_ * 3);
    }
    return bytes;
}

}  // namespace velmaris::bilder
