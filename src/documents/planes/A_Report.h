#pragma once

#include "documents/dokumentquelle.h"
#include "project/sitzung.h"
#include "toolkit/felder.h"

#include <array>
#include <functional>
#include <string>

namespace velmaris {

/// The report window. It has two modes: the report, a page of Rich Text at a time, and the temperature
/// course, a month of plain text at a time. Which one it has shows in the visibility of its two display
/// fields.
struct A_Report {
    static constexpr int knoepfe = 12;

    /// `quelle` is asked anew for each page of the report.
    A_Report(Sitzung& sitzung, std::function<Dokumentquelle()> quelle);

    Feld fenster{"A_Report"};  ///< the window itself, hidden at first

    Anzeige Report1{"Report1"};                        ///< Rich Text source
    Anzeige Temperaturverlauf1{"Temperaturverlauf1"};  ///< plain text
    Anzeige Hinweis{"Hinweis"};    ///< what went wrong at the last save, hidden if nothing
    Anzeige AktSeite{"AktSeite"};  ///< marker at the button of the page shown; its text is the number
    Knopf Command_Speichern{"Command_Speichern"};
    Knopf Command_Schliessen{"Command_Schliessen"};

    /// Button of page 1..7 or month 1..12.
    [[nodiscard]] Knopf& Seite(int i) { return seiten_.at(static_cast<std::size_t>(i - 1)); }

    std::string report_text;      ///< the report as it was written last
    std::string temperatur_text;  ///< the temperature course as it was written last

    /// The modes: open the window on page 1, and on month 1.
    void report_zeigen();
    void temperaturverlauf_zeigen();

    /// Shows page or month i.
    void Seite_Click(int i);

    /// Asks for a file and writes all pages, or the hourly table of the year. Cancelling and a failed write
    /// leave everything as it was, without a message; a failed write leaves an old file whole, and `Hinweis`
    /// names file and cause until a save succeeds or another page is shown.
    void speichern();

    /// Least width of the window, pixels.
    [[nodiscard]] static double mindestbreite();

    /// Places the controls in a window of that inner size, pixels: the texts over a row of buttons, `Hinweis`
    /// between them.
    void anordnen(double breite, double hoehe);

  private:
    void oeffnen(bool report);
    void markieren(int i);
    void hinweisen(std::string text);

    Sitzung& sitzung_;
    std::function<Dokumentquelle()> quelle_;
    std::array<Knopf, knoepfe> seiten_;
    int seite_ = 1;
    double breite_ = 0;  ///< inner size of the window, pixels
    double hoehe_ = 0;
};

}  // namespace velmaris
