#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velmaris {

/// The program around a project, as the life of a project drives it.
class Projektbetrieb {
  public:
    Projektbetrieb() = default;
    Projektbetrieb(const Projektbetrieb&) = delete;
    Projektbetrieb& operator=(const Projektbetrieb&) = delete;
    virtual ~Projektbetrieb() = default;

    /// False, and the user is told why, if a new project cannot be built.
    virtual bool neu_moeglich() = 0;

    /// Sets all inputs, the controls that keep state and the title to those of a new project.
    virtual void neues_projekt() = 0;

    /// Reads the station of the record, or another one in its place where that is allowed.
    virtual void station_lesen() = 0;

    /// The same, and makes it the current climate: recalculates and shows its figures.
    virtual void station_laden() = 0;

    /// Sets a quantity on the control that keeps it, whose handler runs. False if no control does, so that it
    /// goes into the record. A list without such a row is a Laufzeitfehler.
    virtual bool stellen(std::string_view feld, int wert) = 0;

    /// Moves all input planes to the record's state, in a fixed order, and clears `Geaendert`. Positions are
    /// whole numbers, so values are rounded to them, and dependent values follow. A position out of range, a
    /// list row or a combination of heating choices that does not exist is a Laufzeitfehler that names the
    /// quantity.
    virtual void eingaben_anzeigen() = 0;

    /// The same without the climate plane.
    virtual void bauteile_anzeigen() = 0;

    /// One line on what is in a project file: size, floors, station and heat demand, or why it cannot be
    /// opened; empty for a file of another ending. Nothing of the present project changes.
    [[nodiscard]] virtual std::string vorschau(const std::filesystem::path& datei) const = 0;

    /// Shows the first input and the first output plane; the user goes on at the input plane.
    virtual void erste_ebenen() = 0;
};

}  // namespace velmaris
