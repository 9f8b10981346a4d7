#pragma once

#include "charts/tooltip.h"
#include "desktop/widgets/ebenenbau.h"

class QWidget;

namespace velmaris {

/// The floating text of a plane, made after everything else on it so that it lies on top.
void tooltip_ansicht(Tooltip& tooltip, const Ansichtsmittel& mittel, QWidget* ebene);

}  // namespace velmaris
