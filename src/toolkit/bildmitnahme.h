#pragma once

#include "toolkit/felder.h"
#include "toolkit/wort.h"

#include <string>
#include <vector>

namespace velmaris {

/// What can be taken out of a picture.
enum class Mitnahme { bild_kopieren, bild_speichern, werte_kopieren };

/// What a picture offers, in the order of its menu.
[[nodiscard]] std::vector<Mitnahme> mitnahmen(const Bildfeld& bild);

/// The caption of the menu entry, its access key behind an "&".
[[nodiscard]] const Wort& mitnahmetext(Mitnahme was);

/// What a picture is called: as its table of values, or by its title.
[[nodiscard]] std::string bildname(const Bildfeld& bild);

/// The picture as it is taken out: its size and ground, and what stands beside it.
[[nodiscard]] Einzelbild einzelbild(const Bildfeld& bild);

/// Draws it on a surface of that size and ground.
void einzelbild_zeichnen(const Bildfeld& bild, Zeichenflaeche& flaeche);

/// True unless the picture lies over an image file, which is made of pixels.
[[nodiscard]] bool als_svg_moeglich(const Bildfeld& bild);

/// The picture as an SVG document.
[[nodiscard]] std::string svg_bild(const Bildfeld& bild);

}  // namespace velmaris
