#pragma once

#include "climate/karten.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// The way over the places of a map by keyboard: its regions or its stations, by their index in a list. One
/// place is pointed at; that has no effect before it is taken.
class Kartenweg {
  public:
    enum class Richtung { links, rechts, oben, unten, vor, zurueck, anfang, ende };

    /// What the plane knows of its map; all are set.
    struct Karte {
        std::function<std::vector<Kartenpunkt>()> orte;  ///< in pixels of the map
        std::function<int()> gewaehlt;                   ///< the place that is chosen, negative without one
        std::function<std::string(int)> name;
        std::function<void(int)> zeigen;  ///< a place is pointed at; negative: none any more
        std::function<void(int)> waehlen;
    };

    explicit Kartenweg(Karte karte) : karte_(std::move(karte)) {}

    /// Points at the chosen place, or at the first one.
    void beginne();

    /// Points at the nearest place in a direction, which covers a quarter of the circle, or at a neighbour or
    /// an end of the list. Where there is none it stays.
    void gehe(Richtung richtung);

    /// Chooses the place pointed at.
    void nimm() const;

    /// Points at nothing any more.
    void beende();

    /// The place pointed at, nothing if there is none, and its name.
    [[nodiscard]] std::optional<Kartenpunkt> ort() const;
    [[nodiscard]] std::string name() const;

  private:
    void deute(int stelle);

    Karte karte_;
    int stelle_ = -1;
};

}  // namespace velmaris
