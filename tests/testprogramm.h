#pragma once

#include "planes/Haupt.h"
#include "tests/hilfen.h"
#include "tests/testplattform.h"

#include <functional>
#include <memory>
#include <string>

namespace velmaris::test {

/// Bytes of a small station file: seasons and days as sine curves, radiation by day; `name` is its first
/// line.
[[nodiscard]] std::string stationsbytes(const std::string& name);

/// A program folder with two stations (trier.met and fern.met) and the whole program in it, started
/// on a new project, over a scripted desktop.
class Testprogramm {
  public:
    explicit Testprogramm(const std::string& sprache = "d");

    Testordner ordner;
    Testplattform plattform;
    std::unique_ptr<Haupt> haupt;

    [[nodiscard]] Projekt& p() const { return haupt->p; }
};

/// Opens a rescue file in a program of its own and removes it; fails the test unless it opens without a word.
[[nodiscard]] std::unique_ptr<Testprogramm> aus_rettung(const std::filesystem::path& datei);

/// Lines of the project file that the program writes for its present state, without their ends; line i is
/// element i - 1.
[[nodiscard]] std::vector<std::string> projektzeilen(const Projekt& p);

/// The text of a project file from its lines.
[[nodiscard]] std::string projekttext(const std::vector<std::string>& zeilen);

}  // namespace velmaris::test
