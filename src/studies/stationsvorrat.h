#pragma once

#include "climate/stationsabbild.h"
#include "toolkit/fehler.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace velmaris {

/// The stations of a study: each file is read once, when a row first needs it, and then shared by all
/// workers, who may ask at the same time.
class Stationsvorrat {
  public:
    /// `warnen` gets the warning of a doubtful station, once for each; never twice at a time.
    Stationsvorrat(std::filesystem::path programmordner, std::filesystem::path datenordner,
                   std::function<void(const Zweisprachig&)> warnen);

    /// The station file of that name; its Dateifehler comes again at each call.
    [[nodiscard]] const Stationsabbild& station(const std::string& klimadatei);

  private:
    struct Fach {
        std::once_flag gelesen;
        std::unique_ptr<const Stationsabbild> abbild;
        std::optional<Dateifehler> fehler;
    };

    Fach& fach(const std::string& klimadatei);
    void lesen(Fach& fach, const std::string& klimadatei);

    std::filesystem::path programmordner_;
    std::filesystem::path datenordner_;
    std::function<void(const Zweisprachig&)> warnen_;
    std::mutex schloss_;
    std::map<std::string, Fach> faecher_;
};

}  // namespace velmaris
