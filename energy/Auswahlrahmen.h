#pragma once

#include "toolkit/felder.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace velmaris {

/// The drop-down list of the energy plane: a panel with up to nine entries that opens below a text field.
/// Places and heights are in twips.
class Auswahlrahmen {
  public:
    static constexpr int eintraege = 9;
    static constexpr double abstand = 120;      ///< gap between two entries
    static constexpr double zeilenhoehe = 195;  ///< one line of text

    Auswahlrahmen();

    Feld Frame_Auswahl{"Frame_Auswahl"};

    /// Entry i, 1..9; its place is relative to the panel.
    [[nodiscard]] Anzeige& Label_Auswahl(int i);

    [[nodiscard]] Platz platz() const { return platz_; }
    [[nodiscard]] double hoehe() const { return hoehe_; }

    /// Name of the field that the panel serves.
    [[nodiscard]] const std::string& feld() const { return feld_; }

    /// Fills the entries with up to nine texts, hides the empty ones and those behind, places the panel below
    /// the field and toggles its visibility.
    void oeffne(const Anzeige& feld, const std::vector<std::string>& texte);

    /// Height of an entry with its wrapped text; set by the view, one line each without it.
    std::function<double(const Anzeige&)> eintragshoehe;

    /// Bottom left corner of a field on the plane; set by the view.
    std::function<Platz(const Anzeige&)> unterkante;

  private:
    double stapeln();

    std::array<Anzeige, eintraege> Label_Auswahl_;
    Platz platz_;
    double hoehe_ = 0;
    std::string feld_;
};

}  // namespace velmaris
