#pragma once

#include "toolkit/zeichenflaeche.h"

#include <QFont>
#include <QString>

namespace velmaris {

/// The installed sans-serif family with the widths of Arial, or else the desktop's own.
[[nodiscard]] QString sans_familie();

/// A font of the charts: its family if it is installed, `sans_familie` otherwise; its size in whole pixels,
/// so that the layout is the same at every screen resolution.
[[nodiscard]] QFont qschrift(const Schrift& schrift);

}  // namespace velmaris
