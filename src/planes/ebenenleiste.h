#pragma once

#include "toolkit/felder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {

/// A button bar that shows one of several planes. The button of the plane on show is disabled.
class Ebenenleiste {
  public:
    /// A plane and its button; `aktivieren` runs when the plane has come to the front.
    struct Eintrag {
        std::unique_ptr<Knopf> knopf;
        Feld* ebene = nullptr;
        std::function<void()> aktivieren;
    };

    explicit Ebenenleiste(std::string name) : leiste(std::move(name)) {}

    Feld leiste;  ///< the bar as a window

    /// Adds a plane; the button's name is that of its record on the bar.
    void aufnehmen(const std::string& knopf, Feld& ebene, std::function<void()> aktivieren);

    /// Runs before the planes change; set by the composition root.
    std::function<void()> vor_wechsel;

    /// Hides all planes and enables all buttons.
    void Alle_Fenster_Schliessen();

    /// A click on the button of that name: its plane alone is shown, and the user turns to it. Works also for
    /// the plane that is on show, as the menu entries need it.
    void klicke(const std::string& knopf);

    /// The user goes on at the plane on show.
    void zuwenden() const;

    /// Is given the plane that the user turns to; set by the view, which moves the focus there.
    std::function<void(const Feld& ebene)> zugewandt;

    [[nodiscard]] const std::vector<Eintrag>& eintraege() const { return eintraege_; }

  private:
    std::vector<Eintrag> eintraege_;
};

}  // namespace velmaris
