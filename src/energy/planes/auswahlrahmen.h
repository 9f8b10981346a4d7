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

    [[nodiscard]] bool offen() const { return Frame_Auswahl.sichtbar(); }

    /// Opens the list of a field: fills the entries with up to nine texts, hides the empty ones and those
    /// behind, marks entry `gewaehlt` or else the first one, and places the panel below the field. Closes
    /// the list instead where it stands open for that field; a list without entries does not open.
    void oeffne(const Anzeige& feld, const std::vector<std::string>& texte, int gewaehlt);
    void schliesse();

    /// The marked entry, 1..9; 0 while the list is closed.
    [[nodiscard]] int marke() const { return marke_; }

    /// Marks an entry of the open list that is shown; other numbers change nothing.
    void markiere(int i);

    /// Moves the mark down by so many entries, up by a negative number, as far as there are entries.
    void ruecke(int schritte);

    /// Height of an entry with its wrapped text; set by the view, one line each without it.
    std::function<double(const Anzeige&)> eintragshoehe;

    /// Bottom left corner of a field on the plane; set by the view.
    std::function<Platz(const Anzeige&)> unterkante;

  private:
    void fuelle(const std::vector<std::string>& texte);
    double stapeln();
    [[nodiscard]] bool gezeigt(int i) const;

    std::array<Anzeige, eintraege> Label_Auswahl_;
    Platz platz_;
    double hoehe_ = 0;
    std::string feld_;
    int marke_ = 0;
};

}  // namespace velmaris
