#pragma once

#include "studies/ergebnisse.h"
#include "studies/studienbild.h"
#include "studies/studienplan.h"
#include "studies/wertereihe.h"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// One of several parts that a plan is cut into, so that several machines can share it.
struct Studienteil {
    std::uint64_t nummer = 1;  ///< from 1
    std::uint64_t teile = 1;

    /// The rows before the part's first one, of a plan of `anzahl` rows; those of all parts before it.
    [[nodiscard]] std::uint64_t davor(std::uint64_t anzahl) const { return anzahl * (nummer - 1) / teile; }
    [[nodiscard]] std::uint64_t danach(std::uint64_t anzahl) const { return anzahl * nummer / teile; }
};

/// From "K/N", 1 <= K <= N <= 1000000; anything else is a Laufzeitfehler.
[[nodiscard]] Studienteil teil_lesen(std::string_view text);

/// What a study varies and what it gives.
struct Studienauftrag {
    std::vector<Wertereihe> variiert;  ///< all combinations, where `plan` names no file
    std::string plan;                  ///< CSV file with the rows
    std::vector<Ergebnis> ergebnisse;
    bool tabelle = true;  ///< the results are wanted as a table
    std::string ausgabe;  ///< file of the table; empty: the standard output
    Studienteil teil;
    bool fortsetzen = false;  ///< what the output has already is not calculated again
    int kerne = 0;            ///< 0: all
};

/// The rows of a study from the first one on. Errors as in `Gitterplan` and `Dateiplan`.
[[nodiscard]] std::unique_ptr<Studienplan> plan_anlegen(const Studienauftrag& auftrag);

/// Where a study runs.
struct Studienumgebung {
    std::string projekt;  ///< file of the project that is varied
    std::filesystem::path programmordner;
    std::filesystem::path datenordner;
    std::string sprache;
    std::ostream& aus;
    std::ostream& fehler;
    bool fortschritt = false;  ///< shows a bar among the faults
};

/// Calculates the rows of a study in their order and writes for each its number, what the plan gives, the
/// results, and in the last column what is wrong with it. A faulty row is told among the faults and keeps no
/// other one from being calculated. Returns false if a row is faulty or the study was stopped; the rows
/// written so far are whole then. `bild`, where it is given, gets all rows and the project itself. What keeps
/// the study from beginning or going on is a Laufzeitfehler.
[[nodiscard]] bool studie_rechnen(const Studienauftrag& auftrag, const Studienumgebung& umgebung,
                                  Studienbild* bild = nullptr);

}  // namespace velmaris
