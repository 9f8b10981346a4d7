#include "charts/grundriss.h"

namespace velmaris {

std::array<Strecke, 9> haus_von_oben(Punkt a, Punkt b) {
    const Punkt c = (1.0 / 3) * (a - b);
    return {{{a, b}, {b, -a}, {-a, -b}, {-b, a}, {-c, c}, {c, a}, {c, -b}, {-c, b}, {-c, -a}}};
}

}  // namespace velmaris
