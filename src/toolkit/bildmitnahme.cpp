#include "toolkit/bildmitnahme.h"

#include "toolkit/svg_flaeche.h"

#include <array>

namespace velmaris {
namespace {

constexpr std::array<Wort, 3> texte{{{"Bild &kopieren", "&Copy picture"},
                                     {"Bild &speichern unter ...", "&Save picture as ..."},
                                     {"&Werte kopieren", "Copy &values"}}};

}  // namespace

std::vector<Mitnahme> mitnahmen(const Bildfeld& bild) {
    std::vector<Mitnahme> alle{Mitnahme::bild_kopieren, Mitnahme::bild_speichern};
    if (bild.werte) alle.push_back(Mitnahme::werte_kopieren);
    return alle;
}

const Wort& mitnahmetext(Mitnahme was) {
    return texte.at(static_cast<std::size_t>(was));
}

std::string bildname(const Bildfeld& bild) {
    return bild.werte ? bild.werte().titel : bild.titel;
}

Einzelbild einzelbild(const Bildfeld& bild) {
    if (bild.einzeln) return *bild.einzeln;
    const Rechteck lage = bild.lage().value_or(Rechteck{});
    return {.breite = lage.breite, .hoehe = lage.hoehe};
}

void einzelbild_zeichnen(const Bildfeld& bild, Zeichenflaeche& flaeche) {
    flaeche.Cls();
    if (bild.zeichnen) bild.zeichnen(flaeche);
    if (const Einzelbild einzeln = einzelbild(bild); einzeln.beschriften) einzeln.beschriften(flaeche);
}

bool als_svg_moeglich(const Bildfeld& bild) {
    return bild.bild().empty();
}

std::string svg_bild(const Bildfeld& bild) {
    const Einzelbild einzeln = einzelbild(bild);
    SvgFlaeche flaeche(einzeln.breite, einzeln.hoehe, einzeln.hintergrund);
    einzelbild_zeichnen(bild, flaeche);
    return flaeche.svg();
}

}  // namespace velmaris
