#include "tools/help/zeitstempel.h"

#include "toolkit/fehler.h"

#include <cstddef>
#include <string_view>

namespace velmaris::hilfe {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t stempellaenge = 4;
constexpr std::string_view dateikopf = "ITSF"sv;
constexpr std::size_t stempel_im_kopf = 16;

/// How #SYSTEM begins: its version, then the number and the length of the record with the time.
constexpr std::string_view systemkopf = "\3\0\0\0\x0A\0\4\0"sv;

void loeschen(std::string& bytes, std::size_t ort) {
    bytes.replace(ort, stempellaenge, stempellaenge, '\0');
}

}  // namespace

std::string ohne_zeitstempel(std::string bytes) {
    const std::size_t system = bytes.find(systemkopf, stempel_im_kopf + stempellaenge);
    if (!bytes.starts_with(dateikopf) || system == std::string::npos ||
        system + systemkopf.size() + stempellaenge > bytes.size() ||
        bytes.find(systemkopf, system + 1) != std::string::npos) {
        throw Laufzeitfehler({"keine übersetzte Hilfe mit Zeitstempeln", "no compiled help with its times"});
    }
    loeschen(bytes, stempel_im_kopf);
    loeschen(bytes, system + systemkopf.size());
    return bytes;
}

}  // namespace velmaris::hilfe
