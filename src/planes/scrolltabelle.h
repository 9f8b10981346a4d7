#pragma once

#include "project/feldtabelle.h"
#include "toolkit/felder.h"

#include <span>
#include <string>
#include <string_view>

namespace velmaris {

/// A quantity that a scroll field moves: the field's range and steps in positions, how a position becomes
/// the value, and how the value is shown.
struct Scrollzeile {
    std::string_view name;  ///< of the control; the quantity is the name without "_sb"
    int minimum;
    int maximum;
    int klein;
    int gross;             ///< negative: a click beside the thumb moves against the click
    Feldzeiger ziel;       ///< the quantity in the record
    double teiler;         ///< value = position / teiler; negative where the upper end is the largest value
    int stellen;           ///< decimals of the display
    double anzeigefaktor;  ///< shown is the value times this
    std::string_view einheit;  ///< unit of what is shown

    /// The number that the display shows at a position.
    [[nodiscard]] double gezeigt(int position) const;

    /// That number by the display's pattern.
    [[nodiscard]] std::string zahl(int position) const;

    /// The same with its unit.
    [[nodiscard]] std::string zahl_mit_einheit(int position) const;

    /// The range of what is shown, "2.0 to 50.0" or "2,0 bis 50,0", and the same with its unit.
    [[nodiscard]] std::string bereich(std::string_view sprache) const;
    [[nodiscard]] std::string bereich_mit_einheit(std::string_view sprache) const;
};

/// All scroll fields of the input planes.
[[nodiscard]] std::span<const Scrollzeile> scrollzeilen();

/// The row of a scroll field, nothing for another name.
[[nodiscard]] const Scrollzeile* scrollzeile(std::string_view name);

/// A scroll field over its row of the table.
class Eingabefeld : public Scrollfeld {
  public:
    /// `feldname` must be a name of the table.
    explicit Eingabefeld(std::string_view feldname);

    /// Stores the value of the position in the record.
    void uebernehmen(Projekt& p) const;

    /// Moves to the position nearest to the record's value; a value out of range is a Laufzeitfehler that
    /// names the quantity and its range.
    void stellen(const Projekt& p);

    [[nodiscard]] const Scrollzeile& zeile() const { return zeile_; }

    /// The record's value by the display's pattern.
    [[nodiscard]] std::string anzeigetext(const Projekt& p) const;

  private:
    /// The value that the present position stands for, rounded as the record stores it.
    [[nodiscard]] double wert() const;

    /// The position nearest to a value, a half to the even one.
    [[nodiscard]] int stellung(double wert) const;

    [[nodiscard]] double gespeichert(const Projekt& p) const;
    [[noreturn]] void ausserhalb(double wert) const;

    const Scrollzeile& zeile_;
};

}  // namespace velmaris
