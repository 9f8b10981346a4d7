#pragma once

#include "toolkit/felder.h"

#include <QByteArray>
#include <QImage>

namespace velmaris {

/// A picture drawn anew for other programs, at twice the size of its units; null without memory for it.
[[nodiscard]] QImage bild_zum_mitnehmen(const Bildfeld& feld);

/// An image as a PNG file; empty without memory for it.
[[nodiscard]] QByteArray als_png(const QImage& bild);

}  // namespace velmaris
