#include "tests/charts/probe.h"

#include "language/c_Sprache.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace velmaris::test {
namespace {

int lauf(const RekorderFlaeche& bild, int x, int y, int dx, int dy) {
    const Farbe farbe = bild.lies_punkt(x, y);
    int n = 0;
    for (; x >= 0 && y >= 0 && x < bild.breite() && y < bild.hoehe(); x += dx, y += dy, ++n)
        if (bild.lies_punkt(x, y) != farbe) break;
    return n;
}

}  // namespace

std::unique_ptr<Projekt> leeres_projekt(const std::string& sprache) {
    auto p = std::make_unique<Projekt>();
    p->Sprache = sprache;
    p->f_nutz = 100;
    p->Heizsystem = p->Uebergabe = p->Energietraeger = 1;
    sprachtexte_setzen(*p);
    for (int m = 1; m <= monate; ++m)
        p->Monat(m).Tage = static_cast<std::int16_t>(tage_im_monat[static_cast<std::size_t>(m)]);
    return p;
}

std::vector<Ecken> flaechen(const RekorderFlaeche& bild, Farbe farbe) {
    std::vector<Ecken> ergebnis;
    for (const Zeichnung& z : bild.alle(Zeichnung::Art::flaeche, farbe))
        ergebnis.push_back(z.zahlen);
    return ergebnis;
}

std::string formen(const RekorderFlaeche& bild) {
    std::ostringstream text;
    for (const Zeichnung& z : bild.zeichnungen) {
        if (z.art == Zeichnung::Art::text || z.art == Zeichnung::Art::cls) continue;
        text << (text.tellp() > 0 ? "|" : "");
        for (std::size_t i = 0; i < z.zahlen.size(); ++i)
            text << (i > 0 ? " " : "") << z.zahlen[i];
    }
    return text.str();
}

int hoch(const RekorderFlaeche& bild, int x, int y) {
    return lauf(bild, x, y, 0, -1);
}

int quer(const RekorderFlaeche& bild, int x, int y) {
    return lauf(bild, x, y, 1, 0);
}

bool steht(const RekorderFlaeche& bild, const std::string& text, double x, double y) {
    const std::vector<Zeichnung> texte = bild.alle(Zeichnung::Art::text);
    return std::any_of(texte.begin(), texte.end(), [&](const Zeichnung& z) {
        return z.text == text && std::fabs(z.zahlen[0] - x) < 1e-9 && std::fabs(z.zahlen[1] - y) < 1e-9;
    });
}

}  // namespace velmaris::test
