#include "tools/pictures/bitmap.h"

#include <algorithm>
#include <cstdint>
#include <map>

namespace velmaris::bilder {
namespace {

constexpr int kopfbytes = 54;
constexpr int pixel_je_meter = 3780;  // 96 to the inch

void anhaengen(std::string& bytes, int wert, int anzahl) {
    for (int i = 0; i < anzahl; ++i) {
        bytes.push_back(static_cast<char>(wert >> (8 * i) & 0xFF));
    }
}

int bgr(Farbe farbe) {
    return farbe.b | farbe.g << 8 | farbe.r << 16;
}

/// How the pixels of a bitmap are stored.
struct Ablage {
    int bits;  ///< of a pixel
    int packung;
    std::vector<Farbe> palette;
    std::string pixel;
};

std::string datei(const Bild& bild, const Ablage& ablage) {
    const int farben = static_cast<int>(ablage.palette.size());
    const int beginn = kopfbytes + 4 * farben;
    const int bildbytes = static_cast<int>(ablage.pixel.size());
    std::string bytes = "BM";
    anhaengen(bytes, beginn + bildbytes, 4);
    anhaengen(bytes, 0, 4);
    anhaengen(bytes, beginn, 4);
    anhaengen(bytes, 40, 4);
    anhaengen(bytes, bild.breite(), 4);
    anhaengen(bytes, bild.hoehe(), 4);
    anhaengen(bytes, 1, 2);
    anhaengen(bytes, ablage.bits, 2);
    anhaengen(bytes, ablage.packung, 4);
    anhaengen(bytes, bildbytes, 4);
    anhaengen(bytes, pixel_je_meter, 4);
    anhaengen(bytes, pixel_je_meter, 4);
    anhaengen(bytes, farben, 4);
    anhaengen(bytes, 0, 4);
    for (const Farbe farbe : ablage.palette)
        anhaengen(bytes, bgr(farbe), 4);
    return bytes + ablage.pixel;
}

/// The colours of a picture, the most frequent ones first.
std::vector<Farbe> farben_nach_haeufigkeit(const Bild& bild) {
    std::map<int, int> haeufigkeit;
    for (int y = 0; y < bild.hoehe(); ++y) {
        for (int x = 0; x < bild.breite(); ++x)
            ++haeufigkeit[bgr(bild.pixel(x, y))];
    }
    std::vector<std::pair<int, int>> farben(haeufigkeit.begin(), haeufigkeit.end());
    std::stable_sort(farben.begin(), farben.end(),
                     [](const auto& l, const auto& r) { return l.second > r.second; });
    std::vector<Farbe> ergebnis;
    for (const auto& [farbe, anzahl] : farben) {
        ergebnis.push_back({static_cast<std::uint8_t>(farbe >> 16 & 255),
                            static_cast<std::uint8_t>(farbe >> 8 & 255),
                            static_cast<std::uint8_t>(farbe & 255)});
    }
    return ergebnis;
}

int abstandsquadrat(Farbe a, Farbe b) {
    const int rot = a.r - b.r, gruen = a.g - b.g, blau = a.b - b.b;
    return rot * rot + gruen * gruen + blau * blau;
}

int naechste(const std::vector<Farbe>& palette, Farbe farbe) {
    const auto naeher = [farbe](Farbe l, Farbe r) {
        return abstandsquadrat(l, farbe) < abstandsquadrat(r, farbe);
    };
    return static_cast<int>(std::min_element(palette.begin(), palette.end(), naeher) - palette.begin());
}

/// The most frequent colours that can be told apart. Smooth edges keep a few shades only, so runs get longer.
std::vector<Farbe> palette_waehlen(const std::vector<Farbe>& farben) {
    constexpr std::size_t hoechstens = 256;
    constexpr int gleich = 10;
    std::vector<Farbe> palette;
    for (const Farbe farbe : farben) {
        const bool neu = std::ranges::none_of(
            palette, [farbe](Farbe f) { return abstandsquadrat(f, farbe) < gleich * gleich; });
        if (neu && palette.size() < hoechstens) palette.push_back(farbe);
    }
    return palette;
}

/// Appends a row as pairs of a number of pixels and their colour, and the mark of its end.
void zeile_packen(std::string& bytes, const std::vector<int>& zeile) {
    constexpr std::ptrdiff_t laengster = 255;
    for (auto beginn = zeile.begin(); beginn != zeile.end();) {
        const auto ende = std::find_if(beginn, beginn + std::min(laengster, zeile.end() - beginn),
                                       [&](int farbe) { return farbe != *beginn; });
        anhaengen(bytes, static_cast<int>(ende - beginn), 1);
        anhaengen(bytes, *beginn, 1);
        beginn = ende;
    }
    anhaengen(bytes, 0, 2);
}

}  // namespace

std::string bitmap(const Bild& bild) {
    const int zeilenbytes = (bild.breite() * 3 + 3) / 4 * 4;
    Ablage ablage{24, 0, {}, {}};
    ablage.pixel.reserve(static_cast<std::size_t>(zeilenbytes) * static_cast<std::size_t>(bild.hoehe()));
    for (int y = bild.hoehe() - 1; y >= 0; --y) {
        for (int x = 0; x < bild.breite(); ++x)
            anhaengen(ablage.pixel, bgr(bild.pixel(x, y)), 3);
        anhaengen(ablage.pixel, 0, zeilenbytes - bild.breite() * 3);
    }
    return datei(bild, ablage);
}

std::string gepackte_bitmap(const Bild& bild) {
    constexpr int rle8 = 1;
    const std::vector<Farbe> farben = farben_nach_haeufigkeit(bild);
    Ablage ablage{8, rle8, palette_waehlen(farben), {}};
    std::map<int, int> nummern;
    for (const Farbe farbe : farben)
        nummern[bgr(farbe)] = naechste(ablage.palette, farbe);
    std::vector<int> zeile(static_cast<std::size_t>(bild.breite()));
    for (int y = bild.hoehe() - 1; y >= 0; --y) {
        for (int x = 0; x < bild.breite(); ++x)
            zeile[static_cast<std::size_t>(x)] = nummern.at(bgr(bild.pixel(x, y)));
        zeile_packen(ablage.pixel, zeile);
    }
    anhaengen(ablage.pixel, 0x100, 2);
    return datei(bild, ablage);
}

}  // namespace velmaris::bilder
