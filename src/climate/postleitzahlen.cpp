#include "climate/postleitzahlen.h"

#include "climate/regionen.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

constexpr std::size_t hoechste_tabellengroesse = std::size_t{1} << 20U;

}  // namespace

std::optional<int> region_der_postleitzahl(const std::filesystem::path& tabelle, std::string_view plz) {
    const std::string bytes = bytes_lesen(tabelle, hoechste_tabellengroesse);
    Listenleser posten(bytes);
    while (const auto eintrag = posten.naechster()) {
        if (spalten(*eintrag, 1, 3) != plz.substr(0, 3)) continue;
        const double region = zahl_lesen(spalten(*eintrag, 5, 6));
        const bool vorhanden = region >= 0 && region <= klimaregionen;
        return vorhanden ? std::optional(static_cast<int>(region)) : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace velmaris
