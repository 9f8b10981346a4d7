#pragma once

#include "toolkit/zeichenflaeche.h"

#include <QFont>
#include <QString>

namespace velmaris {

/// The installed sans-serif family with the widths of Arial, or else the desktop's own.
[[nodiscard]] QString sans_familie();

/// The installed family of equal widths, or else the desktop's own.
[[nodiscard]] QString feste_familie();

/// The family of that name, or where it is missing the installed one with its widths: for "Times New Roman"
/// one with serifs, for any other `sans_familie`.
[[nodiscard]] QString ersatzfamilie(const QString& name);

/// A font of the charts: its family if it is installed, `sans_familie` otherwise; its size in whole pixels,
/// so that the layout is the same at every screen resolution.
[[nodiscard]] QFont qschrift(const Schrift& schrift);

}  // namespace velmaris
