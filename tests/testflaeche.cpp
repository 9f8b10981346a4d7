#include "tests/testflaeche.h"

#include "toolkit/text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velmaris::test {

std::vector<Zeichnung> Testflaeche::alle(Art art) const {
    std::vector<Zeichnung> ergebnis;
    std::copy_if(zeichnungen.begin(), zeichnungen.end(), std::back_inserter(ergebnis),
                 [&](const Zeichnung& z) { return z.art == art; });
    return ergebnis;
}

std::vector<Zeichnung> Testflaeche::alle(Art art, Farbe farbe) const {
    std::vector<Zeichnung> ergebnis = alle(art);
    std::erase_if(ergebnis, [&](const Zeichnung& z) { return z.farbe != farbe; });
    return ergebnis;
}

std::vector<std::string> Testflaeche::texte() const {
    std::vector<std::string> ergebnis;
    for (const Zeichnung& z : alle(Art::text))
        ergebnis.push_back(z.text);
    return ergebnis;
}

double Testflaeche::textbreite(std::string_view text) const {
    return 6.0 * static_cast<double>(zeichenzahl(text));
}

void Testflaeche::merke(Zeichnung zeichnung) {
    zeichnung.schrift = schrift_;
    zeichnungen.push_back(std::move(zeichnung));
}

}  // namespace velmaris::test
