#pragma once

#include "documents/dokumentquelle.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// What a document is made from, with no two numbers and no two texts alike, so that it shows whatever stands
/// in a wrong place. Nothing of it is calculated. The house has a heated attic, a ridge from north to south
/// and neighbours at north and west.
struct Unterlagen {
    explicit Unterlagen(const std::string& sprache);

    std::unique_ptr<Projekt> p;
    Dokumentquelle quelle;
};

using Zeilen = std::vector<std::string>;

/// The cells of a row in one text, bars between them, without blanks at their ends.
[[nodiscard]] std::string zeile(const Zeilen& zellen);

/// A value from the record: fields, those of month m (1..12) among them, and plain numbers between + - * /,
/// worked out from left to right. In month 0 the field of a month is the sum of the year.
[[nodiscard]] double wert(const Projekt& p, int m, const std::string& formel);

/// A row of a table in the record's language: of each cell "deutsch = english" one side.
[[nodiscard]] std::string in_sprache(const Projekt& p, const std::string& zeile);

/// The rows of page 1.. of `report/seiten.txt` or `print/seiten.txt`, whose heads tell how to read them.
[[nodiscard]] Zeilen seite(const Unterlagen& u, const std::string& datei, int nummer);

}  // namespace velmaris::test
