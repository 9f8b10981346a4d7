#include "tests/charts/probe.h"

#include "language/c_Sprache.h"

#include <algorithm>
#include <sstream>

namespace velmaris::test {
namespace {

int lauf(const RekorderFlaeche& bild, int x, int y, int dx, int dy) {
    const Farbe farbe = bild.lies_punkt(x, y);
    int n = 0;
    for (; x >= 0 && y >= 0 && x < bild.breite() && bild.lies_punkt(x, y) == farbe; x += dx, y += dy)
        ++n;
    return n;
}

/// Numbers with six digits and a blank between.
std::string mit_luecken(const std::vector<double>& zahlen) {
    std::ostringstream text;
    for (std::size_t i = 0; i < zahlen.size(); ++i)
        text << (i > 0 ? " " : "") << zahlen[i];
    return text.str();
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
    std::string text;
    for (const Zeichnung& z : bild.zeichnungen) {
        if (z.art != Zeichnung::Art::text && z.art != Zeichnung::Art::cls)
            text += (text.empty() ? "" : "|") + mit_luecken(z.zahlen);
    }
    return text;
}

int hoch(const RekorderFlaeche& bild, int x, int y) {
    return lauf(bild, x, y, 0, -1);
}

int quer(const RekorderFlaeche& bild, int x, int y) {
    return lauf(bild, x, y, 1, 0);
}

std::vector<std::string> orte(const RekorderFlaeche& bild) {
    std::vector<std::string> orte;
    for (const Zeichnung& z : bild.alle(Zeichnung::Art::text))
        orte.push_back(mit_luecken(z.zahlen) + " " + z.text);
    return orte;
}

bool steht(const RekorderFlaeche& bild, const std::string& text, double x, double y) {
    const std::vector<std::string> alle = orte(bild);
    return std::count(alle.begin(), alle.end(), mit_luecken({x, y}) + " " + text) > 0;
}

}  // namespace velmaris::test
