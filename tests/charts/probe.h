#pragma once

#include "charts/c_sankey.h"
#include "project/c_glob.h"
#include "tests/rekorder_flaeche.h"
#include "tests/testplattform.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// A record with texts of a language and 100 m2 of usable floor, all results zero.
std::unique_ptr<Projekt> leeres_projekt(const std::string& sprache = "d");

/// A white surface of the size of the energy flows.
struct Sankeyprobe : RekorderFlaeche {
    Sankeyprobe() : RekorderFlaeche(sankey_breite, sankey_hoehe, farben::weiss) {}
};

/// A bar or box as it was drawn, {x1, y1, x2, y2}.
using Ecken = std::vector<double>;

/// The filled boxes of a colour, in the order of drawing.
std::vector<Ecken> flaechen(const RekorderFlaeche& bild, Farbe farbe);

/// Lines, boxes and circles in the order of drawing: their numbers with six digits, a bar between two shapes.
std::string formen(const RekorderFlaeche& bild);

/// Pixels in a row that have the colour at (x, y), from there upward or to the right.
int hoch(const RekorderFlaeche& bild, int x, int y);
int quer(const RekorderFlaeche& bild, int x, int y);

/// The texts with their top left, "x y text".
std::vector<std::string> orte(const RekorderFlaeche& bild);

/// True if the text stands with its top left at (x, y).
bool steht(const RekorderFlaeche& bild, const std::string& text, double x, double y);

}  // namespace velmaris::test
