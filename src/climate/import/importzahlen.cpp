#include "climate/import/importzahlen.h"

#include "toolkit/zahlen.h"

#include <algorithm>

namespace velmaris {
namespace {

bool bis_blank(char zeichen) {
    return static_cast<unsigned char>(zeichen) <= static_cast<unsigned char>(' ');
}

}  // namespace

std::optional<double> StringToReal(std::string_view text, bool dezimalkomma) {
    while (!text.empty() && bis_blank(text.front()))
        text.remove_prefix(1);
    if (!dezimalkomma) return zahl_pruefen(text);
    std::string mit_punkt(text);
    std::replace(mit_punkt.begin(), mit_punkt.end(), ',', '.');
    return zahl_pruefen(mit_punkt);
}

std::string RealToString(double wert) {
    return mit_null(zahltext(wert));
}

std::string mit_null(std::string zahl) {
    if (zahl.starts_with(" .") || zahl.starts_with("-.")) zahl.insert(1, 1, '0');
    return zahl;
}

}  // namespace velmaris
