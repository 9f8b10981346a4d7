#include "tests/tools/pictures/kartenprobe.h"

#include "tests/hilfen.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace velmaris::test {
namespace {

std::uint32_t zahl(const std::string& bytes, std::size_t ab, std::size_t anzahl) {
    std::uint32_t wert = 0;
    for (std::size_t i = anzahl; i-- > 0;)
        wert = wert * 256 + static_cast<unsigned char>(bytes.at(ab + i));
    return wert;
}

}  // namespace

std::filesystem::path datenordner() {
    return pfad(VELMARIS_DATEN);
}

Farbe Bitmap::bei(int x, int y) const {
    return pixel.at(static_cast<std::size_t>(y * breite + x));
}

Bitmap grafik(const std::string& name) {
    const std::string bytes = inhalt(pfad(VELMARIS_PROGRAMMORDNER) / "Grafiken" / name);
    const bool passt = bytes.substr(0, 2) == "BM" && zahl(bytes, 2, 4) == bytes.size() &&
                       zahl(bytes, 14, 4) == 40 && zahl(bytes, 26, 2) == 1 && zahl(bytes, 28, 2) == 24 &&
                       zahl(bytes, 30, 4) == 0;
    if (!passt) throw std::runtime_error(name + ": no plain bitmap of 24 bits");
    const std::size_t beginn = zahl(bytes, 10, 4), breite = zahl(bytes, 18, 4), hoehe = zahl(bytes, 22, 4);
    const std::size_t zeile = (breite * 24 + 31) / 32 * 4;
    if (beginn + zeile * hoehe != bytes.size()) throw std::runtime_error(name + ": wrong length");
    Bitmap bild{static_cast<int>(breite), static_cast<int>(hoehe), {}};
    for (std::size_t y = 0; y < hoehe; ++y) {
        for (std::size_t x = 0; x < breite; ++x) {
            const std::uint32_t rgb = zahl(bytes, beginn + (hoehe - 1 - y) * zeile + 3 * x, 3);
            bild.pixel.push_back({static_cast<std::uint8_t>(rgb >> 16),
                                  static_cast<std::uint8_t>(rgb >> 8 & 255),
                                  static_cast<std::uint8_t>(rgb & 255)});
        }
    }
    return bild;
}

std::string farbton(Farbe farbe) {
    std::string kanaele = "rgb";
    std::ranges::stable_sort(kanaele, std::greater(), [farbe](char kanal) {
        return kanal == 'r' ? farbe.r : kanal == 'g' ? farbe.g : farbe.b;
    });
    return kanaele;
}

}  // namespace velmaris::test
