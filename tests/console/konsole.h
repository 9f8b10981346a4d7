#pragma once

#include "console/aufruf.h"
#include "console/auftrag.h"
#include "tests/testprogramm.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velmaris::test {

/// A program folder as the current one, with the projects "haus.vel", "kurz.vel", whose station is cut off,
/// and "alt.vel" of a version that is not known.
class Konsole : public testing::Test {
  protected:
    Konsole() {
        std::filesystem::current_path(programm.ordner.pfad());
        auto zeilen = projektzeilen(programm.p());
        programm.ordner.schreibe("haus.vel", projekttext(zeilen));
        zeilen[55] = "kurz.met";
        programm.ordner.schreibe("klima/kurz.met", stationsbytes("Kurz (Land)").substr(0, 5000));
        programm.ordner.schreibe("kurz.vel", projekttext(zeilen));
        programm.ordner.schreibe("alt.vel", "Velmaris Version 1.0\r\n 10\r\n");
    }
    ~Konsole() override { std::filesystem::current_path(vorher); }

    /// The exit status of a call with these words, split at blanks; `aus` and `fehler` hold its output.
    int rufe(const std::string& worte) {
        std::istringstream rest("./velmaris_rechnen " + worte);
        std::vector<std::string> teile;
        for (std::string wort; std::getline(rest, wort, ' ');)
            teile.push_back(wort);
        std::vector<const char*> argv;
        for (const std::string& teil : teile)
            argv.push_back(teil.c_str());
        std::ostringstream text, fehlertext;
        const int status = aufrufen(static_cast<int>(argv.size()), argv.data(), text, fehlertext);
        aus = text.str();
        fehler = fehlertext.str();
        return status;
    }

    std::filesystem::path vorher = std::filesystem::current_path();
    Testprogramm programm;
    std::string aus, fehler;
};

}  // namespace velmaris::test
