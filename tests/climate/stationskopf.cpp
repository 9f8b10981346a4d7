#include "tests/climate/stationskopf.h"

namespace velmaris::test {

std::string kopftext(const std::string& name, double breite, double laenge) {
    return name + "\r\nBreitengrad:  " + std::to_string(breite) +
           "\r\nL\xE4ngengrad:   " + std::to_string(-laenge) + "\r\nZeitzone:     -1\r\n";
}

}  // namespace velmaris::test
