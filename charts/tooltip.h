#pragma once

#include "project/c_glob.h"
#include "toolkit/felder.h"
#include "toolkit/plattform.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Where a plane stands: the main window's outer corner on the screen and the plane in it, pixels.
struct Ebenenlage {
    Platz haupt;
    Platz ebene;
};

/// Place on the plane of the tooltip for a pointer on the screen: a little to the left of it, never beyond
/// the left edge. The frame of the main window counts as part of the plane, so that the tooltip comes to
/// stand below the pointer.
[[nodiscard]] Platz tooltip_platz(Bildschirmpunkt zeiger, const Ebenenlage& lage);

/// True if what was drawn last on the surface differs at (x, y) from its background, the pixel at (2, 2).
[[nodiscard]] bool ist_bemalt(const Bildfeld& bild, double x, double y);

/// The floating text of a plane, shown while the pointer rests on something drawn.
class Tooltip {
  public:
    /// `ebene` names the plane, for its timer.
    Tooltip(Plattform& plattform, std::string_view ebene);

    Feld Frame_ToolTip{"Frame_ToolTip"};  ///< hidden at first
    Anzeige Label_Tooltip{"Label_Tooltip", "Infos"};

    /// Where the plane stands; set by the view.
    std::function<Ebenenlage()> ebenenlage;

    /// The pointer has moved: over something drawn, with the text that belongs to it, lines ending at
    /// a carriage return, or over nothing, which hides the tooltip.
    void bewegt(const std::optional<std::string>& text);

    /// The pointer has moved over the label itself, which hides the tooltip.
    void Label_Tooltip_MouseMove() { verberge(); }

    /// Serves the surface: the text of the month under the pointer, or one text for all of it.
    void folge_monaten(Bildfeld& bild, std::function<std::string(int m)> text);
    void folge(Bildfeld& bild, std::function<std::string()> text);

  private:
    void zeitgeber_abgelaufen();
    void verberge();

    Plattform& plattform_;
    std::string zeitgeber_;
    Bildschirmpunkt gemerkt_;
};

/// The pieces that tooltip texts are made of: the heading of a month, the units, and a line with a number
/// of one decimal, which begins with a carriage return.
[[nodiscard]] std::string tippmonat(const Projekt& p, int m);
[[nodiscard]] std::string kwh_je_monat(const Projekt& p);
inline constexpr std::string_view kwh_je_jahr = " kWh / (m² a)";
[[nodiscard]] std::string tippzeile(const Anzeige& name, double wert, std::string_view einheit);

}  // namespace velmaris
