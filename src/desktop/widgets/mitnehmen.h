#pragma once

#include "toolkit/felder.h"
#include "toolkit/wertetafel.h"

#include <functional>

class QWidget;

namespace velmaris {

struct Ansichtsmittel;
class Bildflaeche;

/// Gives a picture the menu by which it is taken out: to the clipboard, to a file, its values to the
/// clipboard. It comes up by the right button and by the menu key.
void bildmenue(Bildflaeche& flaeche, const Bildfeld& feld, const Ansichtsmittel& mittel);

/// Gives a frame of figures the menu by which they are copied. The frame can be reached by the tabulator then
/// and shows the focus.
void wertemenue(QWidget& rahmen, std::function<Wertetafel()> werte, const Ansichtsmittel& mittel);

}  // namespace velmaris
