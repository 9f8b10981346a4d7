#pragma once

#include "desktop/widgets/ebenenbau.h"

#include <initializer_list>
#include <utility>

class QHBoxLayout;
class QWidget;

namespace velmaris {

/// A line of legend entries over a chart, each a colour patch with a text, at a place on the plane. Texts
/// wrap where the height is that of several lines.
void legende(const Ebenenbau& bau, QWidget* ebene, int x, int y, int breite,
             std::initializer_list<std::pair<Farbe, Anzeige*>> eintraege, int hoehe = 16);

}  // namespace velmaris
