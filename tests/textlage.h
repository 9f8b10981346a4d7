#pragma once

#include "tests/rekorder_flaeche.h"
#include "toolkit/felder.h"

#include <string>
#include <vector>

namespace velmaris {
struct Haupt;
}

namespace velmaris::test {

/// Records what is drawn, with the letters of another surface.
class Textprobe : public RekorderFlaeche {
  public:
    /// `masse` measures the texts and must live as long.
    Textprobe(double breite, double hoehe, Zeichenflaeche& masse)
        : RekorderFlaeche(breite, hoehe), masse_(masse) {}

    void schrift(const Schrift& schrift) override;
    [[nodiscard]] double textbreite(std::string_view text) const override { return masse_.textbreite(text); }
    [[nodiscard]] double texthoehe(std::string_view text) const override { return masse_.texthoehe(text); }

  private:
    Zeichenflaeche& masse_;
};

/// A chart with the size of its surface.
struct Diagramm {
    const Bildfeld* bild;
    double breite;
    double hoehe;
};

/// All charts of the planes.
[[nodiscard]] std::vector<Diagramm> diagramme(Haupt& haupt);

/// What is wrong with the texts of a chart in the letters of another surface: those that begin or end beyond
/// the chart's surface, and those that touch.
[[nodiscard]] std::vector<std::string> textfehler(const Diagramm& diagramm, Zeichenflaeche& masse);

}  // namespace velmaris::test
