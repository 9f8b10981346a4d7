#pragma once

#include "tests/testprogramm.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// The program on a project that has heating, cooling and hours of every kind, calculated.
[[nodiscard]] std::unique_ptr<Testprogramm> dokumentprogramm(const std::string& sprache);

/// Page 0..7 of the program's report as a reader sees it: one text per row, tabs in it.
[[nodiscard]] std::vector<std::string> reportzeilen(const Testprogramm& programm, int seite);

/// The rows that hold a number or a text behind a tab: label and value without blanks around them.
struct Wertzeile {
    std::string name;
    std::string wert;
};
[[nodiscard]] std::vector<Wertzeile> wertzeilen(const std::vector<std::string>& zeilen);

/// The cells of a row, without blanks around them.
[[nodiscard]] std::vector<std::string> zellen(const std::string& zeile);

/// The twelve rows of months of table `nummer` (from 0) as numbers, and behind them the row of the year. A
/// cell without a number is a NaN.
[[nodiscard]] std::vector<std::vector<double>> zahlentabelle(const std::vector<std::string>& zeilen,
                                                             std::size_t nummer, const Projekt& p);

}  // namespace velmaris::test
