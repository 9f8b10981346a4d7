#pragma once

#include "planes/Haupt.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace velmaris {

/// JSON whose numbers are 32-bit floats, written with the fewest digits that give the float back, and whose
/// objects keep their order.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

/// All of a calculated project: the quantities of the record by their names, `Monat` as an array of twelve
/// objects, the characteristic values of the heat supply, and the texts of the climate plane.
[[nodiscard]] Json als_json(const Haupt& haupt);

/// The text of a JSON value; what is no UTF-8, as a file name can be, becomes the replacement character.
[[nodiscard]] std::string json_text(const Json& wert);

}  // namespace velmaris
