#pragma once

#include "toolkit/wort.h"

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace velmaris {

/// A bar on a terminal: how far a study has come, how fast, and how long it will take.
class Fortschritt {
  public:
    /// Nothing is shown where `aus` is none.
    Fortschritt(std::ostream* aus, std::string sprache, std::uint64_t anzahl);
    Fortschritt(const Fortschritt&) = delete;
    Fortschritt& operator=(const Fortschritt&) = delete;

    /// Takes the bar away.
    ~Fortschritt();

    /// Draws the bar anew, unless that has just been done.
    void zeige(std::uint64_t fertig);

    /// Takes the bar away, so that a line can be written.
    void weiche();

  private:
    using Uhr = std::chrono::steady_clock;

    std::ostream* aus_;
    std::string sprache_;
    std::uint64_t anzahl_;
    Uhr::time_point beginn_ = Uhr::now();
    Uhr::time_point zuletzt_ = beginn_;
    bool sichtbar_ = false;
};

/// The line of the bar after that many of `anzahl` rows in so many seconds.
[[nodiscard]] std::string balkenzeile(const std::string& sprache, std::uint64_t fertig, std::uint64_t anzahl,
                                      double sekunden);

}  // namespace velmaris
