#include "documents/nachbarwaende.h"

#include "toolkit/wort.h"

#include <array>
#include <cstdint>

namespace velmaris {

std::string nachbarwaende(const Projekt& p, std::string_view sprache) {
    struct Wand {
        Wort name;
        std::int16_t Projekt::*aussen;
    };
    constexpr std::array<Wand, 4> waende{{{{"Nord", "north"}, &Projekt::awn},
                                          {{"Süd", "south"}, &Projekt::aws},
                                          {{"Ost", "east"}, &Projekt::awo},
                                          {{"West", "west"}, &Projekt::aww}}};
    std::string namen;
    for (const Wand& wand : waende) {
        if (p.*wand.aussen != 0) continue;
        if (!namen.empty()) namen += ", ";
        namen += wand.name.in(sprache);
    }
    return namen;
}

}  // namespace velmaris
