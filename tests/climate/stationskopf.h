#pragma once

#include <string>

namespace velmaris::test {

/// The head of a station file without any data rows, as the station lists read it: name in windows-1252,
/// degrees north and east.
std::string kopftext(const std::string& name, double breite, double laenge);

}  // namespace velmaris::test
