#pragma once

#include "charts/c_sankey.h"
#include "tests/rekorder_flaeche.h"
#include "toolkit/schriftmasse.h"

#include <string>
#include <vector>

namespace velmaris::test {

/// A label's line and the pixels that it covers.
struct Textkasten {
    std::string text;
    double links;
    double oben;
    double rechts;
    double unten;
};

/// A white surface of the plane's size that measures texts by the widths of a real font.
class Sankeyprobe : public RekorderFlaeche {
  public:
    Sankeyprobe() : RekorderFlaeche(sankey_breite, sankey_hoehe, farben::weiss) {}

    void schrift(const Schrift& schrift) override {
        RekorderFlaeche::schrift(schrift);
        schrift_ = schrift;
    }
    [[nodiscard]] double textbreite(std::string_view text) const override {
        return schriftbreite(text, schrift_);
    }

    [[nodiscard]] std::vector<Textkasten> textkaesten() const;

    /// Pixels of the colour at (x, y) that lie above each other from there upward, or beside each other to
    /// the right.
    [[nodiscard]] int hoch(int x, int y) const;
    [[nodiscard]] int quer(int x, int y) const;

  private:
    [[nodiscard]] int lauf(int x, int y, int dx, int dy) const;

    Schrift schrift_;
};

/// Fails the test for each line of text that the surface cuts.
void erwarte_texte_innen(const Sankeyprobe& bild, const std::string& fall);

}  // namespace velmaris::test
