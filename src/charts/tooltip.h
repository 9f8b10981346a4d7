#pragma once

#include "project/c_glob.h"
#include "toolkit/felder.h"
#include "toolkit/plattform.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Where a plane stands: the main window's outer corner on the screen, the plane in it and its height,
/// pixels.
struct Ebenenlage {
    Platz haupt;
    Platz ebene;
    double hoehe = 0;
};

/// A size in pixels.
struct Groesse {
    double breite = 0;
    double hoehe = 0;
};

/// Place on the plane of a tooltip for a pointer on the screen. The frame of the main window counts as part
/// of the plane, so that the place is a little lower than its numbers say.
using Platzregel = Platz(Bildschirmpunkt zeiger, const Ebenenlage& lage, const Groesse& rahmen);

/// A little to the left of the pointer, never beyond the left edge.
[[nodiscard]] Platz platz_am_zeiger(Bildschirmpunkt zeiger, const Ebenenlage& lage, const Groesse& rahmen);

/// Left of the pointer with its whole width, never beyond the left edge, and above the pointer where it would
/// end below the plane.
[[nodiscard]] Platz platz_neben_dem_zeiger(Bildschirmpunkt zeiger, const Ebenenlage& lage,
                                           const Groesse& rahmen);

/// In what the tooltips of the planes differ.
struct Tooltipart {
    Platzregel* platz = platz_am_zeiger;
    double hoehe = 0;                 ///< of the frame whatever its text, pixels; 0 goes by the lines
    bool verbirgt_bei_druck = false;  ///< a press on the label hides the tooltip, not a mere move over it
};

/// True if what was drawn last on the surface differs at (x, y) from its background, the pixel at (2, 2).
[[nodiscard]] bool ist_bemalt(const Bildfeld& bild, double x, double y);

/// The floating text of a plane, shown while the pointer rests on something drawn.
class Tooltip {
  public:
    /// `ebene` names the plane, for its timer.
    Tooltip(Plattform& plattform, std::string_view ebene, const Tooltipart& art = {});

    Feld Frame_ToolTip{"Frame_ToolTip"};  ///< hidden at first
    Anzeige Label_Tooltip{"Label_Tooltip", "Infos"};

    /// Where the plane stands; set by the view.
    std::function<Ebenenlage()> ebenenlage;

    /// What the frame needs around the label's present text in the letters of the screen; set by the view.
    std::function<Groesse()> platzbedarf;

    [[nodiscard]] const Tooltipart& art() const { return art_; }

    /// The pointer has moved over the label itself, or pressed it; which of them hides the tooltip is
    /// a matter of its kind.
    void Label_Tooltip_MouseMove();
    void Label_Tooltip_MouseDown();

    /// The pointer has left, or the plane is another one: hides the tooltip and awaits nothing.
    void verlassen();

    /// What is drawn has changed under a resting pointer: brings a shown tooltip up to date.
    void erneuern();

    /// The text for a place on a surface, lines ending at a carriage return; nothing where none belongs,
    /// which hides the tooltip.
    using Text = std::function<std::optional<std::string>(double x, double y)>;

    /// Serves the surface: by place, by the month under the pointer, or with one text for all that is drawn.
    void folge(Bildfeld& bild, Text text);
    void folge_monaten(Bildfeld& bild, std::function<std::string(int m)> text);
    void folge_jahr(Bildfeld& bild, std::function<std::string()> text);

  private:
    void bewegt(const std::optional<std::string>& text);
    void zeitgeber_abgelaufen();
    void aufstellen();

    Plattform& plattform_;
    std::string zeitgeber_;
    Tooltipart art_;
    std::function<std::optional<std::string>()> zuletzt_;  ///< the text where the pointer was last
    Bildschirmpunkt gemerkt_;
    Bildschirmpunkt aufgestellt_;  ///< the pointer when the tooltip came up
};

/// The pieces that tooltip texts are made of: the heading of a month, the units, and a line with a number
/// of one decimal, which begins with a carriage return.
[[nodiscard]] std::string tippmonat(const Projekt& p, int m);
[[nodiscard]] std::string kwh_je_monat(const Projekt& p);
inline constexpr std::string_view kwh_je_jahr = " kWh / (m² a)";
[[nodiscard]] std::string tippzeile(const Anzeige& name, double wert, std::string_view einheit);

}  // namespace velmaris
