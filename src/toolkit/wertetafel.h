#pragma once

#include <string>
#include <vector>

namespace velmaris {

/// A column of numbers: what they are and their unit, which is empty where the rows have their own.
struct Wertespalte {
    std::string name;
    std::string einheit = {};
};

/// A row: the names that it goes by, one for each head of the rows, and a number for each column; fewer
/// numbers leave the last columns empty. A row may have a unit of its own, or a text in place of numbers.
struct Wertezeile {
    std::vector<std::string> namen;
    std::vector<double> werte;
    std::string einheit = {};
    std::string text = {};
};

/// The numbers that a picture shows, as they are and not as rounded for its labels; names and units are in
/// the language of the program. A table without heads of the rows has a single row, without a name.
struct Wertetafel {
    std::string titel;
    std::vector<std::string> zeilenkopf;
    std::vector<Wertespalte> spalten;
    std::vector<Wertezeile> zeilen;
    std::string sprache;  ///< letter of the language
};

/// The table for a spreadsheet: a row a line, tabs between the cells, the head with names and units first.
/// Numbers have the fewest digits that give their 32-bit value back, and the user's decimal mark.
[[nodiscard]] std::string tabulatortext(const Wertetafel& tafel);

/// What the picture shows in a sentence: its title and all numbers, or of many numbers the smallest and
/// largest of each column; rounded for the ear.
[[nodiscard]] std::string wertesatz(const Wertetafel& tafel);

}  // namespace velmaris
