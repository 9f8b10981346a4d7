#pragma once

#include "documents/umbruch.h"
#include "toolkit/drucker.h"
#include "toolkit/wort.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// The frame of a printed page, millimetres. Pages are laid out for 200 mm of width.
namespace rahmen {
inline constexpr double links = 25;
inline constexpr double rechts = 175;
inline constexpr double oben = 35;
inline constexpr double unten = 260;
inline constexpr double breite = 200;
}  // namespace rahmen

/// Columns of labels and of their values on the data sheets, and the width of the values.
namespace spalten_mm {
inline constexpr double name = 30;
inline constexpr double wert = 120;
inline constexpr double breite = 55;
}  // namespace spalten_mm

/// Where the lines of a document go: a printer with the fonts, alignments and rules that the pages share.
/// All places in millimetres, all sizes in points.
class Blatt {
  public:
    Blatt(Drucker& drucker, std::string_view sprache) : drucker_(drucker), sprache_(sprache) {}

    [[nodiscard]] Drucker& drucker() const { return drucker_; }
    [[nodiscard]] std::string_view sprache() const { return sprache_; }

    /// The font for all that follows; its name stays "Arial".
    void schrift(const Druckschrift& schrift);

    /// Makes the font in force as small as it takes for a text to be no wider than `breite`.
    void schrift_einpassen(std::string_view text, double breite);

    /// A text with its top left at (x, y), and one that is centred on x.
    void text(double x, double y, std::string_view text);
    void text(double x, double y, const Wort& wort) { text(x, y, wort.in(sprache_)); }
    void mitte(double x, double y, std::string_view text);

    /// A text that ends at the anchor. What follows a "^" is raised and smaller.
    void DruckeText(std::string_view text, double anker, double y);

    /// A number with 0, 1 or 2 decimals that ends at the anchor.
    void DruckeWert(double wert, double anker, int stellen, double y);

    /// The text in lines narrower than `breite` in the font in force.
    [[nodiscard]] std::vector<std::string> ZeilenUmbruch(std::string_view text, double breite) const;

    /// The text cut off, with dots, so that it is no wider than `breite`.
    [[nodiscard]] std::string gekuerzt(std::string_view text, double breite) const;

    void linie(double x1, double y1, double x2, double y2, Farbe farbe = farben::schwarz);

    /// A rule over the whole frame, and two of them one millimetre apart.
    void regel(double y);
    void doppelregel(double y);

  private:
    [[nodiscard]] Textmesser messer() const;

    Drucker& drucker_;
    std::string_view sprache_;
    Druckschrift schrift_;
};

/// Rows of labels and values from the top down, as on the data sheets.
class Formular {
  public:
    Formular(Blatt& blatt, double y, double zeilenhoehe) : blatt_(blatt), y_(y), zeilenhoehe_(zeilenhoehe) {}

    /// Head of a section.
    void abschnitt(const Wort& name);

    /// A label with its value, which may take several lines; those below the frame are left out, and dots say
    /// so.
    void zeile(const Wort& name, std::string_view wert);

    /// A label with a value of several lines, each in letters that fit.
    void zeilen(const Wort& name, std::span<const std::string_view> werte);

    [[nodiscard]] double y() const { return y_; }

  private:
    void wertzeile(std::string_view wert);

    Blatt& blatt_;
    double y_;
    double zeilenhoehe_;
    bool erster_ = true;
};

/// What the foot of every page says.
struct Seitenfuss {
    std::string datei;  ///< name of the project's file, without folder
    std::string datum;
    int seite = 1;
    int seiten = 1;
};

/// The frame of a page with its title.
void Seitenkopf(Blatt& blatt, std::string_view titel, const Seitenfuss& fuss);

}  // namespace velmaris
