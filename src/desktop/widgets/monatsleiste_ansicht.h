#pragma once

#include "charts/planes/monatsleiste.h"
#include "desktop/widgets/ebenenbau.h"

class QWidget;

namespace velmaris {

/// The twelve month buttons with the frame on the chosen one.
void monatsleiste_ansicht(Monatsleiste& leiste, const Ebenenbau& bau, QWidget* ebene);

}  // namespace velmaris
