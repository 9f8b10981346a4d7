#pragma once

#include "project/c_glob.h"
#include "toolkit/wertetafel.h"
#include "toolkit/wort.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Columns of one unit that are named as captions of a window are.
[[nodiscard]] std::vector<Wertespalte> chartspalten(const Projekt& p, std::string_view fenster,
                                                    std::initializer_list<std::string_view> felder,
                                                    const std::string& einheit);

/// The numbers of a chart of the months, m is 1..12, and of a chart of the year; `titel` is what both show.
[[nodiscard]] Wertetafel monatstafel(const Projekt& p, const Wort& titel, std::vector<Wertespalte> spalten,
                                     const std::function<std::vector<double>(int m)>& werte);
[[nodiscard]] Wertetafel jahrestafel(const Projekt& p, const Wort& titel, std::vector<Wertespalte> spalten,
                                     std::vector<double> werte);

/// A table of quantities with their values in one column.
[[nodiscard]] Wertetafel groessentafel(const Projekt& p, std::string titel, std::vector<Wertezeile> zeilen,
                                       const std::string& einheit = {});

}  // namespace velmaris
