#include "toolkit/zahlen.h"

#include "toolkit/fehler.h"

#include <array>
#include <charconv>
#include <clocale>
#include <limits>
#include <system_error>

namespace velmaris {
namespace {

char g_dezimalzeichen = '.';

bool ist_ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}
bool ist_blank(char zeichen) {
    return zeichen == ' ' || zeichen == '\t';
}

/// True if `wert` lies exactly in the middle between two numbers of `stellen` decimals. Such a value is
/// (2k + 1) / (2 * 10^stellen); as a binary number it is then an odd multiple of 2^-(stellen + 1), and
/// every such multiple is a middle.
bool ist_mitte(double wert, int stellen) {
    const double skaliert = std::ldexp(std::fabs(wert), stellen + 1);
    if (skaliert >= 0x1p53 || skaliert != std::floor(skaliert)) return false;
    return std::fmod(skaliert, 2.0) == 1.0;
}

double weg_von_null(double wert) {
    const double unendlich = std::numeric_limits<double>::infinity();
    return std::nextafter(wert, wert < 0 ? -unendlich : unendlich);
}

bool nur_nullen(std::string_view text) {
    return text.find_first_of("123456789") == std::string_view::npos;
}

constexpr int hoechstens_stellen = 7;

/// Digits and decimal exponent of d.dddddd x 10^exponent, without zeros at the end.
struct Ziffernfolge {
    std::string ziffern;
    int exponent = 0;
};

Ziffernfolge ziffernfolge(double betrag) {
    std::array<char, 32> puffer{};
    auto* const ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), betrag,
                                     std::chars_format::scientific, hoechstens_stellen - 1)
                           .ptr;
    const std::string_view text(puffer.data(), static_cast<std::size_t>(ende - puffer.data()));
    const std::size_t e = text.find('e');
    Ziffernfolge folge;
    folge.ziffern = std::string(text.substr(0, 1)) + std::string(text.substr(2, e - 2));
    while (folge.ziffern.size() > 1 && folge.ziffern.back() == '0')
        folge.ziffern.pop_back();
    const std::size_t vorzeichen = text[e + 1] == '+' ? 1 : 0;
    std::from_chars(text.data() + e + 1 + vorzeichen, ende, folge.exponent);
    return folge;
}

std::string ohne_exponent(const Ziffernfolge& f) {
    if (f.exponent < 0) return "." + std::string(static_cast<std::size_t>(-f.exponent - 1), '0') + f.ziffern;
    const auto vor = static_cast<std::size_t>(f.exponent) + 1;
    if (f.ziffern.size() <= vor) return f.ziffern + std::string(vor - f.ziffern.size(), '0');
    return f.ziffern.substr(0, vor) + "." + f.ziffern.substr(vor);
}

std::string mit_exponent(const Ziffernfolge& f) {
    std::string text = f.ziffern.substr(0, 1);
    if (f.ziffern.size() > 1) text += "." + f.ziffern.substr(1);
    const std::string betrag = std::to_string(std::abs(f.exponent));
    text += f.exponent < 0 ? "E-" : "E+";
    return text + (betrag.size() < 2 ? "0" : "") + betrag;
}

/// A short decimal number as whole number and count of decimals: exact in double, and far quicker than
/// a general parser.
struct Dezimalzahl {
    std::uint64_t ganz = 0;
    int ziffern = 0;
    int nachkomma = 0;
    bool negativ = false;
};

constexpr std::array<double, 16> zehnerpotenz{1.0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

}  // namespace

void dezimalzeichen_setzen(char zeichen) {
    g_dezimalzeichen = zeichen;
}

char dezimalzeichen() {
    return g_dezimalzeichen;
}

char dezimalzeichen_der_umgebung() {
    const char* bisher = std::setlocale(LC_NUMERIC, nullptr);
    const std::string merker = bisher != nullptr ? bisher : "C";
    char zeichen = '.';
    if (std::setlocale(LC_NUMERIC, "") != nullptr) {
        const std::lconv* angaben = std::localeconv();
        if (angaben != nullptr && angaben->decimal_point != nullptr && angaben->decimal_point[0] == ',')
            zeichen = ',';
    }
    std::setlocale(LC_NUMERIC, merker.c_str());
    return zeichen;
}

std::string muster(double wert, int stellen) {
    if (!std::isfinite(wert)) return std::isnan(wert) ? "NaN" : (wert < 0 ? "-INF" : "INF");
    if (ist_mitte(wert, stellen)) wert = weg_von_null(wert);
    std::array<char, 400> puffer{};
    auto* const ende =
        std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::fixed, stellen)
            .ptr;
    std::string text(puffer.data(), ende);
    if (text.front() == '-' && nur_nullen(text)) text.erase(0, 1);
    if (const std::size_t punkt = text.find('.'); punkt != std::string::npos) text[punkt] = g_dezimalzeichen;
    return text;
}

std::string mit_einheit(std::string_view text, std::string_view einheit) {
    const bool eng = einheit.empty() || einheit == "°";
    return std::string(text).append(eng ? "" : " ").append(einheit);
}

std::string zahltext(double wert) {
    if (wert == 0) return " 0";
    const std::string vorzeichen = wert < 0 ? "-" : " ";
    if (!std::isfinite(wert)) return vorzeichen + (std::isnan(wert) ? "NaN" : "INF");
    const Ziffernfolge folge = ziffernfolge(std::fabs(wert));
    const bool kurz = folge.exponent >= -hoechstens_stellen && folge.exponent < hoechstens_stellen;
    return vorzeichen + (kurz ? ohne_exponent(folge) : mit_exponent(folge));
}

std::string kuerzeste(float wert) {
    constexpr float klein = 1e-4F;
    constexpr float gross = 1e9F;
    const float betrag = std::fabs(wert);
    const bool ausgeschrieben = betrag == 0 || (betrag >= klein && betrag < gross);
    std::array<char, 32> puffer{};
    const auto form = ausgeschrieben ? std::chars_format::fixed : std::chars_format::scientific;
    auto* const ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, form).ptr;
    return {puffer.data(), ende};
}

double zahl_lesen(std::string_view text) {
    Dezimalzahl z;
    bool begonnen = false;
    bool komma = false;
    for (const char zeichen : text) {
        if (zeichen == ' ') continue;
        if (ist_ziffer(zeichen)) {
            if (z.ziffern < 15) {
                z.ganz = z.ganz * 10 + static_cast<std::uint64_t>(zeichen - '0');
                z.nachkomma += komma ? 1 : 0;
                z.ziffern += z.ganz > 0 ? 1 : 0;
            } else if (!komma) {
                --z.nachkomma;
            }
        } else if (zeichen == '.' && !komma) {
            komma = true;
        } else if ((zeichen == '-' || zeichen == '+') && !begonnen) {
            z.negativ = zeichen == '-';
        } else {
            break;
        }
        begonnen = true;
    }
    auto wert = static_cast<double>(z.ganz);
    if (z.nachkomma > 0) {
        wert = z.nachkomma < 16 ? wert / zehnerpotenz[static_cast<std::size_t>(z.nachkomma)]
                                : wert * std::pow(10.0, -z.nachkomma);
    } else if (z.nachkomma < 0) {
        wert *= std::pow(10.0, -z.nachkomma);
    }
    return z.negativ ? -wert : wert;
}

std::optional<double> zahl_pruefen(std::string_view text) {
    while (!text.empty() && ist_blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && ist_blank(text.back()))
        text.remove_suffix(1);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc{} || ende != text.data() + text.size() || !std::isfinite(wert))
        return std::nullopt;
    return wert;
}

std::int16_t i16(double wert, std::string_view feld) {
    const double ganz = std::nearbyint(wert);
    if (!(ganz >= -32768.0 && ganz <= 32767.0)) {
        throw Laufzeitfehler({"Überlauf, der Wert" + zahltext(wert) + " passt in keine 16-Bit-Zahl",
                              "overflow, the value" + zahltext(wert) + " does not fit a 16-bit number"},
                             std::string(feld));
    }
    return static_cast<std::int16_t>(ganz);
}

}  // namespace velmaris
