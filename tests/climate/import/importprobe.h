#pragma once

#include "climate/planes/E_Klimaimport.h"
#include "project/c_glob.h"
#include "tests/hilfen.h"
#include "tests/testplattform.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// The numbers of one hour as they stand in a source.
struct Quellwerte {
    double Ta = 0;
    int G_Gh = 0, G_Dh = 0;
};

/// Numbers that differ from hour to hour, for the hour `i` from 0 on: temperatures of one decimal between -15
/// and 34.9 degrees, diffuse below 400 and total below 900 W/m2.
[[nodiscard]] Quellwerte quellwerte(int i);

/// Builds import sources. Row i (from 1) has the numbers of `quellwerte(i - 1)`, or the text of `ersetzt`.
struct Quellbau {
    std::string zeilenende = "\r\n";
    int zeilen = stunden_im_jahr;
    std::map<int, std::string> ersetzt = {};

    /// Hourly text of Meteonorm for Bern; columns dy, h, Ta, G_Gh, G_Dh, G_Bh.
    [[nodiscard]] std::string meteonorm() const;

    /// EnergyPlus weather file for Bern, with a 29 February whose numbers lie far off if `schaltjahr`. The
    /// rows are those of 1 January, hour 1, to 31 December, hour 24.
    [[nodiscard]] std::string epw(bool schaltjahr = false) const;

    /// Rows of text without a head.
    [[nodiscard]] std::string reihen(const std::function<std::string(const Quellwerte&)>& zeile) const;
};

/// A number with one decimal and that decimal mark.
[[nodiscard]] std::string dezimal(double wert, char zeichen = '.');

/// A scripted desktop that also notes what the input box asked last, and all that it proposed.
class Importplattform : public Testplattform {
  public:
    std::string frage;
    std::vector<std::string> vorgaben;

    std::optional<std::string> eingabe(const std::string& text, const std::string& name,
                                       const std::string& vorgabe) override {
        frage = name + ": " + text;
        vorgaben.push_back(vorgabe);
        return Testplattform::eingabe(text, name, vorgabe);
    }
};

/// The import window over an empty folder "klima".
class Importprobe {
  public:
    explicit Importprobe(const std::string& sprache = "d");

    Testordner ordner;
    Importplattform plattform;
    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    Sitzung sitzung{*p, plattform, [] {}};
    std::unique_ptr<E_Klimaimport> e;

    /// Writes a source and opens it through the file dialog.
    void oeffne(const std::string& name, const std::string& bytes);

    /// Fills the place of a source that is not recognised: Feld (Land), 50.5 N, 7 E, an hour ahead.
    void ort_eintippen();

    /// Starts the import under that name and returns the last message.
    Meldung importiere(const std::string& name);

    /// Bytes of a written station, empty if there is none.
    [[nodiscard]] std::string station(const std::string& name) const;

    /// Names of all files in the folder "klima".
    [[nodiscard]] std::vector<std::string> dateien() const;
};

}  // namespace velmaris::test
