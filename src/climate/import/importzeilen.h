#pragma once

#include "climate/import/importkopf.h"
#include "climate/import/importquelle.h"
#include "climate/import/importspalten.h"
#include "toolkit/fehler.h"

#include <functional>
#include <optional>
#include <vector>

namespace velmaris {

/// A fault of an import source. `hinweis` says more than the message, empty where there is no more.
class Importfehler : public Laufzeitfehler {
  public:
    explicit Importfehler(Zweisprachig text, Zweisprachig hinweis = {})
        : Laufzeitfehler(std::move(text)), hinweis_(std::move(hinweis)) {}

    [[nodiscard]] const Zweisprachig& hinweis() const { return hinweis_; }

  private:
    Zweisprachig hinweis_;
};

/// Told how much of a work is done, 0..1; false cancels it.
using Fortschrittsmelder = std::function<bool(double)>;

/// Columns of the quantities, 0 for none.
struct Spaltenwahl {
    int temperatur = 0;
    int gesamt = 0;
    int direkt = 0;
    int diffus = 0;
};

/// The last column of each quantity. Without a total and a direct one, without temperature or without diffuse
/// radiation: an Importfehler. The direct radiation of an EnergyPlus file is that on a plane facing the sun
/// and cannot stand in for the total.
[[nodiscard]] Spaltenwahl spalten_waehlen(const Spaltenbelegungen& spalten, Quellform form);

/// How the rows of a source are read.
struct Leseplan {
    Quellform form = Quellform::frei;
    Trennung trennung = Trennung::tabulator;
    int kopfzeilen = 0;
    bool dezimalkomma = false;
    Spaltenwahl spalten;
};

/// One hour of a source.
struct Stundenwerte {
    double Ta = 0;    ///< degC
    double G_Gh = 0;  ///< total radiation on the horizontal, W/m2
    double G_Dh = 0;  ///< diffuse radiation on the horizontal, W/m2

    friend bool operator==(const Stundenwerte&, const Stundenwerte&) = default;
};

/// A year of hours in the order of a station file, whose first row is the last hour of the year.
struct Messjahr {
    std::vector<Stundenwerte> stunden;  ///< 8760
    bool ohne_schalttag = false;        ///< a 29 February was left out
    int weitere = 0;                    ///< rows behind the year, which were not read
};

/// What the user should know of a year that was read, mostly empty.
[[nodiscard]] Zweisprachig jahreshinweis(const Messjahr& jahr);

/// Reads and tests the 8760 hours behind the head lines; what follows is only counted. A value that is
/// missing or no number, that stands for a missing one (such as -99 or -999, in an EnergyPlus file also 99.9
/// and 9999), that no station file can hold, or a radiation below -50 W/m2 is an Importfehler
/// with the line of the first row concerned; so are fewer rows, and an EnergyPlus file with several rows for
/// each hour. Nothing if it was cancelled.
///
/// The first row of a station file is read back as the hour that ends with the year, the next one as that
/// which ends at 1 o'clock of 1 January. Rows of Meteonorm and of other texts keep their order, so their
/// first row counts as the hour that ends at the midnight in which the year begins. In an EnergyPlus file the
/// row stamped month, day, hour h (1..24) is the hour that ends at h; it is put where it is read back as that
/// very hour, so its last row comes first. Its stamps give the place if they name every hour of a year once,
/// else the order of the rows does. A 29 February is left out.
[[nodiscard]] std::optional<Messjahr> zeilen_lesen(const Importquelle& quelle, const Leseplan& plan,
                                                   const Fortschrittsmelder& fortschritt);

}  // namespace velmaris
