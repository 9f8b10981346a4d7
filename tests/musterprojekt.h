#pragma once

#include "project/c_glob.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// A place with made-up but deterministic weather: seasons and days as sine curves by latitude, direct and
/// diffuse radiation from the sun's height and a day's cloudiness out of a fixed row.
struct Musterort {
    std::string name;
    double breite;            ///< degrees, north positive
    double laengenkorrektur;  ///< degrees
};

/// Six places from the polar circle to the southern half; the first one is temperate.
[[nodiscard]] const std::vector<Musterort>& musterorte();

/// A new project in German at the place, with its weather, month lengths, roof space table and month sums
/// of the radiation; nothing is calculated yet.
[[nodiscard]] std::unique_ptr<Projekt> musterprojekt(const Musterort& ort = musterorte().front());

/// Gives every hour the same weather and makes the record ready for it.
void gleiches_wetter(Projekt& p, const Wetterstunde& wetter);

/// A house of its own kind: how it differs from the new project.
struct Musterhaus {
    std::string name;
    void (*einrichten)(Projekt&);
};

/// Houses that between them reach every branch of the calculation.
[[nodiscard]] const std::vector<Musterhaus>& musterhaeuser();

}  // namespace velmaris::test
