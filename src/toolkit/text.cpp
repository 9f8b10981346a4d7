#include "toolkit/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmaris {
namespace {

/// The code points of the bytes 128 to 159; the five undefined bytes stand for themselves.
constexpr std::array<char32_t, 32> obere_zeichen{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t ersatzzeichen = 0xFFFD;

void anhaengen(std::string& text, char32_t zeichen) {
    const auto byte = [&text](char32_t wert) { text.push_back(static_cast<char>(wert)); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0 | (zeichen >> 6));
        byte(0x80 | (zeichen & 0x3F));
    } else if (zeichen < 0x10000) {
        byte(0xE0 | (zeichen >> 12));
        byte(0x80 | ((zeichen >> 6) & 0x3F));
        byte(0x80 | (zeichen & 0x3F));
    } else {
        byte(0xF0 | (zeichen >> 18));
        byte(0x80 | ((zeichen >> 12) & 0x3F));
        byte(0x80 | ((zeichen >> 6) & 0x3F));
        byte(0x80 | (zeichen & 0x3F));
    }
}

bool ist_folgebyte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

int folgelaenge(unsigned char erstes) {
    if (erstes < 0x80) return 1;
    if (erstes >= 0xC2 && erstes < 0xE0) return 2;
    if (erstes >= 0xE0 && erstes < 0xF0) return 3;
    if (erstes >= 0xF0 && erstes < 0xF5) return 4;
    return 0;
}

/// Takes one code point from the front; a broken sequence gives the replacement character for one byte.
char32_t naechstes_zeichen(std::string_view& text) {
    const auto erstes = static_cast<unsigned char>(text.front());
    const int laenge = folgelaenge(erstes);
    const auto n = static_cast<std::size_t>(std::max(laenge, 1));
    const bool ganz =
        laenge > 0 && n <= text.size() && std::all_of(text.begin() + 1, text.begin() + laenge, ist_folgebyte);
    if (!ganz) {
        text.remove_prefix(1);
        return ersatzzeichen;
    }
    constexpr std::array<unsigned, 5> maske{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t zeichen = erstes & maske[n];
    for (std::size_t i = 1; i < n; ++i)
        zeichen = (zeichen << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(n);
    return zeichen;
}

char byte_fuer(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<char>(zeichen);
    const auto* const treffer = std::find(obere_zeichen.begin(), obere_zeichen.end(), zeichen);
    if (treffer == obere_zeichen.end()) return '?';
    return static_cast<char>(128 + (treffer - obere_zeichen.begin()));
}

bool ist_steuerzeichen(char32_t z) {
    return z < 0x20 || (z >= 0x7F && z < 0xA0);
}

bool ist_grossbuchstabe(char32_t z) {
    return (z >= U'A' && z <= U'Z') || (z >= 0xC0 && z <= 0xDE && z != 0xD7);
}

bool ist_kleinbuchstabe(char32_t z) {
    return (z >= U'a' && z <= U'z') || (z >= 0xE0 && z <= 0xFE && z != 0xF7);
}

}  // namespace

std::string nach_windows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes.push_back(byte_fuer(naechstes_zeichen(utf8)));
    return bytes;
}

std::string aus_windows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto wert = static_cast<unsigned char>(byte);
        anhaengen(text, wert >= 128 && wert < 160 ? obere_zeichen[wert - 128U] : wert);
    }
    return text;
}

bool in_windows1252(std::string_view utf8) {
    return aus_windows1252(nach_windows1252(utf8)) == utf8;
}

bool ist_utf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t vorher = bytes.size();
        if (naechstes_zeichen(bytes) == ersatzzeichen && vorher - bytes.size() == 1) return false;
    }
    return true;
}

std::string lesbar(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const char32_t zeichen = naechstes_zeichen(bytes);
        anhaengen(text, ist_steuerzeichen(zeichen) ? ersatzzeichen : zeichen);
    }
    return text;
}

bool hat_steuerzeichen(std::string_view utf8) {
    while (!utf8.empty()) {
        const char32_t zeichen = naechstes_zeichen(utf8);
        if (ist_steuerzeichen(zeichen)) return true;
    }
    return false;
}

std::size_t zeichenzahl(std::string_view utf8) {
    return utf8.size() - static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), ist_folgebyte));
}

std::string rechtsbuendig(std::string_view utf8, std::size_t breite) {
    const std::size_t zahl = zeichenzahl(utf8);
    return std::string(zahl < breite ? breite - zahl : 0, ' ').append(utf8);
}

std::string kleinschreiben(std::string_view utf8) {
    std::string klein;
    while (!utf8.empty()) {
        const char32_t zeichen = naechstes_zeichen(utf8);
        anhaengen(klein, ist_grossbuchstabe(zeichen) ? zeichen + 32 : zeichen);
    }
    return klein;
}

std::string grossschreiben(std::string_view utf8) {
    std::string gross;
    while (!utf8.empty()) {
        const char32_t zeichen = naechstes_zeichen(utf8);
        anhaengen(gross, ist_kleinbuchstabe(zeichen) ? zeichen - 32 : zeichen);
    }
    return gross;
}

std::filesystem::path pfad(std::string_view utf8) {
    std::u8string text(utf8.begin(), utf8.end());
    std::replace(text.begin(), text.end(), u8'\\', u8'/');
    return {text};
}

std::string pfadtext(const std::filesystem::path& pfad) {
    const std::u8string text = pfad.u8string();
    return {text.begin(), text.end()};
}

}  // namespace velmaris
