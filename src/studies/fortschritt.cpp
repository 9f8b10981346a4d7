#include "studies/fortschritt.h"

#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

namespace velmaris {
namespace {

constexpr std::size_t breite = 30;
constexpr std::chrono::milliseconds pause{250};

/// Hours, minutes and seconds, "1:02:03" or "2:03".
std::string dauer(double sekunden) {
    const auto ganz = static_cast<std::uint64_t>(std::ceil(sekunden));
    const auto zweistellig = [](std::uint64_t zahl) {
        return (zahl < 10 ? ":0" : ":") + std::to_string(zahl);
    };
    const std::uint64_t minuten = ganz / 60;
    const std::string hinten = zweistellig(ganz % 60);
    if (minuten < 60) return std::to_string(minuten) + hinten;
    return std::to_string(minuten / 60) + zweistellig(minuten % 60) + hinten;
}

}  // namespace

std::string balkenzeile(const std::string& sprache, std::uint64_t fertig, std::uint64_t anzahl,
                        double sekunden) {
    const double anteil =
        static_cast<double>(fertig) / static_cast<double>(std::max<std::uint64_t>(anzahl, 1));
    const auto voll = static_cast<std::size_t>(anteil * static_cast<double>(breite));
    const double je_sekunde = sekunden > 0 ? static_cast<double>(fertig) / sekunden : 0;
    std::string zeile = "[" + std::string(voll, '#') + std::string(breite - voll, '.') + "] " +
                        muster(anteil * 100, 1) + " %  " + std::to_string(fertig) + " / " +
                        std::to_string(anzahl);
    if (fertig == 0) return zeile;
    const double rest = static_cast<double>(anzahl - fertig) / je_sekunde;
    return zeile + "  " + muster(je_sekunde, 0) +
           std::string(Wort{" Zeilen/s  noch ", " rows/s  left "}.in(sprache)) + dauer(rest);
}

Fortschritt::Fortschritt(std::ostream* aus, std::string sprache, std::uint64_t anzahl)
    : aus_(aus), sprache_(std::move(sprache)), anzahl_(anzahl) {}

Fortschritt::~Fortschritt() {
    weiche();
}

void Fortschritt::zeige(std::uint64_t fertig) {
    const Uhr::time_point jetzt = Uhr::now();
    if (aus_ == nullptr || jetzt - zuletzt_ < pause) return;
    weiche();
    zuletzt_ = jetzt;
    const std::chrono::duration<double> bisher = jetzt - beginn_;
    *aus_ << balkenzeile(sprache_, fertig, anzahl_, bisher.count()) << std::flush;
    sichtbar_ = true;
}

void Fortschritt::weiche() {
    if (!sichtbar_) return;
    *aus_ << "\r\x1b[K" << std::flush;
    sichtbar_ = false;
}

}  // namespace velmaris
