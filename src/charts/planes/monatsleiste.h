#pragma once

#include "project/c_glob.h"
#include "toolkit/felder.h"

#include <array>
#include <functional>

namespace velmaris {

/// The row of twelve month buttons, with the frame that lies upon the button of the chosen month.
class Monatsleiste {
  public:
    Monatsleiste();

    std::array<Knopf, monate> Monatsbutton;  ///< January first
    Feld AktiverMonat{"AktiverMonat"};
    Anzeige AktiverMonat1{"AktiverMonat1"};  ///< fills the frame; its place counts from the frame's corner

    /// The handler of the buttons, given the month 1..12.
    std::function<void(int m)> gewaehlt;

    /// The button of month m (1..12).
    [[nodiscard]] Knopf& knopf(int m) { return Monatsbutton[static_cast<std::size_t>(m - 1)]; }

    /// The short month names onto the buttons.
    void beschriften(const Projekt& p);

    /// Spreads the buttons evenly over a width, each reaching one pixel over the next.
    void verteile(const Rechteck& leiste);

    /// Lays the frame upon the button of month m (1..12), with the button's caption.
    void markiere(int m);
};

}  // namespace velmaris
