#pragma once

#include "project/c_glob.h"
#include "toolkit/wort.h"

#include <filesystem>
#include <optional>
#include <string>

namespace velmaris {

/// All that a record takes from a station file, apart from a record, so that many records can share it.
class Stationsabbild {
  public:
    /// Reads the station file of that name; errors as in `klimadatei_lesen`.
    Stationsabbild(const std::filesystem::path& programmordner, const std::filesystem::path& datenordner,
                   const std::string& klimadatei);

    /// Makes the station the climate of a record, as `klimadatei_lesen` does, but for the radiation of the
    /// months, which depends on the orientation too: `monatsstrahlung_berechnen`.
    void einsetzen(Projekt& p) const;

    /// The warning of `klimadatei_lesen`.
    [[nodiscard]] const std::optional<Zweisprachig>& warnung() const { return warnung_; }

  private:
    std::string Stationsname;
    float Breite = 0;
    float Laengenkorrektur = 0;
    Stundentabelle<Wetterstunde> Wetter;
    Reihe<Dachraumzeile, 0, 3> Dachraum;
    Reihe<std::int16_t, 1, monate> Tage;
    Sonnentabelle sonne;
    Stationswerte werte;
    std::optional<Zweisprachig> warnung_;
};

}  // namespace velmaris
