#pragma once

#include "desktop/platform/buchstabenhof.h"
#include "toolkit/zeichenflaeche.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <functional>
#include <map>
#include <string>
#include <string_view>

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

/// A font of the charts with its measures. The charts write the same few texts again and again, so their
/// widths are kept.
class Schriftbild {
  public:
    explicit Schriftbild(const QFont& schrift) : font(schrift), masse(schrift), hoefe(schrift) {}

    const QFont font;
    const QFontMetricsF masse;
    mutable Buchstabenhoefe hoefe;

    /// Width of a UTF-8 text, pixels.
    [[nodiscard]] double breite(std::string_view text) const;

  private:
    mutable std::map<std::string, double, std::less<>> breiten_;
};

/// The font of a chart, made once; it lives as long as the application. For the user-interface thread.
[[nodiscard]] const Schriftbild& schriftbild(const Schrift& schrift);

}  // namespace velmaris
