#pragma once

#include "studies/eingabegroessen.h"
#include "studies/ergebnisse.h"
#include "studies/rechenplatz.h"
#include "studies/studienplan.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace velmaris {

inline constexpr std::uint64_t hoechste_bildzeilen = 2'000'000;
inline constexpr std::size_t hoechste_bildergebnisse = 24;

/// What the pictures of a study take of a calculated row.
struct Zeilenwerte {
    std::vector<double> zahlen;      ///< of its axes, as the planes show them; nothing of use for a choice
    std::vector<std::string> namen;  ///< of its axes' choices, as the planes call them
    std::vector<float> ergebnisse;   ///< none of a faulty row
    std::string grund = {};          ///< what is wrong with that
};

/// A value that an input was asked to have.
struct Bildstelle {
    std::string gefragt;
    std::optional<double> zahl;  ///< of a slider: of the nearest position, as the planes show it
    std::string name;            ///< of a choice; as it was asked for, unless a row could be calculated
    bool gerechnet = false;      ///< there is such a row
};

/// An input that the rows of a study do not all have alike.
struct Bildeingabe {
    const Feldzeile& feld;
    const Eingabegroesse* groesse;  ///< nothing where the planes have no name for it
    std::size_t spalte;             ///< of the plan
    std::vector<Bildstelle> stellen = {};

    [[nodiscard]] bool ist_zahl() const { return groesse != nullptr && groesse->regler != nullptr; }
};

/// A row that was calculated with another number than it was asked for, because one input moves another.
struct Nachgabe {
    std::size_t eingabe;
    double gefragt, gerechnet;  ///< as the planes show them
};

struct Bildfehler {
    std::uint64_t nummer;  ///< of the row
    std::string zeile;     ///< what it was asked for
    std::string grund;
};

/// The rows of a study with one or two inputs that vary, gathered for pictures.
class Studienbild {
  public:
    /// Reads the plan to its end. Other numbers of inputs that vary, no row or more than
    /// `hoechste_bildzeilen`, two inputs of which most combinations are missing, results that are texts and
    /// more than `hoechste_bildergebnisse` are a Laufzeitfehler.
    Studienbild(Studienplan& plan, std::vector<Ergebnis> ergebnisse);

    /// What the last row calculated there has for the pictures; any worker may ask.
    [[nodiscard]] Zeilenwerte lesen(const Rechenplatz& platz) const;

    /// Takes up a row of the plan, calculated or faulty.
    void nimm(const Planzeile& zeile, const Zeilenwerte& werte);

    /// Takes up the project as it is without a row.
    void nimm_basis(const Rechenplatz& platz);

    [[nodiscard]] const std::vector<Bildeingabe>& eingaben() const { return eingaben_; }
    [[nodiscard]] const std::vector<Ergebnis>& ergebnisse() const { return ergebnisse_; }

    /// The result e where the inputs have these places, not a number for a gap; b is 0 where one varies.
    [[nodiscard]] float wert(std::size_t e, std::size_t a, std::size_t b) const {
        return werte_[(b * eingaben_[0].stellen.size() + a) * ergebnisse_.size() + e];
    }

    /// The base project; nothing if it cannot be calculated.
    [[nodiscard]] const std::optional<Zeilenwerte>& basis() const { return basis_; }
    [[nodiscard]] const std::string& station() const { return station_; }

    /// The number of rows in which an input gave way, and the first one.
    [[nodiscard]] std::uint64_t nachgegeben() const { return nachgegeben_; }
    [[nodiscard]] const std::optional<Nachgabe>& nachgabe() const { return nachgabe_; }

    /// The rows taken up, the faulty ones among them, and the first of these.
    [[nodiscard]] std::uint64_t zeilen() const { return zeilen_; }
    [[nodiscard]] bool vollstaendig() const { return zeilen_ == anzahl_; }
    [[nodiscard]] std::uint64_t fehlerhafte() const { return fehlerhafte_; }
    [[nodiscard]] const std::vector<Bildfehler>& fehler() const { return fehler_; }

  private:
    void plan_lesen(Studienplan& plan);
    void eingaben_waehlen(const Studienplan& plan);
    void fehler_aufnehmen(const Planzeile& zeile, const std::string& grund);
    void stelle_aufnehmen(std::size_t eingabe, Bildstelle& stelle, const Zeilenwerte& werte);

    std::vector<Ergebnis> ergebnisse_;
    std::vector<Bildeingabe> eingaben_;
    std::vector<std::unordered_map<std::string, std::size_t>> plaetze_;  ///< of what was asked
    std::vector<float> werte_;
    std::optional<Zeilenwerte> basis_;
    std::string station_;
    std::vector<Bildfehler> fehler_;
    std::uint64_t anzahl_;  ///< of the plan
    std::uint64_t zeilen_ = 0;
    std::uint64_t fehlerhafte_ = 0;
    std::uint64_t nachgegeben_ = 0;
    std::optional<Nachgabe> nachgabe_;
};

}  // namespace velmaris
