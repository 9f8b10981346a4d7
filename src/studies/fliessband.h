#pragma once

#include "studies/rechenplatz.h"
#include "studies/studienbild.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {

/// A run of rows on their way through a study.
struct Studienfenster {
    std::vector<Planzeile> zeilen;
    std::vector<std::size_t> reihenfolge;  ///< in which they are calculated best
    std::vector<std::string> texte;        ///< rows of the output, empty for what is not calculated
    std::vector<std::string> meldungen;    ///< what to say of a faulty row, else empty
    std::vector<Zeilenwerte> bildwerte;    ///< where pictures are wanted
};

/// The stations of a line: windows come in, their rows are calculated by all workers, windows go out in the
/// order in which they came.
struct Fliessband {
    std::function<std::unique_ptr<Studienfenster>()> lesen;  ///< nothing at the end
    std::function<void(Studienfenster&)> ordnen;             ///< settles the order of its rows
    std::function<std::unique_ptr<Rechenplatz>()> einrichten;

    /// The rows at places `von` to before `bis` of the order; any number of workers at a time.
    std::function<void(Rechenplatz&, Studienfenster&, std::size_t von, std::size_t bis)> rechnen;
    std::function<void(const Studienfenster&)> schreiben;
};

/// Runs the line on that many cores, on all where it is 0. What one of the stations throws ends it and is
/// thrown on.
void laufen(const Fliessband& band, int kerne);

}  // namespace velmaris
