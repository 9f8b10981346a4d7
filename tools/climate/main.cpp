#include "toolkit/zahlen.h"
#include "tools/climate/klimasatz.h"
#include "tools/lauf.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using namespace velmaris;
using namespace velmaris::klimasatz;

constexpr std::string_view gebrauch =
    "usage: klima_erzeugen STATIONEN.csv AUSGABEORDNER [--jobs N]\n"
    "Makes a climate file for each station of the list and puts them into the folder.\n"
    "  --jobs N   threads to work in, 1 to 64 (all processors)\n";

struct Aufruf {
    std::filesystem::path liste;
    std::filesystem::path ordner;
    unsigned faeden = std::max(1U, std::thread::hardware_concurrency());
};

std::optional<unsigned> fadenzahl(std::string_view text) {
    unsigned zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc{} || ende != text.data() + text.size() || zahl < 1 || zahl > 64)
        return std::nullopt;
    return zahl;
}

std::optional<Aufruf> aufruf(const std::vector<std::string_view>& worte) {
    Aufruf aufruf;
    std::vector<std::string_view> orte;
    for (std::size_t i = 0; i < worte.size(); ++i) {
        if (worte[i] != "--jobs") {
            orte.push_back(worte[i]);
            continue;
        }
        const auto zahl = ++i < worte.size() ? fadenzahl(worte[i]) : std::nullopt;
        if (!zahl) return std::nullopt;
        aufruf.faeden = *zahl;
    }
    if (orte.size() != 2 || orte[0].starts_with("--") || orte[1].starts_with("--")) return std::nullopt;
    aufruf.liste = orte[0];
    aufruf.ordner = orte[1];
    return aufruf;
}

/// Tells how the files stand to their limits, from the best to the worst of them.
void zusammenfassen(const std::vector<Klimadatei>& dateien) {
    std::cout << dateien.size() << " station files\n";
    for (const Kenngroesse& g : kenngroessen()) {
        const auto wert = [&g](const Klimadatei& datei) { return datei.befund.*g.wert; };
        const auto [kleinster, groesster] = std::ranges::minmax_element(dateien, {}, wert);
        std::cout << "  " << g.en << ": " << muster(wert(*kleinster), 4) << " to "
                  << muster(wert(*groesster), 4) << " (limit " << muster(g.bis, 2) << ")\n";
    }
}

}  // namespace

int main(int argc, char** argv) {
    const auto wunsch = aufruf(std::vector<std::string_view>(argv + 1, argv + argc));
    if (!wunsch) {
        std::cerr << gebrauch;
        return 2;
    }
    return erzeugerlauf("klima_erzeugen", [&] {
        const auto dateien = klimasatz_erzeugen(stationsliste_lesen(wunsch->liste), wunsch->faeden);
        klimasatz_schreiben(wunsch->ordner, dateien);
        zusammenfassen(dateien);
    });
}
