#include "tests/charts/sankeyprobe.h"

#include <gtest/gtest.h>

namespace velmaris::test {

std::vector<Textkasten> Sankeyprobe::textkaesten() const {
    std::vector<Textkasten> ergebnis;
    for (const Zeichnung& z : alle(Art::text)) {
        const double x = z.zahlen[0];
        const double y = z.zahlen[1];
        ergebnis.push_back({z.text, x, y, x + schriftbreite(z.text, z.schrift), y + schrifthoehe(z.schrift)});
    }
    return ergebnis;
}

int Sankeyprobe::hoch(int x, int y) const {
    return lauf(x, y, 0, -1);
}

int Sankeyprobe::quer(int x, int y) const {
    return lauf(x, y, 1, 0);
}

int Sankeyprobe::lauf(int x, int y, int dx, int dy) const {
    const Farbe farbe = lies_punkt(x, y);
    int n = 0;
    while (x >= 0 && y >= 0 && x < breite() && y < hoehe() && lies_punkt(x, y) == farbe) {
        x += dx;
        y += dy;
        ++n;
    }
    return n;
}

void erwarte_texte_innen(const Sankeyprobe& bild, const std::string& fall) {
    for (const Textkasten& t : bild.textkaesten()) {
        EXPECT_GE(t.links, 0) << fall << ": " << t.text;
        EXPECT_GE(t.oben, 0) << fall << ": " << t.text;
        EXPECT_LE(t.rechts, bild.breite()) << fall << ": " << t.text;
        EXPECT_LE(t.unten, bild.hoehe()) << fall << ": " << t.text;
    }
}

}  // namespace velmaris::test
